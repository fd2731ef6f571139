// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef CASHREGISTERWINDOW_H
#define CASHREGISTERWINDOW_H

#include <QMainWindow>

#include <memory>

class LibraryPaycard;
class QPushButton;
class QTreeWidgetItem;
class SettingsDocument;
class SimulatedDriver;

namespace Ui {
class CashRegisterWindow;
}

/// In place of a cash register: the operation under way, the library's entry points, and what passes between
/// the library and the driver. Both must outlive the window.
class CashRegisterWindow : public QMainWindow
{
    Q_OBJECT

public:
    CashRegisterWindow(SimulatedDriver &driver, const LibraryPaycard &library, QWidget *parent = nullptr);
    ~CashRegisterWindow() override;

private:
    void arrange();
    void connectOperation();
    void connectEntryPoints();
    void fillChoices();

    void callLibrary(const QString &function);
    void openFile();
    void loadSample(const QString &name);
    void addFailure();
    void clearFailures();
    void clearJournal();

    void storeOperation();
    void showOperation();
    void showOperators();
    void showSettings();
    void addEntries(QTreeWidgetItem *parent, const SettingsDocument &document);
    void showFailures();
    /// Shows the call that the driver wrote down last, and what it changed.
    void showLastCall();
    void showWholeCall();

    const std::unique_ptr<Ui::CashRegisterWindow> ui;
    SimulatedDriver &driver;
    const LibraryPaycard &library;
};

#endif
