// SPDX-License-Identifier: LGPL-2.1-or-later
#include "common/nohelpbuttondialogs.h"
#include "register.h"

#include <QApplication>
#include <QInputMethod>
#include <QLabel>
#include <QLineEdit>
#include <QScreen>
#include <QTextEdit>
#include <QWindow>

#include <functional>

Q_DECLARE_METATYPE(std::function<void()>)

/// Every input of every window with the toolkit's own on-screen keyboard, on a small screen with a window manager.
class KeyboardTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void inputs_data();
    void inputs();
    void error();
};

namespace {

typedef std::function<void(QWidget *)> Check;

/// For what a slow machine takes its time for, in milliseconds.
const int Patience = 20000;

/// What the toolkit complains of while its keyboard loads.
QStringList complaints;

/// Plays the person whose windows open one from the other by these buttons, and has the check look at the last one. The
/// check may run an event loop, as all is done from timers.
class Technician
{
public:
    Technician(const QStringList &buttonsToPress, const Check &lastCheck) : buttons(buttonsToPress), check(lastCheck) {}

    void run(const std::function<void()> &function)
    {
        waiting.start();
        QTimer::singleShot(0, &context, [this] { goOn(); });
        function();
        QVERIFY2(!check, qPrintable("There was no window to look at, nor " + buttons.join(", ")));
    }

private:
    void goOn()
    {
        QWidget *window = QApplication::activeModalWidget();
        const bool isNew = window && window != opened && window->isActiveWindow();
        if (isNew && !buttons.isEmpty() && Cashier::tryPress(window, buttons.first())) {
            opened = window;
            buttons.removeFirst();
        } else if (isNew && buttons.isEmpty() && check) {
            Check last;
            std::swap(last, check);
            last(window);
        } else if (window && (!check || waiting.hasExpired(Patience))) {
            window->close();
        }
        QTimer::singleShot(20, &context, [this] { goOn(); });
    }

    QStringList buttons;
    Check check;
    QWidget *opened = nullptr;
    QElapsedTimer waiting;
    /// Ends the timers with this object.
    QObject context;
};

QRect onScreen(const QWidget *widget, const QRect &part)
{
    return QRect(widget->mapToGlobal(part.topLeft()), part.size());
}

QRect keyboard()
{
    return QGuiApplication::inputMethod()->isVisible() ? QGuiApplication::inputMethod()->keyboardRectangle().toRect()
                                                       : QRect();
}

/// What must not be covered.
QRect placeOf(const QWidget *window, QWidget *input)
{
    const QTextEdit *edit = qobject_cast<QTextEdit *>(input);
    QRect place = edit ? onScreen(edit->viewport(), edit->cursorRect()) : onScreen(input, input->rect());
    const QList<QLabel *> labels = window->findChildren<QLabel *>();
    for (const QLabel *label : labels) {
        if (label->buddy() == input) {
            place |= onScreen(label, label->rect());
        }
    }
    return place;
}

bool isInSight(const QWidget *window, QWidget *input)
{
    const QRect place = placeOf(window, input);
    return place.top() >= 0 && place.bottom() < keyboard().top();
}

/// The inputs that a keyboard types into.
QList<QWidget *> inputsOf(const QWidget *window)
{
    QList<QWidget *> inputs;
    const QList<QWidget *> widgets = window->findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        if (widget->isVisible() && widget->isEnabled() && !isPartOfInput(widget) &&
            (qobject_cast<QLineEdit *>(widget) || qobject_cast<QAbstractSpinBox *>(widget) ||
             qobject_cast<QTextEdit *>(widget))) {
            inputs += widget;
        }
    }
    return inputs;
}

/// Notices what the keyboard enters.
class Entries : public QObject
{
public:
    explicit Entries(QWidget *input) { input->installEventFilter(this); }
    bool eventFilter(QObject * /*input*/, QEvent *event) override
    {
        arrived = arrived || event->type() == QEvent::InputMethod || event->type() == QEvent::KeyPress;
        return false;
    }
    bool arrived = false;
};

/// Taps the middle of the second row, where every layout has a letter or a digit.
void tapKey()
{
    const QRect keys = keyboard();
    const QPoint key(keys.left() + keys.width() * 53 / 100, keys.top() + keys.height() * 41 / 100);
    const QWindowList windows = QGuiApplication::allWindows();
    for (QWindow *window : windows) {
        if (window->inherits("QQuickWindow") && window->isVisible()) {
            QTest::mouseClick(window, Qt::LeftButton, Qt::KeyboardModifiers(), window->mapFromGlobal(key));
        }
    }
}

void tap(QWidget *input)
{
    QTextEdit *edit = qobject_cast<QTextEdit *>(input);
    QLineEdit *line = input->findChild<QLineEdit *>();
    QTest::mouseClick(edit ? edit->viewport() : line ? line : input, Qt::LeftButton);
}

