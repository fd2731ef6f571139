// SPDX-License-Identifier: LGPL-2.1-or-later
#include "testing/modalscript.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>

#include <memory>
#include <utility>

namespace {

const int PollInterval = 5; // ms

QAbstractButton *findButton(const QWidget *window, const QString &nameOrCaption)
{
    const QList<QAbstractButton *> buttons = window->findChildren<QAbstractButton *>();
    QAbstractButton *captioned = nullptr;
    for (QAbstractButton *button : buttons) {
        if (button->objectName() == nameOrCaption) {
            return button;
        }
        if (!captioned && button->text().remove(QLatin1Char('&')) == nameOrCaption) {
            captioned = button;
        }
    }
    return captioned;
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
    closing = false;
    asked = nullptr;
    patience = timeout;
    sinceLastStep.start();
    timer.start();
    const std::unique_ptr<QTimer, void (*)(QTimer *)> running(&timer, [](QTimer *started) { started->stop(); });
    return function();
}

bool ModalScript::completed() const
{
    return next == steps.size() && !closing;
}

bool ModalScript::press(QWidget *window, const QString &button)
{
    QAbstractButton *found = findButton(window, button);
    return found && found->isEnabled() && QMetaObject::invokeMethod(found, "click", Qt::QueuedConnection);
}

void ModalScript::poll()
{
    // Before the step, too: one that opens a window itself does not return before that window has closed.
    timer.start();
    if (sinceLastStep.hasExpired(patience)) {
        closing = true;
    }
    QWidget *window = QApplication::activeModalWidget();
    if (!window || !window->isVisible()) {
        return;
    }
    if (next < steps.size() && !closing) {
        playNext(window);
    } else {
        end(window);
    }
    timer.start();
}

void ModalScript::playNext(QWidget *window)
{
    ++next;
    steps[next - 1](window);
    sinceLastStep.start();
}

void ModalScript::end(QWidget *window)
{
    closing = true;
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
