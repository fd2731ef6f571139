// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef BROKENDRIVER_H
#define BROKENDRIVER_H

#include "testing/forwardingpaycard.h"
#include "testing/simulateddriver.h"

#include <QThread>

#include <algorithm>
#include <cmath>
#include <vector>

/// The simulated driver, with answers that can be spoiled.
class BrokenDriver final : public ForwardingPayCard
{
public:
    struct Answer
    {
        QString operation; ///< with the name of the setting
        wchar_t *to;
        int size;
        int result;

        void give(const QString &text)
        {
            const std::wstring wide = text.toStdWString() + L'\0';
            result = static_cast<int>(wide.size()) - 1;
            std::copy_n(wide.begin(), std::min(result + 1, size), to);
        }
    };

    BrokenDriver() : ForwardingPayCard(simulated)
    {
        simulated.replaceSettings(SimulatedDriver::sample("cyberplat"), nullptr);
        simulated.operation.operatorIndex = 0;
        simulated.operation.phone = "0000000000";
        simulated.onCall = [this] { simulated.clearJournal(); };
    }

    SimulatedDriver simulated;
    std::vector<std::function<void(Answer &)>> onText;
    std::function<void(const QString &operation, double &value)> onNumber = [](const QString &, double &) {};
    /// False when the document is to be refused.
    std::function<bool(QString &xml)> onSettings = [](QString &) { return true; };
    std::function<void()> onShown = [] {};
    std::vector<QByteArray> kept;

    int setPropertiesShown(int shown) override
    {
        onShown();
        return ForwardingPayCard::setPropertiesShown(shown);
    }
    int setSettings(const wchar_t *xml) override
    {
        QString text = QString::fromWCharArray(xml);
        return ForwardingPayCard::setSettings(onSettings(text) ? text.toStdWString().c_str() : L"refused");
    }

protected:
    int text(const char *operation, const wchar_t *setting, const TextGetter &get, wchar_t *to, int size) override
    {
        const QString name = operation + (setting ? " " + QString::fromWCharArray(setting) : QString());
        Answer answer = {name, to, size, get(to, size)};
        for (const auto &spoil : onText) {
            spoil(answer);
        }
        return answer.result;
    }
    int number(const char *operation, const NumberGetter &get, int *to) override
    {
        const int result = get(to);
        double value = *to;
        onNumber(operation, value);
        *to = static_cast<int>(value);
        return result;
    }
    int amount(const char *operation, const AmountGetter &get, double *to) override
    {
        const int result = get(to);
        onNumber(operation, *to);
        return result;
    }
};

/// A way to break the contract, and the rules that it breaks.
struct Breakage
{
    typedef std::function<void(BrokenDriver &)> Arrange;

    const char *name;
    const char *rules;
    Arrange arrange;

    static Arrange text(const char *operation, const std::function<void(BrokenDriver::Answer &)> &spoil)
    {
        return [=](BrokenDriver &driver) {
            driver.onText.push_back([=](BrokenDriver::Answer &answer) {
                if (answer.operation == QLatin1String(operation)) {
                    spoil(answer);
                }
            });
        };
    }
    static Arrange choices(const char *list)
    {
        return text("getSettingChoices Protocol", [=](BrokenDriver::Answer &answer) { answer.give(list); });
    }
    static Arrange number(const char *operation, double value)
    {
        return [=](BrokenDriver &driver) {
            driver.onNumber = [=](const QString &name, double &number) {
                number = name == QLatin1String(operation) ? value : number;
            };
        };
    }
    static Arrange document(const char *from, const char *to)
    {
        return [=](BrokenDriver &driver) {
            driver.simulated.damageSettings(driver.simulated.settings().replace(from, to));
        };
    }
    static Arrange setting(const std::function<bool(BrokenDriver &, QString &)> &take)
    {
        return
            [=](BrokenDriver &driver) { driver.onSettings = [=, &driver](QString &xml) { return take(driver, xml); }; };
    }
    static Arrange fault(const char *operation, Fault fault, const char *detail = "")
    {
        return [=](BrokenDriver &driver) { driver.simulated.failOperation(operation, {fault, 12, "сбой", detail}); };
    }
};

