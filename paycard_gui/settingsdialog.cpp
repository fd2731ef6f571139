// SPDX-License-Identifier: LGPL-2.1-or-later
#include "settingsdialog.h"

SettingsDialog::SettingsDialog(QNoxSettings &document, QWidget *parent) : NoHelpButtonDialog(parent), settings(document)
{
}

SettingsDialog::~SettingsDialog() = default;

void SettingsDialog::loadSettings()
{
    loadFields(fields, settings);
}

void SettingsDialog::saveSettings()
{
    saveFields(fields, settings);
}

QString SettingsDialog::firstBroken(std::initializer_list<Rule> rules)
{
    for (const Rule &rule : rules) {
        if (rule.broken) {
            return rule.message;
        }
    }
    return QString();
}

void SettingsDialog::saveAndAccept()
{
    guarded([this] {
        saveSettings();
        accept();
    });
}
