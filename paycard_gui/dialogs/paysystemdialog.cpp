// SPDX-License-Identifier: LGPL-2.1-or-later
#include "dialogs/paysystemdialog.h"

#include "common/dialog_about.h"
#include "common/qt_utils.h"
#include "dialogs/arcus2lumipaysettingsdialog.h"
#include "dialogs/arcus2ormasettingsdialog.h"
#include "dialogs/arcus2settingsdialog.h"
#include "dialogs/cyberplatsettingsdialog.h"
#include "dialogs/driverconversation.h"
#include "dialogs/inpaslumipaysettingsdialog.h"
#include "dialogs/inpasormasettingsdialog.h"
#include "dialogs/operatorlistdialog.h"
#include "dialogs/sberbanklumipaysettingsdialog.h"
#include "dialogs/sberbankormasettingsdialog.h"
#include "dialogs/slipdialog.h"
#include "text/settingsreader.h"
#include "toolkit/texts.h"
#include "ui_paysystemdialog.h"
#include "window/scopeddialog.h"
#include "window/showntext.h"

#include <QCloseEvent>
#include <QDir>

#include <iterator>

using NOX::PayCard::IPayCard;

namespace {

const QString ProtocolKey = QString::fromWCharArray(L"Protocol");
const QString PathACKey = QString::fromWCharArray(L"PathAC");
const QString TimeoutKey = QString::fromWCharArray(L"Timeout");

const int DefaultProtocol = 2;
/// Version that documents for the driver are stamped with.
const int DocumentVersion = 2;

} // namespace

/// What the properties offer for a protocol.
struct PaySystemDialog::Protocol
{
    bool directory;
    bool timeout;
    bool slip;
    bool operators;
    /// Opens the protocol's own settings; null where it has none.
    void (PaySystemDialog::*editParameters)();
};

const PaySystemDialog::Protocol &PaySystemDialog::protocol(int number)
{
    static const Protocol unknown = {false, false, false, false, nullptr};
    static const Protocol protocols[] = {
        // directory, time-out, slip, operators, parameters
        /* 0 */ {true, true, true, false, nullptr},
        /* 1 */ unknown,
        /* 2 */ {true, true, true, true, &PaySystemDialog::edit<CyberPlatSettingsDialog>},
        /* 3 */ unknown,
        /* 4 */ {true, false, true, false, nullptr},
        /* 5 */ unknown,
        /* 6 */ {true, true, true, false, &PaySystemDialog::edit<Arcus2SettingsDialog>},
        /* 7 */ {true, true, true, false, nullptr},
        /* 8 */ {true, false, true, false, &PaySystemDialog::edit<InpasLumiPaySettingsDialog>},
        /* 9 */ {true, false, true, false, &PaySystemDialog::edit<Arcus2LumiPaySettingsDialog>},
        /* 10 */ {true, false, true, false, &PaySystemDialog::edit<SberbankLumiPaySettingsDialog>},
        /* 11 */ {true, false, true, false, &PaySystemDialog::edit<SberbankOrmaSettingsDialog>},
        /* 12 */ {true, false, true, false, &PaySystemDialog::edit<InpasOrmaSettingsDialog>},
        /* 13 */ {true, false, true, false, &PaySystemDialog::edit<Arcus2OrmaSettingsDialog>},
    };
    return number >= 0 && number < static_cast<int>(std::size(protocols)) ? protocols[number] : unknown;
}

PaySystemDialog::PropertiesShown::PropertiesShown(const QNoxPaycard &wrapper) : driver(wrapper)
{
    driver.raiseError(driver.nox()->setPropertiesShown(1));
}

PaySystemDialog::PropertiesShown::~PropertiesShown()
{
    try {
        end();
    } catch (...) {
        // Something else has failed before, or nobody is left to hear of it.
    }
}

void PaySystemDialog::PropertiesShown::end()
{
    if (shown) {
        shown = false;
        // The driver may delete the window now, and this with it.
        const QNoxPaycard wrapper(driver);
        wrapper.raiseError(wrapper.nox()->setPropertiesShown(0));
    }
}

PaySystemDialog::PaySystemDialog(IPayCard *object, QWidget *parent)
    : FormDialog(parent), ui(new Ui_PaySystemDialog), driver(object), propertiesShown(driver)
{
    ui->setupUi(this);
    connect(ui->lePathACDialog, SIGNAL(textChanged(QString)), SLOT(checkState()));
    fields = {
        {ProtocolKey, ui->cmbProtocol, DefaultProtocol},
        {PathACKey, ui->lePathACDialog},
        {TimeoutKey, ui->spinTimeout},
    };
    on_cmbProtocol_currentIndexChanged(ui->cmbProtocol->currentIndex());
    loadSettings();
    adjustSize();
}

PaySystemDialog::~PaySystemDialog() = default;

int PaySystemDialog::exec()
{
    const QPointer<PaySystemDialog> self(this);
    const int code = FormDialog::exec();
    if (self) {
        propertiesShown.end();
    }
    return code;
}

void PaySystemDialog::setError(const QString &text)
{
    ui->lbError->setError(text);
}

void PaySystemDialog::resetError()
{
    setError(notice);
}

