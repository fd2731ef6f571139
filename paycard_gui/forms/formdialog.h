// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "common/nohelpbuttondialogs.h"

/// Base of the library's own windows with a form: its inputs are safe, and it fits its contents and its screen.
class FormDialog : public NoHelpButtonDialog
{
    Q_OBJECT

public:
    using NoHelpButtonDialog::NoHelpButtonDialog;
    ~FormDialog() override;

    int exec() PAYCARD_OVERRIDES_EXEC;
};
