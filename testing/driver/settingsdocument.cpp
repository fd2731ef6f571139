// SPDX-License-Identifier: LGPL-2.1-or-later
#include "testing/settingsdocument.h"

#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <algorithm>
#include <vector>

namespace {

/// Documents within documents are shown down to this depth.
const int MaxDepth = 16;
/// Of a fixed length, so that it does not give the length of the password away.
const char *const Mask = "••••••";

QString unreadable(decltype(QString().size()) length)
{
    return QStringLiteral("(нечитаемый документ, знаков: %1)").arg(length);
}

/// True for a text that may be a password's document, though a damaged or a disguised one.
bool mayHoldSecret(const QString &text)
{
    return text.trimmed().startsWith(QLatin1Char('<')) || text.contains(QLatin1String("&#")) ||
           SettingsDocument::isSecret(text);
}

} // namespace

// Nesting is followed in a list of its own: a document of many thousand nested elements is no reason to run
// out of stack.
SettingsDocument::SettingsDocument(const QString &xml) : length(xml.size())
{
    const QLatin1String nameAttribute("name");
    const int none = -1;
    // For each open element the index of the entry that its text belongs to.
    std::vector<int> owners;
    QXmlStreamReader reader(xml);
    reader.setNamespaceProcessing(false);
    while (!reader.atEnd()) {
        const QXmlStreamReader::TokenType token = reader.readNext();
        int owner = owners.empty() ? none : owners.back();
        if (token == QXmlStreamReader::StartElement) {
            if (owners.empty()) {
                version = reader.attributes().value(QLatin1String("version")).toString();
            } else if (reader.qualifiedName() == QLatin1String("value")) {
                const QString name = reader.attributes().value(nameAttribute).toString();
                const bool secret = isSecret(name) || (owner != none && values.at(owner).secret);
                owner = static_cast<int>(values.size());
                values.append({name, QString(), secret});
            }
            owners.push_back(owner);
        } else if (token == QXmlStreamReader::EndElement) {
            owners.pop_back();
        } else if (token == QXmlStreamReader::Characters && owner != none) {
            values[owner].text += reader.text();
        }
    }
    if (reader.hasError()) {
        values.clear();
        error = QStringLiteral("строка %1, столбец %2").arg(reader.lineNumber()).arg(reader.columnNumber());
    }
}

QString SettingsDocument::value(const QString &name) const
{
    for (auto i = values.size() - 1; i >= 0; --i) {
        if (values.at(i).name == name) {
            return values.at(i).text;
        }
    }
    return QString();
}

void SettingsDocument::setValue(const QString &name, const QString &text)
{
    const auto named = [&](const SettingsEntry &entry) { return entry.name == name; };
    values.erase(std::remove_if(values.begin(), values.end(), named), values.end());
    values.append({name, text, isSecret(name)});
}

QString SettingsDocument::toXml() const
{
    QString xml;
    QXmlStreamWriter writer(&xml);
    writer.setAutoFormatting(true);
    writer.writeStartElement(QStringLiteral("settings"));
    if (!version.isEmpty()) {
        writer.writeAttribute(QStringLiteral("version"), version);
    }
    for (const SettingsEntry &entry : values) {
        writer.writeStartElement(QStringLiteral("value"));
        writer.writeAttribute(QStringLiteral("name"), entry.name);
        writer.writeCharacters(entry.text);
        writer.writeEndElement();
    }
    writer.writeEndElement();
    return xml + QLatin1Char('\n');
}

QString SettingsDocument::toPeople(int depth) const
{
    if (!isValid() || depth > MaxDepth) {
        return unreadable(length);
    }
    SettingsDocument masked = *this;
    for (SettingsEntry &entry : masked.values) {
        entry.text = shown(entry, depth);
    }
    return masked.toXml();
}

QString SettingsDocument::shown(const SettingsEntry &entry, int depth)
{
    if (entry.secret) {
        return entry.text.isEmpty() ? QString() : QString::fromUtf8(Mask);
    }
    if (!mayHoldSecret(entry.text)) {
        return entry.text;
    }
    return SettingsDocument(entry.text).toPeople(depth + 1);
}

bool SettingsDocument::isSecret(const QString &name)
{
    return name.contains(QLatin1String("pwd"), Qt::CaseInsensitive) ||
           name.contains(QLatin1String("password"), Qt::CaseInsensitive);
}
