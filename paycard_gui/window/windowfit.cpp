// SPDX-License-Identifier: LGPL-2.1-or-later
#include "window/windowfit.h"

#include "toolkit/windows.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QLabel>
#include <QMessageBox>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyle>

#include <algorithm>
#include <cmath>

namespace {

/// Characters from which on a message box is wider than the toolkit makes it, so that it is not too high.
const int WideText = 400;

/// What the window manager puts around a window. It tells some time after the window is shown, and until then what the
/// toolkit makes of it may be nonsense.
QSize frameOf(const QWidget &window)
{
    const QSize frame = window.frameGeometry().size() - window.size();
    const int border = window.style()->pixelMetric(QStyle::PM_MdiSubWindowFrameWidth);
    const int title = window.style()->pixelMetric(QStyle::PM_TitleBarHeight);
    return frame.isEmpty() ? QSize(2 * border, 2 * border + title) : frame;
}

/// The largest that the window can be.
QSize roomFor(const QWidget &window)
{
    return Toolkit::availableGeometry(window).size() - frameOf(window);
}

/// The size that the layout asks for, which sees to wrapped texts once it is given a width.
QSize sizeFor(const QWidget &window, const QSize &size)
{
    const QLayout *layout = window.layout();
    const QSize needed = size.expandedTo(layout->totalMinimumSize());
    return layout->hasHeightForWidth() ? needed.expandedTo(QSize(0, layout->totalHeightForWidth(needed.width())))
                                       : needed;
}

/// Gives the window this size and its contents theirs, which a window that is not shown yet puts off.
void resizeAll(QWidget &window, const QSize &size)
{
    window.resize(size);
    window.layout()->invalidate();
    window.layout()->activate();
}

/// Grows until the area hides nothing. Its view has no size of its own before it is shown.
void growToShow(QWidget &window, const QScrollArea &area)
{
    const auto growBy = [&window](int width, int height) {
        const QSize size = window.size() + QSize(std::max(width, 0), std::max(height, 0));
        resizeAll(window, size.boundedTo(roomFor(window)).expandedTo(window.size()));
    };
    const QWidget *contents = area.widget();
    const QLayout *layout = contents->layout();
    const int width = contents->minimumSizeHint().width();
    growBy(width - area.width(), 0);
    const int height = layout && layout->hasHeightForWidth()
                           ? layout->totalHeightForWidth(std::max(width, area.width()))
                           : contents->minimumSizeHint().height();
    // Either bar takes from the room in the other direction.
    const QSize bars(area.verticalScrollBar()->sizeHint().width(), area.horizontalScrollBar()->sizeHint().height());
    growBy(0, height + (width > area.width() ? bars.height() : 0) - area.height());
    growBy(width + (height > area.height() ? bars.width() : 0) - area.width(), 0);
}

/// Has the area take the place of a widget.
void putInPlaceOf(QWidget *widget, QScrollArea *area)
{
    const QList<QLayout *> layouts = widget->parentWidget()->findChildren<QLayout *>();
    for (QLayout *layout : layouts) {
        const int index = layout->indexOf(widget);
        QBoxLayout *box = qobject_cast<QBoxLayout *>(layout);
        QGridLayout *grid = qobject_cast<QGridLayout *>(layout);
        if (index >= 0 && box) {
            box->insertWidget(index, area, 1);
        } else if (index >= 0 && grid) {
            int row = 0;
            int column = 0;
            int rows = 0;
            int columns = 0;
            grid->getItemPosition(index, &row, &column, &rows, &columns);
            grid->addWidget(area, row, column, rows, columns);
        }
    }
}

/// Shows a text as high as it needs to be, up to a limit from which on it scrolls, and not wider than another one.
class TextArea : public QScrollArea
{
public:
    TextArea(QLabel *text, QWidget *parent, const QSize &limit) : QScrollArea(parent), label(text)
    {
        setFrameShape(QFrame::NoFrame);
        setWidgetResizable(true);
        setFocusPolicy(Qt::NoFocus);
        setMaximumHeight(limit.height());
        QSizePolicy policy = label->sizePolicy();
        policy.setHeightForWidth(true);
        setSizePolicy(policy);
        label->setWordWrap(false);
        width = std::min(label->sizeHint().width() + Slack, limit.width());
        label->setWordWrap(true);
        putInPlaceOf(label, this);
        setWidget(label);
    }

    QSize sizeHint() const override { return QSize(width, heightForWidth(width)); }
    QSize minimumSizeHint() const override { return QSize(width, std::min(fontMetrics().height(), maximumHeight())); }
    int heightForWidth(int available) const override
    {
        // A message box ends it while it measures.
        label->setWordWrap(true);
        return std::min(std::max(label->heightForWidth(available - Slack), minimumSizeHint().height()),
                        maximumHeight());
    }

protected:
    bool event(QEvent *event) override
    {
        if (event->type() == QEvent::LayoutRequest) {
            updateGeometry(); // the text is another one
        }
        return QScrollArea::event(event);
    }

    /// The keyboard comes here only where there is something to scroll.
    void resizeEvent(QResizeEvent *event) override
    {
        QScrollArea::resizeEvent(event);
        setFocusPolicy(label->height() > viewport()->height() ? Qt::StrongFocus : Qt::NoFocus);
    }

private:
    /// With a scale factor that is no whole number, a window may get a pixel less than it asks for, and a text that is
    /// wrapped a line more.
    static const int Slack = 2;

