// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef SCOPEDDIALOG_H
#define SCOPEDDIALOG_H

#include <QPointer>

#include <utility>

/// A dialog that lives for a scope, as a local object would, except that its parent may delete it first: the
/// event loop that runs inside exec() can end any widget of the host.
template <class Dialog>
class ScopedDialog
{
public:
    template <class... Arguments>
    explicit ScopedDialog(Arguments &&...arguments) : dialog(new Dialog(std::forward<Arguments>(arguments)...))
    {
    }
    ScopedDialog(const ScopedDialog &) = delete;
    ScopedDialog &operator=(const ScopedDialog &) = delete;
    ~ScopedDialog() { delete dialog.data(); }

    /// False once the parent has deleted the dialog.
    explicit operator bool() const { return !dialog.isNull(); }
    Dialog *operator->() const { return dialog.data(); }
    Dialog &operator*() const { return *dialog; }

private:
    QPointer<Dialog> dialog;
};

#endif
