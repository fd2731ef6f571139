// SPDX-License-Identifier: LGPL-2.1-or-later
#include "dialogs/arcus2lumipaysettingsdialog.h"

#include "ui_arcus2lumipaysettingsdialog.h"

Arcus2LumiPaySettingsDialog::Arcus2LumiPaySettingsDialog(QNoxSettings &document, QWidget *parent)
    : LumiPaySettingsDialog(document, parent)
{
    Ui_Arcus2LumiPaySettingsDialog ui;
    ui.setupUi(this);
    setFields({
        modemMode(ui.cmbModemMode),
    });
    loadSettings();
    adjustSize();
}
