// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef WINDOWFIT_H
#define WINDOWFIT_H

class QDialog;
class QMessageBox;
class QWidget;

/// Makes the window as large as its contents and its title need it to be, at least, but no larger than its screen:
/// where that is too small, the widget "contents" of its form scrolls, while buttons and error line stay in sight.
/// The toolkit does not see to the height of wrapped texts: not once a window is shown, and with its oldest release
/// never.
void growToContents(QWidget &window);

/// The same for a message box, which sees to its size itself except that its text may be longer than the screen is
/// high: that scrolls then.
void fitText(QMessageBox &box);

/// The same for the toolkit's dialogs of inputs and files.
void fitLabels(QDialog &dialog);

/// Moves a window that is open and reaches over the lower or right edge of its screen.
void keepOnScreen(QWidget &window);

#endif
