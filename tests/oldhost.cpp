// SPDX-License-Identifier: LGPL-2.1-or-later
#include <cstdio>
#include <dlfcn.h>

class QCoreApplication
{
public:
    static int exec();
};

/// oldhost LIBRARY: has the library perform a call beside a toolkit of the oldest release, and prints its result.
int main(int /*count*/, char **arguments)
{
    QCoreApplication::exec();
    void *library = dlopen(arguments[1], RTLD_NOW);
    void *function = library ? dlsym(library, "ConfirmPayment") : nullptr;
    if (!function) {
        std::puts(dlerror());
        return 1;
    }
    int driver = 0; // never asked
    std::printf("%d\n", reinterpret_cast<int (*)(void *, void *)>(function)(&driver, nullptr));
    return 0;
}
