// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef CONTRACTCHECKER_H
#define CONTRACTCHECKER_H

#include "common/ipaycard.h"
#include "testing/contractfinding.h"

#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

/// Checks a driver against the contract that the guides state, rule by rule. A driver that crashes or hangs takes the
/// caller with it: paycard_check runs this in a process of its own.
class ContractChecker
{
public:
    /// Names of the rules, in the order in which they are checked.
    static QStringList rules();
    /// The rules that the same calls show.
    static QStringList companions(const QString &rule);
    /// A finding with what the guides say of the rule.
    static ContractFinding finding(const QString &rule, Severity severity, const QString &seen);
    /// The worst severity of all.
    static Severity worst(const QList<ContractFinding> &findings);

    /// The driver has to outlive this object.
    explicit ContractChecker(NOX::PayCard::IPayCard &target) : driver(target) {}

    /// Permits the rules that change settings or the operator chosen. The settings are put back after each of them.
    bool mayWrite = false;
    /// Why those rules are left out without it.
    QString whyNotWrite = QLatin1String("not without permission to write");
    /// Longest time that an operation may take, in milliseconds.
    int mostTime = 100;
    /// Called before each rule.
    std::function<void(const QString &rule)> onRule;
    /// Called before each operation of the driver.
    std::function<void(const QString &operation)> onCall;
    /// Called with a rule's finding when its calls have been made, and again if later calls change it.
    std::function<void(const ContractFinding &finding)> onFinding;

    /// One finding for each of these rules, and for those others that were seen broken meanwhile.
    QList<ContractFinding> check(const QStringList &rules = ContractChecker::rules());

    /// The settings document as it is; null if it could not be put back.
    QString settings() const;
    /// Puts a document in its place. False when the driver does not take it.
    bool putBack(const QString &xml) const;

private:
    struct Seen
    {
        Severity severity = Severity::Ok;
        QStringList texts;
    };

    void note(const QString &rule, Severity severity, const QString &text);
    ContractFinding findingOf(const QString &rule) const;
    void tell(const QString &rule) const;

    NOX::PayCard::IPayCard &driver;
    QMap<QString, Seen> seen;
    QStringList pending;
};

#endif
