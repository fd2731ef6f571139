// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef DISPLAY_H
#define DISPLAY_H

/// Whether an application object for widgets can be created: the toolkit ends the process that creates one
/// without a display to connect to, or for a platform that it does not know. Needs no application object,
/// starts no process, and leaves no connection behind.
bool hasDisplay();

#endif
