// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef FIELDS_H
#define FIELDS_H

#include "register.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>
#include <QTextEdit>

typedef ModalScript::Step Step;

inline QString text(QWidget *window, const char *label)
{
    return child<QLabel>(window, label)->text();
}

inline bool enabled(QWidget *window, const char *widget)
{
    return child<QWidget>(window, widget)->isEnabled();
}

/// What a widget shows, as text.
inline QString shown(QWidget *window, const char *name)
{
    QWidget *widget = child<QWidget>(window, name);
    if (const auto *combo = qobject_cast<QComboBox *>(widget)) {
        return combo->itemData(combo->currentIndex()).toString();
    }
    if (const auto *edit = qobject_cast<QTextEdit *>(widget)) {
        return edit->toPlainText();
    }
    if (const auto *spin = qobject_cast<QDoubleSpinBox *>(widget)) {
        return QString::number(spin->value(), 'g', 15);
    }
    if (const auto *spin = qobject_cast<QSpinBox *>(widget)) {
        return QString::number(spin->value());
    }
    if (const auto *box = qobject_cast<QCheckBox *>(widget)) {
        return box->isChecked() ? "true" : "false";
    }
    return child<QLineEdit>(window, name)->text();
}

inline void enter(QWidget *window, const char *name, const QString &value)
{
    QWidget *widget = child<QWidget>(window, name);
    if (auto *combo = qobject_cast<QComboBox *>(widget)) {
        combo->setCurrentIndex(combo->findData(value));
    } else if (auto *edit = qobject_cast<QTextEdit *>(widget)) {
        edit->setPlainText(value);
    } else if (auto *spin = qobject_cast<QDoubleSpinBox *>(widget)) {
        spin->setValue(value.toDouble());
    } else if (auto *number = qobject_cast<QSpinBox *>(widget)) {
        number->setValue(value.toInt());
    } else if (auto *box = qobject_cast<QCheckBox *>(widget)) {
        box->setChecked(value == "true");
    } else {
        child<QLineEdit>(window, name)->setText(value);
    }
}

struct Field
{
    const char *widget;
    const char *key;
    QString initial; ///< shown when the document has nothing
    QString value;   ///< entered, and stored as this text
};

/// Looks at what the fields show at first and enters their values.
inline Step fill(const std::vector<Field> &fields)
{
    return [=](QWidget *window) {
        for (const Field &field : fields) {
            QCOMPARE(shown(window, field.widget), field.initial);
            enter(window, field.widget, field.value);
        }
    };
}

inline void compareStored(const QNoxSettings &settings, const std::vector<Field> &fields)
{
    for (const Field &field : fields) {
        QCOMPARE(settings.get(field.key).toString(), field.value);
    }
}

inline QNoxSettings nested(const Register &shop, const char *key)
{
    return QNoxSettings(shop.stored(key).toString());
}

#endif
