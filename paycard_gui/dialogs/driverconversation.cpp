// SPDX-License-Identifier: LGPL-2.1-or-later
#include "dialogs/driverconversation.h"

#include <QEvent>

InputBlock::InputBlock(QWidget *blocked) : window(blocked), focus(blocked->focusWidget())
{
    window->installEventFilter(this);
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
    if (watched == window && event->type() == QEvent::Close) {
        event->ignore();
        return true;
    }
    return QObject::eventFilter(watched, event);
}
