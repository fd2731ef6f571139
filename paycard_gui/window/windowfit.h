// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

class QDialog;
class QMessageBox;
class QWidget;

/// Each of these makes a window as large as its contents and its title need it to be, but no larger than its screen;
/// what then has no room scrolls. The toolkit does not see to the height of wrapped texts: not once a window is shown,
/// and with its oldest release never.

/// For a window with a form of the library's: its widget "contents" scrolls, while buttons and error line stay in
/// sight. At any time.
void fitForm(QWidget &window);

/// For a message box, of which the text scrolls. Before it is shown.
void fitMessageBox(QMessageBox &box);

/// For the toolkit's dialogs of inputs and files. Before they are shown; does nothing with one that the desktop draws.
void fitToolkitDialog(QDialog &dialog);

/// Moves a window that is open and reaches over the lower or right edge of its screen.
void moveOntoScreen(QWidget &window);
