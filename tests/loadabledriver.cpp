// SPDX-License-Identifier: LGPL-2.1-or-later
//
// The simulated driver as a file. In the environment PAYCARD_SETTINGS names the file for its settings, and
// PAYCARD_BREAK, with commas between them, the ways in which it breaks the contract: those of brokendriver.h and crash,
// hang or leave, which happen in setPropertiesShown, crash-read, in getSettings of a long document, crash-settings, in
// that of any, and crash-destroyed.

#include "brokendriver.h"

#include <climits>
#include <csignal>
#include <unistd.h>

extern "C" __attribute__((visibility("default"))) NOX::PayCard::IPayCard *createPayCard()
{
    auto *driver = new BrokenDriver;
    const QString file = qEnvironmentVariable("PAYCARD_SETTINGS");
    if (!file.isEmpty() && !driver->simulated.openSettings(file, nullptr)) {
        return nullptr;
    }
    const QStringList names = qEnvironmentVariable("PAYCARD_BREAK").split(',');
    for (const Breakage &breakage : breakages()) {
        if (names.contains(breakage.name)) {
            breakage.arrange(*driver);
        }
    }
    const std::pair<const char *, std::function<void()>> ends[] = {
        {"crash", [] { std::raise(SIGABRT); }}, {"hang", [] { ::pause(); }}, {"leave", [] { ::_exit(3); }}};
    for (const auto &end : ends) {
        if (names.contains(end.first)) {
            driver->onShown = end.second;
        }
    }
    const int endurable = names.contains("crash-read") ? 10000 : names.contains("crash-settings") ? 0 : INT_MAX;
    Breakage::text("getSettings",
                   [=](BrokenDriver::Answer &answer) { std::raise(answer.result > endurable ? SIGABRT : 0); })(*driver);
    return driver;
}

extern "C" __attribute__((visibility("default"))) void destroyPayCard(NOX::PayCard::IPayCard *driver)
{
    delete static_cast<BrokenDriver *>(driver);
    std::raise(qEnvironmentVariable("PAYCARD_BREAK") == "crash-destroyed" ? SIGABRT : 0);
}
