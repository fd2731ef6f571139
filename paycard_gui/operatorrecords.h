// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef OPERATORRECORDS_H
#define OPERATORRECORDS_H

#include "common/qnoxsettings.h"
#include "settingfields.h"

#include <QString>

/// The service operators in the settings document: their number, and for each a document of its own, kept as
/// text under "Operator0", "Operator1" and so on.
namespace OperatorRecords {

inline const QString CountKey = QString::fromWCharArray(L"Operators");
/// Key of an operator's name within its record.
inline const QString NameKey = QString::fromWCharArray(L"Name");

/// More operators than any shop has. A damaged document that names a larger number is not followed any further.
const int MaxCount = 100000;

inline QString key(int index)
{
    return QString::fromWCharArray(L"Operator") + QString::number(index);
}

inline int count(const QNoxSettings &settings)
{
    return wholeNumber(settings.get(CountKey), 0, MaxCount);
}

/// The record at this index, empty where there is none.
inline QNoxSettings record(const QNoxSettings &settings, int index)
{
    return QNoxSettings(settings.get(key(index)).toString());
}

inline QString name(const QNoxSettings &record)
{
    return record.get(NameKey).toString();
}

} // namespace OperatorRecords

#endif