void PaySystemDialog::loadSettings()
{
    loadedXml = driver.getWhole(&IPayCard::getSettings);
    const QString text = Toolkit::fromWideText(loadedXml.data(), loadedXml.size());
    settings.fromXml(text);
    if (!text.isEmpty() && !SettingsReader(text).read()) {
        notice = tr("Настройки драйвера не читаются. ОК заменит их, Отмена оставит как есть.");
        resetError();
    }
    const std::wstring protocols = driver.getWhole(&IPayCard::getSettingChoices, ProtocolKey.toStdWString().c_str());
    strToComboBox(ui->cmbProtocol, QString::fromStdWString(protocols), false);
    ShownText::cutItems(ui->cmbProtocol);
    loadFields(fields, settings);
}

void PaySystemDialog::saveSettings()
{
    saveFields(fields, settings);
    writeToDriver(settings.toXml(DocumentVersion).toStdWString());
}

/// What Cancel gives the driver: its document written anew, or as it is when it cannot be read.
std::wstring PaySystemDialog::textAsLoaded() const
{
    return notice.isEmpty()
               ? QNoxSettings(Toolkit::fromWideText(loadedXml.data(), loadedXml.size())).toXml(0).toStdWString()
               : loadedXml;
}

/// Gives the driver the text, which is this function's own: the window may go meanwhile. True while it exists.
bool PaySystemDialog::writeToDriver(std::wstring xml)
{
    return converse(this, driver,
                    [&](const QNoxPaycard &wrapper) { wrapper.raiseError(wrapper.nox()->setSettings(xml.c_str())); });
}

/// Runs `action`; what it fails with is shown, and the dialog stays open.
template <class Action>
void PaySystemDialog::reportingFailure(Action action)
{
    const QPointer<PaySystemDialog> self(this);
    guarded([&] {
        try {
            action();
        } catch (const std::exception &failure) {
            if (self) {
                setError(QString::fromUtf8(failure.what()));
            }
        }
    });
}

/// Opens a sub-dialog on a copy of the settings, which replaces them only if the sub-dialog is accepted.
template <class Dialog>
void PaySystemDialog::edit()
{
    guarded([this] {
        QNoxSettings copy = settings;
        const ScopedDialog<Dialog> dialog(copy, this);
        if (dialog->exec() == Accepted) {
            settings = copy;
        }
    });
}

void PaySystemDialog::on_pbtnSlip_clicked()
{
    edit<SlipDialog>();
}

void PaySystemDialog::on_pbtnSettingsButton_clicked()
{
    if (const auto editParameters = protocol(cmbData(ui->cmbProtocol)).editParameters) {
        (this->*editParameters)();
    }
}

void PaySystemDialog::on_pbtnOperators_clicked()
{
    if (protocol(cmbData(ui->cmbProtocol)).operators) {
        edit<OperatorListDialog>();
    }
}

void PaySystemDialog::on_pbtnPathACDialog_clicked()
{
    const QPointer<PaySystemDialog> self(this);
    const QString path = NoHelpButtonFileDialog::getExistingDirectory(
        this, tr("Укажите каталог обмена с АС"), ui->lePathACDialog->text(), QFileDialog::ShowDirsOnly);
    if (self && !path.isEmpty()) {
        ui->lePathACDialog->setText(path);
    }
}

void PaySystemDialog::on_cmbProtocol_currentIndexChanged(int /*index*/)
{
    const Protocol &current = protocol(cmbData(ui->cmbProtocol));
    ui->lePathACDialog->setEnabled(current.directory);
    ui->pbtnPathACDialog->setEnabled(current.directory);
    ui->spinTimeout->setEnabled(current.timeout);
    ui->pbtnSettingsButton->setEnabled(current.editParameters != nullptr);
    ui->pbtnOperators->setEnabled(current.operators);
    ui->pbtnSlip->setEnabled(current.slip);
}

/// The directory must exist for every protocol. The empty path is the working directory and passes.
void PaySystemDialog::checkState()
{
    const bool exists = QDir(ui->lePathACDialog->text()).exists();
    ui->pbtnOk->setEnabled(exists);
    if (exists) {
        resetError();
    } else {
        setError(tr("Каталог обмена с АС не существует"));
    }
}

void PaySystemDialog::on_pbtnOk_clicked()
{
    const QPointer<PaySystemDialog> self(this);
    reportingFailure([&] {
        saveSettings();
        if (self) {
            accept();
        }
    });
}

/// The driver's document is rewritten on this way out, too, even when nothing was changed.
void PaySystemDialog::on_pbtnCancel_clicked()
{
    reportingFailure([this] {
        if (writeToDriver(textAsLoaded())) {
            FormDialog::reject();
        }
    });
}

void PaySystemDialog::reject()
{
    on_pbtnCancel_clicked();
}

/// Closing the window cancels, too, but always closes it: a driver that refuses its own document must not
/// keep the register in this window. The refusal reaches the host. It is closed before the driver hears of it, who
/// may have all windows closed in turn: Qt 5 would go on closing this one without end.
void PaySystemDialog::closeEvent(QCloseEvent *event)
{
    if (isVisible()) {
        hide();
        guarded([this] { writeToDriver(textAsLoaded()); });
    }
    event->accept();
}

void PaySystemDialog::on_pbtnAbout_clicked()
{
    guarded([this] {
        QString name;
        QString version;
        const bool lives = converse(this, driver, [&](const QNoxPaycard &wrapper) {
            name = wrapper.getBuff(&IPayCard::getDriverName);
            version = wrapper.getBuff(&IPayCard::getVersion);
        });
        if (lives) {
            const ScopedDialog<DialogAbout> about(name, version, this);
            about->exec();
        }
    });
}
