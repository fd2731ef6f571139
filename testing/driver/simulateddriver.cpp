// SPDX-License-Identifier: LGPL-2.1-or-later
#include "testing/simulateddriver.h"

#include "testing/driver/operations.h"

#include <QDateTime>
#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QTimer>

#include <algorithm>
#include <climits>
#include <stdexcept>
#include <string>
#include <utility>

// A resource of a static library has to be asked for, from outside any namespace.
static void initResources()
{
    Q_INIT_RESOURCE(paycard_testing);
}

namespace {

const int JournalLimit = 10000;
const int EventLoopTime = 5; // ms

/// Codes of the driver's own failures.
enum ResultCode { Success = 0, MalformedSettings = 101, SettingsNotSaved = 102, NoSuchOperator = 103 };

Failure refusal(ResultCode code, const QString &text = QString(), const QString &detail = QString())
{
    return {Fault::Refuse, code, text, detail};
}

QString describe(const Failure &failure)
{
    const QString base = QStringLiteral("[%1] %2").arg(QString::number(failure.code), failure.text);
    return failure.detail.isEmpty() ? base : QStringLiteral("%1 (%2)").arg(base, failure.detail);
}

/// True for the call that has just been counted.
bool isDue(const FailureInForce &set)
{
    const int nth = set.failure.nth;
    return nth == 0 || set.calls == nth || (set.failure.fault == Fault::GoneAtSecond && set.calls == nth + 1);
}

/// True for the first of the two calls that GoneAtSecond takes.
bool isPromise(const FailureInForce &set)
{
    return set.failure.nth == 0 ? set.calls % 2 == 1 : set.calls == set.failure.nth;
}

/// Copies what fits. A text that is as long as the buffer leaves no room for the closing zero and is complete
/// all the same; one that is longer is cut and closed.
int copyOut(const QString &text, wchar_t *buffer, int size)
{
    const std::wstring wide = text.toStdWString();
    const int length = static_cast<int>(wide.size());
    if (buffer && size > 0) {
        const int copied = length > size ? size - 1 : length;
        std::copy_n(wide.begin(), copied, buffer);
        if (copied < size) {
            buffer[copied] = L'\0';
        }
    }
    return length;
}

QString fromWide(const wchar_t *text)
{
    return text ? QString::fromWCharArray(text) : QString();
}

QString portChoices()
{
    QString choices = QStringLiteral("TCPIP:TCP/IP;UDPIP:UDP/IP;BT:Bluetooth;USB:USB:терминал;TTY:Файл устройства;");
    for (int port = 0; port < 100; ++port) {
        choices += QStringLiteral("%1:COM%1;").arg(port);
    }
    return choices;
}

QString choicesOf(const QString &setting)
{
    const std::pair<const char *, QString> choices[] = {
        {"Protocol", "0:Файловый обмен;1:Ручной ввод;2:CyberPlat: оплата услуг;3:Пинпад (протокол 3);"
                     "4:Пинпад (протокол 4);5:Банковский шлюз (протокол 5);6:ARCOM ARCUS2;"
                     "7:Файловый обмен с подтверждением;8:INPAS SmartSale (LumiPay);9:ARCOM ARCUS2 (LumiPay);"
                     "10:Сбербанк (LumiPay);11:Сбербанк;12:INPAS SmartSale;13:ARCOM ARCUS2 (терминал);"},
        {"Model", "0:Учебный пинпад;1:Учебный терминал;2:Учебный терминал с принтером;"},
        {"Port", portChoices()},
        {"BaudRate", "1200:1200;2400:2400;4800:4800;9600:9600;19200:19200;38400:38400;57600:57600;"
                     "115200:115200;"},
    };
    for (const auto &choice : choices) {
        if (setting == QLatin1String(choice.first)) {
            return choice.second;
        }
    }
    return QString();
}

} // namespace

/// A call that is being answered.
struct SimulatedDriver::Call
{
    Call(const char *called, const QString &condition, const QString &shown)
        : name(called), argument(condition), arguments(shown)
    {
        clock.start();
    }

