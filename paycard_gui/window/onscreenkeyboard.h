// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef ONSCREENKEYBOARD_H
#define ONSCREENKEYBOARD_H

class QLabel;
class QWidget;

/// Keeps the window's input that has the focus, with its label, in sight above an on-screen keyboard: the window moves
/// up, beyond the upper edge of the screen if it must, and back when the keyboard goes. Does nothing with a toolkit
/// that knows no such keyboard.
void keepAboveKeyboard(QWidget &window);

/// Tells what a window's error line says now. It is repeated above the keyboard where that covers the line.
void keepAboveKeyboard(QLabel &errorLine);

#endif
