// SPDX-License-Identifier: LGPL-2.1-or-later
#include "dialogs/cyberplatsettingsdialog.h"

#include "forms/formutils.h"
#include "ui_cyberplatsettingsdialog.h"

namespace {

const QString UrlKey = QString::fromWCharArray(L"URL");
const QString CheckTimeoutKey = QString::fromWCharArray(L"CheckTimeout");
const QString UseProxyKey = QString::fromWCharArray(L"UseProxy");
const QString ProxyServerKey = QString::fromWCharArray(L"ProxyServer");
const QString ProxyPortKey = QString::fromWCharArray(L"ProxyPort");
const QString DealerCodeKey = QString::fromWCharArray(L"DealerCode");
const QString PointCodeKey = QString::fromWCharArray(L"PointCode");
const QString OperatorCodeKey = QString::fromWCharArray(L"OperatorCode");
const QString KeyLoadPwdKey = QString::fromWCharArray(L"KeyLoadPwd");
const QString SerialKeyNumberKey = QString::fromWCharArray(L"SerialKeyNumber");

const QString True = QString::fromLatin1("true");
const QString False = QString::fromLatin1("false");

/// A text that is shown as its default also when an empty one is stored.
SettingField textOrDefault(const QString &key, QLineEdit *edit, const QString &def)
{
    return {key,
            [=](const QVariant &stored) {
                const QString text = stored.toString();
                showText(edit, text.isEmpty() ? def : text);
            },
            [=] { return edit->text(); }};
}

/// Stored as a word. Only "true" to the letter checks the box.
SettingField trueOrFalse(const QString &key, QCheckBox *box)
{
    return {key, [=](const QVariant &stored) { box->setChecked(stored.toString() == True); },
            [=] { return box->isChecked() ? True : False; }};
}

} // namespace

CyberPlatSettingsDialog::CyberPlatSettingsDialog(QNoxSettings &document, QWidget *parent)
    : SettingsDialog(document, parent), ui(new Ui_CyberPlatSettingsDialog)
{
    ui->setupUi(this);
    useErrorLine(ui->lbError, tr("Ошибка: "));
    alignLabels(this);
    connect(ui->leURL, SIGNAL(textChanged(QString)), SLOT(checkState()));
    connect(ui->leProxyServer, SIGNAL(textChanged(QString)), SLOT(checkState()));
    connect(ui->leKeyLoadPwd, SIGNAL(textChanged(QString)), SLOT(checkState()));
    connect(ui->checkUseProxy, SIGNAL(toggled(bool)), SLOT(checkState()));

    fields = {
        textOrDefault(UrlKey, ui->leURL, tr("https://payments.cyberplat.example/cgi-bin/es")),
        textOrDefault(ProxyServerKey, ui->leProxyServer, tr("localhost")),
        {KeyLoadPwdKey, ui->leKeyLoadPwd},
        {CheckTimeoutKey, ui->spinCheckTimeout, 60},
        {DealerCodeKey, ui->spinDealerCode},
        {OperatorCodeKey, ui->spinOperatorCode},
        {PointCodeKey, ui->spinPointCode},
        {ProxyPortKey, ui->spinProxyPort, 8080},
        {SerialKeyNumberKey, ui->spinSerialKeyNumber},
        trueOrFalse(UseProxyKey, ui->checkUseProxy),
    };
    loadSettings();
    on_checkUseProxy_toggled(ui->checkUseProxy->isChecked());
}

CyberPlatSettingsDialog::~CyberPlatSettingsDialog() = default;

void CyberPlatSettingsDialog::checkState()
{
    check(
        {
            {ui->leURL->text().isEmpty(), tr("Не указан адрес сервера")},
            {ui->checkUseProxy->isChecked() && ui->leProxyServer->text().isEmpty(),
             tr("Не указан адрес прокси-сервера")},
            {ui->leKeyLoadPwd->text().isEmpty(), tr("Не указан пароль ключа")},
        },
        ui->pbtnOk);
}

void CyberPlatSettingsDialog::on_pbtnOk_clicked()
{
    saveAndAccept();
}

void CyberPlatSettingsDialog::on_pbtnCancel_clicked()
{
    reject();
}

void CyberPlatSettingsDialog::on_checkUseProxy_toggled(bool checked)
{
    ui->leProxyServer->setEnabled(checked);
    ui->spinProxyPort->setEnabled(checked);
}
