// SPDX-License-Identifier: LGPL-2.1-or-later
//
// The floor of a process's start: a message box and nothing else.
//
// Usage: benchmark_box TEXT
#include <QApplication>
#include <QMessageBox>

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    QMessageBox box(QMessageBox::Question, QString(), QApplication::arguments().value(1),
                    QMessageBox::Ok | QMessageBox::Cancel);
    return box.exec();
}
