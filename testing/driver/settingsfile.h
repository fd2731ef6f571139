// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QByteArray>
#include <QLockFile>
#include <QString>

/// The file that the settings are kept in: one host's at a time, and, because they hold passwords, nobody's but
/// its owner's unless it was there before with another mode.
///
/// The operations give the reason, for people, when they fail, otherwise an empty text.
class SettingsFile
{
public:
    explicit SettingsFile(const QString &path);

    const QString &path() const { return name; }
    /// True if that path leads to the same file.
    bool isAt(const QString &path) const;

    /// Keeps other hosts away until this object is gone. One that has died meanwhile holds nothing.
    QString lock();
    /// Neither waits nor takes what is too large. A file that does not exist yet leaves `content` as it is.
    QString read(QByteArray *content) const;
    /// Replaces the file as a whole, or leaves it as it was.
    QString write(const QByteArray &content) const;

private:
    QString name;
    /// The same for every path to the file.
    QString place;
    QLockFile lockFile;
};
