// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef SETTINGSDIALOG_H
#define SETTINGSDIALOG_H

#include "common/nohelpbuttondialogs.h"
#include "forms/settingfields.h"

#include <initializer_list>

class QLabel;
class QNoxSettings;
class QPushButton;

/// A dialog that edits some settings of its caller's document: it fills its form when it is built and writes
/// to the document only when it is accepted.
class SettingsDialog : public NoHelpButtonDialog
{
    Q_OBJECT

public:
    /// The document must outlive the dialog.
    SettingsDialog(QNoxSettings &document, QWidget *parent);
    ~SettingsDialog() override;

    virtual void loadSettings();
    virtual void saveSettings();
    /// Nothing is shown, or cleared, in a dialog without an error line.
    void setError(const QString &text);
    void resetError();

protected:
    struct Rule
    {
        bool broken;
        QString message;
    };
    /// Where errors are shown, each behind the prefix.
    void useErrorLine(QLabel *line, const QString &prefix = QString());
    /// Shows the message of the first broken rule and disables OK; or neither, when all hold.
    void check(std::initializer_list<Rule> rules, QPushButton *ok);

    void saveAndAccept();

    QNoxSettings &settings;
    /// The settings that the form shows; set by the constructors once there is a form.
    SettingFields fields;

private:
    QLabel *errorLine = nullptr;
    QString errorPrefix;
};

#endif