    const char *name;
    /// What a failure's argument is compared with, and all of them for people.
    const QString argument;
    const QString arguments;
    const qint64 time = QDateTime::currentMSecsSinceEpoch();
    QElapsedTimer clock;
};

SimulatedDriver::Document::Document(const QString &xml) : text(xml), content(xml), shown(content.toPeople()) {}

QStringList SimulatedDriver::operations()
{
    return QStringLiteral("getVersion getDriverName setPropertiesShown getResultCode getResultDescription "
                          "getErrorDetail getErrorDetailDescription getSettings setSettings getSettingValue "
                          "getSettingChoices getOperation getSum getPhoneNumber getReference getAccountNumber "
                          "getCommission setOperatorIndex getOperatorName getOperatorMinSum "
                          "getOperatorMaxSum getOperatorCommissionType getOperatorCommission")
        .split(QLatin1Char(' '));
}

bool SimulatedDriver::takesArgument(const QString &operation)
{
    return QStringLiteral("setPropertiesShown setOperatorIndex getSettingValue getSettingChoices")
        .split(QLatin1Char(' '))
        .contains(operation);
}

QStringList SimulatedDriver::faults()
{
    return {"отказ",
            "нет текста",
            "текст всё длиннее",
            "длина — наибольшее целое",
            "текст пропадает при повторном чтении",
            "текст без завершающего нуля",
            "исключение std::runtime_error",
            "исключение типа int",
            "обрабатывает события"};
}

QStringList SimulatedDriver::samples()
{
    initResources();
    return QDir(QStringLiteral(":/paycard_testing/samples"))
        .entryList()
        .replaceInStrings(QStringLiteral(".xml"), QString());
}

