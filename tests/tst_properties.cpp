// SPDX-License-Identifier: LGPL-2.1-or-later
#include "toolkit/texts.h"
#include "toolkit/windows.h"

#include "fields.h"

#include <QAbstractTextDocumentLayout>
#include <QClipboard>
#include <QListWidget>
#include <QTextBlock>

#include <ctime>

class PropertiesTest : public QObject
{
    Q_OBJECT

private slots:
    void protocols_data();
    void protocols();
    void values();
    void ways();
    void directory();
    void refusals();
    void slip();
    void oddValues();
    void unreadable();
    void longTexts();
};

void PropertiesTest::protocols_data()
{
    QTest::addColumn<int>("protocol");
    QTest::addColumn<QString>("enabledWidgets"); // directory, time-out, parameters, operators, slip
    QTest::addColumn<QString>("parameters");     // window, input and key of the protocol's own settings
    const auto row = [](int protocol, const char *widgets, const char *parameters) {
        QTest::addRow("protocol %d", protocol) << protocol << QString(widgets) << QString(parameters);
    };
    row(0, "dt--s", "");
    row(1, "-----", "");
    row(2, "dtpos", "Свойства CyberPlat/spinDealerCode/DealerCode");
    row(3, "-----", "");
    row(4, "d---s", "");
    row(5, "-----", "");
    row(6, "dtp-s", "Свойства Arcom ARCUS2/spinOpcodePrintJournal/OpcodePrintJournal");
    row(7, "dt--s", "");
    row(8, "d-p-s", "Свойства Inpas SmartSale (LumiPay)/cmbModemMode/ModemMode");
    row(9, "d-p-s", "Свойства Arcom ARCUS2 (LumiPay)/cmbModemMode/ModemMode");
    row(10, "d-p-s", "Свойства Арком АРКУС2/cmbModemMode/ModemMode");
    row(11, "d-p-s", "Свойства Сбербанк/cmbPort/Port");
    row(12, "d-p-s", "Свойства INPAS SmartSale/cmbPort/Port");
    row(13, "d-p-s", "Свойства ARCOM Arcus2/cmbPort/Port");
}

void PropertiesTest::protocols()
{
    QFETCH(int, protocol);
    QFETCH(QString, enabledWidgets);
    QFETCH(QString, parameters);
    Register shop({{"Protocol", protocol}, {"KeyLoadPwd", "x"}});
    const auto look = [&](QWidget *window) {
        QString seen;
        for (const char *widget :
             {"lePathACDialog", "spinTimeout", "pbtnSettingsButton", "pbtnOperators", "pbtnSlip"}) {
            seen += enabled(window, widget) ? "dtpos"[seen.size()] : '-';
        }
        QCOMPARE(seen, enabledWidgets);
        QCOMPARE(enabled(window, "pbtnPathACDialog"), seen[0] == 'd');
    };
    QCOMPARE(shop.run(ShowProperties, {look, press("pbtnCancel")}), 0);
    if (parameters.isEmpty()) {
        return;
    }
    // What the protocol's own window changes counts only when both windows are accepted.
    const auto change = [&](QWidget *window) {
        QCOMPARE(window->windowTitle(), parameters.section('/', 0, 0));
        enter(window, parameters.section('/', 1, 1).toUtf8(), "1");
    };
    const auto storedAfter = [&](const char *first, const char *second) {
        shop.run(ShowProperties, {press("pbtnSettingsButton"), change, press(first), press(second)});
        return shop.stored(parameters.section('/', 2).toUtf8()).isValid();
    };
    QVERIFY(!storedAfter("pbtnCancel", "pbtnOk"));
    QVERIFY(!storedAfter("pbtnOk", "pbtnCancel"));
    QVERIFY(storedAfter("pbtnOk", "pbtnOk"));
}

