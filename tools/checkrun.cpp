// SPDX-License-Identifier: LGPL-2.1-or-later
#include "checkrun.h"

#include "testing/contractchecker.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLibrary>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

typedef NOX::PayCard::IPayCard *(*Create)();
typedef void (*Destroy)(NOX::PayCard::IPayCard *driver);

// One object a line goes from the process with the driver to the one that watches it. What is in it:
const QString Rule = QStringLiteral("rule");           // is checked next; empty after the last
const QString Operation = QStringLiteral("operation"); // is called next
const QString Finding = QStringLiteral("finding");
const QString Settings = QStringLiteral("settings"); // as they were
const QString Lost = QStringLiteral("lost");         // they were not put back
const QString Unusable = QStringLiteral("unusable"); // why nothing can be checked
const QString Done = QStringLiteral("done");

const QString Destroyed = QStringLiteral("destroyed"); // the rule that only a file has

ContractFinding destroyed(Severity severity, const QString &seen)
{
    return {Destroyed, severity, QStringLiteral("destroyPayCard takes it back at the end"), seen,
            QStringLiteral("docs/host-guide.md#a-driver-in-a-file")};
}

/// The process with the driver.
class Worker
{
public:
    explicit Worker(int descriptor) : output(::fdopen(descriptor, "w")) {}

    /// Writes if it is permitted and the settings were not given up.
    void work(const DriverFile &file, bool isGivenUp, const QStringList &rules, const QString &putBack) const
    {
        tell(Operation, QString::fromLatin1(file.create));
        QLibrary library(QFileInfo::exists(file.path) ? QFileInfo(file.path).absoluteFilePath() : file.path);
        library.setLoadHints(QLibrary::ResolveAllSymbolsHint);
        if (!library.load()) {
            tell(Unusable, library.errorString());
            return;
        }
        const auto create = reinterpret_cast<Create>(library.resolve(file.create.constData()));
        const auto destroy = reinterpret_cast<Destroy>(library.resolve(file.destroy.constData()));
        if (!create || !destroy) {
            tell(Unusable,
                 QStringLiteral("there is no function %1").arg(QLatin1String(create ? file.destroy : file.create)));
            return;
        }
        NOX::PayCard::IPayCard *driver = create();
        if (!driver) {
            tell(Unusable, QStringLiteral("%1 gives no driver").arg(QLatin1String(file.create)));
            return;
        }
        check(*driver, file.mayWrite, isGivenUp, rules, putBack);
        tell(Rule, QString());
        tell(Operation, QString::fromLatin1(file.destroy));
        destroy(driver);
        tell(Done, QString());
    }

private:
    void check(NOX::PayCard::IPayCard &driver, bool isPermitted, bool isGivenUp, const QStringList &rules,
               const QString &putBack) const
    {
        ContractChecker checker(driver);
        checker.mayWrite = isPermitted && !isGivenUp;
        checker.onRule = [this](const QString &rule) { tell(Rule, rule); };
        checker.onCall = [this](const QString &operation) { tell(Operation, operation); };
        checker.onFinding = [this](const ContractFinding &finding) {
            tell(Finding, QJsonObject{{QStringLiteral("rule"), finding.rule},
                                      {QStringLiteral("severity"), static_cast<int>(finding.severity)},
                                      {QStringLiteral("seen"), finding.seen}});
        };
        if (!putBack.isNull()) {
            tell(Operation, QStringLiteral("setSettings"));
            checker.mayWrite = checker.putBack(putBack);
            if (!checker.mayWrite) {
                tell(Lost, QString());
            }
        } else if (checker.mayWrite) {
            tell(Operation, QStringLiteral("getSettings"));
            const QString settings = checker.settings();
            if (!settings.isNull()) {
                tell(Settings, settings);
            }
        }
        if (isPermitted && !checker.mayWrite) {
            checker.whyNotWrite = QStringLiteral("the settings could not be put back: see set-put-back");
        }
        checker.check(rules);
    }

    void tell(const QString &what, const QJsonValue &value) const
    {
        const QByteArray line = QJsonDocument(QJsonObject{{what, value}}).toJson(QJsonDocument::Compact) + '\n';
        if (std::fputs(line.constData(), output) < 0 || std::fflush(output) != 0) {
            ::_exit(EXIT_FAILURE); // nobody listens
        }
    }

    FILE *output;
};

/// Why a process is no more, in words.
QString endOf(int status)
{
    if (WIFSIGNALED(status)) {
        const int number = WTERMSIG(status);
        return QStringLiteral("crashed (%1)").arg(QString::fromLocal8Bit(::strsignal(number)));
    }
    return QStringLiteral("ended the process (exit code %1)").arg(WEXITSTATUS(status));
}

} // namespace

CheckRun::CheckRun(const DriverFile &driver) : file(driver), left(ContractChecker::rules()) {}

