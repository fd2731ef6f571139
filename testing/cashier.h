// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef CASHIER_H
#define CASHIER_H

#include "testing/modalscript.h"

#include <QString>

/// What a cashier does in a window, as steps of a ModalScript. What cannot be done ends the script, and
/// ModalScript::problem() says why. A step can also be taken within another one: `press("OK")(window)`.
///
/// A widget that is shown is found by its object name, by its accessible name, or by its label without the
/// ampersand, line breaks and the colon at the end: "leKeyLoadPwd" or "Пароль закрытого ключа".
namespace Cashier {

/// Clicks a button once the step is over, so that the button may open a window. It is found by its object name or
/// its caption without the ampersand.
ModalScript::Step press(const QString &button);
/// The same where that is possible, otherwise false.
bool tryPress(QWidget *window, const QString &button);

/// Strikes a key in the widget that has the focus, once the step is over.
ModalScript::Step key(Qt::Key code);

/// Strikes the keys of the text in an input, in the place of what is there.
ModalScript::Step type(const QString &input, const QString &text);

/// Makes the item with this text the current one of a list or a combo box.
ModalScript::Step choose(const QString &list, const QString &item);

/// Reads what a widget shows: the text of a label, an input or a button, the current item of a list or a combo box,
/// "true" or "false" of a check box. An empty name stands for the window itself, when that is a message box.
ModalScript::Step read(const QString &widget, QString *text);

/// Saves a picture of the window, as PNG if the file's name ends so.
ModalScript::Step photograph(const QString &file);

/// Closes the window as the button in its frame does.
ModalScript::Step close();

} // namespace Cashier

#endif
