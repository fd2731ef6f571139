// SPDX-License-Identifier: LGPL-2.1-or-later
#include "commandline.h"

#include "testing/librarypaycard.h"

#include <QCommandLineParser>

#include <climits>
#include <cmath>
#include <functional>
#include <utility>
#include <vector>

namespace {

const char *const DefaultSample = "cyberplat";

/// In the order of the enumeration.
const QStringList FaultNames = {"Refuse",       "NoText",        "EverLonger", "LargestInt", "GoneAtSecond",
                                "Unterminated", "ThrowStandard", "ThrowOther", "RunsEvents"};

struct Options
{
    const QCommandLineOption settings = {"settings", "Файл с документом настроек драйвера; создаётся, если его нет.",
                                         "ФАЙЛ"};
    const QCommandLineOption sample = {"sample",
                                       QString("Образец настроек: %1. Без параметров — %2.")
                                           .arg(SimulatedDriver::samples().join(", "), QString(DefaultSample)),
                                       "ИМЯ", DefaultSample};
    const QCommandLineOption operation = {"operation",
                                          "Значения операции: code, sum, commission, reference, phone, account, "
                                          "operatorIndex. Например sum=505.50,code=9; запятая в тексте — \\,",
                                          "ИМЯ=ЗНАЧЕНИЕ,…"};
    const QCommandLineOption fail = {"fail",
                                     "Сбой операции драйвера: fault (" + FaultNames.join(", ") +
                                         "), code, text, detail, nth (которая по счёту), argument. Например "
                                         "setSettings:code=12,text=Отказ,nth=2; можно повторять.",
                                     "ОПЕРАЦИЯ[:ИМЯ=ЗНАЧЕНИЕ,…]"};
    const QCommandLineOption call = {"call",
                                     QString("Вызвать одну функцию библиотеки и напечатать её ответ (%1).")
                                         .arg(LibraryPaycard::functions().join(", ")),
                                     "ФУНКЦИЯ"};
    const QCommandLineOption json = {"json", "Ответ функции — строкой JSON."};
    const QCommandLineOption journal = {
        "journal", "Записывать вызовы в файл: строками JSON, если имя на .json или .jsonl, иначе текстом.", "ФАЙЛ"};
    const QCommandLineOption gallery = {"gallery", "Нарисовать все окна в файлы PNG.", "КАТАЛОГ"};
    const QCommandLineOption fontScale = {"font-scale", "Во сколько раз увеличить шрифт.", "ЧИСЛО", "1"};
    const QCommandLineOption language = {
        "language", "Язык окон библиотеки, например en; само окно кассы остаётся русским.", "ЯЗЫК", "ru"};
    const QCommandLineOption help = {{"h", "help"}, "Показать эту справку."};
    const QCommandLineOption version = {"version", "Показать версию."};

