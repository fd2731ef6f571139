// SPDX-License-Identifier: LGPL-2.1-or-later
#include "cashregisterwindow.h"
#include "common/qtcompat.h"
#include "gallery.h"
#include "testing/librarypaycard.h"
#include "testing/simulateddriver.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QLocale>
#include <QTranslator>

#include <algorithm>
#include <cstdio>

namespace {

enum ExitCode { Done = 0, Failed = 1, WrongUsage = 2 };

const char *const DefaultSample = "cyberplat";

void print(FILE *stream, const QString &text)
{
    std::fprintf(stream, "%s\n", text.toUtf8().constData());
}

int fail(ExitCode code, const QString &text)
{
    print(stderr, text);
    return code;
}

/// The options that need no display. Asked for before there is an application, which would insist on one.
bool worksWithoutDisplay(int count, char **arguments)
{
    return std::any_of(arguments + 1, arguments + count, [](const QByteArray &argument) {
        return argument.startsWith("--gallery") || argument == "--help" || argument == "-h";
    });
}

Operation exampleOperation()
{
    Operation operation;
    operation.code = 9;
    operation.sum = 500.0;
    operation.commission = 5.0;
    operation.reference = "000123456789";
    operation.phone = "(000)000-00-00";
    operation.account = "0000000042";
    operation.operatorIndex = 0;
    return operation;
}

struct Options
{
    const QCommandLineOption settings = {"settings", "Файл с документом настроек драйвера; создаётся, если его нет.",
                                         "ФАЙЛ"};
    const QCommandLineOption sample = {"sample",
                                       QString("Образец настроек: %1. Без параметров — %2.")
                                           .arg(SimulatedDriver::samples().join(", "), QString(DefaultSample)),
                                       "ИМЯ"};
    const QCommandLineOption call = {"call",
                                     QString("Вызвать одну функцию библиотеки и напечатать её ответ (%1).")
                                         .arg(LibraryPaycard::functions().join(", ")),
                                     "ФУНКЦИЯ"};
    const QCommandLineOption gallery = {"gallery", "Нарисовать все окна в файлы PNG.", "КАТАЛОГ"};
    const QCommandLineOption fontScale = {"font-scale", "Во сколько раз увеличить шрифт.", "ЧИСЛО", "1"};
    const QCommandLineOption language = {
        "language", "Язык окон библиотеки, например en; само окно кассы остаётся русским.", "ЯЗЫК", "ru"};
    const QCommandLineOption help = {{"h", "help"}, "Показать эту справку."};
};

/// Empty when the driver has its settings, otherwise the reason.
QString loadSettings(SimulatedDriver &driver, const QCommandLineParser &parser, const Options &options)
{
    QString reason;
    if (parser.isSet(options.settings)) {
        driver.openSettings(parser.value(options.settings), &reason);
        return reason;
    }
    const QString name = parser.isSet(options.sample) ? parser.value(options.sample) : QString(DefaultSample);
    if (!SimulatedDriver::samples().contains(name)) {
        return QString("Нет образца «%1»").arg(name);
    }
    driver.replaceSettings(SimulatedDriver::sample(name), &reason);
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
    installTranslator("qt_" + language, QtCompat::translationsDirectory());
    return language == "ru" || installTranslator("paycard_gui_" + language, PAYCARD_TRANSLATIONS);
}

bool scaleFont(const QString &factor)
{
    bool isNumber = false;
    const double scale = factor.toDouble(&isNumber);
    if (!isNumber || !(scale > 0.0 && scale <= 10.0)) {
        return false;
    }
    QFont font = QApplication::font();
    font.setPointSizeF(font.pointSizeF() * scale);
    QApplication::setFont(font);
    return true;
}

int run(const QCommandLineParser &parser, const Options &options)
{
    const QString function = parser.value(options.call);
    if (parser.isSet(options.call) && !LibraryPaycard::functions().contains(function)) {
        return fail(WrongUsage, QString("Нет функции «%1»").arg(function));
    }
    if (!scaleFont(parser.value(options.fontScale))) {
        return fail(WrongUsage, "Увеличение шрифта — число больше 0 и не больше 10");
    }
    SimulatedDriver driver;
    QString reason = loadSettings(driver, parser, options);
    LibraryPaycard library;
    if (!reason.isEmpty() || !library.load(LibraryPaycard::defaultPath(PAYCARD_GUI_LIBRARY), &reason)) {
        return fail(Failed, reason);
    }
    driver.operation = exampleOperation();
    if (parser.isSet(options.gallery)) {
        return drawGallery(library, driver.operation, parser.value(options.gallery)) ? Done : Failed;
    }
    if (parser.isSet(options.call)) {
        print(stdout, QString("%1: %2").arg(function).arg(library.call(function, &driver, nullptr)));
        return Done;
    }
    CashRegisterWindow window(driver, library);
    window.show();
    return QApplication::exec();
}

} // namespace

int main(int argc, char **argv)
{
    if (worksWithoutDisplay(argc, argv) && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    const QApplication application(argc, argv);
    const Options options;
    QCommandLineParser parser;
    parser.setApplicationDescription("Учебная касса: вызывает окна платёжного драйвера без платёжного терминала.");
    parser.addOptions({options.settings, options.sample, options.call, options.gallery, options.fontScale,
                       options.language, options.help});
    if (!parser.parse(QApplication::arguments()) || !parser.positionalArguments().isEmpty()) {
        return fail(WrongUsage, "Неверные параметры, см. --help");
    }
    if (!speak(parser.value(options.language))) {
        return fail(WrongUsage, QString("Нет перевода на язык «%1»").arg(parser.value(options.language)));
    }
    if (parser.isSet(options.help)) {
        // The toolkit's own words come in English when its translation is not installed.
        print(stdout, parser.helpText()
                          .replace("Usage:", "Вызов:")
                          .replace("[options]", "[параметры]")
                          .replace("Options:", "Параметры:"));
        return Done;
    }
    if (parser.isSet(options.settings) && parser.isSet(options.sample)) {
        return fail(WrongUsage, "Либо --settings, либо --sample: образец заменил бы настройки в файле");
    }
    return run(parser, options);
}
