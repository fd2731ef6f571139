// SPDX-License-Identifier: LGPL-2.1-or-later
#include "forms/settingsdialog.h"

#include "forms/formutils.h"
#include "window/errorline.h"

#include <QLabel>
#include <QPushButton>

#include <algorithm>

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

void SettingsDialog::useErrorLine(QLabel *line, const QString &prefix)
{
    keepReadable(*line);
    errorLine = line;
    errorPrefix = prefix;
}

void SettingsDialog::setError(const QString &text)
{
    if (errorLine) {
        showError(errorLine, errorPrefix + text);
    }
}

void SettingsDialog::resetError()
{
    if (errorLine) {
        showError(errorLine, QString());
    }
}

void SettingsDialog::check(std::initializer_list<Rule> rules, QPushButton *ok)
{
    const auto broken = std::find_if(rules.begin(), rules.end(), [](const Rule &rule) { return rule.broken; });
    ok->setEnabled(broken == rules.end());
    if (broken == rules.end()) {
        resetError();
    } else {
        setError(broken->message);
    }
}

void SettingsDialog::saveAndAccept()
{
    guarded([this] {
        saveSettings();
        accept();
    });
}
