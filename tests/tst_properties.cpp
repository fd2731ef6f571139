// SPDX-License-Identifier: LGPL-2.1-or-later
#include "toolkit/texts.h"
#include "toolkit/windows.h"

#include "register.h"

#include <QAbstractTextDocumentLayout>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSpinBox>
#include <QStackedWidget>
#include <QTextBlock>
#include <QTextEdit>

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
    void operatorList();
    void operatorDeletion();
    void operatorRecord();
    void operatorRules();
    void typedNumbers_data();
    void typedNumbers();
    void oddValues();
    void unreadable();
    void longTexts();
    void cyberPlat();
    void cyberPlatRules();
    void arcus2();
    void lumiPay();
    void terminal();
    void terminalPages();
};

namespace {

typedef ModalScript::Step Step;

QString text(QWidget *window, const char *label)
{
    return child<QLabel>(window, label)->text();
}

bool enabled(QWidget *window, const char *widget)
{
    return child<QWidget>(window, widget)->isEnabled();
}

/// What a widget shows, as text.
QString shown(QWidget *window, const char *name)
{
    QWidget *widget = child<QWidget>(window, name);
    if (const auto *combo = qobject_cast<QComboBox *>(widget)) {
        return combo->itemData(combo->currentIndex()).toString();
    }
    if (const auto *edit = qobject_cast<QTextEdit *>(widget)) {
        return edit->toPlainText();
    }
    if (const auto *spin = qobject_cast<QDoubleSpinBox *>(widget)) {
        return QString::number(spin->value(), 'g', 15);
    }
    if (const auto *spin = qobject_cast<QSpinBox *>(widget)) {
        return QString::number(spin->value());
    }
    if (const auto *box = qobject_cast<QCheckBox *>(widget)) {
        return box->isChecked() ? "true" : "false";
    }
    return child<QLineEdit>(window, name)->text();
}

void enter(QWidget *window, const char *name, const QString &value)
{
    QWidget *widget = child<QWidget>(window, name);
    if (auto *combo = qobject_cast<QComboBox *>(widget)) {
        combo->setCurrentIndex(combo->findData(value));
    } else if (auto *edit = qobject_cast<QTextEdit *>(widget)) {
        edit->setPlainText(value);
    } else if (auto *spin = qobject_cast<QDoubleSpinBox *>(widget)) {
        spin->setValue(value.toDouble());
    } else if (auto *number = qobject_cast<QSpinBox *>(widget)) {
        number->setValue(value.toInt());
    } else if (auto *box = qobject_cast<QCheckBox *>(widget)) {
        box->setChecked(value == "true");
    } else {
        child<QLineEdit>(window, name)->setText(value);
    }
}

struct Field
{
    const char *widget;
    const char *key;
    QString initial; ///< shown when the document has nothing
    QString value;   ///< entered, and stored as this text
};

/// Looks at what the fields show at first and enters their values.
Step fill(const std::vector<Field> &fields)
{
    return [=](QWidget *window) {
        for (const Field &field : fields) {
            QCOMPARE(shown(window, field.widget), field.initial);
            enter(window, field.widget, field.value);
        }
    };
}

void compareStored(const QNoxSettings &settings, const std::vector<Field> &fields)
{
    for (const Field &field : fields) {
        QCOMPARE(settings.get(field.key).toString(), field.value);
    }
}

QNoxSettings nested(const Register &shop, const char *key)
{
    return QNoxSettings(shop.stored(key).toString());
}

} // namespace

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

