// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "common/qnoxpaycard.h"

#include <QObject>
#include <QPointer>
#include <QWidget>

/// While it lives, its window takes no input and stays open.
class InputBlock : public QObject
{
public:
    explicit InputBlock(QWidget *blocked);
    ~InputBlock() override;

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    const QPointer<QWidget> window;
    const QPointer<QWidget> focus;
};

/// Has a window talk to the driver: calls `talk(driver)`, and says whether the window is still to be used.
///
/// A driver may run an event loop in any of its operations. So the window takes no input meanwhile, a second OK
/// among it; and when the loop has the parent deleted, the window has ended without one, and the driver is told nothing
/// more. `talk` gets a wrapper of its own and uses nothing of the window, which may be gone, too.
template <class Talk>
bool converse(QWidget *window, const QNoxPaycard &driver, Talk talk)
{
    const QPointer<QWidget> self(window);
    const QNoxPaycard wrapper(driver); // NOLINT(performance-unnecessary-copy-initialization): outlives the window's
    const QWidget *const parent = window->parentWidget();
    const InputBlock block(window);
    talk(wrapper);
    return self && self->parentWidget() == parent;
}
