// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef ERRORLINE_H
#define ERRORLINE_H

class QLabel;

/// Gives a window's error line a background of its own while the palette is dark: its red could not be read on that of
/// the window. To be called as often as one likes.
void keepReadable(QLabel &errorLine);

#endif
