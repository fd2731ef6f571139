// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QPointer>

#include <memory>
#include <utility>

/// A dialog that lives for a scope, as a local object would, except that its parent may delete it first: the
/// event loop that runs inside exec() can end any widget of the host.
template <class Dialog>
class ScopedDialog
{
public:
    template <class... Arguments>
    explicit ScopedDialog(Arguments &&...arguments)
    {
        // Memory may run out for the pointer after there was enough for the dialog.
        std::unique_ptr<Dialog> made(new Dialog(std::forward<Arguments>(arguments)...));
        dialog = made.get();
        static_cast<void>(made.release());
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

/// Runs a dialog modally on a document; gives its dialog code.
template <class Dialog, class Document>
int runOn(Document &document, QWidget *parent)
{
    const ScopedDialog<Dialog> dialog(document, parent);
    return dialog->exec();
}
