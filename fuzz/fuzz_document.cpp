// SPDX-License-Identifier: LGPL-2.1-or-later
//
// Settings documents: no text harms the reader, and what was written reads back as what it was.
#include "common/qnoxsettings.h"
#include "require.h"

#include <cstddef>
#include <cstdint>

namespace {

const int Version = 2;

void checkReadsBack(const QNoxSettings &settings)
{
    const QString text = settings.toXml(Version);
    const QNoxSettings back(text);
    REQUIRE(back.toXml(Version) == text);
}

/// Line ends count as written, except that XML knows only the one kind.
QString withoutReturns(QString text)
{
    return text.remove(QLatin1Char('\r'));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QString text = QString::fromUtf8(reinterpret_cast<const char *>(data), static_cast<int>(size));
    checkReadsBack(QNoxSettings(text));

    // Any text may be a name or a value, also a document. A name that loses characters on the way may be
    // another one then, with another place among the names.
    QNoxSettings settings;
    settings.set(text, 1);
    settings.set(QString::fromLatin1("Text"), text);
    checkReadsBack(QNoxSettings(settings.toXml(Version)));

    // One level further the text is the written document, which has nothing left that XML cannot carry.
    const QString inner = settings.toXml(Version);
    QNoxSettings outer;
    outer.set(QString::fromLatin1("Record"), inner);
    const QNoxSettings back(outer.toXml(Version));
    REQUIRE(withoutReturns(back.get(QString::fromLatin1("Record")).toString()) == withoutReturns(inner));
    return 0;
}
