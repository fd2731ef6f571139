// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "common/ipaycard.h"
#include "testing/contractfinding.h"

#include <QMap>
#include <QString>

#include <vector>

const int FirstBufferSize = 1024; ///< the library's

/// A driver under check, and what the calls that probe it share.
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

/// A getter of a text, and how it is called in findings.
struct TextGetter
{
    const char *name;
    std::function<int(wchar_t *to, int size)> get;
};
std::vector<TextGetter> textGetters(NOX::PayCard::IPayCard &driver);

/// The entries of a document, of which the last of a name counts.
QMap<QString, QString> entriesOf(const QString &xml);
/// The same entries in the form in which the library writes them.
QString rewritten(const QString &xml, const char *version);
