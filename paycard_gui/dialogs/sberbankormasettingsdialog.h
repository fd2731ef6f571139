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

private:
    std::unique_ptr<Ui_SberbankOrmaSettingsDialog> ui;
};

#endif
