// SPDX-License-Identifier: LGPL-2.1-or-later
#include "testing/contractchecker.h"

#include "testing/checkedpaycard.h"
#include "testing/contract/contractrules.h"
#include "testing/settingsdocument.h"

#include <algorithm>
#include <set>

namespace {

/// Texts of a finding that are shown; of more the number.
const int MostTexts = 3;

/// The settings, null if they could not be put back: not read well, or malformed.
QString settingsToKeep(const ContractSession &session)
{
    const QString settings = session.settings();
    const bool isReadable = settings.isEmpty() || SettingsDocument(settings).isValid();
    return isReadable && session.settings() == settings ? settings : QString();
}

ContractSession sessionOf(NOX::PayCard::IPayCard &driver, const QString &settings)
{
    return {driver, [](const char *, Severity, const QString &) {}, true, settings, {}};
}

} // namespace

QStringList ContractChecker::rules()
{
    QStringList names;
    for (const ContractRule &rule : contractRules()) {
        names.append(QLatin1String(rule.name));
    }
    return names;
}

QStringList ContractChecker::companions(const QString &rule)
{
    QStringList names;
    for (const ContractRule &other : contractRules()) {
        if (other.probe == contractRule(rule).probe) {
            names.append(QLatin1String(other.name));
        }
    }
    return names;
}

ContractFinding ContractChecker::finding(const QString &rule, Severity severity, const QString &seen)
{
    return contractRule(rule).finding(severity, seen);
}

Severity ContractChecker::worst(const QList<ContractFinding> &findings)
{
    Severity worst = Severity::Ok;
    for (const ContractFinding &finding : findings) {
        worst = std::max(worst, finding.severity);
    }
    return worst;
}

QList<ContractFinding> ContractChecker::check(const QStringList &wanted)
{
    seen.clear();
    pending = wanted;
    CheckedPayCard checked(
        driver, [this](const ContractFinding &finding) { note(finding.rule, finding.severity, finding.seen); });
    const auto report = [this](const char *rule, Severity severity, const QString &text) {
        note(QLatin1String(rule), severity, text);
    };
    ContractSession session{checked, report, mayWrite, QString(), {}};
    checked.mostTime = mostTime;
    checked.onCall = onCall;
    checked.onReturn = [&](const QString &operation, double milliseconds) {
        session.slowest[operation] = std::max(session.slowest.value(operation), milliseconds);
    };
    if (mayWrite) {
        session.original = settingsToKeep(session);
        session.mayWrite = !session.original.isNull();
    }
    std::set<void (*)(ContractSession &)> probes;
    for (const QString &name : wanted) {
        const ContractRule &rule = contractRule(name);
        if (onRule) {
            onRule(name);
        }
        if (rule.writes && !session.mayWrite) {
            note(name, Severity::Skipped,
                 mayWrite ? QLatin1String("the settings could not be put back: they are not read well") : whyNotWrite);
        } else if (probes.insert(rule.probe).second) {
            rule.probe(session);
        }
        seen[name]; // kept, if nothing was noted
        pending.removeOne(name);
        tell(name);
    }
    QList<ContractFinding> findings;
    for (const QString &name : rules()) {
        if (seen.contains(name)) {
            findings.append(findingOf(name));
        }
    }
    return findings;
}

QString ContractChecker::settings() const
{
    return settingsToKeep(sessionOf(driver, QString()));
}

bool ContractChecker::putBack(const QString &xml) const
{
    return sessionOf(driver, xml).putBack();
}

void ContractChecker::note(const QString &rule, Severity severity, const QString &text)
{
    Seen &now = seen[rule];
    if (now.texts.contains(text)) {
        return;
    }
    now.severity = std::max(now.severity, severity);
    now.texts.append(text);
    if (!pending.contains(rule)) {
        tell(rule);
    }
}

ContractFinding ContractChecker::findingOf(const QString &rule) const
{
    const Seen &now = *seen.constFind(rule);
    QString text = now.texts.mid(0, MostTexts).join(QStringLiteral("; "));
    if (now.texts.size() > MostTexts) {
        text += QStringLiteral("; and %1 more").arg(now.texts.size() - MostTexts);
    }
    return finding(rule, now.severity, text);
}

void ContractChecker::tell(const QString &rule) const
{
    if (onFinding) {
        onFinding(findingOf(rule));
    }
}