void PropertiesTest::operatorList()
{
    Register shop({{"Operators", 3},
                   {"Operator0", document({{"Name", "Связь"}, {"Code", 1}, {"AddReqSum", "x"}})},
                   {"Operator2", document({{"Name", "Свет"}, {"Code", 2}})}});
    const auto look = [](QWidget *window) {
        QListWidget *list = child<QListWidget>(window, "lwOperators");
        QCOMPARE(list->count(), 3);
        QCOMPARE(list->item(1)->text(), QString());
        QVERIFY(!enabled(window, "pbtnEdit") && !enabled(window, "pbtnDelete"));
        list->setCurrentRow(0);
        QVERIFY(enabled(window, "pbtnEdit") && enabled(window, "pbtnDelete"));
    };
    const auto rename = [](const QString &name) {
        return [=](QWidget *window) {
            // Pasted with the line's end, as from a table.
            QApplication::clipboard()->setText(name + "\r\n");
            QLineEdit *edit = child<QLineEdit>(window, "leName");
            edit->selectAll();
            edit->paste();
            QCOMPARE(edit->text(), name + ' ');
            edit->backspace();
            enter(window, "leCode", "9");
        };
    };
    const auto deleteSecond = [](QWidget *window) {
        // The one that was added is current.
        QListWidget *list = child<QListWidget>(window, "lwOperators");
        QVERIFY(list->currentRow() == 3 && list->currentItem()->isSelected());
        child<QListWidget>(window, "lwOperators")->setCurrentRow(1);
        press("pbtnDelete")(window);
    };
    const std::vector<Step> steps = {press("pbtnOperators"), look,
                                     press("pbtnEdit"),      rename("Связь-2"),
                                     press("pbtnOk"),        press("pbtnAdd"),
                                     rename("Новый"),        press("pbtnCancel"),
                                     press("pbtnAdd"),       rename("Вода"),
                                     press("pbtnOk"),        deleteSecond};
    // Neither Escape in the list nor Cancel in the properties changes anything.
    const QString before = shop.driver.settings();
    std::vector<Step> escaped = steps;
    escaped.insert(escaped.end(), {key(Qt::Key_Escape), press("pbtnCancel")});
    QCOMPARE(shop.run(ShowProperties, escaped), 0);
    QCOMPARE(shop.stored("Operator0").toString(), QNoxSettings(before).get("Operator0").toString());
    QCOMPARE(shop.stored("Operators").toInt(), 3);

    std::vector<Step> accepted = steps;
    accepted.insert(accepted.end(), {press("pbtnOk"), press("pbtnOk")});
    QCOMPARE(shop.run(ShowProperties, accepted), 1);
    QCOMPARE(shop.stored("Operators").toInt(), 3);
    QStringList names;
    for (const char *record : {"Operator0", "Operator1", "Operator2"}) {
        names += nested(shop, record).get("Name").toString();
    }
    QCOMPARE(names.join(" "), QString("Связь-2 Свет Вода"));
    QCOMPARE(nested(shop, "Operator0").get("AddReqSum").toString(), QString("x"));
    QVERIFY(!shop.stored("Operator3").isValid());
}

void PropertiesTest::operatorDeletion()
{
    Register shop(
        {{"Operators", 2}, {"Operator0", document({{"Name", "A"}})}, {"Operator1", document({{"Name", "B"}})}});
    const auto remove = [](QWidget *window) {
        QListWidget *list = child<QListWidget>(window, "lwOperators");
        list->setCurrentRow(0);
        child<QPushButton>(window, "pbtnDelete")->click();
        // Edit goes by the inverted rule: only an empty list enables it.
        QVERIFY(enabled(window, "pbtnDelete") != enabled(window, "pbtnEdit"));
        QCOMPARE(enabled(window, "pbtnDelete"), list->count() == 1);
    };
    QCOMPARE(shop.run(ShowProperties,
                      {press("pbtnOperators"), remove, remove, press("pbtnEdit"), press("pbtnOk"), press("pbtnOk")}),
             1);
    QCOMPARE(shop.stored("Operators").toInt(), 0);
    QVERIFY(!shop.stored("Operator0").isValid());
}

