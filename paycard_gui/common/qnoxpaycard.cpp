// SPDX-License-Identifier: LGPL-2.1-or-later
#include "common/qnoxpaycard.h"

#include "text/drivertext.h"
#include "toolkit/texts.h"

#include <cwchar>
#include <vector>

template class QNoxInterface<NOX::PayCard::IPayCard>;

Exception::Exception(const QString &text) : message(text) {}

Exception::Exception(const char *text) : message(QString::fromUtf8(text)) {}

Exception::~Exception() = default;

const char *Exception::what() const noexcept
{
    narrow = message.toUtf8();
    return narrow.constData();
}

QString Exception::whatQString() const
{
    return message;
}

DeviceNotFoundException::DeviceNotFoundException() : Exception(QString::fromWCharArray(L"Несуществующее устройство")) {}

DeviceNotFoundException::~DeviceNotFoundException() = default;

QString QNoxReadText(int size, int (*call)(const void *get, wchar_t *buffer, int size), const void *get)
{
    std::vector<wchar_t> buffer(static_cast<std::size_t>(size));
    const DriverText::Lengths lengths =
        DriverText::read(buffer, 1, [=](wchar_t *characters, int length) { return call(get, characters, length); });
    if (!DriverText::isCredible(lengths.first) || lengths.first < 1) {
        return QString();
    }
    return Toolkit::fromWideText(buffer.data(), wcsnlen(buffer.data(), buffer.size()));
}

QNoxPaycard::QNoxPaycard(NOX::PayCard::IPayCard *object) : QNoxInterface<NOX::PayCard::IPayCard>(object) {}

QNoxPaycard::~QNoxPaycard() = default;

int QNoxPaycard::defaultBufferSize() const
{
    return 1024;
}
