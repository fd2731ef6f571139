// SPDX-License-Identifier: LGPL-2.1-or-later
//
// Prints the figures of the library beside their floors. docs/performance.md says how to read them.
//
// Usage: benchmark [SECONDS]     for each figure, 2 by default
#include "suites.h"

#include <QApplication>
#include <QProcess>

#include <cstdio>

namespace {

const qint64 LoadingAim = 1000000;

void measureLoading(Table &table, double seconds)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(BENCHMARK_LOADING, {PAYCARD_GUI_LIBRARY, BENCHMARK_EMPTY, QString::number(seconds)});
    process.waitForFinished(-1);
    const QList<QByteArray> medians = process.readAllStandardOutput().split(' ');
    if (process.exitCode() != 0 || medians.size() != 2) {
        qFatal("loading could not be measured");
    }
    table.addDifference("Loading and unloading", {medians.first().toLongLong(), medians.last().trimmed().toLongLong()},
                        LoadingAim);
}

/// The platform without a screen warns with every window that it does not know sizes: as slow as much of what
/// is measured. What ends the process still has its say.
void dropWarnings(QtMsgType type, const QMessageLogContext & /*context*/, const QString &message)
{
    if (type == QtCriticalMsg || type == QtFatalMsg) {
        std::fprintf(stderr, "%s\n", message.toUtf8().constData());
    }
}

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    qInstallMessageHandler(dropWarnings);
    const QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    const QStringList arguments = QApplication::arguments();
    const double seconds = arguments.value(1, "2").toDouble();

    Table table;
    measureLoading(table, seconds);
    measureStart(table, seconds);
    measureWindows(table, seconds);
    measureOperators(table, seconds);
    measureDocument(table, seconds);
    countCalls(table);
    std::printf("Qt: %s\n\n%s", qVersion(), table.toText().toUtf8().constData());
    return 0;
}
