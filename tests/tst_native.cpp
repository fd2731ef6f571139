// SPDX-License-Identifier: LGPL-2.1-or-later
#include "common/nohelpbuttondialogs.h"

#include "register.h"

/// On a desktop that brings file dialogs of its own: the toolkit's is an empty one behind them then.
class NativeTest : public QObject
{
    Q_OBJECT

private slots:
    void fileDialogs();
    void directory();
};

namespace {

/// Closes the desktop's dialog.
void closeNative(QWidget *window)
{
    QVERIFY2(!window->layout(), "the dialog is the toolkit's own");
    window->close();
}

} // namespace

void NativeTest::fileDialogs()
{
    ModalScript script({closeNative, closeNative, closeNative});
    const int result = script.run([] {
        const QString chosen = NoHelpButtonFileDialog::getOpenFileName() + NoHelpButtonFileDialog::getSaveFileName() +
                               NoHelpButtonFileDialog::getExistingDirectory();
        return chosen.isEmpty() ? 0 : 1;
    });
    QCOMPARE(result, 0);
    QCOMPARE(script.problem(), QString());
}

void NativeTest::directory()
{
    Register shop({{"Protocol", 2}, {"PathAC", "/"}});
    QCOMPARE(shop.run(ShowProperties, {press("pbtnPathACDialog"), closeNative, press("pbtnOk")}), 1);
    QCOMPARE(shop.stored("PathAC").toString(), QString("/"));
    QWidget *parent = new QWidget;
    QCOMPARE(shop.run(ShowProperties, {press("pbtnPathACDialog"), [&](QWidget *) { delete parent; }}, parent), 0);
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

QTEST_MAIN(NativeTest)
#include "tst_native.moc"
