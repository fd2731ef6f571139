// SPDX-License-Identifier: LGPL-2.1-or-later
#include "testing/librarypaycard.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <map>

QStringList LibraryPaycard::functions()
{
    return {"ShowProperties", "SelectOperator", "CommissionAddition", "ConfirmPayment", "AskParams"};
}

QString LibraryPaycard::defaultPath(const QString &otherwise)
{
    QString chosen = QString::fromLocal8Bit(qgetenv("PAYCARD_GUI"));
    if (!chosen.isEmpty()) {
        return chosen;
    }
    const QString beside = QDir(QCoreApplication::applicationDirPath()).filePath(QFileInfo(otherwise).fileName());
    return QFile::exists(beside) ? beside : otherwise;
}

bool LibraryPaycard::load(const QString &path, QString *reason)
{
    library.setFileName(path);
    if (!library.load()) {
        *reason = QStringLiteral("Библиотека %1 не загружена: %2").arg(path, library.errorString());
        return false;
    }
    const QStringList names = functions();
    for (const QString &name : names) {
        const auto function = reinterpret_cast<EntryPoint>(library.resolve(name.toLatin1().constData()));
        if (!function) {
            *reason = QStringLiteral("В библиотеке %1 нет функции %2").arg(library.fileName(), name);
            entryPoints.clear();
            return false;
        }
        entryPoints.insert(name, function);
    }
    return true;
}

int LibraryPaycard::call(const QString &function, NOX::PayCard::IPayCard *driver, QWidget *parent) const
{
    const EntryPoint entryPoint = entryPoints.value(function);
    return entryPoint ? entryPoint(driver, parent) : -1;
}

QString LibraryPaycard::inWords(const QString &function, int result)
{
    static const QMap<QString, QStringList> meanings(std::map<QString, QStringList>{
        {"ShowProperties", {"отменено", "сохранено"}},
        {"SelectOperator", {"отменено", "выбран"}},
        {"CommissionAddition", {"отменено", "в сумме", "сверх суммы"}},
        {"ConfirmPayment", {"отменено", "подтверждено"}},
    });
    const QString meaning = result == -1 ? QStringLiteral("не выполнено") : meanings.value(function).value(result);
    QString number = QString::number(result);
    number.replace(QLatin1Char('-'), QChar(0x2212));
    return QStringLiteral("%1 — %2").arg(number, meaning.isEmpty() ? QStringLiteral("неизвестный ответ") : meaning);
}
