// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef SIMULATEDDRIVER_H
#define SIMULATEDDRIVER_H

#include "common/ipaycard.h"
#include "testing/settingsdocument.h"

#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>
#include <optional>

class SettingsFile;

/// How an operation of the simulated driver is made to fail.
enum class Fault {
    Refuse,        ///< gives -1; the code, text and detail are asked for afterwards
    NoText,        ///< gives 0 and writes nothing
    EverLonger,    ///< reports one character more than the buffer holds, each time
    LargestInt,    ///< reports the largest int as the length
    GoneAtSecond,  ///< reports a text that does not fit, and none when it is asked again
    Unterminated,  ///< fills the buffer to its end without a closing zero
    ThrowStandard, ///< throws std::runtime_error with the text
    ThrowOther,    ///< throws an int, the code
    RunsEvents     ///< answers as it should, after an event loop of its own
};

/// A fault together with what the driver says of it.
struct Failure
{
    Fault fault = Fault::Refuse; ///< in which way
    int code = 1;                ///< what the error operations give for it
    QString text;                ///< its description
    QString detail;              ///< the description of its detail; without one there is no detail
    /// Only this one of the calls that the failure is about, counted from 1 on since it was set; 0 for all.
    /// With 1 the operation fails once and then never again. GoneAtSecond takes the next call along.
    int nth = 0;
    /// Only calls with this argument, empty for any: the number of setPropertiesShown and setOperatorIndex, the
    /// setting's name of getSettingValue and getSettingChoices. The other operations have none.
    QString argument = {};
};

/// A failure that was set, and how many calls it has been about since.
struct FailureInForce
{
    Failure failure; ///< as it was set
    int calls = 0;   ///< those it has been about
};

/// The payment or other operation under way. Amounts in roubles.
struct Operation
{
    int code = 0;            ///< its kind, as getOperation() gives it
    double sum = 0.0;        ///< without the commission
    double commission = 0.0; ///< as getCommission() gives it
    QString reference;       ///< as getReference() gives it
    QString phone;           ///< as getPhoneNumber() gives it
    QString account;         ///< as getAccountNumber() gives it
    /// Index of the operator's record in the settings, -1 for none.
    int operatorIndex = -1;
};

/// One call that the library made.
struct DriverCall
{
    QString operation; ///< its name
    QString arguments; ///< for people; passwords are masked
    QString result;    ///< for people; passwords are masked
    qint64 time = 0;   ///< when it began, in milliseconds since 1970 (UTC)
    qint64 took = 0;   ///< how long the driver took, in microseconds
};

/// A payment-card driver without a card reader: keeps the settings in a file, answers from the operation that
/// it is given, writes down every call and fails where it is told to. Follows the driver contract: full
/// lengths, zero-terminated texts, code, text and detail after a failure.
class SimulatedDriver final : public NOX::PayCard::IPayCard
{
public:
    /// Names of the operations, in the order in which the interface declares them.
    static QStringList operations();
    /// True for the operations whose failures can be about one argument.
    static bool takesArgument(const QString &operation);
    /// Names of the faults for people, in the order of the enumeration.
    static QStringList faults();

    /// Names of the sample documents.
    static QStringList samples();
    /// The text of one of them.
    static QString sample(const QString &name);

    /// Keeps the settings in memory only.
    SimulatedDriver();

    /// Reads the settings from this file, from now on the place that setSettings() saves them to. A file that
    /// does not exist yet is an empty document. False, with the reason, when it cannot be read, is malformed or
    /// another driver has it; this one then stays as it was.
    bool openSettings(const QString &path, QString *reason);

    /// That file, or nothing while the settings are kept in memory only.
    QString settingsFile() const;
    /// Saves the settings to this file, and from now on there. False, with the reason, when that fails; the driver
    /// then stays as it was.
    bool saveSettings(const QString &path, QString *reason);
    /// Saves no more, and leaves the file as it is.
    void closeSettings();

    /// The current document.
    QString settings() const { return document.text; }
    /// Replaces it as setSettings() does. False, with the reason, when it is refused.
    bool replaceSettings(const QString &xml, QString *reason);
    /// Puts any text in its place, such as one that is no document. setSettings() takes that very text back.
    void damageSettings(const QString &text) { document = Document(text); }

