// SPDX-License-Identifier: LGPL-2.1-or-later
//
// The smallest host: a driver that remembers its settings document and one payment, and a call of one entry
// point. Usage: minimal_host [--answer] [FUNCTION]; --answer presses the default button of the window.

#include "common/ipaycard.h"
#include "paycard_gui.h"

#include <QApplication>
#include <QPushButton>

#include <algorithm>
#include <cstdio>
#include <string>

namespace {

/// Gives the caller as much of the text as fits, and always the length of the whole text. The closing zero is
/// written where there is room for it: a text that fills the buffer exactly has fitted.
int giveText(const std::wstring &text, wchar_t *buffer, int size)
{
    const int length = static_cast<int>(text.size());
    const int written = std::min(length, size);
    std::copy_n(text.begin(), written, buffer);
    if (written < size) {
        buffer[written] = L'\0';
    }
    return length;
}

template <class Number>
int giveNumber(Number value, Number *out)
{
    *out = value;
    return 0;
}

class Driver final : public NOX::PayCard::IPayCard
{
public:
    int getVersion(wchar_t *buffer, int size) override { return giveText(L"1.0", buffer, size); }
    int getDriverName(wchar_t *buffer, int size) override { return giveText(L"Пример", buffer, size); }
    int setPropertiesShown(int /*shown*/) override { return 0; }

    // This driver never fails. One that does keeps the code and the texts of its last failure for these.
    int getResultCode(int *code) override { return giveNumber(0, code); }
    int getResultDescription(wchar_t *buffer, int size) override { return giveText(L"", buffer, size); }
    int getErrorDetail(int *detail) override { return giveNumber(0, detail); }
    int getErrorDetailDescription(wchar_t *buffer, int size) override { return giveText(L"", buffer, size); }

    int getSettings(wchar_t *buffer, int size) override { return giveText(settings, buffer, size); }
    int setSettings(const wchar_t *xml) override
    {
        settings = xml;
        return 0;
    }
    int getSettingValue(const wchar_t *name, wchar_t *buffer, int size) override
    {
        return giveText(name == std::wstring(L"Protocol") ? L"2" : L"", buffer, size);
    }
    int getSettingChoices(const wchar_t *name, wchar_t *buffer, int size) override
    {
        return giveText(name == std::wstring(L"Protocol") ? L"2:CyberPlat;6:ARCUS2;" : L"", buffer, size);
    }

    int getOperation(int *operation) override { return giveNumber(9, operation); }
    int getSum(double *sum) override { return giveNumber(500.0, sum); }
    int getPhoneNumber(wchar_t *buffer, int size) override { return giveText(L"0000000000", buffer, size); }
    int getReference(wchar_t *buffer, int size) override { return giveText(L"", buffer, size); }
    int getAccountNumber(wchar_t *buffer, int size) override { return giveText(L"42", buffer, size); }
    int getCommission(double *commission) override { return giveNumber(5.0, commission); }
    int setOperatorIndex(int /*index*/) override { return 0; }
    int getOperatorName(wchar_t *buffer, int size) override { return giveText(L"Связь", buffer, size); }
    int getOperatorMinSum(double *sum) override { return giveNumber(10.0, sum); }
    int getOperatorMaxSum(double *sum) override { return giveNumber(15000.0, sum); }
    int getOperatorCommissionType(int *type) override { return giveNumber(1, type); }
    int getOperatorCommission(double *commission) override { return giveNumber(1.0, commission); }

private:
    // A real driver keeps this text in a file. The operator's record is a document within the document.
    std::wstring settings = LR"(<settings version="2"><value name="Protocol">2</value>
<value name="Operators">1</value><value name="Operator0">
&lt;settings&gt;&lt;value name="Name"&gt;Связь&lt;/value&gt;&lt;/settings&gt;</value></settings>)";
};

const struct
{
    const char *name;
    int (*call)(NOX::PayCard::IPayCard *, QWidget *);
} EntryPoints[] = {
    {"ConfirmPayment", ConfirmPayment}, // the one that is called by default
    {"SelectOperator", SelectOperator}, {"CommissionAddition", CommissionAddition},
    {"ShowProperties", ShowProperties}, {"AskParams", AskParams},
};

/// Presses the default button of the modal window that is open, or closes a window that has none to press.
class Cashier : public QObject
{
protected:
    void timerEvent(QTimerEvent * /*event*/) override
    {
        QWidget *window = QApplication::activeModalWidget();
        if (!window) {
            return;
        }
        const QList<QPushButton *> buttons = window->findChildren<QPushButton *>();
        for (QPushButton *button : buttons) {
            if (button->isDefault() && button->isEnabled()) {
                button->click();
                return;
            }
        }
        window->close();
    }
};

} // namespace

int main(int argc, char **argv)
{
    // The windows need an application object; a host has its own.
    const QApplication application(argc, argv);
    QStringList arguments = QApplication::arguments().mid(1);
    const bool unattended = arguments.removeAll("--answer") > 0;
    const QString wanted = arguments.value(0, "ConfirmPayment");

    Cashier cashier;
    if (unattended) {
        cashier.startTimer(50);
    }
    for (const auto &entryPoint : EntryPoints) {
        if (wanted == entryPoint.name) {
            Driver driver;
            std::printf("%s: %d\n", entryPoint.name, entryPoint.call(&driver, nullptr));
            return 0;
        }
    }
    std::fprintf(stderr, "There is no function %s\n", qPrintable(wanted));
    return 2;
}