// The settings of one window and the next one.
void PropertiesTest::values()
{
    QTemporaryDir directory;
    const std::vector<Field> fields = {{"cmbProtocol", "Protocol", "2", "13"},
                                       {"lePathACDialog", "PathAC", "", directory.path()},
                                       {"spinTimeout", "Timeout", "0", "99"}};
    Register shop({{"Protocol", "02"}, {"Unknown", "kept"}});
    QCOMPARE(shop.run(ShowProperties, {fill(fields), press("pbtnOk")}), 1);
    compareStored(QNoxSettings(shop.driver.settings()), fields);
    QVERIFY(shop.driver.settings().startsWith("<settings version=\"2\">"));
    QCOMPARE(shop.stored("Unknown").toString(), QString("kept"));
    const auto look = [&](QWidget *window) {
        for (const Field &field : fields) {
            QCOMPARE(shown(window, field.widget), field.value);
        }
    };
    QCOMPARE(shop.run(ShowProperties, {look, press("pbtnCancel")}), 0);

    // The spin box clamps; a protocol that the driver does not list leaves the second one.
    Register odd({{"Protocol", 77}, {"Timeout", 500}});
    QCOMPARE(odd.run(ShowProperties, {press("pbtnOk")}), 1);
    QCOMPARE(odd.stored("Timeout").toInt(), 99);
    QCOMPARE(odd.stored("Protocol").toInt(), 2);

    // With no list there is no protocol to select.
    Register silent({{"Protocol", 77}});
    silent.driver.failOperation("getSettingChoices", {Fault::NoText, 0, QString(), QString()});
    QCOMPARE(silent.run(ShowProperties, {press("pbtnOk")}), 1);
    QCOMPARE(silent.stored("Protocol").toInt(), -1);
}

// Every way out, and what it costs the driver.
void PropertiesTest::ways()
{
    const auto change = [](QWidget *window) { enter(window, "spinTimeout", "55"); };
    const std::vector<std::pair<Step, int>> ways = {
        {press("pbtnOk"), 1},
        {key(Qt::Key_Return), 1},
        {press("pbtnCancel"), 0},
        {key(Qt::Key_Escape), 0},
        {[](QWidget *window) { window->close(); }, 0},
    };
    for (const auto &way : ways) {
        Register shop({{"Timeout", 30}, {"Odd", " "}});
        QCOMPARE(shop.run(ShowProperties, {change, way.first}), way.second);
        QCOMPARE(shop.stored("Timeout").toInt(), way.second ? 55 : 30);
        QCOMPARE(shop.stored("Odd").toString(), QString(" "));
        // OK stamps version 2; Cancel writes what was read, and the version on the root does not count there.
        QCOMPARE(shop.driver.settings().section('"', 1, 1), QString(way.second ? "2" : "0"));
        QStringList calls;
        for (const DriverCall &call : shop.driver.journal()) {
            calls += call.operation;
        }
        QCOMPARE(calls.join(" "),
                 QString("setPropertiesShown getSettings getSettingChoices setSettings setPropertiesShown"));
        QCOMPARE(shop.driver.propertiesShown(), 0);
    }
}

void PropertiesTest::directory()
{
    Register shop({{"PathAC", "/no/such/directory"}, {"Protocol", 3}});
    QTemporaryDir directory;
    const auto look = [](QWidget *window) {
        QCOMPARE(text(window, "lbError"), QString("Каталог обмена с АС не существует"));
        QVERIFY(!enabled(window, "pbtnOk"));
        enter(window, "cmbProtocol", "2");
        QVERIFY(!enabled(window, "pbtnOk"));
        enter(window, "lePathACDialog", QString());
        QVERIFY(enabled(window, "pbtnOk"));
        QVERIFY(text(window, "lbError").isEmpty());
    };
    const auto choose = [&](QWidget *window) {
        QCOMPARE(window->windowTitle(), QString("Укажите каталог обмена с АС"));
        child<QLineEdit>(window, "fileNameEdit")->setText(directory.path());
        qobject_cast<QDialog *>(window)->accept();
    };
    QCOMPARE(shop.run(ShowProperties, {look, press("pbtnPathACDialog"), choose, press("pbtnOk")}), 1);
    QCOMPARE(shop.stored("PathAC").toString(), directory.path());
}

void PropertiesTest::refusals()
{
    const Failure refused = {Fault::Refuse, 12, "Диск полон", "settings.xml"};
    Register shop({{"Timeout", 30}});
    const auto look = [&](QWidget *window) {
        QCOMPARE(text(window, "lbError"), QString("[12] Диск полон (settings.xml)"));
        shop.driver.clearFailures();
    };
    // The window stays until the driver takes the settings.
    for (const char *button : {"pbtnOk", "pbtnCancel"}) {
        shop.driver.failOperation("setSettings", refused);
        QCOMPARE(shop.run(ShowProperties, {press(button), look, press(button)}), button[4] == 'O' ? 1 : 0);
    }
    // Closing it by force ends the call.
    shop.driver.failOperation("setSettings", refused);
    const auto message = [](QWidget *window) {
        QCOMPARE(qobject_cast<QMessageBox *>(window)->text(), QString("Ошибка настройки свойств"));
    };
    QCOMPARE(shop.run(ShowProperties, {[](QWidget *window) { window->close(); }, message, press("OK")}), -1);
    QCOMPARE(shop.driver.propertiesShown(), 0);
    shop.driver.clearFailures();

    // A document that could not be read must not be overwritten.
    for (const char *operation : {"getSettings", "getSettingChoices", "setPropertiesShown"}) {
        shop.driver.clearJournal();
        shop.driver.failOperation(operation, refused);
        QCOMPARE(shop.run(ShowProperties, {message, press("OK")}), -1);
        QCOMPARE(shop.calls("setSettings"), 0);
        shop.driver.clearFailures();
    }
    // Refusing the farewell only.
    const auto failLater = [&](QWidget *) { shop.driver.failOperation("setPropertiesShown", refused); };
    shop.driver.clearJournal();
    QCOMPARE(shop.run(ShowProperties, {failLater, press("pbtnOk"), message, press("OK")}), -1);
    QCOMPARE(shop.calls("setPropertiesShown"), 2);
}

