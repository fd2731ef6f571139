// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef SETTINGSREADER_H
#define SETTINGSREADER_H

#include <QString>
#include <QXmlStreamReader>

#include <vector>

/// The names in a settings document.
namespace SettingsXml {

inline const QString SettingsTag = QString::fromWCharArray(L"settings");
inline const QString ValueTag = QString::fromWCharArray(L"value");
inline const QString VersionAttribute = QString::fromWCharArray(L"version");
inline const QString NameAttribute = QString::fromWCharArray(L"name");

} // namespace SettingsXml

/// Reads a settings document entry by entry, so that neither its depth nor its size can exhaust the stack.
class SettingsReader
{
public:
    explicit SettingsReader(const QString &xml);

    /// False when the text is no document, or one whose values or entities unfold beyond the bound that
    /// QNoxSettings::fromXml() tells; nothing that was read counts then.
    bool read();

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
    typedef decltype(QString().size()) Size;
    struct OpenValue
    {
        std::size_t entry;
        Size start;
    };

    bool unfoldsWithinBound();
    void startElement();
    void endElement();

    const QString text;
    QXmlStreamReader reader;
    int depth = 0;
    std::vector<OpenValue> open;
    // All text since the outermost open value began; each open value holds it from its start on.
    QString openText;
    qint64 characters = 0;
};

#endif
