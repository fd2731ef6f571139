// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QApplication>
#include <QLibraryInfo>

/// What an application object for widgets needs, and what the toolkit finds where. Each release has its own idea of the
/// platforms to try.
namespace Toolkit {

/// Whether the application object has been created to show widgets. That of the oldest release may have been told
/// not to, though its class is the same.
inline bool showsWidgets()
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
    return qobject_cast<QApplication *>(QCoreApplication::instance());
#else
    return qobject_cast<QApplication *>(QCoreApplication::instance()) && QApplication::type() != QApplication::Tty;
#endif
}

/// The directory of the toolkit's own translation files.
inline QString translationsDirectory()
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    return QLibraryInfo::path(QLibraryInfo::TranslationsPath);
#else
    return QLibraryInfo::location(QLibraryInfo::TranslationsPath);
#endif
}

/// True when the process has loaded the core library of another major release of the toolkit: the host's own, which
/// this one could not share the process with.
bool isOtherToolkitLoaded();

/// True when the functions that are called here are those of another major release. The symbols of the oldest one have
/// no versions: where the host has loaded it before, they take the place of this one's, and nothing can be called.
bool isReplaced();

/// Whether an application object for widgets can be created: the toolkit ends the process that creates one
/// without a display to connect to, or for a platform that it does not know. Needs no application object,
/// starts no process, and leaves no connection behind.
bool hasDisplay();

} // namespace Toolkit
