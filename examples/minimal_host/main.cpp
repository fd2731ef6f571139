// SPDX-License-Identifier: LGPL-2.1-or-later
//
// The smallest host: its driver, and a call of one entry point. Usage: minimal_host [--answer] [FUNCTION]; --answer
// presses the default button of the window.

#include "driver.h"
#include "paycard_gui.h"

#include <QApplication>
#include <QPushButton>

#include <cstdio>

namespace {

const struct
{
    const char *name;
    int (*call)(NOX::PayCard::IPayCard *, QWidget *);
} EntryPoints[] = {
    {"ConfirmPayment", ConfirmPayment}, // the one that is called by default
    {"SelectOperator", SelectOperator}, {"CommissionAddition", CommissionAddition},
    {"ShowProperties", ShowProperties}, {"AskParams", AskParams},
};

/// Presses the default button of the modal window that is open, or closes a window that has none to press.
class Cashier : public QObject
{
protected:
    void timerEvent(QTimerEvent * /*event*/) override
    {
        QWidget *window = QApplication::activeModalWidget();
        if (!window) {
            return;
        }
        const QList<QPushButton *> buttons = window->findChildren<QPushButton *>();
        for (QPushButton *button : buttons) {
            if (button->isDefault() && button->isEnabled()) {
                button->click();
                return;
            }
        }
        window->close();
    }
};

} // namespace

int main(int argc, char **argv)
{
    // The windows need an application object; a host has its own.
    const QApplication application(argc, argv);
    QStringList arguments = QApplication::arguments().mid(1);
    const bool unattended = arguments.removeAll("--answer") > 0;
    const QString wanted = arguments.value(0, "ConfirmPayment");

    Cashier cashier;
    if (unattended) {
        cashier.startTimer(50);
    }
    for (const auto &entryPoint : EntryPoints) {
        if (wanted == entryPoint.name) {
            Driver driver;
            std::printf("%s: %d\n", entryPoint.name, entryPoint.call(&driver, nullptr));
            return 0;
        }
    }
    std::fprintf(stderr, "There is no function %s\n", qPrintable(wanted));
    return 2;
}
