// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <algorithm>
#include <vector>

/// How a text is fetched from a driver, which is not trusted with memory.
namespace DriverText {

/// Longest text that a driver is believed to have, in characters. A larger length is a fault of the driver:
/// such a text counts as missing, where honouring it would take gigabytes.
const int MaxLength = 1 << 26;

/// Whether a driver is believed to have a text of this length.
inline bool isCredible(int length)
{
    return length <= MaxLength;
}

/// The lengths that the driver reported, in its first answer and in its last; the same when it was asked once.
struct Lengths
{
    int first; ///< in the first answer
    int last;  ///< in the last answer
};

/// Has `get(characters, size)` fill the buffer, which has its initial size, and once more when the text did
/// not fit: then the buffer grows to the length reported plus `extra`, unless that is incredible. What the
/// driver does not write is zero.
template <class Get>
Lengths read(std::vector<wchar_t> &buffer, int extra, Get get)
{
    std::fill(buffer.begin(), buffer.end(), L'\0');
    const int size = static_cast<int>(buffer.size());
    const int length = get(buffer.data(), size);
    if (length <= size || !isCredible(length)) {
        return {length, length};
    }
    buffer.assign(static_cast<std::size_t>(length) + static_cast<std::size_t>(extra), L'\0');
    return {length, get(buffer.data(), length + extra)};
}

} // namespace DriverText
