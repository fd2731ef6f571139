// SPDX-License-Identifier: LGPL-2.1-or-later
#include "forms/settingfields.h"

#include "common/qnoxsettings.h"
#include "common/qt_utils.h"
#include "window/inputs.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QSpinBox>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

const QString True = QString::fromLatin1("true");
const QString False = QString::fromLatin1("false");

} // namespace

void showText(QLineEdit *edit, const QString &text)
{
    liftLengthLimit(edit);
    edit->setText(text);
    edit->setCursorPosition(0);
}

int wholeNumber(const QVariant &stored, int minimum, int maximum)
{
    const QString text = stored.toString().trimmed();
    bool isNumber = false;
    const qlonglong number = text.toLongLong(&isNumber);
    if (isNumber) {
        return static_cast<int>(std::max<qlonglong>(minimum, std::min<qlonglong>(number, maximum)));
    }
    // Perhaps one with more digits than the largest integers have.
    const bool isNegative = text.startsWith(QLatin1Char('-'));
    const QString digits = text.mid(isNegative || text.startsWith(QLatin1Char('+')) ? 1 : 0);
    const bool isWhole = !digits.isEmpty() && std::all_of(digits.begin(), digits.end(), [](QChar c) {
        return c >= QLatin1Char('0') && c <= QLatin1Char('9');
    });
    return !isWhole ? qBound(minimum, 0, maximum) : isNegative ? minimum : maximum;
}

SettingField::SettingField(const QString &name, QWidget *input, const char *changeSignal,
                           std::function<void(const QVariant &)> showValue, std::function<QVariant()> currentValue,
                           const QVariant &defaultValue)
    : key(name),
      widget(input),
      changed(changeSignal),
      show(std::move(showValue)),
      value(std::move(currentValue)),
      def(defaultValue)
{
}

SettingField::SettingField(const QString &name, QLineEdit *edit, const QString &defaultValue)
    : SettingField(
          name, edit, SIGNAL(textChanged(QString)), [=](const QVariant &stored) { showText(edit, stored.toString()); },
          [=] { return edit->text(); }, defaultValue)
{
}

SettingField::SettingField(const QString &name, QSpinBox *spin, int defaultValue)
    : SettingField(
          name, spin, SIGNAL(valueChanged(int)),
          [=](const QVariant &stored) { spin->setValue(wholeNumber(stored, spin->minimum(), spin->maximum())); },
          [=] { return spin->value(); }, defaultValue)
{
}

SettingField::SettingField(const QString &name, QDoubleSpinBox *spin, double defaultValue)
    : SettingField(
          name, spin, SIGNAL(valueChanged(double)),
          [=](const QVariant &stored) {
              const double number = stored.toDouble();
              spin->setValue(std::isfinite(number) ? number : 0.0);
          },
          [=] { return spin->value(); }, defaultValue)
{
}

SettingField::SettingField(const QString &name, QCheckBox *box)
    : SettingField(
          name, box, SIGNAL(toggled(bool)), [=](const QVariant &stored) { box->setChecked(stored.toString() == True); },
          [=] { return box->isChecked() ? True : False; })
{
}

SettingField::SettingField(const QString &name, QComboBox *combo, int defaultValue)
    : SettingField(
          name, combo, SIGNAL(currentIndexChanged(int)),
          [=](const QVariant &stored) { QComboSelectIfCan(combo, stored.toString(), QString::number(defaultValue)); },
          [=] { return cmbData(combo); }, defaultValue)
{
}

SettingField::SettingField(const QString &name, QComboBox *combo, const QString &defaultValue)
    : SettingField(
          name, combo, SIGNAL(currentIndexChanged(int)),
          [=](const QVariant &stored) { QComboSelectIfCan(combo, stored.toString(), defaultValue); },
          [=] { return cmbDataStr(combo); }, defaultValue)
{
}

void loadFields(const SettingFields &fields, const QNoxSettings &settings)
{
    for (const SettingField &field : fields) {
        field.show(settings.get(field.key, field.def));
    }
}

void saveFields(const SettingFields &fields, QNoxSettings &settings)
{
    for (const SettingField &field : fields) {
        settings.set(field.key, field.value());
    }
}
