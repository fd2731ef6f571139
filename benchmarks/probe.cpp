// SPDX-License-Identifier: LGPL-2.1-or-later
//
// A plugin that any program with the toolkit can be told to load: prints the time when the first modal window has been
// painted, then what a message box says, and ends the process.
#include "firstpaint.h"

#include <QGenericPlugin>
#include <QMessageBox>

#include <cstdio>
#include <unistd.h>

class Probe : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "probe.json")

public:
    QObject *create(const QString & /*name*/, const QString & /*parameters*/) override
    {
        FirstPaint *firstPaint = new FirstPaint;
        firstPaint->whenPainted([](QDialog *window) {
            const qint64 painted = now();
            const QMessageBox *box = qobject_cast<QMessageBox *>(window);
            std::printf("%lld\n%s", static_cast<long long>(painted), box ? box->text().toUtf8().constData() : "");
            std::fflush(stdout);
            _exit(0);
        });
        return firstPaint;
    }
};

#include "probe.moc"