void PropertiesTest::operatorRecord()
{
    const std::vector<Field> fields = {{"leCode", "Code", "", "77"},
                                       {"leName", "Name", "Оператор", "Свет & газ"},
                                       {"spinMaxSum", "MaxSum", "0", "10000000000"},
                                       {"spinMinSum", "MinSum", "0", "0.01"},
                                       {"cmbCommissionType", "ComissionType", "0", "1"},
                                       {"cmbCommissionAddition", "ComissionAddition", "0", "2"},
                                       {"spinCommission", "Comission", "0", "2.5"},
                                       {"leGateway", "Gateway", "", "gw"},
                                       {"cmbParam1", "Param1", "0", "4"},
                                       {"leMask1", "Mask1", "(999)999-99-99", "99"},
                                       {"cmbParam2", "Param2", "0", "3"},
                                       {"leMask2", "Mask2", "(999)999-99-99", ""},
                                       {"leSumWareCode", "SumWareCode", "", "100"},
                                       {"leCommissionWareCode", "ComissionWareCode", "", "200"}};
    Register shop;
    QCOMPARE(shop.run(ShowProperties, {press("pbtnOperators"), press("pbtnAdd"), fill(fields), press("pbtnOk"),
                                       press("pbtnOk"), press("pbtnOk")}),
             1);
    compareStored(nested(shop, "Operator0"), fields);
}

void PropertiesTest::operatorRules()
{
    Register shop({{"Operators", 1}, {"Operator0", document({{"Name", "A"}, {"Code", 1}, {"ComissionType", 7}})}});
    const auto rules = [](QWidget *window) {
        QCOMPARE(shown(window, "cmbCommissionType"), QString("0"));
        const auto expect = [&](const QString &error) {
            QCOMPARE(text(window, "lbError"), error.isEmpty() ? error : "Ошибка: " + error);
            QCOMPARE(enabled(window, "pbtnOk"), error.isEmpty());
        };
        expect(QString());
        enter(window, "leCode", QString());
        expect("Не указан код");
        enter(window, "leName", QString());
        expect("Не указано название");
        enter(window, "leName", "A");
        enter(window, "leCode", "1");
        enter(window, "spinMinSum", "100");
        expect("Минимальный платеж не может быть больше максимального");
        enter(window, "spinMaxSum", "99.99");
        expect("Минимальный платеж не может быть больше максимального");
        enter(window, "spinMaxSum", "100");
        expect(QString());
    };
    const auto edit = [](QWidget *window) {
        QListWidget *list = child<QListWidget>(window, "lwOperators");
        QTimer::singleShot(0, list, [=] {
            QMetaObject::invokeMethod(list, "itemDoubleClicked", Q_ARG(QListWidgetItem *, list->item(0)));
        });
    };
    shop.run(ShowProperties, {press("pbtnOperators"), edit, rules, press("pbtnOk"), press("pbtnOk"), press("pbtnOk")});
    QCOMPARE(nested(shop, "Operator0").get("MinSum").toString(), QString("100"));
}

void PropertiesTest::typedNumbers_data()
{
    QTest::addColumn<QLocale>("locale");
    for (const char *name : {"C", "en_US", "ru_RU", "de_DE"}) {
        QTest::newRow(name) << QLocale(name);
    }
}

