// SPDX-License-Identifier: LGPL-2.1-or-later
#include "cashregisterwindow.h"

#include "common/inputs.h"
#include "testing/librarypaycard.h"
#include "testing/settingsdocument.h"
#include "testing/simulateddriver.h"
#include "ui_cashregisterwindow.h"

#include <QFileDialog>
#include <QMessageBox>

namespace {

/// Characters of a call that its line in the journal holds; the whole of it is shown beside the journal.
const int LineLength = 200;

QString oneLine(const QString &text)
{
    return text.left(LineLength).simplified();
}

void addLine(QTreeWidget *list, const QStringList &texts)
{
    list->addTopLevelItem(new QTreeWidgetItem(texts));
}

/// The columns as wide as their contents, but none wider than what a reader takes in.
void fitColumns(QTreeWidget *list)
{
    const int characterWidth = list->fontMetrics().averageCharWidth();
    for (int column = 0; column + 1 < list->columnCount(); ++column) {
        list->resizeColumnToContents(column);
        list->setColumnWidth(column, qMin(list->columnWidth(column), 30 * characterWidth) + characterWidth);
    }
}

} // namespace

CashRegisterWindow::CashRegisterWindow(SimulatedDriver &hostDriver, const LibraryPaycard &hostLibrary, QWidget *parent)
    : QMainWindow(parent), ui(std::make_unique<Ui::CashRegisterWindow>()), driver(hostDriver), library(hostLibrary)
{
    ui->setupUi(this);
    prepareInputs(*this);
    arrange();
    fillChoices();
    showSettings();
    showOperation();
    showFailures();
    connectOperation();
    connectEntryPoints();
    connect(ui->actionOpen, &QAction::triggered, this, &CashRegisterWindow::openFile);
    connect(ui->pbtnFail, &QPushButton::clicked, this, &CashRegisterWindow::addFailure);
    connect(ui->pbtnClearFailures, &QPushButton::clicked, this, &CashRegisterWindow::clearFailures);
    connect(ui->actionClearJournal, &QAction::triggered, this, &CashRegisterWindow::clearJournal);
    connect(ui->twJournal, &QTreeWidget::currentItemChanged, this, &CashRegisterWindow::showWholeCall);
    driver.onCall = [this] { showLastCall(); };
}

CashRegisterWindow::~CashRegisterWindow()
{
    driver.onCall = nullptr;
}

// All widths follow the font.
void CashRegisterWindow::arrange()
{
    // The longest answer fits, so that the form does not change its width.
    ui->lbCommissionAddition->setMinimumWidth(fontMetrics().horizontalAdvance(LibraryPaycard::inWords(QString(), -1)));
    ui->saCash->setMinimumWidth(ui->cash->minimumSizeHint().width() + style()->pixelMetric(QStyle::PM_ScrollBarExtent));
    ui->splitterTop->setStretchFactor(1, 1);
    // Weights, not pixels.
    ui->splitterMain->setSizes({500, 200});
    ui->splitterJournal->setStretchFactor(0, 2);
    ui->splitterJournal->setStretchFactor(1, 1);
    const int characterWidth = fontMetrics().averageCharWidth();
    ui->twJournal->setColumnWidth(0, characterWidth * 22);
    ui->twJournal->setColumnWidth(1, characterWidth * 24);
}

void CashRegisterWindow::fillChoices()
{
    ui->cmbFailing->addItems(SimulatedDriver::operations());
    ui->cmbFailing->setCurrentText(QStringLiteral("setSettings"));
    ui->cmbFault->addItems(SimulatedDriver::faults());
    const QStringList samples = SimulatedDriver::samples();
    for (const QString &name : samples) {
        connect(ui->menuSamples->addAction(name), &QAction::triggered, this, [=] { loadSample(name); });
    }
}

void CashRegisterWindow::connectOperation()
{
    const auto store = [this] { storeOperation(); };
    for (QComboBox *combo : {ui->cmbOperation, ui->cmbOperator}) {
        connect(combo, QOverload<int>::of(&QComboBox::currentIndexChanged), this, store);
    }
    for (QDoubleSpinBox *spin : {ui->spinSum, ui->spinCommission}) {
        connect(spin, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this, store);
    }
    for (QLineEdit *edit : {ui->leReference, ui->lePhone, ui->leAccount}) {
        connect(edit, &QLineEdit::textChanged, this, store);
    }
}

// The buttons and the labels of their results are named after the functions.
void CashRegisterWindow::connectEntryPoints()
{
    const QStringList functions = LibraryPaycard::functions();
    for (const QString &function : functions) {
        connect(findChild<QPushButton *>("pbtn" + function), &QPushButton::clicked, this,
                [=] { callLibrary(function); });
    }
}

// One call at a time: the buttons are off while a window of the library is open.
void CashRegisterWindow::callLibrary(const QString &function)
{
    auto *label = findChild<QLabel *>("lb" + function);
    label->setText(QStringLiteral("выполняется…"));
    ui->gbEntryPoints->setEnabled(false);
    menuBar()->setEnabled(false);
    const int result = library.call(function, &driver, this);
    menuBar()->setEnabled(true);
    ui->gbEntryPoints->setEnabled(true);
    label->setText(LibraryPaycard::inWords(function, result));
    // Disabling has taken the focus away.
    findChild<QPushButton *>("pbtn" + function)->setFocus();
}

void CashRegisterWindow::openFile()
{
    const QString path = QFileDialog::getOpenFileName(this, QStringLiteral("Открыть настройки"), driver.settingsFile(),
                                                      QStringLiteral("Документы настроек (*.xml);;Все файлы (*)"));
    QString reason;
    if (!path.isEmpty() && !driver.openSettings(path, &reason)) {
        QMessageBox::critical(this, QStringLiteral("Настройки не открыты"), reason);
    }
    showSettings();
}

