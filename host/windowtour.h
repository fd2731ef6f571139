// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef WINDOWTOUR_H
#define WINDOWTOUR_H

#include <QMap>
#include <QString>

#include <functional>

class LibraryPaycard;
class QWidget;
struct Operation;

/// Gets a window that is open, and the name of what it shows. Must not close it or run an event loop.
typedef std::function<void(const QString &name, QWidget *window)> WindowVisitor;

/// Brings up every window of the library in turn, in its ordinary state and in its error states, with sample
/// settings and this operation. Returns the windows that did not come, with the reasons.
QMap<QString, QString> visitWindows(const LibraryPaycard &library, const Operation &operation,
                                    const WindowVisitor &visit);

#endif
