// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef JOURNAL_H
#define JOURNAL_H

#include "testing/simulateddriver.h"

#include <QFile>
#include <QObject>

class LibraryPaycard;
class QWidget;

/// A line of the journal: an operation that the library called, or a function of the library that was called.
struct JournalLine
{
    DriverCall call;
    /// For a function only, whose arguments are always the driver and the window.
    bool isFunction = false;
    int result = 0;
};

/// What passes between host, library and driver. The line of a function comes when the function has returned, after
/// those of the operations that it called. Passwords are masked in it. Replaces the driver's own `onCall`; the
/// driver must outlive it.
class Journal : public QObject
{
    Q_OBJECT

public:
    explicit Journal(SimulatedDriver &driver);
    ~Journal() override;

    /// Calls the library's function and enters what it gave back.
    int call(const LibraryPaycard &library, const QString &function, QWidget *parent);

    /// The latest ones, as many as a person may look through.
    const QList<JournalLine> &lines() const { return latest; }
    void clear();

    /// A line for people. What takes several, such as a document, is indented from the second on.
    static QString text(const JournalLine &line);
    /// An object for machines, in one line.
    static QByteArray json(const JournalLine &line);

    /// Writes the lines to a file: as one JSON object each when its name ends in .json or .jsonl, otherwise as text.
    /// Gives the reason, for people, when that fails, otherwise an empty text.
    QString save(const QString &path) const;
    /// Writes to a new file what is there and each line as it comes: nothing is missing if the process dies.
    QString follow(const QString &path);
    /// Why that file is not complete; empty when it is, or when there is none.
    const QString &problem() const { return lost; }

signals:
    /// A line has come; the oldest may have gone.
    void grown();

private:
    void enter(const JournalLine &line);

    SimulatedDriver &driver;
    QList<JournalLine> latest;
    QFile following;
    QString lost;
};

#endif
