// SPDX-License-Identifier: LGPL-2.1-or-later
#include "common/qt_utils.h"

#include "register.h"

#include <QComboBox>
#include <QListWidget>

class UtilsTest : public QObject
{
    Q_OBJECT

private slots:
    void comboBoxes();
    void wideLists_data();
    void wideLists();
    void deviceList();
    void lookups_data();
    void lookups();
    void wideTexts();
    void settingQueries();
    void deviceNames_data();
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
    QComboSelect(&combo, QVariant(2));
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

    strToComboBox(&combo, "66666666666:Тест %1;", true);
    QCOMPARE(combo.itemText(0), QString("66666666666 - Тест %1"));
    QCOMPARE(cmbData(&combo), 0); // beyond an integer
    strToComboBox(&combo, QString(), false);
    QCOMPARE(combo.count(), 0);
    strToComboBox(nullptr, "1:A;", false);
}

void UtilsTest::wideLists_data()
{
    QTest::addColumn<QString>("list");
    QTest::addColumn<QString>("key"); // null: none given
    QTest::addColumn<QString>("texts");
    QTest::addColumn<int>("current");
    QTest::addColumn<bool>("enabled");
    const QString none;
    QTest::newRow("leading key") << "2@1:A;2:B;" << none << "A,B" << 1 << true;
    QTest::newRow("key given") << "2@1:A;2:B;"
                               << "1"
                               << "A,B" << 0 << true;
    QTest::newRow("unknown key") << "3@1:A;2:B;" << none << "A,B" << 0 << true;
    QTest::newRow("fixed entry") << "1:A;FIXED:B;2:C;"
                                 << "2"
                                 << "A,B,C" << 1 << false;
    QTest::newRow("fixed key") << "FIXED@1:A;2:B;" << none << "A,B" << 0 << false;
    QTest::newRow("last semicolon missing") << "1:A;2:B" << none << "A" << 0 << true;
    QTest::newRow("no colon") << "1:A;2;" << none << "A" << 0 << true;
    QTest::newRow("empty") << "" << none << "" << -1 << true;
}

void UtilsTest::wideLists()
{
    QFETCH(QString, list);
    QFETCH(QString, key);
    QComboBox combo;
    combo.addItem("old");
    combo.setEnabled(false);
    QCOMPARE(WStrToQCombo(&combo, list.toStdWString().c_str(), key.isNull() ? nullptr : key.toStdWString().c_str()), 0);
    QStringList texts;
    for (int i = 0; i < combo.count(); ++i) {
        texts += combo.itemText(i);
    }
    QTEST(texts.join(','), "texts");
    QTEST(combo.currentIndex(), "current");
    QTEST(combo.isEnabled(), "enabled");
}

void UtilsTest::deviceList()
{
    QListWidget list;
    list.addItem("kept");
    QCOMPARE(WStrToQListWidget(&list, "TTY$0:COM1;USB:USB;$BT$1:Two;TTY$1$2:Three"), 0);
    QStringList seen;
    for (int i = 1; i < list.count(); ++i) {
        const QListWidgetItem *item = list.item(i);
        QCOMPARE(item->checkState(), Qt::Checked);
        seen +=
            item->text() + '=' + item->data(Qt::UserRole).toString() + '/' + item->data(Qt::UserRole + 1).toString();
    }
    QCOMPARE(seen.join(' '), QString("COM1=TTY/0 USB=USB/ Two=BT/ Three=TTY/"));
}

