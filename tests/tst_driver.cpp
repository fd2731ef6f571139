// SPDX-License-Identifier: LGPL-2.1-or-later
#include "testing/simulateddriver.h"

#include <QtTest>

#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>

/// The simulated driver's own behaviour: its failures, and the file that it keeps its settings in.
class DriverTest : public QObject
{
    Q_OBJECT

private slots:
    void notOpened_data();
    void notOpened();
    void mode();
    void full();
    void failures();

private:
    QTemporaryDir directory;
};

namespace {

const QString Document = "<r><value name='KeyLoadPwd'>secret</value></r>";

} // namespace

void DriverTest::notOpened_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("reason");
    const auto row = [this](const char *name, const char *reason) {
        QTest::newRow(name) << QDir(directory.path()).filePath(name) << QString(reason);
    };
    ::mkfifo(directory.filePath("fifo").toLocal8Bit().constData(), 0600);
    QFile large(directory.filePath("large"));
    QVERIFY(large.open(QIODevice::WriteOnly) && large.resize(64 * 1024 * 1024 + 1));
    row("fifo", "это не обычный файл");
    row("/dev/zero", "это не обычный файл");
    row(".", "это не обычный файл");
    row("large", "файл больше 64 МиБ");
    row("no/directory", "не создаётся");
    QFile::link(directory.filePath("held"), directory.filePath("link"));
    row("link", "файл занят другой программой (tst_driver, процесс ");
}

void DriverTest::notOpened()
{
    QFETCH(QString, path);
    QFETCH(QString, reason);
    SimulatedDriver holder;
    QVERIFY(holder.openSettings(directory.filePath("held"), nullptr));
    QVERIFY(holder.openSettings(directory.filePath("./held"), nullptr));
    SimulatedDriver driver;
    QString said;
    QVERIFY(!driver.openSettings(path, &said));
    QVERIFY2(said.contains(reason), qPrintable(said));
    QVERIFY(driver.settingsFile().isEmpty());
    holder.closeSettings();
    QVERIFY(driver.openSettings(directory.filePath("held"), &said));
    QVERIFY(driver.replaceSettings(Document, &said) && driver.saveSettings(directory.filePath("saved"), &said));
    QVERIFY(!holder.saveSettings(directory.filePath("saved"), &said) && !holder.saveSettings("/no/directory", &said));
    QVERIFY(holder.openSettings(directory.filePath("held"), &said));
    QCOMPARE(driver.settingsFile(), directory.filePath("saved"));
    driver.closeSettings();
    QVERIFY(holder.openSettings(directory.filePath("saved"), &said));
    QCOMPARE(holder.settings(), Document);
}

void DriverTest::mode()
{
    const QByteArray path = directory.filePath("mode").toLocal8Bit();
    for (const mode_t expected : {0600U, 0644U}) {
        SimulatedDriver driver;
        QVERIFY(driver.openSettings(path, nullptr) && driver.replaceSettings(Document, nullptr));
        struct stat status;
        QCOMPARE(::stat(path.constData(), &status), 0);
        QCOMPARE(status.st_mode & 0777U, expected);
        ::chmod(path.constData(), 0644);
    }
}

// A limit of the process stands for a disk that is full.
void DriverTest::full()
{
    SimulatedDriver driver;
    QVERIFY(driver.openSettings(directory.filePath("full"), nullptr) && driver.replaceSettings(Document, nullptr));
    rlimit usual;
    ::getrlimit(RLIMIT_FSIZE, &usual);
    const rlimit small = {10, usual.rlim_max};
    std::signal(SIGXFSZ, SIG_IGN);
    ::setrlimit(RLIMIT_FSIZE, &small);
    QString reason;
    const bool saved = driver.replaceSettings("<r/>" + QString(1000, ' '), &reason);
    ::setrlimit(RLIMIT_FSIZE, &usual);
    QVERIFY(!saved);
    QVERIFY2(reason.contains(qt_error_string(EFBIG)), qPrintable(reason));
    QCOMPARE(driver.settings(), Document);
    QCOMPARE(QFileInfo(directory.filePath("full")).size(), qint64(Document.size()));
}

void DriverTest::failures()
{
    const auto refusal = [](int code, int nth, const char *argument = "") {
        return Failure{Fault::Refuse, code, QString(), QString(), nth, argument};
    };
    const struct
    {
        QList<Failure> set;
        QList<int> codes; // of setPropertiesShown with 1, 0, 1, 0, 1
    } rows[] = {
        {{refusal(5, 1)}, {5, 0, 0, 0, 0}},
        {{refusal(5, 2, "1")}, {0, 0, 5, 0, 0}},
        {{refusal(5, 0, "1"), refusal(6, 0, "0")}, {5, 6, 5, 6, 5}},
        {{refusal(5, 0), refusal(6, 2)}, {5, 6, 5, 5, 5}},
        {{refusal(5, 2), refusal(6, 2)}, {0, 6, 0, 0, 0}},
    };
    for (const auto &row : rows) {
        SimulatedDriver driver;
        for (const Failure &failure : row.set) {
            driver.failOperation("setPropertiesShown", failure);
        }
        for (int i = 0; i < 5; ++i) {
            int code = -1;
            QCOMPARE(driver.setPropertiesShown(1 - i % 2), row.codes.at(i) == 0 ? 0 : -1);
            QCOMPARE(driver.getResultCode(&code), 0);
            QCOMPARE(code, row.codes.at(i));
        }
        QVERIFY(driver.removeFailure("setPropertiesShown", row.set.last().argument, row.set.last().nth));
        QVERIFY(!driver.removeFailure("setPropertiesShown", row.set.last().argument, row.set.last().nth));
    }
    SimulatedDriver driver;
    driver.failOperation("getSettingChoices", {Fault::GoneAtSecond, 1, "", "", 2, "Model"});
    QString answers;
    for (const wchar_t *name : {L"Model", L"Port", L"Model", L"Model", L"Model"}) {
        answers += QString::number(qMin(driver.getSettingChoices(name, nullptr, 4), 9));
    }
    QCOMPARE(answers, QString("99509"));
}

QTEST_GUILESS_MAIN(DriverTest)
#include "tst_driver.moc"
