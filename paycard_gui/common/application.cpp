// SPDX-License-Identifier: LGPL-2.1-or-later
#include "common/display.h"
#include "common/qt_utils.h"
#include "common/qtcompat.h"

#include <QApplication>
#include <QFile>

#include <clocale>
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <link.h>
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
    ApplicationObserver(const ApplicationObserver &) = delete;
    ApplicationObserver &operator=(const ApplicationObserver &) = delete;
    ~ApplicationObserver() { qRemovePostRoutine(noteEnd); }
} observer;

/// Non-zero when the loaded object is the core library of another major release of the toolkit: the host's own,
/// which this one could not share the process with.
int isOtherToolkit(dl_phdr_info *object, std::size_t /*size*/, void * /*unused*/)
{
    const char *const names[] = {"libQtCore.so.4", "libQt5Core.so.5", "libQt6Core.so.6"};
    const int own = (QT_VERSION >> 16) - 4;
    for (int i = 0; i < 3; ++i) {
        if (i != own && object->dlpi_name && std::strstr(object->dlpi_name, names[i])) {
            return 1;
        }
    }
    return 0;
}

bool canCreateApplication()
{
    return !ending && dl_iterate_phdr(isOtherToolkit, nullptr) == 0 && hasDisplay();
}

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
    // Of two threads that call at once the second must not find the object half made.
    static std::mutex mutex;
    const std::lock_guard<std::mutex> lock(mutex);
    if (!QCoreApplication::instance() && canCreateApplication()) {
        createApplication();
    }
    return QCoreApplication::instance();
}
