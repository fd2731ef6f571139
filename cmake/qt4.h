// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef QT4_H
#define QT4_H

#include <QApplication>
#include <QDesktopWidget>
#include <QDir>
#include <QPixmap>
#include <QResource>
#include <QtTest>

#include <cstdarg>
#include <cstdlib>
#include <functional>

/// What Qt 4.8 lacks of that which the tests and the simulated driver use. Included in front of each of their
/// sources there, and nowhere else.

#define QStringLiteral(text) QString::fromUtf8(text)
#define qInfo qDebug
#define QRegularExpression QRegExp

#define QVERIFY_EXCEPTION_THROWN(expression, Type)                                                                     \
    do {                                                                                                               \
        bool thrown = false;                                                                                           \
        try {                                                                                                          \
            expression;                                                                                                \
        } catch (const Type &) {                                                                                       \
            thrown = true;                                                                                             \
        }                                                                                                              \
        QVERIFY(thrown);                                                                                               \
    } while (false)

namespace QTest {

inline QTestData &addRow(const char *format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    const QString name = QString().vsprintf(format, arguments);
    va_end(arguments);
    return newRow(name.toUtf8().constData());
}

inline bool qWaitForWindowActive(QWidget *window)
{
    for (int i = 0; i < 100 && !window->isActiveWindow(); ++i) {
        qWait(50);
    }
    return window->isActiveWindow();
}

} // namespace QTest

/// Timers that call functions, too.
class FunctionTimer : public QTimer
{
public:
    using QTimer::QTimer;
    using QTimer::singleShot;

    static void singleShot(int delay, const QObject * /*context*/, const std::function<void()> &function)
    {
        (new Call(function))->startTimer(delay);
    }
    template <class Object>
    static void singleShot(int delay, Object *object, void (Object::*slot)())
    {
        singleShot(delay, object, [=] { (object->*slot)(); });
    }

private:
    class Call : public QObject
    {
    public:
        explicit Call(const std::function<void()> &called) : function(called) {}

    protected:
        void timerEvent(QTimerEvent *event) override
        {
            killTimer(event->timerId());
            function();
            deleteLater();
        }

    private:
        const std::function<void()> function;
    };
};
#define QTimer FunctionTimer

class CompressedResource : public QResource
{
public:
    using QResource::QResource;
    enum Compression { NoCompression, ZlibCompression };
    Compression compressionAlgorithm() const { return isCompressed() ? ZlibCompression : NoCompression; }
};
#define QResource CompressedResource

template <>
inline QVariant QVariant::fromValue(const Qt::PenStyle &style)
{
    return static_cast<int>(style);
}

struct QScreen
{
    static QPixmap grabWindow(int /*everything*/) { return QPixmap::grabWindow(QApplication::desktop()->winId()); }
};

struct QGuiApplication
{
    static QScreen *primaryScreen() { return nullptr; }
};

class QTemporaryDir
{
public:
    QTemporaryDir() { name = QDir(QString::fromLocal8Bit(mkdtemp(pattern))).canonicalPath(); }
    QTemporaryDir(const QTemporaryDir &) = delete;
    QTemporaryDir &operator=(const QTemporaryDir &) = delete;
    ~QTemporaryDir()
    {
        const QStringList files = QDir(name).entryList(QDir::Files);
        for (const QString &file : files) {
            QFile::remove(filePath(file));
        }
        QDir().rmdir(name);
    }

    const QString &path() const { return name; }
    QString filePath(const QString &file) const { return QDir(name).filePath(file); }

private:
    char pattern[20] = "/tmp/paycard-XXXXXX";
    QString name;
};

#endif
