// SPDX-License-Identifier: LGPL-2.1-or-later
#include "brokendriver.h"
#include "register.h"
#include "testing/checkedpaycard.h"
#include "testing/contractchecker.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRegularExpression>

#include <algorithm>

/// The checker of drivers, on a driver that breaks a rule of the contract at a time.
class ContractTest : public QObject
{
    Q_OBJECT

private slots:
    void breaks_data();
    void breaks();
    void skipped();
    void places();
    void windows();
    void program_data();
    void program();
};

namespace {

/// A section of a guide by its place, as one line without markup.
QString section(const QString &place)
{
    QFile file(QString(PAYCARD_SOURCES "/") + place.section('#', 0, 0));
    if (!file.open(QIODevice::ReadOnly)) {
        return QString();
    }
    QString found;
    bool isInside = false;
    const QStringList lines = QString::fromUtf8(file.readAll()).split('\n');
    for (const QString &line : lines) {
        if (line.startsWith('#')) {
            QString title = line.section(' ', 1).toLower().remove(QRegularExpression("[^a-z0-9 -]"));
            isInside = title.replace(' ', '-') == place.section('#', 1);
        }
        found += isInside ? line + ' ' : QString();
    }
    return found.remove('`').remove("**").simplified();
}

} // namespace

void ContractTest::breaks_data()
{
    QTest::addColumn<int>("index");
    int index = 0;
    for (const Breakage &breakage : breakages()) {
        QTest::newRow(breakage.name) << index++;
    }
}

void ContractTest::breaks()
{
    QFETCH(int, index);
    const Breakage breakage = breakages().at(static_cast<std::size_t>(index));
    BrokenDriver driver;
    breakage.arrange(driver);
    const QString before = driver.simulated.settings();
    ContractChecker checker(driver);
    checker.mayWrite = true;
    checker.mostTime = breakage.rules == QLatin1String("time") ? 100 : 60000; // a machine may be slow
    QStringList broken;
    QString seen;
    // That of memory takes its time, and is held apart.
    QStringList rules = ContractChecker::rules();
    if (!QStringList({"", "memory"}).contains(breakage.rules)) {
        rules.removeOne("memory");
    }
    for (const ContractFinding &finding : checker.check(rules)) {
        if (finding.severity == Severity::Issue || finding.severity == Severity::Error) {
            broken += finding.rule;
            seen += finding.rule + ": " + finding.seen + "\n";
        }
    }
    QVERIFY2(broken == QString(breakage.rules).split(' ', Qt::SkipEmptyParts), qPrintable(seen));
    QCOMPARE(driver.simulated.settings(), before);
}

// Without permission the rules that write are left out, and the driver is not told to change anything.
void ContractTest::skipped()
{
    BrokenDriver driver;
    const QStringList changing = {"setSettings", "setOperatorIndex"};
    QStringList calls;
    ContractChecker checker(driver);
    checker.onCall = [&](const QString &operation) { calls += operation; };
    const QList<ContractFinding> findings = checker.check();
    QCOMPARE(findings.size(), ContractChecker::rules().size());
    const auto skipped = std::count_if(findings.begin(), findings.end(), [](const ContractFinding &finding) {
        return finding.severity == Severity::Skipped;
    });
    QCOMPARE(int(skipped), 8);
    QVERIFY(calls.contains("getOperatorCommission") && !calls.contains("setSettings"));
    QVERIFY(!calls.contains("setOperatorIndex"));
}

// Each rule points at a sentence of the guides, and has a driver that breaks nothing else.
void ContractTest::places()
{
    QStringList alone;
    for (const Breakage &breakage : breakages()) {
        alone += breakage.rules;
    }
    for (const QString &rule : ContractChecker::rules()) {
        const ContractFinding finding = ContractChecker::finding(rule, Severity::Ok, "");
        QVERIFY2(section(finding.place).contains(finding.expected) && alone.contains(rule), qPrintable(rule));
    }
}

