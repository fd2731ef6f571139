// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef MODALSCRIPT_H
#define MODALSCRIPT_H

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QTimer>
#include <QWidget>

#include <functional>
#include <vector>

/// Plays the user of modal windows: each step waits until a modal window is open and shown that the previous
/// step did not have, or that it left open, and gets it. A step may end the window, open another one from it,
/// or read it. So a call that runs a nested event loop can be driven from beginning to end in one thread.
class ModalScript : public QObject
{
    Q_OBJECT

public:
    /// Gets the modal window that is open. Must not run an event loop itself: windows are opened by queued
    /// clicks (see Cashier::press()). Cashier has the steps that are needed most.
    typedef std::function<void(QWidget *)> Step;

    /// Thrown by a step that cannot be done; the script then ends.
    struct Impossible
    {
        /// What is missing, for the developer of the test.
        QString reason;
    };

    /// A script of these steps, in their order.
    explicit ModalScript(std::vector<Step> steps);

    /// Calls `function`, plays the steps on the windows that it opens, and returns its result. When the steps
    /// have run out, one cannot be done, or nothing happens for `timeout` milliseconds, every modal window left is
    /// closed, so that the call always returns.
    int run(const std::function<int()> &function, int timeout = 20000);

    /// True when every step was played and no window had to be closed.
    bool completed() const { return trouble.isEmpty(); }
    /// What kept the last run from being complete, in one line; empty if nothing did.
    const QString &problem() const { return trouble; }

private slots:
    void poll();

private:
    void playNext(QWidget *window);
    void complain(const QString &reason);
    void end(QWidget *window);

    std::vector<Step> steps;
    std::size_t next = 0;
    /// What went wrong first; from then on no step is played, and every window has to be closed.
    QString trouble;
    /// The window that was asked to close last.
    QPointer<QWidget> asked;
    int patience = 0;
    QElapsedTimer sinceLastStep;
    QTimer timer;
};

#endif
