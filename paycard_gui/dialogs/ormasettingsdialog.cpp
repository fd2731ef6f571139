// SPDX-License-Identifier: LGPL-2.1-or-later
#include "dialogs/ormasettingsdialog.h"

#include "common/qnoxsettings.h"
#include "common/qt_utils.h"
#include "ui_arcus2ormasettingsdialog.h"
#include "ui_inpasormasettingsdialog.h"
#include "ui_sberbankormasettingsdialog.h"

#include <utility>

namespace {

const QString TerminalIDKey = QString::fromWCharArray(L"TerminalID");
const QString PortKey = QString::fromWCharArray(L"Port");
const QString BaudrateKey = QString::fromWCharArray(L"BaudRate");
const QString TTYNameKey = QString::fromWCharArray(L"TTYSuffix");
const QString IPAddressKey = QString::fromWCharArray(L"IPAddress");
const QString IPPortKey = QString::fromWCharArray(L"IPPort");
const QString VidKey = QString::fromWCharArray(L"Vid");
const QString PidKey = QString::fromWCharArray(L"Pid");

const QString PortSerialKey = QString::fromWCharArray(L"COM");
const QString PortTtyKey = QString::fromWCharArray(L"TTY");
const QString PortTcpKey = QString::fromWCharArray(L"TCPIP");
const QString PortUsbKey = QString::fromWCharArray(L"USB");

const int SerialPorts = 100;

QString choice(const QString &key, const QString &caption)
{
    return QString::fromLatin1("%1:%2;").arg(key, caption);
}

QString serialPortChoices()
{
    QString choices;
    for (int n = 0; n < SerialPorts; ++n) {
        const QString number = QString::number(n);
        choices += choice(number, PortSerialKey + number);
    }
    return choices;
}

/// A speed, stored as text. The serial and the device file page show the same setting.
SettingField speed(QComboBox *combo)
{
    // 4800 has the caption of 2400 on purpose: there is no caption of its own for it.
    const QString choices = QObject::tr("1200:1200 бод;2400:2400 бод;4800:2400 бод;9600:9600 бод;"
                                        "19200:19200 бод;38400:38400 бод;57600:57600 бод;115200:115200 бод;");
    strToComboBox(combo, choices, false);
    return {BaudrateKey, combo, QString::fromLatin1("9600")};
}

/// A number shown as four hexadecimal digits. Text that is no number counts as 0.
SettingField hexadecimal(const QString &key, QLineEdit *edit)
{
    return {key, edit, SIGNAL(textChanged(QString)),
            [=](const QVariant &stored) {
                edit->setText(QString::fromLatin1("%1").arg(wholeNumber(stored, 0, 0xFFFF), 4, 16, QLatin1Char('0')));
            },
            [=] { return edit->text().toInt(nullptr, 16); }};
}

} // namespace

OrmaSettingsDialog::PortKind OrmaSettingsDialog::network(QWidget *page, QLineEdit *address, QSpinBox *port)
{
    return {PortTcpKey, choice(PortTcpKey, tr("TCP/IP")), page, {{IPAddressKey, address}, {IPPortKey, port}}};
}

OrmaSettingsDialog::PortKind OrmaSettingsDialog::usb(QWidget *page, QLineEdit *vid, QLineEdit *pid)
{
    return {PortUsbKey, choice(PortUsbKey, tr("USB")), page, {hexadecimal(VidKey, vid), hexadecimal(PidKey, pid)}};
}

OrmaSettingsDialog::PortKind OrmaSettingsDialog::tty(QWidget *page, QLineEdit *name, QComboBox *baudrate)
{
    return {PortTtyKey, choice(PortTtyKey, tr("Файл устройства")), page, {{TTYNameKey, name}, speed(baudrate)}};
}

OrmaSettingsDialog::PortKind OrmaSettingsDialog::serial(QWidget *page, QComboBox *baudrate)
{
    static const QString choices = serialPortChoices();
    return {QString(), choices, page, {speed(baudrate)}};
}

void OrmaSettingsDialog::fillForm(QComboBox *ports, QStackedWidget *pages, const std::vector<PortKind> &kinds,
                                  SettingFields ownFields)
{
    portBox = ports;
    pageStack = pages;
    portKinds = kinds;
    alignLabels();
    QString choices;
    for (const PortKind &kind : portKinds) {
        choices += kind.choices;
    }
    strToComboBox(portBox, choices, false);
    ownFields.emplace_back(PortKey, portBox, QString::fromLatin1("0"));
    setFields(std::move(ownFields));
    loadSettings();
    adjustSize();
}

void OrmaSettingsDialog::loadSettings()
{
    SettingsDialog::loadSettings();
    for (const PortKind &kind : portKinds) {
        loadFields(kind.fields, settings);
    }
}

void OrmaSettingsDialog::saveSettings()
{
    SettingsDialog::saveSettings();
    saveFields(currentKind().fields, settings);
}

const OrmaSettingsDialog::PortKind &OrmaSettingsDialog::currentKind() const
{
    const QString port = cmbDataStr(portBox);
    for (const PortKind &kind : portKinds) {
        if (kind.key == port) {
            return kind;
        }
    }
    return portKinds.back();
}

void OrmaSettingsDialog::on_cmbPort_currentIndexChanged(int /*index*/)
{
    pageStack->setCurrentWidget(currentKind().page);
}

Arcus2OrmaSettingsDialog::Arcus2OrmaSettingsDialog(QNoxSettings &document, QWidget *parent)
    : OrmaSettingsDialog(document, parent)
{
    Ui_Arcus2OrmaSettingsDialog ui;
    ui.setupUi(this);
    fillForm(ui);
}

InpasOrmaSettingsDialog::InpasOrmaSettingsDialog(QNoxSettings &document, QWidget *parent)
    : OrmaSettingsDialog(document, parent)
{
    Ui_InpasOrmaSettingsDialog ui;
    ui.setupUi(this);
    fillForm(ui, {}, {{TerminalIDKey, ui.leTerminalID}});
}

SberbankOrmaSettingsDialog::SberbankOrmaSettingsDialog(QNoxSettings &document, QWidget *parent)
    : OrmaSettingsDialog(document, parent)
{
    Ui_SberbankOrmaSettingsDialog ui;
    ui.setupUi(this);
    fillForm(ui, {network(ui.pageNetSettings, ui.leNetAddress, ui.spinNetPort)});
}
