// SPDX-License-Identifier: LGPL-2.1-or-later
#include "gallery.h"

#include "cashregisterwindow.h"
#include "librarypaycard.h"
#include "modalscript.h"
#include "simulateddriver.h"

#include <QApplication>
#include <QDir>
#include <QPushButton>
#include <QTabWidget>
#include <QTreeWidget>

#include <cstdio>

namespace {

const Failure Refusal = {Fault::Refuse, 12, "Настройки не приняты", "порт занят другой программой"};

/// What the user does in a window.
struct Move
{
    enum Kind {
        Open, ///< presses a button, which opens another window
        Press,
        Set
    };

    Kind kind;
    QString widget;
    const char *property;
    QVariant value;
};

Move open(const QString &button)
{
    return {Move::Open, button, nullptr, QVariant()};
}

Move press(const QString &button)
{
    return {Move::Press, button, nullptr, QVariant()};
}

Move set(const QString &widget, const char *property, const QVariant &value)
{
    return {Move::Set, widget, property, value};
}

/// A window and the way to it: from the entry point over the moves.
struct Scene
{
    QString name;
    QString function;
    QString sample;
    QList<Move> moves = {};
    QMap<QString, QString> settings = {};
    std::function<void(SimulatedDriver &)> prepare = nullptr;
};

std::function<void(SimulatedDriver &)> failing(const QString &operation, const Failure &failure)
{
    return [=](SimulatedDriver &driver) { driver.failOperation(operation, failure); };
}

std::function<void(SimulatedDriver &)> paying(double sum)
{
    return [=](SimulatedDriver &driver) { driver.operation.sum = sum; };
}

QMap<QString, QString> protocol(int number)
{
    return {{"Protocol", QString::number(number)}};
}

/// The settings of a protocol, and what they look like on a page of their own.
Scene protocolScene(const QString &name, int number, const QList<Move> &moves = {})
{
    const QString sample = number == 11 ? "sberbank" : "arcus2";
    return {name, "ShowProperties", sample, QList<Move>{open("pbtnSettingsButton")} + moves,
            protocol(number)};
}

Scene sberbankScene(const QString &page, const QString &port)
{
    Scene scene = protocolScene("terminal-sberbank-" + page, 11);
    scene.settings.insert("Port", port);
    return scene;
}

QList<Scene> scenes()
{
    const QString properties = "ShowProperties";
    const QString shop = "cyberplat";
    const Failure throwing = {Fault::ThrowStandard, 0, "сбой", QString()};
    const auto refund = [](SimulatedDriver &driver) { driver.operation.code = 1; };
    return {
        {"confirmation-card", "ConfirmPayment", "arcus2", {}, protocol(0), refund},
        {"confirmation-services", "ConfirmPayment", shop},
        {"confirmation-failed", "ConfirmPayment", shop, {}, {}, failing("getSum", throwing)},
        {"select-operator", "SelectOperator", shop},
        {"commission", "CommissionAddition", shop},
        {"commission-too-little", "CommissionAddition", shop, {}, {}, paying(5.0)},
        {"properties", properties, shop},
        {"properties-no-directory",
         properties,
         shop,
         {set("lePathACDialog", "text", "/нет/такого/каталога")}},
        {"properties-refused", properties, shop, {press("pbtnOk")}, {}, failing("setSettings", Refusal)},
        {"slip", properties, shop, {open("pbtnSlip")}},
        {"operators", properties, shop, {open("pbtnOperators"), set("lwOperators", "currentRow", 1)}},
        {"operator",
         properties,
         shop,
         {open("pbtnOperators"), set("lwOperators", "currentRow", 1), open("pbtnEdit")}},
        {"operator-new", properties, shop, {open("pbtnOperators"), open("pbtnAdd")}},
        {"cyberplat", properties, shop, {open("pbtnSettingsButton")}},
        {"cyberplat-no-password",
         properties,
         shop,
         {open("pbtnSettingsButton"), set("leKeyLoadPwd", "text", QString())}},
        protocolScene("arcus2", 6),
        protocolScene("arcus2-same-codes", 6, {set("spinOpcodePrintJournal", "value", 2)}),
        protocolScene("lumipay-inpas", 8),
        protocolScene("lumipay-arcus2", 9),
        protocolScene("lumipay-sberbank", 10),
        sberbankScene("serial", "1"),
        sberbankScene("file", "TTY"),
        sberbankScene("network", "TCPIP"),
        sberbankScene("usb", "USB"),
        protocolScene("terminal-inpas", 12),
        protocolScene("terminal-arcus2", 13),
        {"about", properties, shop, {open("pbtnAbout")}},
    };
}

void prepareDriver(SimulatedDriver &driver, const Scene &scene, const Operation &operation)
{
    SettingsDocument settings(SimulatedDriver::sample(scene.sample));
    for (auto tweak = scene.settings.cbegin(); tweak != scene.settings.cend(); ++tweak) {
        settings.setValue(tweak.key(), tweak.value());
    }
    driver.operation = operation;
    driver.replaceSettings(settings.toXml(), nullptr);
    if (scene.prepare) {
        scene.prepare(driver);
    }
}

/// False when the window has no such widget, or its button is disabled.
bool play(const Move &move, QWidget *window)
{
    if (move.kind != Move::Set) {
        return ModalScript::press(window, move.widget);
    }
    auto *widget = window->findChild<QWidget *>(move.widget);
    return widget && widget->setProperty(move.property, move.value);
}

/// Plays the scene up to its last window; an empty picture, with the reason, when it does not come.
QPixmap photograph(const Scene &scene, const LibraryPaycard &library, const Operation &operation,
                   QString *reason)
{
    SimulatedDriver driver;
    prepareDriver(driver, scene, operation);
    QPixmap picture;
    QPointer<QWidget> opener;
    *reason = QStringLiteral("окно не появилось");
    // False once a window is missing; then the script closes the ones that are open.
    const auto arrived = [&](QWidget *window) { return window != opener && !reason->isEmpty(); };

    std::vector<ModalScript::Step> steps;
    for (const Move &move : scene.moves) {
        steps.emplace_back([&](QWidget *window) {
            if (!arrived(window)) {
                return;
            }
            if (!play(move, window)) {
                *reason = QStringLiteral("не вышло с элементом %1").arg(move.widget);
                opener = window;
            } else if (move.kind == Move::Open) {
                opener = window;
            }
        });
    }
    steps.emplace_back([&](QWidget *window) {
        if (arrived(window)) {
            picture = window->grab();
        }
    });
    ModalScript script(std::move(steps));
    script.run([&] { return library.call(scene.function, &driver, nullptr); });
    return picture;
}

/// This program after a call of the library, with the page shown.
QPixmap photographHost(const LibraryPaycard &library, const Operation &operation, const char *page)
{
    SimulatedDriver driver;
    prepareDriver(driver, {"host", "ConfirmPayment", "cyberplat"}, operation);
    driver.failOperation("setSettings", Refusal);
    CashRegisterWindow window(driver, library);
    auto *tabs = window.findChild<QTabWidget *>("tabs");
    tabs->setCurrentWidget(window.findChild<QWidget *>(page));
    window.show();
    ModalScript script({[](QWidget *box) { ModalScript::press(box, "OK"); }});
    script.run([&] {
        window.findChild<QPushButton *>("pbtnConfirmPayment")->click();
        return 0;
    });
    auto *journal = window.findChild<QTreeWidget *>("twJournal");
    journal->setCurrentItem(journal->topLevelItem(0));
    QApplication::processEvents();
    return window.grab();
}

bool save(const QPixmap &picture, const QString &name, const QString &reason, const QDir &directory)
{
    const QString path = directory.filePath(name + ".png");
    if (!picture.isNull() && picture.save(path)) {
        std::printf("%s\n", path.toUtf8().constData());
        return true;
    }
    const QString problem = picture.isNull() ? reason : QStringLiteral("файл %1 не записан").arg(path);
    std::fprintf(stderr, "%s: %s\n", name.toUtf8().constData(), problem.toUtf8().constData());
    return false;
}

} // namespace

bool drawGallery(const LibraryPaycard &library, const Operation &operation, const QString &path)
{
    const QDir directory(path);
    bool complete = directory.mkpath(QStringLiteral("."));
    const QList<Scene> all = scenes();
    for (const Scene &scene : all) {
        QString reason;
        const QPixmap picture = photograph(scene, library, operation, &reason);
        complete = save(picture, scene.name, reason, directory) && complete;
    }
    for (const char *page : {"tabSettings", "tabFailures"}) {
        const QString name = QStringLiteral("host-%1").arg(QString(page).mid(3).toLower());
        complete = save(photographHost(library, operation, page), name, QString(), directory) && complete;
    }
    return complete;
}
