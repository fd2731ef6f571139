// SPDX-License-Identifier: LGPL-2.1-or-later
#include "dialogs/operatorlistdialog.h"

#include "common/qnoxsettings.h"
#include "dialogs/operatordialog.h"
#include "forms/operatorrecords.h"
#include "toolkit/windows.h"
#include "window/scopeddialog.h"
#include "window/showntext.h"

namespace {

/// What the list shows at least: characters of a name, and lines of text (fewer operators, as they stand apart).
const int NameWidth = 36;
const int Lines = 18;

} // namespace

OperatorListDialog::OperatorListDialog(QNoxSettings &document, QWidget *parent) : FormDialog(parent), settings(document)
{
    ui.setupUi(this);
    // The list itself asks for a size that knows nothing of the font. It leaves room for the buttons on a small screen.
    const QSize wanted(fontMetrics().averageCharWidth() * NameWidth, fontMetrics().height() * Lines);
    ui.lwOperators->setMinimumSize(wanted.boundedTo(Toolkit::availableGeometry(*this).size() / 2));
    loadSettings();
    enableEditing(false);
    adjustSize();
}

void OperatorListDialog::loadSettings()
{
    const int count = OperatorRecords::count(settings);
    for (int i = 0; i < count; ++i) {
        add(QNoxSettings(OperatorRecords::record(settings, i)));
        settings.remove(OperatorRecords::key(i));
    }
}

void OperatorListDialog::saveSettings()
{
    const int count = ui.lwOperators->count();
    settings.set(OperatorRecords::CountKey, count);
    for (int i = 0; i < count; ++i) {
        settings.set(OperatorRecords::key(i), ui.lwOperators->item(i)->data(Qt::UserRole));
    }
}

/// True when the record was edited and accepted.
bool OperatorListDialog::edit(QNoxSettings &record)
{
    const ScopedDialog<OperatorDialog> dialog(record, this);
    return dialog->exec() == Accepted;
}

QListWidgetItem *OperatorListDialog::add(const QNoxSettings &record)
{
    QListWidgetItem *item = new QListWidgetItem;
    setRecord(item, record);
    ui.lwOperators->addItem(item);
    return item;
}

/// An item shows the operator's name and carries its record.
void OperatorListDialog::setRecord(QListWidgetItem *item, const QNoxSettings &record)
{
    const QString name = record.get(OperatorRecords::NameKey).toString();
    const QString shown = ShownText::cut(name);
    // Measuring takes its time, and a short one need not be measured.
    const bool fits =
        shown.size() < NameWidth / 2 || fontMetrics().boundingRect(shown).width() < ui.lwOperators->minimumWidth();
    item->setText(shown);
    item->setToolTip(ShownText::toolTip(name, fits ? shown : QString()));
    item->setData(Qt::UserRole, record.toXml(0));
}

void OperatorListDialog::enableEditing(bool enabled)
{
    ui.pbtnEdit->setEnabled(enabled);
    ui.pbtnDelete->setEnabled(enabled);
}

void OperatorListDialog::on_pbtnAdd_clicked()
{
    guarded([this] {
        QNoxSettings record;
        if (edit(record)) {
            ui.lwOperators->setCurrentItem(add(record));
            enableEditing(true);
        }
    });
}

void OperatorListDialog::on_pbtnEdit_clicked()
{
    on_lwOperators_itemDoubleClicked(ui.lwOperators->currentItem());
}

void OperatorListDialog::on_lwOperators_itemDoubleClicked(QListWidgetItem *item)
{
    if (!item) {
        return;
    }
    guarded([this, item] {
        QNoxSettings record(item->data(Qt::UserRole).toString());
        if (edit(record)) {
            setRecord(item, record);
        }
    });
}

void OperatorListDialog::on_pbtnDelete_clicked()
{
    delete ui.lwOperators->currentItem();
    const bool empty = ui.lwOperators->count() == 0;
    ui.pbtnDelete->setEnabled(!empty);
    // The wrong way round on purpose; the next change of the selection puts it right.
    ui.pbtnEdit->setEnabled(empty);
}

void OperatorListDialog::on_pbtnOk_clicked()
{
    guarded([this] {
        saveSettings();
        accept();
    });
}

void OperatorListDialog::on_lwOperators_itemSelectionChanged()
{
    enableEditing(!ui.lwOperators->selectedItems().isEmpty());
}
