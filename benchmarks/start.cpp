// SPDX-License-Identifier: LGPL-2.1-or-later
#include "suites.h"

#include <QProcess>

namespace {

struct Start
{
    qint64 duration; ///< nanoseconds until the window has been painted
    QString text;    ///< in the window
};

Start start(const char *program, const QString &argument, const QString &text)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("QT_QPA_GENERIC_PLUGINS", "paycard_probe");
    environment.insert("QT_PLUGIN_PATH", BENCHMARK_PLUGINS);
    process.setProcessEnvironment(environment);
    const qint64 begin = now();
    process.start(program, {argument, text});
    process.waitForFinished();
    const QString output = QString::fromUtf8(process.readAllStandardOutput());
    const qint64 painted = output.section('\n', 0, 0).toLongLong();
    if (painted < begin) {
        qFatal("%s has painted nothing", program);
    }
    return {painted - begin, output.section('\n', 1)};
}

} // namespace

void measureStart(Table &table, double seconds)
{
    const auto host = [] { return start(BENCHMARK_HOST, "--call", "ConfirmPayment"); };
    const QString text = host().text;
    table.addRatio(
        "Start of the host with ConfirmPayment",
        interleave(
            seconds, [=] { return host().duration; }, [=] { return start(BENCHMARK_BOX, text, QString()).duration; }),
        0);
}
