// SPDX-License-Identifier: LGPL-2.1-or-later
#include "common/qnoxsettings.h"
#include "suites.h"

#include <QDomDocument>

namespace {

const int Indent = 4; // as the library writes

QString documentOf(int entries)
{
    QNoxSettings settings;
    for (int i = 0; i < entries; ++i) {
        settings.set(QString("Setting%1").arg(i), QString("Значение %1 & more").arg(i));
    }
    return settings.toXml(2);
}

} // namespace

void measureDocument(Table &table, double seconds)
{
    std::vector<Medians> from;
    std::vector<Medians> to;
    std::vector<Medians> both;
    for (const int size : {10, 100, 1000, 10000, 100000}) {
        const QString text = documentOf(size);
        QNoxSettings settings;
        QDomDocument document;
        const auto read = [&] { settings.fromXml(text); };
        const auto readFloor = [&] { document.setContent(text); };
        const auto write = [&] { settings.toXml(2); };
        const auto writeFloor = [&] { document.toString(Indent); };
        const auto measure = [&](auto own, auto floor) {
            return interleave(
                seconds, [&] { return elapsed(own); }, [&] { return elapsed(floor); });
        };
        from.push_back(measure(read, readFloor));
        to.push_back(measure(write, writeFloor));
        both.push_back(measure([&] { read(), write(); }, [&] { readFloor(), writeFloor(); }));
    }
    table.addSeries("Document of %1 entries from and to text", both, 1.2);
    table.addSeries("- of %1 entries from text", from, 0);
    table.addSeries("- of %1 entries to text", to, 0);
}