// A point and a comma are the decimal separator on every keyboard; no digit moves unnoticed.
void PropertiesTest::typedNumbers()
{
    QFETCH(QLocale, locale);
    const struct
    {
        const char *entered;
        double amount; ///< from 7
        int typedCode; ///< from 7
        int pastedCode;
        double pasted; ///< from 7
    } rows[] = {
        {"10.55", 10.55, 10, 7, 10.55},    {"10,55", 10.55, 10, 7, 10.55}, {"1 000,50", 1000.5, 1000, 7, 1000.5},
        {"0.5", 0.5, 0, 7, 0.5},           {"10.555", 10.55, 10, 7, 7},    {"1,000.5", 1, 1, 7, 7},
        {"1.2.3", 1.23, 1, 7, 7},          {"10 55", 1055, 1055, 7, 7},    {"1e3", 13, 13, 7, 7},
        {"1 000", 1000, 1000, 1000, 1000}, {" 42\n", 42, 42, 42, 42},
    };
    const QLocale before;
    QLocale::setDefault(locale);
    const auto put = [](QWidget *spin, const QString &text, bool paste) {
        qobject_cast<QAbstractSpinBox *>(spin)->selectAll();
        if (paste) {
            QApplication::clipboard()->setText(text);
            QTest::keyClick(spin, Qt::Key_V, Qt::ControlModifier);
        } else {
            QTest::keyClicks(spin, text.trimmed());
        }
        qobject_cast<QAbstractSpinBox *>(spin)->interpretText();
    };
    const auto enterAll = [&](QWidget *window) {
        for (const auto &row : rows) {
            for (const bool paste : {false, true}) {
                auto *amount = child<QDoubleSpinBox>(window, "spinMinSum");
                amount->setValue(7);
                put(amount, row.entered, paste);
                QVERIFY2(qFuzzyCompare(amount->value(), paste ? row.pasted : row.amount), row.entered);
                QCOMPARE(amount->text(), locale.toString(amount->value(), 'f', 2).remove(locale.groupSeparator()));
            }
        }
    };
    const auto enterWhole = [&](QWidget *window) {
        for (const auto &row : rows) {
            for (const bool paste : {false, true}) {
                auto *code = child<QSpinBox>(window, "spinPointCode");
                code->setValue(7);
                put(code, row.entered, paste);
                QVERIFY2(code->value() == (paste ? row.pastedCode : row.typedCode), row.entered);
            }
        }
    };
    Register shop;
    shop.run(ShowProperties,
             {press("pbtnOperators"), press("pbtnAdd"), enterAll, press("pbtnCancel"), key(Qt::Key_Escape),
              press("pbtnSettingsButton"), enterWhole, press("pbtnCancel"), press("pbtnCancel")});
    QLocale::setDefault(before);
}

// Stored values that a form cannot show as they are, and what is stored after OK.
void PropertiesTest::oddValues()
{
    const QString name = QString("щ").repeated(40000) + "\nконец";
    const struct
    {
        const char *key;
        QString stored, saved;
    } rows[] = {
        {"MinSum", "nan", "0"},
        {"MaxSum", "inf", "0"},
        {"Comission", "1e300", "10000000000"},
        {"Comission", "-5", "0"},
        {"Name", name, name},
        {"Timeout", "4294967301", "99"},
        {"Timeout", "-9e99", "0"},
        {"Timeout", "text", "0"},
        {"DealerCode", "2147483648", "999999999"},
        {"KeyLoadPwd", name, name},
        {"ProxyPort", "99999999999999999999", "65535"},
    };
    for (const auto &row : rows) {
        Values record = {{"Name", "A"}, {"Code", "1"}};
        record.emplace_back(row.key, row.stored);
        Register shop({{"KeyLoadPwd", "x"}, {"Operators", 1}, {"Operator0", document(record)}, {row.key, row.stored}});
        const auto select = [](QWidget *window) { child<QListWidget>(window, "lwOperators")->setCurrentRow(0); };
        QCOMPARE(shop.run(ShowProperties, {press("pbtnSettingsButton"), press("pbtnOk"), press("pbtnOperators"), select,
                                           press("pbtnEdit"), press("pbtnOk"), press("pbtnOk"), press("pbtnOk")}),
                 1);
        const QString saved = nested(shop, "Operator0").get(row.key).toString();
        QVERIFY2(saved == row.saved || shop.stored(row.key).toString() == row.saved, row.key);
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
    const auto fits = [](QWidget *window) {
        const int screen = Toolkit::availableGeometry(*window).width(); // Qt 4.8 uses the whole of a small one
        QVERIFY2(window->width() <= screen && window->height() <= 600, window->metaObject()->className());
        const QList<QAbstractButton *> buttons = window->findChildren<QAbstractButton *>();
        for (const QAbstractButton *button : buttons) {
            const QRect place(button->mapTo(window, QPoint()), button->size());
            QVERIFY2(!button->isVisible() || window->rect().contains(place), qPrintable(button->objectName()));
        }
    };
    for (const QString &unit : {QString("W"), QString("слово "), QString("строка\n"), QString("<b>")}) {
        for (const int length : {300, 3000, 1000000}) {
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
                const bool read = length == 300 && unit != "строка\n";
                QCOMPARE(label->text() == whole && label->toolTip().isEmpty(), read && whole.size() <= 500);
                QVERIFY(length != 3000 || label->toolTip().contains(Toolkit::escaped(text.left(2000))));
                fits(window);
                shop.driver.clearFailures();
            };
            QElapsedTimer timer;
            timer.start();
            shop.run(ShowProperties, {press("pbtnSlip"), fits, press("pbtnOk"), press("pbtnOperators"), fits,
                                      press("pbtnOk"), press("pbtnOk"), error, press("pbtnOk")});
            QCOMPARE(nested(shop, "Slip").get("Header").toString(), text);
            QCOMPARE(nested(shop, "Operator0").get("Name").toString(), text);
            for (const EntryPoint call : {ConfirmPayment, SelectOperator, CommissionAddition}) {
                shop.run(call, {fits, key(Qt::Key_Escape)});
            }
            QVERIFY2(timer.elapsed() < 20000, qPrintable(QString("%1 ms").arg(timer.elapsed())));
        }
    }
}

