// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef QTCOMPAT_H
#define QTCOMPAT_H

#include <QAccessible>
#include <QApplication>
#include <QByteArray>
#include <QFileDialog>
#include <QLibraryInfo>
#include <QMessageBox>
#include <QPixmap>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QXmlStreamReader>

#include <algorithm>
#include <string>

#if QT_VERSION < QT_VERSION_CHECK(5, 14, 0)
#include <QDesktopWidget>
#endif

#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
#include <QDir>
#include <QInputMethod>
#include <QJsonArray>
#include <QJsonObject>
#include <QPluginLoader>
#include <QScreen>
#include <QWindow>
#endif

#if QT_VERSION < QT_VERSION_CHECK(5, 0, 0)
#include <QTextCodec>
#include <QTextDocument>
#endif

/// Everything in which the toolkit releases differ for this library; no other file asks for the version.

/// QDialog::exec() is virtual from Qt 5 on.
#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
#define PAYCARD_OVERRIDES_EXEC override
#else
#define PAYCARD_OVERRIDES_EXEC
#endif

namespace QtCompat {

/// The buttons that the toolkit's own question has by default.
inline QMessageBox::StandardButtons questionButtons()
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
    return QMessageBox::Yes | QMessageBox::No;
#else
    return QMessageBox::Ok;
#endif
}

inline QStringList splitSkippingEmpty(const QString &text, QChar separator)
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 14, 0)
    return text.split(separator, Qt::SkipEmptyParts);
#else
    return text.split(separator, QString::SkipEmptyParts);
#endif
}

/// The text as rich text that shows it literally.
inline QString escaped(const QString &text)
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
    return text.toHtmlEscaped();
#else
    return Qt::escape(text);
#endif
}

/// The text in characters of four bytes. The oldest release counts a pair as two of them and puts a zero at the end.
inline std::wstring wideText(const QString &text)
{
    std::wstring wide = text.toStdWString();
#if QT_VERSION < QT_VERSION_CHECK(5, 0, 0)
    std::size_t pairs = 0;
    for (int i = 1; i < text.size(); ++i) {
        pairs += text.at(i - 1).isHighSurrogate() && text.at(i).isLowSurrogate() ? 1 : 0;
    }
    wide.resize(wide.size() - pairs);
#endif
    return wide;
}

/// The text of characters of four bytes. The toolkit's own conversion takes many times as long, in every release; it is
/// left what takes pairs, and the byte order mark, which it drops.
inline QString fromWideText(const wchar_t *wide, std::size_t length)
{
    const bool isPlain =
        std::all_of(wide, wide + length, [](wchar_t c) { return static_cast<char32_t>(c) <= 0xFFFF && c != 0xFEFF; });
    if (!isPlain) {
        return QString::fromWCharArray(wide, static_cast<int>(length));
    }
    QString text;
    text.resize(static_cast<int>(length));
    std::transform(wide, wide + length, text.data(), [](wchar_t c) { return QChar(static_cast<ushort>(c)); });
    return text;
}

inline int typeOf(const QVariant &value)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    return value.typeId();
#else
    return value.userType();
#endif
}

inline bool isDouble(const QVariant &value)
{
    return typeOf(value) == QMetaType::Double;
}

inline bool isText(const QVariant &value)
{
    return typeOf(value) == QMetaType::QString;
}

/// Bounds what one entity may unfold to, in characters. False where the release knows no bound.
inline bool boundEntities(QXmlStreamReader &reader, int characters)
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 15, 0)
    reader.setEntityExpansionLimit(characters);
    return true;
#else
    Q_UNUSED(reader);
    Q_UNUSED(characters);
    return false;
#endif
}

/// What the screen that the widget is on, or will be, has for windows.
inline QRect availableGeometry(const QWidget &widget)
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 14, 0)
    return widget.screen()->availableGeometry();
#else
    return QApplication::desktop()->availableGeometry(&widget);