    /// The answers that are not settings.
    Operation operation;

    /// Makes an operation fail until the failure is removed. A later one with the same argument and number
    /// replaces it; of several that are about the same call the latest takes place.
    void failOperation(const QString &name, const Failure &failure);
    /// Takes away the failure with this argument and number. False when there is none.
    bool removeFailure(const QString &name, const QString &argument = QString(), int nth = 0);
    /// Takes all failures away.
    void clearFailures() { inForce.clear(); }
    /// The failures in force by operation, of each the latest first.
    const QMultiMap<QString, FailureInForce> &failures() const { return inForce; }

    /// Every call so far, in order.
    const QList<DriverCall> &journal() const { return calls; }
    /// Forgets them.
    void clearJournal() { calls.clear(); }
    /// Called after each call has been written down.
    std::function<void()> onCall;
    /// Called in the event loop that RunsEvents runs.
    std::function<void()> onEvents;

    /// 1 or 0 as the library last said, -1 before it said anything.
    int propertiesShown() const { return shownFlag; }

    // the driver interface, in its order
    int getVersion(wchar_t *buffer, int size) override;
    int getDriverName(wchar_t *buffer, int size) override;
    int setPropertiesShown(int shown) override;
    int getResultCode(int *code) override;
    int getResultDescription(wchar_t *buffer, int size) override;
    int getErrorDetail(int *detail) override;
    int getErrorDetailDescription(wchar_t *buffer, int size) override;
    int getSettings(wchar_t *buffer, int size) override;
    int setSettings(const wchar_t *xml) override;
    int getSettingValue(const wchar_t *name, wchar_t *buffer, int size) override;
    int getSettingChoices(const wchar_t *name, wchar_t *buffer, int size) override;
    int getOperation(int *code) override;
    int getSum(double *sum) override;
    int getPhoneNumber(wchar_t *buffer, int size) override;
    int getReference(wchar_t *buffer, int size) override;
    int getAccountNumber(wchar_t *buffer, int size) override;
    int getCommission(double *commission) override;
    int setOperatorIndex(int index) override;
    int getOperatorName(wchar_t *buffer, int size) override;
    int getOperatorMinSum(double *sum) override;
    int getOperatorMaxSum(double *sum) override;
    int getOperatorCommissionType(int *type) override;
    int getOperatorCommission(double *commission) override;

private:
    static constexpr const char *EmptyDocument = "<settings version=\"2\">\n</settings>\n";

    /// A settings document together with what depends on its text only.
    struct Document
    {
        explicit Document(const QString &xml);

        QString text;
        SettingsDocument content;
        /// The text for people.
        QString shown;
    };

    struct Call;

    // The shapes of the operations: each plays the failure in force or answers, and writes the call down.
    /// The failure that this call meets. Whatever it is about, it counts.
    std::optional<FailureInForce> meetFailure(const Call &call);
    std::optional<int> playFailure(const Call &call, wchar_t *buffer = nullptr, int size = 0);
    void runEvents() const;
    int giveText(const char *name, const QString &setting, const QString &text, const QString &shown, wchar_t *buffer,
                 int size);
    int giveText(const char *name, const QString &text, wchar_t *buffer, int size);
    template <class Number>
    int giveNumber(const char *name, Number value, Number *out);
    int obey(const char *name, const QString &arguments, const std::function<Failure()> &action);

    /// The file at a path: its own, which needs no second lock, or another one.
    std::shared_ptr<SettingsFile> fileAt(const QString &path) const;
    void keepIn(const std::shared_ptr<SettingsFile> &place);
    Failure replaceDocument(const QString &xml);
    /// A value of the current operator's record.
    QString operatorValue(const char *key) const;
    void writeDown(const Call &call, const QString &result);

    Document document;
    /// Shared with nobody but the next opening of the same file.
    std::shared_ptr<SettingsFile> file;
    /// Saves the text in it and gives the reason when that fails. None while the settings are kept in memory only.
    std::function<QString(const QByteArray &)> save;
    QMultiMap<QString, FailureInForce> inForce;
    /// What the error operations tell of; code 0 after a success.
    Failure last;
    QList<DriverCall> calls;
    int shownFlag = -1;
};

#endif
