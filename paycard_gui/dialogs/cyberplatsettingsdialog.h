// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "forms/settingsdialog.h"
#include "ui_cyberplatsettingsdialog.h"

/// How the driver reaches the CyberPlat server, and how the register identifies itself to it.
class CyberPlatSettingsDialog : public SettingsDialog
{
    Q_OBJECT

public:
    CyberPlatSettingsDialog(QNoxSettings &settings, QWidget *parent);

    void checkState() override;

private slots:
    void on_checkUseProxy_toggled(bool checked);

private:
    Ui_CyberPlatSettingsDialog ui;
};
