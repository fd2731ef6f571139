// SPDX-License-Identifier: LGPL-2.1-or-later
//
// The driver in a file of its own, which paycard_check takes.

#include "driver.h"

extern "C" __attribute__((visibility("default"))) NOX::PayCard::IPayCard *createPayCard()
{
    return new Driver;
}

extern "C" __attribute__((visibility("default"))) void destroyPayCard(NOX::PayCard::IPayCard *driver)
{
    delete static_cast<Driver *>(driver);
}
