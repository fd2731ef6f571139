// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QString>

/// Roubles and kopecks, with a point in every language.
inline QString amount(double value)
{
    return QString::number(value, 'f', 2);
}
