// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef QNOXPAYCARD_H
#define QNOXPAYCARD_H

#include "common/ipaycard.h"
#include "common/paycard_export.h"

#include <QByteArray>
#include <QFutureInterface>
#include <QObject>
#include <QString>

#include <exception>

/// A failure with a text for people.
class PAYCARD_EXPORT Exception : public std::exception
{
public:
    /// `message` is for people.
    Exception(const QString &message);
    /// `text` is UTF-8.
    Exception(const char *text);
    ~Exception() override;

    /// The message in UTF-8. The pointer is good until the next call on this object or its end.
    const char *what() const noexcept override;
    /// The message as it was given.
    QString whatQString() const;

private:
    QString message;
    mutable QByteArray narrow;
};

/// There is no driver object to ask.
class PAYCARD_EXPORT DeviceNotFoundException : public Exception
{
public:
    DeviceNotFoundException();
    ~DeviceNotFoundException() override;
};

/// How QNoxInterface fetches a text, whatever the interface: has `call(get, buffer, size)` write it, first to a buffer
/// of `size` characters. The text up to its closing zero, or a null text.
PAYCARD_EXPORT QString QNoxReadText(int size, int (*call)(const void *get, wchar_t *buffer, int size), const void *get);

/// Reads values from a driver object with the interface T, which it does not own, and turns failures of the
/// driver into exceptions. Without a driver every call that needs one throws DeviceNotFoundException.
template <class T>
class PAYCARD_EXPORT QNoxInterface
{
public:
    /// An operation of the driver that writes a whole number.
    typedef int (T::*IntGetter)(int *);
    /// An operation that writes a number with decimals.
    typedef int (T::*DoubleGetter)(double *);
    /// An operation that writes a text to a buffer of this size and returns the length of the whole text.
    typedef int (T::*TextGetter)(wchar_t *, int);
    /// The same with the name of what is asked for.
    typedef int (T::*NamedTextGetter)(const wchar_t *, wchar_t *, int);

    /// `object` may be null.
    explicit QNoxInterface(T *object)
        : driver(object),
          future(static_cast<QFutureInterfaceBase::State>(
              QFutureInterfaceBase::Started | QFutureInterfaceBase::Finished | QFutureInterfaceBase::Canceled))
    {
    }
    virtual ~QNoxInterface() {}

    /// Size of the first buffer for a text, in characters: one call of the driver for a text that fits.
    virtual int defaultBufferSize() const { return 1024; }

    /// The driver, never null.
    T *nox() const
    {
        if (!driver) {
            throw DeviceNotFoundException();
        }
        return driver;
    }

    /// The number that the getter writes, 0 if it writes none. A failure of the getter raises nothing.
    int getInt(IntGetter getter) const { return get<int>(getter); }
    /// The same for a number with decimals.
    double getDouble(DoubleGetter getter) const { return get<double>(getter); }

    /// The text that the getter writes up to its closing zero, or a null text. A failure of the getter raises
    /// nothing.
    QString getBuff(TextGetter getter) const
    {
        T *object = nox();
        return read([=](wchar_t *buffer, int size) { return (object->*getter)(buffer, size); });
    }
    /// The same for the text that belongs to a name, such as a setting's value.
    QString getBuff(NamedTextGetter getter, const wchar_t *name) const
    {
        T *object = nox();
        return read([=](wchar_t *buffer, int size) { return (object->*getter)(name, buffer, size); });
    }

    /// Takes the result of a driver's operation and returns it. Throws an Exception with the driver's own
    /// "[code] text (detail)" when the result is negative and the driver has a result code.
    int raiseError(int result) const;

private:
    template <class Number>
    Number get(int (T::*getter)(Number *)) const
    {
        Number value = 0;
        (nox()->*getter)(&value);
        return value;
    }

    template <class Get>
    QString read(const Get &get) const
    {
        return QNoxReadText(
            defaultBufferSize(),
            [](const void *getter, wchar_t *buffer, int size) {
                return (*static_cast<const Get *>(getter))(buffer, size);
            },
            &get);
    }

    T *driver;
    // Never used here; part of the layout that the family's modules share.
    QFutureInterface<int> future;
};

extern template class PAYCARD_EXPORT QNoxInterface<NOX::PayCard::IPayCard>;

/// The wrapper for payment-card drivers.
class PAYCARD_EXPORT QNoxPaycard : public QNoxInterface<NOX::PayCard::IPayCard>
{
public:
    /// `object` may be null.
    explicit QNoxPaycard(NOX::PayCard::IPayCard *object = nullptr);
    ~QNoxPaycard() override;

    int defaultBufferSize() const override;
};

template <class T>
int QNoxInterface<T>::raiseError(int result) const
{
    if (result >= 0) {
        return result;
    }
    int code = 0;
    nox()->getResultCode(&code);
    if (code == 0) {
        return result;
    }
    // One arg() call for the texts: a "%1" inside a driver's text is text.
    const QString text = getBuff(&T::getResultDescription);
    const QString base = QObject::tr("[%1] %2").arg(QString::number(code), text);
    QString detail;
    if (getInt(&T::getErrorDetail) != 0) {
        detail = getBuff(&T::getErrorDetailDescription);
    }
    throw Exception(detail.isEmpty() ? base : QObject::tr("%1 (%2)").arg(base, detail));
}

#endif