QString SimulatedDriver::sample(const QString &name)
{
    initResources();
    QFile file(QStringLiteral(":/paycard_testing/samples/%1.xml").arg(name));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

SimulatedDriver::SimulatedDriver() : document(EmptyDocument), last(refusal(Success)) {}

bool SimulatedDriver::replaceSettings(const QString &xml, QString *reason)
{
    const Failure failure = replaceDocument(xml);
    if (failure.code != Success && reason) {
        *reason = describe(failure);
    }
    return failure.code == Success;
}

Failure SimulatedDriver::replaceDocument(const QString &xml)
{
    const Document replacement(xml);
    if (!replacement.content.isValid() && xml != document.text) {
        return refusal(MalformedSettings, QStringLiteral("Документ настроек не читается"),
                       replacement.content.errorPlace());
    }
    const QString problem = save ? save(xml.toUtf8()) : QString();
    if (!problem.isEmpty()) {
        return refusal(SettingsNotSaved, QStringLiteral("Настройки не сохранены"), problem);
    }
    document = replacement;
    return refusal(Success);
}

void SimulatedDriver::failOperation(const QString &name, const Failure &failure)
{
    removeFailure(name, failure.argument, failure.nth);
    inForce.insert(name, {failure});
}

bool SimulatedDriver::removeFailure(const QString &name, const QString &argument, int nth)
{
    for (auto set = inForce.find(name); set != inForce.end() && set.key() == name; ++set) {
        if (set->failure.argument == argument && set->failure.nth == nth) {
            inForce.erase(set);
            return true;
        }
    }
    return false;
}

void SimulatedDriver::writeDown(const Call &call, const QString &result)
{
    if (calls.size() >= JournalLimit) {
        calls.removeFirst();
    }
    calls.append({call.name, call.arguments, result, call.time, call.clock.nsecsElapsed() / 1000});
    if (onCall) {
        onCall();
    }
}

void SimulatedDriver::runEvents() const
{
    QEventLoop loop;
    QTimer::singleShot(EventLoopTime, &loop, &QEventLoop::quit);
    QTimer::singleShot(0, &loop, [this] {
        if (onEvents) {
            onEvents();
        }
    });
    loop.exec();
}

std::optional<FailureInForce> SimulatedDriver::meetFailure(const Call &call)
{
    const QLatin1String name(call.name);
    std::optional<FailureInForce> met;
    for (auto set = inForce.find(name); set != inForce.end() && set.key() == name; ++set) {
        if (set->failure.argument.isEmpty() || set->failure.argument == call.argument) {
            ++set->calls;
            if (!met && isDue(*set)) {
                met = *set;
            }
        }
    }
    return met;
}

// What a fault writes makes sense for texts only; the other operations give its result.
std::optional<int> SimulatedDriver::playFailure(const Call &call, wchar_t *buffer, int size)
{
    // A copy, because the host may clear the failures when it hears of the call.
    const std::optional<FailureInForce> met = meetFailure(call);
    if (!met) {
        return std::nullopt;
    }
    const Failure &failure = met->failure;
    if (failure.fault == Fault::RunsEvents) {
        runEvents();
        return std::nullopt;
    }
    writeDown(call,
              QStringLiteral("сбой «%1»: %2").arg(faults().at(static_cast<int>(failure.fault)), describe(failure)));
    switch (failure.fault) {
    case Fault::Refuse:
        if (!tellsOfFailure(QLatin1String(call.name))) {
            last = failure;
        }
        return -1;
    case Fault::NoText:
        return 0;
    case Fault::EverLonger:
        return size + 1;
    case Fault::LargestInt:
        return INT_MAX;
    case Fault::GoneAtSecond:
        return isPromise(*met) ? size + 1 : 0;
    case Fault::Unterminated:
        if (buffer) {
            std::fill_n(buffer, std::max(size, 0), L'Ж');
        }
        return size;
    case Fault::ThrowStandard:
        throw std::runtime_error(failure.text.toStdString());
    case Fault::ThrowOther:
        throw failure.code;
    case Fault::RunsEvents:
        break;
    }
    return std::nullopt;
}

int SimulatedDriver::giveText(const char *name, const QString &setting, const QString &text, const QString &shown,
                              wchar_t *buffer, int size)
{
    const QString subject = setting.isNull() ? QString() : QStringLiteral("«%1», ").arg(setting);
    const Call call(name, setting, subject + QStringLiteral("буфер %1").arg(size));
    if (const auto result = playFailure(call, buffer, size)) {
        return *result;
    }
    const int length = copyOut(text, buffer, size);
    writeDown(call,
              QStringLiteral("%1%2: «%3»")
                  .arg(QString::number(length), length > size ? QStringLiteral(", не поместилось") : QString(), shown));
    return length;
}

int SimulatedDriver::giveText(const char *name, const QString &text, wchar_t *buffer, int size)
{
    return giveText(name, QString(), text, text, buffer, size);
}

template <class Number>
int SimulatedDriver::giveNumber(const char *name, Number value, Number *out)
{
    const Call call(name, QString(), QString());
    if (const auto result = playFailure(call)) {
        return *result;
    }
    if (out) {
        *out = value;
    }
    writeDown(call, QString::number(value));
    return 0;
}

int SimulatedDriver::obey(const char *name, const QString &arguments, const std::function<Failure()> &action)
{
    const Call call(name, arguments, arguments);
    if (const auto result = playFailure(call)) {
        return *result;
    }
    last = action();
    writeDown(call, last.code == Success ? QStringLiteral("выполнено") : describe(last));
    return last.code == Success ? 0 : -1;
}

QString SimulatedDriver::operatorValue(const char *key) const
{
    const QString record = QStringLiteral("Operator%1").arg(operation.operatorIndex);
    return SettingsDocument(document.content.value(record)).value(key);
}

// The operations are written down under the names of their functions.

int SimulatedDriver::getVersion(wchar_t *buffer, int size)
{
    return giveText(__func__, QStringLiteral("1.0"), buffer, size);
}

int SimulatedDriver::getDriverName(wchar_t *buffer, int size)
{
    return giveText(__func__, QStringLiteral("Учебный драйвер платёжных карт"), buffer, size);
}

int SimulatedDriver::setPropertiesShown(int shown)
{
    return obey(__func__, QString::number(shown), [=] {
        shownFlag = shown;
        return refusal(Success);
    });
}

int SimulatedDriver::getResultCode(int *code)
{
    return giveNumber(__func__, last.code, code);
}

int SimulatedDriver::getResultDescription(wchar_t *buffer, int size)
{
    return giveText(__func__, last.text, buffer, size);
}

int SimulatedDriver::getErrorDetail(int *detail)
{
    return giveNumber(__func__, last.detail.isEmpty() ? 0 : 1, detail);
}

int SimulatedDriver::getErrorDetailDescription(wchar_t *buffer, int size)
{
    return giveText(__func__, last.detail, buffer, size);
}

int SimulatedDriver::getSettings(wchar_t *buffer, int size)
{
    return giveText(__func__, QString(), document.text, document.shown, buffer, size);
}

int SimulatedDriver::setSettings(const wchar_t *xml)
{
    const QString text = fromWide(xml);
    return obey(__func__, SettingsDocument(text).toPeople(), [&] { return replaceDocument(text); });
}

int SimulatedDriver::getSettingValue(const wchar_t *name, wchar_t *buffer, int size)
{
    const QString setting = fromWide(name);
    const QString value = document.content.value(setting);
    const QString shown = SettingsDocument::shown({setting, value, SettingsDocument::isSecret(setting)});
    return giveText(__func__, setting, value, shown, buffer, size);
}

int SimulatedDriver::getSettingChoices(const wchar_t *name, wchar_t *buffer, int size)
{
    const QString setting = fromWide(name);
    const QString choices = choicesOf(setting);
    return giveText(__func__, setting, choices, choices, buffer, size);
}

int SimulatedDriver::getOperation(int *code)
{
    return giveNumber(__func__, operation.code, code);
}

int SimulatedDriver::getSum(double *sum)
{
    return giveNumber(__func__, operation.sum, sum);
}

int SimulatedDriver::getPhoneNumber(wchar_t *buffer, int size)
{
    return giveText(__func__, operation.phone, buffer, size);
}

int SimulatedDriver::getReference(wchar_t *buffer, int size)
{
    return giveText(__func__, operation.reference, buffer, size);
}

int SimulatedDriver::getAccountNumber(wchar_t *buffer, int size)
{
    return giveText(__func__, operation.account, buffer, size);
}

int SimulatedDriver::getCommission(double *commission)
{
    return giveNumber(__func__, operation.commission, commission);
}

int SimulatedDriver::setOperatorIndex(int index)
{
    return obey(__func__, QString::number(index), [=] {
        const int count = document.content.value(QStringLiteral("Operators")).toInt();
        if (index < 0 || index >= count) {
            return refusal(NoSuchOperator, QStringLiteral("Нет такого оператора"),
                           QStringLiteral("номер %1, операторов %2").arg(index).arg(count));
        }
        operation.operatorIndex = index;
        return refusal(Success);
    });
}

int SimulatedDriver::getOperatorName(wchar_t *buffer, int size)
{
    return giveText(__func__, operatorValue("Name"), buffer, size);
}

int SimulatedDriver::getOperatorMinSum(double *sum)
{
    return giveNumber(__func__, operatorValue("MinSum").toDouble(), sum);
}

int SimulatedDriver::getOperatorMaxSum(double *sum)
{
    return giveNumber(__func__, operatorValue("MaxSum").toDouble(), sum);
}

int SimulatedDriver::getOperatorCommissionType(int *type)
{
    return giveNumber(__func__, operatorValue("ComissionType").toInt(), type);
}

// The stored key has a single "m".
int SimulatedDriver::getOperatorCommission(double *commission)
{
    return giveNumber(__func__, operatorValue("Comission").toDouble(), commission);
}
