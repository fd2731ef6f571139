// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QString>
#include <QStringList>
#include <QVariant>
#include <QXmlStreamReader>

#include <string>

#if QT_VERSION < QT_VERSION_CHECK(5, 0, 0)
#include <QTextCodec>
#include <QTextDocument>
#endif

/// What the toolkit releases do differently with texts and values.
namespace Toolkit {

inline QStringList splitSkippingEmpty(const QString &text, QChar separator)
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 14, 0)
    return text.split(separator, Qt::SkipEmptyParts);
#else
    return text.split(separator, QString::SkipEmptyParts);
#endif
}

/// The text as rich text that shows it literally.
inline QString escaped(const QString &text)
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
    return text.toHtmlEscaped();
#else
    return Qt::escape(text);
#endif
}

/// The text in characters of four bytes. The oldest release counts a pair as two of them and puts a zero at the end.
inline std::wstring wideText(const QString &text)
{
    std::wstring wide = text.toStdWString();
#if QT_VERSION < QT_VERSION_CHECK(5, 0, 0)
    std::size_t pairs = 0;
    for (int i = 1; i < text.size(); ++i) {
        pairs += text.at(i - 1).isHighSurrogate() && text.at(i).isLowSurrogate() ? 1 : 0;
    }
    wide.resize(wide.size() - pairs);
#endif
    return wide;
}

/// The text of characters of four bytes. Every release's own conversion takes many times as long. A byte order mark at
/// the start is none of the text.
inline QString fromWideText(const wchar_t *wide, std::size_t length)
{
    const wchar_t *const end = wide + length;
    wide += length > 0 && *wide == 0xFEFF ? 1 : 0;
    QString text;
    text.reserve(static_cast<int>(end - wide));
    for (; wide != end; ++wide) {
        const uint code = static_cast<uint>(*wide);
        if (code > 0x10FFFF) {
            text += QChar(QChar::ReplacementCharacter);
        } else if (code > 0xFFFF) {
            text += QChar(QChar::highSurrogate(code));
            text += QChar(QChar::lowSurrogate(code));
        } else {
            text += QChar(static_cast<ushort>(code));
        }
    }
    return text;
}

/// Which of the QMetaType the value is.
inline int typeOf(const QVariant &value)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    return value.typeId();
#else
    return value.userType();
#endif
}

/// A document as the toolkit's reader takes it, and the encoding that its declaration has to name then. The UTF-8 of
/// the oldest release has no non-characters.
#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
const char *const XmlEncoding = "UTF-8";
inline const QString &encodedXml(const QString &xml)
{
    return xml;
}
#else
const char *const XmlEncoding = "UTF-16LE";
inline QByteArray encodedXml(const QString &xml)
{
    return QTextCodec::codecForName(XmlEncoding)->fromUnicode(xml);
}
#endif

/// Bounds what one entity may unfold to, in characters. False where the release knows no bound.
inline bool boundEntities(QXmlStreamReader &reader, int characters)
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 15, 0)
    reader.setEntityExpansionLimit(characters);
    return true;
#else
    Q_UNUSED(reader);
    Q_UNUSED(characters);
    return false;
#endif
}

/// Makes source texts and plain byte strings UTF-8 in the whole process. From Qt 5 on that is a fact of the
/// toolkit and there is nothing to set.
inline void useUtf8Texts()
{
#if QT_VERSION < QT_VERSION_CHECK(5, 0, 0)
    QTextCodec *utf8 = QTextCodec::codecForName("utf-8");
    QTextCodec::setCodecForTr(utf8);
    QTextCodec::setCodecForCStrings(utf8);
#endif
}

} // namespace Toolkit
