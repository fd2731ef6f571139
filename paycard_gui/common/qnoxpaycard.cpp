// SPDX-License-Identifier: LGPL-2.1-or-later
#include "common/qnoxpaycard.h"

#include "text/drivertext.h"
#include "toolkit/texts.h"

#include <cwchar>
#include <vector>

template class QNoxInterface<NOX::PayCard::IPayCard>;

namespace {

DriverText::Lengths fill(std::vector<wchar_t> &buffer, const QNoxText::Operation &operation)
{
    return DriverText::read(
        buffer, 1, [&](wchar_t *characters, int size) { return operation.call(operation.get, characters, size); });
}

} // namespace

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

QString QNoxText::read(int size, const Operation &operation)
{
    std::vector<wchar_t> buffer(static_cast<std::size_t>(size));
    const DriverText::Lengths lengths = fill(buffer, operation);
    if (!DriverText::isCredible(lengths.first) || lengths.first < 1) {
        return QString();
    }
    return Toolkit::fromWideText(buffer.data(), wcsnlen(buffer.data(), buffer.size()));
}

std::wstring QNoxText::readWhole(int size, const Operation &operation, int &result, bool &isWhole)
{
    std::vector<wchar_t> buffer(static_cast<std::size_t>(size));
    const DriverText::Lengths lengths = fill(buffer, operation);
    result = lengths.last;
    const bool isGone = lengths.first > size && lengths.last < 1;
    isWhole = !isGone && lengths.last <= static_cast<int>(buffer.size());
    return std::wstring(buffer.data(), lengths.last < 1 ? 0 : wcsnlen(buffer.data(), buffer.size()));
}

QNoxPaycard::QNoxPaycard(NOX::PayCard::IPayCard *object) : QNoxInterface<NOX::PayCard::IPayCard>(object) {}

QNoxPaycard::~QNoxPaycard() = default;

int QNoxPaycard::defaultBufferSize() const
{
    return 1024;
}