void PropertiesTest::cyberPlat()
{
    Register shop({{"URL", ""}, {"ProxyServer", ""}, {"UseProxy", "True"}});
    QString url;
    const auto defaults = [&](QWidget *window) {
        url = shown(window, "leURL");
        QVERIFY(url.startsWith("https://"));
        QVERIFY(!enabled(window, "leProxyServer") && !enabled(window, "spinProxyPort"));
        QCOMPARE(text(window, "lbError"), QString("Ошибка: Не указан пароль ключа"));
        QVERIFY(!enabled(window, "pbtnOk"));
        QCOMPARE(child<QLineEdit>(window, "leKeyLoadPwd")->echoMode(), QLineEdit::Password);
    };
    const std::vector<Field> fields = {{"leKeyLoadPwd", "KeyLoadPwd", "", "тайна"},
                                       {"spinCheckTimeout", "CheckTimeout", "60", "999"},
                                       {"spinDealerCode", "DealerCode", "0", "999999999"},
                                       {"spinOperatorCode", "OperatorCode", "0", "2"},
                                       {"spinPointCode", "PointCode", "0", "3"},
                                       {"spinProxyPort", "ProxyPort", "8080", "65535"},
                                       {"spinSerialKeyNumber", "SerialKeyNumber", "0", "4"},
                                       {"leProxyServer", "ProxyServer", "localhost", "proxy"}};
    QCOMPARE(shop.run(ShowProperties,
                      {press("pbtnSettingsButton"), defaults, fill(fields), press("pbtnOk"), press("pbtnOk")}),
             1);
    compareStored(QNoxSettings(shop.driver.settings()), fields);
    QCOMPARE(shop.stored("URL").toString(), url);
    QCOMPARE(shop.stored("UseProxy").toString(), QString("false"));
    for (const DriverCall &call : shop.driver.journal()) {
        QVERIFY(!(call.arguments + call.result).contains("тайна"));
    }
}

void PropertiesTest::cyberPlatRules()
{
    Register shop({{"KeyLoadPwd", "x"}, {"UseProxy", "true"}});
    const auto rules = [](QWidget *window) {
        QVERIFY(enabled(window, "pbtnOk") && enabled(window, "leProxyServer") && enabled(window, "spinProxyPort"));
        enter(window, "leProxyServer", QString());
        QCOMPARE(text(window, "lbError"), QString("Ошибка: Не указан адрес прокси-сервера"));
        enter(window, "leURL", QString());
        QCOMPARE(text(window, "lbError"), QString("Ошибка: Не указан адрес сервера"));
        enter(window, "leURL", "u");
        enter(window, "checkUseProxy", "false");
        QVERIFY(text(window, "lbError").isEmpty());
        QVERIFY(enabled(window, "pbtnOk") && !enabled(window, "leProxyServer"));
        enter(window, "checkUseProxy", "true");
        enter(window, "leProxyServer", "p");
    };
    shop.run(ShowProperties, {press("pbtnSettingsButton"), rules, press("pbtnOk"), press("pbtnOk")});
    QCOMPARE(shop.stored("UseProxy").toString(), QString("true"));
}

