// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QString>

class QComboBox;
class QLabel;

/// Texts that come from the driver, as a window shows them: whole up to a length that a person reads, otherwise
/// their beginning, so that no text drives the window off the screen or keeps it busy for seconds. The whole is
/// in the tool tip. What is stored is never cut.
namespace ShownText {

/// The text, or its beginning with an ellipsis.
QString cut(const QString &text);

/// The whole of a text that is shown as another one, as rich text; nothing when they are the same. It is cut, too,
/// but only where showing it would take seconds.
QString toolTip(const QString &text, const QString &shown);

/// Shows it in the label, which it does not make wider than the screen has room for.
void show(QLabel *label, const QString &text);

/// Cuts the captions of the items.
void cutItems(QComboBox *combo);

} // namespace ShownText
