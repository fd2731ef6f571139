// SPDX-License-Identifier: LGPL-2.1-or-later
#include "common/qt_utils.h"

#include "common/qt_utils.h"
#include "toolkit/platforms.h"

#include <QApplication>
#include <QFile>

#include <clocale>
#include <cstdlib>
#include <dlfcn.h>
#include <mutex>
#include <string>

namespace {

/// Set when the process ends after its application object has gone: the host's static objects may still call.
bool ending = false;

void noteEnd()
{
    // Registered last, so that it comes before the destructors of all static objects.
    std::atexit([] { ending = true; });
}

const struct ApplicationObserver
{
    ApplicationObserver() { qAddPostRoutine(noteEnd); }
    ~ApplicationObserver() { qRemovePostRoutine(noteEnd); }
} observer;

/// Keeps this library loaded to the end of the process.
void pinLibrary()
{
    Dl_info library;
    if (dladdr(reinterpret_cast<void *>(&pinLibrary), &library)) {
        dlopen(library.dli_fname, RTLD_NOW | RTLD_NOLOAD | RTLD_NODELETE);
    }
}

/// Never destroyed: later calls find it, and it must outlive whatever the host still shows.
void createApplication()
{
    // The object keeps a reference to this number, so that the library must not be unloaded any more.
    static int argumentCount = 0;
    pinLibrary();
    // The toolkit sets the locale of the process, which is the host's: its numbers must stay as they are.
    const std::string locale = std::setlocale(LC_ALL, nullptr);
    new QApplication(argumentCount, nullptr);
    // On its first use the toolkit takes the encoding of file names from the locale.
    static_cast<void>(QFile::encodeName(QString(QLatin1Char(' '))));
    std::setlocale(LC_ALL, locale.c_str());
}

} // namespace

QCoreApplication *app()
{
    static const bool isReplaced = Toolkit::isReplaced();
    if (isReplaced) {
        return nullptr;
    }
    // Of two threads that call at once the second must not find the object half made.
    static std::mutex mutex;
    const std::lock_guard<std::mutex> lock(mutex);
    if (!QCoreApplication::instance() && !ending && !Toolkit::isOtherToolkitLoaded() && Toolkit::hasDisplay()) {
        createApplication();
    }
    return QCoreApplication::instance();
}
