// SPDX-License-Identifier: LGPL-2.1-or-later
#include "window/onscreenkeyboard.h"

#include "toolkit/keyboard.h"
#include "toolkit/windows.h"
#include "window/errorline.h"
#include "window/windowfit.h"

#include <QApplication>
#include <QLabel>
#include <QPointer>
#include <QScrollArea>
#include <QTextEdit>
#include <QTimer>

#include <algorithm>

namespace {

/// Space between the keyboard and what is kept above it, in pixels.
const int Margin = 4;
/// While the focus passes from one input to the next the keyboard may go and come, in milliseconds.
const int GoingHomeDelay = 200;

QRect onScreen(const QWidget &widget, const QRect &part)
{
    return QRect(widget.mapToGlobal(part.topLeft()), part.size());
}

/// The label that the widget is the buddy of, or null.
QLabel *labelOf(const QWidget &window, const QWidget *input)
{
    const QList<QLabel *> labels = window.findChildren<QLabel *>();
    const auto found =
        std::find_if(labels.begin(), labels.end(), [=](const QLabel *label) { return label->buddy() == input; });
    return found == labels.end() ? nullptr : *found;
}

/// What a person who types has to see: the input and its label; of a text of several lines the one with the cursor,
/// and the label where the height that there is has room for both.
QRect placeOfInput(const QWidget &window, const QWidget *input, int height)
{
    const QTextEdit *edit = qobject_cast<const QTextEdit *>(input);
    const QRect place = edit ? onScreen(*edit->viewport(), edit->cursorRect()) : onScreen(*input, input->rect());
    const QLabel *label = labelOf(window, input);
    const QRect both = label ? place.united(onScreen(*label, label->rect())) : place;
    return both.height() <= height ? both : place;
}

/// Scrolls what is around the input.
void scrollTo(QWidget *input)
{
    for (QWidget *around = input->parentWidget(); around; around = around->parentWidget()) {
        if (QScrollArea *area = qobject_cast<QScrollArea *>(around)) {
            area->ensureWidgetVisible(input);
        }
    }
}

/// Follows the keyboard and the focus for a window.
class KeyboardFollower : public QObject
{
    Q_OBJECT

public:
    explicit KeyboardFollower(QWidget *followed)
        : QObject(followed), window(followed), errorLine(followed->findChild<ErrorLine *>())
    {
        if (errorLine) {
            connect(errorLine, SIGNAL(changed()), SLOT(follow()));
        }
        goingHome.setSingleShot(true);
        goingHome.setInterval(GoingHomeDelay);
        connect(&goingHome, SIGNAL(timeout()), SLOT(goHome()));
        connect(qApp, SIGNAL(focusChanged(QWidget *, QWidget *)), SLOT(follow()));
        Toolkit::connectKeyboard(this, SLOT(follow()));
    }

private slots:
    void follow();
    void goHome();

private:
    void keepInSight(QWidget *input, const QRect &keyboard);
    void repeatError();
    void moveTo(const QPoint &place);

    QWidget *window;
    QPointer<ErrorLine> errorLine;
    QPointer<ErrorLine> repeated;
    /// Where the window was before it was moved: its inner part, as that of the frame is not known from the start.
    QPoint home;
    bool moved = false;
    QTimer goingHome;
};

void KeyboardFollower::follow()
{
    if (!window->isVisible()) {
        return;
    }
    const QRect keyboard = Toolkit::keyboardGeometry(*window);
    QWidget *input = QApplication::focusWidget();
    if (keyboard.isEmpty()) {
        if (moved || repeated) {
            goingHome.start();
        }
    } else if (input && input->window() == window) {
        goingHome.stop();
        Toolkit::serveModalWindow(keyboard, *window);
        keepInSight(input, keyboard);
    }
}

void KeyboardFollower::goHome()
{
    delete repeated;
    if (moved) {
        moved = false;
        moveTo(home);
        moveOntoScreen(*window);
    }
}

void KeyboardFollower::keepInSight(QWidget *input, const QRect &keyboard)
{
    scrollTo(input);
    home = moved ? home : window->geometry().topLeft();
    // All places are those of a window at home.
    const QPoint back = home - window->geometry().topLeft();
    const int bottom = keyboard.top() - Margin;
    const int top = Toolkit::availableGeometry(*window).top();
    const QRect place = placeOfInput(*window, input, bottom - top).translated(back);
    const QRect frame = window->frameGeometry().translated(back);
    // All of the window, where that is no reason to leave the screen.
    const int whole = std::min(frame.bottom() - bottom, frame.top() - top);
    int shift = std::max({place.bottom() - bottom, whole, 0});
    const bool hidesError = errorLine && !errorLine->text().isEmpty() &&
                            onScreen(*errorLine, errorLine->rect()).translated(back).bottom() - shift > keyboard.top();
    if (hidesError) {
        repeatError();
        shift = std::max(shift, place.bottom() - bottom + repeated->height());
    } else {
        delete repeated;
    }
    moved = shift > 0;
    moveTo(home - QPoint(0, shift));
    if (hidesError) {
        repeated->move(0, window->mapFromGlobal(keyboard.topLeft()).y() - repeated->height());
    }
}

void KeyboardFollower::moveTo(const QPoint &place)
{
    const QPoint way = place - window->geometry().topLeft();
    if (!way.isNull()) {
        window->move(window->pos() + way);
    }
}

void KeyboardFollower::repeatError()
{
    if (!repeated) {
        repeated = new ErrorLine(window);
        repeated->setAutoFillBackground(true);
        repeated->setFrameShape(QFrame::StyledPanel);
        repeated->setMargin(Margin);
        repeated->setTextFormat(errorLine->textFormat());
    }
    repeated->setText(errorLine->text());
    repeated->resize(window->width(), repeated->heightForWidth(window->width()));
    repeated->raise();
    repeated->show();
}

} // namespace

void keepAboveKeyboard(QWidget &window)
{
    // One that is opened again has it.
    const QObjectList &children = window.children();
    if (std::none_of(children.begin(), children.end(),
                     [](QObject *child) { return qobject_cast<KeyboardFollower *>(child); })) {
        new KeyboardFollower(&window);
    }
}

#include "onscreenkeyboard.moc"