void UtilsTest::lookups_data()
{
    QTest::addColumn<QString>("list");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("valueOfKey"); // null: no such key
    QTest::addColumn<QString>("keyOfValue");
    QTest::addColumn<int>("number"); // of the value
    const QString none;
    QTest::newRow("usual") << "1:Сумма;2:Процент;"
                           << "2"
                           << "Процент"
                           << "Процент"
                           << "2" << 2;
    QTest::newRow("colon in the value") << "1:a:b;2:c;"
                                        << "1"
                                        << "a:b"
                                        << "a:b"
                                        << "1" << 1;
    QTest::newRow("part of a value") << "1:Сумма2;2:Процент;"
                                     << "Сумма2"
                                     << "Сумма" << none << "" << -1;
    QTest::newRow("first of several") << "1:a;2:a;1:b;"
                                      << "1"
                                      << "a"
                                      << "a"
                                      << "1" << 1;
    QTest::newRow("open end") << "1:a;2:b"
                              << "2"
                              << "b"
                              << "b"
                              << "2" << -1;
    QTest::newRow("no key") << ":a;"
                            << "x"
                            << "a" << none << "" << -1;
    QTest::newRow("key is no number") << "USB:a;"
                                      << "usb"
                                      << "a" << none << "USB" << 0;
    QTest::newRow("empty") << ""
                           << "1"
                           << "a" << none << "" << -1;
}

void UtilsTest::lookups()
{
    QFETCH(QString, list);
    QFETCH(QString, key);
    QFETCH(QString, value);
    QFETCH(QString, valueOfKey);
    QString found = "untouched";
    QCOMPARE(GetValueFromMappingKey(list, key, found), !valueOfKey.isNull());
    QCOMPARE(found, valueOfKey.isNull() ? QString("untouched") : valueOfKey);
    QCOMPARE(mappingValue(list, key), valueOfKey);
    QTEST(mappingKey(list, value), "keyOfValue");
    QTEST(GetKeyFromMappingValue(list, value), "number");

    QMap<QString, QString> map = {{"old", "kept"}, {"1", "replaced"}};
    parseMapping("1:a;lone;1:b:c;;", map);
    QCOMPARE(map, (QMap<QString, QString>{{"old", "kept"}, {"1", "b:c"}, {"lone", ""}}));
}

void UtilsTest::wideTexts()
{
    std::vector<wchar_t> buffer(100, L'x');
    QCOMPARE(QStringToWChar(QString(), buffer), 0);
    QCOMPARE(buffer, std::vector<wchar_t>(1));
    QCOMPARE(QStringToWChar(QString::fromUtf8("Ж😀"), buffer), 2);
    QCOMPARE(std::wstring(buffer.data()), std::wstring(L"Ж😀"));
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

void UtilsTest::deviceNames_data()
{
    QTest::addColumn<QString>("port");
    QTest::addColumn<QString>("name"); // null: the time
    const QString time;
    QTest::newRow("serial") << "1"
                            << "Учебный терминал (COM1 115200)";
    QTest::newRow("device file") << "TTY"
                                 << "Учебный терминал (USB%1 115200)";
    QTest::newRow("TCP") << "TCPIP"
                         << "Учебный терминал (10.0.0.7:5000)";
    QTest::newRow("UDP") << "UDPIP"
                         << "Учебный терминал (10.0.0.7:5000)";
    QTest::newRow("Bluetooth") << "BT"
                               << "Учебный терминал (00:11:22)";
    QTest::newRow("USB") << "USB"
                         << "Учебный терминал (USB:терминал)";
    QTest::newRow("unknown") << "com1" << time;
}

void UtilsTest::deviceNames()
{
    QFETCH(QString, port);
    QFETCH(QString, name);
    Register shop({{"Model", 1},
                   {"Port", port},
                   {"BaudRate", 115200},
                   {"TTYSuffix", "USB%1"},
                   {"IPAddress", "10.0.0.7"},
                   {"IPPort", 5000},
                   {"MACAddress", "00:11:22"}});
    const QString given = defaultDeviceName(&shop.driver);
    if (name.isNull()) {
        const QDateTime time = QDateTime::fromString(given, "yyyy.MM.dd HH:mm:ss.zzz");
        QVERIFY2(qAbs(time.msecsTo(QDateTime::currentDateTime())) < 60000, qPrintable(given));
    } else {
        QCOMPARE(given, name);
    }
}

QTEST_MAIN(UtilsTest)
#include "tst_utils.moc"