// In a host the windows get what they would have got without the check, whatever that is.
void ContractTest::windows()
{
    for (const char *operation :
         {"none", "getSum", "getOperatorName", "getSettings", "getSettingChoices", "setSettings"}) {
        for (int fault = 0; fault < SimulatedDriver::faults().size(); ++fault) {
            QStringList results[2];
            QStringList told;
            for (QStringList &result : results) {
                Register shop;
                shop.driver.replaceSettings(SimulatedDriver::sample("cyberplat"), nullptr);
                shop.driver.failOperation(operation, {static_cast<Fault>(fault), 12, "сбой", "место"});
                CheckedPayCard checked(shop.driver, [&](const ContractFinding &finding) { told += finding.rule; });
                NOX::PayCard::IPayCard &driver =
                    &result == results ? static_cast<NOX::PayCard::IPayCard &>(shop.driver) : checked;
                for (const EntryPoint call : {ShowProperties, SelectOperator, CommissionAddition, ConfirmPayment}) {
                    result += QString::number(ModalScript({}).run([&] { return call(&driver, nullptr); }));
                }
                for (const DriverCall &call : shop.driver.journal()) {
                    result += call.operation + ' ' + call.arguments + ' ' + call.result;
                }
            }
            QCOMPARE(results[1], results[0]);
            if (operation == QLatin1String("none")) {
                QCOMPARE(told, QStringList());
            } else if (static_cast<Fault>(fault) == Fault::ThrowStandard) {
                QVERIFY2(told.contains("no-throw"), operation);
            }
        }
    }
}

void ContractTest::program_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("breakage");
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QString>("line");
    const QString simulated = PAYCARD_DRIVERS "libsimulated_driver.so";
    const QString minimal = PAYCARD_DRIVERS "libminimal_driver.so";
    const auto row = [](const char *name, const QStringList &arguments, int exitCode, const char *line,
                        const char *breakage = "") {
        QTest::newRow(name) << arguments << breakage << exitCode << line;
    };
    row("minimal", {minimal}, 0, "SKIPPED set-read-back       not without permission to write\n");
    row("minimal, written", {"--write", minimal}, 0,
        "ISSUE   set-refused         a document that is not well-formed was taken. Expected: ");
    row("broken", {simulated}, 1, "ERROR   amount-finite       getSum: inf. Expected: Amounts are finite (", "endless");
    row("crash", {simulated}, 1, "ERROR   properties-shown    setPropertiesShown crashed (", "crash");
    row("hang", {"--timeout", "1", simulated}, 1, "setPropertiesShown did not return within 1 s. ", "hang");
    row("leave", {simulated}, 1, "setPropertiesShown ended the process (exit code 3). ", "leave");
    row("crash, written", {"--write", simulated}, 1, "ERROR   set-read-back       getSettings crashed (", "crash-read");
    row("kept", {"--write", simulated}, 1, "OK      set-put-back\n", "crash-read");
    row("no settings", {"--write", simulated}, 1, "ERROR   set-put-back        getSettings crashed (",
        "crash-settings");
    row("given up", {"--write", simulated}, 1,
        "SKIPPED set-again           the settings could not be put back: see set-put-back\n", "crash-settings");
    row("destroyed", {simulated}, 1, "ERROR   destroyed           destroyPayCard crashed (", "crash-destroyed");
    row("no file", {"none.so"}, 2, "none.so");
    row("no function", {"--create", "make", simulated}, 2, "there is no function make");
    row("usage", {simulated, "--timeout", "0"}, 2, "--timeout");
}

void ContractTest::program()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, breakage);
    QFETCH(QString, line);
    QTemporaryDir directory;
    const QString path = directory.filePath("settings.xml");
    SimulatedDriver driver;
    QVERIFY(driver.openSettings(path, nullptr) &&
            driver.replaceSettings(SimulatedDriver::sample("cyberplat"), nullptr));
    driver.closeSettings();
    qputenv("PAYCARD_BREAK", breakage.toUtf8());
    qputenv("PAYCARD_SETTINGS", path.toUtf8());
    for (const bool asJson : {false, true}) {
        QProcess process;
        process.start(PAYCARD_CHECK, (asJson ? QStringList("--json") : QStringList()) + arguments);
        QVERIFY(process.waitForFinished(-1));
        const QByteArray output = process.readAllStandardOutput();
        const QByteArray errors = process.readAllStandardError();
        QTEST(process.exitCode(), "exitCode");
        if (!asJson) {
            QVERIFY2(QString::fromUtf8(output + errors).contains(line), output + errors);
        } else if (process.exitCode() < 2) {
            const QJsonObject report = QJsonDocument::fromJson(output).object();
            QCOMPARE(report["findings"].toArray().size(), ContractChecker::rules().size() + 1);
            QCOMPARE(report["summary"]["errors"].toInt() > 0, process.exitCode() == 1);
        }
    }
    QVERIFY(driver.openSettings(path, nullptr));
    QCOMPARE(driver.settings(), SimulatedDriver::sample("cyberplat"));
}

QTEST_MAIN(ContractTest)
#include "tst_contract.moc"
