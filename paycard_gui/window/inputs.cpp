// SPDX-License-Identifier: LGPL-2.1-or-later
#include "window/inputs.h"

#include "text/drivertext.h"

#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QSpinBox>
#include <QValidator>
#include <QVariant>

namespace {

/// Longer than any number, in characters.
const int MaxNumberLength = 400;

bool isSeparator(QChar c)
{
    return c == QLatin1Char('.') || c == QLatin1Char(',');
}

/// True for the toolkit's own inputs of decimal numbers. Others, such as those of dates or of hexadecimal numbers, and
/// the family's own see to what they take themselves.
bool takesPlainNumber(const QAbstractSpinBox &spin)
{
    const QByteArray name = spin.metaObject()->className();
    const QVariant base = spin.property("displayIntegerBase");
    return (name == "QSpinBox" || name == "QDoubleSpinBox" || name.startsWith("QInputDialog")) &&
           (!base.isValid() || base.toInt() == 10) && spin.property("prefix").toString().isEmpty() &&
           spin.specialValueText().isEmpty();
}

/// Decimals that the input takes.
int decimalsOf(const QAbstractSpinBox &spin)
{
    const QDoubleSpinBox *number = qobject_cast<const QDoubleSpinBox *>(&spin);
    return number ? number->decimals() : 0;
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
        const int decimals = decimalsOf(*spin);
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

} // namespace

void prepareInputs(QWidget &window)
{
    const QList<QLineEdit *> edits = window.findChildren<QLineEdit *>();
    for (QLineEdit *edit : edits) {
        QAbstractSpinBox *spin = qobject_cast<QAbstractSpinBox *>(edit->parentWidget());
        if (spin) {
            if (takesPlainNumber(*spin)) {
                edit->setValidator(new NumberValidator(spin));
            }
        } else if (edit->inputMask().isEmpty() && !edit->validator()) {
            edit->setValidator(new SingleLineValidator(edit));
        }
    }
}

void liftLengthLimit(QLineEdit *edit)
{
    edit->setMaxLength(DriverText::MaxLength);
}
