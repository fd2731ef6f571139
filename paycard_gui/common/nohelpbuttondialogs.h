// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef NOHELPBUTTONDIALOGS_H
#define NOHELPBUTTONDIALOGS_H

#include "common/paycard_export.h"

#include <QDialog>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>

#include <exception>

/// QDialog::exec() is virtual from Qt 5 on.
#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
#define PAYCARD_OVERRIDES_EXEC override
#else
#define PAYCARD_OVERRIDES_EXEC
#endif

/// Base of every dialog of the driver family: no context-help button, failures in slots that reach the caller of
/// exec(), never the last window of an application, which then would quit, above other windows, and in sight above an
/// on-screen keyboard. It leaves the widgets and the size of a dialog alone.
class PAYCARD_EXPORT NoHelpButtonDialog : public QDialog
{
    Q_OBJECT

public:
    /// `parent` may be null.
    explicit NoHelpButtonDialog(QWidget *parent = nullptr);
    ~NoHelpButtonDialog() override;

    /// Runs the dialog modally. What a slot kept with guarded() is rethrown here, once the event loop has
    /// returned; if it was kept before, during construction, the dialog is not shown at all. A dialog that
    /// its parent deletes meanwhile gives Rejected.
    int exec() PAYCARD_OVERRIDES_EXEC;

protected:
    /// Runs the body of a slot. Exceptions must not unwind through the toolkit's event loop, which ends the
    /// process: one of any type is kept, the dialog ends, and exec() throws it on.
    /// When the dialog went meanwhile, with its parent, nobody is left to hear of it.
    template <class Action>
    void guarded(Action action)
    {
        const QPointer<NoHelpButtonDialog> self(this);
        try {
            action();
        } catch (...) {
            if (self) {
                endWith(std::current_exception());
            }
        }
    }

private:
    void endWith(std::exception_ptr failure);
};

/// The toolkit's message boxes without the context-help button. The box is modal; the button that closed it
/// is returned, NoButton if the box went with its parent. A text for which the screen is too small scrolls.
class PAYCARD_EXPORT NoHelpButtonMessageBox
{
public:
    NoHelpButtonMessageBox() = delete;

    /// The buttons that the toolkit's own question has by default.
    static QMessageBox::StandardButtons questionButtons()
    {
#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
        return QMessageBox::Yes | QMessageBox::No;
#else
        return QMessageBox::Ok;
#endif
    }

    /// For something to know.
    static QMessageBox::StandardButton information(QWidget *parent, const QString &title, const QString &text,
                                                   QMessageBox::StandardButtons buttons = QMessageBox::Ok,
                                                   QMessageBox::StandardButton defaultButton = QMessageBox::NoButton);
    /// For something to beware of.
    static QMessageBox::StandardButton warning(QWidget *parent, const QString &title, const QString &text,
                                               QMessageBox::StandardButtons buttons = QMessageBox::Ok,
                                               QMessageBox::StandardButton defaultButton = QMessageBox::NoButton);
    /// For something to decide.
    static QMessageBox::StandardButton question(QWidget *parent, const QString &title, const QString &text,
                                                QMessageBox::StandardButtons buttons = questionButtons(),
                                                QMessageBox::StandardButton defaultButton = QMessageBox::NoButton);
    /// With an OK button only.
    static QMessageBox::StandardButton critical(QWidget *parent, const QString &title, const QString &text);
};

/// The toolkit's input dialogs without the context-help button. `ok`, where given, tells whether the dialog
/// was accepted, but see getInt() and getDouble().
class PAYCARD_EXPORT NoHelpButtonInputDialog
{
public:
    NoHelpButtonInputDialog() = delete;

    /// The entered text, null when cancelled.
    static QString getText(QWidget *parent, const QString &title, const QString &label, QLineEdit::EchoMode echo,
                           const QString &text, bool *ok = nullptr);
    /// The entered number, 0 when cancelled. `ok` is set to false when cancelled and otherwise left alone.
    /// The limits and the value do not reach the integer input, which keeps the range 0 to 99 and starts at
    /// 0: the callers in the field count on it.
    static int getInt(QWidget *parent, const QString &title, const QString &label, bool *ok, int value, int minimum,
                      int maximum);
    /// The number that the user has entered; `value` with 6 significant digits when the input was left alone,
    /// whatever it shows; 0.0 when cancelled. `ok` tells whether there is a number.
    static double getDouble(QWidget *parent, const QString &title, const QString &label, bool *ok, double value,
                            double minimum, double maximum);
};

/// The toolkit's file dialogs without the context-help button. Each returns the chosen path, null when
/// cancelled.
class PAYCARD_EXPORT NoHelpButtonFileDialog
{
public:
    NoHelpButtonFileDialog() = delete;

    /// `selectedFilter`, where given, names the filter to start with and gets the one in use at the end.
    static QString getOpenFileName(QWidget *parent = nullptr, const QString &caption = QString(),
                                   const QString &directory = QString(), const QString &filter = QString(),
                                   QString *selectedFilter = nullptr,
                                   QFileDialog::Options options = QFileDialog::Options());
    /// `directory` may name a file, which is then preselected (with a lone dot at the end when it has no
    /// suffix). No suffix is added to the name returned.
    static QString getSaveFileName(QWidget *parent = nullptr, const QString &caption = QString(),
                                   const QString &directory = QString(), const QString &filter = QString(),
                                   QString *selectedFilter = nullptr,
                                   QFileDialog::Options options = QFileDialog::Options());
    /// `directory` is where the choice starts.
    static QString getExistingDirectory(QWidget *parent = nullptr, const QString &caption = QString(),
                                        const QString &directory = QString(),
                                        QFileDialog::Options options = QFileDialog::ShowDirsOnly);
};

#endif
