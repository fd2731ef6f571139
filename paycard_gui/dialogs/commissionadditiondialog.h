// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "common/qnoxpaycard.h"
#include "forms/formdialog.h"
#include "ui_commissionadditiondialog.h"

/// How the operator's commission is charged, with a preview of the amounts. exec() gives 0 when cancelled, 1
/// for included in the sum, 2 for added to it.
class CommissionAdditionDialog : public FormDialog
{
    Q_OBJECT

public:
    /// Throws DeviceNotFoundException without a driver.
    CommissionAdditionDialog(NOX::PayCard::IPayCard *driver, QWidget *parent);

private slots:
    void on_cmbCommissionAddition_currentIndexChanged(int index);
    void on_pbtnOk_clicked();
    void on_pbtnCancel_clicked();

private:
    void updatePreview();
    void checkState(double sum, double min, double max);
    /// Throws an Exception when the operator does not take this sum.
    static void checkSum(double sum, double min, double max);
    void setState(bool ok, const QString &text);

    Ui_CommissionAdditionDialog ui;
    QNoxPaycard driver;
};
