// SPDX-License-Identifier: LGPL-2.1-or-later
#include "common/qnoxsettings.h"
#include "firstpaint.h"
#include "paycard_gui.h"
#include "prepareddriver.h"
#include "suites.h"
#include "ui_operatorlistdialog.h"
#include "ui_selectoperatordialog.h"

#include <QDomDocument>

namespace {

QString nameIn(const QString &record)
{
    QDomDocument document;
    document.setContent(record);
    QDomElement value = document.documentElement().firstChildElement("value");
    while (!value.isNull() && value.attribute("name") != "Name") {
        value = value.nextSiblingElement("value");
    }
    return value.text();
}

/// Runs a bare dialog with a form whose list or combo box gets the operators' names.
template <class Form, class View>
void runBare(QWidget *parent, View *Form::*view, const std::vector<QString> &records)
{
    QDialog dialog(parent);
    Form form;
    form.setupUi(&dialog);
    for (const QString &record : records) {
        (form.*view)->addItem(nameIn(record));
    }
    dialog.exec();
}

} // namespace

std::vector<QString> operatorRecords(int count)
{
    std::vector<QString> records;
    for (int i = 0; i < count; ++i) {
        QNoxSettings record;
        record.set("Code", QString::number(100 + i));
        record.set("Comission", 1.5);
        record.set("ComissionAddition", 2);
        record.set("ComissionType", 1);
        record.set("ComissionWareCode", "900192");
        record.set("Gateway", "4822");
        record.set("Mask1", "(999)999-99-99");
        record.set("Mask2", "9999999999");
        record.set("MaxSum", 10000.0);
        record.set("MinSum", 50.0);
        record.set("Name", QString("Оператор %1").arg(i));
        record.set("Param1", 2);
        record.set("Param2", 0);
        record.set("SumWareCode", "900101");
        records.push_back(record.toXml(0));
    }
    return records;
}

std::wstring shopSettings(const QString &protocol, int operators)
{
    QNoxSettings slip;
    slip.set("Header", "ООО «Учебный магазин»\nг. Примерск, ул. Образцовая, 1");
    slip.set("Footer", "Спасибо за покупку!");
    slip.set("HideCard", true);

    QNoxSettings settings;
    settings.set("Protocol", protocol);
    settings.set("PathAC", "/");
    settings.set("Timeout", 45);
    settings.set("Slip", slip.toXml(0));
    settings.set("URL", "https://payments.example/");
    settings.set("ProxyServer", "proxy.example");
    settings.set("KeyLoadPwd", "secret");
    settings.set("Port", "TCPIP");
    settings.set("IPAddress", "192.0.2.15");
    settings.set("IPPort", 8888);
    settings.set("BaudRate", "115200");
    settings.set("Operators", operators);
    int index = 0;
    const std::vector<QString> records = operatorRecords(operators);
    for (const QString &record : records) {
        settings.set(QString("Operator%1").arg(index++), record);
    }
    return settings.toXml(2).toStdWString();
}

void measureOperators(Table &table, double seconds)
{
    std::vector<Medians> list;
    std::vector<Medians> selection;
    FirstPaint firstPaint;
    for (const int size : {10, 100, 1000, 10000}) {
        const std::vector<QString> records = operatorRecords(size);
        PreparedDriver driver;
        driver.settings = shopSettings("2", size);

        const auto measureList = [&](QDialog *properties) {
            QPushButton *button = properties->findChild<QPushButton *>("pbtnOperators");
            list.push_back(interleave(
                seconds, [&] { return firstPaint.measure([=] { button->click(); }); },
                [&] {
                    return firstPaint.measure(
                        [&] { runBare(properties, &Ui_OperatorListDialog::lwOperators, records); });
                }));
            properties->reject();
        };
        firstPaint.measure([&] { ShowProperties(&driver, nullptr); }, measureList);

        selection.push_back(interleave(
            seconds,
            [&] {
                driver.spent = 0;
                const qint64 painted = firstPaint.measure([&] { SelectOperator(&driver, nullptr); });
                return painted - driver.spent;
            },
            [&] {
                return firstPaint.measure([&] { runBare(nullptr, &Ui_SelectOperatorDialog::cmbOperators, records); });
            }));
    }
    table.addSeries("Operator list of %1", list, 1.5);
    table.addSeries("SelectOperator among %1", selection, 1.5);
}