#endif
}

/// Has the slot called whenever the on-screen keyboard comes, goes or changes its size, and when the text cursor moves.
/// The oldest release knows none.
inline void connectKeyboard(QObject *receiver, const char *slot)
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
    const QInputMethod *keyboard = QGuiApplication::inputMethod();
    QObject::connect(keyboard, SIGNAL(visibleChanged()), receiver, slot);
    QObject::connect(keyboard, SIGNAL(keyboardRectangleChanged()), receiver, slot);
    QObject::connect(keyboard, SIGNAL(cursorRectangleChanged()), receiver, slot);
#else
    Q_UNUSED(receiver);
    Q_UNUSED(slot);
#endif
}

/// What the on-screen keyboard covers of the screen that the window is on; empty while there is none.
inline QRect keyboardGeometry(const QWidget &widget)
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
    const QInputMethod *keyboard = QGuiApplication::inputMethod();
    const QWindow *window = widget.windowHandle();
    return window && keyboard->isVisible()
               ? keyboard->keyboardRectangle().toRect().translated(window->screen()->geometry().topLeft())
               : QRect();
#else
    Q_UNUSED(widget);
    return QRect();
#endif
}

/// Has the on-screen keyboard that covers this part of the screen serve a modal window. One that the toolkit shows as a
/// window of its own takes no taps otherwise.
inline void serveModalWindow(const QRect &keyboard, const QWidget &modal)
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
    const QWindowList windows = QGuiApplication::topLevelWindows();
    for (QWindow *window : windows) {
        if (window->flags() & Qt::WindowDoesNotAcceptFocus && window->isVisible() &&
            window->geometry().contains(keyboard.center()) && window->transientParent() != modal.windowHandle()) {
            window->setTransientParent(modal.windowHandle());
        }
    }
#else
    Q_UNUSED(keyboard);
    Q_UNUSED(modal);
#endif
}

/// Pixels of the screen, in a row, that one of the widget's takes.
inline double pixelRatio(const QWidget &widget)
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 6, 0)
    return widget.devicePixelRatioF();
#else
    Q_UNUSED(widget);
    return 1;
#endif
}

/// Whether the widget's pixels are not whole numbers of the screen's.
inline bool isScaledByFraction(const QWidget &widget)
{
    return pixelRatio(widget) != static_cast<int>(pixelRatio(widget));
}

/// The picture of this file in as many pixels as the widget's screen has for it: from the file of double size beside
/// it.
inline QPixmap sharpened(const QPixmap &picture, const QString &file, const QWidget &widget)
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 6, 0)
    const double ratio = pixelRatio(widget);
    if (ratio <= 1) {
        return picture;
    }
    const QPixmap twice(QString(file).insert(file.lastIndexOf(QLatin1Char('.')), QLatin1String("@2x")));
    QPixmap sharp = twice.scaled(picture.size() * ratio, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    sharp.setDevicePixelRatio(ratio);
    return twice.isNull() ? picture : sharp;
#else
    Q_UNUSED(file);
    Q_UNUSED(widget);
    return picture;
#endif
}

/// Whether the application object has been created to show widgets. That of the oldest release may have been told
/// not to, though its class is the same.
inline bool showsWidgets()
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
    return qobject_cast<QApplication *>(QCoreApplication::instance());
#else
    return qobject_cast<QApplication *>(QCoreApplication::instance()) && QApplication::type() != QApplication::Tty;
#endif
}

/// The directory of the toolkit's own translation files.
inline QString translationsDirectory()
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    return QLibraryInfo::path(QLibraryInfo::TranslationsPath);
#else
    return QLibraryInfo::location(QLibraryInfo::TranslationsPath);
#endif
}

/// Makes the dialog choose a directory and show nothing else. Setting the mode clears the option on Qt 5, and
/// the mode that stands for both is gone from Qt 6.
inline void chooseDirectoriesOnly(QFileDialog &dialog)
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
    dialog.setFileMode(QFileDialog::Directory);
    dialog.setOption(QFileDialog::ShowDirsOnly);
