// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QString>
#include <QVariant>

#include <functional>
#include <vector>

class QCheckBox;
class QComboBox;
class QDoubleSpinBox;
class QLineEdit;
class QNoxSettings;
class QSpinBox;
class QWidget;

/// One setting of a form: its key, the widget that edits it, and its value while the document has none. The
/// widget, which must outlive the field, decides the type that is stored.
struct SettingField
{
    SettingField(const QString &key, QLineEdit *edit, const QString &def = QString());
    SettingField(const QString &key, QSpinBox *spin, int def = 0);
    SettingField(const QString &key, QDoubleSpinBox *spin, double def = 0.0);
    /// Stored as the text "true" or "false"; every other text is false.
    SettingField(const QString &key, QCheckBox *box);
    /// A choice whose key is stored as a whole number. A key that is not among the choices selects `def`.
    SettingField(const QString &key, QComboBox *combo, int def);
    /// A choice whose key is stored as text.
    SettingField(const QString &key, QComboBox *combo, const QString &def);
    /// A setting with a way of its own into the widget and back. `changed` is the widget's signal, as SIGNAL() gives
    /// it.
    SettingField(const QString &key, QWidget *widget, const char *changed, std::function<void(const QVariant &)> show,
                 std::function<QVariant()> value, const QVariant &def = QVariant());

    QString key;
    QWidget *widget;
    const char *changed;
    std::function<void(const QVariant &)> show;
    std::function<QVariant()> value;
    QVariant def;
};

/// Shows a text from its beginning, also when the edit is too narrow for it.
void showText(QLineEdit *edit, const QString &text);

/// The stored number, or the nearest one in the range when it is beyond, whatever its size. Text that is no whole
/// number, such as "1e30" or "12.5", counts as 0.
int wholeNumber(const QVariant &stored, int minimum, int maximum);

/// The settings of a form, which are loaded and saved in this order.
typedef std::vector<SettingField> SettingFields;

void loadFields(const SettingFields &fields, const QNoxSettings &settings);
void saveFields(const SettingFields &fields, QNoxSettings &settings);
