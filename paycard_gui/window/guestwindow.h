// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

class QWidget;

/// What holds for every window of the driver family in the host's process from its construction on: it has no button
/// for context help, and the host does not quit because it closes, be it the last one that is open.
void makeGuest(QWidget &window);

/// Puts a window above others of the host, and its inputs above an on-screen keyboard; to be done when it has its size.
void showOnTop(QWidget &window);
