// SPDX-License-Identifier: LGPL-2.1-or-later
#include "dialogs/paysystemdialog.h"

#include "common/dialog_about.h"
#include "common/qt_utils.h"
#include "dialogs/driverconversation.h"
#include "dialogs/operatorlistdialog.h"
#include "dialogs/slipdialog.h"
#include "text/drivertext.h"
#include "text/settingsreader.h"
#include "toolkit/texts.h"
#include "window/scopeddialog.h"
#include "window/showntext.h"

#include <QCloseEvent>
#include <QDir>

#include <cwchar>
#include <vector>

using NOX::PayCard::IPayCard;

namespace {

const QString ProtocolKey = QString::fromWCharArray(L"Protocol");
const QString PathACKey = QString::fromWCharArray(L"PathAC");
const QString TimeoutKey = QString::fromWCharArray(L"Timeout");

const int DefaultProtocol = 2;
/// Version that documents for the driver are stamped with.
const int DocumentVersion = 2;

/// A text that the properties cannot do with less than the whole of, in the driver's own characters. Throws an
/// Exception when the driver fails, at first or when it is asked once more, when the text does not fit then either, and
/// when its length is incredible.
template <class Get>
std::wstring wholeText(const QNoxPaycard &driver, Get get)
{
    const int size = driver.defaultBufferSize();
    std::vector<wchar_t> buffer(static_cast<std::size_t>(size));
    const DriverText::Lengths lengths = DriverText::read(buffer, 1, get);
    driver.raiseError(lengths.last);
    const bool isGone = lengths.first > size && lengths.last < 1;
    if (isGone || lengths.last > static_cast<int>(buffer.size())) {
        throw Exception(QObject::tr("Драйвер не дал текст целиком"));
    }
    return std::wstring(buffer.data(), lengths.last < 1 ? 0 : wcsnlen(buffer.data(), buffer.size()));
}

} // namespace

PaySystemDialog::PaySystemDialog(IPayCard *object, QWidget *parent) : FormDialog(parent), driver(object)
{
    ui.setupUi(this);
    connect(ui.lePathACDialog, SIGNAL(textChanged(QString)), SLOT(checkState()));
    fields = {
        {ProtocolKey, ui.cmbProtocol, DefaultProtocol},
        {PathACKey, ui.lePathACDialog},
        {TimeoutKey, ui.spinTimeout},
    };
    on_cmbProtocol_currentIndexChanged(ui.cmbProtocol->currentIndex());
    driver.raiseError(driver.nox()->setPropertiesShown(1));
    shown = true;
    try {
        loadSettings();
        adjustSize();
    } catch (...) {
        tryToHide();
        throw;
    }
}

PaySystemDialog::~PaySystemDialog()
{
    tryToHide();
}

/// Tells the driver, exactly once, that the properties are no longer shown.
void PaySystemDialog::hideFromDriver()
{
    if (shown) {
        shown = false;
        // The driver may delete the window now.
        const QNoxPaycard wrapper(driver);
        wrapper.raiseError(wrapper.nox()->setPropertiesShown(0));
    }
}

/// The same where nothing must be thrown: something else has failed before, or nobody is left to hear of it.
void PaySystemDialog::tryToHide()
{
    try {
        hideFromDriver();
    } catch (...) {
    }
}

int PaySystemDialog::exec()
{
    const QPointer<PaySystemDialog> self(this);
    const int code = FormDialog::exec();
    if (self) {
        hideFromDriver();
    }
    return code;
}

void PaySystemDialog::setError(const QString &text)
{
    ui.lbError->setError(text);
}

void PaySystemDialog::resetError()
{
    setError(notice);
}

