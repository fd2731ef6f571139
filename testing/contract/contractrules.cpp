// SPDX-License-Identifier: LGPL-2.1-or-later
//
// The rules of the driver contract. Each has a probe, which makes the calls that show whether it is kept; some share
// one. The probes are in contracttexts.cpp, contractnumbers.cpp, contractsettings.cpp and contractwriting.cpp; what one
// call tells is judged in checkedpaycard.cpp.

#include "testing/contract/contractrules.h"

#include <algorithm>

namespace {

const char *const Offer = "docs/host-guide.md#what-the-driver-has-to-offer";
const char *const Texts = "docs/host-guide.md#texts-and-buffers";
const char *const Order = "docs/host-guide.md#which-call-is-made-when";
const char *const Failures = "docs/host-guide.md#failures";
const char *const Document = "docs/settings.md#the-document";
const char *const Keys = "docs/settings.md#keys-of-the-document";
const char *const Properties = "docs/settings.md#properties-every-protocol";
const char *const Operators = "docs/settings.md#operator";

} // namespace

const std::vector<ContractRule> &contractRules()
{
    // clang-format off
    static const std::vector<ContractRule> rules = {
        // name, place, the sentence there, changes something, probe
        {"text-length", Texts, "returns the length of the whole text, without the closing zero", false, probeTexts},
        {"text-written", Texts, "It writes as much as fits", false, probeTexts},
        {"text-closed", Texts, "A zero closes the text where there is room for it, an empty one, too", false, probeTexts},
        {"text-guard", Texts, "Never write past size", false, probeTexts},
        {"text-same", Texts, "Asked again, whatever the buffer, it gives the same text", false, probeTexts},
        {"text-characters", Texts, "Every character is a code point, none half of a surrogate pair", false, probeTexts},
        {"setting-names", Offer, "a name that the driver does not know has no text", false, probeSettingNames},
        {"getter-result", Offer, "A getter that has an answer gives no negative result", false, probeNumbers},
        {"number-written", Offer, "A getter of a number writes it in any case", false, probeNumbers},
        {"amount-finite", Offer, "Amounts are finite", false, probeNumbers},
        {"operation-code", Offer, "0 payment, 1 refund, 2 payment cancellation, 3 refund cancellation, 4 to 10 further kinds", false, probeNumbers},
        {"operator-limits", Operators, "not above MaxSum", false, probeNumbers},
        {"operator-commission", Operators, "A percentage is at most 100", false, probeNumbers},
        {"settings-form", Document, "A driver gives out a well-formed document", false, probeSettings},
        {"settings-names", Document, "with no name twice", false, probeSettings},
        {"settings-nested", Document, "the documents within it are well-formed, too", false, probeSettings},
        {"settings-keys", Keys, "Keys are compared to the letter", false, probeSettings},
        {"settings-values", Keys, "A driver gives out values that are in the tables", false, probeSettings},
        {"settings-operators", Properties, "as many as Operators says", false, probeSettings},
        {"protocol-choices", Offer, "Keys of the protocols are decimal numbers, each once, and each entry ends with a semicolon", false, probeSettings},
        {"protocol-listed", Offer, "The current protocol is among them", false, probeSettings},
        {"protocol-value", Offer, "getSettingValue(\"Protocol\") gives what the document says", false, probeSettings},
        {"properties-shown", Order, "The properties are shown as often as the technician likes", false, probeProperties},
        {"success-code", Offer, "After a success the code is 0", false, probeProperties},
        {"operator-index", Offer, "The index of every record is taken", true, probeOperators},
        {"set-read-back", Offer, "What was set is what is read, entry for entry", true, probeReadBack},
        {"set-versions", Document, "Do not rely on the version", true, probeVersions},
        {"set-again", Order, "setSettings with the document as it was read, even when nothing was changed", true, probeAgain},
        {"set-refused", Offer, "A document that is not well-formed is refused, and the old one stays", true, probeRefused},
        {"failure-code", Offer, "Set the code before you return", true, probeRefused},
        {"failure-text", Offer, "A failure has a text, and its detail has one, too, if there is a detail", true, probeRefused},
        {"set-put-back", Order, "on Cancel, Escape or closing the window: setSettings with the document as it was read", true, probePutBack},
        {"memory", Offer, "keeps no memory for a call", false, probeMemory},
        {"no-throw", Failures, "A driver that keeps the contract throws nothing", false, probeTimes},
        {"time", Offer, "returns within 100 ms", false, probeTimes},
    };
    // clang-format on
    return rules;
}

const ContractRule &contractRule(const QString &name)
{
    const std::vector<ContractRule> &rules = contractRules();
    return *std::find_if(rules.begin(), rules.end(),
                         [&](const ContractRule &rule) { return name == QLatin1String(rule.name); });
}

ContractFinding ContractRule::finding(Severity severity, const QString &seen) const
{
    return {QLatin1String(name), severity, QLatin1String(expected), seen, QLatin1String(place)};
}

QString ContractFinding::severityName() const
{
    switch (severity) {
    case Severity::Ok:
        return QStringLiteral("OK");
    case Severity::Skipped:
        return QStringLiteral("SKIPPED");
    case Severity::Issue:
        return QStringLiteral("ISSUE");
    case Severity::Error:
        break;
    }
    return QStringLiteral("ERROR");
}
