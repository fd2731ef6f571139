// SPDX-License-Identifier: LGPL-2.1-or-later
#include "common/qt_utils.h"

#include "register.h"

#include <QComboBox>
#include <QListWidget>
#include <QSignalSpy>

class UtilsTest : public QObject
{
    Q_OBJECT

private slots:
    void comboBoxes();
    void wideLists();
    void deviceList();
    void lookups();
    void wideTexts();
    void settingQueries();
    void deviceNames();
};

void UtilsTest::comboBoxes()
{
    QComboBox combo;
    strToComboBox(&combo, "02:leading zero;;2:A;a:B:b;A:C;2:again;piece", false);
    QCOMPARE(combo.count(), 6);
    QCOMPARE(combo.currentIndex(), 0);
    QCOMPARE(combo.itemText(2), QString("B:b"));
    QCOMPARE(combo.itemText(5), QString());

    QCOMPARE(QComboCanSelect(&combo, 2), 1);
    QCOMPARE(QComboCanSelect(&combo, QString("A")), 3);
    QCOMPARE(QComboCanSelect(&combo, QString("b")), -1);
    QComboSelect(&combo, QVariant("A"));
    QCOMPARE(combo.currentIndex(), 3);
    QComboSelect(&combo, 2);
    QCOMPARE(cmbData(&combo), 2);
    QCOMPARE(combo.currentIndex(), 1);
    QComboSelect(&combo, L"a");
    QCOMPARE(cmbDataStr(&combo), QString("a"));
    QCOMPARE(cmbDataStr(&combo, Qt::DisplayRole), QString("B:b"));
    QCOMPARE(cmbData(&combo), 0);
    QComboSelectIfCan(&combo, "x", "A");
    QCOMPARE(QComboGetSelection(&combo), QString("A"));
    QComboSelectWithText(&combo, "again");
    QCOMPARE(combo.currentIndex(), 4);
    QComboSelectWithText(&combo, "AGAIN");
    QCOMPARE(combo.currentIndex(), -1);

    QComboSelectIfCan(&combo, "x", "y");
    QCOMPARE(combo.currentIndex(), -1);
    QCOMPARE(cmbData(&combo), -1);
    QCOMPARE(cmbData(nullptr), -1);
    QVERIFY(QComboGetSelection(&combo).isNull());
    QVERIFY(cmbDataStr(&combo).isEmpty() && cmbDataStr(nullptr).isEmpty());

    combo.clear();
    combo.addItem("no data");
    combo.addItem("empty", "");
    combo.addItem("true", true);
    combo.addItem("double", 2.7);
    combo.addItem("enumeration", QVariant::fromValue(Qt::DashLine));
    QComboSelect(&combo, QString(""));
    QList<int> numbers;
    for (int i = combo.currentIndex(); i < combo.count(); ++i) {
        combo.setCurrentIndex(i);
        numbers += cmbData(&combo);
    }
    QCOMPARE(numbers, (QList<int>{0, 1, 3, Qt::DashLine}));

    strToComboBox(&combo, "66666666666:Тест %1;", true);
    QCOMPARE(combo.itemText(0), QString("66666666666 - Тест %1"));
    QCOMPARE(cmbData(&combo), 0); // beyond an integer
    strToComboBox(&combo, QString(), false);
    QCOMPARE(combo.count(), 0);
    strToComboBox(nullptr, "1:A;", false);
}

void UtilsTest::wideLists()
{
    const struct
    {
        const wchar_t *list, *key;
        const char *texts;
        int current;
        bool enabled;
    } rows[] = {
        {L"2@1:A;2:B;", nullptr, "A,B", 1, true},
        {L"2@1:A;2:B;", L"1", "A,B", 0, true},
        {L"3@1:A;2:B;", nullptr, "A,B", 0, true},
        {L"1:A;FIXED:B;2:C;", L"2", "A,B,C", 1, false},
        {L"FIXED@1:A;2:B;", nullptr, "A,B", 0, false},
        {L"1:A;2:B", nullptr, "A", 0, true}, // the last semicolon is missing
        {L"1:A;2;", nullptr, "A", 0, true},
        {L"", nullptr, "", -1, true},
    };
    for (const auto &row : rows) {
        QComboBox combo;
        combo.addItem("old");
        combo.setEnabled(false);
        QCOMPARE(WStrToQCombo(&combo, row.list, row.key), 0);
        QStringList texts;
        for (int i = 0; i < combo.count(); ++i) {
            texts += combo.itemText(i);
        }
        QCOMPARE(texts.join(","), QString(row.texts));
        QCOMPARE(combo.currentIndex(), row.current);
        QCOMPARE(combo.isEnabled(), row.enabled);
    }
}

void UtilsTest::deviceList()
{
    QListWidget list;
    list.addItem("kept");
    QSignalSpy changes(&list, SIGNAL(itemChanged(QListWidgetItem *)));
    QCOMPARE(WStrToQListWidget(&list, "TTY$0:COM1;USB:USB;$BT$1:Two;TTY$1$2:Three"), 0);
    QStringList seen;
    for (int i = 1; i < list.count(); ++i) {
        const QListWidgetItem *item = list.item(i);
        QCOMPARE(item->checkState(), Qt::Checked);
        seen +=
            item->text() + '=' + item->data(Qt::UserRole).toString() + '/' + item->data(Qt::UserRole + 1).toString();
    }
    QCOMPARE(changes.size(), 0);
    QCOMPARE(seen.join(" "), QString("COM1=TTY/0 USB=USB/ Two=BT/ Three=TTY/"));
}

