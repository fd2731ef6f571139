// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

class QLineEdit;
class QWidget;

/// What a finger has to hit is at least this high, in pixels: registers have touch screens.
const int TouchHeight = 32;

/// Makes the inputs and buttons of a window of the library's own fit for people; to be done when the window is
/// complete.
///
/// A point and a comma both are the decimal separator of a number, in every locale; what is no number, or has more
/// decimals than the input, is refused, so that digits never move. Line breaks and tabs become blanks in single-line
/// texts. What is shown already stays as it is. What a finger has to hit is high enough.
void prepareInputs(QWidget &window);

/// True for what an input that consists of several widgets has inside, such as the line edit of a spin box.
bool isPartOfInput(const QWidget &widget);

/// Lets the edit hold texts of any length; the toolkit's own bound would cut a stored one.
void liftLengthLimit(QLineEdit *edit);
