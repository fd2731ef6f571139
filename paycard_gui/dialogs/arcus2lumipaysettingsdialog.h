// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef ARCUS2LUMIPAYSETTINGSDIALOG_H
#define ARCUS2LUMIPAYSETTINGSDIALOG_H

#include "dialogs/lumipaysettingsdialog.h"

#include <memory>

class Ui_Arcus2LumiPaySettingsDialog;

/// The LumiPay settings of ARCUS2 terminals.
class Arcus2LumiPaySettingsDialog : public LumiPaySettingsDialog
{
    Q_OBJECT

public:
    Arcus2LumiPaySettingsDialog(QNoxSettings &settings, QWidget *parent);
    ~Arcus2LumiPaySettingsDialog() override;

private:
    std::unique_ptr<Ui_Arcus2LumiPaySettingsDialog> ui;
};

#endif
