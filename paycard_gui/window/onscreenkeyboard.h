// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

class QWidget;

/// Keeps the window's input that has the focus, with its label, in sight above an on-screen keyboard: the window moves
/// up, beyond the upper edge of the screen if it must, and back when the keyboard goes. An error line that is covered
/// is repeated above the keyboard. To be called when the window is complete. Does nothing with a toolkit that knows no
/// such keyboard.
void keepAboveKeyboard(QWidget &window);
