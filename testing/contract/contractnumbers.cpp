// SPDX-License-Identifier: LGPL-2.1-or-later
//
// Getters of numbers; and what every operation costs in time and memory.

#include "testing/contract/contractrules.h"

#include <algorithm>
#include <cstddef>
#include <malloc.h>

#ifdef __SANITIZE_ADDRESS__
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();
#endif

namespace {

typedef NOX::PayCard::IPayCard Driver;

const double MaxPercentage = 100.0;
const int Rounds = 4;
const int CallsInRound = 25;
const int Repetitions = 4;
const int LeastKept = 16; // bytes in a call: less is no allocation
const int TimesListed = 3;

struct Call
{
    const char *name;
    std::function<int()> run;
};

template <class Number>
Number valueOf(Driver &driver, int (Driver::*get)(Number *))
{
    Number value = 0;
    ContractSession::attempt([&] { return (driver.*get)(&value); });
    return value;
}

template <class Base, class Number>
Call getter(const char *name, Driver &driver, int (Base::*get)(Number *))
{
    return {name, [&driver, get] {
                Number value = 0;
                return (driver.*get)(&value);
            }};
}

std::vector<Call> numberGetters(Driver &driver)
{
    return {
        getter("getResultCode", driver, &Driver::getResultCode),
        getter("getErrorDetail", driver, &Driver::getErrorDetail),
        getter("getOperation", driver, &Driver::getOperation),
        getter("getSum", driver, &Driver::getSum),
        getter("getCommission", driver, &Driver::getCommission),
        getter("getOperatorMinSum", driver, &Driver::getOperatorMinSum),
        getter("getOperatorMaxSum", driver, &Driver::getOperatorMaxSum),
        getter("getOperatorCommissionType", driver, &Driver::getOperatorCommissionType),
        getter("getOperatorCommission", driver, &Driver::getOperatorCommission),
    };
}

/// Bytes in use, without those of other threads.
qint64 allocated()
{
#if defined(__SANITIZE_ADDRESS__)
    return static_cast<qint64>(__sanitizer_get_current_allocated_bytes());
#elif __GLIBC_PREREQ(2, 33)
    const struct mallinfo2 info = mallinfo2();
    return static_cast<qint64>(info.uordblks) + static_cast<qint64>(info.hblkhd);
#else
    const struct mallinfo info = mallinfo();
    return static_cast<qint64>(info.uordblks) + info.hblkhd;
#endif
}

/// Bytes that a call keeps in every round but the first, which may fill what is kept for good.
qint64 keptInRounds(const Call &call)
{
    qint64 least = 0;
    for (int round = 0; round < Rounds; ++round) {
        const qint64 before = allocated();
        for (int i = 0; i < CallsInRound; ++i) {
            ContractSession::attempt(call.run);
        }
        const qint64 kept = (allocated() - before) / CallsInRound;
        least = round < 2 ? kept : std::min(least, kept);
    }
    return least;
}

/// The allocator keeps some of what is freed, for a while: what grows, grows again.
qint64 keptBy(const Call &call)
{
    qint64 least = keptInRounds(call);
    for (int again = 0; again < Repetitions && least >= LeastKept; ++again) {
        least = std::min(least, keptInRounds(call));
    }
    return least;
}

} // namespace

void probeNumbers(ContractSession &session)
{
    Driver &driver = session.driver;
    for (const Call &call : numberGetters(driver)) {
        ContractSession::attempt(call.run);
    }
    const double minimum = valueOf(driver, &Driver::getOperatorMinSum);
    const double maximum = valueOf(driver, &Driver::getOperatorMaxSum);
    if (minimum > maximum) {
        session.report("operator-limits", Severity::Error, QStringLiteral("%1 to %2").arg(minimum).arg(maximum));
    }
    const double commission = valueOf(driver, &Driver::getOperatorCommission);
    const bool isPercentage = valueOf(driver, &Driver::getOperatorCommissionType) != 0;
    if (commission < 0.0 || (isPercentage && commission > MaxPercentage)) {
        session.report("operator-commission", Severity::Issue,
                       QStringLiteral("%1 %2").arg(commission).arg(QLatin1String(isPercentage ? "%" : "roubles")));
    }
}

void probeMemory(ContractSession &session)
{
    Driver &driver = session.driver;
    std::vector<wchar_t> buffer(FirstBufferSize);
    std::vector<Call> calls = numberGetters(driver);
    const std::vector<TextGetter> texts = textGetters(driver);
    for (const TextGetter &text : texts) {
        calls.push_back({text.name, [&] { return text.get(buffer.data(), FirstBufferSize); }});
    }
    calls.push_back({"setPropertiesShown", [&] {
                         driver.setPropertiesShown(1);
                         return driver.setPropertiesShown(0);
                     }});
    if (session.mayWrite) {
        calls.push_back({"setSettings", [&] { return session.setSettings(session.original); }});
        calls.push_back({"setOperatorIndex", [&] { return driver.setOperatorIndex(0); }});
    }
    for (const Call &call : calls) {
        const qint64 kept = keptBy(call);
        if (kept >= LeastKept) {
            session.report("memory", Severity::Issue,
                           QStringLiteral("%1 keeps %2 bytes in each call").arg(QLatin1String(call.name)).arg(kept));
        }
    }
}

void probeTimes(ContractSession &session)
{
    QStringList slowest = session.slowest.keys();
    std::sort(slowest.begin(), slowest.end(), [&](const QString &left, const QString &right) {
        return session.slowest.value(left) > session.slowest.value(right);
    });
    slowest = slowest.mid(0, TimesListed);
    for (QString &operation : slowest) {
        operation += QStringLiteral(" %1 ms").arg(session.slowest.value(operation), 0, 'f', 1);
    }
    if (!slowest.isEmpty()) {
        session.report("time", Severity::Ok, QStringLiteral("longest: ") + slowest.join(QStringLiteral(", ")));
    }
}