void UtilsTest::lookups()
{
    const struct
    {
        const char *list, *key, *value;
        const char *valueOfKey; ///< null: no such key
        const char *keyOfValue;
        int number; ///< of the value
    } rows[] = {
        {"1:Сумма;2:Процент;", "2", "Процент", "Процент", "2", 2},
        {"1:a:b;2:c;", "1", "a:b", "a:b", "1", 1},
        {"1:Сумма2;2:Процент;", "Сумма2", "Сумма", nullptr, "", -1}, // a part of a value
        {"1:a;2:a;1:b;", "1", "a", "a", "1", 1},
        {"1:a;2:b", "2", "b", "b", "2", -1}, // the last semicolon is missing
        {":a;", "x", "a", nullptr, "", -1},
        {"USB:a;", "usb", "a", nullptr, "USB", 0},
        {"", "1", "a", nullptr, "", -1},
    };
    for (const auto &row : rows) {
        QString found = "untouched";
        QCOMPARE(GetValueFromMappingKey(row.list, row.key, found), row.valueOfKey != nullptr);
        QCOMPARE(found, QString(row.valueOfKey ? row.valueOfKey : "untouched"));
        QCOMPARE(mappingValue(row.list, row.key), QString(row.valueOfKey));
        QCOMPARE(mappingKey(row.list, row.value), QString(row.keyOfValue));
        QCOMPARE(GetKeyFromMappingValue(row.list, row.value), row.number);
    }
    QString found;
    QVERIFY(GetValueFromMappingKey("1:a;", 1, found) && found == "a");

    typedef std::map<QString, QString> Pairs;
    QMap<QString, QString> map(Pairs{{"old", "kept"}, {"1", "replaced"}});
    parseMapping("1:a;lone;1:b:c;;", map);
    QCOMPARE(map.toStdMap(), (Pairs{{"old", "kept"}, {"1", "b:c"}, {"lone", ""}}));
}

void UtilsTest::wideTexts()
{
    std::vector<wchar_t> buffer(100, L'x');
    QCOMPARE(QStringToWChar(QString(), buffer), 0);
    QCOMPARE(buffer, std::vector<wchar_t>(1));
    QCOMPARE(QStringToWChar(QString::fromUtf8("Ж😀"), buffer), 2);
    QCOMPARE(std::wstring(buffer.data()), std::wstring(L"Ж😀"));
    QCOMPARE(buffer.size(), std::size_t(4)); // a pair of surrogates counts as two
}

void UtilsTest::settingQueries()
{
    const int first = 2048;
    for (const int length : {0, 1, first, first + 1, 3 * first}) {
        const QString value = QString("v").repeated(length);
        Register shop({{"X", value}});
        QCOMPARE(readCurrentSetting(&shop.driver, L"X"), value);
        QCOMPARE(shop.calls("getSettingValue"), length > first ? 2 : 1);
    }

    Register shop({{"Model", 1}, {"Port", "none"}});
    QCOMPARE(readDescriptionOfCurrentSetting(&shop.driver, L"Model"), QString("Учебный терминал"));
    QVERIFY(readDescriptionOfCurrentSetting(&shop.driver, L"Port").isNull());

    const auto answer = [&](Fault fault) {
        shop.driver.failOperation("getSettingValue", {fault, 1, QString(), QString()});
        return readCurrentSetting(&shop.driver, L"X").size();
    };
    QCOMPARE(answer(Fault::EverLonger), first + 1); // cut to what there is
    QCOMPARE(answer(Fault::Unterminated), first);
    QCOMPARE(answer(Fault::LargestInt), 0);
    QCOMPARE(answer(Fault::Refuse), 0);
}

void UtilsTest::deviceNames()
{
    QString asked;
    const auto name = [&](const char *port) {
        Register shop({{"Model", 1},
                       {"Port", port},
                       {"BaudRate", 115200},
                       {"TTYSuffix", "USB%1"},
                       {"IPAddress", "10.0.0.7"},
                       {"IPPort", 5000},
                       {"MACAddress", "00:11:22"}});
        const QString result = defaultDeviceName(&shop.driver);
        asked.clear();
        for (const DriverCall &call : shop.driver.journal()) {
            asked += call.operation == "getSettingValue" ? call.arguments.section(QString("»"), 0, 0) : QString();
        }
        return result;
    };
    QCOMPARE(name("1"), QString("Учебный терминал (COM1 115200)"));
    QCOMPARE(name("TTY"), QString("Учебный терминал (USB%1 115200)"));
    QCOMPARE(asked, QString("«Model«Port«TTYSuffix«BaudRate"));
    QCOMPARE(name("TCPIP"), QString("Учебный терминал (10.0.0.7:5000)"));
    QCOMPARE(asked, QString("«Model«Port«IPAddress«IPPort"));
    QCOMPARE(name("UDPIP"), QString("Учебный терминал (10.0.0.7:5000)"));
    QCOMPARE(name("BT"), QString("Учебный терминал (00:11:22)"));
    QCOMPARE(name("USB"), QString("Учебный терминал (USB:терминал)"));
    // For an unknown kind of port the time.
    const QDateTime time = QDateTime::fromString(name("com1"), "yyyy.MM.dd HH:mm:ss.zzz");
    QVERIFY(qAbs(time.msecsTo(QDateTime::currentDateTime())) < 60000);
}

QTEST_MAIN(UtilsTest)
#include "tst_utils.moc"
