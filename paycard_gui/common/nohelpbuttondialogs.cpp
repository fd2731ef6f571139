// SPDX-License-Identifier: LGPL-2.1-or-later
#include "common/nohelpbuttondialogs.h"

#include "toolkit/windows.h"
#include "window/guestwindow.h"
#include "window/inputs.h"
#include "window/scopeddialog.h"
#include "window/windowfit.h"

#include <QFileInfo>
#include <QInputDialog>
#include <QPointer>

#include <map>

namespace {

// The failures of dialogs that are about to end; null for the others, whose place is kept so that no memory is
// needed when one fails. Beside the dialogs because other modules share the base class's layout; only the GUI
// thread comes here.
std::map<const NoHelpButtonDialog *, std::exception_ptr> failures;

template <class Dialog, class Fit>
int run(const ScopedDialog<Dialog> &dialog, Fit fit)
{
    makeGuest(*dialog);
    prepareInputs(*dialog);
    fit(*dialog);
    showOnTop(*dialog);
    return dialog->exec();
}

QMessageBox::StandardButton runMessageBox(QMessageBox::Icon icon, QWidget *parent, const QString &title,
                                          const QString &text, QMessageBox::StandardButtons buttons,
                                          QMessageBox::StandardButton defaultButton)
{
    ScopedDialog<QMessageBox> box(icon, title, text, buttons, parent, Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint);
    box->setDefaultButton(defaultButton);
    return static_cast<QMessageBox::StandardButton>(run(box, fitMessageBox));
}

/// True when the dialog was accepted (and still exists).
template <class Dialog>
bool runToAcceptance(const ScopedDialog<Dialog> &dialog)
{
    return run(dialog, fitToolkitDialog) == QDialog::Accepted && dialog;
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

/// Notices when the user changes the number of an input dialog.
class InputObserver : public QObject
{
    Q_OBJECT

public:
    explicit InputObserver(const QInputDialog &dialog)
    {
        connect(&dialog, SIGNAL(doubleValueChanged(double)), SLOT(noteInput()));
        // Also the number that is there already, typed anew.
        connect(dialog.findChild<QLineEdit *>(QLatin1String("qt_spinbox_lineedit")), SIGNAL(textEdited(QString)),
                SLOT(noteInput()));
    }
    bool hasInput() const { return input; }

private slots:
    void noteInput() { input = true; }

private:
    bool input = false;
};

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

QString runFileDialog(const ScopedDialog<QFileDialog> &dialog, QString *selectedFilter, QFileDialog::Options options,
                      const QString &file = QString())
{
    // Setting modes changes options, so these come after.
    dialog->setOptions(options);
    if (selectedFilter && !selectedFilter->isEmpty()) {
        dialog->selectNameFilter(*selectedFilter);
    }
    if (!file.isEmpty()) {
        // After the filter, which would put its own suffix in the place of the name's.
        dialog->selectFile(file);
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
    makeGuest(*this);
    failures[this] = nullptr;
}

NoHelpButtonDialog::~NoHelpButtonDialog()
{
    try {
        // While this one is whole: when the last modal window goes, the oldest toolkit remembers the one that the mouse
        // is over, and would come back to it though it was half destroyed.
        const QList<QDialog *> opened = findChildren<QDialog *>();
        for (QDialog *dialog : opened) {
            dialog->hide();
        }
    } catch (...) {
        // There is no memory; they go with this one.
    }
    failures.erase(this);
}

int NoHelpButtonDialog::exec()
{
    const QPointer<NoHelpButtonDialog> self(this);
    int code = Rejected;
    if (!failures[this]) {
        showOnTop(*this);
        code = QDialog::exec();
    }
    if (!self) {
        return Rejected;
    }
    std::exception_ptr failure;
    std::swap(failure, failures[this]);
    if (failure) {
        std::rethrow_exception(failure);
    }
    return code;
}

void NoHelpButtonDialog::endWith(std::exception_ptr failure)
{
    // The first failure is the one to report.
    std::exception_ptr &kept = failures[this];
    if (!kept) {
        kept = std::move(failure);
    }
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
    liftLengthLimit(dialog->findChild<QLineEdit *>());
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
    const InputObserver observer(*dialog);
    bool isNumber = false;
    double number = 0.0;
    if (runToAcceptance(dialog)) {
        number = dialog->textValue().toDouble(&isNumber);
        if (observer.hasInput()) {
            number = dialog->doubleValue();
            isNumber = true;
        }
    }
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
    const QString file = target.baseName() + QLatin1Char('.') + target.completeSuffix();
    return runFileDialog(dialog, selectedFilter, options, target.fileName().isEmpty() ? QString() : file);
}

QString NoHelpButtonFileDialog::getExistingDirectory(QWidget *parent, const QString &caption, const QString &directory,
                                                     QFileDialog::Options options)
{
    ScopedDialog<QFileDialog> dialog(parent, caption, directory);
    dialog->setOptions(options);
    if (options & QFileDialog::ShowDirsOnly) {
        Toolkit::chooseDirectoriesOnly(*dialog);
    } else {
        dialog->setFileMode(QFileDialog::Directory);
    }
    return runToAcceptance(dialog) ? firstSelected(*dialog) : QString();
}

#include "nohelpbuttondialogs.moc"
