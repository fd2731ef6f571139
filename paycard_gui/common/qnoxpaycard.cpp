// SPDX-License-Identifier: LGPL-2.1-or-later
#include "common/qnoxpaycard.h"

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

QNoxPaycard::QNoxPaycard(NOX::PayCard::IPayCard *object) : QNoxInterface<NOX::PayCard::IPayCard>(object) {}

QNoxPaycard::~QNoxPaycard() = default;

int QNoxPaycard::defaultBufferSize() const
{
    return 1024;
}
