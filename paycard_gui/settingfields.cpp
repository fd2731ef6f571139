// SPDX-License-Identifier: LGPL-2.1-or-later
#include "settingfields.h"

#include "common/qnoxsettings.h"
#include "common/qt_utils.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QSpinBox>

#include <utility>

void showText(QLineEdit *edit, const QString &text)
{
    edit->setText(text);
    edit->setCursorPosition(0);
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
          name, [=](const QVariant &stored) { spin->setValue(stored.toInt()); }, [=] { return spin->value(); },
          defaultValue)
{
}

SettingField::SettingField(const QString &name, QDoubleSpinBox *spin, double defaultValue)
    : SettingField(
          name, [=](const QVariant &stored) { spin->setValue(stored.toDouble()); }, [=] { return spin->value(); },
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
