// SPDX-License-Identifier: LGPL-2.1-or-later
#include "table.h"

namespace {

const int SmallestSize = 10;

QString number(double value, int decimals)
{
    return QString::number(value, 'f', decimals);
}

QString duration(qint64 nanoseconds)
{
    const double microseconds = static_cast<double>(nanoseconds) / 1000;
    return microseconds < 1000 ? number(microseconds, 1) + " µs" : number(microseconds / 1000, 2) + " ms";
}

double ratio(qint64 value, qint64 floor)
{
    return static_cast<double>(value) / static_cast<double>(floor);
}

QString met(bool yes)
{
    return yes ? "yes" : "NO";
}

QStringList ratioRow(const QString &what, const Medians &medians, double aim, const QString &growth)
{
    const double times = ratio(medians.library, medians.floor);
    return {what,
            duration(medians.library),
            duration(medians.floor),
            number(times, 2),
            aim > 0 ? "≤ " + number(aim, 2) : QString(),
            aim > 0 ? met(times <= aim) : QString(),
            medians.empty > 0 ? number(ratio(medians.library, medians.empty), 2) : QString(),
            growth};
}

} // namespace

void Table::addRatio(const QString &what, const Medians &medians, double aim)
{
    rows.push_back(ratioRow(what, medians, aim, QString()));
}

void Table::addSeries(const QString &what, const std::vector<Medians> &sizes, double aim)
{
    int size = SmallestSize;
    const Medians *smaller = nullptr;
    for (const Medians &medians : sizes) {
        QString growth;
        if (smaller) {
            growth = number(ratio(medians.library, smaller->library), 1) + " (" +
                     number(ratio(medians.floor, smaller->floor), 1) + ")";
        }
        rows.push_back(ratioRow(what.arg(size), medians, aim, growth));
        smaller = &medians;
        size *= 10;
    }
}

void Table::addDifference(const QString &what, const Medians &medians, qint64 aim)
{
    const qint64 difference = medians.library - medians.floor;
    rows.push_back({what, duration(medians.library), duration(medians.floor), "+ " + duration(difference),
                    "≤ + " + duration(aim), met(difference <= aim), QString(), QString()});
}

void Table::addCount(const QString &what, int count, int floor)
{
    rows.push_back({what, QString::number(count), QString::number(floor),
                    floor > 0 ? number(ratio(count, floor), 2) : QString(), "equal", met(count == floor), QString(),
                    QString()});
}

QString Table::toText() const
{
    std::vector<QStringList> lines = {{"What", "Library", "Floor", "Ratio", "Aim", "Met", "Empty", "Growth (floor)"}};
    lines.insert(lines.end(), rows.begin(), rows.end());
    std::vector<int> widths(static_cast<std::size_t>(lines.front().size()));
    for (const QStringList &line : lines) {
        for (std::size_t i = 0; i < widths.size(); ++i) {
            widths[i] = std::max(widths[i], static_cast<int>(line.at(static_cast<int>(i)).size()));
        }
    }
    QStringList rule;
    for (std::size_t i = 0; i < widths.size(); ++i) {
        // Numbers stand at the right.
        rule.append(i == 0 ? QString(widths[i], '-') : QString(widths[i] - 1, '-') + ':');
    }
    lines.insert(lines.begin() + 1, rule);

    QString text;
    for (const QStringList &line : lines) {
        for (std::size_t i = 0; i < widths.size(); ++i) {
            const QString &cell = line.at(static_cast<int>(i));
            text += "| " + (i == 0 ? cell.leftJustified(widths[i]) : cell.rightJustified(widths[i])) + ' ';
        }
        text += "|\n";
    }
    return text;
}