// In memory: an open file is not to be overwritten by a sample.
void CashRegisterWindow::loadSample(const QString &name)
{
    driver.closeSettings();
    driver.replaceSettings(SimulatedDriver::sample(name), nullptr);
    showSettings();
}

void CashRegisterWindow::addFailure()
{
    driver.failOperation(ui->cmbFailing->currentText(),
                         {static_cast<Fault>(ui->cmbFault->currentIndex()), ui->spinCode->value(), ui->leText->text(),
                          ui->leDetail->text()});
    showFailures();
}

void CashRegisterWindow::clearFailures()
{
    driver.clearFailures();
    showFailures();
}

void CashRegisterWindow::showFailures()
{
    ui->twFailures->clear();
    const QMultiMap<QString, FailureInForce> &failures = driver.failures();
    for (auto set = failures.cbegin(); set != failures.cend(); ++set) {
        const Failure &failure = set->failure;
        addLine(ui->twFailures, {set.key(), ui->cmbFault->itemText(static_cast<int>(failure.fault)),
                                 QString::number(failure.code), failure.text, failure.detail});
    }
    fitColumns(ui->twFailures);
    ui->pbtnClearFailures->setEnabled(!failures.isEmpty());
    // Seen from the other page, too: a forgotten failure looks like a defect of the library.
    ui->tabs->setTabText(ui->tabs->indexOf(ui->tabFailures),
                         failures.isEmpty() ? QStringLiteral("Сбои драйвера")
                                            : QStringLiteral("Сбои драйвера (%1)").arg(failures.size()));
}

void CashRegisterWindow::storeOperation()
{
    Operation &operation = driver.operation;
    operation.code = ui->cmbOperation->currentIndex();
    operation.sum = ui->spinSum->value();
    operation.commission = ui->spinCommission->value();
    operation.reference = ui->leReference->text();
    operation.phone = ui->lePhone->text();
    operation.account = ui->leAccount->text();
    operation.operatorIndex = ui->cmbOperator->currentData().toInt();
}

// Each change stores the form in the driver, so that the operation is shown from a copy. Stored once more for
// an operator that is no longer there: its place in the form is taken without a change.
void CashRegisterWindow::showOperation()
{
    const Operation operation = driver.operation;
    ui->cmbOperation->setCurrentIndex(operation.code);
    ui->spinSum->setValue(operation.sum);
    ui->spinCommission->setValue(operation.commission);
    ui->leReference->setText(operation.reference);
    ui->lePhone->setText(operation.phone);
    ui->leAccount->setText(operation.account);
    ui->cmbOperator->setCurrentIndex(qMax(0, ui->cmbOperator->findData(operation.operatorIndex)));
    storeOperation();
}

void CashRegisterWindow::showOperators()
{
    const QSignalBlocker blocker(ui->cmbOperator);
    const SettingsDocument document(driver.settings());
    ui->cmbOperator->clear();
    ui->cmbOperator->addItem(QStringLiteral("(не выбран)"), -1);
    const int count = document.value(QStringLiteral("Operators")).toInt();
    for (int index = 0; index < count; ++index) {
        const SettingsDocument record(document.value(QStringLiteral("Operator%1").arg(index)));
        ui->cmbOperator->addItem(record.value(QStringLiteral("Name")), index);
    }
}

void CashRegisterWindow::showSettings()
{
    ui->lbSource->setText(driver.settingsFile().isEmpty() ? QStringLiteral("Документ в памяти, в файл не сохраняется")
                                                          : QStringLiteral("Файл: %1").arg(driver.settingsFile()));
    ui->twSettings->clear();
    addEntries(ui->twSettings->invisibleRootItem(), SettingsDocument(driver.settings()));
    ui->twSettings->expandAll();
    fitColumns(ui->twSettings);
    showOperators();
    showOperation();
}

void CashRegisterWindow::addEntries(QTreeWidgetItem *parent, const SettingsDocument &document)
{
    for (const SettingsEntry &entry : document.entries()) {
        const SettingsDocument nested(entry.text);
        auto *item = new QTreeWidgetItem(parent, {entry.name});
        if (!entry.secret && !nested.entries().isEmpty()) {
            item->setText(1, nested.value(QStringLiteral("Name")));
            addEntries(item, nested);
        } else {
            item->setText(1, oneLine(SettingsDocument::shown(entry)));
        }
    }
}

void CashRegisterWindow::showLastCall()
{
    const DriverCall call = driver.journal().last();
    addLine(ui->twJournal, {call.operation, oneLine(call.arguments), oneLine(call.result)});
    // The driver has dropped its oldest calls.
    while (ui->twJournal->topLevelItemCount() > driver.journal().size()) {
        delete ui->twJournal->topLevelItem(0);
    }
    ui->twJournal->scrollToBottom();
    if (call.operation == QLatin1String("setSettings")) {
        showSettings();
    } else if (call.operation == QLatin1String("setOperatorIndex")) {
        showOperation();
    }
}

void CashRegisterWindow::showWholeCall()
{
    const int row = ui->twJournal->indexOfTopLevelItem(ui->twJournal->currentItem());
    if (row < 0) {
        ui->teCall->clear();
        return;
    }
    const DriverCall call = driver.journal().value(row);
    ui->teCall->setPlainText(QStringLiteral("%1(%2)\n\n%3").arg(call.operation, call.arguments, call.result));
}

void CashRegisterWindow::clearJournal()
{
    driver.clearJournal();
    ui->twJournal->clear();
    ui->teCall->clear();
}
