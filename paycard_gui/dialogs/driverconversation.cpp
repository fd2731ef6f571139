// SPDX-License-Identifier: LGPL-2.1-or-later
#include "dialogs/driverconversation.h"

#include <QApplication>
#include <QEvent>

InputBlock::InputBlock(QWidget *blocked) : window(blocked), focus(blocked->focusWidget())
{
    qApp->installEventFilter(this);
    window->setEnabled(false);
}

InputBlock::~InputBlock()
{
    if (window) {
        window->setEnabled(true);
    }
    // Disabling has taken it away.
    if (focus) {
        focus->setFocus();
    }
}

bool InputBlock::eventFilter(QObject *watched, QEvent *event)
{
    const QWidget *widget = qobject_cast<QWidget *>(watched);
    const QEvent::Type type = event->type();
    // A disabled widget takes what the host's own keyboard sends it: text with every release, keys with the oldest.
    const bool isBlocked = window && widget && widget->window() == window &&
                           (type == QEvent::Close || type == QEvent::KeyPress || type == QEvent::KeyRelease ||
                            type == QEvent::InputMethod);
    if (isBlocked) {
        event->ignore();
    }
    return isBlocked;
}
