// SPDX-License-Identifier: LGPL-2.1-or-later
#include "dialogs/sberbankormasettingsdialog.h"

#include "ui_sberbankormasettingsdialog.h"

SberbankOrmaSettingsDialog::SberbankOrmaSettingsDialog(QNoxSettings &document, QWidget *parent)
    : OrmaSettingsDialog(document, parent)
{
    Ui_SberbankOrmaSettingsDialog ui;
    ui.setupUi(this);
    fillForm(ui, {network(ui.pageNetSettings, ui.leNetAddress, ui.spinNetPort)});
    loadSettings();
    adjustSize();
}
