// SPDX-License-Identifier: LGPL-2.1-or-later
#include "common/qnoxpaycard.h"

#include "register.h"

#include <QAbstractButton>
#include <QApplication>
#include <QListWidget>
#include <QPixmapCache>

#include <malloc.h>

using NOX::PayCard::IPayCard;

class BridgeTest : public QObject
{
    Q_OBJECT

private slots:
    void exceptions();
    void texts();
    void errors();
    void failures_data();
    void failures();
    void intrusions_data();
    void intrusions();
    void parentGoes();
    void hostQuits();
    void entryWithinEntry();
    void thousandCalls();
};

void BridgeTest::exceptions()
{
    const Exception failure("Ошибка");
    QCOMPARE(failure.whatQString(), QString("Ошибка"));
    QCOMPARE(failure.what(), "Ошибка");
    try {
        QNoxPaycard().getInt(&IPayCard::getOperation);
        QFAIL("there is no driver");
    } catch (const Exception &missing) {
        QCOMPARE(missing.whatQString(), QString("Несуществующее устройство"));
    }
    QVERIFY_EXCEPTION_THROWN(QNoxPaycard().raiseError(-1), DeviceNotFoundException);
    QCOMPARE(QNoxPaycard().raiseError(0), 0);
    QCOMPARE(QNoxInterface<IPayCard>(nullptr).defaultBufferSize(), 1024);
    QCOMPARE(QNoxPaycard().raiseError(7), 7);
}

void BridgeTest::texts()
{
    // 1024 characters fill the first buffer and have no room for a zero.
    for (const int length : {0, 5, 1024, 1025, 3000000}) {
        Register shop;
        shop.driver.operation.reference = QString("x").repeated(length);
        const QNoxPaycard driver(&shop.driver);
        const QString text = driver.getBuff(&IPayCard::getReference);
        QCOMPARE(text, shop.driver.operation.reference);
        QCOMPARE(text.isNull(), length == 0);
        QCOMPARE(shop.calls("getReference"), length > 1024 ? 2 : 1);
        if (length > 1024) {
            QCOMPARE(shop.driver.journal().back().arguments, QString("буфер %1").arg(length + 1));
        }

        const auto answer = [&](Fault fault) {
            shop.driver.failOperation("getReference", {fault, 1, QString(), QString()});
            return driver.getBuff(&IPayCard::getReference);
        };
        QCOMPARE(answer(Fault::Unterminated).size(), 1024);
        QVERIFY(answer(Fault::EverLonger).isEmpty());
        QVERIFY(answer(Fault::LargestInt).isNull());
        QVERIFY(answer(Fault::Refuse).isNull());
    }
}

void BridgeTest::errors()
{
    Register shop;
    const QNoxPaycard driver(&shop.driver);
    QCOMPARE(driver.raiseError(3), 3);
    QVERIFY(shop.driver.journal().isEmpty());
    QCOMPARE(driver.raiseError(-1), -1); // the driver knows of no failure
    const auto message = [&](const Failure &failure) {
        shop.driver.failOperation("setOperatorIndex", failure);
        try {
            driver.raiseError(shop.driver.setOperatorIndex(0));
        } catch (const Exception &raised) {
            return raised.whatQString();
        }
        return QString("nothing raised");
    };
    QCOMPARE(message({Fault::Refuse, 12, "Текст %1", "%2 деталь"}), QString("[12] Текст %1 (%2 деталь)"));
    QCOMPARE(message({Fault::Refuse, -3, "Текст", QString()}), QString("[-3] Текст"));
    QCOMPARE(message({Fault::Refuse, 4, QString(), QString()}), QString("[4] "));
    QCOMPARE(message({Fault::Refuse, 0, "Текст", QString()}), QString("nothing raised"));
}

