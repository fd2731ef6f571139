// SPDX-License-Identifier: LGPL-2.1-or-later
#include "common/qnoxsettings.h"

#include "common/qtcompat.h"

#include <QDomDocument>
#include <QStringList>
#include <QXmlStreamReader>

#include <algorithm>
#include <vector>

namespace {

const QString SettingsTag = QString::fromWCharArray(L"settings");
const QString ValueTag = QString::fromWCharArray(L"value");
const QString VersionAttribute = QString::fromWCharArray(L"version");
const QString NameAttribute = QString::fromWCharArray(L"name");

// Most characters that the values of one document may take. Values inside values repeat the text that they
// share, and entities unfold, so that a small text could otherwise fill the memory.
const int MaxCharacters = 1 << 26;
// Characters that one entity reference may unfold to at most, for each character that it takes.
const int EntityGrowth = 4096;

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

/// Reads a document entry by entry, so that neither its depth nor its size can exhaust the stack.
class DocumentReader
{
public:
    explicit DocumentReader(const QString &xml) : size(xml.size()), reader(xml)
    {
        reader.setNamespaceProcessing(false);
    }

    /// False when the text is no document; nothing that was read counts then.
    bool read()
    {
        while (!reader.atEnd()) {
            switch (reader.readNext()) {
            case QXmlStreamReader::DTD:
                if (!reader.entityDeclarations().isEmpty() && size > MaxCharacters / EntityGrowth) {
                    return false;
                }
                break;
            case QXmlStreamReader::StartElement:
                startElement();
                break;
            case QXmlStreamReader::Characters:
                if (!open.empty()) {
                    text += reader.text();
                }
                break;
            case QXmlStreamReader::EndElement:
                endElement();
                break;
            default:
                break;
            }
            if (characters + text.size() > MaxCharacters) {
                return false;
            }
        }
        return !reader.hasError();
    }

    /// The entries in document order: of two with the same name the later one counts.
    struct Entry
    {
        QString name;
        QString value;
    };
    std::vector<Entry> entries;
    bool hasVersion = false;
    int version = 0;

private:
    struct OpenValue
    {
        std::size_t entry;
        decltype(QString().size()) start;
    };

    void startElement()
    {
        // The outermost element is never an entry and its version never counts, whatever its name.
        if (depth++ == 0) {
            return;
        }
        if (reader.qualifiedName() == ValueTag) {
            if (open.empty()) {
                text.clear();
            }
            open.push_back({entries.size(), text.size()});
            entries.push_back({reader.attributes().value(NameAttribute).toString(), QString()});
        } else if (!hasVersion && reader.qualifiedName() == SettingsTag) {
            hasVersion = true;
            version = reader.attributes().value(VersionAttribute).toString().toInt();
        }
    }

    void endElement()
    {
        if (--depth > 0 && reader.qualifiedName() == ValueTag) {
            const OpenValue &value = open.back();
            entries[value.entry].value = text.mid(value.start);
            characters += entries[value.entry].value.size();
            open.pop_back();
        }
    }

    decltype(QString().size()) size;
    QXmlStreamReader reader;
    int depth = 0;
    std::vector<OpenValue> open;
    // All text since the outermost open value began; each open value holds it from its start on.
    QString text;
    qint64 characters = 0;
};

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
    QDomElement root = document.createElement(SettingsTag);
    root.setAttribute(VersionAttribute, static_cast<qlonglong>(documentVersion == 0 ? version : documentVersion));
    document.appendChild(root);
    for (QMap<QString, QVariant>::const_iterator entry = entries.begin(); entry != entries.end(); ++entry) {
        QDomElement value = document.createElement(ValueTag);
        value.setAttribute(NameAttribute, withoutForbidden(entry.key()));
        value.appendChild(document.createTextNode(withoutForbidden(toText(entry.value()))));
        root.appendChild(value);
    }
    return document.toString(4);
}

void QNoxSettings::fromXml(const QString &xml)
{
    entries.clear();
    DocumentReader reader(xml);
    if (!reader.read()) {
        return;
    }
    if (reader.hasVersion) {
        version = reader.version;
    }
    for (const DocumentReader::Entry &entry : reader.entries) {
        entries.insert(entry.name, entry.value);
    }
}
