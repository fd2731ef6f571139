// SPDX-License-Identifier: LGPL-2.1-or-later
#include "forms/settingsdialog.h"

#include "window/errorline.h"

#include <QPushButton>

#include <algorithm>
#include <utility>

SettingsDialog::SettingsDialog(QNoxSettings &document, QWidget *parent) : FormDialog(parent), settings(document) {}

void SettingsDialog::loadSettings()
{
    loadFields(fields, settings);
}

void SettingsDialog::saveSettings()
{
    saveFields(fields, settings);
}

void SettingsDialog::setError(const QString &text)
{
    if (ErrorLine *line = findChild<ErrorLine *>(QString::fromLatin1("lbError"))) {
        line->setError(text);
    }
}

void SettingsDialog::resetError()
{
    setError(QString());
}

void SettingsDialog::checkState() {}

void SettingsDialog::check(std::initializer_list<Rule> rules)
{
    const auto broken = std::find_if(rules.begin(), rules.end(), [](const Rule &rule) { return rule.broken; });
    findChild<QPushButton *>(QString::fromLatin1("pbtnOk"))->setEnabled(broken == rules.end());
    setError(broken == rules.end() ? QString() : broken->message);
}

void SettingsDialog::setFields(SettingFields table)
{
    fields = std::move(table);
    for (const SettingField &field : fields) {
        connect(field.widget, field.changed, SLOT(noteChange()));
    }
}

void SettingsDialog::loadAndCheck()
{
    loadSettings();
    checkState();
}

void SettingsDialog::noteChange()
{
    guarded([this] { checkState(); });
}

void SettingsDialog::on_pbtnOk_clicked()
{
    guarded([this] {
        saveSettings();
        accept();
    });
}

void SettingsDialog::on_pbtnCancel_clicked()
{
    reject();
}
