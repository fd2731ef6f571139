// SPDX-License-Identifier: LGPL-2.1-or-later
#include "dialogs/sberbanklumipaysettingsdialog.h"

#include "ui_sberbanklumipaysettingsdialog.h"

SberbankLumiPaySettingsDialog::SberbankLumiPaySettingsDialog(QNoxSettings &document, QWidget *parent)
    : LumiPaySettingsDialog(document, parent)
{
    // The window has the ARCUS2 wording for its title on purpose.
    Ui_SberbankLumiPaySettingsDialog ui;
    ui.setupUi(this);
    setFields({
        modemMode(ui.cmbModemMode),
    });
    loadSettings();
    adjustSize();
}
