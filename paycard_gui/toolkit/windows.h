// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QAccessible>
#include <QApplication>
#include <QFileDialog>
#include <QPixmap>

#if QT_VERSION < QT_VERSION_CHECK(5, 14, 0)
#include <QDesktopWidget>
#include <QPointer>
#endif

#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
#include <QScreen>
#include <QWindow>
#endif

/// What the toolkit releases do differently with windows, their screens and what is drawn in them.
namespace Toolkit {

/// What the screen that the widget is on, or will be, has for windows.
inline QRect availableGeometry(const QWidget &widget)
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 14, 0)
    return widget.screen()->availableGeometry();
#else
    return QApplication::desktop()->availableGeometry(&widget);
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

/// Has a window get the keyboard once it is shown, and the one before it get it back, where no window manager sees to
/// it.
#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
inline void passKeyboard(QWidget & /*window*/) {}
#else
class KeyboardPassing : public QObject
{
public:
    explicit KeyboardPassing(QWidget *shown) : QObject(shown), window(shown), before(QApplication::activeWindow())
    {
        window->installEventFilter(this);
    }

    bool eventFilter(QObject * /*window*/, QEvent *event) override
    {
        QWidget *next = nullptr;
        if (event->type() == QEvent::Paint && !painted) {
            // It is on the screen.
            painted = true;
            next = window;
        } else if (event->type() == QEvent::Hide) {
            next = before;
        }
        // A window manager would have put a frame around it.
        if (next && window->frameGeometry() == window->geometry()) {
            next->activateWindow();
            // The server says so later, maybe after the host's next call.
            QApplication::setActiveWindow(next);
        }
        return false;
    }

private:
    QWidget *window;
    const QPointer<QWidget> before;
    bool painted = false;
};

inline void passKeyboard(QWidget &window)
{
    new KeyboardPassing(&window);
}
#endif

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

} // namespace Toolkit
