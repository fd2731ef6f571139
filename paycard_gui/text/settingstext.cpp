// SPDX-License-Identifier: LGPL-2.1-or-later
#include "text/settingstext.h"

#include "toolkit/texts.h"

namespace {

typedef decltype(QString().size()) Size;

const char *const DocumentStart = "<settings version=\"";
const char *const DocumentEnd = "</settings>";
const char *const ValueStart = "<value name=\"";
const char *const ValueEnd = "/value>"; // behind the "<"

struct Escape
{
    const char *text;
    char character;
    /// A name is an attribute.
    bool inNamesOnly;
};

const Escape escapes[] = {
    {"&amp;", '&', false}, {"&lt;", '<', false},  {"&gt;", '>', false},  {"&#xd;", '\r', false},
    {"&quot;", '"', true}, {"&#xa;", '\n', true}, {"&#x9;", '\t', true},
};

/// How the character at this place of a document is written; null for as it is.
const Escape *escapeOf(QChar c, const QString &xml, Size at, bool inName)
{
    if (c.unicode() > '>') {
        return nullptr;
    }
    for (const Escape &escape : escapes) {
        if (c == QLatin1Char(escape.character)) {
            // This one only where XML asks for it: behind two brackets.
            const bool asItIs = c == QLatin1Char('>') &&
                                (at < 2 || xml.at(at - 1) != QLatin1Char(']') || xml.at(at - 2) != QLatin1Char(']'));
            return asItIs || (escape.inNamesOnly && !inName) ? nullptr : &escape;
        }
    }
    return nullptr;
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
        if (const Escape *escape = escapeOf(c, xml, xml.size(), inName)) {
            xml += QLatin1String(escape->text);
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
    return Toolkit::typeOf(value) == QMetaType::Double ? QString::number(value.toDouble(), 'g', 15) : value.toString();
}

/// Goes through a document of the written form.
class Scanner
{
public:
    explicit Scanner(const QString &document) : xml(document) {}

    bool atEnd() const { return at == xml.size(); }

    void skipSpace()
    {
        while (!atEnd() && (xml.at(at) == QLatin1Char(' ') || xml.at(at) == QLatin1Char('\n'))) {
            ++at;
        }
    }

    /// Goes behind this, if it comes next.
    bool skip(const char *expected)
    {
        Size behind = at;
        for (; *expected; ++expected, ++behind) {
            if (behind == xml.size() || xml.at(behind) != QLatin1Char(*expected)) {
                return false;
            }
        }
        at = behind;
        return true;
    }

    /// Takes what stands before the next mark, and goes behind it. False for what is not written like that.
    bool take(QString &text, char mark, bool inName)
    {
        const Size end = xml.indexOf(QLatin1Char(mark), at);
        if (end < 0) {
            return false;
        }
        text.resize(end - at); // no shorter than what it is unescaped
        QChar *to = text.data();
        for (; at < end; ++to) {
            const QChar c = xml.at(at);
            if (c == QLatin1Char('&')) {
                if (!takeEscape(*to)) {
                    return false;
                }
            } else if (c.isHighSurrogate() && xml.at(at + 1).isLowSurrogate()) {
                *to = c;
                *++to = xml.at(at + 1);
                at += 2;
            } else if (isForbiddenInXml(c) || escapeOf(c, xml, at, inName)) {
                return false;
            } else {
                *to = c;
                ++at;
            }
        }
        text.truncate(static_cast<Size>(to - text.constData()));
        ++at;
        return true;
    }

private:
    bool takeEscape(QChar &c)
    {
        for (const Escape &escape : escapes) {
            if (skip(escape.text)) {
                c = QLatin1Char(escape.character);
                return true;
            }
        }
        return false;
    }

    const QString &xml;
    Size at = 0;
};

} // namespace

QString SettingsText::write(const QMap<QString, QVariant> &entries, int version)
{
    QString xml = QLatin1String(DocumentStart) + QString::number(version) + QLatin1Char('"');
    if (entries.isEmpty()) {
        return xml + QLatin1String("/>\n");
    }
    xml += QLatin1String(">\n");
    for (QMap<QString, QVariant>::const_iterator entry = entries.begin(); entry != entries.end(); ++entry) {
        xml += QLatin1String("    ");
        xml += QLatin1String(ValueStart);
        append(xml, entry.key(), true);
        xml += QLatin1String("\">");
        append(xml, toText(entry.value()), false);
        xml += QLatin1Char('<');
        xml += QLatin1String(ValueEnd);
        xml += QLatin1Char('\n');
    }
    return xml + QLatin1String(DocumentEnd) + QLatin1Char('\n');
}

bool SettingsText::read(const QString &xml, std::vector<Entry> &entries)
{
    Scanner scanner(xml);
    QString version; // that of the outermost element never counts
    if (!scanner.skip(DocumentStart) || !scanner.take(version, '"', true) || !scanner.skip(">")) {
        return false;
    }
    scanner.skipSpace();
    while (scanner.skip(ValueStart)) {
        Entry entry;
        if (!scanner.take(entry.name, '"', true) || !scanner.skip(">") || !scanner.take(entry.value, '<', false) ||
            !scanner.skip(ValueEnd)) {
            return false;
        }
        entries.push_back(std::move(entry));
        scanner.skipSpace();
    }
    if (!scanner.skip(DocumentEnd)) {
        return false;
    }
    scanner.skipSpace();
    return scanner.atEnd();
}