void PropertiesTest::arcus2()
{
    const QString equal = "Коды операций не могут совпадать";
    const QString placeholder = "Ошибка: здесь сообщение об ошибке в параметрах"; // until a value changes
    const struct
    {
        QVariant closeDay, printJournal;
        QString codes, error;
    } rows[] = {{5, 7, "5 7", ""},          {3, 3, "3 3", equal}, {{}, {}, "1 1", placeholder},
                {1, 0, "1 1", placeholder}, {1, 3, "1 3", ""},    {150, -4, "99 1", ""}};
    for (const auto &row : rows) {
        Values values = {{"Protocol", 6}};
        if (row.closeDay.isValid()) {
            values.insert(values.end(), {{"OpcodeCloseDay", row.closeDay}, {"OpcodePrintJournal", row.printJournal}});
        }
        Register shop(values);
        static const QRegularExpression tag("<[^>]*>");
        const auto look = [&](QWidget *window) {
            QCOMPARE(shown(window, "spinOpcodeCloseDay") + ' ' + shown(window, "spinOpcodePrintJournal"), row.codes);
            QCOMPARE(text(window, "lbError").remove(tag), row.error);
        };
        // Equal codes can be saved.
        QCOMPARE(shop.run(ShowProperties, {press("pbtnSettingsButton"), look, press("pbtnOk"), press("pbtnOk")}), 1);
        QCOMPARE(shop.stored("OpcodeCloseDay").toString() + ' ' + shop.stored("OpcodePrintJournal").toString(),
                 row.codes);
    }
}

void PropertiesTest::lumiPay()
{
    const std::pair<QVariant, QString> rows[] = {{QVariant(), "0"}, {"1", "1"}, {7, "0"}};
    for (const int protocol : {8, 9, 10}) {
        for (const auto &row : rows) {
            Values values = {{"Protocol", protocol}};
            if (row.first.isValid()) {
                values.emplace_back("ModemMode", row.first);
            }
            Register shop(values);
            const bool hasTerminal = protocol == 8;
            const Field mode = {"cmbModemMode", "ModemMode", row.second, row.second == "0" ? "1" : "0"};
            std::vector<Field> fields = {mode, {"leTerminalID", "TerminalID", "", "T 1"}};
            if (!hasTerminal) {
                fields.pop_back();
            }
            shop.run(ShowProperties, {press("pbtnSettingsButton"), fill(fields), press("pbtnOk"), press("pbtnOk")});
            compareStored(QNoxSettings(shop.driver.settings()), fields);
            QCOMPARE(shop.stored("TerminalID").isValid(), hasTerminal);
        }
    }
}

