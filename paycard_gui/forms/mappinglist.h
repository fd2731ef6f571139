// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QString>

/// The mapping list of a pattern such as "%1:Сумма;%2:Процент;", with the keys 0, 1, 2, ... in order. `entries` is
/// their number: of a translation the last semicolon may be missing.
inline QString numberedMapping(QString pattern, int entries)
{
    for (int key = 0; key < entries; ++key) {
        pattern = pattern.arg(key);
    }
    return pattern;
}
