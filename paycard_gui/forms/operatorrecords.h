// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "common/qnoxsettings.h"
#include "forms/settingfields.h"
#include "text/settingsreader.h"

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

/// The record at this index as text, empty where there is none.
inline QString record(const QNoxSettings &settings, int index)
{
    return settings.get(key(index)).toString();
}

/// The operator's name in a record. There may be very many of them, of which nothing else is asked.
inline QString name(const QString &record)
{
    SettingsReader reader(record);
    return reader.read() ? reader.value(NameKey) : QString();
}

} // namespace OperatorRecords
