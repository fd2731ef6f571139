// SPDX-License-Identifier: LGPL-2.1-or-later
#include "dialogs/inpasormasettingsdialog.h"

#include "ui_inpasormasettingsdialog.h"

namespace {

const QString TerminalIDKey = QString::fromWCharArray(L"TerminalID");

} // namespace

InpasOrmaSettingsDialog::InpasOrmaSettingsDialog(QNoxSettings &document, QWidget *parent)
    : OrmaSettingsDialog(document, parent), ui(new Ui_InpasOrmaSettingsDialog)
{
    ui->setupUi(this);
    fields.emplace_back(TerminalIDKey, ui->leTerminalID);
    fillForm(*ui);
    loadSettings();
    adjustSize();
}

InpasOrmaSettingsDialog::~InpasOrmaSettingsDialog() = default;

void InpasOrmaSettingsDialog::on_pbtnOk_clicked()
{
    saveAndAccept();
}

void InpasOrmaSettingsDialog::on_pbtnCancel_clicked()
{
    reject();
}

void InpasOrmaSettingsDialog::on_cmbPort_currentIndexChanged(int /*index*/)
{
    showPage();
}
