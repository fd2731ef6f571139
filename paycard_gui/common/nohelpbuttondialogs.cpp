// SPDX-License-Identifier: LGPL-2.1-or-later
#include "common/nohelpbuttondialogs.h"

#include "common/scopeddialog.h"

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QFileInfo>
#include <QInputDialog>
#include <QPointer>
#include <QPushButton>
#include <QToolButton>

#include <algorithm>
#include <map>

namespace {

// The failures of dialogs that are about to end. Beside the dialogs because other modules share the base
// class's layout; only the GUI thread comes here.
std::map<const NoHelpButtonDialog *, std::exception_ptr> failures;

void clearHelpButton(QWidget &window)
{
    window.setWindowFlags(window.windowFlags() & ~Qt::WindowContextHelpButtonHint);
}

/// For touch screens and full-screen hosts; to be done when the window is complete.
void prepareToShow(QWidget &window)
{
    const QList<QWidget *> widgets = window.findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        const bool isPart =
            qobject_cast<QAbstractSpinBox *>(widget->parent()) || qobject_cast<QComboBox *>(widget->parent());
        const bool isButton = qobject_cast<QPushButton *>(widget) || qobject_cast<QToolButton *>(widget);
        const bool isInput = qobject_cast<QComboBox *>(widget) || qobject_cast<QLineEdit *>(widget) ||
                             qobject_cast<QAbstractSpinBox *>(widget);
        if (!isPart && (isButton || isInput)) {
            // A minimum that is set replaces the one that a large font asks for.
            widget->setMinimumHeight(std::max(
                {widget->minimumHeight(), widget->minimumSizeHint().height(), NoHelpButtonDialog::TouchHeight}));
        }
    }
    QtCompat::keepAboveActiveWindow(window);
}

QMessageBox::StandardButton runMessageBox(QMessageBox::Icon icon, QWidget *parent, const QString &title,
                                          const QString &text, QMessageBox::StandardButtons buttons,
                                          QMessageBox::StandardButton defaultButton)
{
    ScopedDialog<QMessageBox> box(icon, title, text, buttons, parent, Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint);
    clearHelpButton(*box);
    box->setDefaultButton(defaultButton);
    prepareToShow(*box);
    return static_cast<QMessageBox::StandardButton>(box->exec());
}

/// True when the dialog was accepted (and still exists).
template <class Dialog>
bool runToAcceptance(const ScopedDialog<Dialog> &dialog)
{
    clearHelpButton(*dialog);
    prepareToShow(*dialog);
    return dialog->exec() == QDialog::Accepted && dialog;
}

void prepareInput(QInputDialog &dialog, const QString &title, const QString &label)
{
    dialog.setWindowTitle(title);
    dialog.setLabelText(label);
}

/// The limits go to the floating-point input and the value to the text input in either number mode. Setting
/// the text value switches the dialog to text, so the mode comes last.
void prepareNumberInput(QInputDialog &dialog, QInputDialog::InputMode mode, double minimum, double maximum,
                        const QString &value)
{
    dialog.setDoubleRange(minimum, maximum);
    dialog.setTextValue(value);
    dialog.setInputMode(mode);
}

void tell(bool *ok, bool value)
{
    if (ok) {
        *ok = value;
    }
}

QString firstSelected(const QFileDialog &dialog)
{
    const QStringList files = dialog.selectedFiles();
    return files.isEmpty() ? QString() : files.first();
}

QString runFileDialog(const ScopedDialog<QFileDialog> &dialog, QString *selectedFilter, QFileDialog::Options options)
{
    // Setting modes changes options, so these come after.
    dialog->setOptions(options);
    if (selectedFilter && !selectedFilter->isEmpty()) {
        dialog->selectNameFilter(*selectedFilter);
    }
    if (!runToAcceptance(dialog)) {
        return QString();
    }
    if (selectedFilter) {
        *selectedFilter = dialog->selectedNameFilter();
    }
    return firstSelected(*dialog);
}

} // namespace

NoHelpButtonDialog::NoHelpButtonDialog(QWidget *parent) : QDialog(parent)
{
    clearHelpButton(*this);
}

NoHelpButtonDialog::~NoHelpButtonDialog()
{
    failures.erase(this);
}

int NoHelpButtonDialog::exec()
{
    const QPointer<NoHelpButtonDialog> self(this);
    int code = Rejected;
    if (failures.count(this) == 0) {
        prepareToShow(*this);
        code = QDialog::exec();
    }
    if (!self) {
        return Rejected;
    }
    const auto failure = failures.find(this);
    if (failure != failures.end()) {
        const std::exception_ptr exception = failure->second;
        failures.erase(failure);
        std::rethrow_exception(exception);
    }
    return code;
}

