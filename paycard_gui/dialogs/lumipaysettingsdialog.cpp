// SPDX-License-Identifier: LGPL-2.1-or-later
#include "dialogs/lumipaysettingsdialog.h"

#include "common/qt_utils.h"
#include "forms/mappinglist.h"
#include "ui_arcus2lumipaysettingsdialog.h"
#include "ui_inpaslumipaysettingsdialog.h"
#include "ui_sberbanklumipaysettingsdialog.h"

namespace {

const QString ModemModeKey = QString::fromWCharArray(L"ModemMode");
const QString TerminalIDKey = QString::fromWCharArray(L"TerminalID");

} // namespace

void LumiPaySettingsDialog::fillForm(QComboBox *modemMode, const SettingFields &others)
{
    strToComboBox(modemMode, numberedMapping(QObject::tr("%1:Средствами ПК;%2:Модем ККТ;"), 2), false);
    SettingFields table = {{ModemModeKey, modemMode, 0}};
    table.insert(table.end(), others.begin(), others.end());
    setFields(std::move(table));
    loadSettings();
    adjustSize();
}

Arcus2LumiPaySettingsDialog::Arcus2LumiPaySettingsDialog(QNoxSettings &document, QWidget *parent)
    : LumiPaySettingsDialog(document, parent)
{
    Ui_Arcus2LumiPaySettingsDialog ui;
    ui.setupUi(this);
    fillForm(ui.cmbModemMode);
}

InpasLumiPaySettingsDialog::InpasLumiPaySettingsDialog(QNoxSettings &document, QWidget *parent)
    : LumiPaySettingsDialog(document, parent)
{
    Ui_InpasLumiPaySettingsDialog ui;
    ui.setupUi(this);
    fillForm(ui.cmbModemMode, {{TerminalIDKey, ui.leTerminalID}});
}

SberbankLumiPaySettingsDialog::SberbankLumiPaySettingsDialog(QNoxSettings &document, QWidget *parent)
    : LumiPaySettingsDialog(document, parent)
{
    // The window has the ARCUS2 wording for its title on purpose.
    Ui_SberbankLumiPaySettingsDialog ui;
    ui.setupUi(this);
    fillForm(ui.cmbModemMode);
}
