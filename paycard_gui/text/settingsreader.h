// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "text/settingstext.h"

#include <QString>
#include <QXmlStreamReader>

#include <optional>
#include <vector>

/// Reads a settings document entry by entry, so that neither its depth nor its size can exhaust the stack.
class SettingsReader
{
public:
    explicit SettingsReader(const QString &xml);

    /// False when the text is no document, or one that is larger than QNoxSettings::fromXml() tells; nothing that was
    /// read counts then.
    bool read();

    /// The entries in document order: of two with the same name the later one counts.
    std::vector<SettingsText::Entry> entries;
    bool hasVersion = false;
    int version = 0;

    /// What counts under this name, empty where there is nothing.
    QString value(const QString &name) const;

private:
    typedef decltype(QString().size()) Size;
    struct OpenValue
    {
        std::size_t entry;
        Size start;
    };

    bool boundEntities();
    void startElement();
    void endElement();

    QString text;
    std::optional<QXmlStreamReader> reader;
    int depth = 0;
    std::vector<OpenValue> open;
    // All text since the outermost open value began; each open value holds it from its start on.
    QString openText;
    qint64 characters = 0;
};
