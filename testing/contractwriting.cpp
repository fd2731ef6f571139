// SPDX-License-Identifier: LGPL-2.1-or-later
//
// What the driver is told: settings, the operator that was chosen, and that the properties are shown.

#include "testing/contractrules.h"
#include "testing/settingsdocument.h"

#include "text/drivertext.h"

#include <algorithm>

namespace {

const int MostOperators = 100; // more tell nothing new

/// The entries, of which the last of a name counts.
QMap<QString, QString> entriesOf(const QString &xml)
{
    QMap<QString, QString> entries;
    const SettingsDocument document(xml);
    for (const SettingsEntry &entry : document.entries()) {
        entries.insert(entry.name, entry.text);
    }
    return entries;
}

/// Puts the settings back when a rule has had its calls, however they ended.
struct PutBack
{
    ~PutBack() { session.putBack(); }
    ContractSession &session;
};

/// False when the driver does not take the document.
bool setAndRead(const ContractSession &session, const char *rule, const QString &xml)
{
    const int result = session.setSettings(xml);
    if (result < 0) {
        session.report(rule, Severity::Error, QStringLiteral("setSettings gave %1").arg(result));
        return false;
    }
    const QMap<QString, QString> set = entriesOf(xml);
    const QMap<QString, QString> read = entriesOf(session.settings());
    for (auto entry = set.cbegin(); entry != set.cend(); ++entry) {
        if (!read.contains(entry.key()) || read.value(entry.key()) != entry.value()) {
            session.report(rule, Severity::Error, QStringLiteral("%1 is another one or gone").arg(entry.key()));
        }
    }
    for (auto entry = read.cbegin(); entry != read.cend(); ++entry) {
        if (!set.contains(entry.key())) {
            session.report(rule, Severity::Issue, QStringLiteral("%1 was not in the document").arg(entry.key()));
        }
    }
    return true;
}

} // namespace

int ContractSession::command(const std::function<int()> &run) const
{
    const int result = attempt(run);
    attempt([&] {
        int number = 0;
        return driver.getResultCode(&number);
    });
    if (result < 0) {
        textOf("getResultDescription");
        attempt([&] {
            int number = 0;
            return driver.getErrorDetail(&number);
        });
        textOf("getErrorDetailDescription");
    }
    return result;
}

int ContractSession::setSettings(const QString &xml) const
{
    const std::wstring text = xml.toStdWString();
    return command([&] { return driver.setSettings(text.c_str()); });
}

QString ContractSession::textOf(const char *name) const
{
    const std::vector<TextGetter> getters = textGetters(driver);
    const auto getter = std::find_if(getters.begin(), getters.end(), [&](const TextGetter &candidate) {
        return QLatin1String(candidate.name) == QLatin1String(name);
    });
    std::vector<wchar_t> buffer(FirstBufferSize);
    const DriverText::Lengths lengths = DriverText::read(
        buffer, 1, [&](wchar_t *to, int size) { return attempt([&] { return getter->get(to, size); }); });
    const bool isWhole = lengths.last >= 0 && static_cast<std::size_t>(lengths.last) <= buffer.size();
    return isWhole ? QString::fromWCharArray(buffer.data(), lengths.last) : QString();
}

bool ContractSession::putBack() const
{
    const int result = setSettings(original.isEmpty() ? rewritten(original, "0") : original);
    const bool isBack = result >= 0 && entriesOf(settings()) == entriesOf(original);
    if (!isBack) {
        report("set-put-back", Severity::Error, QStringLiteral("the settings were not put back"));
    }
    return isBack;
}

void showProperties(ContractSession &session)
{
    for (const int shown : {1, 0, 1, 0}) {
        const int result = session.command([&] { return session.driver.setPropertiesShown(shown); });
        if (result < 0) {
            session.report("properties-shown", Severity::Error,
                           QStringLiteral("setPropertiesShown(%1) gave %2").arg(shown).arg(result));
        }
    }
}

void showOperators(ContractSession &session)
{
    const auto choose = [&](int index) {
        return session.command([&] { return session.driver.setOperatorIndex(index); });
    };
    const int count = SettingsDocument(session.settings()).value(QStringLiteral("Operators")).toInt();
    choose(-1);
    choose(count);
    for (int index = 0; index < std::min(count, MostOperators); ++index) {
        const int result = choose(index);
        if (result < 0) {
            session.report("operator-index", Severity::Error,
                           QStringLiteral("setOperatorIndex(%1) gave %2").arg(index).arg(result));
        }
    }
}

void showReadBack(ContractSession &session)
{
    const PutBack putBack{session};
    QString protocol = SettingsDocument(session.original).value(QStringLiteral("Protocol"));
    const QStringList choices = session.textOf("getSettingChoices(\"Protocol\")").split(QLatin1Char(';'));
    for (const QString &choice : choices) {
        const QString key = choice.section(QLatin1Char(':'), 0, 0);
        if (key.toInt() > 0 && key != protocol) {
            protocol = key;
            break;
        }
    }
    if (setAndRead(session, "set-read-back", fullSettings(protocol))) {
        showSettings(session);
        setAndRead(session, "set-read-back", QStringLiteral("<settings version=\"2\"/>"));
    }
}

void showVersions(ContractSession &session)
{
    const PutBack putBack{session};
    for (const char *version : {"0", "2"}) {
        setAndRead(session, "set-versions", rewritten(session.original, version));
    }
}

void showAgain(ContractSession &session)
{
    const PutBack putBack{session};
    for (const QString &xml : {session.original, rewritten(session.original, "0")}) {
        setAndRead(session, "set-again", xml);
        setAndRead(session, "set-again", xml);
    }
}

void showRefused(ContractSession &session)
{
    const PutBack putBack{session};
    const QString before = session.settings();
    if (session.setSettings(QStringLiteral("<settings><value name=\"Protocol\">")) >= 0) {
        session.report("set-refused", Severity::Issue, QStringLiteral("a document that is not well-formed was taken"));
    } else if (session.settings() != before) {
        session.report("set-refused", Severity::Error, QStringLiteral("refused, but the old one is gone"));
    }
}

void showPutBack(ContractSession &session)
{
    session.putBack();
}
