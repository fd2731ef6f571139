// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QWidget>

#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
#include <QGuiApplication>
#include <QInputMethod>
#include <QScreen>
#include <QWindow>
#endif

/// The on-screen keyboard, of which the oldest release knows nothing.
namespace Toolkit {

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

} // namespace Toolkit
