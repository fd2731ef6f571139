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
    const bool closes = watched == window && event->type() == QEvent::Close;
    if (closes) {
        event->ignore();
    }
    return closes;
}
