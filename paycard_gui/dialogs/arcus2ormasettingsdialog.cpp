// SPDX-License-Identifier: LGPL-2.1-or-later
#include "dialogs/arcus2ormasettingsdialog.h"

#include "ui_arcus2ormasettingsdialog.h"

Arcus2OrmaSettingsDialog::Arcus2OrmaSettingsDialog(QNoxSettings &document, QWidget *parent)
    : OrmaSettingsDialog(document, parent)
{
    Ui_Arcus2OrmaSettingsDialog ui;
    ui.setupUi(this);
    fillForm(ui);
    loadSettings();
    adjustSize();
}