inline std::vector<Breakage> breakages()
{
    typedef BrokenDriver::Answer Answer;
    typedef Breakage B;
    const char *const version = "getVersion";
    return {
        {"nothing", "", [](BrokenDriver &) {}},
        {"short length", "text-length", B::text(version, [](Answer &a) { a.result = std::min(a.result, a.size); })},
        {"zero inside", "text-length",
         B::text(version, [](Answer &a) { std::fill_n(a.to, std::min(a.size, 1), L'\0'); })},
        {"hole", "text-written",
         B::text(version, [](Answer &a) { std::copy_n(a.to + a.size, std::min(a.size, 1), a.to); })},
        {"unclosed", "text-closed",
         B::text(version, [](Answer &a) { std::fill_n(a.to + a.result, a.size - a.result > 0 ? 1 : 0, L'x'); })},
        {"behind", "text-guard", B::text(version, [](Answer &a) { a.to[a.size] = L'\0'; })},
        {"before", "text-guard", B::text(version, [](Answer &a) { a.to[-1] = L'\0'; })},
        {"another text", "text-same",
         B::text(version, [](Answer &a) { std::fill_n(a.to, std::min(a.size, 1), L'0' + a.size % 10); })},
        {"half a pair", "text-characters",
         B::text(version, [](Answer &a) { std::fill_n(a.to, std::min(a.size, 1), wchar_t(0xD83D)); })},
        {"no code point", "text-characters",
         B::text(version, [](Answer &a) { std::fill_n(a.to, std::min(a.size, 1), wchar_t(0x110000)); })},
        {"any name", "setting-names", B::text("getSettingValue NoSuchSetting", [](Answer &a) { a.give("?"); })},
        {"negative length", "getter-result", B::text(version, [](Answer &a) { a.result = -1; })},
        {"no number", "number-written", B::fault("getSum", Fault::NoText)},
        {"no amount", "getter-result number-written", B::fault("getOperatorMinSum", Fault::Refuse)},
        {"endless", "amount-finite", B::number("getSum", HUGE_VAL)},
        {"not a number", "amount-finite", B::number("getCommission", std::nan(""))},
        {"operation 11", "operation-code", B::number("getOperation", 11)},
        {"minimum", "operator-limits", B::number("getOperatorMinSum", 1e9)},
        {"per cent", "operator-commission", B::number("getOperatorCommission", -1)},
        {"malformed", "settings-form", B::document("</settings>", "")},
        {"named twice", "settings-names", B::document("\"IPPort\"", "\"IPAddress\"")},
        {"nested", "settings-nested", B::document("&lt;settings", "&lt;setting")},
        {"misspelt", "settings-keys", B::document("\"ComissionType", "\"CommissionType")},
        {"above range", "settings-values", B::document("\"CheckTimeout\">60", "\"CheckTimeout\">1000")},
        {"no word", "settings-values", B::document("\"UseProxy\">true", "\"UseProxy\">True")},
        {"too many", "settings-operators", B::document("\"Operators\">", "\"Operators\">1")},
        {"open end", "protocol-choices", B::choices("2:A;6:B")},
        {"word as key", "protocol-choices", B::choices("2:A;B:B;")},
        {"two of a kind", "protocol-choices", B::choices("2:A;6:B;6:C;")},
        {"not listed", "protocol-listed", B::choices("6:A;7:B;")},
        {"other protocol", "protocol-value", B::text("getSettingValue Protocol", [](Answer &a) { a.give("6"); })},
        {"not shown", "properties-shown", B::fault("setPropertiesShown", Fault::Refuse)},
        {"old code", "success-code", B::number("getResultCode", 12)},
        {"no operator", "operator-index", B::fault("setOperatorIndex", Fault::Refuse)},
        {"basic plane", "set-read-back", B::setting([](BrokenDriver &, QString &xml) {
             xml.remove(QChar(0xD83D)).remove(QChar(0xDCB3));
             return true;
         })},
        {"keeps old keys", "set-read-back", B::setting([](BrokenDriver &, QString &xml) {
             xml.replace("<settings version=\"2\"/>", "<settings><value name='Own'/></settings>");
             return true;
         })},
        {"version 2", "set-versions", B::setting([](BrokenDriver &, QString &xml) {
             const bool isOwn = xml == SimulatedDriver::sample("cyberplat") || xml.contains("Свой");
             return isOwn || !xml.contains("<settings version=\"2\">");
         })},
        {"not version 0", "set-versions set-again",
         B::setting([](BrokenDriver &, QString &xml) { return !xml.contains("<settings version=\"0\""); })},
        {"sorted", "set-again", B::setting([](BrokenDriver &driver, QString &xml) {
             return xml != driver.simulated.settings() || xml.startsWith("<settings version=\"2\"");
         })},
        {"takes all", "set-refused", B::setting([](BrokenDriver &driver, QString &xml) {
             driver.simulated.damageSettings(xml);
             return true;
         })},
        {"gone when refused", "set-refused", B::setting([](BrokenDriver &driver, QString &xml) {
             if (!xml.contains("/")) {
                 driver.simulated.damageSettings("<settings/>");
             }
             return true;
         })},
        {"no code", "failure-code", B::number("getResultCode", 0)},
        {"no description", "failure-text", B::text("getResultDescription", [](Answer &a) { a.give(""); })},
        {"no detail", "failure-text", B::number("getErrorDetail", 0)},
        {"not put back", "set-put-back", B::setting([refused = false](BrokenDriver &driver, QString &) mutable {
             return driver.simulated.settings() != "<settings version=\"2\"/>" || std::exchange(refused, true);
         })},
        {"grows", "memory",
         [](BrokenDriver &driver) {
             driver.onText.push_back([&driver](Answer &) { driver.kept.push_back(QByteArray(64, ' ')); });
         }},
        {"slow", "time",
         B::text(version,
                 [slept = false](Answer &) mutable { QThread::msleep(std::exchange(slept, true) ? 0 : 150); })},
        {"throws", "no-throw", B::fault("getSum", Fault::ThrowStandard)},
        {"throws a number", "no-throw", B::fault(version, Fault::ThrowOther)},
        {"nothing written", "text-closed", B::fault(version, Fault::NoText)},
        {"ever longer", "text-length text-written", B::fault(version, Fault::EverLonger)},
        {"incredible", "text-length text-written", B::fault(version, Fault::LargestInt)},
        {"gone", "text-length text-written text-closed", B::fault(version, Fault::GoneAtSecond)},
        {"unterminated", "text-length", B::fault(version, Fault::Unterminated)},
        {"settings refused", "getter-result", B::fault("getSettings", Fault::Refuse)},
        {"own events", "", B::fault(version, Fault::RunsEvents)},
    };
}

#endif