void PropertiesTest::terminal()
{
    const std::vector<std::pair<QString, QVariant>> stored = {
        {"BaudRate", "4800"}, {"IPAddress", "old"}, {"IPPort", "1"}, {"Pid", "255"},
        {"Port", "1"},        {"TTYSuffix", "old"}, {"Vid", "70000"}};
    const struct
    {
        QString port;
        Values changed;
    } rows[] = {{"99", {{"BaudRate", "1200"}}},
                {"TTY", {{"BaudRate", "115200"}, {"TTYSuffix", "ACM0"}}},
                {"USB", {{"Vid", "6699"}, {"Pid", "0"}}},
                {"TCPIP", {{"IPAddress", "host"}, {"IPPort", "65535"}}}};
    for (const int protocol : {11, 12, 13}) {
        for (const auto &row : rows) {
            if (row.port == "TCPIP" && protocol != 11) {
                continue;
            }
            Values values = stored;
            values.emplace_back("Protocol", protocol);
            Register shop(values);
            const auto edit = [&](QWidget *window) {
                QCOMPARE(child<QComboBox>(window, "cmbSerialBaudrate")->currentText(), QString("2400 бод"));
                QCOMPARE(child<QComboBox>(window, "cmbSerialBaudrate")->currentIndex(), 2);
                QCOMPARE(shown(window, "leUsbPid"), QString("00ff"));
                std::vector<std::pair<const char *, const char *>> inputs = {{"cmbSerialBaudrate", "1200"},
                                                                             {"cmbTtyBaudrate", "115200"},
                                                                             {"leTtyFileName", "ACM0"},
                                                                             {"leUsbVid", "1A2b"},
                                                                             {"leUsbPid", ""}};
                if (protocol == 11) {
                    inputs.insert(inputs.end(), {{"leNetAddress", "host"}, {"spinNetPort", "70000"}});
                } else if (protocol == 12) {
                    inputs.emplace_back("leTerminalID", "T9");
                }
                enter(window, "cmbPort", row.port);
                for (const auto &input : inputs) {
                    enter(window, input.first, input.second);
                }
            };
            QCOMPARE(shop.run(ShowProperties, {press("pbtnSettingsButton"), edit, press("pbtnOk"), press("pbtnOk")}),
                     1);
            // Only what belongs to the chosen kind of port has changed.
            QNoxSettings expected(document(stored));
            expected.set("Port", row.port);
            expected.set("TerminalID", protocol == 12 ? "T9" : "");
            for (const auto &value : row.changed) {
                expected.set(value.first, value.second);
            }
            for (const char *key :
                 {"Port", "BaudRate", "TTYSuffix", "IPAddress", "IPPort", "Vid", "Pid", "TerminalID"}) {
                QCOMPARE(shop.stored(key).toString(), expected.get(key).toString());
            }
        }
    }
}

void PropertiesTest::terminalPages()
{
    const char *const serialPage = "pageSerialPortSettings";
    const struct
    {
        const char *stored, *port, *page;
    } rows[] = {{"", "0", serialPage},     {"99", "99", serialPage},          {"100", "0", serialPage},
                {"COM1", "0", serialPage}, {"TTY", "TTY", "pageTtySettings"}, {"USB", "USB", "pageUsbSettings"}};
    const auto look = [](const QString &port, const QString &page, const QString &ports) {
        return [=](QWidget *window) {
            QCOMPARE(shown(window, "cmbPort"), port);
            QCOMPARE(child<QStackedWidget>(window, "stackExtSettings")->currentWidget()->objectName(), page);
            QStringList first;
            for (int i = 0; i < 4; ++i) {
                first += child<QComboBox>(window, "cmbPort")->itemText(i);
            }
            QCOMPARE(first.join(","), ports);
            QCOMPARE(shown(window, "cmbSerialBaudrate") + shown(window, "cmbTtyBaudrate"), QString("96009600"));
            QCOMPARE(shown(window, "leUsbVid"), QString("0000"));
        };
    };
    for (const int protocol : {11, 12, 13}) {
        const bool network = protocol == 11;
        const QString ports = network ? "TCP/IP,USB,Файл устройства,COM0" : "USB,Файл устройства,COM0,COM1";
        const auto open = [&](const QString &stored, const Step &step) {
            Register shop({{"Protocol", protocol}, {"Port", stored}});
            shop.run(ShowProperties, {press("pbtnSettingsButton"), step, press("pbtnCancel"), press("pbtnCancel")});
        };
        for (const auto &row : rows) {
            open(row.stored, look(row.port, row.page, ports));
        }
        open("TCPIP", network ? look("TCPIP", "pageNetSettings", ports) : look("0", serialPage, ports));
    }
}

QTEST_MAIN(PropertiesTest)
#include "tst_properties.moc"