bool CheckRun::run(QString *reason)
{
    while (!isDone) {
        int ends[2];
        if (::pipe2(ends, O_CLOEXEC) != 0) {
            *reason = QString::fromLocal8Bit(std::strerror(errno));
            return false;
        }
        rule.clear();
        operation.clear();
        const pid_t process = ::fork();
        if (process == 0) {
            ::close(ends[0]);
            // What the driver prints must not get among the findings.
            ::dup2(STDERR_FILENO, STDOUT_FILENO);
            work(ends[1]);
        }
        ::close(ends[1]);
        const bool isInTime = watch(ends[0]);
        ::close(ends[0]);
        int status = 0;
        ::kill(process, SIGKILL); // one that is gone keeps its status
        ::waitpid(process, &status, 0);
        const QString end =
            isInTime ? endOf(status) : QStringLiteral("did not return within %1 s").arg(file.timeout / 1000);
        if (!unusable.isEmpty() || (!isDone && !goOn(end))) {
            *reason = unusable;
            return false;
        }
    }
    return true;
}

void CheckRun::work(int output) const
{
    int count = 1;
    char name[] = "paycard_check";
    char *arguments[] = {name, nullptr};
    const QCoreApplication application(count, arguments); // a driver may run events
    // The first time they are what they were.
    Worker(output).work(file, isGivenUp, left, isGivenUp ? QString() : settings);
    ::_exit(EXIT_SUCCESS);
}

/// Takes messages until there are no more. False when none came in time.
bool CheckRun::watch(int input)
{
    QByteArray text;
    for (;;) {
        pollfd waiting = {input, POLLIN, 0};
        const int ready = ::poll(&waiting, 1, file.timeout);
        char bytes[4096];
        const ssize_t size = ready > 0 ? ::read(input, bytes, sizeof bytes) : -1;
        if (ready == 0 || size == 0) {
            return size == 0;
        }
        text.append(bytes, static_cast<int>(std::max<ssize_t>(size, 0)));
        for (auto end = text.indexOf('\n'); end >= 0; end = text.indexOf('\n')) {
            take(QJsonDocument::fromJson(text.left(end)).object());
            text.remove(0, end + 1);
        }
    }
}

void CheckRun::take(const QJsonObject &message)
{
    const QString what = message.keys().value(0);
    const QJsonValue value = message.value(what);
    if (what == Rule) {
        rule = value.toString();
        left.removeOne(rule);
        operation.clear();
    } else if (what == Operation) {
        operation = value.toString();
    } else if (what == Finding) {
        const QJsonObject finding = value.toObject();
        keep(ContractChecker::finding(finding.value(Rule).toString(),
                                      static_cast<Severity>(finding.value(QStringLiteral("severity")).toInt()),
                                      finding.value(QStringLiteral("seen")).toString()));
    } else if (what == Settings) {
        settings = value.toString();
    } else if (what == Lost) {
        giveUpSettings(QStringLiteral("the driver does not take them back"));
    } else if (what == Unusable) {
        unusable = value.toString();
    } else if (what == Done) {
        isDone = true;
        keep(destroyed(Severity::Ok, QString()));
    }
}

/// What is worse stays.
void CheckRun::keep(const ContractFinding &finding)
{
    if (!found.contains(finding.rule) || found.value(finding.rule).severity <= finding.severity) {
        found.insert(finding.rule, finding);
    }
}

void CheckRun::giveUpSettings(const QString &why)
{
    keep(ContractChecker::finding(QStringLiteral("set-put-back"), Severity::Error, why));
    isGivenUp = true;
}

/// After a process that ended before its time. False when there is nothing more to try.
bool CheckRun::goOn(const QString &end)
{
    const QString seen = operation.isEmpty() ? end : QStringLiteral("%1 %2").arg(operation, end);
    if (!rule.isEmpty()) {
        keep(ContractChecker::finding(rule, Severity::Error, seen));
        const QStringList companions = ContractChecker::companions(rule);
        for (const QString &companion : companions) {
            if (left.removeOne(companion)) {
                keep(ContractChecker::finding(companion, Severity::Skipped, QStringLiteral("see %1").arg(rule)));
            }
        }
        return true;
    }
    if (operation == QLatin1String(file.destroy)) {
        keep(destroyed(Severity::Error, seen));
        isDone = true;
        return true;
    }
    if (file.mayWrite && !isGivenUp && operation != QLatin1String(file.create)) {
        giveUpSettings(seen);
        return true;
    }
    unusable = seen;
    return false;
}

QList<ContractFinding> CheckRun::findings() const
{
    QList<ContractFinding> sorted;
    const QStringList rules = ContractChecker::rules() + QStringList(Destroyed);
    for (const QString &name : rules) {
        if (found.contains(name)) {
            sorted.append(found.value(name));
        }
    }
    return sorted;
}
