// SPDX-License-Identifier: LGPL-2.1-or-later
#include "common/nohelpbuttondialogs.h"
#include "register.h"
#include "testing/librarypaycard.h"
#include "toolkit/windows.h"
#include "windowtour.h"

#include <QAccessible>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QDoubleSpinBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyleFactory>
#include <QStyleOptionComboBox>
#include <QTextEdit>
#include <QToolButton>
#include <QTreeWidget>
#include <QtTest>

/// What holds for every window at every font size and on every screen: nothing is clipped, a finger and the Tab key
/// reach everything, a screen reader has a name for it, and the window fits the screen. Screen and scale factor are
/// those that the process is given.
class LookTest : public QObject
{
    Q_OBJECT

private slots:
    void windows_data();
    void windows();
    void toolkitDialogs();
};

namespace {

template <class... Classes>
bool isOneOf(const QWidget *widget)
{
    return (... || qobject_cast<const Classes *>(widget));
}

/// The widgets that the forms name: not the parts that the toolkit makes of them.
QList<QWidget *> formWidgets(const QWidget *window)
{
    QList<QWidget *> widgets;
    const QList<QWidget *> children = window->findChildren<QWidget *>();
    for (QWidget *widget : children) {
        const QWidget *parent = widget->parentWidget();
        const bool isContents =
            isOneOf<QAbstractScrollArea>(parent) || isOneOf<QAbstractScrollArea>(parent->parentWidget());
        if (widget->isVisible() && !isPartOfInput(widget) && !isContents) {
            widgets += widget;
        }
    }
    return widgets;
}

bool takesInput(const QWidget *widget)
{
    return isOneOf<QAbstractButton, QComboBox, QAbstractSpinBox, QLineEdit, QTextEdit, QListWidget, QTreeWidget>(
        widget);
}

template <class Interface>
auto nameOf(Interface *accessible, int) -> decltype(accessible->text(QAccessible::Name))
{
    return accessible->text(QAccessible::Name);
}

template <class Interface>
QString nameOf(Interface *accessible, long)
{
    return accessible->text(QAccessible::Name, 0); // of the widget itself, as Qt 4.8 asks for it
}

/// What the widget has to be within: the contents of a scroll area, or its window.
QWidget *frameOf(const QWidget *widget)
{
    QWidget *frame = widget->parentWidget();
    while (!frame->isWindow() &&
           !(frame->parentWidget() && isOneOf<QScrollArea>(frame->parentWidget()->parentWidget()))) {
        frame = frame->parentWidget();
    }
    return frame;
}

QRect placeOf(const QWidget *widget)
{
    return QRect(widget->mapTo(frameOf(widget), QPoint()), widget->size());
}

/// The lists of the driver's own texts are as wide as is reasonable, not as those texts.
bool showsDriverTexts(const QWidget *widget)
{
    return widget->objectName() == "cmbProtocol" || widget->objectName() == "cmbOperators";
}

bool isClipped(const QWidget *widget)
{
    if (!frameOf(widget)->rect().contains(placeOf(widget))) {
        return true;
    }
    if (const QComboBox *combo = qobject_cast<const QComboBox *>(widget)) {
        QStyleOptionComboBox option;
        option.initFrom(combo);
        const QRect text =
            combo->style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, combo);
        int widest = 0;
        for (int i = 0; i < combo->count(); ++i) {
            widest = std::max(widest, combo->fontMetrics().boundingRect(combo->itemText(i)).width());
        }
        return text.width() < widest && !showsDriverTexts(combo);
    }
    const QLineEdit *edit = qobject_cast<const QLineEdit *>(widget);
    if (edit && edit->width() < edit->fontMetrics().boundingRect(edit->displayText()).width()) {
        return edit->width() < edit->sizeHint().width();
    }
    const QLabel *label = qobject_cast<const QLabel *>(widget);
    if (label && label->wordWrap()) {
        // A scale factor may have taken a pixel from the window, here and below.
        return label->height() < label->heightForWidth(label->width()) - 1;
    }
    if (isOneOf<QLabel, QPushButton, QCheckBox, QAbstractSpinBox>(widget)) {
        return widget->width() < widget->sizeHint().width() || widget->height() < widget->sizeHint().height();
    }
    const QSize lacks = widget->minimumSizeHint() - widget->size();
    // What a plain container holds is looked at by itself.
    return widget->metaObject() != &QWidget::staticMetaObject && (lacks.width() > 1 || lacks.height() > 1);
}

/// Problems of one widget, for people.
QStringList problemsOf(QWidget *widget)
{
    QStringList problems;
    if (isClipped(widget)) {
        problems += "clipped";
    }
    if (takesInput(widget) && nameOf(QAccessible::queryAccessibleInterface(widget), 0).isEmpty()) {
        problems += "no accessible name";
    }
    const int pixels = widget->property("pixmap").value<QPixmap>().width();
    if (widget->objectName() == "label_pict" && pixels < widget->width() * Toolkit::pixelRatio(*widget)) {
        problems += "soft picture";
    }
    if (isOneOf<QPushButton, QToolButton, QComboBox>(widget) && widget->height() < 32) {
        problems += "too low for a finger";
    }
    return problems;
}

