// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef SBERBANKORMASETTINGSDIALOG_H
#define SBERBANKORMASETTINGSDIALOG_H

#include "dialogs/ormasettingsdialog.h"

#include <memory>

class Ui_SberbankOrmaSettingsDialog;

/// The connection of Sberbank terminals.
class SberbankOrmaSettingsDialog : public OrmaSettingsDialog
{
    Q_OBJECT

public:
    SberbankOrmaSettingsDialog(QNoxSettings &settings, QWidget *parent);
    ~SberbankOrmaSettingsDialog() override;

private slots:
    void on_pbtnOk_clicked();
    void on_pbtnCancel_clicked();
    void on_cmbPort_currentIndexChanged(int index);

private:
    std::unique_ptr<Ui_SberbankOrmaSettingsDialog> ui;
};

#endif
