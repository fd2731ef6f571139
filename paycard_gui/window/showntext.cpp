// SPDX-License-Identifier: LGPL-2.1-or-later
#include "window/showntext.h"

#include "toolkit/texts.h"
#include "toolkit/windows.h"

#include <QComboBox>
#include <QLabel>

namespace {

const int MaxLength = 500;
const int MaxLines = 12;
/// Of rich text, with what stands beside the driver's own.
const int MaxRichLength = 600;
const int MaxToolTipLength = 10000;
/// Longest tag, so that the end of what looks like one is not sought through a whole text.
const int MaxUnitLength = 1000;

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

/// Length of what is read as one in rich text: a tag, an entity, or a character.
int unitLength(const QString &text, int start)
{
    const QChar first = text.at(start);
    if (first != QLatin1Char('<') && first != QLatin1Char('&')) {
        return first.isHighSurrogate() ? 2 : 1;
    }
    const auto end = text.mid(start, MaxUnitLength).indexOf(QLatin1Char(first == QLatin1Char('<') ? '>' : ';'));
    return end < 0 ? 1 : static_cast<int>(end) + 1;
}

/// Cuts each line of a rich text.
QString cutLines(const QString &text, int maxLength)
{
    QString shown;
    int length = 0; // of the line
    for (int start = 0; start < text.size();) {
        const QString unit = text.mid(start, unitLength(text, start));
        start += static_cast<int>(unit.size());
        const bool isTag = unit.startsWith(QLatin1Char('<')) && unit.size() > 1;
        if (isTag || length < maxLength) {
            shown += unit;
        } else if (length == maxLength) {
            shown += Ellipsis;
        }
        length = unit.startsWith(QLatin1String("<br")) ? 0 : isTag ? length : length + 1;
    }
    return shown;
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

QString ShownText::cutRich(const QString &text)
{
    return cutLines(text, MaxRichLength);
}

QString ShownText::toolTip(const QString &text, const QString &shown)
{
    if (text == shown) {
        return QString();
    }
    return QLatin1String("<span>") + Toolkit::escaped(beginning(text, MaxToolTipLength)) + QLatin1String("</span>");
}

QString ShownText::richToolTip(const QString &text, const QString &shown)
{
    return text == shown ? QString() : cutLines(text, MaxToolTipLength);
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
