// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef INPASORMASETTINGSDIALOG_H
#define INPASORMASETTINGSDIALOG_H

#include "dialogs/ormasettingsdialog.h"

/// The connection of INPAS SmartSale terminals.
class InpasOrmaSettingsDialog : public OrmaSettingsDialog
{
    Q_OBJECT

public:
    InpasOrmaSettingsDialog(QNoxSettings &settings, QWidget *parent);
};

#endif
