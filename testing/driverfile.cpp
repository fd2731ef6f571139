// SPDX-License-Identifier: LGPL-2.1-or-later
//
// The simulated driver's file. Apart from the driver, because Qt 4.8 has neither locks nor files to save in one go.

#include "testing/settingsfile.h"
#include "testing/simulateddriver.h"

bool SimulatedDriver::openSettings(const QString &path, QString *reason)
{
    // Its own file is not locked for this driver.
    const std::shared_ptr<SettingsFile> opened = file && file->isAt(path) ? file : std::make_shared<SettingsFile>(path);
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
        file = opened;
        save = [opened](const QByteArray &content) {
            const QString failure = opened->write(content);
            return failure.isEmpty() ? failure : QStringLiteral("%1: %2").arg(opened->path(), failure);
        };
    } else if (reason) {
        *reason = QStringLiteral("Настройки %1 не открыты: %2").arg(path, problem);
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
