// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QString>

class QNoxPaycard;

/// The data of the driver's current payment as rich text for the cashier. Which data it shows depends on the
/// driver's protocol; for some protocols it is empty. Throws what the driver throws.
QString paymentConfirmationText(const QNoxPaycard &driver);
