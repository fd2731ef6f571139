// SPDX-License-Identifier: LGPL-2.1-or-later
#include "windowtour.h"

#include "testing/librarypaycard.h"
#include "testing/modalscript.h"
#include "testing/simulateddriver.h"

#include <QMap>
#include <QPointer>
#include <QVariant>
#include <QWidget>

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

/// Far more than a person reads.
QString longText()
{
    return QString("Терминал не отвечает на запрос. ").repeated(100);
}

QMap<QString, QString> protocol(int number)
{
    QMap<QString, QString> settings;
    settings.insert("Protocol", QString::number(number));
    return settings;
}

/// The settings of a protocol, and what they look like on a page of their own.
Scene protocolScene(const QString &name, int number, const QList<Move> &moves = {})
{
    const QString sample = number == 11 ? "sberbank" : "arcus2";
    return {name, "ShowProperties", sample, QList<Move>{open("pbtnSettingsButton")} + moves, protocol(number)};
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
    const auto longAccount = [](SimulatedDriver &driver) { driver.operation.account = longText(); };
    return {
        {"confirmation-card", "ConfirmPayment", "arcus2", {}, protocol(0), refund},
        {"confirmation-services", "ConfirmPayment", shop},
        {"confirmation-long", "ConfirmPayment", shop, {}, {}, longAccount},
        {"confirmation-failed", "ConfirmPayment", shop, {}, {}, failing("getSum", throwing)},
        {"select-operator", "SelectOperator", shop},
        {"commission", "CommissionAddition", shop},
        {"commission-too-little", "CommissionAddition", shop, {}, {}, paying(5.0)},
        {"properties", properties, shop},
        {"properties-no-directory", properties, shop, {set("lePathACDialog", "text", "/нет/такого/каталога")}},
        {"properties-refused", properties, shop, {press("pbtnOk")}, {}, failing("setSettings", Refusal)},
        {"properties-long",
         properties,
         shop,
         {press("pbtnOk")},
         {},
         failing("setSettings", {Fault::Refuse, 12, longText(), {}})},
        {"slip", properties, shop, {open("pbtnSlip")}},
        {"operators", properties, shop, {open("pbtnOperators"), set("lwOperators", "currentRow", 1)}},
        {"operator", properties, shop, {open("pbtnOperators"), set("lwOperators", "currentRow", 1), open("pbtnEdit")}},
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
    for (auto tweak = scene.settings.constBegin(); tweak != scene.settings.constEnd(); ++tweak) {
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

/// Plays the scene up to its last window, which `visit` gets. Empty when that came, otherwise the reason.
QString visitScene(const Scene &scene, const LibraryPaycard &library, const Operation &operation,
                   const WindowVisitor &visit)
{
    SimulatedDriver driver;
    prepareDriver(driver, scene, operation);
    QPointer<QWidget> opener;
    QString reason = QStringLiteral("окно не появилось");
    bool stuck = false;
    // False once a window is missing; then the script closes the ones that are open.
    const auto arrived = [&](QWidget *window) { return window != opener && !stuck; };

    std::vector<ModalScript::Step> steps;
    for (const Move &move : scene.moves) {
        steps.emplace_back([&](QWidget *window) {
            if (!arrived(window)) {
                return;
            }
            if (!play(move, window)) {
                reason = QStringLiteral("не вышло с элементом %1").arg(move.widget);
                stuck = true;
            } else if (move.kind == Move::Open) {
                opener = window;
            }
        });
    }
    steps.emplace_back([&](QWidget *window) {
        if (arrived(window)) {
            visit(scene.name, window);
            reason.clear();
        }
    });
    ModalScript script(std::move(steps));
    script.run([&] { return library.call(scene.function, &driver, nullptr); });
    return reason;
}

} // namespace

QMap<QString, QString> visitWindows(const LibraryPaycard &library, const Operation &operation,
                                    const WindowVisitor &visit)
{
    QMap<QString, QString> missing;
    const QList<Scene> all = scenes();
    for (const Scene &scene : all) {
        const QString reason = visitScene(scene, library, operation, visit);
        if (!reason.isEmpty()) {
            missing.insert(scene.name, reason);
        }
    }
    return missing;
}
