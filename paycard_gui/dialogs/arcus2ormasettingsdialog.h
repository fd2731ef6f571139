// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef ARCUS2ORMASETTINGSDIALOG_H
#define ARCUS2ORMASETTINGSDIALOG_H

#include "dialogs/ormasettingsdialog.h"

#include <memory>

class Ui_Arcus2OrmaSettingsDialog;

/// The connection of ARCUS2 terminals.
class Arcus2OrmaSettingsDialog : public OrmaSettingsDialog
{
    Q_OBJECT

public:
    Arcus2OrmaSettingsDialog(QNoxSettings &settings, QWidget *parent);
    ~Arcus2OrmaSettingsDialog() override;

private:
    std::unique_ptr<Ui_Arcus2OrmaSettingsDialog> ui;
};

#endif