#else
    dialog.setFileMode(QFileDialog::DirectoryOnly);
#endif
}

/// Keeps a window without a parent above the application's active window, which may be a full-screen one that
/// stays on top.
inline void keepAboveActiveWindow(QWidget &window)
{
    const QWidget *active = QApplication::activeWindow();
    if (!active || window.parentWidget()) {
        return;
    }
#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
    window.winId(); // gives it the handle that is asked for next
    window.windowHandle()->setTransientParent(active->windowHandle());
#else
    window.setWindowFlags(window.windowFlags() | (active->windowFlags() & Qt::WindowStaysOnTopHint));
#endif
}

inline QPixmap picture(QWidget &widget)
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
    return widget.grab();
#else
    return QPixmap::grabWidget(&widget);
#endif
}

/// Has a screen reader say the widget's text at once. Only the newest releases take the text itself along; of the
/// others some bridges pass no more on than that the text has changed, which the label tells them itself.
inline void announce(QWidget &widget, const QString &text)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
    QAccessibleAnnouncementEvent announcement(&widget, text);
    announcement.setPoliteness(QAccessible::AnnouncementPoliteness::Assertive);
    QAccessible::updateAccessibility(&announcement);
#else
    Q_UNUSED(text);
#endif
#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
    QAccessibleEvent alert(&widget, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
#else
    QAccessible::updateAccessibility(&widget, 0, QAccessible::Alert);
#endif
}

/// The platforms that an application object would try, each with its parameters behind a colon.
inline QList<QByteArray> platformsToTry()
{
    QByteArray platforms = "xcb";
#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
    if (!qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        platforms = qgetenv("QT_QPA_PLATFORM");
    } else if (qEnvironmentVariableIsSet("WAYLAND_DISPLAY") || qgetenv("XDG_SESSION_TYPE") == "wayland") {
        platforms = "wayland;xcb";
    }
#endif
    return platforms.split(';');
}

/// False when the toolkit has no plugin for this platform, or one that cannot be loaded.
inline bool hasPlatform(const QString &platform)
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
    // There is no application object yet whose directory the toolkit would add.
    const QString own = QFileInfo(QFile::symLinkTarget(QLatin1String("/proc/self/exe"))).path();
    QStringList directories = {QFile::decodeName(qgetenv("QT_QPA_PLATFORM_PLUGIN_PATH")),
                               own + QLatin1String("/platforms")};
    const QStringList roots = QCoreApplication::libraryPaths() + QStringList(own + QLatin1String("/plugins"));
    for (const QString &root : roots) {
        directories += root + QLatin1String("/platforms");
    }
    for (const QString &directory : directories) {
        const QFileInfoList files = directory.isEmpty() ? QFileInfoList() : QDir(directory).entryInfoList(QDir::Files);
        for (const QFileInfo &file : files) {
            QPluginLoader plugin(file.filePath());
            const QJsonObject data = plugin.metaData().value(QLatin1String("MetaData")).toObject();
            if (data.value(QLatin1String("Keys")).toArray().contains(platform) && plugin.load()) {
                return true;
            }
        }
    }
    // A configuration beside the program may name other places.
    return QFile::exists(own + QLatin1String("/qt.conf"));
#else
    Q_UNUSED(platform);
    return true;
#endif
}

/// Makes source texts and plain byte strings UTF-8 in the whole process. From Qt 5 on that is a fact of the
/// toolkit and there is nothing to set.
inline void useUtf8Texts()
{
#if QT_VERSION < QT_VERSION_CHECK(5, 0, 0)
    QTextCodec *utf8 = QTextCodec::codecForName("utf-8");
    QTextCodec::setCodecForTr(utf8);
    QTextCodec::setCodecForCStrings(utf8);
#endif
}

} // namespace QtCompat

#endif
