// SPDX-License-Identifier: LGPL-2.1-or-later
#include "common/windowfit.h"

#include "common/qtcompat.h"

#include <QBoxLayout>
#include <QScrollArea>

#include <algorithm>

namespace {

/// Grows by what is missing, as far as the screen has room.
void growBy(QWidget &window, int width, int height)
{
    const QSize size = window.size() + QSize(std::max(width, 0), std::max(height, 0));
    window.resize(size.boundedTo(QtCompat::availableGeometry(window).size()).expandedTo(window.size()));
    window.layout()->activate();
}

/// Grows until the area hides nothing. Its view has no size of its own before it is shown.
void growToShow(QWidget &window, const QScrollArea &area)
{
    const QWidget *contents = area.widget();
    const int frame = 2 * area.frameWidth();
    growBy(window, contents->minimumSizeHint().width() + frame - area.width(), 0);
    const QLayout *layout = contents->layout();
    const int height = layout && layout->hasHeightForWidth() ? layout->totalHeightForWidth(area.width() - frame)
                                                             : contents->minimumSizeHint().height();
    growBy(window, 0, height + frame - area.height());
}

} // namespace

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
    layout->activate();
    const QList<QScrollArea *> areas = window.findChildren<QScrollArea *>();
    for (const QScrollArea *area : areas) {
        growToShow(window, *area);
    }
}

void makeScrollable(QWidget *contents)
{
    QWidget *frame = contents->parentWidget();
    QBoxLayout *layout = qobject_cast<QBoxLayout *>(frame->layout());
    QScrollArea *area = new QScrollArea(frame);
    area->setFrameShape(QFrame::NoFrame);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setWidgetResizable(true);
    layout->insertWidget(layout->indexOf(contents), area);
    area->setWidget(contents);
}
