// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "forms/settingsdialog.h"

class QStackedWidget;

/// What the dialogs for a terminal's connection share: a port, and a page of settings for each kind of port.
/// Only the settings of the chosen kind are saved; those of the other kinds stay in the document as they are.
class OrmaSettingsDialog : public SettingsDialog
{
    Q_OBJECT

public:
    using SettingsDialog::SettingsDialog;

    void loadSettings() override;
    void saveSettings() override;

protected:
    struct PortKind
    {
        /// Key among the ports; empty for the serial ports, which have their numbers.
        QString key;
        /// What the kind adds to the list of ports.
        QString choices;
        QWidget *page;
        SettingFields fields;
    };
    static PortKind network(QWidget *page, QLineEdit *address, QSpinBox *port);

    /// Takes the widgets that every form of the family has, and loads the settings. `kinds` are those that only this
    /// form has; they come first in the list of ports. `ownFields` are loaded and saved first, whatever the port.
    template <class Form>
    void fillForm(const Form &form, std::vector<PortKind> kinds = {}, const SettingFields &ownFields = {})
    {
        kinds.push_back(usb(form.pageUsbSettings, form.leUsbVid, form.leUsbPid));
        kinds.push_back(tty(form.pageTtySettings, form.leTtyFileName, form.cmbTtyBaudrate));
        kinds.push_back(serial(form.pageSerialPortSettings, form.cmbSerialBaudrate));
        fillForm(form.cmbPort, form.stackExtSettings, kinds, ownFields);
    }

private slots:
    void on_cmbPort_currentIndexChanged(int index);

private:
    static PortKind usb(QWidget *page, QLineEdit *vid, QLineEdit *pid);
    static PortKind tty(QWidget *page, QLineEdit *name, QComboBox *baudrate);
    static PortKind serial(QWidget *page, QComboBox *baudrate);
    /// Offers the kinds of port in this order; the last one is that of every port which is none of the others.
    void fillForm(QComboBox *ports, QStackedWidget *pages, const std::vector<PortKind> &kinds, SettingFields ownFields);
    const PortKind &currentKind() const;

    QComboBox *portBox = nullptr;
    QStackedWidget *pageStack = nullptr;
    std::vector<PortKind> portKinds;
};

/// The connection of ARCUS2 terminals.
class Arcus2OrmaSettingsDialog : public OrmaSettingsDialog
{
    Q_OBJECT

public:
    Arcus2OrmaSettingsDialog(QNoxSettings &settings, QWidget *parent);
};

/// The connection of INPAS SmartSale terminals.
class InpasOrmaSettingsDialog : public OrmaSettingsDialog
{
    Q_OBJECT

public:
    InpasOrmaSettingsDialog(QNoxSettings &settings, QWidget *parent);
};

/// The connection of Sberbank terminals.
class SberbankOrmaSettingsDialog : public OrmaSettingsDialog
{
    Q_OBJECT

public:
    SberbankOrmaSettingsDialog(QNoxSettings &settings, QWidget *parent);
};
