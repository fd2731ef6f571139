// SPDX-License-Identifier: LGPL-2.1-or-later
#include "testing/modalscript.h"

#include <QApplication>
#include <QDialog>

#include <memory>
#include <utility>

namespace {

const int PollInterval = 5; // ms

QString describe(const QWidget *window)
{
    return QString::fromLatin1("%1 \"%2\"")
        .arg(QString::fromLatin1(window->metaObject()->className()), window->windowTitle());
}

} // namespace

ModalScript::ModalScript(std::vector<Step> steps) : steps(std::move(steps))
{
    // Started anew after each step, so that what the step has queued comes before the next one.
    timer.setSingleShot(true);
    timer.setInterval(PollInterval);
    connect(&timer, SIGNAL(timeout()), SLOT(poll()));
}

int ModalScript::run(const std::function<int()> &function, int timeout)
{
    next = 0;
    trouble.clear();
    asked = nullptr;
    patience = timeout;
    sinceLastStep.start();
    timer.start();
    const std::unique_ptr<QTimer, void (*)(QTimer *)> running(&timer, [](QTimer *started) { started->stop(); });
    const int result = function();
    if (next < steps.size()) {
        complain(QString::fromLatin1("the call has returned"));
    }
    return result;
}

void ModalScript::poll()
{
    // Before the step, too: one that opens a window itself does not return before that window has closed.
    timer.start();
    QWidget *window = QApplication::activeModalWidget();
    if (!window || !window->isVisible()) {
        if (sinceLastStep.hasExpired(patience)) {
            complain(QString::fromLatin1("nothing has happened for %1 ms").arg(patience));
        }
        return;
    }
    if (next == steps.size()) {
        complain(QString::fromLatin1("%1 was left open").arg(describe(window)));
    }
    if (trouble.isEmpty()) {
        playNext(window);
    } else {
        end(window);
    }
    timer.start();
}

void ModalScript::playNext(QWidget *window)
{
    // It may delete the window.
    const QString place = describe(window);
    ++next;
    try {
        steps[next - 1](window);
    } catch (const Impossible &impossible) {
        complain(QString::fromLatin1("%1: %2").arg(place, impossible.reason));
    }
    sinceLastStep.start();
}

void ModalScript::complain(const QString &reason)
{
    if (trouble.isEmpty()) {
        trouble = QString::fromLatin1("after %1 of %2 steps: %3").arg(next).arg(steps.size()).arg(reason);
    }
}

void ModalScript::end(QWidget *window)
{
    if (window != asked) {
        asked = window;
        window->close();
        return;
    }
    // It would not close. The base class ends a dialog without asking its derived class.
    if (auto *dialog = qobject_cast<QDialog *>(window)) {
        dialog->QDialog::done(QDialog::Rejected);
    } else {
        window->hide();
    }
}
