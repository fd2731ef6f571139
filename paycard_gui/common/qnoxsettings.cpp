// SPDX-License-Identifier: LGPL-2.1-or-later
#include "common/qnoxsettings.h"

#include "text/settingsreader.h"
#include "text/settingstext.h"

QNoxSettings::QNoxSettings() : version(0) {}

QNoxSettings::QNoxSettings(const QString &xml) : version(0)
{
    fromXml(xml);
}

QNoxSettings::~QNoxSettings() = default;

QVariant QNoxSettings::get(const QString &name, const QVariant &def) const
{
    return entries.value(name, def);
}

void QNoxSettings::set(const QString &name, const QVariant &value)
{
    entries.insert(name, value);
}

void QNoxSettings::remove(const QString &name)
{
    entries.remove(name);
}

QString QNoxSettings::toXml(int documentVersion) const
{
    return SettingsText::write(entries, documentVersion == 0 ? version : documentVersion);
}

void QNoxSettings::fromXml(const QString &xml)
{
    entries.clear();
    SettingsReader reader(xml);
    if (!reader.read()) {
        return;
    }
    if (reader.hasVersion) {
        version = reader.version;
    }
    for (const SettingsText::Entry &entry : reader.entries) {
        entries.insert(entry.name, entry.value);
    }
}
