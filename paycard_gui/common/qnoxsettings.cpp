// SPDX-License-Identifier: LGPL-2.1-or-later
#include "common/qnoxsettings.h"

#include "common/qtcompat.h"
#include "common/settingsreader.h"

namespace {

/// How the character is written in a value, or in a name, which is an attribute; null for as it is.
const char *escapeOf(QChar c, bool inName)
{
    switch (c.unicode()) {
    case '&':
        return "&amp;";
    case '<':
        return "&lt;";
    case '\r':
        return "&#xd;";
    case '"':
        return inName ? "&quot;" : nullptr;
    case '\n':
        return inName ? "&#xa;" : nullptr;
    case '\t':
        return inName ? "&#x9;" : nullptr;
    default:
        return nullptr;
    }
}

bool isForbiddenInXml(QChar c)
{
    const ushort code = c.unicode();
    return (code < 0x20 && code != 0x9 && code != 0xA && code != 0xD) || (code >= 0xD800 && code < 0xE000) ||
           code >= 0xFFFE;
}

/// Appends the text escaped. Characters that XML 1.0 cannot carry are left out: one of them would make the document
/// unreadable.
void append(QString &xml, const QString &text, bool inName)
{
    for (int i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        if (const char *escape = escapeOf(c, inName)) {
            xml += QLatin1String(escape);
        } else if (c == QLatin1Char('>') && xml.endsWith(QLatin1String("]]"))) {
            xml += QLatin1String("&gt;");
        } else if (c.isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate()) {
            xml += c;
            xml += text.at(++i);
        } else if (!isForbiddenInXml(c)) {
            xml += c;
        }
    }
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

// To the letter what the toolkit's DOM makes of it, which however takes a time that grows with the square of what
// there is to escape in a value, and breaks pairs of surrogates in its oldest release.
QString QNoxSettings::toXml(int documentVersion) const
{
    QString xml = QString::fromLatin1("<%1 %2=\"%3\"")
                      .arg(SettingsXml::SettingsTag, SettingsXml::VersionAttribute,
                           QString::number(documentVersion == 0 ? version : documentVersion));
    if (entries.isEmpty()) {
        return xml + QLatin1String("/>\n");
    }
    xml += QLatin1String(">\n");
    const QString start = QString::fromLatin1("    <%1 %2=\"").arg(SettingsXml::ValueTag, SettingsXml::NameAttribute);
    const QString end = QString::fromLatin1("</%1>\n").arg(SettingsXml::ValueTag);
    for (QMap<QString, QVariant>::const_iterator entry = entries.begin(); entry != entries.end(); ++entry) {
        xml += start;
        append(xml, entry.key(), true);
        xml += QLatin1String("\">");
        append(xml, toText(entry.value()), false);
        xml += end;
    }
    return xml + QString::fromLatin1("</%1>\n").arg(SettingsXml::SettingsTag);
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
