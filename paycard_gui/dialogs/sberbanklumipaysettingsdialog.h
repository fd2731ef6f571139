// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef SBERBANKLUMIPAYSETTINGSDIALOG_H
#define SBERBANKLUMIPAYSETTINGSDIALOG_H

#include "dialogs/lumipaysettingsdialog.h"

/// The LumiPay settings of Sberbank terminals.
class SberbankLumiPaySettingsDialog : public LumiPaySettingsDialog
{
    Q_OBJECT

public:
    SberbankLumiPaySettingsDialog(QNoxSettings &settings, QWidget *parent);
};

#endif
