// SPDX-License-Identifier: LGPL-2.1-or-later
#include "common/qnoxsettings.h"
#include "firstpaint.h"
#include "paycard_gui.h"
#include "prepareddriver.h"
#include "suites.h"

#include <QComboBox>
#include <QPushButton>

namespace {

/// Each document that is larger than the library's first buffer takes one call more.
const int ManyOperators = 3;

void ok(QDialog *window)
{
    window->findChild<QPushButton *>("pbtnOk")->click();
}

void secondPreview(QDialog *window)
{
    window->findChild<QComboBox *>()->setCurrentIndex(1);
    window->reject();
}

struct Case
{
    const char *what;
    int (*function)(NOX::PayCard::IPayCard *, QWidget *);
    /// Null where no window opens.
    void (*end)(QDialog *window);
    const wchar_t *protocol;
    int operation;
    int operators;
    int contract;
};

const Case cases[] = {
    {"AskParams", AskParams, nullptr, L"2", 0, 0, 0},
    {"CommissionAddition, one preview", CommissionAddition, FirstPaint::cancel, L"2", 0, 0, 5},
    {"CommissionAddition, two previews", CommissionAddition, secondPreview, L"2", 0, 0, 10},
    {"SelectOperator, Cancel", SelectOperator, FirstPaint::cancel, L"2", 0, 0, 1},
    {"SelectOperator, OK", SelectOperator, ok, L"2", 0, 0, 2},
    {"SelectOperator, OK, long settings", SelectOperator, ok, L"2", 0, ManyOperators, 3},
    {"ShowProperties, Cancel", ShowProperties, FirstPaint::cancel, L"2", 0, 0, 5},
    {"ShowProperties, OK", ShowProperties, ok, L"2", 0, 0, 5},
    {"ShowProperties, OK, long settings", ShowProperties, ok, L"2", 0, ManyOperators, 6},
    {"ConfirmPayment, protocol 3", ConfirmPayment, FirstPaint::cancel, L"3", 0, 0, 1},
    {"ConfirmPayment, protocol 0, payment", ConfirmPayment, FirstPaint::cancel, L"0", 0, 0, 3},
    {"ConfirmPayment, protocol 0, refund", ConfirmPayment, FirstPaint::cancel, L"0", 1, 0, 4},
    {"ConfirmPayment, protocol 2", ConfirmPayment, FirstPaint::cancel, L"2", 0, 0, 7},
};

std::wstring shortSettings()
{
    QNoxSettings settings;
    settings.set("Protocol", 2);
    settings.set("PathAC", "/");
    return settings.toXml(2).toStdWString();
}

} // namespace

void countCalls(Table &table)
{
    FirstPaint firstPaint;
    for (const Case &entry : cases) {
        PreparedDriver driver;
        driver.settings = entry.operators > 0 ? shopSettings("2", entry.operators) : shortSettings();
        driver.protocol = entry.protocol;
        driver.operation = entry.operation;
        const auto call = [&] { entry.function(&driver, nullptr); };
        if (entry.end) {
            firstPaint.measure(call, entry.end);
        } else {
            call();
        }
        table.addCount(QString("Driver calls: ") + entry.what, driver.calls, entry.contract);
    }
}
