// SPDX-License-Identifier: LGPL-2.1-or-later
#include "toolkit/platforms.h"

#include <QByteArray>
#include <QFile>
#include <QFileInfo>
#include <QLibrary>
#include <QList>

#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
#include <QDir>
#include <QJsonArray>
#include <QJsonObject>
#include <QPluginLoader>
#endif

#include <cstring>
#include <dlfcn.h>
#include <link.h>

namespace {

/// A function of a library that the platform's own plugin needs, too, so that this one need not depend on it. Null when
/// there is none.
template <class Function>
Function *function(const char *library, const char *name)
{
    return reinterpret_cast<Function *>(QLibrary::resolve(QString::fromLatin1(library), name));
}

bool canConnectToX()
{
    const char *const library = "libxcb.so.1";
    const auto connect = function<void *(const char *, int *)>(library, "xcb_connect");
    const auto hasError = function<int(void *)>(library, "xcb_connection_has_error");
    const auto disconnect = function<void(void *)>(library, "xcb_disconnect");
    if (!connect || !hasError || !disconnect) {
        return false;
    }
    // Never null, and to be disconnected after an error, too.
    void *connection = connect(nullptr, nullptr);
    const bool connected = hasError(connection) == 0;
    disconnect(connection);
    return connected;
}

bool canConnectToWayland()
{
    const char *const library = "libwayland-client.so.0";
    const auto connect = function<void *(const char *)>(library, "wl_display_connect");
    const auto disconnect = function<void(void *)>(library, "wl_display_disconnect");
    void *connection = connect && disconnect ? connect(nullptr) : nullptr;
    if (connection) {
        disconnect(connection);
    }
    return connection != nullptr;
}

/// The platforms that an application object would try, each with its parameters behind a colon.
QList<QByteArray> platformsToTry()
{
    QByteArray platforms = "xcb";
#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
    if (!qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        platforms = qgetenv("QT_QPA_PLATFORM");
    } else if (qEnvironmentVariableIsSet("WAYLAND_DISPLAY") || qgetenv("XDG_SESSION_TYPE") == "wayland") {
        platforms = "wayland;xcb";
    }
#endif
    return platforms.split(';');
}

/// False when the toolkit has no plugin for this platform, or one that cannot be loaded.
bool hasPlatform(const QString &platform)
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
    // There is no application object yet whose directory the toolkit would add.
    const QString own = QFileInfo(QFile::symLinkTarget(QLatin1String("/proc/self/exe"))).path();
    QStringList directories = {QFile::decodeName(qgetenv("QT_QPA_PLATFORM_PLUGIN_PATH")),
                               own + QLatin1String("/platforms")};
    const QStringList roots = QCoreApplication::libraryPaths() + QStringList(own + QLatin1String("/plugins"));
    for (const QString &root : roots) {
        directories += root + QLatin1String("/platforms");
    }
    for (const QString &directory : directories) {
        const QFileInfoList files = directory.isEmpty() ? QFileInfoList() : QDir(directory).entryInfoList(QDir::Files);
        for (const QFileInfo &file : files) {
            QPluginLoader plugin(file.filePath());
            const QJsonObject data = plugin.metaData().value(QLatin1String("MetaData")).toObject();
            if (data.value(QLatin1String("Keys")).toArray().contains(platform) && plugin.load()) {
                return true;
            }
        }
    }
    // A configuration beside the program may name other places.
    return QFile::exists(own + QLatin1String("/qt.conf"));
#else
    Q_UNUSED(platform);
    return true;
#endif
}

/// True for the core library of another major release.
bool isOtherToolkit(const char *file)
{
    const char *const names[] = {"libQtCore.so.4", "libQt5Core.so.5", "libQt6Core.so.6"};
    const int own = (QT_VERSION >> 16) - 4;
    for (int i = 0; i < 3; ++i) {
        if (i != own && file && std::strstr(file, names[i])) {
            return true;
        }
    }
    return false;
}

bool isUsable(const QByteArray &platform)
{
    if (!hasPlatform(QString::fromLatin1(platform.constData()))) {
        return false;
    }
    if (platform == "xcb") {
        return canConnectToX();
    }
    return !platform.startsWith("wayland") || canConnectToWayland();
}

} // namespace

bool Toolkit::isOtherToolkitLoaded()
{
    return dl_iterate_phdr([](dl_phdr_info *object, std::size_t /*size*/,
                              void * /*unused*/) { return isOtherToolkit(object->dlpi_name) ? 1 : 0; },
                           nullptr) != 0;
}

bool Toolkit::isReplaced()
{
    Dl_info function;
    return dladdr(reinterpret_cast<void *>(&QCoreApplication::exec), &function) && isOtherToolkit(function.dli_fname);
}

bool Toolkit::hasDisplay()
{
    // The toolkit takes the first of them that it can use; a colon separates the plugin's own parameters.
    const QList<QByteArray> platforms = platformsToTry();
    for (const QByteArray &platform : platforms) {
        if (isUsable(platform.split(':').first())) {
            return true;
        }
    }
    return false;
}
