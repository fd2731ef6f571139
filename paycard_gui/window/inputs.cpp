// SPDX-License-Identifier: LGPL-2.1-or-later
#include "window/inputs.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFileDialog>
#include <QInputDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QToolButton>
#include <QValidator>
#include <QVariant>

#include <algorithm>
#include <limits>
#include <typeinfo>

namespace {

/// Longer than any number, in characters.
const int MaxNumberLength = 400;

bool isSeparator(QChar c)
{
    return c == QLatin1Char('.') || c == QLatin1Char(',');
}

/// True for the toolkit's own inputs of decimal numbers; every other, be it derived from one of them, sees to what it
/// takes itself.
bool takesPlainNumber(const QAbstractSpinBox &spin)
{
    const bool isPlain = typeid(spin) == typeid(QSpinBox) || typeid(spin) == typeid(QDoubleSpinBox) ||
                         qobject_cast<QInputDialog *>(spin.parentWidget());
    const QVariant base = spin.property("displayIntegerBase");
    return isPlain && (!base.isValid() || base.toInt() == 10) && !spin.property("showGroupSeparator").toBool() &&
           spin.property("prefix").toString().isEmpty() && spin.specialValueText().isEmpty();
}

/// Removes the blanks around the text and those between its thousands. False when a blank is anywhere else.
bool removeBlanks(QString &text, int &position)
{
    const QString trimmed = text.trimmed();
    position = qBound(0, position - static_cast<int>(text.indexOf(trimmed)), static_cast<int>(trimmed.size()));
    text = trimmed;
    int digits = 0; // between two blanks, or a blank and the separator
    bool grouped = false;
    for (int i = static_cast<int>(text.size()) - 1; i >= 0; --i) {
        if (text.at(i).isSpace()) {
            if (digits != 3) {
                return false;
            }
            grouped = true;
            digits = 0;
            text.remove(i, 1);
            position -= i < position ? 1 : 0;
        } else {
            digits = text.at(i).isDigit() ? digits + 1 : 0;
        }
    }
    return !grouped || digits <= 3;
}

/// Reads what is typed or pasted into a number input, and makes it what the input itself understands.
class NumberValidator : public QValidator
{
public:
    explicit NumberValidator(QAbstractSpinBox *input) : QValidator(input), spin(input) {}

    State validate(QString &input, int &position) const override
    {
        const QString suffix = spin->property("suffix").toString();
        const bool hasSuffix = !suffix.isEmpty() && input.endsWith(suffix);
        QString text = hasSuffix ? input.left(input.size() - suffix.size()) : input;
        const bool atEnd = position > text.size();
        if (text.size() > MaxNumberLength || !removeBlanks(text, position)) {
            return Invalid;
        }
        int separator = -1;
        for (int i = 0; i < text.size(); ++i) {
            const QChar c = text.at(i);
            if (isSeparator(c) && separator >= 0) {
                // Typed in front of the one that is there, it takes its place.
                if (i != separator + 1 || i != position) {
                    return Invalid;
                }
                text.remove(i--, 1);
            } else if (isSeparator(c)) {
                separator = i;
            } else if (!c.isDigit() && (i > 0 || (c != QLatin1Char('-') && c != QLatin1Char('+')))) {
                return Invalid;
            }
        }
        const QDoubleSpinBox *number = qobject_cast<const QDoubleSpinBox *>(spin);
        const int decimals = number ? number->decimals() : 0;
        if (separator >= 0 && text.size() - separator - 1 > decimals) {
            return Invalid;
        }
        if (separator >= 0 && decimals > 0) {
            text.replace(separator, 1, QString(spin->locale().decimalPoint()));
        }
        input = hasSuffix ? text + suffix : text;
        position = atEnd ? static_cast<int>(input.size()) : position;
        if (separator < 0 || decimals > 0) {
            return spin->validate(input, position);
        }
        // A whole number whose decimals are still to come: there are none to take.
        int end = separator;
        QString whole = text.left(separator);
        return spin->validate(whole, end) == Invalid ? Invalid : Intermediate;
    }

private:
    QAbstractSpinBox *spin;
};

/// The text in one line.
QString singleLine(QString text)
{
    text.replace(QLatin1String("\r\n"), QLatin1String(" "));
    for (QChar *c = text.data(); c != text.data() + text.size(); ++c) {
        const ushort code = c->unicode();
        if ((code >= '\t' && code <= '\r') || code == QChar::LineSeparator || code == QChar::ParagraphSeparator) {
            *c = QLatin1Char(' ');
        }
    }
    return text;
}

class SingleLineValidator : public QValidator
{
public:
    using QValidator::QValidator;

    State validate(QString &text, int &position) const override
    {
        const QString head = singleLine(text.left(position));
        text = head + singleLine(text.mid(position));
        position = static_cast<int>(head.size());
        return Acceptable;
    }
};

void validate(QLineEdit *edit)
{
    QAbstractSpinBox *spin = qobject_cast<QAbstractSpinBox *>(edit->parentWidget());
    if (spin && takesPlainNumber(*spin)) {
        edit->setValidator(new NumberValidator(spin));
    } else if (!spin && edit->inputMask().isEmpty() && !edit->validator()) {
        edit->setValidator(new SingleLineValidator(edit));
    }
}

bool isTouched(const QWidget *widget)
{
    return qobject_cast<const QPushButton *>(widget) || qobject_cast<const QToolButton *>(widget) ||
           qobject_cast<const QComboBox *>(widget) || qobject_cast<const QLineEdit *>(widget) ||
           qobject_cast<const QAbstractSpinBox *>(widget);
}

} // namespace

void prepareInputs(QWidget &window)
{
    // The name of a file may have any character.
    const bool isFileDialog = qobject_cast<QFileDialog *>(&window);
    const QList<QWidget *> widgets = window.findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        QLineEdit *edit = qobject_cast<QLineEdit *>(widget);
        if (edit && !isFileDialog) {
            validate(edit);
        }
        if (isTouched(widget) && !isPartOfInput(*widget)) {
            // A minimum that is set replaces the one that a large font asks for.
            widget->setMinimumHeight(
                std::max({widget->minimumHeight(), widget->minimumSizeHint().height(), TouchHeight}));
        }
    }
}

bool isPartOfInput(const QWidget &widget)
{
    const QWidget *parent = widget.parentWidget();
    return qobject_cast<const QAbstractSpinBox *>(parent) || qobject_cast<const QComboBox *>(parent) ||
           qobject_cast<const QLineEdit *>(parent);
}

void liftLengthLimit(QLineEdit *edit)
{
    edit->setMaxLength(std::numeric_limits<int>::max());
}
