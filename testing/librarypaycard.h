// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef LIBRARYPAYCARD_H
#define LIBRARYPAYCARD_H

#include "common/ipaycard.h"

#include <QLibrary>
#include <QMap>
#include <QString>
#include <QStringList>

class QWidget;

/// The graphical library as a host has it: loaded at run time, its functions looked up by name. It stays
/// loaded to the end of the process, as the windows' code must.
class LibraryPaycard
{
public:
    /// Names of the entry points.
    static QStringList functions();

    /// The library that load() takes: the one that the environment variable PAYCARD_GUI names, else the one
    /// beside this program, else this one: a path, or a name for which the system's loader knows the place.
    static QString defaultPath(const QString &otherwise = QStringLiteral("libpaycard_gui.so.9"));

    /// False, with the reason, when there is no such library or one of its functions is missing.
    bool load(const QString &path, QString *reason);

    /// Runs an entry point; -1 for an unknown one or while no library is loaded.
    int call(const QString &function, NOX::PayCard::IPayCard *driver, QWidget *parent) const;

    /// The result of an entry point in words.
    static QString inWords(const QString &function, int result);

private:
    typedef int (*EntryPoint)(NOX::PayCard::IPayCard *driver, QWidget *parent);

    QLibrary library;
    QMap<QString, EntryPoint> entryPoints;
};

#endif
