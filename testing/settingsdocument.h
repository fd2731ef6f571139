// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef SETTINGSDOCUMENT_H
#define SETTINGSDOCUMENT_H

#include <QList>
#include <QString>

/// One value of a settings document.
struct SettingsEntry
{
    QString name;        ///< its key
    QString text;        ///< as it is stored
    bool secret = false; ///< a password, never to be shown
};

/// The driver's own view of a settings document: `<settings version="2"><value name="Key">text</value>...`.
/// Other elements are searched through. A text may be a whole document again.
class SettingsDocument
{
public:
    /// Reads the text. One that is malformed has no entries.
    explicit SettingsDocument(const QString &xml);

    /// False when the text was malformed.
    bool isValid() const { return error.isEmpty(); }
    /// Where a malformed text goes wrong, for people. Tells nothing of its content, which may be a password.
    const QString &errorPlace() const { return error; }

    /// In document order.
    const QList<SettingsEntry> &entries() const { return values; }
    /// Empty when there is none; the last one when there are several.
    QString value(const QString &name) const;
    /// Puts the value at the end, in the place of earlier ones of its name.
    void setValue(const QString &name, const QString &text);

    /// The text of the document.
    QString toXml() const;
    /// The document with masked passwords; only its length when it is malformed.
    QString toPeople() const { return toPeople(0); }

    /// A value as it may be shown: a document in it is treated as above.
    static QString shown(const SettingsEntry &entry) { return shown(entry, 0); }
    /// Whether the value of this name is a password.
    static bool isSecret(const QString &name);

private:
    QString toPeople(int depth) const;
    static QString shown(const SettingsEntry &entry, int depth);

    QList<SettingsEntry> values;
    QString version;
    QString error;
    decltype(QString().size()) length;
};

#endif
