// SPDX-License-Identifier: LGPL-2.1-or-later
#include "cashregisterwindow.h"

#include "journal.h"
#include "testing/librarypaycard.h"
#include "testing/settingsdocument.h"
#include "testing/simulateddriver.h"
#include "toolkit/windows.h"
#include "ui_cashregisterwindow.h"
#include "window/inputs.h"

#include <QClipboard>
#include <QDateTime>
#include <QFileDialog>
#include <QMessageBox>

namespace {

/// Characters of a call that its line in the journal holds; the whole of it is shown beside the journal.
const int LineLength = 200;
/// The width of the smallest screen that everything can be reached on.
const int SmallScreen = 800;
const char *const TimeFormat = "HH:mm:ss.zzz";

const char *const SettingsFilter = "Документы настроек (*.xml);;Все файлы (*)";

QString oneLine(const QString &text)
{
    return text.left(LineLength).simplified();
}

QTreeWidgetItem *addLine(QTreeWidget *list, const QStringList &texts)
{
    auto *line = new QTreeWidgetItem(texts);
    list->addTopLevelItem(line);
    return line;
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

CashRegisterWindow::CashRegisterWindow(SimulatedDriver &hostDriver, const LibraryPaycard &hostLibrary,
                                       Journal &hostJournal, QWidget *parent)
    : QMainWindow(parent),
      ui(std::make_unique<Ui::CashRegisterWindow>()),
      driver(hostDriver),
      library(hostLibrary),
      journal(hostJournal)
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
    connectFailures();
    connectMenus();
    connect(ui->twJournal, &QTreeWidget::currentItemChanged, this, &CashRegisterWindow::showWholeLine);
    connect(&journal, &Journal::grown, this, &CashRegisterWindow::showLastLine);
}

CashRegisterWindow::~CashRegisterWindow() = default;

// All widths follow the font.
void CashRegisterWindow::arrange()
{
    // The longest answer fits, so that the form does not change its width.
    ui->lbCommissionAddition->setMinimumWidth(fontMetrics().horizontalAdvance(LibraryPaycard::inWords(QString(), -1)));
    // With a large font it scrolls sideways, too.
    ui->saCash->setMinimumWidth(
        qMin(ui->cash->minimumSizeHint().width() + style()->pixelMetric(QStyle::PM_ScrollBarExtent), SmallScreen / 2));
    // As light as the page that it is on.
    ui->saFailures->viewport()->setAutoFillBackground(false);
    ui->failures->setAutoFillBackground(false);
    ui->splitterTop->setStretchFactor(1, 1);
    // Weights, not pixels.
    ui->splitterMain->setSizes({540, 180});
    ui->splitterJournal->setStretchFactor(0, 3);
    ui->splitterJournal->setStretchFactor(1, 1);
    const QStringList widest[] = {{"00:00:00.000"}, {"00000,000"}, SimulatedDriver::operations(), {"буфер 1024"}};
    for (int column = 0; column < 4; ++column) {
        int width = 0;
        for (const QString &text : widest[column]) {
            width = qMax(width, fontMetrics().horizontalAdvance(text));
        }
        ui->twJournal->setColumnWidth(column, width + fontMetrics().averageCharWidth() * 3 / 2);
    }
    // Only where nothing else has a use for the same keys.
    ui->twJournal->addAction(ui->actionCopyJournal);
    // The rest is for the frame.
    resize(size().boundedTo(Toolkit::availableGeometry(*this).size() * 0.95));
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

// Each input stores its own value only: those that the form cannot show, such as a code that it does not know, stay
// as they are.
void CashRegisterWindow::connectOperation()
{
    Operation &operation = driver.operation;
    const auto indexChanged = QOverload<int>::of(&QComboBox::currentIndexChanged);
    connect(ui->cmbOperation, indexChanged, this, [&](int index) { operation.code = index; });
    connect(ui->cmbOperator, indexChanged, this,
            [&] { operation.operatorIndex = ui->cmbOperator->currentData().toInt(); });
    const auto valueChanged = QOverload<double>::of(&QDoubleSpinBox::valueChanged);
    connect(ui->spinSum, valueChanged, this, [&](double sum) { operation.sum = sum; });
    connect(ui->spinCommission, valueChanged, this, [&](double commission) { operation.commission = commission; });
    connect(ui->leReference, &QLineEdit::textChanged, this, [&](const QString &text) { operation.reference = text; });
    connect(ui->lePhone, &QLineEdit::textChanged, this, [&](const QString &text) { operation.phone = text; });
    connect(ui->leAccount, &QLineEdit::textChanged, this, [&](const QString &text) { operation.account = text; });
}

void CashRegisterWindow::connectFailures()
{
    connect(ui->pbtnFail, &QPushButton::clicked, this, &CashRegisterWindow::addFailure);
    connect(ui->pbtnRemoveFailure, &QPushButton::clicked, this, &CashRegisterWindow::removeFailure);
    connect(ui->pbtnClearFailures, &QPushButton::clicked, this, &CashRegisterWindow::clearFailures);
    connect(ui->twFailures, &QTreeWidget::currentItemChanged, ui->pbtnRemoveFailure, &QWidget::setEnabled);
    connect(ui->cmbFailing, &QComboBox::currentTextChanged, this, [this](const QString &operation) {
        ui->leArgument->setEnabled(SimulatedDriver::takesArgument(operation));
    });
}

void CashRegisterWindow::connectMenus()
{
    connect(ui->actionOpen, &QAction::triggered, this, &CashRegisterWindow::openFile);
    connect(ui->actionSaveAs, &QAction::triggered, this, &CashRegisterWindow::saveFile);
    connect(ui->actionCopyJournal, &QAction::triggered, this, &CashRegisterWindow::copyJournal);
    connect(ui->actionSaveJournal, &QAction::triggered, this, &CashRegisterWindow::saveJournal);
    connect(ui->actionClearJournal, &QAction::triggered, this, &CashRegisterWindow::clearJournal);
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
    const int result = journal.call(library, function, this);
    menuBar()->setEnabled(true);
    ui->gbEntryPoints->setEnabled(true);
    label->setText(LibraryPaycard::inWords(function, result));
    // Disabling has taken the focus away.
    findChild<QPushButton *>("pbtn" + function)->setFocus();
}

void CashRegisterWindow::openFile()
{
    const QString path =
        QFileDialog::getOpenFileName(this, QStringLiteral("Открыть настройки"), driver.settingsFile(), SettingsFilter);
    QString reason;
    if (!path.isEmpty() && !driver.openSettings(path, &reason)) {
        QMessageBox::critical(this, QStringLiteral("Настройки не открыты"), reason);
    }
    showSettings();
}

void CashRegisterWindow::saveFile()
{
    const QString path = QFileDialog::getSaveFileName(this, QStringLiteral("Сохранить настройки"),
                                                      driver.settingsFile(), SettingsFilter);
    QString reason;
    if (!path.isEmpty() && !driver.saveSettings(path, &reason)) {
        QMessageBox::critical(this, QStringLiteral("Настройки не сохранены"), reason);
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
                          ui->leDetail->text(), ui->spinNth->value(),
                          ui->leArgument->isEnabled() ? ui->leArgument->text() : QString()});
    showFailures();
}

void CashRegisterWindow::removeFailure()
{
    const auto set =
        std::next(driver.failures().cbegin(), ui->twFailures->indexOfTopLevelItem(ui->twFailures->currentItem()));
    // Copies: what is removed holds the originals.
    driver.removeFailure(QString(set.key()), QString(set->failure.argument), set->failure.nth);
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
        const QString when = failure.nth == 0 ? QStringLiteral("каждый (было: %1)").arg(set->calls)
                                              : QStringLiteral("%1-й (было: %2)").arg(failure.nth).arg(set->calls);
        addLine(ui->twFailures,
                {set.key(), failure.argument, when, ui->cmbFault->itemText(static_cast<int>(failure.fault)),
                 QString::number(failure.code), failure.text, failure.detail});
    }
    fitColumns(ui->twFailures);
    ui->pbtnRemoveFailure->setEnabled(false);
    ui->pbtnClearFailures->setEnabled(!failures.isEmpty());
    // Seen from the other page, too: a forgotten failure looks like a defect of the library.
    ui->tabs->setTabText(ui->tabs->indexOf(ui->tabFailures),
                         failures.isEmpty() ? QStringLiteral("Сбои драйвера")
                                            : QStringLiteral("Сбои драйвера (%1)").arg(failures.size()));
}

