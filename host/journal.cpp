// SPDX-License-Identifier: LGPL-2.1-or-later
#include "journal.h"

#include "testing/librarypaycard.h"

#include <QDateTime>
#include <QElapsedTimer>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

const int Limit = 10000;

double milliseconds(const DriverCall &call)
{
    return static_cast<double>(call.took) / 1000.0;
}

/// As it goes into a file of that name.
QByteArray formatted(const JournalLine &line, const QString &fileName)
{
    const bool asJson =
        fileName.endsWith(".json", Qt::CaseInsensitive) || fileName.endsWith(".jsonl", Qt::CaseInsensitive);
    return (asJson ? Journal::json(line) : Journal::text(line).toUtf8()) + '\n';
}

/// Empty when they are in the file, not only in its buffer; otherwise the reason.
QString write(QFile &file, const QList<JournalLine> &lines)
{
    QByteArray bytes;
    for (const JournalLine &line : lines) {
        bytes += formatted(line, file.fileName());
    }
    const bool open = file.isOpen() || file.open(QIODevice::WriteOnly | QIODevice::Truncate);
    return open && file.write(bytes) == bytes.size() && file.flush()
               ? QString()
               : QString("Журнал %1 не записан: %2").arg(file.fileName(), file.errorString());
}

} // namespace

Journal::Journal(SimulatedDriver &hostDriver) : driver(hostDriver)
{
    driver.onCall = [this] { enter({driver.journal().last()}); };
}

Journal::~Journal()
{
    driver.onCall = nullptr;
}

int Journal::call(const LibraryPaycard &library, const QString &function, QWidget *parent)
{
    const qint64 time = QDateTime::currentMSecsSinceEpoch();
    QElapsedTimer clock;
    clock.start();
    const int result = library.call(function, &driver, parent);
    const qint64 took = clock.nsecsElapsed() / 1000;
    enter({{function, QString(), LibraryPaycard::inWords(function, result), time, took}, true, result});
    return result;
}

void Journal::clear()
{
    driver.clearJournal();
    latest.clear();
}

QString Journal::text(const JournalLine &line)
{
    const DriverCall &call = line.call;
    const QString form = line.isFunction ? QString("%1  %2 мс  функция %3%4: %5") : QString("%1  %2 мс  %3(%4): %5");
    return form
        .arg(QDateTime::fromMSecsSinceEpoch(call.time).toString("yyyy-MM-dd HH:mm:ss.zzz"),
             QString::number(milliseconds(call), 'f', 3), call.operation, call.arguments, call.result)
        .trimmed()
        .replace("\n", "\n    ");
}

QByteArray Journal::json(const JournalLine &line)
{
    const DriverCall &call = line.call;
    QJsonObject object{
        {"time", QDateTime::fromMSecsSinceEpoch(call.time).toUTC().toString(Qt::ISODateWithMs)},
        {"ms", milliseconds(call)},
    };
    if (line.isFunction) {
        object.insert("function", call.operation);
        object.insert("result", line.result);
        object.insert("words", call.result);
    } else {
        object.insert("operation", call.operation);
        object.insert("arguments", call.arguments);
        object.insert("answer", call.result);
    }
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

QString Journal::save(const QString &path) const
{
    QFile file(path);
    return write(file, latest);
}

QString Journal::follow(const QString &path)
{
    following.setFileName(path);
    lost = write(following, latest);
    return lost;
}

void Journal::enter(const JournalLine &line)
{
    if (latest.size() >= Limit) {
        latest.removeFirst();
    }
    latest.append(line);
    if (following.isOpen() && lost.isEmpty()) {
        lost = write(following, {line});
    }
    emit grown();
}
