// SPDX-License-Identifier: LGPL-2.1-or-later
#include "dialogs/lumipaysettingsdialog.h"

#include "common/qt_utils.h"
#include "forms/mappinglist.h"

LumiPaySettingsDialog::~LumiPaySettingsDialog() = default;

SettingField LumiPaySettingsDialog::modemMode(QComboBox *combo)
{
    strToComboBox(combo, numberedMapping(QObject::tr("%1:Средствами ПК;%2:Модем ККТ;"), 2), false);
    return {QString::fromWCharArray(L"ModemMode"), combo, 0};
}
