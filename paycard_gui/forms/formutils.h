// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

class QWidget;

/// Makes the labels beside a form's inputs as wide as the widest of their column and as high as the inputs,
/// so that the inputs of all groups and pages stand in columns with their labels at their middle. Inputs of any text
/// are as wide as the toolkit finds right for the font, at least; otherwise it would make do with a few characters.
void alignLabels(QWidget *form);
