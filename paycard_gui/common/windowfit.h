// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef WINDOWFIT_H
#define WINDOWFIT_H

class QWidget;

/// Makes the window as large as its contents need it to be, at least. The toolkit does not see to the height of
/// wrapped texts: not once a window is shown, and with its oldest release never. What a scroll area of the window
/// hides is shown as far as the screen has room for it.
void growToContents(QWidget &window);

/// Puts a widget of a form, which is in a box layout, into a scroll area at its place.
void makeScrollable(QWidget *contents);

#endif
