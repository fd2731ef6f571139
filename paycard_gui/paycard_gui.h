// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef PAYCARD_GUI_H
#define PAYCARD_GUI_H

#include "common/ipaycard.h"
#include "common/paycard_export.h"

class QWidget;

/// \file
/// The entry points of the library. Each runs one modal window on the GUI thread and returns when it has
/// closed.
///
/// `driver` stays the host's and is not kept; `parent` becomes the parent of all windows shown and may be
/// null. An application object is created if the process has none and there is a display. -1 means that the
/// call failed: there is no driver, no application object that can show widgets, the call came from another
/// thread than that object's, or something failed, which a message box has told the user. Nothing was performed
/// then but in the two cases that ShowProperties() names.
extern "C" {

/// Present for the hosts that ask for it; touches nothing and returns -1.
PAYCARD_EXPORT int AskParams(NOX::PayCard::IPayCard *driver, QWidget *parent);

/// Asks the cashier how the operator's commission is charged. Returns 1 for included in the sum, 2 for added
/// to it, 0 when cancelled.
PAYCARD_EXPORT int CommissionAddition(NOX::PayCard::IPayCard *driver, QWidget *parent);

/// Asks the cashier for the service operator and tells the driver its index. Returns 1 when one was chosen,
/// otherwise 0.
PAYCARD_EXPORT int SelectOperator(NOX::PayCard::IPayCard *driver, QWidget *parent);

/// Shows the properties of the payment system. Returns 1 when the driver has taken the edited settings, 0
/// when the user cancelled. -1, too, when the driver refuses to be told afterwards that they are closed: it has
/// taken the edited settings by then, or after Cancel those that it had.
PAYCARD_EXPORT int ShowProperties(NOX::PayCard::IPayCard *driver, QWidget *parent);

/// Shows the data of the current payment. Returns 1 when the cashier confirmed them, otherwise 0.
PAYCARD_EXPORT int ConfirmPayment(NOX::PayCard::IPayCard *driver, QWidget *parent);
}

#endif
