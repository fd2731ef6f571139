// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef DRIVER_H
#define DRIVER_H

#include "common/ipaycard.h"

#include <algorithm>
#include <string>

/// Gives the caller as much of the text as fits, and always the length of the whole text. The closing zero is
/// written where there is room for it: a text that fills the buffer exactly has fitted.
inline int giveText(const std::wstring &text, wchar_t *buffer, int size)
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

/// A driver that remembers its settings document and one payment.
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
        // Enough for a number that the library has written; a real driver parses the document.
        const std::wstring start = L"<value name=\"" + std::wstring(name) + L"\">";
        const std::size_t found = settings.find(start);
        const std::size_t value = found == std::wstring::npos ? settings.size() : found + start.size();
        return giveText(settings.substr(value, settings.find(L'<', value) - value), buffer, size);
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

#endif