// An operator that is no longer there is none.
void CashRegisterWindow::showOperation()
{
    const Operation operation = driver.operation;
    ui->cmbOperation->setCurrentIndex(operation.code < ui->cmbOperation->count() ? operation.code : -1);
    ui->spinSum->setValue(operation.sum);
    ui->spinCommission->setValue(operation.commission);
    ui->leReference->setText(operation.reference);
    ui->lePhone->setText(operation.phone);
    ui->leAccount->setText(operation.account);
    ui->cmbOperator->setCurrentIndex(qMax(0, ui->cmbOperator->findData(operation.operatorIndex)));
    driver.operation = operation;
    driver.operation.operatorIndex = ui->cmbOperator->currentData().toInt();
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

void CashRegisterWindow::showLastLine()
{
    const JournalLine line = journal.lines().last();
    const DriverCall &call = line.call;
    QTreeWidgetItem *item = addLine(ui->twJournal, {QDateTime::fromMSecsSinceEpoch(call.time).toString(TimeFormat),
                                                    locale().toString(static_cast<double>(call.took) / 1000.0, 'f', 3),
                                                    call.operation, oneLine(call.arguments), oneLine(call.result)});
    item->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
    // The journal has dropped its oldest lines.
    while (ui->twJournal->topLevelItemCount() > journal.lines().size()) {
        delete ui->twJournal->topLevelItem(0);
    }
    ui->twJournal->scrollToBottom();
    if (line.isFunction) {
        QFont bold = font();
        bold.setBold(true);
        item->setFont(2, bold);
        showFailures(); // how often they were met
    } else if (call.operation == QLatin1String("setSettings")) {
        showSettings();
    } else if (call.operation == QLatin1String("setOperatorIndex")) {
        showOperation();
    }
}

void CashRegisterWindow::showWholeLine()
{
    const int row = ui->twJournal->indexOfTopLevelItem(ui->twJournal->currentItem());
    ui->teCall->setPlainText(row < 0 ? QString() : Journal::text(journal.lines().value(row)));
}

void CashRegisterWindow::copyJournal() const
{
    QStringList texts;
    for (int row = 0; row < ui->twJournal->topLevelItemCount(); ++row) {
        if (ui->twJournal->topLevelItem(row)->isSelected()) {
            texts << Journal::text(journal.lines().at(row));
        }
    }
    QApplication::clipboard()->setText(texts.join(QLatin1Char('\n')));
}

void CashRegisterWindow::saveJournal()
{
    const QString path =
        QFileDialog::getSaveFileName(this, QStringLiteral("Сохранить журнал"), QString(),
                                     QStringLiteral("Текст (*.txt);;Строки JSON (*.jsonl *.json);;Все файлы (*)"));
    const QString problem = path.isEmpty() ? QString() : journal.save(path);
    if (!problem.isEmpty()) {
        QMessageBox::critical(this, QStringLiteral("Журнал не сохранён"), problem);
    }
}

void CashRegisterWindow::clearJournal()
{
    journal.clear();
    ui->twJournal->clear();
    ui->teCall->clear();
}
