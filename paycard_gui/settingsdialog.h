// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef SETTINGSDIALOG_H
#define SETTINGSDIALOG_H

#include "common/nohelpbuttondialogs.h"
#include "settingfields.h"

#include <initializer_list>

class QNoxSettings;

/// A dialog that edits some settings of its caller's document: it fills its form when it is built and writes
/// to the document only when it is accepted.
class SettingsDialog : public NoHelpButtonDialog
{
    Q_OBJECT

public:
    /// The document must outlive the dialog.
    SettingsDialog(QNoxSettings &document, QWidget *parent);
    ~SettingsDialog() override;

    void loadSettings();
    virtual void saveSettings();

protected:
    struct Rule
    {
        bool broken;
        QString message;
    };
    /// Message of the first broken rule; null when all hold.
    static QString firstBroken(std::initializer_list<Rule> rules);

    void saveAndAccept();

    QNoxSettings &settings;
    /// The settings that the form shows; set by the constructors once there is a form.
    SettingFields fields;
};

#endif
