// SPDX-License-Identifier: LGPL-2.1-or-later
#include "testing/checkedpaycard.h"

#include "testing/contract/contractrules.h"
#include "testing/driver/operations.h"
#include "text/drivertext.h"

#include <QElapsedTimer>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cwchar>
#include <exception>
#include <vector>

namespace {

/// Characters before and behind a buffer that are watched.
const int Guard = 256;
/// Stands where the driver has not written: no code point, and no number that a driver gives.
const wchar_t Untouched = 0x5AFE5AFE;
const int UntouchedNumber = 0x5AFE5AFE;
const double UntouchedAmount = -5.0e-324 * 0x5AFE5AFE;

const int LastOperation = 10;

/// Nanoseconds in which other threads and programs had the processor that this thread would have used.
qint64 heldUp()
{
    qint64 time = 0;
    if (FILE *statistics = std::fopen("/proc/thread-self/schedstat", "re")) {
        long long running = 0;
        long long waiting = 0;
        time = std::fscanf(statistics, "%lld %lld", &running, &waiting) == 2 ? waiting : 0;
        std::fclose(statistics);
    }
    return time;
}

/// Runs at the end of a block, however that is left.
template <class Action>
struct Finally
{
    ~Finally() { action(); }
    Action action;
};
template <class Action>
Finally(Action) -> Finally<Action>;

bool isCharacter(wchar_t character)
{
    const auto code = static_cast<char32_t>(character);
    return code <= 0x10FFFF && !(code >= 0xD800 && code <= 0xDFFF);
}

bool isUntouched(wchar_t character)
{
    return character == Untouched;
}

} // namespace

CheckedPayCard::CheckedPayCard(NOX::PayCard::IPayCard &target,
                               const std::function<void(const ContractFinding &)> &onFinding)
    : ForwardingPayCard(target), report([onFinding](const char *rule, Severity severity, const QString &seen) {
          const ContractRule &known = contractRule(QLatin1String(rule));
          onFinding(known.finding(severity, seen));
      })
{
}

int CheckedPayCard::timed(const QString &operation, const Command &call)
{
    if (!tellsOfFailure(operation)) {
        followCommand(operation, Outcome::Unknown);
    }
    if (onCall) {
        onCall(operation);
    }
    const qint64 before = heldUp();
    QElapsedTimer timer;
    timer.start();
    int result = 0;
    try {
        result = call();
    } catch (const std::exception &thrown) {
        report("no-throw", Severity::Error,
               QStringLiteral("%1 threw %2").arg(operation, QString::fromUtf8(thrown.what())));
        throw;
    } catch (...) {
        report("no-throw", Severity::Error, QStringLiteral("%1 threw").arg(operation));
        throw;
    }
    const double took = static_cast<double>(timer.nsecsElapsed() - (heldUp() - before)) / 1e6;
    if (onReturn) {
        onReturn(operation, took);
    }
    if (took > mostTime) {
        report("time", Severity::Issue, QStringLiteral("%1 took %2 ms").arg(operation).arg(took, 0, 'f', 0));
    }
    return result;
}

int CheckedPayCard::text(const char *operation, const wchar_t *setting, const TextGetter &get, wchar_t *to, int size)
{
    const QString name = QLatin1String(operation);
    if (!to || size < 0 || size > DriverText::MaxLength + 1) {
        return timed(name, [&] { return get(to, size); });
    }
    std::vector<wchar_t> guarded(static_cast<std::size_t>(size) + Guard + Guard, Untouched);
    wchar_t *const area = guarded.data() + Guard;
    const Finally handOver{[&] {
        for (int i = 0; i < size; ++i) {
            to[i] = isUntouched(area[i]) ? to[i] : area[i];
        }
    }};
    const int length = timed(name, [&] { return get(area, size); });
    const QString subject = setting ? QStringLiteral("%1(\"%2\")").arg(name, QString::fromWCharArray(setting)) : name;
    judgeBuffer(subject, area, size, length);
    if (length > 0 && length <= size && std::all_of(area, area + length, isCharacter)) {
        judgeText(name, setting, QString::fromWCharArray(area, length));
    }
    followText(name, !setting || std::wcscmp(setting, L"Protocol") == 0, length);
    return length;
}

