// SPDX-License-Identifier: LGPL-2.1-or-later
#include "dialogs/operatordialog.h"

#include "common/qt_utils.h"
#include "forms/mappinglist.h"
#include "forms/operatorrecords.h"

namespace {

// The single m of the commission's keys is how they are stored.
const QString CodeKey = QString::fromWCharArray(L"Code");
const QString GatewayKey = QString::fromWCharArray(L"Gateway");
const QString MinSumKey = QString::fromWCharArray(L"MinSum");
const QString MaxSumKey = QString::fromWCharArray(L"MaxSum");
const QString ComissionKey = QString::fromWCharArray(L"Comission");
const QString ComissionTypeKey = QString::fromWCharArray(L"ComissionType");
const QString ComissionAdditionKey = QString::fromWCharArray(L"ComissionAddition");
const QString ComissionWareCodeKey = QString::fromWCharArray(L"ComissionWareCode");
const QString SumWareCodeKey = QString::fromWCharArray(L"SumWareCode");
const QString Param1Key = QString::fromWCharArray(L"Param1");
const QString Mask1Key = QString::fromWCharArray(L"Mask1");
const QString Param2Key = QString::fromWCharArray(L"Param2");
const QString Mask2Key = QString::fromWCharArray(L"Mask2");

} // namespace

OperatorDialog::OperatorDialog(QNoxSettings &record, QWidget *parent) : SettingsDialog(record, parent)
{
    ui.setupUi(this);
    alignLabels();
    const QString types = numberedMapping(tr("%1:Сумма;%2:Процент;"), 2);
    const QString additions = numberedMapping(tr("%1:Включена в сумму;%2:Добавляется к сумме;%3:Запрос к кассиру;"), 3);
    const QString parameters =
        numberedMapping(tr("%1:Не запрашивается;%2:Номер счета;%3:Номер телефона;%4:Логин;%5:Код;"), 5);
    strToComboBox(ui.cmbCommissionType, types, false);
    strToComboBox(ui.cmbCommissionAddition, additions, false);
    strToComboBox(ui.cmbParam1, parameters, false);
    strToComboBox(ui.cmbParam2, parameters, false);
    // The widest of them is in the right column; the inputs of the left one are to be as wide.
    ui.cmbParam1->setMinimumWidth(ui.cmbCommissionAddition->sizeHint().width());

    const QString mask = QString::fromLatin1("(999)999-99-99");
    setFields({
        {CodeKey, ui.leCode},
        {OperatorRecords::NameKey, ui.leName, tr("Оператор")},
        {MinSumKey, ui.spinMinSum},
        {MaxSumKey, ui.spinMaxSum},
        {ComissionTypeKey, ui.cmbCommissionType, 0},
        {ComissionAdditionKey, ui.cmbCommissionAddition, 0},
        {ComissionKey, ui.spinCommission},
        {GatewayKey, ui.leGateway},
        {Param1Key, ui.cmbParam1, 0},
        {Mask1Key, ui.leMask1, mask},
        {Param2Key, ui.cmbParam2, 0},
        {Mask2Key, ui.leMask2, mask},
        {SumWareCodeKey, ui.leSumWareCode},
        {ComissionWareCodeKey, ui.leCommissionWareCode},
    });
    loadAndCheck();
    adjustSize();
}

void OperatorDialog::checkState()
{
    check({
        {ui.leName->text().isEmpty(), tr("Не указано название")},
        {ui.leCode->text().isEmpty(), tr("Не указан код")},
        {ui.spinMinSum->value() > ui.spinMaxSum->value(), tr("Минимальный платеж не может быть больше максимального")},
    });
}
