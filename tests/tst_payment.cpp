// SPDX-License-Identifier: LGPL-2.1-or-later
#include "register.h"

#include <QComboBox>
#include <QLabel>
#include <QPushButton>

class PaymentTest : public QObject
{
    Q_OBJECT

private slots:
    void confirmationTexts_data();
    void confirmationTexts();
    void servicePaymentText();
    void confirmationAnswers();
    void confirmationFailure();
    void operatorSelection();
    void operatorSelectionRefused();
    void manyOperators();
    void commissionPreview();
    void commissionAnswers();
};

namespace {

QString confirmationText(Register &shop)
{
    QString text;
    shop.run(ConfirmPayment, {[&](QWidget *window) {
                 text = qobject_cast<QMessageBox *>(window)->text();
                 window->close();
             }});
    return text;
}

Values threeOperators()
{
    return {{"Operators", 3},
            {"Operator0", "<r><value name='Name'>x</value><value name='Name'>Связь</value></r>"},
            {"Operator1", document({{"Name", "x"}}).remove("</settings>")}, // gives nothing
            {"Operator2", document({{"Name", "Свет"}})}};
}

} // namespace

void PaymentTest::confirmationTexts_data()
{
    QTest::addColumn<QString>("protocol");
    QTest::addColumn<int>("operation");
    QTest::addColumn<QString>("text");
    const QString plain = "Проверка данных<br>Операция: %1<br>Сумма: 10.00";
    const QString referenced = plain + "<br>Ссылка: 1&lt;3";
    const auto rows = [](const char *protocol, const QStringList &texts) {
        const int operations[] = {0, 1, 2, 3, 10};
        for (int i = 0; i < 5; ++i) {
            QTest::addRow("protocol %s, operation %d", protocol, operations[i])
                << QString(protocol) << operations[i] << texts.value(i);
        }
    };
    const QStringList names = {"Оплата", "Возврат", "Отмена оплаты", "Отмена возврата", "Оплата услуг картой"};
    const auto filled = [&](const QStringList &patterns) {
        QStringList texts;
        for (int i = 0; i < 5; ++i) {
            texts += patterns.at(i).arg(names.at(i));
        }
        return texts;
    };
    for (const char *protocol : {"0", "7", "8", "12", "", "number"}) {
        rows(protocol, filled({plain, referenced, referenced, referenced, plain}));
    }
    for (const char *protocol : {"6", "9", "13"}) {
        rows(protocol, filled({plain, referenced, plain, plain, plain}));
    }
    for (const char *protocol : {"4", "10", "11"}) {
        rows(protocol, filled({plain, plain, plain, plain, plain}));
    }
    wchar_t listed[1024] = {};
    SimulatedDriver().getSettingChoices(L"Protocol", listed, 1024);
    const QByteArray beyond = QByteArray::number(QString::fromWCharArray(listed).count(';'));
    for (const char *protocol : {"1", "3", "5", beyond.constData(), "-1"}) {
        rows(protocol, {});
    }
    for (const int operation : {-1, 11}) {
        QTest::addRow("protocol 0, operation %d", operation) << "0" << operation << "Проверка данных<br>Сумма: 10.00";
    }
}

void PaymentTest::confirmationTexts()
{
    QFETCH(QString, protocol);
    QFETCH(int, operation);
    Register shop({{"Protocol", protocol}});
    shop.driver.operation.code = operation;
    shop.driver.operation.sum = 10;
    shop.driver.operation.reference = "1<3";
    QTEST(confirmationText(shop), "text");
    shop.driver.operation.reference.clear();
    QVERIFY(!confirmationText(shop).contains("Ссылка"));
}

void PaymentTest::servicePaymentText()
{
    Register shop({{"Protocol", 2},
                   {"Operators", 1},
                   {"Operator0", document({{"Name", "<b>%2</b>" + QString("щ").repeated(100)}})}});
    Operation &operation = shop.driver.operation;
    operation.operatorIndex = 0;
    operation.sum = 1234.5;
    operation.commission = 0.005;
    const QString name = "&lt;b&gt;%2&lt;/b&gt;" + QString("щ").repeated(64 - 9);
    const QString sums = "Оператор: " + name + "<br>Сумма: 1234.50<br>Комиссия: 0.01<br>Общая сумма: 1234.51";
    operation.code = 9;
    QCOMPARE(confirmationText(shop), "Проверка данных<br>Операция: Оплата услуг<br>" + sums);
    operation.code = 11;
    operation.account = "42";
    QCOMPARE(confirmationText(shop), "Проверка данных<br>" + sums + "<br>Номер счета: 42");
    operation.phone = "(000)";
    QCOMPARE(confirmationText(shop), "Проверка данных<br>" + sums + "<br>Номер телефона: (000)<br>Номер счета: 42");
}

