// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef TABLE_H
#define TABLE_H

#include "measure.h"

#include <QString>
#include <QStringList>

#include <vector>

/// The figures of one run, each beside its floor.
class Table
{
public:
    /// A duration that is to be at most `aim` times its floor; no aim: 0.
    void addRatio(const QString &what, const Medians &medians, double aim);
    /// The same for sizes that grow tenfold from 10; `what` has a %1 for the size. Tells how many times
    /// longer a size takes than the one before.
    void addSeries(const QString &what, const std::vector<Medians> &sizes, double aim);
    /// A duration that is to exceed its floor by at most `aim` nanoseconds.
    void addDifference(const QString &what, const Medians &medians, qint64 aim);
    /// A number that is to be its floor.
    void addCount(const QString &what, int count, int floor);

    /// As Markdown.
    QString toText() const;

private:
    std::vector<QStringList> rows;
};

#endif
