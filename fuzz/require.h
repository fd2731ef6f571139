// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef REQUIRE_H
#define REQUIRE_H

#include <cstdio>
#include <cstdlib>

/// Ends the process, which the fuzzer takes for a finding, where a property does not hold.
#define REQUIRE(condition)                                                                                             \
    ((condition) ? static_cast<void>(0)                                                                                \
                 : (std::fprintf(stderr, "%s:%d: does not hold: %s\n", __FILE__, __LINE__, #condition), std::abort()))

#endif
