// SPDX-License-Identifier: LGPL-2.1-or-later
#include "dialogs/cyberplatsettingsdialog.h"

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

/// A text that is shown as its default also when an empty one is stored.
SettingField textOrDefault(const QString &key, QLineEdit *edit, const QString &def)
{
    return {key, edit, SIGNAL(textChanged(QString)),
            [=](const QVariant &stored) {
                const QString text = stored.toString();
                showText(edit, text.isEmpty() ? def : text);
            },
            [=] { return edit->text(); }};
}

} // namespace

CyberPlatSettingsDialog::CyberPlatSettingsDialog(QNoxSettings &document, QWidget *parent)
    : SettingsDialog(document, parent)
{
    ui.setupUi(this);
    alignLabels();
    setFields({
        textOrDefault(UrlKey, ui.leURL, tr("https://payments.cyberplat.example/cgi-bin/es")),
        textOrDefault(ProxyServerKey, ui.leProxyServer, tr("localhost")),
        {KeyLoadPwdKey, ui.leKeyLoadPwd},
        {CheckTimeoutKey, ui.spinCheckTimeout, 60},
        {DealerCodeKey, ui.spinDealerCode},
        {OperatorCodeKey, ui.spinOperatorCode},
        {PointCodeKey, ui.spinPointCode},
        {ProxyPortKey, ui.spinProxyPort, 8080},
        {SerialKeyNumberKey, ui.spinSerialKeyNumber},
        {UseProxyKey, ui.checkUseProxy},
    });
    loadAndCheck();
    on_checkUseProxy_toggled(ui.checkUseProxy->isChecked());
}

void CyberPlatSettingsDialog::checkState()
{
    check({
        {ui.leURL->text().isEmpty(), tr("Не указан адрес сервера")},
        {ui.checkUseProxy->isChecked() && ui.leProxyServer->text().isEmpty(), tr("Не указан адрес прокси-сервера")},
        {ui.leKeyLoadPwd->text().isEmpty(), tr("Не указан пароль ключа")},
    });
}

void CyberPlatSettingsDialog::on_checkUseProxy_toggled(bool checked)
{
    ui.leProxyServer->setEnabled(checked);
    ui.spinProxyPort->setEnabled(checked);
}
