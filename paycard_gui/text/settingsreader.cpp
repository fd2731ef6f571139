// SPDX-License-Identifier: LGPL-2.1-or-later
#include "text/settingsreader.h"

#include "toolkit/texts.h"

#include <QHash>

#include <algorithm>

namespace {

const QLatin1String SettingsTag("settings");
const QLatin1String ValueTag("value");
const QLatin1String VersionAttribute("version");
const QLatin1String NameAttribute("name");

// Most characters that the values of one document may take, and that it may have once its entities are
// unfolded. Values inside values repeat the text that they share, so that a small text could otherwise fill
// the memory.
const int MaxCharacters = 1 << 26;
// Most characters that one reference may unfold to where the sum cannot be foreseen.
const int EntityGrowth = 4096;
// Entities within entities that are followed; a chain that is longer counts as one without end.
const int MaxEntityDepth = 1000;

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
/// that every release of the toolkit reads.
QString withPlainDeclaration(const QString &xml)
{
    const auto end = xml.indexOf(QLatin1String("?>"));
    if (end < 0 || !xml.startsWith(QLatin1String("<?xml")) || !xml.at(5).isSpace()) {
        return xml;
    }
    QString declaration = xml.left(end);
    setPseudoAttribute(declaration, "version", "1.0");
    setPseudoAttribute(declaration, "encoding", "UTF-8");
    return declaration + xml.mid(end);
}

/// True when entities may unfold before the reader tells of their declarations: in parameter entities, and in
/// the defaults of attributes.
bool unfoldsInDeclarations(const QString &xml)
{
    const QString declaration = QLatin1String("<!ENTITY");
    auto at = xml.indexOf(declaration);
    if (at >= 0 && xml.contains(QLatin1String("<!ATTLIST"))) {
        return true;
    }
    for (; at >= 0; at = xml.indexOf(declaration, at + 1)) {
        auto name = at + declaration.size();
        while (name < xml.size() && xml.at(name).isSpace()) {
            ++name;
        }
        if (name < xml.size() && xml.at(name) == QLatin1Char('%')) {
            return true;
        }
    }
    return false;
}

/// What the entities of a document make of texts that refer to them.
class Entities
{
public:
    explicit Entities(const QXmlStreamEntityDeclarations &declarations)
    {
        for (const QXmlStreamEntityDeclaration &declaration : declarations) {
            values.insert(declaration.name().toString(), declaration.value().toString());
            longestName = std::max(longestName, static_cast<int>(declaration.name().size()));
        }
    }

    /// Characters that the text takes from `start` on with its references unfolded; more than MaxCharacters
    /// for any number of them beyond.
    qint64 unfoldedSize(const QString &text, qint64 start = 0, int depth = 0)
    {
        qint64 size = text.size() - start;
        auto reference = text.indexOf(QLatin1Char('&'), static_cast<int>(start));
        for (; reference >= 0 && size <= MaxCharacters; reference = text.indexOf(QLatin1Char('&'), reference + 1)) {
            const QString name = text.mid(reference + 1, longestName + 1);
            size += sizeOf(name.left(name.indexOf(QLatin1Char(';'))), depth);
        }
        return size;
    }

private:
    qint64 sizeOf(const QString &name, int depth)
    {
        const auto value = values.constFind(name);
        if (value == values.constEnd()) {
            return 0;
        }
        const auto known = sizes.constFind(name);
        if (known != sizes.constEnd()) {
            return *known;
        }
        const qint64 size = depth < MaxEntityDepth ? unfoldedSize(*value, 0, depth + 1) : MaxCharacters + 1;
        sizes.insert(name, size);
        return size;
    }

    int longestName = 0;
    QHash<QString, QString> values;
    QHash<QString, qint64> sizes;
};

} // namespace

SettingsReader::SettingsReader(const QString &xml) : text(xml) {}

bool SettingsReader::read()
{
    if (text.size() <= MaxCharacters && SettingsText::read(text, entries)) {
        return true;
    }
    entries.clear();
    text = withPlainDeclaration(text);
    reader.emplace(text);
    reader->setNamespaceProcessing(false);
    // One reference is held to its own bound where all of them together cannot be.
    const bool unforeseen = unfoldsInDeclarations(text);
    const bool bounded = Toolkit::boundEntities(*reader, unforeseen ? EntityGrowth : MaxCharacters);
    if (unforeseen && (!bounded || text.size() > MaxCharacters / EntityGrowth)) {
        return false;
    }
    while (!reader->atEnd()) {
        switch (reader->readNext()) {
        case QXmlStreamReader::DTD:
            if (!unforeseen && !unfoldsWithinBound()) {
                return false;
            }
            break;
        case QXmlStreamReader::StartElement:
            startElement();
            break;
        case QXmlStreamReader::Characters:
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
        if (characters + openText.size() > MaxCharacters) {
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

bool SettingsReader::unfoldsWithinBound()
{
    const QXmlStreamEntityDeclarations declarations = reader->entityDeclarations();
    return declarations.isEmpty() ||
           Entities(declarations).unfoldedSize(text, reader->characterOffset()) <= MaxCharacters;
}

void SettingsReader::startElement()
{
    // The outermost element is never an entry and its version never counts, whatever its name.
    if (depth++ == 0) {
        return;
    }
    if (reader->qualifiedName() == ValueTag) {
        if (open.empty()) {
            openText.clear();
        }
        open.push_back({entries.size(), openText.size()});
        entries.push_back({reader->attributes().value(NameAttribute).toString(), QString()});
    } else if (!hasVersion && reader->qualifiedName() == SettingsTag) {
        hasVersion = true;
        version = reader->attributes().value(VersionAttribute).toString().toInt();
    }
}

void SettingsReader::endElement()
{
    if (--depth > 0 && reader->qualifiedName() == ValueTag) {
        const OpenValue &value = open.back();
        entries[value.entry].value = openText.mid(value.start);
        characters += entries[value.entry].value.size();
        open.pop_back();
    }
}
