// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef MAPPINGLIST_H
#define MAPPINGLIST_H

#include <QString>

/// The mapping list of a pattern such as "%1:Сумма;%2:Процент;", with the keys 0, 1, 2, ... in order.
inline QString numberedMapping(QString pattern)
{
    const int entries = static_cast<int>(pattern.count(QLatin1Char(';')));
    for (int key = 0; key < entries; ++key) {
        pattern = pattern.arg(key);
    }
    return pattern;
}

#endif
