// SPDX-License-Identifier: LGPL-2.1-or-later
//
// What the driver is told: settings, the operator that was chosen, and that the properties are shown.

#include "testing/contract/contractkeys.h"
#include "testing/contract/contractrules.h"
#include "testing/settingsdocument.h"

#include <algorithm>

namespace {

using namespace ContractKeys;

const int MostOperators = 100; // more tell nothing new

/// Long, with markup, Cyrillic and a character beyond the first 65536.
QString longText()
{
    return QString(5000, QChar(0x416)) + QString::fromUtf8("\n<b>&amp;\"'%1%2]]>\U0001F4B3");
}

QString largest(const Key &key)
{
    const bool isText = key.kind == Kind::Text || key.kind == Kind::NotEmpty;
    return wordsOf(key).value(0, isText ? longText() : QString::number(key.max, 'f', 0));
}

QString withKeys(const std::vector<Key> &keys)
{
    SettingsDocument document(QStringLiteral("<settings version=\"0\"/>"));
    for (const Key &key : keys) {
        document.setValue(QLatin1String(key.name), largest(key));
    }
    return document.toXml();
}

/// A document with every key of the guide, each with a value that is as large as it may be.
QString fullSettings(const QString &protocol)
{
    SettingsDocument document(withKeys(DocumentKeys));
    document.setValue(QStringLiteral("Protocol"), protocol);
    document.setValue(QStringLiteral("PathAC"), QStringLiteral("/"));
    document.setValue(QStringLiteral("Slip"), withKeys(SlipKeys));
    document.setValue(QStringLiteral("Operators"), QStringLiteral("2"));
    document.setValue(QStringLiteral("Operator0"), withKeys(OperatorKeys));
    document.setValue(QStringLiteral("Operator1"), withKeys(OperatorKeys));
    document.setValue(QString::fromUtf8("Свой ключ <&\">"), longText());
    return rewritten(document.toXml(), "2");
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

void probeProperties(ContractSession &session)
{
    for (const int shown : {1, 0, 1, 0}) {
        const int result = session.command([&] { return session.driver.setPropertiesShown(shown); });
        if (result < 0) {
            session.report("properties-shown", Severity::Error,
                           QStringLiteral("setPropertiesShown(%1) gave %2").arg(shown).arg(result));
        }
    }
}

void probeOperators(ContractSession &session)
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

void probeReadBack(ContractSession &session)
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
        probeSettings(session);
        setAndRead(session, "set-read-back", QStringLiteral("<settings version=\"2\"/>"));
    }
}

void probeVersions(ContractSession &session)
{
    const PutBack putBack{session};
    for (const char *version : {"0", "2"}) {
        setAndRead(session, "set-versions", rewritten(session.original, version));
    }
}

void probeAgain(ContractSession &session)
{
    const PutBack putBack{session};
    for (const QString &xml : {session.original, rewritten(session.original, "0")}) {
        setAndRead(session, "set-again", xml);
        setAndRead(session, "set-again", xml);
    }
}

void probeRefused(ContractSession &session)
{
    const PutBack putBack{session};
    const QString before = session.settings();
    if (session.setSettings(QStringLiteral("<settings><value name=\"Protocol\">")) >= 0) {
        session.report("set-refused", Severity::Issue, QStringLiteral("a document that is not well-formed was taken"));
    } else if (session.settings() != before) {
        session.report("set-refused", Severity::Error, QStringLiteral("refused, but the old one is gone"));
    }
}

void probePutBack(ContractSession &session)
{
    session.putBack();
}
