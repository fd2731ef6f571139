// SPDX-License-Identifier: LGPL-2.1-or-later
#include "till.h"

#include "paycard_gui.h"

void Till::pay()
{
    count(ConfirmPayment(&driver, nullptr), paid);
}

void Till::setUp()
{
    count(ShowProperties(&driver, nullptr), setups);
}

void Till::count(int result, int &successes)
{
    if (result == -1) {
        ++failures;
    } else {
        successes += result;
    }
}
