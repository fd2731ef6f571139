// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef GALLERY_H
#define GALLERY_H

#include <QString>

class LibraryPaycard;
struct Operation;

/// Draws the windows of the library and of this program to PNG files in the directory `path`, which is
/// created. Prints the name of each file; a window that does not come is named on the error output. True when
/// all came.
bool drawGallery(const LibraryPaycard &library, const Operation &operation, const QString &path);

#endif