namespace {

const struct
{
    const char *name;
    EntryPoint call;
    int lastResult;
} EntryPoints[] = {
    {"CommissionAddition", CommissionAddition, 2},
    {"SelectOperator", SelectOperator, 1},
    {"ShowProperties", ShowProperties, 1},
    {"ConfirmPayment", ConfirmPayment, 1},
};

/// A user who agrees to everything, and leaves where that does not help.
void agree(QWidget *window)
{
    if (!Cashier::tryPress(window, "pbtnOk") && !Cashier::tryPress(window, "OK")) {
        Cashier::tryPress(window, "pbtnCancel");
    }
}

/// Has the driver asked for whatever a window asks for while it is open.
void use(QWidget *window)
{
    if (QWidget *choice = window->findChild<QWidget *>("cmbCommissionAddition")) {
        QTest::keyClick(choice, Qt::Key_Down);
    }
    Cashier::tryPress(window, "pbtnAbout");
}

/// Agrees to every window while it lives.
class AgreeingUser : public QObject
{
protected:
    void timerEvent(QTimerEvent * /*event*/) override
    {
        if (QWidget *window = QApplication::activeModalWidget()) {
            agree(window);
        }
    }
};

Register shopWithOperator()
{
    return Register(
        {{"Protocol", 2}, {"Operators", 1}, {"Operator0", document({{"Name", "Связь"}, {"MaxSum", 1000}})}});
}

} // namespace

void BridgeTest::failures_data()
{
    QTest::addColumn<int>("entry");
    QTest::addColumn<QString>("operation");
    for (int entry = 0; entry < 4; ++entry) {
        for (const QString &operation : SimulatedDriver::operations()) {
            QTest::addRow("%s, %s", EntryPoints[entry].name, qPrintable(operation)) << entry << operation;
        }
    }
}

// Whatever a driver does wrong, the call returns one of its results and leaves nothing behind.
void BridgeTest::failures()
{
    QFETCH(int, entry);
    QFETCH(QString, operation);
    for (const Fault fault : {Fault::Refuse, Fault::NoText, Fault::EverLonger, Fault::LargestInt, Fault::GoneAtSecond,
                              Fault::Unterminated, Fault::ThrowStandard, Fault::ThrowOther, Fault::RunsEvents}) {
        Register shop = shopWithOperator();
        shop.mayEndEarly = true;
        shop.driver.operation.operatorIndex = 0;
        shop.driver.operation.sum = 100;
        shop.driver.failOperation(operation, {fault, 5, "Сбой", "деталь"});
        // The error operations are asked after another one has failed.
        const bool isOfError = operation.startsWith("getResult") || operation.startsWith("getError");
        if (isOfError) {
            shop.driver.failOperation("setOperatorIndex", {Fault::Refuse, 6, "Отказ", QString()});
            shop.driver.failOperation("setSettings", {Fault::Refuse, 6, "Отказ", "деталь"});
        }
        const int result = shop.run(EntryPoints[entry].call, {agree, agree, agree});
        QVERIFY2(result >= -1 && result <= EntryPoints[entry].lastResult, qPrintable(QString::number(result)));
        const bool reached = shop.calls(qPrintable(operation)) > 0;
        const bool throws = fault == Fault::ThrowStandard || fault == Fault::ThrowOther;
        if (!reached && shop.driver.failures().size() == 1) {
            QVERIFY2(result >= 1, "nothing failed");
        }
        // A document, or the list of protocols, that did not come whole must not be overwritten.
        if (entry == 2 && operation.startsWith("getSetting") && operation != "getSettingValue" &&
            (fault == Fault::EverLonger || fault == Fault::LargestInt || fault == Fault::GoneAtSecond)) {
            QCOMPARE(result, -1);
            QCOMPARE(shop.calls("setSettings"), 0);
        }
        // The properties show a standard exception of the write and stay open.
        const bool isShown = entry == 2 && fault == Fault::ThrowStandard && (isOfError || operation == "setSettings");
        if (reached && throws && !isShown) {
            QCOMPARE(result, -1);
        }
        if (entry == 2 && operation != "setPropertiesShown") {
            QCOMPARE(shop.driver.propertiesShown(), 0);
            QCOMPARE(shop.calls("setPropertiesShown"), 2);
        }
        QVERIFY(QApplication::topLevelWidgets().isEmpty());
    }
}

