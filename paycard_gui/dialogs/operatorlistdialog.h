// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "forms/formdialog.h"
#include "ui_operatorlistdialog.h"

class QListWidgetItem;
class QNoxSettings;

/// The service operators: adds, edits and deletes their records.
///
/// Takes the records out of the document when it is built and puts them back only when it is accepted: it
/// works on a copy that the caller drops otherwise.
class OperatorListDialog : public FormDialog
{
    Q_OBJECT

public:
    OperatorListDialog(QNoxSettings &settings, QWidget *parent);

    void loadSettings();
    void saveSettings();

private slots:
    void on_pbtnAdd_clicked();
    void on_pbtnEdit_clicked();
    void on_pbtnDelete_clicked();
    void on_pbtnOk_clicked();
    void on_lwOperators_itemDoubleClicked(QListWidgetItem *item);
    void on_lwOperators_itemSelectionChanged();

private:
    bool edit(QNoxSettings &record);
    QListWidgetItem *add(const QNoxSettings &record);
    void setRecord(QListWidgetItem *item, const QNoxSettings &record);
    void enableEditing(bool enabled);

    Ui_OperatorListDialog ui;
    QNoxSettings &settings;
};
