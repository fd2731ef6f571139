// SPDX-License-Identifier: LGPL-2.1-or-later

extern "C" __attribute__((visibility("default"))) int benchmarkEmpty()
{
    return -1;
}
