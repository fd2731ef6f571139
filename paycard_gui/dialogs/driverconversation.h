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
    InputBlock(const InputBlock &) = delete;
    InputBlock &operator=(const InputBlock &) = delete;
    ~InputBlock() override;

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    const QPointer<QWidget> window;
    const QPointer<QWidget> focus;
};

/// Has a window talk to the driver: calls `talk(driver)`, and says whether the window still exists.
///
/// A driver may run an event loop in any of its operations. So the window takes no input meanwhile, a second OK
/// among it; and when the loop has the parent deleted, the window with its driver wrapper is gone: `talk` gets a
/// wrapper of its own, must use nothing of the window, and the caller must not either unless this is true.
template <class Talk>
bool converse(QWidget *window, const QNoxPaycard &driver, Talk talk)
{
    const QPointer<QWidget> self(window);
    const QNoxPaycard wrapper(driver); // NOLINT(performance-unnecessary-copy-initialization): outlives the window's
    const InputBlock block(window);
    talk(wrapper);
    return self;
}
