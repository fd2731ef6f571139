// SPDX-License-Identifier: LGPL-2.1-or-later
#include "testing/contract/contractsession.h"

#include "testing/settingsdocument.h"

#include "text/drivertext.h"

#include <algorithm>
#include <string>

namespace {

typedef int (NOX::PayCard::IPayCard::*TextMember)(wchar_t *, int);

} // namespace

int ContractSession::command(const std::function<int()> &run) const
{
    const int result = attempt(run);
    attempt([&] {
        int number = 0;
        return driver.getResultCode(&number);
    });
    if (result < 0) {
        textOf("getResultDescription");
        attempt([&] {
            int number = 0;
            return driver.getErrorDetail(&number);
        });
        textOf("getErrorDetailDescription");
    }
    return result;
}

int ContractSession::setSettings(const QString &xml) const
{
    const std::wstring text = xml.toStdWString();
    return command([&] { return driver.setSettings(text.c_str()); });
}

QString ContractSession::textOf(const char *name) const
{
    const std::vector<TextGetter> getters = textGetters(driver);
    const auto getter = std::find_if(getters.begin(), getters.end(), [&](const TextGetter &candidate) {
        return QLatin1String(candidate.name) == QLatin1String(name);
    });
    std::vector<wchar_t> buffer(FirstBufferSize);
    const DriverText::Lengths lengths = DriverText::read(
        buffer, 1, [&](wchar_t *to, int size) { return attempt([&] { return getter->get(to, size); }); });
    const bool isWhole = lengths.last >= 0 && static_cast<std::size_t>(lengths.last) <= buffer.size();
    return isWhole ? QString::fromWCharArray(buffer.data(), lengths.last) : QString();
}

bool ContractSession::putBack() const
{
    const int result = setSettings(original.isEmpty() ? rewritten(original, "0") : original);
    const bool isBack = result >= 0 && entriesOf(settings()) == entriesOf(original);
    if (!isBack) {
        report("set-put-back", Severity::Error, QStringLiteral("the settings were not put back"));
    }
    return isBack;
}

std::vector<TextGetter> textGetters(NOX::PayCard::IPayCard &driver)
{
    typedef NOX::PayCard::IPayCard Driver;
    const std::pair<const char *, TextMember> members[] = {
        {"getVersion", &Driver::getVersion},
        {"getDriverName", &Driver::getDriverName},
        {"getResultDescription", &Driver::getResultDescription},
        {"getErrorDetailDescription", &Driver::getErrorDetailDescription},
        {"getSettings", &Driver::getSettings},
        {"getPhoneNumber", &Driver::getPhoneNumber},
        {"getReference", &Driver::getReference},
        {"getAccountNumber", &Driver::getAccountNumber},
        {"getOperatorName", &Driver::getOperatorName},
    };
    std::vector<TextGetter> getters;
    for (const auto &member : members) {
        const TextMember get = member.second;
        getters.push_back({member.first, [&driver, get](wchar_t *to, int size) { return (driver.*get)(to, size); }});
    }
    getters.push_back({"getSettingValue(\"Protocol\")",
                       [&](wchar_t *to, int size) { return driver.getSettingValue(L"Protocol", to, size); }});
    getters.push_back({"getSettingChoices(\"Protocol\")",
                       [&](wchar_t *to, int size) { return driver.getSettingChoices(L"Protocol", to, size); }});
    return getters;
}

QMap<QString, QString> entriesOf(const QString &xml)
{
    QMap<QString, QString> entries;
    const SettingsDocument document(xml);
    for (const SettingsEntry &entry : document.entries()) {
        entries.insert(entry.name, entry.text);
    }
    return entries;
}

QString rewritten(const QString &xml, const char *version)
{
    const QMap<QString, QString> entries = entriesOf(xml);
    SettingsDocument document(QStringLiteral("<settings version=\"%1\"/>").arg(QLatin1String(version)));
    for (auto entry = entries.cbegin(); entry != entries.cend(); ++entry) {
        document.setValue(entry.key(), entry.value());
    }
    return document.toXml();
}