void tryInputs(QWidget *window)
{
    const QPoint home = window->geometry().topLeft();
    const QList<QWidget *> inputs = inputsOf(window);
    QVERIFY(!inputs.isEmpty());
    for (QWidget *input : inputs) {
        tap(input);
        QTRY_VERIFY2(!keyboard().isEmpty(), qPrintable(input->objectName()));
        QTRY_VERIFY2(isInSight(window, input), qPrintable(input->objectName()));
        // The keys slide in; a tap may come too early.
        const Entries entries(input);
        const auto isEntered = [&] { return entries.arrived || (tapKey(), entries.arrived); };
        QTRY_VERIFY2(isEntered(), qPrintable(input->objectName()));
    }
    QGuiApplication::inputMethod()->hide();
    QTRY_COMPARE(window->geometry().topLeft(), home);
}

std::function<void()> properties(int protocol, const QString &port = QString())
{
    return [=] {
        Register shop({{"Protocol", protocol},
                       {"Port", port},
                       {"PathAC", "/tmp"},
                       {"KeyLoadPwd", "secret"},
                       {"UseProxy", true},
                       {"Operators", 1},
                       {"Operator0", document({{"Name", "Связь"}})}});
        ShowProperties(&shop.driver, nullptr);
    };
}

} // namespace

// It is in a dozen packages, which do not all depend on each other.
void KeyboardTest::initTestCase()
{
    QLineEdit input;
    input.show();
    QVERIFY(QTest::qWaitForWindowActive(&input));
    const QtMessageHandler usual = qInstallMessageHandler(
        [](QtMsgType, const QMessageLogContext &, const QString &message) { complaints += message.simplified(); });
    tap(&input);
    const bool isThere = QTest::qWaitFor([] { return !keyboard().isEmpty(); }, Patience);
    qInstallMessageHandler(usual);
    QVERIFY2(isThere, qPrintable("The toolkit's keyboard does not load: " + complaints.join("; ")));
}

void KeyboardTest::inputs_data()
{
    QTest::addColumn<std::function<void()>>("function");
    QTest::addColumn<QStringList>("buttons");
    const auto row = [](const char *name, const std::function<void()> &function, const QStringList &buttons = {}) {
        QTest::newRow(name) << function << buttons;
    };
    const QStringList parameters = {"pbtnSettingsButton"};
    row("properties", properties(2));
    row("slip", properties(2), {"pbtnSlip"});
    row("operator", properties(2), {"pbtnOperators", "pbtnAdd"});
    row("CyberPlat", properties(2), parameters);
    row("ARCUS2", properties(6), parameters);
    row("LumiPay", properties(8), parameters);
    row("network", properties(11, "TCPIP"), parameters);
    row("device file", properties(11, "TTY"), parameters);
    row("USB", properties(12, "USB"), parameters);
    row("text", [] { NoHelpButtonInputDialog::getText(nullptr, "Код", "Код:", QLineEdit::Normal, "1"); });
    row("number", [] { NoHelpButtonInputDialog::getDouble(nullptr, "Сумма", "Сумма:", nullptr, 1.0, 0.0, 99.0); });
    row("file", [] { NoHelpButtonFileDialog::getSaveFileName(nullptr, "Файл", "/tmp"); });
}

void KeyboardTest::inputs()
{
    QFETCH(std::function<void()>, function);
    QFETCH(QStringList, buttons);
    Technician(buttons, tryInputs).run(function);
}

// The person learns why OK is off, though the error line is below the keyboard.
void KeyboardTest::error()
{
    Technician technician({"pbtnSettingsButton"}, [](QWidget *window) {
        QLineEdit *password = child<QLineEdit>(window, "leKeyLoadPwd");
        tap(password);
        QTRY_VERIFY(!keyboard().isEmpty());
        password->clear();
        const QString message = child<QLabel>(window, "lbError")->text();
        QVERIFY(!message.isEmpty());
        const auto isReadable = [&] {
            const QList<QLabel *> labels = window->findChildren<QLabel *>();
            return std::any_of(labels.begin(), labels.end(), [&](const QLabel *label) {
                const QRect place = onScreen(label, label->rect());
                return label->text() == message && place.bottom() < keyboard().top() &&
                       !place.intersects(placeOf(window, password));
            });
        };
        QTRY_VERIFY(isReadable());
        QVERIFY(isInSight(window, password));
        password->setText("secret");
        QTRY_VERIFY(!isReadable());
    });
    technician.run(properties(2));
}

int main(int argc, char **argv)
{
    qputenv("QT_IM_MODULE", "qtvirtualkeyboard");
    // Never destroyed: some releases of the keyboard do not outlive that.
    new QApplication(argc, argv);
    KeyboardTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_keyboard.moc"
