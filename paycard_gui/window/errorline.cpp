// SPDX-License-Identifier: LGPL-2.1-or-later
#include "window/errorline.h"

#include <QEvent>
#include <QLabel>
#include <QPainter>

namespace {

const char *const Name = "errorBackground";

/// Paints before the label does.
class ErrorBackground : public QObject
{
public:
    explicit ErrorBackground(QLabel *label) : QObject(label)
    {
        setObjectName(QString::fromLatin1(Name));
        label->installEventFilter(this);
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint) {
            QLabel *label = static_cast<QLabel *>(watched);
            const QPalette around = label->window()->palette();
            const bool isDark =
                around.color(QPalette::Window).lightness() < around.color(QPalette::WindowText).lightness();
            if (isDark && !label->text().isEmpty()) {
                QPainter(label).fillRect(label->rect(), Qt::black);
            }
        }
        return false;
    }
};

} // namespace

void keepReadable(QLabel &errorLine)
{
    if (!errorLine.findChild<QObject *>(QString::fromLatin1(Name))) {
        new ErrorBackground(&errorLine);
    }
}
