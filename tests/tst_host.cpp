// SPDX-License-Identifier: LGPL-2.1-or-later
#include "cashregisterwindow.h"
#include "journal.h"
#include "register.h"
#include "testing/librarypaycard.h"

#include <QClipboard>
#include <QComboBox>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLineEdit>
#include <QProcess>
#include <QSpinBox>
#include <QTreeWidget>

/// The reference host as a tester uses it: its command line and its window.
class HostTest : public QObject
{
    Q_OBJECT

private slots:
    void commandLine();
    void window();
};

void HostTest::commandLine()
{
    const struct
    {
        const char *arguments;
        int code;
        const char *said;
    } rows[] = {
        {"--version", 0, "paycard_host 9."},
        {"--help", 0, "--journal"},
        {"--call AskParams", 0, "AskParams: -1\n"},
        {"--call AskParams --json --fail getSum:text=a\\,b,nth=1 --operation code=1,sum=0.5", 0, "\"result\":-1"},
        {"--call AskParams --journal /dev/full", 0, "/dev/full"},
        {"--call AskParams --journal /no/journal", 1, "/no/journal"},
        {"--call AskParams --settings /no/settings", 1, "/no/settings"},
        {"--nothing", 2, "--nothing"},
        {"nothing", 2, "«nothing»"},
        {"--call", 2, "--call"},
        {"--call Nothing", 2, "«Nothing»"},
        {"--json=1", 2, "--json"},
        {"--json", 2, "--json"},
        {"--sample nothing", 2, "«nothing»"},
        {"--font-scale 0", 2, "«0»"},
        {"--operation sum=1,code=1.5", 2, "«code=1.5»"},
        {"--operation sum=nan", 2, "«sum=nan»"},
        {"--operation sum=1,50", 2, "«50»"},
        {"--fail nothing", 2, "«nothing»"},
        {"--fail getSum:text=a,b", 2, "«b»"},
        {"--fail getSum:fault=Nothing", 2, "RunsEvents"},
        {"--fail getSum:nth=-1", 2, "«nth=-1»"},
        {"--fail getSum:argument=1", 2, "getSum"},
        {"--gallery x --fail getSum", 2, "--fail"},
    };
    for (const auto &row : rows) {
        QProcess host;
        host.setProcessChannelMode(QProcess::MergedChannels);
        host.start(PAYCARD_HOST, QString(row.arguments).split(' '));
        QVERIFY(host.waitForFinished(-1) && host.exitStatus() == QProcess::NormalExit);
        const QString output = QString::fromUtf8(host.readAll());
        QVERIFY2(host.exitCode() == row.code && output.contains(row.said), qPrintable(row.arguments + ('\n' + output)));
    }
}

// A failure for once and for one argument, and the journal of it in the window, in a file and on the clipboard.
void HostTest::window()
{
    LibraryPaycard library;
    QVERIFY(library.load(PAYCARD_GUI_LIBRARY, nullptr));
    Register shop({{"Protocol", 2}, {"KeyLoadPwd", "secret"}});
    Journal journal(shop.driver);
    const QTemporaryDir directory;
    QFile file(directory.filePath("journal.jsonl"));
    QCOMPARE(journal.follow(file.fileName()), QString());
    CashRegisterWindow window(shop.driver, library, journal);
    window.resize(800, 600);
    window.show();
    QCOMPARE(window.size(), QSize(800, 600));
    child<QComboBox>(&window, "cmbFailing")->setCurrentText("setPropertiesShown");
    child<QLineEdit>(&window, "leArgument")->setText("0");
    child<QSpinBox>(&window, "spinNth")->setValue(1);
    Cashier::tryPress(&window, "pbtnFail");
    for (const int result : {-1, 0}) {
        Cashier::tryPress(&window, "pbtnShowProperties");
        ModalScript script({key(Qt::Key_Escape), key(Qt::Key_Return)});
        script.run([] {
            QApplication::processEvents();
            return 0;
        });
        QCOMPARE(script.completed(), result == -1); // the second window is the box that tells of the failure
        QCOMPARE(journal.lines().last().result, result);
    }

    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArrayList written = file.readAll().trimmed().split('\n');
    QCOMPARE(written.size(), journal.lines().size());
    for (int i = 0; i < written.size(); ++i) {
        const JournalLine line = journal.lines().at(i);
        const QJsonObject object = QJsonDocument::fromJson(written.at(i)).object();
        QVERIFY2(!written.at(i).contains("secret"), written.at(i).constData());
        QCOMPARE(object.value(line.isFunction ? "function" : "operation").toString(), line.call.operation);
        QCOMPARE(object.value("ms").toDouble(), static_cast<double>(line.call.took) / 1000);
    }
    auto *lines = child<QTreeWidget>(&window, "twJournal");
    QCOMPARE(lines->topLevelItemCount(), written.size());
    lines->topLevelItem(0)->setSelected(true);
    lines->topLevelItem(lines->topLevelItemCount() - 1)->setSelected(true);
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    lines->setFocus();
    QTest::keyClick(lines, Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QApplication::clipboard()->text(),
             Journal::text(journal.lines().first()) + '\n' + Journal::text(journal.lines().last()));
    auto *set = child<QTreeWidget>(&window, "twFailures");
    set->setCurrentItem(set->topLevelItem(0));
    Cashier::tryPress(&window, "pbtnRemoveFailure");
    QApplication::processEvents();
    QVERIFY(shop.driver.failures().isEmpty());
}

QTEST_MAIN(HostTest)
#include "tst_host.moc"
