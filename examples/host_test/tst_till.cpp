// SPDX-License-Identifier: LGPL-2.1-or-later
//
// Tests of a host: the simulated driver stands in for the card reader, and a script for the cashier.

#include "testing/cashier.h"
#include "testing/simulateddriver.h"
#include "till.h"

#include <QtTest>

using namespace Cashier;

class TillTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void propertiesAreFoundAgain();
    void refusedSettings();
    void declinedPayment();
    void secondPaymentFails();

private:
    SimulatedDriver driver;
};

namespace {

/// Has the till do something while the cashier takes these steps in the windows that open.
void play(Till &till, void (Till::*action)(), std::vector<ModalScript::Step> steps)
{
    ModalScript script(std::move(steps));
    script.run([&] {
        (till.*action)();
        return 0;
    });
    // Every step was possible, and no window was left open.
    QVERIFY2(script.completed(), qPrintable(script.problem()));
}

} // namespace

void TillTest::init()
{
    driver.clearFailures();
    QVERIFY(driver.replaceSettings(SimulatedDriver::sample("cyberplat"), nullptr));
}

void TillTest::propertiesAreFoundAgain()
{
    Till till(driver);
    play(
        till, &Till::setUp,
        {type("Время ожидания АС", "17"), press("Параметры АС"), type("Код дилера", "4711"), press("ОК"), press("ОК")});
    QCOMPARE(till.setups, 1);
    QVERIFY(driver.settings().contains("<value name=\"DealerCode\">4711</value>"));

    QString seconds;
    QString dealer;
    play(till, &Till::setUp,
         {read("Время ожидания АС", &seconds), press("Параметры АС"), read("Код дилера", &dealer),
          photograph("properties.png"), press("Отмена"), press("Отмена")});
    QCOMPARE(seconds, QString("17 сек"));
    QCOMPARE(dealer, QString("4711"));
}

void TillTest::refusedSettings()
{
    Till till(driver);
    Failure full;
    full.code = 12;
    full.text = "Диск полон";
    full.nth = 1; // the technician may then leave
    driver.failOperation("setSettings", full);
    QString error;
    play(till, &Till::setUp, {press("ОК"), read("lbError", &error), press("Отмена")});
    QCOMPARE(error, QString("[12] Диск полон"));
    QCOMPARE(till.setups, 0);
    QCOMPARE(till.failures, 0);
}

void TillTest::declinedPayment()
{
    Till till(driver);
    driver.operation.sum = 505.5;
    QString question;
    play(till, &Till::pay, {read(QString(), &question), key(Qt::Key_Escape)});
    QVERIFY2(question.contains("505.50"), qPrintable(question));
    QCOMPARE(till.paid, 0);
    QCOMPARE(till.failures, 0);
}

void TillTest::secondPaymentFails()
{
    Till till(driver);
    Failure unplugged;
    unplugged.fault = Fault::ThrowStandard;
    unplugged.nth = 2;
    driver.failOperation("getSum", unplugged);
    play(till, &Till::pay, {key(Qt::Key_Return)});
    QString message;
    play(till, &Till::pay, {read(QString(), &message), key(Qt::Key_Return)});
    QCOMPARE(message, QString("Ошибка получения параметров платежа"));
    QCOMPARE(till.paid, 1);
    QCOMPARE(till.failures, 1);
}

QTEST_MAIN(TillTest)
#include "tst_till.moc"
