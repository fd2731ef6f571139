// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef PREPAREDDRIVER_H
#define PREPAREDDRIVER_H

#include "common/ipaycard.h"
#include "measure.h"

#include <algorithm>
#include <cwchar>
#include <string>

/// A driver that only copies out answers that are ready, so that next to nothing of what is measured is its
/// own; `spent` says how much. Counts its calls.
class PreparedDriver final : public NOX::PayCard::IPayCard
{
public:
    std::wstring settings;
    std::wstring choices = L"0:Файловый обмен;2:CyberPlat;6:ARCUS2;8:INPAS LumiPay;9:ARCUS2 LumiPay;"
                           L"10:Sberbank LumiPay;11:Sberbank;12:INPAS;13:ARCUS2;";
    std::wstring protocol = L"2";
    int operation = 0;

    int calls = 0;
    qint64 spent = 0; ///< nanoseconds

    int getVersion(wchar_t *buffer, int size) override { return text(L"9.11.2", buffer, size); }
    int getDriverName(wchar_t *buffer, int size) override { return text(L"Драйвер", buffer, size); }
    int setPropertiesShown(int /*shown*/) override { return done(); }
    int getResultCode(int *code) override { return number(0, code); }
    int getResultDescription(wchar_t *buffer, int size) override { return text(L"", buffer, size); }
    int getErrorDetail(int *detail) override { return number(0, detail); }
    int getErrorDetailDescription(wchar_t *buffer, int size) override { return text(L"", buffer, size); }
    int getSettings(wchar_t *buffer, int size) override { return text(settings, buffer, size); }
    int setSettings(const wchar_t * /*xml*/) override { return done(); }
    int getSettingValue(const wchar_t * /*name*/, wchar_t *buffer, int size) override
    {
        return text(protocol, buffer, size);
    }
    int getSettingChoices(const wchar_t * /*name*/, wchar_t *buffer, int size) override
    {
        return text(choices, buffer, size);
    }
    int getOperation(int *code) override { return number(operation, code); }
    int getSum(double *sum) override { return number(1000.0, sum); }
    int getPhoneNumber(wchar_t *buffer, int size) override { return text(L"(900)000-00-00", buffer, size); }
    int getReference(wchar_t *buffer, int size) override { return text(L"000123456789", buffer, size); }
    int getAccountNumber(wchar_t *buffer, int size) override { return text(L"40817", buffer, size); }
    int getCommission(double *commission) override { return number(25.0, commission); }
    int setOperatorIndex(int /*index*/) override { return done(); }
    int getOperatorName(wchar_t *buffer, int size) override { return text(L"Оператор", buffer, size); }
    int getOperatorMinSum(double *sum) override { return number(1.0, sum); }
    int getOperatorMaxSum(double *sum) override { return number(15000.0, sum); }
    int getOperatorCommissionType(int *type) override { return number(1, type); }
    int getOperatorCommission(double *commission) override { return number(2.5, commission); }

private:
    int done()
    {
        ++calls;
        return 0;
    }

    template <class Number>
    int number(Number value, Number *out)
    {
        *out = value;
        return done();
    }

    int text(const std::wstring &answer, wchar_t *buffer, int size)
    {
        const qint64 start = now();
        const std::size_t fitting = std::min(answer.size(), static_cast<std::size_t>(size) - 1);
        std::wmemcpy(buffer, answer.data(), fitting);
        buffer[fitting] = L'\0';
        spent += now() - start;
        done();
        return static_cast<int>(answer.size());
    }
};

#endif
