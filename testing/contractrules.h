// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef CONTRACTRULES_H
#define CONTRACTRULES_H

#include "common/ipaycard.h"
#include "testing/contractfinding.h"

#include <QMap>
#include <QString>

#include <string>
#include <vector>

const int FirstBufferSize = 1024; ///< the library's

/// A driver under check, and what the calls that show its rules share.
struct ContractSession
{
    NOX::PayCard::IPayCard &driver; ///< looks at every call itself
    ContractReport report;
    bool mayWrite;
    QString original;              ///< the settings to put back
    QMap<QString, double> slowest; ///< longest time of each operation, in milliseconds

    /// -1 when the driver throws, which is reported by then.
    template <class Call>
    static int attempt(const Call &call)
    {
        try {
            return call();
        } catch (...) {
            return -1;
        }
    }
    /// Runs an operation that gives a result code, and has the driver tell of it.
    int command(const std::function<int()> &run) const;
    int setSettings(const QString &xml) const;
    /// A text as the library reads it, by the name of its getter. Null when it cannot be read.
    QString textOf(const char *getter) const;
    QString settings() const { return textOf("getSettings"); }
    /// False, and reported, when the driver does not take its settings back.
    bool putBack() const;
};

/// A rule of the driver contract.
struct ContractRule
{
    const char *name;
    const char *place;    ///< section of the guides
    const char *expected; ///< the sentence that stands there
    bool writes;          ///< changes settings or the operator chosen, and puts the settings back
    void (*show)(ContractSession &session);

    ContractFinding finding(Severity severity, const QString &seen) const;
};

const std::vector<ContractRule> &contractRules();
const ContractRule &contractRule(const QString &name);

/// A getter of a text, and how it is called in findings.
struct TextGetter
{
    const char *name;
    std::function<int(wchar_t *to, int size)> get;
};
std::vector<TextGetter> textGetters(NOX::PayCard::IPayCard &driver);

// What one text shows.
void judgeSettings(const QString &xml, const ContractReport &report);
void judgeProtocols(const QString &choices, const ContractReport &report);

/// The same entries in the form in which the library writes them.
QString rewritten(const QString &xml, const char *version);
/// A document with every key of the guide, each with a value that is as large as it may be.
QString fullSettings(const QString &protocol);

// The calls that show rules.
void showTexts(ContractSession &session);
void showSettingNames(ContractSession &session);
void showNumbers(ContractSession &session);
void showSettings(ContractSession &session);
void showProperties(ContractSession &session);
void showOperators(ContractSession &session);
void showReadBack(ContractSession &session);
void showVersions(ContractSession &session);
void showAgain(ContractSession &session);
void showRefused(ContractSession &session);
void showPutBack(ContractSession &session);
void showMemory(ContractSession &session);
void showTimes(ContractSession &session);

#endif
