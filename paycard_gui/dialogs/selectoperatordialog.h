// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "common/qnoxpaycard.h"
#include "forms/formdialog.h"
#include "ui_selectoperatordialog.h"

/// Which service operator is being paid. The driver learns the index of the one that is accepted.
class SelectOperatorDialog : public FormDialog
{
    Q_OBJECT

public:
    /// Throws DeviceNotFoundException without a driver.
    SelectOperatorDialog(NOX::PayCard::IPayCard *driver, QWidget *parent);

private slots:
    void on_pbtnOk_clicked();
    void on_pbtnCancel_clicked();

private:
    Ui_SelectOperatorDialog ui;
    QNoxPaycard driver;
};
