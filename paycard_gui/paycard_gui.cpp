// SPDX-License-Identifier: LGPL-2.1-or-later
#include "paycard_gui.h"

#include "commissionadditiondialog.h"
#include "common/nohelpbuttondialogs.h"
#include "common/qnoxpaycard.h"
#include "common/qt_utils.h"
#include "common/scopeddialog.h"
#include "paymentconfirmation.h"
#include "paysystemdialog.h"
#include "selectoperatordialog.h"

#include <QApplication>
#include <QPointer>
#include <QThread>

namespace {

const int NotPerformed = -1;

/// False where a widget would abort the process: without an application object for widgets, and on another
/// thread than its own.
bool canShowWidgets()
{
    const QCoreApplication *application = qobject_cast<QApplication *>(app());
    return application && application->thread() == QThread::currentThread();
}

/// The frame of the entry points: runs `action(driver, parent)`, which nothing leaves but its result.
/// Whatever it throws is answered with a message box that says `failure`.
template <class Action>
int enter(NOX::PayCard::IPayCard *driver, QWidget *parent, const char *failure, Action action)
{
    if (!driver || !canShowWidgets()) {
        return NotPerformed;
    }
    // The host may delete the parent while the window is open.
    const QPointer<QWidget> guardedParent(parent);
    try {
        return action(driver, parent);
    } catch (...) {
        NoHelpButtonMessageBox::critical(guardedParent, QObject::tr("Ошибка"), QObject::tr(failure));
        return NotPerformed;
    }
}

template <class Dialog>
int run(NOX::PayCard::IPayCard *driver, QWidget *parent)
{
    const ScopedDialog<Dialog> dialog(driver, parent);
    return dialog->exec();
}

template <class Dialog>
int runToAcceptance(NOX::PayCard::IPayCard *driver, QWidget *parent)
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
    QString text;
    const auto compose = [&text](NOX::PayCard::IPayCard *object, QWidget *) {
        text = paymentConfirmationText(QNoxPaycard(object));
        return 0;
    };
    if (enter(driver, parent, QT_TRANSLATE_NOOP("QObject", "Ошибка получения параметров платежа"), compose) ==
        NotPerformed) {
        return NotPerformed;
    }
    const auto ask = [&text](NOX::PayCard::IPayCard *, QWidget *owner) {
        return NoHelpButtonMessageBox::question(owner, QObject::tr("Подтверждение"), text,
                                                QMessageBox::Ok | QMessageBox::Cancel,
                                                QMessageBox::Ok) == QMessageBox::Ok
                   ? 1
                   : 0;
    };
    return enter(driver, parent, QT_TRANSLATE_NOOP("QObject", "Ошибка подтверждения платежа"), ask);
}
