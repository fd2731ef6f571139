// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "common/qnoxpaycard.h"
#include "common/qnoxsettings.h"
#include "dialogs/protocols.h"
#include "forms/formdialog.h"
#include "forms/settingfields.h"
#include "ui_paysystemdialog.h"

#include <string>

/// The properties of the payment system. Reads the driver's settings document, edits it together with its
/// sub-dialogs, and writes it back: edited on OK, as it was read on Cancel. A document that cannot be read is
/// announced when the window opens; Cancel gives it back as it is.
class PaySystemDialog : public FormDialog
{
    Q_OBJECT

public:
    /// Throws DeviceNotFoundException without a driver and Exception when the driver fails. The driver may delete
    /// the parent meanwhile: one that the host gave belongs to the dialog once it is whole.
    PaySystemDialog(NOX::PayCard::IPayCard *driver, QWidget *parent);

    ~PaySystemDialog() override;

    /// Also throws when the driver refuses to be told that the properties are closed.
    int exec() PAYCARD_OVERRIDES_EXEC;

    void setError(const QString &text);
    void resetError();
    void loadSettings();
    /// True when the window is still to be used.
    bool saveSettings();

public slots:
    /// Cancels: the button and the Escape key come here.
    void reject() override;

protected:
    void closeEvent(QCloseEvent *event) override;
    void changeEvent(QEvent *event) override;

private slots:
    void on_pbtnSlip_clicked();
    void on_pbtnSettingsButton_clicked();
    void on_pbtnOperators_clicked();
    void on_pbtnPathACDialog_clicked();
    void on_cmbProtocol_currentIndexChanged(int index);
    void on_pbtnOk_clicked();
    void on_pbtnCancel_clicked();
    void on_pbtnAbout_clicked();
    void checkState();

private:
    void edit(Protocol::EditSettings runDialog);
    template <class Action>
    void reportingFailure(Action action);
    std::wstring textAsLoaded() const;
    bool writeToDriver(std::wstring xml);
    void hideFromDriver();
    void tryToHide();

    Ui_PaySystemDialog ui;
    QNoxPaycard driver;
    /// The driver's document.
    std::wstring loadedXml;
    QNoxSettings settings;
    SettingFields fields;
    /// Stands in the error line while there is no error. Empty when the document can be read.
    QString notice;
    /// While the driver has been told so.
    bool shown = false;
};
