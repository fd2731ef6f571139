// SPDX-License-Identifier: LGPL-2.1-or-later
#include "forms/settingfields.h"

#include "common/qnoxsettings.h"
#include "common/qt_utils.h"
#include "window/inputs.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QSpinBox>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

double finiteNumber(const QVariant &stored)
{
    const double number = stored.toDouble();
    return std::isfinite(number) ? number : 0.0;
}

} // namespace

void showText(QLineEdit *edit, const QString &text)
{
    liftLengthLimit(edit);
    edit->setText(text);
    edit->setCursorPosition(0);
}

int wholeNumber(const QVariant &stored, int minimum, int maximum)
{
    const QString text = stored.toString();
    bool isNumber = false;
    const qlonglong number = text.toLongLong(&isNumber);
    if (isNumber) {
        return static_cast<int>(std::max<qlonglong>(minimum, std::min<qlonglong>(number, maximum)));
    }
    // Perhaps one with more digits than the largest integers have.
    const double large = finiteNumber(text);
    return std::fabs(large) < 1e18 ? qBound(minimum, 0, maximum) : large < 0 ? minimum : maximum;
}

SettingField::SettingField(const QString &name, std::function<void(const QVariant &)> showValue,
                           std::function<QVariant()> currentValue, const QVariant &defaultValue)
    : key(name), show(std::move(showValue)), value(std::move(currentValue)), def(defaultValue)
{
}

SettingField::SettingField(const QString &name, QLineEdit *edit, const QString &defaultValue)
    : SettingField(
          name, [=](const QVariant &stored) { showText(edit, stored.toString()); }, [=] { return edit->text(); },
          defaultValue)
{
}

SettingField::SettingField(const QString &name, QSpinBox *spin, int defaultValue)
    : SettingField(
          name, [=](const QVariant &stored) { spin->setValue(wholeNumber(stored, spin->minimum(), spin->maximum())); },
          [=] { return spin->value(); }, defaultValue)
{
}

SettingField::SettingField(const QString &name, QDoubleSpinBox *spin, double defaultValue)
    : SettingField(
          name, [=](const QVariant &stored) { spin->setValue(finiteNumber(stored)); }, [=] { return spin->value(); },
          defaultValue)
{
}

SettingField::SettingField(const QString &name, QComboBox *combo, int defaultValue)
    : SettingField(
          name,
          [=](const QVariant &stored) { QComboSelectIfCan(combo, stored.toString(), QString::number(defaultValue)); },
          [=] { return cmbData(combo); }, defaultValue)
{
}

SettingField::SettingField(const QString &name, QComboBox *combo, const QString &defaultValue)
    : SettingField(
          name, [=](const QVariant &stored) { QComboSelectIfCan(combo, stored.toString(), defaultValue); },
          [=] { return cmbDataStr(combo); }, defaultValue)
{
}

void SettingField::load(const QNoxSettings &settings) const
{
    show(settings.get(key, def));
}

void SettingField::save(QNoxSettings &settings) const
{
    settings.set(key, value());
}

void loadFields(const SettingFields &fields, const QNoxSettings &settings)
{
    for (const SettingField &field : fields) {
        field.load(settings);
    }
}

void saveFields(const SettingFields &fields, QNoxSettings &settings)
{
    for (const SettingField &field : fields) {
        field.save(settings);
    }
}
