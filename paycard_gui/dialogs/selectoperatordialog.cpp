// SPDX-License-Identifier: LGPL-2.1-or-later
#include "dialogs/selectoperatordialog.h"

#include "common/qt_utils.h"
#include "dialogs/driverconversation.h"
#include "forms/operatorrecords.h"
#include "window/showntext.h"

SelectOperatorDialog::SelectOperatorDialog(NOX::PayCard::IPayCard *object, QWidget *parent)
    : FormDialog(parent), driver(object)
{
    ui.setupUi(this);
    const QNoxSettings settings(driver.getBuff(&NOX::PayCard::IPayCard::getSettings));
    const int count = OperatorRecords::count(settings);
    for (int i = 0; i < count; ++i) {
        ui.cmbOperators->addItem(OperatorRecords::name(OperatorRecords::record(settings, i)), i);
    }
    ShownText::cutItems(ui.cmbOperators);
    // Keeps the window at its size hint, also where that changes when the window is shown.
    layout()->setSizeConstraint(QLayout::SetFixedSize);
    layout()->activate();
}

void SelectOperatorDialog::on_pbtnOk_clicked()
{
    guarded([this] {
        const int index = cmbData(ui.cmbOperators);
        const bool lives = converse(this, driver, [=](const QNoxPaycard &wrapper) {
            wrapper.raiseError(wrapper.nox()->setOperatorIndex(index));
        });
        if (lives) {
            accept();
        }
    });
}

void SelectOperatorDialog::on_pbtnCancel_clicked()
{
    reject();
}
