// SPDX-License-Identifier: LGPL-2.1-or-later
#include "register.h"

#include <QtGui>

namespace {

/// How long a window manager may take to put a window up, in milliseconds.
const int Patience = 700;

} // namespace

/// Under a window manager: a register's full-screen window passes no parent, and the library's window has to
/// come up in front of it all the same.
class FrontTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void windows_data();
    void windows();

private:
    QWidget host;
};

void FrontTest::init()
{
    host.setStyleSheet("background: rgb(0, 0, 120)");
    host.setWindowFlags(Qt::Window | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
    host.showFullScreen();
    QVERIFY(QTest::qWaitForWindowActive(&host));
}

void FrontTest::windows_data()
{
    QTest::addColumn<int>("entry");
    for (int entry = 0; entry < 4; ++entry) {
        QTest::addRow("entry point %d", entry) << entry;
    }
}

void FrontTest::windows()
{
    QFETCH(int, entry);
    const EntryPoint entryPoints[] = {ConfirmPayment, SelectOperator, CommissionAddition, ShowProperties};
    Register shop({{"Protocol", 2}});
    QImage own;
    QRgb seen = 0;
    bool hasFocus = false;
    QTimer::singleShot(Patience, this, [&] {
        QWidget *window = QApplication::activeModalWidget();
        hasFocus = window->isActiveWindow() && window->isAncestorOf(QApplication::focusWidget());
        own = QImage(window->size(), QImage::Format_RGB32);
        window->render(&own);
        seen = QGuiApplication::primaryScreen()->grabWindow(0).toImage().pixel(window->mapToGlobal(QPoint(3, 3)));
        window->close();
    });
    QCOMPARE(entryPoints[entry](&shop.driver, nullptr), 0);
    QCOMPARE(seen, own.pixel(3, 3));
    QVERIFY(hasFocus);
    QVERIFY(QTest::qWaitForWindowActive(&host));
}

QTEST_MAIN(FrontTest)
#include "tst_front.moc"
