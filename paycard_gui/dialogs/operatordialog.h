// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "forms/settingsdialog.h"
#include "ui_operatordialog.h"

/// One service operator: edits its record.
class OperatorDialog : public SettingsDialog
{
    Q_OBJECT

public:
    OperatorDialog(QNoxSettings &record, QWidget *parent);

    void checkState() override;

private:
    Ui_OperatorDialog ui;
};
