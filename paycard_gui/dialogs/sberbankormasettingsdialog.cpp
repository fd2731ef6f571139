// SPDX-License-Identifier: LGPL-2.1-or-later
#include "dialogs/sberbankormasettingsdialog.h"

#include "ui_sberbankormasettingsdialog.h"

SberbankOrmaSettingsDialog::SberbankOrmaSettingsDialog(QNoxSettings &document, QWidget *parent)
    : OrmaSettingsDialog(document, parent), ui(new Ui_SberbankOrmaSettingsDialog)
{
    ui->setupUi(this);
    fillForm(*ui, {network(ui->pageNetSettings, ui->leNetAddress, ui->spinNetPort)});
    loadSettings();
    adjustSize();
}

SberbankOrmaSettingsDialog::~SberbankOrmaSettingsDialog() = default;
