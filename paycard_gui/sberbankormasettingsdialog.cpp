// SPDX-License-Identifier: LGPL-2.1-or-later
#include "sberbankormasettingsdialog.h"

#include "ui_sberbankormasettingsdialog.h"

SberbankOrmaSettingsDialog::SberbankOrmaSettingsDialog(QNoxSettings &document, QWidget *parent)
    : OrmaSettingsDialog(document, parent), ui(new Ui_SberbankOrmaSettingsDialog)
{
    ui->setupUi(this);
    fillForm(ui->cmbPort, ui->stackExtSettings,
             {
                 network(ui->pageNetSettings, ui->leNetAddress, ui->spinNetPort),
                 usb(ui->pageUsbSettings, ui->leUsbVid, ui->leUsbPid),
                 tty(ui->pageTtySettings, ui->leTtyFileName, ui->cmbTtyBaudrate),
                 serial(ui->pageSerialPortSettings, ui->cmbSerialBaudrate),
             });
    loadSettings();
    adjustSize();
}

SberbankOrmaSettingsDialog::~SberbankOrmaSettingsDialog() = default;

void SberbankOrmaSettingsDialog::on_pbtnOk_clicked()
{
    saveAndAccept();
}

void SberbankOrmaSettingsDialog::on_pbtnCancel_clicked()
{
    reject();
}

void SberbankOrmaSettingsDialog::on_cmbPort_currentIndexChanged(int /*index*/)
{
    showPage();
}
