// SPDX-License-Identifier: LGPL-2.1-or-later
#include "window/errorline.h"

#include "toolkit/windows.h"
#include "window/showntext.h"
#include "window/windowfit.h"

#include <QPainter>

ErrorLine::ErrorLine(QWidget *parent) : QLabel(parent)
{
    QPalette colours;
    colours.setColor(QPalette::Active, QPalette::WindowText, Qt::red);
    colours.setColor(QPalette::Inactive, QPalette::WindowText, Qt::red);
    colours.setColor(QPalette::Disabled, QPalette::WindowText, QColor(120, 120, 120));
    setPalette(colours);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    setWordWrap(true);
}

void ErrorLine::setPrefix(const QString &text)
{
    beforeError = text;
}

void ErrorLine::setError(const QString &error)
{
    const QString before = text();
    setTextFormat(Qt::PlainText);
    ShownText::show(this, error.isEmpty() ? QString() : beforeError + error);
    if (window()->isVisible()) {
        fitForm(*window());
        if (text() != before && !text().isEmpty()) {
            Toolkit::announce(*this, text());
        }
    }
    emit changed();
}

void ErrorLine::paintEvent(QPaintEvent *event)
{
    const QPalette around = window()->palette();
    if (!text().isEmpty() &&
        around.color(QPalette::Window).lightness() < around.color(QPalette::WindowText).lightness()) {
        QPainter(this).fillRect(rect(), Qt::black);
    }
    QLabel::paintEvent(event);
}