/// Problems of the way that the Tab key takes.
QStringList tabProblems(const QWidget *window)
{
    QStringList problems;
    QList<QWidget *> unreached;
    const QList<QWidget *> widgets = formWidgets(window);
    for (QWidget *widget : widgets) {
        if (takesInput(widget) && widget->isEnabled() && widget->focusPolicy() & Qt::TabFocus) {
            unreached += widget;
        }
    }
    const QWidget *last = nullptr;
    for (QWidget *next = window->nextInFocusChain(); next != window; next = next->nextInFocusChain()) {
        if (!unreached.removeOne(next)) {
            continue;
        }
        // Onwards is down, or to the right, be it at the top of the next column.
        if (last && frameOf(last) == frameOf(next) && placeOf(next).top() < placeOf(last).bottom() &&
            placeOf(next).left() < placeOf(last).right()) {
            problems += QString("Tab goes back from %1 to %2").arg(last->objectName(), next->objectName());
        }
        last = next;
    }
    const QList<QScrollArea *> areas = window->findChildren<QScrollArea *>();
    for (const QScrollArea *area : areas) {
        // Only a text that is longer than its area is scrolled with the keyboard.
        const bool isText = qobject_cast<QLabel *>(area->widget()) && area->verticalScrollBar()->maximum() > 0;
        if (area->isVisible() && area->focusPolicy() & Qt::TabFocus && !isText) {
            problems += "Tab goes to what only scrolls";
        }
    }
    for (const QWidget *widget : unreached) {
        problems += widget->objectName() + " is not reached by Tab";
    }
    return problems;
}

/// Of two colours, from 1 to 21. That of the brightness which people see: red and green and blue differ in theirs.
double contrast(const QColor &one, const QColor &other)
{
    const auto luminance = [](const QColor &color) {
        const auto linear = [](double part) { return std::pow(part, 2.2); };
        return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
    };
    const double luminances[] = {luminance(one) + 0.05, luminance(other) + 0.05};
    return std::max(luminances[0], luminances[1]) / std::min(luminances[0], luminances[1]);
}

/// The contrast of a widget's text and what it is drawn on: the colour that most of it has, more or less. A label,
/// which may have links, has nothing but its text, so that is what differs most; others draw theirs as the palette
/// says.
double textContrast(const QWidget *widget, const QImage &picture)
{
    QMap<QRgb, int> pixels;
    const QRect shown = widget->visibleRegion().boundingRect().translated(widget->mapTo(widget->window(), QPoint()));
    for (int x = shown.left(); x <= shown.right(); ++x) {
        for (int y = shown.top(); y <= shown.bottom(); ++y) {
            ++pixels[(picture.pixel(x, y) & 0xf8f8f8) | 0x040404];
        }
    }
    const QList<QRgb> colors = pixels.keys();
    const QRgb ground = *std::max_element(colors.begin(), colors.end(),
                                          [&](QRgb one, QRgb other) { return pixels[one] < pixels[other]; });
    const QAbstractScrollArea *area = qobject_cast<const QAbstractScrollArea *>(widget);
    const QWidget *drawn = area ? area->viewport() : widget;
    double most = isOneOf<QLabel>(widget) ? 1 : contrast(drawn->palette().color(drawn->foregroundRole()), ground);
    for (int i = 0; i < colors.size() && isOneOf<QLabel>(widget); ++i) {
        most = std::max(most, contrast(colors[i], ground));
    }
    return most;
}

/// Texts that cannot be read well, with their contrast.
QStringList contrastProblems(QWidget *window)
{
    QStringList problems;
    QImage picture(window->size(), QImage::Format_RGB32);
    window->render(&picture);
    const QList<QWidget *> widgets = window->findChildren<QWidget *>();
    for (const QWidget *widget : widgets) {
        const QVariant text = widget->property("text");
        const bool hasText = text.isValid() ? !text.toString().remove(QRegularExpression("<[^>]*>")).isEmpty()
                                            : isOneOf<QComboBox, QGroupBox, QAbstractItemView, QTextEdit>(widget);
        if (hasText && widget->isEnabled() && widget->visibleRegion().boundingRect() == widget->rect()) {
            const double found = textContrast(widget, picture);
            if (found < 4.5) {
                problems += QString("%1 %2: contrast %3")
                                .arg(widget->metaObject()->className(), widget->objectName())
                                .arg(found);
            }
        }
    }
    return problems;
}

