// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "common/nohelpbuttondialogs.h"

/// Base of the library's own windows with a form: its inputs are safe, and it fits its contents and its screen.
class FormDialog : public NoHelpButtonDialog
{
    Q_OBJECT

public:
    using NoHelpButtonDialog::NoHelpButtonDialog;

    int exec() PAYCARD_OVERRIDES_EXEC;

protected:
    /// Makes the labels beside a form's inputs as wide as the widest of their column and as high as the inputs,
    /// so that the inputs of all groups and pages stand in columns with their labels at their middle. Inputs of any
    /// text are as wide as the toolkit finds right for the font, at least; otherwise it would make do with a few
    /// characters.
    void alignLabels();
};
