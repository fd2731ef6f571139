// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef ARCUS2ORMASETTINGSDIALOG_H
#define ARCUS2ORMASETTINGSDIALOG_H

#include "dialogs/ormasettingsdialog.h"

/// The connection of ARCUS2 terminals.
class Arcus2OrmaSettingsDialog : public OrmaSettingsDialog
{
    Q_OBJECT

public:
    Arcus2OrmaSettingsDialog(QNoxSettings &settings, QWidget *parent);
};

#endif
