// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QMap>
#include <QString>
#include <QVariant>

#include <vector>

/// The form in which settings documents are written: to the letter what the toolkit's DOM makes of them. That however
/// takes a time that grows with the square of what there is to escape in a value, and breaks pairs of surrogates in
/// its oldest release.
namespace SettingsText {

struct Entry
{
    QString name;
    QString value;
};

QString write(const QMap<QString, QVariant> &entries, int version);

/// Reads this form, which nearly every document has, in a fraction of the time that the toolkit's reader takes, and
/// gives the same. False for any other text, be it well-formed or not; nothing that was read counts then.
bool read(const QString &xml, std::vector<Entry> &entries);

} // namespace SettingsText
