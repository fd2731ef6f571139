// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef LUMIPAYSETTINGSDIALOG_H
#define LUMIPAYSETTINGSDIALOG_H

#include "forms/settingsdialog.h"

class QComboBox;

/// What the dialogs for the LumiPay variants share: who carries the terminal's traffic to the bank.
class LumiPaySettingsDialog : public SettingsDialog
{
    Q_OBJECT

public:
    using SettingsDialog::SettingsDialog;
    ~LumiPaySettingsDialog() override;

protected:
    /// Fills the combo box with the ways there are; to be done before the setting is loaded.
    static SettingField modemMode(QComboBox *combo);
};

#endif
