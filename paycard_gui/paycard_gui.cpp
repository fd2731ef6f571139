// SPDX-License-Identifier: LGPL-2.1-or-later
#include "paycard_gui.h"

#include "common/nohelpbuttondialogs.h"
#include "common/qnoxpaycard.h"
#include "common/qt_utils.h"
#include "dialogs/commissionadditiondialog.h"
#include "dialogs/paymentconfirmation.h"
#include "dialogs/paysystemdialog.h"
#include "dialogs/selectoperatordialog.h"
#include "toolkit/platforms.h"
#include "window/scopeddialog.h"

#include <QCoreApplication>
#include <QDialog>
#include <QPointer>
#include <QThread>

namespace {

const int NotPerformed = -1;

/// False where a widget would abort the process: without an application object for widgets, and on another
/// thread than its own.
bool canShowWidgets()
{
    const QCoreApplication *application = app();
    return application && Toolkit::showsWidgets() && application->thread() == QThread::currentThread();
}

/// Lives among the parent's children ahead of a dialog, so that it goes before it: the dialog, which may be in the
/// middle of a signal of one of its widgets, is closed then, and goes once its own calls have returned.
class DialogRescue : public QObject
{
public:
    explicit DialogRescue(QWidget *parent) : QObject(parent) {}
    ~DialogRescue() override
    {
        if (dialog) {
            const QList<QDialog *> opened = dialog->findChildren<QDialog *>();
            for (QDialog *window : opened) {
                window->hide();
            }
            dialog->setParent(nullptr, dialog->windowFlags());
        }
    }

    QPointer<QDialog> dialog;
};

/// The host's widget, which the host may delete at any time.
class Parent
{
public:
    explicit Parent(QWidget *parent)
        : widget(parent), given(parent != nullptr), rescue(parent ? new DialogRescue(parent) : nullptr)
    {
    }
    Parent(const Parent &) = delete;
    Parent &operator=(const Parent &) = delete;
    ~Parent() { delete rescue; }

    QWidget *get() const { return widget; }
    bool isGone() const { return given && !widget; }
    void adopt(QDialog &dialog) const
    {
        if (widget) {
            rescue->dialog = &dialog;
            dialog.setParent(widget, dialog.windowFlags());
            dialog.adjustSize();
        }
    }

private:
    const QPointer<QWidget> widget;
    const bool given;
    const QPointer<DialogRescue> rescue;
};

/// The frame of the entry points: runs `action(driver, parent)`, which nothing leaves but its result. Whatever it
/// throws is answered with a message box that says what `failure` is by then.
template <class Action>
int enter(NOX::PayCard::IPayCard *driver, QWidget *parent, const char *const &failure, Action action)
{
    try {
        if (!driver || !canShowWidgets()) {
            return NotPerformed;
        }
        const Parent owner(parent);
        try {
            return action(driver, owner);
        } catch (...) {
            NoHelpButtonMessageBox::critical(owner.get(), QObject::tr("Ошибка"), QObject::tr(failure));
        }
    } catch (...) {
        // There is no memory, not even for the box.
    }
    return NotPerformed;
}

template <class Dialog>
int run(NOX::PayCard::IPayCard *driver, const Parent &parent)
{
    // The driver may delete the parent while the dialog asks it, so that a dialog gets its parent once it is whole.
    QWidget *const none = nullptr;
    const ScopedDialog<Dialog> dialog(driver, none);
    if (parent.isGone()) {
        return QDialog::Rejected;
    }
    parent.adopt(*dialog);
    try {
        return dialog->exec();
    } catch (...) {
        if (parent.isGone()) {
            return QDialog::Rejected;
        }
        throw;
    }
}

template <class Dialog>
int runToAcceptance(NOX::PayCard::IPayCard *driver, const Parent &parent)
{
    return run<Dialog>(driver, parent) == QDialog::Accepted ? 1 : 0;
}

} // namespace

int AskParams(NOX::PayCard::IPayCard * /*driver*/, QWidget * /*parent*/)
{
    return NotPerformed;
}

int CommissionAddition(NOX::PayCard::IPayCard *driver, QWidget *parent)
{
    // The host reads the dialog's own code, which tells the two ways apart.
    return enter(driver, parent, QT_TRANSLATE_NOOP("QObject", "Ошибка выбора способа начисления комиссии"),
                 run<CommissionAdditionDialog>);
}

int SelectOperator(NOX::PayCard::IPayCard *driver, QWidget *parent)
{
    // The same words as for the properties, on purpose.
    return enter(driver, parent, QT_TRANSLATE_NOOP("QObject", "Ошибка настройки свойств"),
                 runToAcceptance<SelectOperatorDialog>);
}

int ShowProperties(NOX::PayCard::IPayCard *driver, QWidget *parent)
{
    return enter(driver, parent, QT_TRANSLATE_NOOP("QObject", "Ошибка настройки свойств"),
                 runToAcceptance<PaySystemDialog>);
}

int ConfirmPayment(NOX::PayCard::IPayCard *driver, QWidget *parent)
{
    const char *failure = QT_TRANSLATE_NOOP("QObject", "Ошибка получения параметров платежа");
    return enter(driver, parent, failure, [&failure](NOX::PayCard::IPayCard *object, const Parent &owner) {
        const QString text = paymentConfirmationText(QNoxPaycard(object));
        if (owner.isGone()) {
            return 0;
        }
        failure = QT_TRANSLATE_NOOP("QObject", "Ошибка подтверждения платежа");
        return NoHelpButtonMessageBox::question(owner.get(), QObject::tr("Подтверждение"), text,
                                                QMessageBox::Ok | QMessageBox::Cancel,
                                                QMessageBox::Ok) == QMessageBox::Ok
                   ? 1
                   : 0;
    });
}
