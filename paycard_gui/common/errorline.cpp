// SPDX-License-Identifier: LGPL-2.1-or-later
#include "common/errorline.h"

#include <QPainter>

void ErrorLine::paintEvent(QPaintEvent *event)
{
    const QPalette around = window()->palette();
    const bool isDark = around.color(QPalette::Window).lightness() < around.color(QPalette::WindowText).lightness();
    if (isDark && !text().isEmpty()) {
        QPainter(this).fillRect(rect(), Qt::black);
    }
    QLabel::paintEvent(event);
}
