// SPDX-License-Identifier: LGPL-2.1-or-later
#include "dialogs/arcus2settingsdialog.h"

namespace {

const QString OpcodeCloseDayKey = QString::fromWCharArray(L"OpcodeCloseDay");
const QString OpcodePrintJournalKey = QString::fromWCharArray(L"OpcodePrintJournal");

} // namespace

Arcus2SettingsDialog::Arcus2SettingsDialog(QNoxSettings &document, QWidget *parent) : SettingsDialog(document, parent)
{
    ui.setupUi(this);
    setFields({
        {OpcodeCloseDayKey, ui.spinOpcodeCloseDay},
        {OpcodePrintJournalKey, ui.spinOpcodePrintJournal},
    });
    // While both values stay at their initial 1 nothing is checked: the form's own text is seen in the error
    // line until a value changes. That is meant.
    loadSettings();
    adjustSize();
}

/// Only reports: equal codes can be saved.
void Arcus2SettingsDialog::checkState()
{
    if (ui.spinOpcodeCloseDay->value() == ui.spinOpcodePrintJournal->value()) {
        setError(tr("Коды операций не могут совпадать"));
    } else {
        resetError();
    }
}