namespace {

QVariantList contents(QWidget *window)
{
    QVariantList all;
    const QList<QWidget *> widgets = window->findChildren<QWidget *>();
    for (const QWidget *widget : widgets) {
        all << widget->property("text") << widget->property("currentIndex");
    }
    return all;
}

/// Sends every widget keys and text, as a host's own on-screen keyboard does.
void typeEverywhere(QWidget *window, QWidget * /*parent*/)
{
    const QVariantList before = contents(window);
    const QList<QWidget *> widgets = window->findChildren<QWidget *>() << window;
    for (QWidget *widget : widgets) {
        if (!widget->isVisible()) {
            continue;
        }
        for (const Qt::Key code : {Qt::Key_Escape, Qt::Key_Return, Qt::Key_Down, Qt::Key_X}) {
            QKeyEvent press(QEvent::KeyPress, code, Qt::NoModifier, "x");
            QApplication::sendEvent(widget, &press);
        }
        QInputMethodEvent text;
        text.setCommitString("x");
        QApplication::sendEvent(widget, &text);
    }
    QCOMPARE(contents(window), before);
}

/// What can happen while a driver runs an event loop of its own in one of its operations.
const struct
{
    const char *name;
    void (*happens)(QWidget *window, QWidget *parent);
} Intrusions[] = {
    {"parent deleted", [](QWidget * /*window*/, QWidget *parent) { delete parent; }},
    {"keys", typeEverywhere},
    {"window closed", [](QWidget *window, QWidget * /*parent*/) { window->close(); }},
    {"all windows closed", [](QWidget * /*window*/, QWidget * /*parent*/) { QApplication::closeAllWindows(); }},
};

} // namespace

void BridgeTest::intrusions_data()
{
    QTest::addColumn<int>("entry");
    QTest::addColumn<QString>("operation");
    QTest::addColumn<int>("intrusion");
    for (int entry = 0; entry < 4; ++entry) {
        for (const QString &operation : SimulatedDriver::operations()) {
            for (int i = 0; i < 4; ++i) {
                QTest::addRow("%s, %s, %s", EntryPoints[entry].name, qPrintable(operation), Intrusions[i].name)
                    << entry << operation << i;
            }
        }
    }
}

void BridgeTest::intrusions()
{
    QFETCH(int, entry);
    QFETCH(QString, operation);
    QFETCH(int, intrusion);
    for (const bool closing : {false, true}) {
        // At each of the operation's calls in turn, until there is none with this number.
        bool reached = true;
        for (int nth = 0; reached; ++nth) {
            QPointer<QWidget> parent = new QWidget;
            Register shop = shopWithOperator();
            shop.mayEndEarly = true;
            shop.driver.operation.operatorIndex = 0;
            shop.driver.operation.sum = 100;
            const bool isOfError = operation.startsWith("getResult") || operation.startsWith("getError");
            if (isOfError) {
                shop.driver.failOperation("setOperatorIndex", {Fault::Refuse, 6, "Отказ", QString()});
                shop.driver.failOperation("setSettings", {Fault::Refuse, 6, "Отказ", "деталь"});
            }
            shop.driver.failOperation(operation, {Fault::RunsEvents, 0, QString(), QString()});
            int calls = 0;
            shop.driver.onEvents = [&] {
                QWidget *window = QApplication::activeModalWidget();
                if (calls++ == nth) {
                    Intrusions[intrusion].happens(window ? window : parent.data(), parent);
                }
            };
            const auto leave = [&](QWidget *window) { closing ? void(window->close()) : agree(window); };
            const int result = shop.run(EntryPoints[entry].call, {use, leave, leave, leave}, parent);
            reached = calls > nth;
            QVERIFY(result >= -1 && result <= EntryPoints[entry].lastResult);
            if (reached && intrusion == 0) {
                QVERIFY(!parent);
                // The driver has the settings when it hears that the properties are closed.
                QCOMPARE(result, operation == "setPropertiesShown" && nth == 1 && !closing ? 1 : 0);
            }
            if (entry == 2) {
                QCOMPARE(shop.driver.propertiesShown(), 0);
                QCOMPARE(shop.calls("setPropertiesShown"), 2);
                // Told once, whatever is pressed meanwhile; a refusal leaves the window open for more.
                QVERIFY(isOfError || shop.calls("setSettings") <= 1);
            }
            delete parent;
            QVERIFY(QApplication::topLevelWidgets().isEmpty());
        }
    }
}

