// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "forms/settingsdialog.h"

class QComboBox;

/// What the dialogs for the LumiPay variants share: who carries the terminal's traffic to the bank.
class LumiPaySettingsDialog : public SettingsDialog
{
    Q_OBJECT

public:
    using SettingsDialog::SettingsDialog;

protected:
    /// Has the combo box offer the ways there are. `others` are the settings that only this form has.
    void fillForm(QComboBox *modemMode, const SettingFields &others = {});
};

/// The LumiPay settings of ARCUS2 terminals.
class Arcus2LumiPaySettingsDialog : public LumiPaySettingsDialog
{
    Q_OBJECT

public:
    Arcus2LumiPaySettingsDialog(QNoxSettings &settings, QWidget *parent);
};

/// The LumiPay settings of INPAS SmartSale terminals.
class InpasLumiPaySettingsDialog : public LumiPaySettingsDialog
{
    Q_OBJECT

public:
    InpasLumiPaySettingsDialog(QNoxSettings &settings, QWidget *parent);
};

/// The LumiPay settings of Sberbank terminals.
class SberbankLumiPaySettingsDialog : public LumiPaySettingsDialog
{
    Q_OBJECT

public:
    SberbankLumiPaySettingsDialog(QNoxSettings &settings, QWidget *parent);
};
