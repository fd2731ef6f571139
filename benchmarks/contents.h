// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef CONTENTS_H
#define CONTENTS_H

#include <QHash>
#include <QSize>
#include <QString>

#include <functional>

class QWidget;

/// What the widgets of a window show, to be shown by another window with the same form.
class Contents
{
public:
    Contents() = default;
    explicit Contents(const QWidget *window);

    void applyTo(QWidget *window) const;

private:
    QSize size;
    /// By the widgets' names.
    QHash<QString, std::function<void(QWidget *)>> fill;
};

#endif