// The host deletes the parent of a window that is open, also of one that another window has opened.
void BridgeTest::parentGoes()
{
    for (const auto &entry : EntryPoints) {
        Register shop = shopWithOperator();
        QWidget *parent = new QWidget;
        QCOMPARE(shop.run(entry.call, {[&](QWidget *) { delete parent; }}, parent), 0);
        QVERIFY(QApplication::topLevelWidgets().isEmpty());
    }
    const auto doubleClick = [](QWidget *window) {
        QListWidget *list = child<QListWidget>(window, "lwOperators");
        const QPoint place = list->visualItemRect(list->item(0)).center();
        QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, place);
        QTest::mouseDClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, place);
    };
    const std::vector<ModalScript::Step> ways[] = {{press("pbtnSlip")},
                                                   {press("pbtnOperators"), doubleClick},
                                                   {press("pbtnSettingsButton")},
                                                   {press("pbtnAbout")},
                                                   {press("pbtnPathACDialog")}};
    for (auto steps : ways) {
        Register shop = shopWithOperator();
        QWidget *parent = new QWidget;
        int shown = 1;
        steps.push_back([&](QWidget *) {
            delete parent;
            shown = shop.driver.propertiesShown(); // the driver may be gone next
        });
        QCOMPARE(shop.run(ShowProperties, steps, parent), 0);
        QCOMPARE(shown, 0);
        QVERIFY(QApplication::topLevelWidgets().isEmpty());
    }
}

void BridgeTest::hostQuits()
{
    for (const auto &entry : EntryPoints) {
        Register shop = shopWithOperator();
        // A host without a window of its own goes on when one of the library closes.
        QSignalSpy lastWindow(qApp, SIGNAL(lastWindowClosed()));
        int result = -1;
        // The signal comes in the application's own loop only.
        QTimer::singleShot(0, qApp, [&] {
            shop.run(entry.call, {[](QWidget *window) { window->close(); }});
            result = shop.run(entry.call, {[](QWidget *) { QCoreApplication::exit(7); }});
        });
        QCOMPARE(QApplication::exec(), 7);
        QVERIFY(lastWindow.isEmpty());
        QCOMPARE(result, 0);
        QVERIFY(QApplication::topLevelWidgets().isEmpty());
    }
}

void BridgeTest::entryWithinEntry()
{
    Register outer = shopWithOperator();
    Register inner = shopWithOperator();
    int innerResult = 0;
    const auto callAgain = [&](QWidget *window) {
        QTimer::singleShot(0, window, [&] { innerResult = SelectOperator(&inner.driver, nullptr); });
    };
    const auto choose = [](QWidget *window) {
        QCOMPARE(window->windowTitle(), QString("Выбор оператора"));
        press("pbtnOk")(window);
    };
    const int outerResult = outer.run(ShowProperties, {callAgain, choose, press("pbtnCancel")});
    QCOMPARE(innerResult, 1);
    QCOMPARE(inner.driver.operation.operatorIndex, 0);
    QCOMPARE(outerResult, 0);
    QCOMPARE(outer.driver.propertiesShown(), 0);
}

// A register runs for weeks: nothing may pile up in it.
void BridgeTest::thousandCalls()
{
    const auto allocatedKiB = [] {
#if __GLIBC_PREREQ(2, 33)
        const auto memory = mallinfo2();
#else
        const auto memory = mallinfo();
#endif
        return static_cast<long>(memory.uordblks + memory.hblkhd) / 1024;
    };
    QPixmapCache::setCacheLimit(0); // it grows to some 10 MiB
    AgreeingUser user;
    user.startTimer(0);
    Register shop = shopWithOperator();
    shop.driver.operation.operatorIndex = 0;
    shop.driver.operation.sum = 100;
    long settled = 0;
    decltype(QApplication::allWidgets().size()) widgets = 0;
    for (int i = 0; i < 1000; ++i) {
        for (const auto &entry : EntryPoints) {
            QCOMPARE(entry.call(&shop.driver, nullptr), 1);
        }
        shop.driver.clearJournal();
        if (i == 99) {
            settled = allocatedKiB();
            widgets = QApplication::allWidgets().size();
        }
    }
    QCOMPARE(QApplication::allWidgets().size(), widgets);
    const long growth = allocatedKiB() - settled;
    qInfo("grown by %ld KiB from %ld KiB in 3600 calls", growth, settled);
#ifndef __SANITIZE_ADDRESS__ // does not count
    QVERIFY(settled > 0 && growth < 128);
#endif
}

QTEST_MAIN(BridgeTest)
#include "tst_bridge.moc"
