// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "forms/formdialog.h"
#include "forms/settingfields.h"

#include <initializer_list>

class QNoxSettings;

/// A dialog that edits some settings of its caller's document: it fills its form when it is built and writes
/// to the document only when it is accepted. The form has the buttons "pbtnOk" and "pbtnCancel", and the error line
/// "lbError" if there is anything to check.
class SettingsDialog : public FormDialog
{
    Q_OBJECT

public:
    /// The document must outlive the dialog.
    SettingsDialog(QNoxSettings &document, QWidget *parent);

    virtual void loadSettings();
    virtual void saveSettings();
    /// Nothing is shown, or cleared, in a dialog without an error line.
    void setError(const QString &text);
    void resetError();

public slots:
    /// Says whether the form can be saved as it is; called at each change of a field.
    virtual void checkState();

protected:
    struct Rule
    {
        bool broken;
        QString message;
    };
    /// Shows the message of the first broken rule and disables OK; or neither, when all hold.
    void check(std::initializer_list<Rule> rules);

    /// Takes the settings that the form shows. To be called once there is a form.
    void setFields(SettingFields table);
    /// Fills the form, and checks it also when that has changed nothing.
    void loadAndCheck();

    QNoxSettings &settings;
    SettingFields fields;

private slots:
    void noteChange();
    void on_pbtnOk_clicked();
    void on_pbtnCancel_clicked();
};
