// SPDX-License-Identifier: LGPL-2.1-or-later
#include "gallery.h"

#include "cashregisterwindow.h"
#include "journal.h"
#include "testing/cashier.h"
#include "testing/librarypaycard.h"
#include "testing/simulateddriver.h"
#include "windowtour.h"

#include <QApplication>
#include <QDir>
#include <QPixmap>
#include <QPushButton>
#include <QTabWidget>
#include <QTreeWidget>

#include <cstdio>

namespace {

/// This program on a small screen, after a call of the library, with the page shown.
QPixmap photographHost(const LibraryPaycard &library, const Operation &operation, const char *page)
{
    SimulatedDriver driver;
    driver.operation = operation;
    driver.replaceSettings(SimulatedDriver::sample("cyberplat"), nullptr);
    driver.failOperation("setSettings", {Fault::Refuse, 12, "Настройки не приняты", "порт занят"});
    driver.failOperation("setPropertiesShown", {Fault::ThrowStandard, 1, "Сбой при закрытии", QString(), 1, "0"});
    Journal journal(driver);
    CashRegisterWindow window(driver, library, journal);
    auto *tabs = window.findChild<QTabWidget *>("tabs");
    tabs->setCurrentWidget(window.findChild<QWidget *>(page));
    window.resize(800, 600);
    window.show();
    ModalScript script({Cashier::key(Qt::Key_Return)});
    script.run([&] {
        window.findChild<QPushButton *>("pbtnConfirmPayment")->click();
        return 0;
    });
    auto *lines = window.findChild<QTreeWidget *>("twJournal");
    lines->setCurrentItem(lines->topLevelItem(0));
    QApplication::processEvents();
    return window.grab();
}

void complain(const QString &name, const QString &problem)
{
    std::fprintf(stderr, "%s: %s\n", name.toUtf8().constData(), problem.toUtf8().constData());
}

} // namespace

bool drawGallery(const LibraryPaycard &library, const Operation &operation, const QString &path)
{
    const QDir directory(path);
    bool complete = directory.mkpath(QStringLiteral("."));
    const auto save = [&](const QString &name, const QPixmap &picture) {
        const QString file = directory.filePath(name + ".png");
        if (picture.save(file)) {
            std::printf("%s\n", file.toUtf8().constData());
        } else {
            complain(name, QStringLiteral("файл %1 не записан").arg(file));
            complete = false;
        }
    };
    const QMap<QString, QString> missing =
        visitWindows(library, operation, [&](const QString &name, QWidget *window) { save(name, window->grab()); });
    for (auto window = missing.cbegin(); window != missing.cend(); ++window) {
        complain(window.key(), window.value());
    }
    save("host-settings", photographHost(library, operation, "tabSettings"));
    save("host-failures", photographHost(library, operation, "tabFailures"));
    return complete && missing.isEmpty();
}
