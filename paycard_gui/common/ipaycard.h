// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef IPAYCARD_H
#define IPAYCARD_H

#include "common/paycard_export.h"

/// The driver's side of the library: interfaces that the host implements. Plain C++, no toolkit types.
///
/// Every operation returns an int. For setters it is a result code: zero or positive is success, negative a
/// failure that getResultCode() and its companions explain. Getters of numbers write to their out-parameter;
/// their result is ignored. Getters of texts write a zero-terminated text into the caller's buffer of `size`
/// characters and return the length of the full text, also when it did not fit (the caller then asks once
/// more with a larger buffer); a length below 1 means no text.
///
/// The order of declaration is the binary interface. The objects belong to the host: the library never
/// deletes or keeps one, hence the protected destructors, which are not virtual so that they take no slot.
namespace NOX {

/// What every driver of the family offers: identification, the last failure, settings.
class PAYCARD_EXPORT IVELBase
{
public:
    /// Version of the driver, as text.
    virtual int getVersion(wchar_t *buffer, int size) = 0;
    /// Name or description of the driver.
    virtual int getDriverName(wchar_t *buffer, int size) = 0;
    /// Tells the driver that the properties window opens (1) or has closed (0).
    virtual int setPropertiesShown(int shown) = 0;
    /// Code of the last failure, 0 when there was none.
    virtual int getResultCode(int *code) = 0;
    /// Text of the last failure.
    virtual int getResultDescription(wchar_t *buffer, int size) = 0;
    /// Non-zero when the last failure has a detail, such as the parameter at fault.
    virtual int getErrorDetail(int *detail) = 0;
    /// Text of that detail.
    virtual int getErrorDetailDescription(wchar_t *buffer, int size) = 0;
    /// The whole settings document as XML text.
    virtual int getSettings(wchar_t *buffer, int size) = 0;
    /// Replaces the whole settings document by this zero-terminated XML text.
    virtual int setSettings(const wchar_t *xml) = 0;
    /// Current value of the named setting, as text.
    virtual int getSettingValue(const wchar_t *name, wchar_t *buffer, int size) = 0;
    /// Permitted values of the named setting, as a mapping list ("key:caption;key:caption;").
    virtual int getSettingChoices(const wchar_t *name, wchar_t *buffer, int size) = 0;

protected:
    ~IVELBase() = default;
};

namespace PayCard {

/// The payment-card driver. Amounts are in currency units (roubles with kopecks as decimals).
class PAYCARD_EXPORT IPayCard : public IVELBase
{
public:
    /// Code of the current operation: 0 payment, 1 refund, 2 payment cancellation, 3 refund cancellation,
    /// 4 to 10 further kinds.
    virtual int getOperation(int *operation) = 0;
    /// Amount of the current operation.
    virtual int getSum(double *sum) = 0;
    /// Phone number entered for a payment for services.
    virtual int getPhoneNumber(wchar_t *buffer, int size) = 0;
    /// Reference of the earlier operation that a refund or cancellation refers to.
    virtual int getReference(wchar_t *buffer, int size) = 0;
    /// Account number entered for a payment for services.
    virtual int getAccountNumber(wchar_t *buffer, int size) = 0;
    /// Commission of the current payment.
    virtual int getCommission(double *commission) = 0;
    /// Sets the operator that the cashier chose: the 0-based index of its record, -1 for none.
    virtual int setOperatorIndex(int index) = 0;
    /// Name of the operator of the current payment.
    virtual int getOperatorName(wchar_t *buffer, int size) = 0;
    /// Smallest payment that this operator takes.
    virtual int getOperatorMinSum(double *sum) = 0;
    /// Largest payment that this operator takes.
    virtual int getOperatorMaxSum(double *sum) = 0;
    /// Kind of this operator's commission: 0 a fixed amount, otherwise a percentage.
    virtual int getOperatorCommissionType(int *type) = 0;
    /// This operator's commission: an amount or a percentage.
    virtual int getOperatorCommission(double *commission) = 0;

protected:
    ~IPayCard() = default;
};

} // namespace PayCard
} // namespace NOX

#endif
