// SPDX-License-Identifier: LGPL-2.1-or-later
#include "windowtour.h"

#include "testing/cashier.h"
#include "testing/librarypaycard.h"
#include "testing/simulateddriver.h"
#include "toolkit/windows.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QLayout>
#include <QMap>
#include <QPointer>
#include <QWidget>

#include <chrono>
#include <thread>

namespace {

using Cashier::choose;
using Cashier::press;
using Cashier::type;

const auto PollInterval = std::chrono::milliseconds(5);
const int LayoutTimeout = 500; // ms

const Failure Refusal = {Fault::Refuse, 12, "Настройки не приняты", "порт занят другой программой"};

/// What the user does in a window.
struct Move
{
    ModalScript::Step step;
    /// Whether it opens another window.
    bool opens = false;
};

Move open(const QString &button)
{
    return {press(button), true};
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
        {"properties-no-directory", properties, shop, {{type("lePathACDialog", "/нет/такого/каталога")}}},
        {"properties-refused", properties, shop, {{press("pbtnOk")}}, {}, failing("setSettings", Refusal)},
        {"properties-long",
         properties,
         shop,
         {{press("pbtnOk")}},
         {},
         failing("setSettings", {Fault::Refuse, 12, longText(), {}})},
        {"slip", properties, shop, {open("pbtnSlip")}},
        {"operators", properties, shop, {open("pbtnOperators"), {choose("lwOperators", "Интернет «Образец»")}}},
        {"operator",
         properties,
         shop,
         {open("pbtnOperators"), {choose("lwOperators", "Интернет «Образец»")}, open("pbtnEdit")}},
        {"operator-new", properties, shop, {open("pbtnOperators"), open("pbtnAdd")}},
        {"cyberplat", properties, shop, {open("pbtnSettingsButton")}},
        {"cyberplat-no-password", properties, shop, {open("pbtnSettingsButton"), {type("leKeyLoadPwd", QString())}}},
        protocolScene("arcus2", 6),
        protocolScene("arcus2-same-codes", 6, {{type("spinOpcodePrintJournal", "2")}}),
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

/// Whether the window is as large as its contents need it to be, or as its screen is. A scale factor
/// may take a pixel from it.
bool isLaidOut(const QWidget &window)
{
    const QLayout *layout = window.layout();
    const int height = layout->hasHeightForWidth() ? layout->totalHeightForWidth(window.width()) : 0;
    const QSize frame = window.frameGeometry().size() - window.size();
    const QSize needed = layout->totalMinimumSize().expandedTo(QSize(0, height));
    const QSize size = needed.boundedTo(Toolkit::availableGeometry(window).size() - frame);
    return size.boundedTo(window.size() + QSize(1, 1)) == size;
}

/// A window manager gives a window its size when it likes. The script's own timer must not run meanwhile.
void waitForLayout(const QWidget &window)
{
    QElapsedTimer waiting;
    for (waiting.start(); !isLaidOut(window) && !waiting.hasExpired(LayoutTimeout);) {
        QCoreApplication::processEvents(QEventLoop::X11ExcludeTimers);
        std::this_thread::sleep_for(PollInterval);
    }
}

/// Plays the scene up to its last window, which `visit` gets. Empty when that came, otherwise the reason.
QString visitScene(const Scene &scene, const LibraryPaycard &library, const Operation &operation,
                   const WindowVisitor &visit)
{
    SimulatedDriver driver;
    prepareDriver(driver, scene, operation);
    QPointer<QWidget> opener;
    bool visited = false;
    const auto expectAnotherThan = [](const QWidget *before, const QWidget *window) {
        if (window == before) {
            throw ModalScript::Impossible{QStringLiteral("следующее окно не появилось")};
        }
    };
    std::vector<ModalScript::Step> steps;
    for (const Move &move : scene.moves) {
        steps.emplace_back([&](QWidget *window) {
            expectAnotherThan(opener, window);
            move.step(window);
            if (move.opens) {
                opener = window;
            }
        });
    }
    steps.emplace_back([&](QWidget *window) {
        expectAnotherThan(opener, window);
        waitForLayout(*window);
        visit(scene.name, window);
        visited = true;
    });
    ModalScript script(std::move(steps));
    script.run([&] { return library.call(scene.function, &driver, nullptr); });
    return visited ? QString() : script.problem();
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