/// A usual dark theme.
void useDarkPalette()
{
    const QColor ground(0x35, 0x35, 0x35);
    QPalette palette(Qt::white, ground, ground.lighter(), ground.darker(), ground.darker(120), Qt::white,
                     QColor(0x23, 0x23, 0x23));
    palette.setColor(QPalette::Highlight, QColor(0x2a, 0x82, 0xda));
    palette.setColor(QPalette::HighlightedText, Qt::black);
    palette.setColor(QPalette::Link, QColor(0x2a, 0x82, 0xda));
    QApplication::setStyle("Fusion");
    QApplication::setPalette(palette);
}

QStringList windowProblems(const QWidget *window)
{
    QStringList problems = tabProblems(window);
    const QList<QWidget *> widgets = formWidgets(window);
    for (QWidget *widget : widgets) {
        const QStringList own = problemsOf(widget);
        if (!own.isEmpty()) {
            problems +=
                QString("%1 %2: %3").arg(widget->metaObject()->className(), widget->objectName(), own.join(", "));
        }
    }
    // A scale factor may round a pixel up.
    const QSize screen = Toolkit::availableGeometry(*window).size() + QSize(1, 1);
    const QSize frame = window->frameGeometry().size();
    if (frame.boundedTo(screen) != frame) {
        problems += QString("too large: %1 x %2").arg(frame.width()).arg(frame.height());
    }
    const QList<QPushButton *> buttons = window->findChildren<QPushButton *>();
    if (std::none_of(buttons.begin(), buttons.end(), [](const QPushButton *button) { return button->isDefault(); })) {
        problems += "no default button";
    }
    return problems;
}

} // namespace

void LookTest::windows_data()
{
    QTest::addColumn<double>("points");
    QTest::addColumn<bool>("english");
    QTest::addColumn<bool>("dark");
    QTest::newRow("100 %") << 9.0 << false << false;
    QTest::newRow("150 %") << 13.5 << false << false;
    QTest::newRow("200 %") << 18.0 << false << false;
    QTest::newRow("English") << 9.0 << true << false;
    // The style that is made for them; the styles of Qt 4.8 mix their own colours.
    if (QStyleFactory::keys().contains("Fusion")) {
        QTest::newRow("dark") << 13.5 << false << true;
    }
}

void LookTest::windows()
{
    QFETCH(double, points);
    QFETCH(bool, english);
    QFETCH(bool, dark);
    QTranslator translator;
    if (english) {
        QVERIFY(translator.load("paycard_gui_en", PAYCARD_TRANSLATIONS));
        QCoreApplication::installTranslator(&translator);
    }
    QFont font = QApplication::font();
    font.setPointSizeF(points);
    QApplication::setFont(font);
    if (dark) {
        useDarkPalette();
    }

    LibraryPaycard library;
    QString reason;
    QVERIFY2(library.load(LibraryPaycard::defaultPath(PAYCARD_GUI_LIBRARY), &reason), qPrintable(reason));
    Operation operation;
    operation.sum = 500;
    operation.operatorIndex = 0;

    QStringList problems;
    int visited = 0;
    const QMap<QString, QString> missing = visitWindows(library, operation, [&](const QString &name, QWidget *window) {
        ++visited;
        QStringList found = windowProblems(window);
        // A window manager gives a window its size when it likes. The tour's own timer must not run meanwhile.
        for (int i = 0; i < 50 && !found.isEmpty(); ++i) {
            QTest::qSleep(10);
            QCoreApplication::processEvents(QEventLoop::X11ExcludeTimers);
            found = windowProblems(window);
        }
        found += dark ? contrastProblems(window) : QStringList();
        for (const QString &problem : found) {
            problems += name + ": " + problem;
        }
    });
    QVERIFY2(problems.isEmpty(), qPrintable('\n' + problems.join("\n")));
    QCOMPARE(missing, (QMap<QString, QString>()));
    QVERIFY(visited >= 27);
}

void LookTest::toolkitDialogs()
{
    QFont font = QApplication::font();
    font.setPointSizeF(13.5);
    QApplication::setFont(font);
    QSize lacks(0, 0);
    const auto compareToScreen = [&](QWidget *window) {
        lacks = lacks.expandedTo(window->frameGeometry().size() - Toolkit::availableGeometry(*window).size());
    };
    ModalScript files({compareToScreen, Cashier::close()});
    files.run([] { return NoHelpButtonFileDialog::getSaveFileName(nullptr, "Файл", "/tmp").size() > 0; });
    ModalScript texts({compareToScreen, Cashier::close()});
    const QString label = QString("Введите код доступа к терминалу. ").repeated(3);
    texts.run(
        [&] { return NoHelpButtonInputDialog::getText(nullptr, "Код", label, QLineEdit::Normal, "").size() > 0; });
    QVERIFY(files.completed() && texts.completed());
    QVERIFY2(lacks.width() <= 1 && lacks.height() <= 1,
             qPrintable(QString("%1, %2").arg(lacks.width()).arg(lacks.height())));
}

QTEST_MAIN(LookTest)
#include "tst_look.moc"
