// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef INPASLUMIPAYSETTINGSDIALOG_H
#define INPASLUMIPAYSETTINGSDIALOG_H

#include "dialogs/lumipaysettingsdialog.h"

/// The LumiPay settings of INPAS SmartSale terminals.
class InpasLumiPaySettingsDialog : public LumiPaySettingsDialog
{
    Q_OBJECT

public:
    InpasLumiPaySettingsDialog(QNoxSettings &settings, QWidget *parent);
};

#endif
