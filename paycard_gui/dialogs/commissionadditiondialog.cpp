// SPDX-License-Identifier: LGPL-2.1-or-later
#include "dialogs/commissionadditiondialog.h"

#include "common/qt_utils.h"
#include "dialogs/driverconversation.h"
#include "forms/mappinglist.h"
#include "text/amounts.h"
#include "window/showntext.h"

#include <cmath>

using NOX::PayCard::IPayCard;

namespace {

enum Addition { IncludedInSum = 0, AddedToSum = 1 };

const double Tolerance = 0.00001;
const double SmallestSum = 0.01;

bool isBelow(double value, double limit)
{
    return value < limit && std::fabs(value - limit) > Tolerance;
}

/// Rounds to `decimals` places, halves away from zero. The nudge and the threshold short of a half take along
/// values such as 2.675, which are stored slightly below the half.
double fround(double value, int decimals)
{
    const double step = std::pow(0.1, decimals);
    const double sign = value > 0 ? 1 : value < 0 ? -1 : 0;
    const double truncated = std::trunc((value + 0.00001 * sign) / step);
    return std::fabs(value / step - truncated) >= 0.49999 ? step * (truncated + sign) : step * truncated;
}

} // namespace

CommissionAdditionDialog::CommissionAdditionDialog(IPayCard *object, QWidget *parent)
    : FormDialog(parent), driver(object)
{
    ui.setupUi(this);
    // One preview, once the list is whole. The doubled "м" is what the cashiers know.
    ui.cmbCommissionAddition->blockSignals(true);
    strToComboBox(ui.cmbCommissionAddition,
                  numberedMapping(tr("%1:Коммиссия включена в сумму;%2:Коммиссия добавляется к сумме;"), 2), false);
    ui.cmbCommissionAddition->blockSignals(false);
    updatePreview();
}

void CommissionAdditionDialog::on_cmbCommissionAddition_currentIndexChanged(int /*index*/)
{
    guarded([this] { updatePreview(); });
}

/// Asks the driver anew each time, so that the preview is of its current data.
void CommissionAdditionDialog::updatePreview()
{
    double sum = 0;
    double rate = 0;
    bool fixed = true;
    double min = 0;
    double max = 0;
    const bool lives = converse(this, driver, [&](const QNoxPaycard &wrapper) {
        sum = wrapper.getDouble(&IPayCard::getSum);
        rate = wrapper.getDouble(&IPayCard::getOperatorCommission);
        fixed = wrapper.getInt(&IPayCard::getOperatorCommissionType) == 0;
        min = wrapper.getDouble(&IPayCard::getOperatorMinSum);
        max = wrapper.getDouble(&IPayCard::getOperatorMaxSum);
    });
    if (!lives) {
        return;
    }

    const double charged = fixed ? rate : sum * rate / 100;
    const double credited = cmbData(ui.cmbCommissionAddition) == IncludedInSum ? sum - charged : sum;
    const double credit = fround(credited, 2);
    const double commission = fround(charged, 2);

    // %4 and %5 are kept for markup that sets the credited amount off.
    ShownText::show(ui.lbQuery,
                    tr("Зачислить %4%1 р.%5 + комиссия %2 р. = %3 р.")
                        .arg(amount(credit), amount(commission), amount(credit + commission), QString(), QString()));
    checkState(credit, min, max);
}

void CommissionAdditionDialog::checkState(double sum, double min, double max)
{
    try {
        checkSum(sum, min, max);
        setState(true, QString());
    } catch (const Exception &failure) {
        setState(false, failure.whatQString());
    }
}

/// A maximum of 0 is a limit like any other.
void CommissionAdditionDialog::checkSum(double sum, double min, double max)
{
    if (isBelow(sum, SmallestSum)) {
        throw Exception(tr("Сумма недостаточна для проведения платежа"));
    }
    if (isBelow(sum, min) || isBelow(max, sum)) {
        throw Exception(tr("Недопустимая сумма"));
    }
}

void CommissionAdditionDialog::setState(bool ok, const QString &text)
{
    ui.pbtnOk->setEnabled(ok);
    ui.errorLabel->setVisible(!ok);
    ui.errorLabel->setError(text);
    adjustSize();
}

void CommissionAdditionDialog::on_pbtnOk_clicked()
{
    // The key of the choice, moved up by one: 0 is for cancelled.
    done(cmbData(ui.cmbCommissionAddition) + 1);
}

void CommissionAdditionDialog::on_pbtnCancel_clicked()
{
    reject();
}
