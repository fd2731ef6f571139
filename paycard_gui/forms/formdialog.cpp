// SPDX-License-Identifier: LGPL-2.1-or-later
#include "forms/formdialog.h"

#include "window/inputs.h"
#include "window/windowfit.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMap>

#include <algorithm>

namespace {

/// The column of its grid that the label is in; 0 in other layouts.
int columnOf(QLabel *label)
{
    QGridLayout *grid = qobject_cast<QGridLayout *>(label->parentWidget()->layout());
    const int index = grid ? grid->indexOf(label) : -1;
    int row = 0;
    int column = 0;
    int span = 0;
    if (index >= 0) {
        grid->getItemPosition(index, &row, &column, &span, &span);
    }
    return column;
}

} // namespace

int FormDialog::exec()
{
    prepareInputs(*this);
    fitForm(*this);
    return NoHelpButtonDialog::exec();
}

void FormDialog::alignLabels()
{
    const QList<QLabel *> labels = findChildren<QLabel *>();
    QMap<int, int> widths;
    for (QLabel *label : labels) {
        int &width = widths[columnOf(label)];
        width = std::max(width, label->buddy() ? label->sizeHint().width() : 0);
    }
    for (QLabel *label : labels) {
        if (label->buddy()) {
            label->setMinimumSize(widths.value(columnOf(label)), std::max(label->sizeHint().height(), TouchHeight));
        }
        QLineEdit *edit = qobject_cast<QLineEdit *>(label->buddy());
        if (edit && edit->inputMask().isEmpty()) {
            edit->setMinimumWidth(edit->sizeHint().width());
        }
    }
}
