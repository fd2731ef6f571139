// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef SBERBANKORMASETTINGSDIALOG_H
#define SBERBANKORMASETTINGSDIALOG_H

#include "dialogs/ormasettingsdialog.h"

/// The connection of Sberbank terminals.
class SberbankOrmaSettingsDialog : public OrmaSettingsDialog
{
    Q_OBJECT

public:
    SberbankOrmaSettingsDialog(QNoxSettings &settings, QWidget *parent);
};

#endif
