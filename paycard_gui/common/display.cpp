// SPDX-License-Identifier: LGPL-2.1-or-later
#include "common/display.h"

#include "common/qtcompat.h"

#include <QByteArray>

#include <dlfcn.h>

namespace {

/// A library that the platform's own plugin needs, too, so that this one need not depend on it.
class ClientLibrary
{
public:
    explicit ClientLibrary(const char *name) : handle(dlopen(name, RTLD_NOW | RTLD_LOCAL)) {}
    ClientLibrary(const ClientLibrary &) = delete;
    ClientLibrary &operator=(const ClientLibrary &) = delete;
    ~ClientLibrary()
    {
        if (handle) {
            dlclose(handle);
        }
    }

    /// Null when there is no such function.
    template <class Function>
    Function *function(const char *name) const
    {
        return handle ? reinterpret_cast<Function *>(dlsym(handle, name)) : nullptr;
    }

private:
    void *handle;
};

bool canConnectToX()
{
    const ClientLibrary library("libxcb.so.1");
    const auto connect = library.function<void *(const char *, int *)>("xcb_connect");
    const auto hasError = library.function<int(void *)>("xcb_connection_has_error");
    const auto disconnect = library.function<void(void *)>("xcb_disconnect");
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
    const ClientLibrary library("libwayland-client.so.0");
    const auto connect = library.function<void *(const char *)>("wl_display_connect");
    const auto disconnect = library.function<void(void *)>("wl_display_disconnect");
    void *connection = connect && disconnect ? connect(nullptr) : nullptr;
    if (connection) {
        disconnect(connection);
    }
    return connection != nullptr;
}

bool isUsable(const QByteArray &platform)
{
    if (!QtCompat::hasPlatform(QString::fromLatin1(platform.constData()))) {
        return false;
    }
    if (platform == "xcb") {
        return canConnectToX();
    }
    return !platform.startsWith("wayland") || canConnectToWayland();
}

} // namespace

bool hasDisplay()
{
    // The toolkit takes the first of them that it can use; a colon separates the plugin's own parameters.
    const QList<QByteArray> platforms = QtCompat::platformsToTry();
    for (const QByteArray &platform : platforms) {
        if (isUsable(platform.split(':').first())) {
            return true;
        }
    }
    return false;
}