    QLabel *label;
    int width;
};

/// Has the window scroll what its form calls the contents: all but the buttons and the error line, which scrolls by
/// itself when it says a lot.
void scrollContents(QWidget &window)
{
    QWidget *contents = window.findChild<QWidget *>(QString::fromLatin1("contents"));
    if (!contents || contents->parentWidget() != &window) {
        return;
    }
    QScrollArea *area = new QScrollArea(&window);
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setFocusPolicy(Qt::NoFocus); // it follows that of what is in it
    putInPlaceOf(contents, area);
    area->setWidget(contents);
    const QList<QLabel *> labels = window.findChildren<QLabel *>();
    for (QLabel *label : labels) {
        if (label->parentWidget() == &window && label->wordWrap()) {
            new TextArea(label, &window, QSize(0, roomFor(window).height() / 3));
        }
    }
    // A window that keeps to the size of its contents cannot any more.
    if (window.layout()->sizeConstraint() == QLayout::SetFixedSize) {
        window.layout()->setSizeConstraint(QLayout::SetDefaultConstraint);
        window.setMinimumSize(0, 0);
        window.setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    }
    window.layout()->activate();
}

} // namespace

void fitMessageBox(QMessageBox &box)
{
    const QSize room = roomFor(box);
    QGridLayout *layout = qobject_cast<QGridLayout *>(box.layout());
    QLabel *label = box.findChild<QLabel *>(QString::fromLatin1("qt_msgbox_label"));
    if (!layout || !label) {
        return;
    }
    // As the toolkit has it when the text does not fit into one line.
    label->setWordWrap(true);
    int width = std::min(room.width() / 2, 500);
    if (box.text().size() > WideText || layout->totalHeightForWidth(width) > room.height()) {
        width = room.width() * 3 / 4;
        layout->addItem(new QSpacerItem(width, 0), layout->rowCount(), 0, 1, layout->columnCount());
    }
    const int over = layout->totalHeightForWidth(width) - room.height();
    const double ratio = Toolkit::pixelRatio(box);
    if (over > 0 || ratio != std::floor(ratio)) {
        resizeAll(box, QSize(width, room.height()));
        const int highest = std::max(label->heightForWidth(label->width()) - over, box.fontMetrics().height());
        new TextArea(label, &box, QSize(label->width(), highest));
    }
}

void fitToolkitDialog(QDialog &dialog)
{
    const QSize room = roomFor(dialog);
    // An input dialog has neither a size nor a layout before it is asked for the size that it wants.
    const QSize hint = dialog.sizeHint();
    const QSize wanted = dialog.testAttribute(Qt::WA_Resized) ? dialog.size() : hint;
    QLayout *layout = dialog.layout();
    if (!layout) {
        return;
    }
    if (layout->totalMinimumSize().width() > room.width()) {
        const QList<QLabel *> labels = dialog.findChildren<QLabel *>();
        for (QLabel *label : labels) {
            label->setWordWrap(true);
        }
        layout->activate();
    }
    if (wanted.boundedTo(room) != wanted) {
        resizeAll(dialog, sizeFor(dialog, wanted.boundedTo(room)).boundedTo(room));
    }
}

void fitForm(QWidget &window)
{
    QLayout *layout = window.layout();
    if (!layout) {
        return;
    }
    // What the window's widgets have become reaches the layouts around them, the innermost first, when it is shown. It
    // is measured now.
    const QList<QWidget *> widgets = window.findChildren<QWidget *>();
    for (auto widget = widgets.end(); widget != widgets.begin();) {
        if (QLayout *nested = (*--widget)->layout()) {
            nested->activate();
        }
    }
    layout->activate();
    const QSize room = roomFor(window);
    // The title between the buttons of its bar. Its font, often a bold one, is a quarter wider at most.
    const int title = window.fontMetrics().boundingRect(window.windowTitle()).width() * 5 / 4 +
                      4 * window.style()->pixelMetric(QStyle::PM_TitleBarHeight);
    if (title > layout->totalMinimumSize().width()) {
        window.setMinimumWidth(std::min(title, room.width()));
    }
    const QSize needed = sizeFor(window, QSize());
    if (needed.boundedTo(room) != needed) {
        scrollContents(window);
    }
    resizeAll(window, sizeFor(window, window.size()).boundedTo(room));
    const QList<QScrollArea *> areas = window.findChildren<QScrollArea *>();
    for (const QScrollArea *area : areas) {
        if (area->window() == &window) {
            growToShow(window, *area);
        }
    }
    moveOntoScreen(window);
}

void moveOntoScreen(QWidget &window)
{
    const QRect screen = Toolkit::availableGeometry(window);
    const QRect frame = window.frameGeometry();
    const QPoint over(std::max(frame.right() - screen.right(), 0), std::max(frame.bottom() - screen.bottom(), 0));
    if (window.isVisible() && !over.isNull()) {
        window.move(std::max(frame.left() - over.x(), screen.left()), std::max(frame.top() - over.y(), screen.top()));
    }
}
