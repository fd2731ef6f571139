// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef ARCUS2LUMIPAYSETTINGSDIALOG_H
#define ARCUS2LUMIPAYSETTINGSDIALOG_H

#include "dialogs/lumipaysettingsdialog.h"

/// The LumiPay settings of ARCUS2 terminals.
class Arcus2LumiPaySettingsDialog : public LumiPaySettingsDialog
{
    Q_OBJECT

public:
    Arcus2LumiPaySettingsDialog(QNoxSettings &settings, QWidget *parent);
};

#endif
