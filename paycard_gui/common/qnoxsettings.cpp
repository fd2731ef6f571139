// SPDX-License-Identifier: LGPL-2.1-or-later
#include "common/qnoxsettings.h"

#include "common/qtcompat.h"
#include "common/settingsreader.h"

#include <QDomDocument>

#include <algorithm>

namespace {

bool isForbiddenInXml(QChar c)
{
    const ushort code = c.unicode();
    return (code < 0x20 && code != 0x9 && code != 0xA && code != 0xD) || c.isSurrogate() || code >= 0xFFFE;
}

/// The text without the characters that XML 1.0 cannot carry: one of them would make the document unreadable.
QString withoutForbidden(const QString &text)
{
    if (std::none_of(text.begin(), text.end(), isForbiddenInXml)) {
        return text;
    }
    QString kept;
    kept.reserve(text.size());
    for (const QChar *c = text.constBegin(); c != text.constEnd(); ++c) {
        if (c->isHighSurrogate() && c + 1 != text.constEnd() && (c + 1)->isLowSurrogate()) {
            kept += *c++;
            kept += *c;
        } else if (!isForbiddenInXml(*c)) {
            kept += *c;
        }
    }
    return kept;
}

QString toText(const QVariant &value)
{
    // The variant's own conversion gives the shortest form on the newer releases: 1e+10 for 10000000000.
    return QtCompat::isDouble(value) ? QString::number(value.toDouble(), 'g', 15) : value.toString();
}

} // namespace

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
    QDomDocument document;
    QDomElement root = document.createElement(SettingsXml::SettingsTag);
    root.setAttribute(SettingsXml::VersionAttribute,
                      static_cast<qlonglong>(documentVersion == 0 ? version : documentVersion));
    document.appendChild(root);
    for (QMap<QString, QVariant>::const_iterator entry = entries.begin(); entry != entries.end(); ++entry) {
        QDomElement value = document.createElement(SettingsXml::ValueTag);
        value.setAttribute(SettingsXml::NameAttribute, withoutForbidden(entry.key()));
        value.appendChild(document.createTextNode(withoutForbidden(toText(entry.value()))));
        root.appendChild(value);
    }
    return document.toString(4);
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
    for (const SettingsReader::Entry &entry : reader.entries) {
        entries.insert(entry.name, entry.value);
    }
}
