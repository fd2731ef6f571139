// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef QNOXSETTINGS_H
#define QNOXSETTINGS_H

#include "common/paycard_export.h"

#include <QMap>
#include <QString>
#include <QVariant>

/// A settings document: named values and a version, exchanged as XML text. Cheap to copy.
///
/// The text does not record types: every value read from it is text, whatever was set before, so readers
/// convert. A value may be a whole document of its own, as text.
class PAYCARD_EXPORT QNoxSettings
{
public:
    QNoxSettings();
    /// The document that `xml` holds; empty if the text is not well-formed.
    explicit QNoxSettings(const QString &xml);
    QNoxSettings(const QNoxSettings &) = default;
    QNoxSettings &operator=(const QNoxSettings &) = default;
    virtual ~QNoxSettings();

    /// The value under this name, or `def` if there is none.
    QVariant get(const QString &name, const QVariant &def = QVariant()) const;
    /// Enters the value under this name, in place of the earlier one.
    void set(const QString &name, const QVariant &value);
    /// Takes the value under this name out, if there is one.
    void remove(const QString &name);

    /// The document as text, entries ascending by name, stamped with this version (0: with the one last
    /// read). Characters that XML cannot carry are left out, so that the text can be read back.
    QString toXml(int documentVersion) const;

    /// Replaces all entries by those of the text; by none if it is not well-formed. The version changes only
    /// if a "settings" element is found below the outermost one, which never counts itself. A text is also unreadable
    /// with more than 2^26 characters, those included that values inside values repeat. Where it declares entities, one
    /// reference may unfold to 2^17 characters and there may be 512 ampersands and percent signs; releases of Qt before
    /// 5.15 cannot bound them and read no such text. Its XML declaration does not matter: it is decoded.
    void fromXml(const QString &xml);

private:
    QMap<QString, QVariant> entries;
    qint32 version;
};

#endif
