// SPDX-License-Identifier: LGPL-2.1-or-later
#include "common/windowfit.h"

#include <QLayout>
#include <QWidget>

void growToContents(QWidget &window)
{
    QLayout *layout = window.layout();
    if (!layout) {
        return;
    }
    layout->activate();
    QSize size = window.size().expandedTo(layout->totalMinimumSize());
    if (layout->hasHeightForWidth()) {
        size = size.expandedTo(QSize(0, layout->totalHeightForWidth(size.width())));
    }
    window.resize(size);
}
