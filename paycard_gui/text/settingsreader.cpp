// SPDX-License-Identifier: LGPL-2.1-or-later
#include "text/settingsreader.h"

#include "toolkit/texts.h"

#include <algorithm>

namespace {

const QLatin1String SettingsTag("settings");
const QLatin1String ValueTag("value");
const QLatin1String VersionAttribute("version");
const QLatin1String NameAttribute("name");

// Most characters that are read of one document: unfolded entities and what values inside values repeat included, so
// that a small text cannot fill the memory.
const int MaxCharacters = 1 << 26;
// Most characters that one reference to an entity may unfold to.
const int EntityGrowth = 1 << 17;

/// Gives the attribute of an XML declaration this value, if it is there.
void setPseudoAttribute(QString &declaration, const char *attribute, const char *value)
{
    auto start = declaration.indexOf(QLatin1String(attribute));
    while (start >= 0 && start < declaration.size() && declaration.at(start) != QLatin1Char('"') &&
           declaration.at(start) != QLatin1Char('\'')) {
        ++start;
    }
    const auto end =
        start >= 0 && start < declaration.size() ? declaration.indexOf(declaration.at(start), start + 1) : -1;
    if (end >= 0) {
        declaration.replace(start + 1, end - start - 1, QLatin1String(value));
    }
}

/// The text has been decoded long since: whatever version and encoding its XML declaration names, it gets those
/// that the toolkit reads.
QString withPlainDeclaration(const QString &xml)
{
    const auto end = xml.indexOf(QLatin1String("?>"));
    if (end < 0 || !xml.startsWith(QLatin1String("<?xml")) || !xml.at(5).isSpace()) {
        return xml;
    }
    QString declaration = xml.left(end);
    setPseudoAttribute(declaration, "version", "1.0");
    setPseudoAttribute(declaration, "encoding", Toolkit::XmlEncoding);
    return declaration + xml.mid(end);
}

} // namespace

SettingsReader::SettingsReader(const QString &xml) : text(xml) {}

bool SettingsReader::read()
{
    if (text.size() <= MaxCharacters && SettingsText::read(text, entries)) {
        return true;
    }
    entries.clear();
    text = withPlainDeclaration(text);
    reader.emplace(Toolkit::encodedXml(text));
    reader->setNamespaceProcessing(false);
    if (!boundEntities()) {
        return false;
    }
    while (!reader->atEnd()) {
        switch (reader->readNext()) {
        case QXmlStreamReader::StartElement:
            startElement();
            break;
        case QXmlStreamReader::Characters:
            characters += reader->text().size();
            if (!open.empty()) {
                openText += reader->text();
            }
            break;
        case QXmlStreamReader::EndElement:
            endElement();
            break;
        default:
            break;
        }
        if (characters > MaxCharacters) {
            return false;
        }
    }
    return !reader->hasError();
}

QString SettingsReader::value(const QString &name) const
{
    const auto last = std::find_if(entries.rbegin(), entries.rend(),
                                   [&](const SettingsText::Entry &entry) { return entry.name == name; });
    return last == entries.rend() ? QString() : last->value;
}

/// Between two looks at what has been read the reader may unfold all references there are.
bool SettingsReader::boundEntities()
{
    if (!text.contains(QLatin1String("<!ENTITY"))) {
        return true;
    }
    const auto references = text.count(QLatin1Char('&')) + text.count(QLatin1Char('%'));
    return Toolkit::boundEntities(*reader, EntityGrowth) && references <= MaxCharacters / EntityGrowth;
}

void SettingsReader::startElement()
{
    const QXmlStreamAttributes attributes = reader->attributes();
    for (const QXmlStreamAttribute &attribute : attributes) {
        characters += attribute.value().size();
    }
    // The outermost element is never an entry and its version never counts, whatever its name.
    if (depth++ == 0) {
        return;
    }
    if (reader->qualifiedName() == ValueTag) {
        if (open.empty()) {
            openText.clear();
        }
        open.push_back({entries.size(), openText.size()});
        entries.push_back({attributes.value(NameAttribute).toString(), QString()});
    } else if (!hasVersion && reader->qualifiedName() == SettingsTag) {
        hasVersion = true;
        version = attributes.value(VersionAttribute).toString().toInt();
    }
}

void SettingsReader::endElement()
{
    if (--depth > 0 && reader->qualifiedName() == ValueTag) {
        const OpenValue &value = open.back();
        entries[value.entry].value = openText.mid(value.start);
        // That of the outermost value has been counted as it was read; the others repeat it.
        characters += open.size() > 1 ? entries[value.entry].value.size() : 0;
        open.pop_back();
    }
}