void PropertiesTest::slip()
{
    const QString large = QString("строка\n").repeated(150000);
    const std::vector<Field> fields = {{"teHeader", "Header", "", " Магазин\n\n<b>"},
                                       {"teFooter", "Footer", "", large},
                                       {"checkHideCard", "HideCard", "true", "true"}};
    Register shop({{"Slip", document({{"HideCard", false}, {"Width", 32}})}});
    const auto look = [](QWidget *window) {
        QVERIFY(!enabled(window, "checkHideCard"));
        QTextEdit *edit = child<QTextEdit>(window, "teHeader");
        QVERIFY(edit->alignment().testFlag(Qt::AlignHCenter));
        const auto isCentred = [=] {
            const QTextBlock last = edit->document()->lastBlock();
            const QRectF line = edit->document()->documentLayout()->blockBoundingRect(last);
            return last.layout()->lineAt(0).naturalTextRect().center().x() > line.width() / 2 - 9;
        };
        edit->selectAll();
        QTest::keyClick(edit, Qt::Key_Delete);
        QTest::keyClicks(edit, "a");
        QVERIFY(isCentred());
        QApplication::clipboard()->setText("b\nc");
        edit->selectAll();
        edit->paste();
        QVERIFY(isCentred());
        edit->clear();
    };
    QCOMPARE(shop.run(ShowProperties, {press("pbtnSlip"), fill(fields), press("pbtnCancel"), press("pbtnOk")}), 1);
    QVERIFY(!nested(shop, "Slip").get("Header").isValid());
    QCOMPARE(shop.run(ShowProperties, {press("pbtnSlip"), look, fill(fields), press("pbtnOk"), press("pbtnOk")}), 1);
    compareStored(nested(shop, "Slip"), fields);
    QCOMPARE(nested(shop, "Slip").get("Width").toInt(), 32);
}

// Stored values that a form cannot show as they are, and what is stored after OK.
void PropertiesTest::oddValues()
{
    const QString name = QString("щ").repeated(40000) + "\nконец";
    const struct
    {
        bool isOperators;
        const char *key;
        QString stored, saved;
    } rows[] = {
        {true, "MinSum", "nan", "0"},
        {true, "MaxSum", "inf", "0"},
        {true, "Comission", "1e300", "10000000000"},
        {true, "Comission", "-5", "0"},
        {true, "Name", name, name},
        {false, "Timeout", "4294967301", "99"},
        {false, "Timeout", "-9e99", "0"},
        {false, "Timeout", "text", "0"},
        {false, "DealerCode", "2147483648", "999999999"},
        {false, "KeyLoadPwd", name, name},
        {false, "ProxyPort", "99999999999999999999", "65535"},
    };
    for (const auto &row : rows) {
        Values record = {{"Name", "A"}, {"Code", "1"}};
        record.emplace_back(row.key, row.stored);
        Register shop({{"KeyLoadPwd", "x"}, {"Operators", 1}, {"Operator0", document(record)}, {row.key, row.stored}});
        const auto select = [](QWidget *window) { child<QListWidget>(window, "lwOperators")->setCurrentRow(0); };
        QCOMPARE(shop.run(ShowProperties, {press("pbtnSettingsButton"), press("pbtnOk"), press("pbtnOperators"), select,
                                           press("pbtnEdit"), press("pbtnOk"), press("pbtnOk"), press("pbtnOk")}),
                 1);
        const QVariant saved = row.isOperators ? nested(shop, "Operator0").get(row.key) : shop.stored(row.key);
        QVERIFY2(saved.toString() == row.saved, row.key);
    }
}

