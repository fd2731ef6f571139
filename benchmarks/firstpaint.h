// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef FIRSTPAINT_H
#define FIRSTPAINT_H

#include "measure.h"

#include <QApplication>
#include <QDialog>
#include <QEvent>

#include <functional>
#include <utility>

/// Tells how long it takes a modal window to appear.
class FirstPaint : public QObject
{
public:
    typedef std::function<void(QDialog *)> Action;

    FirstPaint() { qApp->installEventFilter(this); }

    /// Calls `open`, which runs a modal window, and returns the nanoseconds from there until the window and
    /// all in it have been painted. It is then left to `then`, which has to end it.
    qint64 measure(const std::function<void()> &open, const Action &then = cancel)
    {
        // What the window before has left is none of this one's time.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();

        qint64 painted = 0;
        const qint64 start = now();
        whenPainted([&](QDialog *window) {
            painted = now() - start;
            then(window);
        });
        open();
        if (pending) {
            qFatal("no window was opened");
        }
        return painted;
    }

    /// Calls this once, when the next modal window and all in it have been painted.
    void whenPainted(const Action &action) { pending = action; }

    static void cancel(QDialog *window) { window->reject(); }

protected:
    bool eventFilter(QObject *object, QEvent *event) override
    {
        if (pending && event->type() == QEvent::Paint && object == QApplication::activeModalWidget()) {
            // The window paints itself first and then what is in it; the queue waits for both.
            QDialog *window = qobject_cast<QDialog *>(object);
            const Action action = std::exchange(pending, nullptr);
            QMetaObject::invokeMethod(
                window, [=] { action(window); }, Qt::QueuedConnection);
        }
        return false;
    }

private:
    Action pending;
};

#endif
