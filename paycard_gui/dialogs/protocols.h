// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

class QNoxSettings;
class QWidget;

/// What there is for one of the driver's protocols.
struct Protocol
{
    /// Runs a dialog on a document; gives its dialog code.
    typedef int (*EditSettings)(QNoxSettings &settings, QWidget *parent);

    /// What the cashier is asked to confirm.
    enum Question {
        WithoutData,         ///< on purpose
        CardPayment,         ///< without the reference of an earlier operation
        CardPaymentOrRefund, ///< a refund has one
        CardPaymentOrUndone, ///< a refund and a cancellation have one
        ServicePayment
    };

    // Which inputs and buttons the properties enable.
    bool directory;
    bool timeout;
    bool slip;
    bool operators;
    /// The protocol's own settings; null where it has none.
    EditSettings editParameters;
    Question question;
};

/// That of the number, or nothing at all for a number that is not known.
const Protocol &protocol(int number);
