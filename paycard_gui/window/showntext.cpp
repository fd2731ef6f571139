// SPDX-License-Identifier: LGPL-2.1-or-later
#include "window/showntext.h"

#include "toolkit/texts.h"
#include "toolkit/windows.h"

#include <QComboBox>
#include <QLabel>

namespace {

const int MaxLength = 500;
const int MaxLines = 12;
const int MaxToolTipLength = 10000;

const QChar Ellipsis(0x2026);

/// The first characters and an ellipsis, where there are more.
QString beginning(const QString &text, int length)
{
    if (text.size() <= length) {
        return text;
    }
    const bool splitsPair = length > 0 && text.at(length - 1).isHighSurrogate();
    return text.left(splitsPair ? length - 1 : length) + Ellipsis;
}

} // namespace

QString ShownText::cut(const QString &text)
{
    QString shown = beginning(text, MaxLength);
    int lines = 1;
    for (int i = 0; i < shown.size(); ++i) {
        if (shown.at(i) == QLatin1Char('\n') && ++lines > MaxLines) {
            return beginning(shown, i);
        }
    }
    return shown;
}

QString ShownText::toolTip(const QString &text, const QString &shown)
{
    if (text == shown) {
        return QString();
    }
    return QLatin1String("<span>") + Toolkit::escaped(beginning(text, MaxToolTipLength)) + QLatin1String("</span>");
}

void ShownText::show(QLabel *label, const QString &text)
{
    const QString shown = cut(text);
    label->setText(shown);
    label->setToolTip(toolTip(text, shown));
    label->setMinimumWidth(0);
    if (label->minimumSizeHint().width() > Toolkit::availableGeometry(*label).width() * 2 / 3) {
        label->setWordWrap(true);
        label->setMinimumWidth(1);
    }
}

void ShownText::cutItems(QComboBox *combo)
{
    for (int i = 0; i < combo->count(); ++i) {
        const QString text = combo->itemText(i);
        const QString shown = cut(text);
        if (shown != text) {
            combo->setItemText(i, shown);
            combo->setItemData(i, toolTip(text, shown), Qt::ToolTipRole);
        }
    }
}