    QList<QCommandLineOption> all() const
    {
        return {settings, sample, operation, fail, call, json, journal, gallery, fontScale, language, help, version};
    }
};

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

/// Takes the text of a value; gives what it would have to be when it is none.
typedef std::function<QString(const QString &)> Reader;
typedef std::vector<std::pair<QString, Reader>> Members;

Reader into(QString &text)
{
    return [&](const QString &value) {
        text = value;
        return QString();
    };
}

Reader into(int &number, int least = INT_MIN)
{
    return [&number, least](const QString &value) {
        bool isNumber = false;
        number = value.toInt(&isNumber);
        const QString expected = least == INT_MIN ? QString("целое число") : QString("целое число от %1").arg(least);
        return isNumber && number >= least ? QString() : expected;
    };
}

Reader into(double &number)
{
    return [&](const QString &value) {
        bool isNumber = false;
        number = value.toDouble(&isNumber);
        return isNumber && std::isfinite(number) ? QString() : QString("число с точкой");
    };
}

Reader into(Fault &fault)
{
    return [&](const QString &name) {
        fault = static_cast<Fault>(FaultNames.indexOf(name));
        return FaultNames.contains(name) ? QString() : "одно из: " + FaultNames.join(", ");
    };
}

Members membersOf(Operation &operation)
{
    return {{"code", into(operation.code)},
            {"sum", into(operation.sum)},
            {"commission", into(operation.commission)},
            {"reference", into(operation.reference)},
            {"phone", into(operation.phone)},
            {"account", into(operation.account)},
            {"operatorIndex", into(operation.operatorIndex)}};
}

Members membersOf(Failure &failure)
{
    return {{"fault", into(failure.fault)},   {"code", into(failure.code)},  {"text", into(failure.text)},
            {"detail", into(failure.detail)}, {"nth", into(failure.nth, 0)}, {"argument", into(failure.argument)}};
}

/// The parts between commas. A backslash takes the meaning from the character after it.
QStringList partsOf(const QString &text)
{
    QStringList parts = {QString()};
    bool isPlain = false;
    for (const QChar character : text) {
        if (!isPlain && character == ',') {
            parts << QString();
        } else if (isPlain || character != '\\') {
            parts.last() += character;
        }
        isPlain = !isPlain && character == '\\';
    }
    return parts;
}

/// Reads "name=value,name=value"; gives what is wrong with it.
QString assign(const Members &members, const QString &text)
{
    const QStringList parts = partsOf(text);
    for (const QString &part : parts) {
        const QString name = part.section('=', 0, 0);
        QStringList names;
        const Reader *reader = nullptr;
        for (const auto &member : members) {
            names << member.first;
            reader = member.first == name ? &member.second : reader;
        }
        if (!reader || !part.contains('=')) {
            return QString("«%1»: нужно ИМЯ=ЗНАЧЕНИЕ, где ИМЯ: %2").arg(part, names.join(", "));
        }
        const QString expected = (*reader)(part.section('=', 1));
        if (!expected.isEmpty()) {
            return QString("«%1»: нужно %2").arg(part, expected);
        }
    }
    return QString();
}

/// Takes one of these names, or says that there is none such.
Reader oneOf(const QStringList &names, const char *complaint, QString &name)
{
    return [=, &name](const QString &value) {
        name = value;
        return names.contains(value) ? QString() : QString(complaint).arg(value);
    };
}

Reader into(double &factor, double most)
{
    return [&factor, most](const QString &value) {
        const bool isNumber = into(factor)(value).isEmpty();
        const bool isUsable = isNumber && factor > 0.0 && factor <= most;
        return isUsable ? QString() : QString("«%1» — не число больше 0 и не больше %2").arg(value).arg(most);
    };
}

Reader into(Operation &operation)
{
    return [&](const QString &value) { return assign(membersOf(operation), value); };
}

/// Takes "operation:name=value,..." or "operation".
Reader into(QList<QPair<QString, Failure>> &failures)
{
    return [&](const QString &text) {
        const QString operation = text.section(':', 0, 0);
        if (!SimulatedDriver::operations().contains(operation)) {
            return QString("нет операции «%1»").arg(operation);
        }
        failures.append({operation, Failure()});
        Failure &failure = failures.last().second;
        QString problem = text.contains(':') ? assign(membersOf(failure), text.section(':', 1)) : QString();
        if (problem.isEmpty() && !failure.argument.isEmpty() && !SimulatedDriver::takesArgument(operation)) {
            return QString("у операции %1 нет аргумента").arg(operation);
        }
        return problem;
    };
}

/// The options that have values, and what takes them.
std::vector<std::pair<QCommandLineOption, Reader>> readersOf(const Options &options, CommandLine &line)
{
    return {{options.settings, into(line.settings)},
            {options.sample, oneOf(SimulatedDriver::samples(), "нет образца «%1»", line.sample)},
            {options.operation, into(line.operation)},
            {options.fail, into(line.failures)},
            {options.call, oneOf(LibraryPaycard::functions(), "нет функции «%1»", line.function)},
            {options.journal, into(line.journal)},
            {options.gallery, into(line.gallery)},
            {options.fontScale, into(line.fontScale, 10.0)},
            {options.language, into(line.language)}};
}

QString lacking(const QCommandLineOption &option)
{
    return QString("Параметру --%1 нужно значение: %2").arg(option.names().first(), option.valueName());
}

/// The first thing that the parser did not like.
QString complaint(const QCommandLineParser &parser, const Options &options)
{
    if (!parser.unknownOptionNames().isEmpty()) {
        const QString name = parser.unknownOptionNames().first();
        return QString("Неизвестный параметр %1").arg((name.size() > 1 ? "--" : "-") + name);
    }
    // The parser tells which option it is in its text only.
    const QString name = parser.errorText().section('\'', 1, 1);
    const QList<QCommandLineOption> all = options.all();
    for (const QCommandLineOption &option : all) {
        if (option.names().contains(name.mid(2))) {
            return option.valueName().isEmpty() ? QString("Параметру %1 не нужно значение").arg(name) : lacking(option);
        }
    }
    return parser.errorText();
}

/// Words and options that would have no effect.
QString misuse(const QCommandLineParser &parser, const Options &options)
{
    if (!parser.positionalArguments().isEmpty()) {
        return QString("Лишнее слово «%1»").arg(parser.positionalArguments().first());
    }
    const auto both = [&](const QCommandLineOption &one, const QCommandLineOption &other) {
        return parser.isSet(one) && parser.isSet(other);
    };
    if (both(options.settings, options.sample)) {
        return "Либо --settings, либо --sample: образец заменил бы настройки в файле";
    }
    for (const QCommandLineOption &option :
         {options.settings, options.sample, options.fail, options.call, options.journal}) {
        if (both(options.gallery, option)) {
            return QString("Параметр --%1 не действует вместе с --gallery").arg(option.names().first());
        }
    }
    if (parser.isSet(options.json) && !parser.isSet(options.call)) {
        return "Параметр --json действует только вместе с --call";
    }
    return QString();
}

/// Reads the values; gives the first thing that is wrong with them.
QString readValues(const QCommandLineParser &parser, const Options &options, CommandLine &line)
{
    for (const auto &reader : readersOf(options, line)) {
        const QCommandLineOption &option = reader.first;
        const QStringList values = parser.values(option);
        for (const QString &value : values) {
            // An empty one would mean that the option is not there.
            const QString problem = value.isEmpty() ? lacking(option) : reader.second(value);
            if (!problem.isEmpty()) {
                return value.isEmpty() ? problem : QString("--%1: %2").arg(option.names().first(), problem);
            }
        }
    }
    return QString();
}

} // namespace

CommandLine CommandLine::parse(const QStringList &arguments)
{
    const Options options;
    QCommandLineParser parser;
    parser.addOptions(options.all());
    CommandLine line;
    line.operation = exampleOperation();
    line.problem = parser.parse(arguments) ? misuse(parser, options) : complaint(parser, options);
    if (line.problem.isEmpty()) {
        line.wantsHelp = parser.isSet(options.help);
        line.wantsVersion = parser.isSet(options.version);
        line.json = parser.isSet(options.json);
        line.problem = readValues(parser, options, line);
    }
    return line;
}

QString CommandLine::help()
{
    const Options options;
    QCommandLineParser parser;
    parser.addOptions(options.all());
    parser.setApplicationDescription(
        "Учебная касса: вызывает окна платёжного драйвера без платёжного терминала.\n"
        "Код завершения: 0 — функция отработала, что бы она ни ответила; 1 — не вышло; 2 — неверные параметры.");
    // The toolkit's own words come in English when its translation is not installed.
    return parser.helpText()
        .replace("Usage:", "Вызов:")
        .replace("[options]", "[параметры]")
        .replace("Options:", "Параметры:");
}
