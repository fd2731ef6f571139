// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef TILL_H
#define TILL_H

#include "common/ipaycard.h"

/// The part of a host that is tested here: it has the cashier asked and remembers what the answers mean.
class Till
{
public:
    explicit Till(NOX::PayCard::IPayCard &used) : driver(used) {}

    /// Takes a payment, if the cashier confirms it.
    void pay();
    /// Has the technician set up the payment system.
    void setUp();

    int paid = 0;     ///< payments taken
    int failures = 0; ///< calls that were not performed
    int setups = 0;   ///< times that the driver has taken settings

private:
    void count(int result, int &successes);

    NOX::PayCard::IPayCard &driver;
};

#endif
