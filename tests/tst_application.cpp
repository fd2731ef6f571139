// SPDX-License-Identifier: LGPL-2.1-or-later
#include "common/qt_utils.h"

#include "register.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QPushButton>
#include <QResource>

#include <clocale>
#include <thread>

/// What the library does about the application object; begins without one.
class ApplicationTest : public QObject
{
    Q_OBJECT

private slots:
    void notForWidgets();
    void created();
    void otherThread();
    void directories();
};

namespace {

const EntryPoint EntryPoints[] = {AskParams, CommissionAddition, SelectOperator, ShowProperties, ConfirmPayment};

} // namespace

void ApplicationTest::notForWidgets()
{
    QVERIFY(appDir().isEmpty());
    int count = 1;
    char name[] = "host";
    char *arguments[] = {name, nullptr};
    QCoreApplication host(count, arguments);
    Register shop;
    for (const EntryPoint call : EntryPoints) {
        QCOMPARE(call(&shop.driver, nullptr), -1);
    }
    QVERIFY(shop.driver.journal().isEmpty());
}

void ApplicationTest::created()
{
    for (const EntryPoint call : EntryPoints) {
        QCOMPARE(call(nullptr, nullptr), -1);
    }
    QVERIFY(!QCoreApplication::instance());

    Register shop;
    const QByteArray platform = qgetenv("QT_QPA_PLATFORM");
    const QByteArray display = qgetenv("DISPLAY");
    qputenv("DISPLAY", ":77");
    for (const char *unusable : {"xcb", "nosuch", ""}) {
        qputenv("QT_QPA_PLATFORM", unusable);
        QCOMPARE(ConfirmPayment(&shop.driver, nullptr), -1);
        QVERIFY(!QCoreApplication::instance());
    }
    qputenv("QT_QPA_PLATFORM", platform);
    qputenv("DISPLAY", display);
    qputenv("LC_ALL", "C.UTF-8");
    const QByteArray locale = std::setlocale(LC_ALL, nullptr);
    const auto closeTheQuestion = [] {
        QWidget *question = QApplication::activeModalWidget();
        QVERIFY(question);
        question->close();
    };
    shop.driver.onCall = [&] {
        shop.driver.onCall = nullptr;
        QTimer::singleShot(0, qApp, closeTheQuestion);
    };
    QCOMPARE(ConfirmPayment(&shop.driver, nullptr), 0);
    QCOMPARE(std::setlocale(LC_ALL, nullptr), locale.constData()); // the host's numbers
    QCoreApplication *first = QCoreApplication::instance();
    QVERIFY(qobject_cast<QApplication *>(first));
    QCOMPARE(app(), first);
    QCOMPARE(shop.run(ConfirmPayment, {key(Qt::Key_Return)}), 1);
    QCOMPARE(QCoreApplication::instance(), first);
}

void ApplicationTest::otherThread()
{
    Register shop;
    for (const EntryPoint call : EntryPoints) {
        int result = 0;
        std::thread([&] { result = call(&shop.driver, nullptr); }).join();
        QCOMPARE(result, -1);
    }
    QVERIFY(shop.driver.journal().isEmpty());
}

void ApplicationTest::directories()
{
    QCOMPARE(appDir(), QCoreApplication::applicationDirPath() + "/");
    const QByteArray home = qgetenv("HOME");
    qputenv("HOME", "/home/user");
    QCOMPARE(configDir(), QString("/home/user/.orma/drivers9/"));
    qputenv("HOME", home);
    QCOMPARE(configDir(), QString("/home/user/.orma/drivers9/"));

    const auto cancel = [] {
        return QDialogButtonBox(QDialogButtonBox::Cancel).button(QDialogButtonBox::Cancel)->text().remove('&');
    };
    QCOMPARE(cancel(), QString("Cancel"));
    for (int i = 0; i < 2; ++i) {
        installTranslator(*app());
        QCOMPARE(cancel(), QString("Отмена"));
    }

    // The old toolkit's own loader knows no compression but zlib.
    QCOMPARE(QResource(":/images/orma_logo_small.bmp").compressionAlgorithm(), QResource::ZlibCompression);
    QCOMPARE(QResource(":/images/orma_logo_small@2x.bmp").compressionAlgorithm(), QResource::ZlibCompression);
    QCOMPARE(QResource(":/images/icon_info.png").compressionAlgorithm(), QResource::NoCompression);
    QCOMPARE(qCleanupResources_paycard_gui(), 1);
    QVERIFY(!QFile::exists(":/images/icon_info.png"));
    QCOMPARE(qInitResources_paycard_gui(), 1);
    QVERIFY(QFile::exists(":/images/icon_info.png"));
}

QTEST_APPLESS_MAIN(ApplicationTest)
#include "tst_application.moc"
