// SPDX-License-Identifier: LGPL-2.1-or-later
#include "fields.h"

#include <QStackedWidget>

/// The windows of the protocols' own settings.
class ParametersTest : public QObject
{
    Q_OBJECT

private slots:
    void cyberPlat();
    void cyberPlatRules();
    void arcus2();
    void lumiPay();
    void terminal();
    void terminalPages();
};

void ParametersTest::cyberPlat()
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

void ParametersTest::cyberPlatRules()
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

void ParametersTest::arcus2()
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

void ParametersTest::lumiPay()
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

void ParametersTest::terminal()
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

void ParametersTest::terminalPages()
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

QTEST_MAIN(ParametersTest)
#include "tst_parameters.moc"
