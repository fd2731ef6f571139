// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef CONTRACTFINDING_H
#define CONTRACTFINDING_H

#include <QString>

#include <functional>

/// How a rule of the driver contract came out.
enum class Severity {
    Ok,
    Skipped, ///< not looked at, and why
    Issue,   ///< the library gets on with it, but hardly as it was meant
    Error    ///< something is lost, wrong or refused in the windows
};

/// A rule of the driver contract, and how a driver keeps it.
struct ContractFinding
{
    QString rule;
    Severity severity = Severity::Ok;
    /// The sentence of the guides.
    QString expected;
    /// What was seen instead, or why nothing was. Passwords are not in it.
    QString seen;
    /// Where that sentence is, as "docs/host-guide.md#texts-and-buffers".
    QString place;

    /// "OK", "ISSUE", "ERROR" or "SKIPPED".
    QString severityName() const;
};

/// Hears of what a driver does against a rule.
typedef std::function<void(const char *rule, Severity severity, const QString &seen)> ContractReport;

#endif
