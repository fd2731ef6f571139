// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QString>

/// The operations that tell of the last failure. They come after another one without being one themselves, and their
/// own failures do not take its place.
inline bool tellsOfFailure(const QString &operation)
{
    return operation.startsWith(QLatin1String("getResult")) || operation.startsWith(QLatin1String("getError"));
}
