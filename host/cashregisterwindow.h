// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef CASHREGISTERWINDOW_H
#define CASHREGISTERWINDOW_H

#include <QMainWindow>

#include <memory>

class Journal;
class LibraryPaycard;
class QPushButton;
class QTreeWidgetItem;
class SettingsDocument;
class SimulatedDriver;

namespace Ui {
class CashRegisterWindow;
}

/// In place of a cash register: the operation under way, the library's entry points, and what passes between
/// the library and the driver. All three must outlive the window.
class CashRegisterWindow : public QMainWindow
{
    Q_OBJECT

public:
    CashRegisterWindow(SimulatedDriver &driver, const LibraryPaycard &library, Journal &journal,
                       QWidget *parent = nullptr);
    ~CashRegisterWindow() override;

private:
    void arrange();
    void connectOperation();
    void connectEntryPoints();
    void connectMenus();
    void connectFailures();
    void fillChoices();

    void callLibrary(const QString &function);
    void openFile();
    void loadSample(const QString &name);
    void saveFile();
    void addFailure();
    void removeFailure();
    void clearFailures();
    void saveJournal();
    void copyJournal() const;
    void clearJournal();

    void showOperation();
    void showOperators();
    void showSettings();
    void addEntries(QTreeWidgetItem *parent, const SettingsDocument &document);
    void showFailures();
    /// Shows the journal's last line, and what that call changed.
    void showLastLine();
    void showWholeLine();

    const std::unique_ptr<Ui::CashRegisterWindow> ui;
    SimulatedDriver &driver;
    const LibraryPaycard &library;
    Journal &journal;
};

#endif
