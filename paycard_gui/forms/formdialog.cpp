// SPDX-License-Identifier: LGPL-2.1-or-later
#include "forms/formdialog.h"

#include "window/inputs.h"
#include "window/windowfit.h"

FormDialog::~FormDialog() = default;

int FormDialog::exec()
{
    prepareInputs(*this);
    fitForm(*this);
    return NoHelpButtonDialog::exec();
}
