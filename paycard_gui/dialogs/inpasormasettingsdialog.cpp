// SPDX-License-Identifier: LGPL-2.1-or-later
#include "dialogs/inpasormasettingsdialog.h"

#include "ui_inpasormasettingsdialog.h"

namespace {

const QString TerminalIDKey = QString::fromWCharArray(L"TerminalID");

} // namespace

InpasOrmaSettingsDialog::InpasOrmaSettingsDialog(QNoxSettings &document, QWidget *parent)
    : OrmaSettingsDialog(document, parent)
{
    Ui_InpasOrmaSettingsDialog ui;
    ui.setupUi(this);
    fillForm(ui, {}, {{TerminalIDKey, ui.leTerminalID}});
    loadSettings();
    adjustSize();
}
