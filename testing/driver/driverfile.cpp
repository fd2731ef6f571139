// SPDX-License-Identifier: LGPL-2.1-or-later
//
// The simulated driver's file. Apart from the driver, because Qt 4.8 has neither locks nor files to save in one go.

#include "testing/driver/settingsfile.h"
#include "testing/simulateddriver.h"

std::shared_ptr<SettingsFile> SimulatedDriver::fileAt(const QString &path) const
{
    return file && file->isAt(path) ? file : std::make_shared<SettingsFile>(path);
}

void SimulatedDriver::keepIn(const std::shared_ptr<SettingsFile> &place)
{
    file = place;
    save = [place](const QByteArray &content) {
        const QString failure = place->write(content);
        return failure.isEmpty() ? failure : QStringLiteral("%1: %2").arg(place->path(), failure);
    };
}

bool SimulatedDriver::openSettings(const QString &path, QString *reason)
{
    const std::shared_ptr<SettingsFile> opened = fileAt(path);
    QByteArray bytes = EmptyDocument;
    QString problem = opened->lock();
    if (problem.isEmpty()) {
        problem = opened->read(&bytes);
    }
    const Document read(QString::fromUtf8(bytes));
    if (problem.isEmpty() && !read.content.isValid()) {
        problem = QStringLiteral("документ испорчен: %1").arg(read.content.errorPlace());
    } else if (problem.isEmpty() && read.text.contains(QChar::ReplacementCharacter)) {
        problem = QStringLiteral("кодировка не UTF-8");
    }
    if (problem.isEmpty()) {
        document = read;
        keepIn(opened);
    } else if (reason) {
        *reason = QStringLiteral("Настройки %1 не открыты: %2").arg(path, problem);
    }
    return problem.isEmpty();
}

bool SimulatedDriver::saveSettings(const QString &path, QString *reason)
{
    const std::shared_ptr<SettingsFile> target = fileAt(path);
    QString problem = target->lock();
    if (problem.isEmpty()) {
        problem = target->write(document.text.toUtf8());
    }
    if (problem.isEmpty()) {
        keepIn(target);
    } else if (reason) {
        *reason = QStringLiteral("Настройки %1 не сохранены: %2").arg(path, problem);
    }
    return problem.isEmpty();
}

QString SimulatedDriver::settingsFile() const
{
    return file ? file->path() : QString();
}

void SimulatedDriver::closeSettings()
{
    file.reset();
    save = nullptr;
}
