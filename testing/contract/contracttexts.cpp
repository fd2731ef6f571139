// SPDX-License-Identifier: LGPL-2.1-or-later
//
// Getters of texts, and names of settings.

#include "testing/contract/contractrules.h"

#include "text/drivertext.h"

#include <algorithm>

namespace {

/// Room for `size` characters, and an address also for none.
std::vector<wchar_t> bufferOf(int size)
{
    return std::vector<wchar_t>(static_cast<std::size_t>(size) + 1);
}

void probeText(const TextGetter &getter, const ContractReport &report)
{
    const auto ask = [&](std::vector<wchar_t> &buffer, int size) {
        return ContractSession::attempt([&] { return getter.get(buffer.data(), size); });
    };
    std::vector<wchar_t> first = bufferOf(FirstBufferSize);
    const int length = ask(first, FirstBufferSize);
    if (!DriverText::isCredible(length)) {
        return;
    }
    // The longest comes first: it has the whole text, which the others have to agree with.
    std::vector<wchar_t> whole;
    for (const int size : {std::max(length, 0) + 1, std::max(length, 0), FirstBufferSize, 1, 0}) {
        std::vector<wchar_t> buffer = bufferOf(size);
        const int again = ask(buffer, size);
        if (again != length) {
            report("text-length", Severity::Error,
                   QStringLiteral("%1 gave %2 with a buffer of %3 and %4 with one of %5")
                       .arg(QLatin1String(getter.name))
                       .arg(length)
                       .arg(FirstBufferSize)
                       .arg(again)
                       .arg(size));
            return;
        }
        if (whole.empty()) {
            whole = buffer;
        }
        // A text that is cut may be closed at its last place.
        const int same = std::min(length, size) - (length > size && size > 0 && buffer[size_t(size) - 1] == L'\0');
        if (same > 0 && !std::equal(buffer.begin(), buffer.begin() + same, whole.begin())) {
            report(
                "text-same", Severity::Error,
                QStringLiteral("%1 gave another text with a buffer of %2").arg(QLatin1String(getter.name)).arg(size));
            return;
        }
    }
}

} // namespace

void probeTexts(ContractSession &session)
{
    const std::vector<TextGetter> getters = textGetters(session.driver);
    for (const TextGetter &getter : getters) {
        probeText(getter, session.report);
    }
}

void probeSettingNames(ContractSession &session)
{
    for (const wchar_t *name : {L"NoSuchSetting", L"Нет такой настройки", L"<&\">", L""}) {
        for (const char *operation : {"getSettingValue", "getSettingChoices"}) {
            std::vector<wchar_t> buffer = bufferOf(FirstBufferSize);
            const bool isValue = operation == QLatin1String("getSettingValue");
            const int length = ContractSession::attempt([&] {
                return isValue ? session.driver.getSettingValue(name, buffer.data(), FirstBufferSize)
                               : session.driver.getSettingChoices(name, buffer.data(), FirstBufferSize);
            });
            if (length > 0) {
                session.report("setting-names", Severity::Issue,
                               QStringLiteral("%1(\"%2\") gave %3")
                                   .arg(QLatin1String(operation), QString::fromWCharArray(name))
                                   .arg(length));
            }
        }
    }
}
