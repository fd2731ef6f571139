// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef INPUTS_H
#define INPUTS_H

class QLineEdit;
class QWidget;

/// What holds for every input of the library, whatever window it is in.

/// Makes the window's inputs safe for what people type and paste. A point and a comma both are the decimal
/// separator of a number, in every locale; what is no number, or has more decimals than the input, is refused,
/// so that digits never move. Line breaks and tabs become blanks in single-line texts. What is shown already
/// stays as it is.
void prepareInputs(QWidget &window);

/// Lets the edit hold texts of any length; the toolkit's own bound would cut a stored one.
void liftLengthLimit(QLineEdit *edit);

#endif