// What cannot be read is announced, and Cancel gives it back to the letter.
void PropertiesTest::unreadable()
{
    for (const char *text :
         {"<settings>\x1</settings>", "<settings>a & b</settings>", " <?xml version='1.0'?><r/>", "\n"}) {
        for (const int result : {0, 1}) {
            Register shop;
            shop.driver.damageSettings(text);
            const auto look = [](QWidget *window) {
                const QString notice = child<QLabel>(window, "lbError")->text();
                QVERIFY(notice.contains("не читаются") && enabled(window, "pbtnOk"));
                enter(window, "lePathACDialog", "/");
                QCOMPARE(child<QLabel>(window, "lbError")->text(), notice);
            };
            QCOMPARE(shop.run(ShowProperties, {look, press(result ? "pbtnOk" : "pbtnCancel")}), result);
            QCOMPARE(shop.driver.settings() == QString(text), result == 0);
            QCOMPARE(shop.stored("PathAC").toString(), QString(result ? "/" : ""));
        }
    }
}

// At 800 x 600 every button can be reached, whatever the driver sends, and nothing keeps the window busy.
void PropertiesTest::longTexts()
{
    const auto moveToEdge = [](QWidget *window) {
        const QRect screen = Toolkit::availableGeometry(*window);
        window->move(window->pos() + screen.bottomRight() - window->frameGeometry().bottomRight());
    };
    const auto fits = [](QWidget *window) {
        const int screen = Toolkit::availableGeometry(*window).width(); // Qt 4.8 uses the whole of a small one
        QVERIFY2(window->width() <= screen && window->height() <= 600, window->metaObject()->className());
        const QList<QComboBox *> choices = window->findChildren<QComboBox *>();
        for (const QComboBox *choice : choices) {
            QVERIFY(choice->itemText(0).size() <= 501); // a list that is opened is as wide as its items
        }
        const QList<QAbstractButton *> buttons = window->findChildren<QAbstractButton *>();
        for (const QAbstractButton *button : buttons) {
            const QRect place(button->mapTo(window, QPoint()), button->size());
            QVERIFY2(!button->isVisible() || window->rect().contains(place), qPrintable(button->objectName()));
        }
    };
    for (const QString &unit : {QString("W"), QString("слово "), QString("строка\n"), QString("<b>")}) {
        double before = 0;
        for (const int length : {200, 3000, 100000, 1000000}) {
            const QString text = unit.repeated(length / static_cast<int>(unit.size()));
            Register shop(
                {{"Slip", document({{"Header", text}})}, {"Operators", 1}, {"Operator0", document({{"Name", text}})}});
            shop.driver.operation.operatorIndex = 0;
            shop.driver.operation.code = 9;
            shop.driver.operation.phone = text;
            shop.driver.operation.account = text;
            shop.driver.operation.sum = 1e308;
            shop.driver.failOperation("setSettings", {Fault::Refuse, 7, text, text});
            const auto error = [&](QWidget *window) {
                QLabel *label = child<QLabel>(window, "lbError");
                const QString whole = QString("[7] %1 (%1)").arg(text);
                const bool fitsIn = length == 200 && unit != "строка\n";
                QCOMPARE(label->text() == whole && label->toolTip().isEmpty(), fitsIn);
                QVERIFY(length != 3000 || label->toolTip().contains(Toolkit::escaped(text.left(2000))));
                fits(window);
                QVERIFY(Toolkit::availableGeometry(*window).contains(window->frameGeometry()));
                shop.driver.clearFailures();
            };
            const std::clock_t start = std::clock();
            shop.run(ShowProperties, {press("pbtnSlip"), fits, press("pbtnOk"), press("pbtnOperators"), fits,
                                      press("pbtnOk"), moveToEdge, press("pbtnOk"), error, press("pbtnOk")});
            QCOMPARE(nested(shop, "Slip").get("Header").toString(), text);
            QCOMPARE(nested(shop, "Operator0").get("Name").toString(), text);
            for (const EntryPoint call : {ConfirmPayment, SelectOperator, CommissionAddition}) {
                shop.run(call, {fits, key(Qt::Key_Escape)});
            }
            // Ten times the text is no more than about ten times the work.
            const auto work = static_cast<double>(std::clock() - start);
            QVERIFY2(length < 1000000 || work < 30 * before, qPrintable(QString("%1 / %2").arg(work).arg(before)));
            before = work;
        }
    }
}

QTEST_MAIN(PropertiesTest)
#include "tst_properties.moc"