void PaySystemDialog::loadSettings()
{
    IPayCard *object = driver.nox();
    loadedXml = wholeText(driver, [=](wchar_t *text, int size) { return object->getSettings(text, size); });
    const QString text = Toolkit::fromWideText(loadedXml.data(), loadedXml.size());
    settings.fromXml(text);
    if (!text.isEmpty() && !SettingsReader(text).read()) {
        notice = tr("Настройки драйвера не читаются. ОК заменит их, Отмена оставит как есть.");
        resetError();
    }
    const std::wstring protocols =
        wholeText(driver, [=](wchar_t *list, int size) { return object->getSettingChoices(L"Protocol", list, size); });
    strToComboBox(ui.cmbProtocol, QString::fromStdWString(protocols), false);
    ShownText::cutItems(ui.cmbProtocol);
    loadFields(fields, settings);
}

bool PaySystemDialog::saveSettings()
{
    saveFields(fields, settings);
    return writeToDriver(settings.toXml(DocumentVersion).toStdWString());
}

/// What Cancel gives the driver: its document written anew, or as it is when it cannot be read.
std::wstring PaySystemDialog::textAsLoaded() const
{
    return notice.isEmpty()
               ? QNoxSettings(Toolkit::fromWideText(loadedXml.data(), loadedXml.size())).toXml(0).toStdWString()
               : loadedXml;
}

/// Gives the driver the text, which is this function's own: the window may go meanwhile. True while it is to be used.
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

/// Has a sub-dialog edit a copy of the settings, which replaces them only if the sub-dialog is accepted.
void PaySystemDialog::edit(Protocol::EditSettings runDialog)
{
    guarded([this, runDialog] {
        QNoxSettings copy = settings;
        if (runDialog(copy, this) == Accepted) {
            settings = copy;
        }
    });
}

void PaySystemDialog::on_pbtnSlip_clicked()
{
    edit(runOn<SlipDialog>);
}

void PaySystemDialog::on_pbtnSettingsButton_clicked()
{
    if (const Protocol::EditSettings editParameters = protocol(cmbData(ui.cmbProtocol)).editParameters) {
        edit(editParameters);
    }
}

void PaySystemDialog::on_pbtnOperators_clicked()
{
    if (protocol(cmbData(ui.cmbProtocol)).operators) {
        edit(runOn<OperatorListDialog>);
    }
}

void PaySystemDialog::on_pbtnPathACDialog_clicked()
{
    const QPointer<PaySystemDialog> self(this);
    const QString path = NoHelpButtonFileDialog::getExistingDirectory(
        this, tr("Укажите каталог обмена с АС"), ui.lePathACDialog->text(), QFileDialog::ShowDirsOnly);
    if (self && !path.isEmpty()) {
        ui.lePathACDialog->setText(path);
    }
}

void PaySystemDialog::on_cmbProtocol_currentIndexChanged(int /*index*/)
{
    const Protocol &current = protocol(cmbData(ui.cmbProtocol));
    ui.lePathACDialog->setEnabled(current.directory);
    ui.pbtnPathACDialog->setEnabled(current.directory);
    ui.spinTimeout->setEnabled(current.timeout);
    ui.pbtnSettingsButton->setEnabled(current.editParameters != nullptr);
    ui.pbtnOperators->setEnabled(current.operators);
    ui.pbtnSlip->setEnabled(current.slip);
}

/// The directory must exist for every protocol. The empty path is the working directory and passes.
void PaySystemDialog::checkState()
{
    const bool exists = QDir(ui.lePathACDialog->text()).exists();
    ui.pbtnOk->setEnabled(exists);
    if (exists) {
        resetError();
    } else {
        setError(tr("Каталог обмена с АС не существует"));
    }
}

void PaySystemDialog::on_pbtnOk_clicked()
{
    reportingFailure([this] {
        if (saveSettings()) {
            accept();
        }
    });
}

/// The driver's document is rewritten on this way out, too, even when nothing was changed.
void PaySystemDialog::reject()
{
    reportingFailure([this] {
        if (writeToDriver(textAsLoaded())) {
            FormDialog::reject();
        }
    });
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

/// The parent has gone, and the driver may go next.
void PaySystemDialog::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::ParentChange && !parentWidget()) {
        tryToHide();
    }
    FormDialog::changeEvent(event);
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

void PaySystemDialog::on_pbtnCancel_clicked()
{
    reject();
}
