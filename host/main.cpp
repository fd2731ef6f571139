// SPDX-License-Identifier: LGPL-2.1-or-later
#include "cashregisterwindow.h"
#include "commandline.h"
#include "gallery.h"
#include "journal.h"
#include "testing/librarypaycard.h"
#include "testing/simulateddriver.h"
#include "toolkit/platforms.h"

#include <QApplication>
#include <QLocale>
#include <QTemporaryDir>
#include <QTranslator>

#include <algorithm>
#include <cstdio>
#include <optional>

namespace {

enum ExitCode { Done = 0, Failed = 1, WrongUsage = 2 };

QtMessageHandler usualHandler = nullptr;

void print(FILE *stream, const QString &text)
{
    std::fprintf(stream, "%s\n", text.toUtf8().constData());
}

int fail(ExitCode code, const QString &text)
{
    print(stderr, text);
    return code;
}

bool isGiven(int count, char **arguments, const std::initializer_list<const char *> &options)
{
    return std::any_of(arguments + 1, arguments + count, [&](const QByteArray &argument) {
        return std::any_of(options.begin(), options.end(),
                           [&](const char *option) { return argument.split('=').first() == option; });
    });
}

/// Leaves out what a platform without a screen says of each window: that it has no manager to tell its size.
void printMessage(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    static const QString ofEachWindow = "This plugin does not support propagateSizeHints()";
    if (text != ofEachWindow) {
        usualHandler(type, context, text);
    }
}

/// Empty when the driver has its settings, otherwise the reason.
QString loadSettings(SimulatedDriver &driver, const CommandLine &line)
{
    QString reason;
    if (line.settings.isEmpty()) {
        driver.replaceSettings(SimulatedDriver::sample(line.sample), &reason);
    } else {
        driver.openSettings(line.settings, &reason);
    }
    return reason;
}

bool installTranslator(const QString &file, const QString &directory)
{
    auto *translator = new QTranslator(qApp);
    return translator->load(file, directory) && QCoreApplication::installTranslator(translator);
}

/// Makes the toolkit's words, the buttons of its boxes among them, and the library's those of the language. False
/// when the library has none; it needs none for Russian. The toolkit's come in English when they are not there.
bool speak(const QString &language)
{
    QLocale::setDefault(QLocale(language));
    installTranslator("qt_" + language, Toolkit::translationsDirectory());
    return language == "ru" || installTranslator("paycard_gui_" + language, PAYCARD_TRANSLATIONS);
}

void scaleFont(double factor)
{
    QFont font = QApplication::font();
    font.setPointSizeF(font.pointSizeF() * factor);
    QApplication::setFont(font);
}

int run(const CommandLine &line)
{
    SimulatedDriver driver;
    QString reason = loadSettings(driver, line);
    LibraryPaycard library;
    if (!reason.isEmpty() || !library.load(LibraryPaycard::defaultPath(PAYCARD_GUI_LIBRARY), &reason)) {
        return fail(Failed, reason);
    }
    if (!line.gallery.isEmpty()) {
        return drawGallery(library, line.operation, line.gallery) ? Done : Failed;
    }
    driver.operation = line.operation;
    for (const auto &failure : line.failures) {
        driver.failOperation(failure.first, failure.second);
    }
    Journal journal(driver);
    if (!line.journal.isEmpty() && !journal.follow(line.journal).isEmpty()) {
        return fail(Failed, journal.problem());
    }
    int code = Done;
    if (line.function.isEmpty()) {
        CashRegisterWindow window(driver, library, journal);
        window.show();
        code = QApplication::exec();
    } else {
        const int result = journal.call(library, line.function, nullptr);
        print(stdout,
              line.json ? Journal::json(journal.lines().last()) : QString("%1: %2").arg(line.function).arg(result));
    }
    if (!journal.problem().isEmpty()) {
        print(stderr, journal.problem());
    }
    return code;
}

} // namespace

int main(int argc, char **argv)
{
    const bool hasPlatform = isGiven(argc, argv, {"-platform", "--platform"}) || Toolkit::hasDisplay();
    const bool needsNoScreen = isGiven(argc, argv, {"--gallery", "--help", "-h", "--version"});
    // Where there is no screen the arguments are read all the same.
    if (!hasPlatform || (needsNoScreen && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    // Without a runtime directory the platform would complain.
    std::optional<QTemporaryDir> runtimeDirectory;
    if (qgetenv("QT_QPA_PLATFORM") == "offscreen" && qEnvironmentVariableIsEmpty("XDG_RUNTIME_DIR")) {
        runtimeDirectory.emplace();
        qputenv("XDG_RUNTIME_DIR", runtimeDirectory->path().toLocal8Bit());
    }
    usualHandler = qInstallMessageHandler(printMessage);
    const QApplication application(argc, argv);
    const CommandLine line = CommandLine::parse(QApplication::arguments());
    if (!line.problem.isEmpty()) {
        return fail(WrongUsage, line.problem + "\nВсе параметры показывает --help");
    }
    if (!speak(line.language)) {
        return fail(WrongUsage, QString("--language: нет перевода на язык «%1»").arg(line.language));
    }
    if (line.wantsHelp) {
        print(stdout, CommandLine::help());
        return Done;
    }
    if (line.wantsVersion) {
        print(stdout, QString("paycard_host %1, Qt %2").arg(PAYCARD_VERSION, qVersion()));
        return Done;
    }
    if (!hasPlatform && line.gallery.isEmpty()) {
        return fail(Failed, "Нет дисплея: окно показать негде (см. DISPLAY, QT_QPA_PLATFORM)");
    }
    scaleFont(line.fontScale);
    return run(line);
}
