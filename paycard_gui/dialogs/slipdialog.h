// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "forms/settingsdialog.h"
#include "ui_slipdialog.h"

/// The texts at the head and the foot of the card slip, kept in a document of their own under one key.
class SlipDialog : public SettingsDialog
{
    Q_OBJECT

public:
    SlipDialog(QNoxSettings &settings, QWidget *parent);

    void loadSettings() override;
    void saveSettings() override;

private:
    Ui_SlipDialog ui;
};
