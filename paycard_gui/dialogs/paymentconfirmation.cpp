// SPDX-License-Identifier: LGPL-2.1-or-later
#include "dialogs/paymentconfirmation.h"

#include "common/qnoxpaycard.h"
#include "toolkit/texts.h"
#include "window/showntext.h"

#include <QObject>

#include <iterator>

using NOX::PayCard::IPayCard;

namespace {

const int OperatorNameLength = 64;

/// The operation codes for which the reference of the earlier operation is shown: from a refund (1) to
/// `last`.
enum LastReferencedOperation { NoReference = 0, Refund = 1, RefundCancellation = 3 };

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

QString amount(double value)
{
    return QString::number(value, 'f', 2);
}

/// The pattern with the driver's text for %1, shown literally; nothing when there is no text.
QString line(const QString &pattern, const QString &text)
{
    return text.isEmpty() ? QString() : pattern.arg(Toolkit::escaped(ShownText::cut(text)));
}

QString cardPaymentText(const QNoxPaycard &driver, LastReferencedOperation last)
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
    switch (driver.getBuff(&IPayCard::getSettingValue, L"Protocol").toInt()) {
    case 0:
    case 7:
    case 8:
    case 12:
        return cardPaymentText(driver, RefundCancellation);
    case 6:
    case 9:
    case 13:
        return cardPaymentText(driver, Refund);
    case 4:
    case 10:
    case 11:
        return cardPaymentText(driver, NoReference);
    case 2:
        return servicePaymentText(driver);
    default:
        // Confirmed without data, on purpose.
        return QString();
    }
}
