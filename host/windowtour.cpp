// SPDX-License-Identifier: LGPL-2.1-or-later
#include "windowtour.h"

#include "testing/cashier.h"
#include "testing/librarypaycard.h"
#include "testing/simulateddriver.h"
#include "toolkit/windows.h"

#include <QComboBox>
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
    /// That of the window's form goes in front where it is empty or begins with a hyphen.
    QString name;
    QString function;
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

/// The settings of a protocol.
Scene protocolScene(int number, const QString &name = {}, const QList<Move> &moves = {})
{
    return {name, "ShowProperties", QList<Move>{open("pbtnSettingsButton")} + moves, protocol(number)};
}

/// What they look like with a port that has a page of its own.
Scene portScene(const QString &name, const QString &port)
{
    Scene scene = protocolScene(11, name);
    scene.settings.insert("Port", port);
    return scene;
}

QList<Scene> scenes()
{
    const QString properties = "ShowProperties";
    const Failure throwing = {Fault::ThrowStandard, 0, "сбой", QString()};
    const auto refund = [](SimulatedDriver &driver) { driver.operation.code = 1; };
    const auto longAccount = [](SimulatedDriver &driver) { driver.operation.account = longText(); };
    return {
        {"confirmation-card", "ConfirmPayment", {}, protocol(0), refund},
        {"confirmation-services", "ConfirmPayment"},
        {"confirmation-long", "ConfirmPayment", {}, {}, longAccount},
        {"confirmation-failed", "ConfirmPayment", {}, {}, failing("getSum", throwing)},
        {"select-operator", "SelectOperator"},
        {"commission", "CommissionAddition"},
        {"commission-too-little", "CommissionAddition", {}, {}, paying(5.0)},
        {"properties", properties},
        {"properties-no-directory", properties, {{type("lePathACDialog", "/нет/такого/каталога")}}},
        {"properties-refused", properties, {{press("pbtnOk")}}, {}, failing("setSettings", Refusal)},
        {"properties-long",
         properties,
         {{press("pbtnOk")}},
         {},
         failing("setSettings", {Fault::Refuse, 12, longText(), {}})},
        {"properties-unreadable", properties, {}, {}, [](SimulatedDriver &driver) { driver.damageSettings("<"); }},
        {"slip", properties, {open("pbtnSlip")}},
        {"operators", properties, {open("pbtnOperators"), {choose("lwOperators", "Интернет «Образец»")}}},
        {"operator",
         properties,
         {open("pbtnOperators"), {choose("lwOperators", "Интернет «Образец»")}, open("pbtnEdit")}},
        {"operator-new", properties, {open("pbtnOperators"), open("pbtnAdd")}},
        protocolScene(2, "-no-password", {{type("leKeyLoadPwd", QString())}}),
        protocolScene(6, "-same-codes", {{type("spinOpcodePrintJournal", "2")}}),
        portScene("-file", "TTY"),
        portScene("-network", "TCPIP"),
        portScene("-usb", "USB"),
        {"about", properties, {open("pbtnAbout")}},
    };
}

/// What all sample shops have, as one that sells services and whose terminals have COM ports.
SettingsDocument shop()
{
    SettingsDocument settings(SimulatedDriver::sample("sberbank"));
    for (const char *sample : {"cyberplat", "arcus2"}) {
        const QList<SettingsEntry> entries = SettingsDocument(SimulatedDriver::sample(sample)).entries();
        for (const SettingsEntry &entry : entries) {
            settings.setValue(entry.name, entry.text);
        }
    }
    settings.setValue("Protocol", "2");
    return settings;
}

void prepareDriver(SimulatedDriver &driver, const Scene &scene, const Operation &operation)
{
    SettingsDocument settings = shop();
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

/// `front` is for a name that has nothing before its hyphen.
QString nameOf(const Scene &scene, const QString &front)
{
    return scene.name.isEmpty() || scene.name.startsWith('-') ? front + scene.name : scene.name;
}

/// "arcus2" for Arcus2SettingsDialog.
QString formName(const QWidget *window)
{
    return QString::fromLatin1(window->metaObject()->className()).toLower().remove("settingsdialog");
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
        visit(nameOf(scene, formName(window)), window);
        visited = true;
    });
    ModalScript script(std::move(steps));
    script.run([&] { return library.call(scene.function, &driver, nullptr); });
    return visited ? QString() : script.problem();
}

/// One for each protocol that has settings of its own: that is what the properties enable the button for. Empty when
/// they did not come.
QList<Scene> protocolScenes(const LibraryPaycard &library)
{
    SimulatedDriver driver;
    QList<Scene> found;
    const auto look = [&](QWidget *properties) {
        QComboBox *protocols = properties->findChild<QComboBox *>("cmbProtocol");
        const QWidget *button = properties->findChild<QWidget *>("pbtnSettingsButton");
        for (int i = 0; protocols && button && i < protocols->count(); ++i) {
            protocols->setCurrentIndex(i);
            if (button->isEnabled()) {
                found += protocolScene(protocols->itemData(i).toInt());
            }
        }
        properties->close();
    };
    ModalScript({look}).run([&] { return library.call("ShowProperties", &driver, nullptr); });
    return found;
}

} // namespace

QMap<QString, QString> visitWindows(const LibraryPaycard &library, const Operation &operation,
                                    const WindowVisitor &visit)
{
    QMap<QString, QString> missing;
    const QList<Scene> protocols = protocolScenes(library);
    const QList<Scene> all = scenes() + protocols;
    for (const Scene &scene : all) {
        const QString reason = visitScene(scene, library, operation, visit);
        if (!reason.isEmpty()) {
            missing.insert(nameOf(scene, "protocol-" + scene.settings.value("Protocol")), reason);
        }
    }
    if (protocols.isEmpty()) {
        missing.insert("protocols", QStringLiteral("ни у одного протокола нет своих параметров"));
    }
    return missing;
}
