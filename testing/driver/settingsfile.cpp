// SPDX-License-Identifier: LGPL-2.1-or-later
#include "testing/driver/settingsfile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

const qint64 MaxSize = Q_INT64_C(1) << 26; // 64 MiB

QString placeOf(const QString &path)
{
    QFileInfo file(path);
    // Followed one by one: they may lead to a file that does not exist yet, or in a circle.
    for (int links = 0; file.isSymLink() && links < 40; ++links) {
        file.setFile(file.symLinkTarget());
    }
    const QFileInfo directory(file.absolutePath());
    return directory.exists() ? QDir(directory.canonicalFilePath()).filePath(file.fileName()) : file.absoluteFilePath();
}

QString unreadable(const QString &reason)
{
    return QStringLiteral("файл не читается: %1").arg(reason);
}

} // namespace

SettingsFile::SettingsFile(const QString &path) : name(path), place(placeOf(path)), lockFile(place + ".lock")
{
    // However long the host runs, the file stays its own.
    lockFile.setStaleLockTime(0);
}

bool SettingsFile::isAt(const QString &path) const
{
    return place == placeOf(path);
}

QString SettingsFile::lock()
{
    if (lockFile.isLocked() || lockFile.tryLock()) {
        return QString();
    }
    switch (lockFile.error()) {
    case QLockFile::LockFailedError: {
        qint64 process = 0;
        QString host;
        QString program;
        lockFile.getLockInfo(&process, &host, &program);
        return QStringLiteral("файл занят другой программой (%1, процесс %2)").arg(program, QString::number(process));
    }
    case QLockFile::PermissionError:
        // Where no file can be made, none can be saved, either.
        return QString();
    default:
        return QStringLiteral("файл %1.lock не создаётся").arg(place);
    }
}

QString SettingsFile::read(QByteArray *content) const
{
    const int descriptor = ::open(QFile::encodeName(name).constData(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    if (descriptor < 0) {
        return errno == ENOENT ? QString() : unreadable(QString::fromLocal8Bit(std::strerror(errno)));
    }
    QFile file;
    if (!file.open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle)) {
        ::close(descriptor);
        return unreadable(file.errorString());
    }
    struct stat status;
    if (::fstat(descriptor, &status) != 0 || !S_ISREG(status.st_mode)) {
        return QStringLiteral("это не обычный файл");
    }
    // One byte more: what the system says of the size does not hold for all files.
    const QByteArray bytes = status.st_size > MaxSize ? QByteArray() : file.read(MaxSize + 1);
    if (status.st_size > MaxSize || bytes.size() > MaxSize) {
        return QStringLiteral("файл больше 64 МиБ");
    }
    if (file.error() != QFileDevice::NoError) {
        return unreadable(file.errorString());
    }
    *content = bytes;
    return QString();
}

QString SettingsFile::write(const QByteArray &content) const
{
    QSaveFile file(name);
    // For a new file and for the temporary one, from the first moment; an existing mode is taken over.
    const mode_t usual = ::umask(S_IRWXG | S_IRWXO);
    const bool opened = file.open(QIODevice::WriteOnly | QIODevice::Unbuffered);
    ::umask(usual);
    // A write that stops half-way has no reason to give; the next one has.
    qint64 done = 0;
    for (qint64 written = 1; opened && done < content.size() && written > 0; done += written) {
        written = file.write(content.constData() + done, content.size() - done);
    }
    return opened && done == content.size() && file.commit() ? QString() : file.errorString();
}
