// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef OPERATORDIALOG_H
#define OPERATORDIALOG_H

#include "forms/settingsdialog.h"

#include <memory>

class Ui_OperatorDialog;

/// One service operator: edits its record.
class OperatorDialog : public SettingsDialog
{
    Q_OBJECT

public:
    OperatorDialog(QNoxSettings &record, QWidget *parent);
    ~OperatorDialog() override;

    void checkState() override;

private:
    void fillChoices();

    std::unique_ptr<Ui_OperatorDialog> ui;
};

#endif