void CheckedPayCard::judgeBuffer(const QString &subject, const wchar_t *area, int size, int length) const
{
    const QString buffer = QStringLiteral("%1 with a buffer of %2: ").arg(subject).arg(size);
    if (!std::all_of(area - Guard, area, isUntouched) || !std::all_of(area + size, area + size + Guard, isUntouched)) {
        report("text-guard", Severity::Error, buffer + QStringLiteral("something is written outside of it"));
    }
    if (length < 0) {
        return;
    }
    if (!DriverText::isCredible(length)) {
        report("text-length", Severity::Error, buffer + QStringLiteral("%1 characters").arg(length));
    }
    for (int i = 0; i < std::min(length, size); ++i) {
        // A text that is cut may be closed at its last place.
        if (area[i] == L'\0' && length > size && i == size - 1) {
            break;
        }
        if (isUntouched(area[i])) {
            report("text-written", Severity::Error,
                   buffer + QStringLiteral("%1 characters are written, the text has %2").arg(i).arg(length));
            return;
        }
        if (area[i] == L'\0') {
            report("text-length", Severity::Error,
                   buffer + QStringLiteral("%1 characters up to the zero, but %2 is returned").arg(i).arg(length));
            return;
        }
        if (!isCharacter(area[i])) {
            report("text-characters", Severity::Error,
                   buffer + QStringLiteral("character %1 is 0x%2").arg(i).arg(static_cast<uint>(area[i]), 0, 16));
            return;
        }
    }
    if (length < size && area[length] != L'\0') {
        report("text-closed", length == 0 ? Severity::Issue : Severity::Error,
               buffer + QStringLiteral("no zero after %1 characters").arg(length));
    }
}

void CheckedPayCard::judgeText(const QString &operation, const wchar_t *setting, const QString &text)
{
    const auto isNew = [&](QString &judged) {
        const bool differs = judged != text;
        judged = text;
        return differs;
    };
    if (operation == QLatin1String("getSettings") && isNew(settings)) {
        judgeSettings(text, report);
    } else if (operation == QLatin1String("getSettingChoices") && setting && std::wcscmp(setting, L"Protocol") == 0 &&
               isNew(choices)) {
        judgeProtocols(text, report);
    }
}

/// False when there is nothing to look at.
template <class Number, class Getter>
bool CheckedPayCard::fetch(const char *operation, const Getter &get, Number *to, Number untouched, int *result)
{
    const QString name = QLatin1String(operation);
    Number value = untouched;
    const auto isWritten = [&] { return !(value == untouched); };
    const Finally handOver{[&] {
        if (to && isWritten()) {
            *to = value;
        }
    }};
    *result = timed(name, [&] { return get(to ? &value : nullptr); });
    if (to && !isWritten()) {
        report("number-written", Severity::Error, QStringLiteral("%1 wrote nothing").arg(name));
    }
    if (*result < 0) {
        report("getter-result", Severity::Issue, QStringLiteral("%1 gave %2").arg(name).arg(*result));
    }
    return to && isWritten();
}

int CheckedPayCard::number(const char *operation, const NumberGetter &get, int *to)
{
    int result = 0;
    if (fetch(operation, get, to, UntouchedNumber, &result)) {
        followNumber(QLatin1String(operation), *to);
    }
    return result;
}

int CheckedPayCard::amount(const char *operation, const AmountGetter &get, double *to)
{
    int result = 0;
    if (fetch(operation, get, to, UntouchedAmount, &result) && !std::isfinite(*to)) {
        report("amount-finite", Severity::Error, QStringLiteral("%1: %2").arg(QLatin1String(operation)).arg(*to));
    }
    return result;
}

int CheckedPayCard::command(const char *operation, const Command &run)
{
    const QString name = QLatin1String(operation);
    const int result = timed(name, run);
    followCommand(name, result < 0 ? Outcome::Failure : Outcome::Success);
    return result;
}

void CheckedPayCard::followCommand(const QString &operation, Outcome outcome)
{
    last = operation;
    lastOutcome = outcome;
    code = 0;
    detail.reset();
}

void CheckedPayCard::followNumber(const QString &operation, int number)
{
    if (operation == QLatin1String("getResultCode")) {
        code = number;
        if (lastOutcome == Outcome::Failure && code == 0) {
            report("failure-code", Severity::Error, QStringLiteral("%1 failed, but the code is 0").arg(last));
        } else if (lastOutcome == Outcome::Success && code != 0) {
            report("success-code", Severity::Error,
                   QStringLiteral("%1 succeeded, but the code is %2").arg(last).arg(code));
        }
    } else if (operation == QLatin1String("getErrorDetail")) {
        detail = number;
    } else if (operation == QLatin1String("getOperation") && (number < 0 || number > LastOperation)) {
        report("operation-code", Severity::Issue, QStringLiteral("%1").arg(number));
    }
}

void CheckedPayCard::followText(const QString &operation, bool isAnswer, int length)
{
    const bool isWhole = operation == QLatin1String("getSettings") || operation == QLatin1String("getSettingChoices");
    if (length < 0 && isAnswer) {
        report("getter-result", isWhole ? Severity::Error : Severity::Issue,
               QStringLiteral("%1 gave %2").arg(operation).arg(length));
    }
    if (length < 0 && isWhole) {
        followCommand(operation, Outcome::Failure);
    } else if (lastOutcome != Outcome::Failure) {
        return;
    } else if (operation == QLatin1String("getResultDescription") && code != 0 && length < 1) {
        report("failure-text", Severity::Error, QStringLiteral("%1: code %2 has no text").arg(last).arg(code));
    } else if (operation == QLatin1String("getErrorDetailDescription") && detail && (*detail != 0) != (length > 0)) {
        report("failure-text", Severity::Error,
               QStringLiteral("%1: the detail is %2, its text has %3 characters").arg(last).arg(*detail).arg(length));
    }
}
