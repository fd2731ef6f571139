// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef CHECKEDPAYCARD_H
#define CHECKEDPAYCARD_H

#include "testing/contractfinding.h"
#include "testing/forwardingpaycard.h"

#include <QString>

#include <optional>

/// Passes every call on to the real driver and looks at what comes back: whatever one call, or a failure and the
/// questions after it, shows of the driver contract. The caller gets the real driver's answers, and what it throws;
/// only what the driver writes outside a buffer does not arrive. For the debug build of a host:
///
///     CheckedPayCard checked(driver, [](const ContractFinding &finding) { log(finding.rule, finding.seen); });
///     ConfirmPayment(&checked, window);
///
/// Has to live until the call that it was given to has returned.
class CheckedPayCard final : public ForwardingPayCard
{
public:
    CheckedPayCard(NOX::PayCard::IPayCard &driver, const std::function<void(const ContractFinding &)> &onFinding);

    /// Longest time that an operation may take, in milliseconds. What a busy machine adds does not count.
    int mostTime = 100;
    /// Called before each operation.
    std::function<void(const QString &operation)> onCall;
    /// Called after each operation that has not thrown.
    std::function<void(const QString &operation, double milliseconds)> onReturn;

protected:
    int text(const char *operation, const wchar_t *setting, const TextGetter &get, wchar_t *to, int size) override;
    int number(const char *operation, const NumberGetter &get, int *to) override;
    int amount(const char *operation, const AmountGetter &get, double *to) override;
    int command(const char *operation, const Command &run) override;

private:
    enum class Outcome { Unknown, Success, Failure };

    int timed(const QString &operation, const Command &call);
    template <class Number, class Getter>
    bool fetch(const char *operation, const Getter &get, Number *to, Number untouched, int *result);
    void judgeBuffer(const QString &subject, const wchar_t *area, int size, int length) const;
    void judgeText(const QString &operation, const wchar_t *setting, const QString &text);
    void followCommand(const QString &operation, Outcome outcome);
    void followNumber(const QString &operation, int number);
    void followText(const QString &operation, bool isAnswer, int length);

    ContractReport report;
    /// The last operation that is not one of those that tell of a failure, and what these have told since.
    QString last;
    Outcome lastOutcome = Outcome::Unknown;
    int code = 0;
    std::optional<int> detail;
    // Judged once as long as they stay the same.
    QString settings;
    QString choices;
};

#endif