void PaymentTest::confirmationAnswers()
{
    Register shop({{"Protocol", 3}});
    const auto look = [](QWidget *window) {
        const QMessageBox *box = qobject_cast<QMessageBox *>(window);
        QCOMPARE(box->windowTitle(), QString("Подтверждение"));
        QCOMPARE(box->icon(), QMessageBox::Question);
    };
    QCOMPARE(shop.run(ConfirmPayment, {look, key(Qt::Key_Return)}), 1);
    QCOMPARE(shop.run(ConfirmPayment, {press("Cancel")}), 0);
    QCOMPARE(shop.run(ConfirmPayment, {key(Qt::Key_Escape)}), 0);
    QCOMPARE(shop.run(ConfirmPayment, {[](QWidget *window) { window->close(); }}), 0);
    QCOMPARE(shop.driver.journal().size(), 4); // the protocol and nothing else
}

void PaymentTest::confirmationFailure()
{
    Register shop;
    shop.driver.failOperation("getSum", {Fault::ThrowStandard, 1, "Сбой", QString()});
    QString shown;
    QCOMPARE(shop.run(ConfirmPayment,
                      {
                          [&](QWidget *window) {
                              shown = window->windowTitle() + ": " + qobject_cast<QMessageBox *>(window)->text();
                          },
                          key(Qt::Key_Return),
                      }),
             -1);
    QCOMPARE(shown, QString("Ошибка: Ошибка получения параметров платежа"));
}

void PaymentTest::operatorSelection()
{
    Register shop(threeOperators());
    const auto look = [](QWidget *window) {
        const QComboBox *combo = child<QComboBox>(window, "cmbOperators");
        QCOMPARE(combo->count(), 3);
        QCOMPARE(combo->itemText(0), QString("Связь"));
        QCOMPARE(combo->itemText(1), QString());
        for (int i = 0; i < 3; ++i) {
            QCOMPARE(combo->itemData(i), QVariant(i));
        }
        QCOMPARE(window->minimumSize(), window->maximumSize());
        QCOMPARE(child<QPushButton>(window, "pbtnOk")->text(), QString("OK")); // Latin here
    };
    const auto choose = [](int index) {
        return [=](QWidget *window) { child<QComboBox>(window, "cmbOperators")->setCurrentIndex(index); };
    };
    QCOMPARE(shop.run(SelectOperator, {look, choose(2), press("pbtnOk")}), 1);
    QCOMPARE(shop.driver.operation.operatorIndex, 2);
    QCOMPARE(shop.run(SelectOperator, {choose(1), press("pbtnCancel")}), 0);
    QCOMPARE(shop.run(SelectOperator, {choose(1), key(Qt::Key_Escape)}), 0);
    QCOMPARE(shop.calls("setOperatorIndex"), 1);
    QCOMPARE(shop.calls("getSettings"), 3);
}

void PaymentTest::operatorSelectionRefused()
{
    Register shop; // no operators: OK still asks the driver, with -1
    QString shown;
    QCOMPARE(shop.run(SelectOperator,
                      {
                          press("pbtnOk"),
                          [&](QWidget *window) { shown = qobject_cast<QMessageBox *>(window)->text(); },
                          press("OK"),
                      }),
             -1);
    QCOMPARE(shown, QString("Ошибка настройки свойств"));
    QCOMPARE(shop.driver.journal().at(1).arguments, QString("-1"));
}

void PaymentTest::manyOperators()
{
    Values values = {{"Operators", 2000000000}};
    for (int i = 0; i < 10000; ++i) {
        values.emplace_back(QString("Operator%1").arg(i), document({{"Name", i == 1 ? QString("щ").repeated(10000)
                                                                                    : QString("Оператор %1").arg(i)}}));
    }
    Register shop(values);
    QCOMPARE(shop.run(SelectOperator,
                      {
                          [](QWidget *window) {
                              QVERIFY(window->width() < 800);
                              child<QComboBox>(window, "cmbOperators")->setCurrentIndex(9999);
                          },
                          press("pbtnOk"),
                      }),
             1);
    QCOMPARE(shop.driver.journal().back().arguments, QString("9999"));
}

