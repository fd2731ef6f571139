// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef FORMUTILS_H
#define FORMUTILS_H

class QLabel;
class QString;
class QWidget;

/// Shows the text in a window's error line; the window grows as high as it then needs to be. In a window that is open
/// a new error is announced to a screen reader, too; with a window that opens its error is read anyway.
void showError(QLabel *line, const QString &text);

/// Makes the labels beside a form's inputs as wide as the widest of their column and as high as the inputs,
/// so that the inputs of all groups and pages stand in columns with their labels at their middle. Inputs of any text
/// are as wide as the toolkit finds right for the font, at least; otherwise it would make do with a few characters.
void alignLabels(QWidget *form);

#endif
