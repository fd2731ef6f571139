// SPDX-License-Identifier: LGPL-2.1-or-later
#include "checkrun.h"
#include "testing/contractchecker.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <cstdio>

namespace {

enum ExitCode { Clean = 0, Broken = 1, NotRun = 2 };

const int MaxTimeout = 3600; // seconds

struct Options
{
    const QCommandLineOption write = {"write", "Check rules that change settings, too; the settings are put back."};
    const QCommandLineOption json = {"json", "Print the findings as JSON."};
    const QCommandLineOption create = {"create", "Function that makes the driver (createPayCard).", "name",
                                       "createPayCard"};
    const QCommandLineOption destroy = {"destroy", "Function that takes it back (destroyPayCard).", "name",
                                        "destroyPayCard"};
    const QCommandLineOption timeout = {"timeout", "Seconds after which an operation counts as hanging (10).",
                                        "seconds", "10"};
    const QCommandLineOption help = {{"h", "help"}, "Print this help."};
};

void print(FILE *stream, const QString &text)
{
    std::fprintf(stream, "%s\n", text.toUtf8().constData());
}

int fail(const QString &text)
{
    print(stderr, "paycard_check: " + text);
    return NotRun;
}

int countOf(const QList<ContractFinding> &findings, Severity severity)
{
    return static_cast<int>(std::count_if(findings.begin(), findings.end(), [=](const ContractFinding &finding) {
        return finding.severity == severity;
    }));
}

/// One line for a rule.
QString lineOf(const ContractFinding &finding)
{
    QString line = QString("%1 %2").arg(finding.severityName().leftJustified(7), finding.rule);
    if (!finding.seen.isEmpty()) {
        line = line.leftJustified(28) + finding.seen;
    }
    if (finding.severity >= Severity::Issue) {
        line += QString(". Expected: %1 (%2)").arg(finding.expected, finding.place);
    }
    // Texts of the driver may be in it.
    return line.replace('\n', ' ').replace('\r', ' ');
}

void printLines(const QList<ContractFinding> &findings)
{
    for (const ContractFinding &finding : findings) {
        print(stdout, lineOf(finding));
    }
    print(stdout, QString("%1 rules. Kept: %2, errors: %3, issues: %4, skipped: %5")
                      .arg(findings.size())
                      .arg(countOf(findings, Severity::Ok))
                      .arg(countOf(findings, Severity::Error))
                      .arg(countOf(findings, Severity::Issue))
                      .arg(countOf(findings, Severity::Skipped)));
}

void printJson(const QString &driver, const QList<ContractFinding> &findings)
{
    QJsonArray rules;
    for (const ContractFinding &finding : findings) {
        rules.append(QJsonObject{{"rule", finding.rule},
                                 {"severity", finding.severityName()},
                                 {"expected", finding.expected},
                                 {"seen", finding.seen},
                                 {"place", finding.place}});
    }
    const QJsonObject summary{{"ok", countOf(findings, Severity::Ok)},
                              {"errors", countOf(findings, Severity::Error)},
                              {"issues", countOf(findings, Severity::Issue)},
                              {"skipped", countOf(findings, Severity::Skipped)}};
    const QJsonObject report{{"driver", driver}, {"findings", rules}, {"summary", summary}};
    std::fputs(QJsonDocument(report).toJson().constData(), stdout);
}

int check(const DriverFile &file, bool asJson)
{
    CheckRun checking(file);
    QString reason;
    if (!checking.run(&reason)) {
        return fail(reason);
    }
    const QList<ContractFinding> findings = checking.findings();
    if (asJson) {
        printJson(file.path, findings);
    } else {
        printLines(findings);
    }
    return countOf(findings, Severity::Error) > 0 ? Broken : Clean;
}

} // namespace

int main(int argc, char **argv)
{
    const Options options;
    DriverFile file;
    bool asJson = false;
    {
        // Gone before the driver's process begins, which has its own.
        const QCoreApplication application(argc, argv);
        QCoreApplication::setApplicationVersion(PAYCARD_VERSION);
        QCommandLineParser parser;
        parser.setApplicationDescription("Checks a payment-card driver against the contract of the host guide.\n"
                                         "Ends with 0, with 1 if there are errors, with 2 if it could not check.");
        parser.addPositionalArgument("driver", "Shared library with the driver.", "DRIVER.so");
        parser.addOptions({options.write, options.json, options.create, options.destroy, options.timeout});
        parser.addOption(options.help);
        const QCommandLineOption version = parser.addVersionOption();
        const bool isUnderstood = parser.parse(QCoreApplication::arguments());
        if (parser.isSet(options.help)) {
            print(stdout, parser.helpText());
            return Clean;
        }
        if (parser.isSet(version)) {
            parser.showVersion();
        }
        file = {parser.positionalArguments().value(0), parser.value(options.create).toUtf8(),
                parser.value(options.destroy).toUtf8(), parser.isSet(options.write),
                parser.value(options.timeout).toInt()};
        asJson = parser.isSet(options.json);
        if (!isUnderstood) {
            return fail(parser.errorText());
        }
        if (parser.positionalArguments().size() != 1) {
            return fail("name one driver, see --help");
        }
        if (file.timeout < 1 || file.timeout > MaxTimeout) {
            return fail("--timeout takes 1 to 3600 seconds");
        }
        file.timeout *= 1000;
    }
    return check(file, asJson);
}