void PaymentTest::commissionPreview()
{
    const struct
    {
        const char *name;
        double sum, rate;
        int type;
        double max;
        const char *included, *added; ///< the amounts, with the error between bars
    } rows[] = {
        {"fixed", 100, 5, 0, 1000, "95.00 5.00 100.00", "100.00 5.00 105.00"},
        {"percent", 100, 5, 1, 1000, "95.00 5.00 100.00", "100.00 5.00 105.00"},
        {"any other kind is percent", 200, 5, 7, 1000, "190.00 10.00 200.00", "200.00 10.00 210.00"},
        {"nothing left", 5, 5, 0, 1000, "0.00 5.00 5.00|Сумма недостаточна для проведения платежа|",
         "5.00 5.00 10.00|Недопустимая сумма|"},
        {"a kopeck is no too small sum", 0.01, 0, 0, 1000, "0.01 0.00 0.01|Недопустимая сумма|",
         "0.01 0.00 0.01|Недопустимая сумма|"},
        {"exactly the minimum", 10, 0, 0, 1000, "10.00 0.00 10.00", "10.00 0.00 10.00"},
        {"below the minimum", 9.99, 0, 0, 1000, "9.99 0.00 9.99|Недопустимая сумма|",
         "9.99 0.00 9.99|Недопустимая сумма|"},
        {"exactly the maximum", 100, 5, 0, 100, "95.00 5.00 100.00", "100.00 5.00 105.00"},
        {"above the maximum", 100, 5, 0, 99.99, "95.00 5.00 100.00", "100.00 5.00 105.00|Недопустимая сумма|"},
        {"a maximum of nothing", 100, 5, 0, 0, "95.00 5.00 100.00|Недопустимая сумма|",
         "100.00 5.00 105.00|Недопустимая сумма|"},
        {"half up", 20, 2.675, 0, 1000, "17.33 2.68 20.01", "20.00 2.68 22.68"},
        {"half down", 0, 2.675, 0, 1000, "-2.68 2.68 0.00|Сумма недостаточна для проведения платежа|",
         "0.00 2.68 2.68|Сумма недостаточна для проведения платежа|"},
        {"just below the half", 20, 2.6749, 0, 1000, "17.33 2.67 20.00", "20.00 2.67 22.67"},
    };
    const auto look = [](QWidget *window, const QString &expected) {
        const QStringList numbers = expected.section('|', 0, 0).split(' ');
        const QString error = expected.section('|', 1, 1);
        QCOMPARE(child<QLabel>(window, "lbQuery")->text(),
                 QString("Зачислить %1 р. + комиссия %2 р. = %3 р.").arg(numbers[0], numbers[1], numbers[2]));
        const QLabel *label = child<QLabel>(window, "errorLabel");
        QCOMPARE(label->text(), error);
        QCOMPARE(label->isVisible(), !error.isEmpty());
        QCOMPARE(child<QPushButton>(window, "pbtnOk")->isEnabled(), error.isEmpty());
    };
    for (const auto &row : rows) {
        Register shop(
            {{"Operators", 1},
             {"Operator0",
              document({{"MinSum", 10}, {"MaxSum", row.max}, {"Comission", row.rate}, {"ComissionType", row.type}})}});
        shop.driver.operation.operatorIndex = 0;
        shop.driver.operation.sum = row.sum;
        QCOMPARE(shop.run(CommissionAddition,
                          {
                              [&](QWidget *window) {
                                  qInfo("%s", row.name);
                                  look(window, row.included);
                                  QCOMPARE(shop.driver.journal().size(), 5);
                                  child<QComboBox>(window, "cmbCommissionAddition")->setCurrentIndex(1);
                                  look(window, row.added);
                                  QCOMPARE(shop.driver.journal().size(), 10);
                              },
                              press("pbtnCancel"),
                          }),
                 0);
    }
}

void PaymentTest::commissionAnswers()
{
    Register shop({{"Operators", 1}, {"Operator0", document({{"MaxSum", 1000}})}});
    shop.driver.operation.operatorIndex = 0;
    shop.driver.operation.sum = 100;
    const auto choose = [](int index) {
        return [=](QWidget *window) {
            QComboBox *combo = child<QComboBox>(window, "cmbCommissionAddition");
            QCOMPARE(combo->itemText(0), QString("Коммиссия включена в сумму"));
            QCOMPARE(combo->itemText(1), QString("Коммиссия добавляется к сумме"));
            combo->setCurrentIndex(index);
        };
    };
    QCOMPARE(shop.run(CommissionAddition, {choose(0), press("pbtnOk")}), 1);
    QCOMPARE(shop.run(CommissionAddition, {choose(1), key(Qt::Key_Return)}), 2);
    QCOMPARE(shop.run(CommissionAddition, {key(Qt::Key_Escape)}), 0);

    // A driver that fails while the dialog is open.
    QCOMPARE(shop.run(CommissionAddition,
                      {
                          [&](QWidget *window) {
                              shop.driver.failOperation("getSum", {Fault::ThrowOther, 1, QString(), QString()});
                              child<QComboBox>(window, "cmbCommissionAddition")->setCurrentIndex(1);
                          },
                          [](QWidget *window) {
                              QCOMPARE(qobject_cast<QMessageBox *>(window)->text(),
                                       QString("Ошибка выбора способа начисления комиссии"));
                          },
                          press("OK"),
                      }),
             -1);
}

QTEST_MAIN(PaymentTest)
#include "tst_payment.moc"
