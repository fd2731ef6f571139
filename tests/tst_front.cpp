// SPDX-License-Identifier: LGPL-2.1-or-later
#include "register.h"

#include <QtGui>

namespace {

/// How long a window manager may take to put a window up, in milliseconds.
const int Patience = 20000;

/// Whether the window has the focus and is on the screen, as far as one of its pixels tells.
bool isInFront(QWidget *window)
{
    const QPoint point(3, 3);
    QImage own(window->size(), QImage::Format_RGB32);
    window->render(&own);
    const QImage screen = QGuiApplication::primaryScreen()->grabWindow(0).toImage();
    return window->isActiveWindow() && window->isAncestorOf(QApplication::focusWidget()) &&
           screen.pixel(window->mapToGlobal(point)) == own.pixel(point);
}

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

protected:
    void timerEvent(QTimerEvent *event) override;

private:
    QWidget host;
    QElapsedTimer waiting;
    bool wasInFront = false;
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
    wasInFront = false;
    waiting.start();
    const int timer = startTimer(20);
    const int result = entryPoints[entry](&shop.driver, nullptr);
    killTimer(timer);
    QCOMPARE(result, 0);
    QVERIFY(wasInFront);
    QVERIFY(QTest::qWaitForWindowActive(&host));
}

void FrontTest::timerEvent(QTimerEvent * /*event*/)
{
    QWidget *window = QApplication::activeModalWidget();
    wasInFront = wasInFront || (window && isInFront(window));
    if (window && (wasInFront || waiting.hasExpired(Patience))) {
        window->close();
    }
}

QTEST_MAIN(FrontTest)
#include "tst_front.moc"
