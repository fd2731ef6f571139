// SPDX-License-Identifier: LGPL-2.1-or-later
#include "dialogs/inpaslumipaysettingsdialog.h"

#include "ui_inpaslumipaysettingsdialog.h"

namespace {

const QString TerminalIDKey = QString::fromWCharArray(L"TerminalID");

} // namespace

InpasLumiPaySettingsDialog::InpasLumiPaySettingsDialog(QNoxSettings &document, QWidget *parent)
    : LumiPaySettingsDialog(document, parent)
{
    Ui_InpasLumiPaySettingsDialog ui;
    ui.setupUi(this);
    setFields({
        modemMode(ui.cmbModemMode),
        {TerminalIDKey, ui.leTerminalID},
    });
    loadSettings();
    adjustSize();
}
