// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef FORWARDINGPAYCARD_H
#define FORWARDINGPAYCARD_H

#include "common/ipaycard.h"

#include <functional>

/// A driver that passes every call on to another one and gives back what that answers. Calls of one shape go through
/// one function, where a derived class can look at them or change them.
class ForwardingPayCard : public NOX::PayCard::IPayCard
{
    typedef NOX::PayCard::IPayCard Driver;

public:
    /// The driver has to outlive this object.
    explicit ForwardingPayCard(NOX::PayCard::IPayCard &target) : driver(target) {}
    virtual ~ForwardingPayCard() = default;

    // the driver interface, in its order
    int getVersion(wchar_t *to, int size) override { return pass("getVersion", &Driver::getVersion, to, size); }
    int getDriverName(wchar_t *to, int size) override
    {
        return pass("getDriverName", &Driver::getDriverName, to, size);
    }
    int setPropertiesShown(int shown) override
    {
        return pass("setPropertiesShown", &Driver::setPropertiesShown, shown);
    }
    int getResultCode(int *code) override { return pass("getResultCode", &Driver::getResultCode, code); }
    int getResultDescription(wchar_t *to, int size) override
    {
        return pass("getResultDescription", &Driver::getResultDescription, to, size);
    }
    int getErrorDetail(int *detail) override { return pass("getErrorDetail", &Driver::getErrorDetail, detail); }
    int getErrorDetailDescription(wchar_t *to, int size) override
    {
        return pass("getErrorDetailDescription", &Driver::getErrorDetailDescription, to, size);
    }
    int getSettings(wchar_t *to, int size) override { return pass("getSettings", &Driver::getSettings, to, size); }
    int setSettings(const wchar_t *xml) override { return pass("setSettings", &Driver::setSettings, xml); }
    int getSettingValue(const wchar_t *name, wchar_t *to, int size) override
    {
        const auto ask = [&](wchar_t *buffer, int room) { return driver.getSettingValue(name, buffer, room); };
        return text("getSettingValue", name, ask, to, size);
    }
    int getSettingChoices(const wchar_t *name, wchar_t *to, int size) override
    {
        const auto ask = [&](wchar_t *buffer, int room) { return driver.getSettingChoices(name, buffer, room); };
        return text("getSettingChoices", name, ask, to, size);
    }
    int getOperation(int *code) override { return pass("getOperation", &Driver::getOperation, code); }
    int getSum(double *sum) override { return pass("getSum", &Driver::getSum, sum); }
    int getPhoneNumber(wchar_t *to, int size) override
    {
        return pass("getPhoneNumber", &Driver::getPhoneNumber, to, size);
    }
    int getReference(wchar_t *to, int size) override { return pass("getReference", &Driver::getReference, to, size); }
    int getAccountNumber(wchar_t *to, int size) override
    {
        return pass("getAccountNumber", &Driver::getAccountNumber, to, size);
    }
    int getCommission(double *sum) override { return pass("getCommission", &Driver::getCommission, sum); }
    int setOperatorIndex(int index) override { return pass("setOperatorIndex", &Driver::setOperatorIndex, index); }
    int getOperatorName(wchar_t *to, int size) override
    {
        return pass("getOperatorName", &Driver::getOperatorName, to, size);
    }
    int getOperatorMinSum(double *sum) override { return pass("getOperatorMinSum", &Driver::getOperatorMinSum, sum); }
    int getOperatorMaxSum(double *sum) override { return pass("getOperatorMaxSum", &Driver::getOperatorMaxSum, sum); }
    int getOperatorCommissionType(int *type) override
    {
        return pass("getOperatorCommissionType", &Driver::getOperatorCommissionType, type);
    }
    int getOperatorCommission(double *value) override
    {
        return pass("getOperatorCommission", &Driver::getOperatorCommission, value);
    }

protected:
    typedef std::function<int(wchar_t *to, int size)> TextGetter;
    typedef std::function<int(int *number)> NumberGetter;
    typedef std::function<int(double *amount)> AmountGetter;
    typedef std::function<int()> Command;

    /// A getter of a text; `setting` is null but for those that take a name.
    virtual int text(const char * /*operation*/, const wchar_t * /*setting*/, const TextGetter &get, wchar_t *to,
                     int size)
    {
        return get(to, size);
    }
    virtual int number(const char * /*operation*/, const NumberGetter &get, int *to) { return get(to); }
    virtual int amount(const char * /*operation*/, const AmountGetter &get, double *to) { return get(to); }
    /// An operation that gives nothing but its result.
    virtual int command(const char * /*operation*/, const Command &run) { return run(); }

    NOX::PayCard::IPayCard &driver;

private:
    // The operations of the base interface have another type of pointer.
    template <class Base>
    int pass(const char *operation, int (Base::*get)(wchar_t *, int), wchar_t *to, int size)
    {
        const auto ask = [=](wchar_t *buffer, int room) { return (driver.*get)(buffer, room); };
        return text(operation, nullptr, ask, to, size);
    }
    template <class Base>
    int pass(const char *operation, int (Base::*get)(int *), int *to)
    {
        const auto ask = [=](int *value) { return (driver.*get)(value); };
        return number(operation, ask, to);
    }
    template <class Base>
    int pass(const char *operation, int (Base::*get)(double *), double *to)
    {
        const auto ask = [=](double *value) { return (driver.*get)(value); };
        return amount(operation, ask, to);
    }
    template <class Base, class Argument>
    int pass(const char *operation, int (Base::*run)(Argument), Argument argument)
    {
        return command(operation, [=] { return (driver.*run)(argument); });
    }
};

#endif
