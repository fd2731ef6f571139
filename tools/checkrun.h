// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef CHECKRUN_H
#define CHECKRUN_H

#include "testing/contractfinding.h"

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

class QJsonObject;

/// A driver as a file, and how to check it.
struct DriverFile
{
    QString path;
    QByteArray create;  ///< name of the function that makes the driver
    QByteArray destroy; ///< and of the one that takes it back
    bool mayWrite = false;
    int timeout = 0; ///< of an operation, in milliseconds
};

/// Checks a driver in processes of its own: one that crashes or hangs loses neither what was found nor the settings.
/// The driver is loaded anew then, gets its settings back, and the rules that are left are checked.
class CheckRun
{
public:
    explicit CheckRun(const DriverFile &file);

    /// False, with the reason, when the driver cannot be checked at all.
    bool run(QString *reason);
    QList<ContractFinding> findings() const;

private:
    [[noreturn]] void work(int output) const;
    bool watch(int input);
    void take(const QJsonObject &message);
    void keep(const ContractFinding &finding);
    void giveUpSettings(const QString &why);
    bool goOn(const QString &end);

    const DriverFile file;
    QStringList left;
    QMap<QString, ContractFinding> found;
    /// As they were at first; null until they are known.
    QString settings;
    /// They could not be read or put back: nothing is written any more.
    bool isGivenUp = false;
    QString unusable;
    bool isDone = false;
    /// What the driver is at.
    QString rule;
    QString operation;
};

#endif
