// SPDX-License-Identifier: LGPL-2.1-or-later
//
// Prints how long loading and unloading takes, in nanoseconds: of the library and of an empty one.
//
// Usage: benchmark_loading LIBRARY EMPTY_LIBRARY SECONDS
#include "measure.h"

#include <cstdio>
#include <cstdlib>
#include <dlfcn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

[[noreturn]] void fail(const char *what)
{
    std::fprintf(stderr, "benchmark_loading: %s\n", what);
    std::exit(1);
}

/// In a process of its own: only the first time tells what a host waits for.
qint64 load(const char *path)
{
    int ends[2];
    if (pipe(ends) != 0) {
        fail("no pipe");
    }
    const pid_t child = fork();
    if (child < 0) {
        fail("no process");
    }
    if (child == 0) {
        const qint64 start = now();
        void *library = dlopen(path, RTLD_NOW | RTLD_LOCAL);
        if (!library) {
            fail(dlerror());
        }
        dlclose(library);
        const qint64 duration = now() - start;
        _exit(write(ends[1], &duration, sizeof duration) == sizeof duration ? 0 : 1);
    }
    close(ends[1]);
    qint64 duration = 0;
    const bool complete = read(ends[0], &duration, sizeof duration) == sizeof duration;
    close(ends[0]);
    waitpid(child, nullptr, 0);
    if (!complete) {
        fail("a sample failed");
    }
    return duration;
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 4) {
        fail("wrong arguments");
    }
    const Medians medians = interleave(
        std::atof(argv[3]), [=] { return load(argv[1]); }, [=] { return load(argv[2]); });
    std::printf("%lld %lld\n", static_cast<long long>(medians.library), static_cast<long long>(medians.floor));
    return 0;
}
