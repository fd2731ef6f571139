// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "forms/settingsdialog.h"
#include "ui_arcus2settingsdialog.h"

/// The operation codes of the ARCUS2 protocol.
class Arcus2SettingsDialog : public SettingsDialog
{
    Q_OBJECT

public:
    Arcus2SettingsDialog(QNoxSettings &settings, QWidget *parent);

    void checkState() override;

private:
    Ui_Arcus2SettingsDialog ui;
};
