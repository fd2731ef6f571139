// SPDX-License-Identifier: LGPL-2.1-or-later
#include "window/guestwindow.h"

#include "toolkit/windows.h"
#include "window/onscreenkeyboard.h"

#include <QChildEvent>
#include <QWidget>

namespace {

/// Sees to the windows that the toolkit opens from one of the library's, such as the question of a file dialog.
class GuestWindows : public QObject
{
public:
    explicit GuestWindows(QWidget *window) : QObject(window) { window->installEventFilter(this); }

    bool eventFilter(QObject * /*window*/, QEvent *event) override
    {
        if (event->type() == QEvent::ChildPolished) {
            QWidget *child = qobject_cast<QWidget *>(static_cast<QChildEvent *>(event)->child());
            if (child && child->isWindow()) {
                child->setAttribute(Qt::WA_QuitOnClose, false);
            }
        }
        return false;
    }
};

} // namespace

void makeGuest(QWidget &window)
{
    window.setWindowFlags(window.windowFlags() & ~Qt::WindowContextHelpButtonHint);
    window.setAttribute(Qt::WA_QuitOnClose, false);
    new GuestWindows(&window);
}

void showOnTop(QWidget &window)
{
    Toolkit::keepAboveActiveWindow(window);
    Toolkit::passKeyboard(window);
    keepAboveKeyboard(window);
}
