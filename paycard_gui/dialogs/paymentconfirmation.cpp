// SPDX-License-Identifier: LGPL-2.1-or-later
#include "dialogs/paymentconfirmation.h"

#include "common/qnoxpaycard.h"
#include "dialogs/protocols.h"
#include "text/amounts.h"
#include "toolkit/texts.h"
#include "window/showntext.h"

#include <QObject>

#include <iterator>

using NOX::PayCard::IPayCard;

namespace {

const int OperatorNameLength = 64;

enum Operation { Refund = 1, RefundCancellation = 3 };

QString operationStr(int code)
{
    const char *const names[] = {
        QT_TRANSLATE_NOOP("QObject", "Оплата"),
        QT_TRANSLATE_NOOP("QObject", "Возврат"),
        QT_TRANSLATE_NOOP("QObject", "Отмена оплаты"),
        QT_TRANSLATE_NOOP("QObject", "Отмена возврата"),
        QT_TRANSLATE_NOOP("QObject", "Активация БЕЗ суммы"),
        QT_TRANSLATE_NOOP("QObject", "Активация С суммой"),
        QT_TRANSLATE_NOOP("QObject", "Бонусы и скидка"),
        QT_TRANSLATE_NOOP("QObject", "Внесение предоплаты"),
        QT_TRANSLATE_NOOP("QObject", "Просмотр баланса"),
        QT_TRANSLATE_NOOP("QObject", "Оплата услуг"),
        QT_TRANSLATE_NOOP("QObject", "Оплата услуг картой"),
    };
    return code >= 0 && code < static_cast<int>(std::size(names)) ? QObject::tr(names[code]) : QString();
}

/// The pattern with the driver's text for %1, shown literally; nothing when there is no text.
QString line(const QString &pattern, const QString &text)
{
    return text.isEmpty() ? QString() : pattern.arg(Toolkit::escaped(ShownText::cut(text)));
}

/// With the reference of the earlier operation for those from a refund to `last`.
QString cardPaymentText(const QNoxPaycard &driver, int last)
{
    const QString sum = amount(driver.getDouble(&IPayCard::getSum));
    const int operation = driver.getInt(&IPayCard::getOperation);
    QString reference;
    if (operation >= Refund && operation <= last) {
        reference = driver.getBuff(&IPayCard::getReference);
    }
    return QObject::tr("Проверка данных%1<br>Сумма: %2%3")
        .arg(line(QObject::tr("<br>Операция: %1"), operationStr(operation)), sum,
             line(QObject::tr("<br>Ссылка: %1"), reference));
}

QString servicePaymentText(const QNoxPaycard &driver)
{
    const QString operatorName = driver.getBuff(&IPayCard::getOperatorName).left(OperatorNameLength);
    const double sum = driver.getDouble(&IPayCard::getSum);
    const double commission = driver.getDouble(&IPayCard::getCommission);
    const QString phone = driver.getBuff(&IPayCard::getPhoneNumber);
    const QString account = driver.getBuff(&IPayCard::getAccountNumber);
    const QString operation = operationStr(driver.getInt(&IPayCard::getOperation));
    return QObject::tr("Проверка данных<br>%1Оператор: %2<br>Сумма: %3<br>Комиссия: %4<br>Общая сумма: %5%6")
        .arg(line(QObject::tr("Операция: %1<br>"), operation), Toolkit::escaped(operatorName), amount(sum),
             amount(commission), amount(sum + commission),
             line(QObject::tr("<br>Номер телефона: %1"), phone) + line(QObject::tr("<br>Номер счета: %1"), account));
}

} // namespace

QString paymentConfirmationText(const QNoxPaycard &driver)
{
    // A protocol that is not a number counts as 0.
    switch (protocol(driver.getBuff(&IPayCard::getSettingValue, L"Protocol").toInt()).question) {
    case Protocol::CardPayment:
        return cardPaymentText(driver, 0);
    case Protocol::CardPaymentOrRefund:
        return cardPaymentText(driver, Refund);
    case Protocol::CardPaymentOrUndone:
        return cardPaymentText(driver, RefundCancellation);
    case Protocol::ServicePayment:
        return servicePaymentText(driver);
    case Protocol::WithoutData:
        break;
    }
    return QString();
}