void NoHelpButtonDialog::endWith(std::exception_ptr failure)
{
    // The first failure is the one to report.
    failures.emplace(this, failure);
    done(Rejected);
}

QMessageBox::StandardButton NoHelpButtonMessageBox::information(QWidget *parent, const QString &title,
                                                                const QString &text,
                                                                QMessageBox::StandardButtons buttons,
                                                                QMessageBox::StandardButton defaultButton)
{
    return runMessageBox(QMessageBox::Information, parent, title, text, buttons, defaultButton);
}

QMessageBox::StandardButton NoHelpButtonMessageBox::warning(QWidget *parent, const QString &title, const QString &text,
                                                            QMessageBox::StandardButtons buttons,
                                                            QMessageBox::StandardButton defaultButton)
{
    return runMessageBox(QMessageBox::Warning, parent, title, text, buttons, defaultButton);
}

QMessageBox::StandardButton NoHelpButtonMessageBox::question(QWidget *parent, const QString &title, const QString &text,
                                                             QMessageBox::StandardButtons buttons,
                                                             QMessageBox::StandardButton defaultButton)
{
    return runMessageBox(QMessageBox::Question, parent, title, text, buttons, defaultButton);
}

QMessageBox::StandardButton NoHelpButtonMessageBox::critical(QWidget *parent, const QString &title, const QString &text)
{
    return runMessageBox(QMessageBox::Critical, parent, title, text, QMessageBox::Ok, QMessageBox::Ok);
}

QString NoHelpButtonInputDialog::getText(QWidget *parent, const QString &title, const QString &label,
                                         QLineEdit::EchoMode echo, const QString &text, bool *ok)
{
    ScopedDialog<QInputDialog> dialog(parent);
    prepareInput(*dialog, title, label);
    dialog->setTextEchoMode(echo);
    dialog->setTextValue(text);
    const bool accepted = runToAcceptance(dialog);
    tell(ok, accepted);
    return accepted ? dialog->textValue() : QString();
}

int NoHelpButtonInputDialog::getInt(QWidget *parent, const QString &title, const QString &label, bool *ok, int value,
                                    int minimum, int maximum)
{
    ScopedDialog<QInputDialog> dialog(parent);
    prepareInput(*dialog, title, label);
    prepareNumberInput(*dialog, QInputDialog::IntInput, minimum, maximum, QString::number(value));
    if (!runToAcceptance(dialog)) {
        tell(ok, false);
        return 0;
    }
    return dialog->intValue();
}

double NoHelpButtonInputDialog::getDouble(QWidget *parent, const QString &title, const QString &label, bool *ok,
                                          double value, double minimum, double maximum)
{
    ScopedDialog<QInputDialog> dialog(parent);
    prepareInput(*dialog, title, label);
    prepareNumberInput(*dialog, QInputDialog::DoubleInput, minimum, maximum, QString::number(value, 'g', 6));
    bool isNumber = false;
    const double number = runToAcceptance(dialog) ? dialog->textValue().toDouble(&isNumber) : 0.0;
    tell(ok, isNumber);
    return number;
}

QString NoHelpButtonFileDialog::getOpenFileName(QWidget *parent, const QString &caption, const QString &directory,
                                                const QString &filter, QString *selectedFilter,
                                                QFileDialog::Options options)
{
    ScopedDialog<QFileDialog> dialog(parent, caption, directory, filter);
    dialog->setFileMode(QFileDialog::ExistingFile);
    return runFileDialog(dialog, selectedFilter, options);
}

QString NoHelpButtonFileDialog::getSaveFileName(QWidget *parent, const QString &caption, const QString &directory,
                                                const QString &filter, QString *selectedFilter,
                                                QFileDialog::Options options)
{
    // A file's path given as the directory would be doubled in the result of the newer releases.
    const QFileInfo target(directory);
    const bool namesFile = !directory.isEmpty() && !target.isDir();
    ScopedDialog<QFileDialog> dialog(parent, caption, namesFile ? target.path() : directory, filter);
    dialog->setFileMode(QFileDialog::AnyFile);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    if (!target.fileName().isEmpty()) {
        dialog->selectFile(target.baseName() + QLatin1Char('.') + target.completeSuffix());
    }
    return runFileDialog(dialog, selectedFilter, options);
}

QString NoHelpButtonFileDialog::getExistingDirectory(QWidget *parent, const QString &caption, const QString &directory,
                                                     QFileDialog::Options options)
{
    ScopedDialog<QFileDialog> dialog(parent, caption, directory);
    dialog->setOptions(options);
    if (options & QFileDialog::ShowDirsOnly) {
        QtCompat::chooseDirectoriesOnly(*dialog);
    } else {
        dialog->setFileMode(QFileDialog::Directory);
    }
    return runToAcceptance(dialog) ? firstSelected(*dialog) : QString();
}
