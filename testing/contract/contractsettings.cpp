// SPDX-License-Identifier: LGPL-2.1-or-later
//
// The settings document and what else the driver says of its settings.

#include "testing/contract/contractkeys.h"
#include "testing/contract/contractrules.h"
#include "testing/settingsdocument.h"

#include <QSet>
#include <QXmlStreamReader>

#include <algorithm>

namespace {

using namespace ContractKeys;

bool fits(const Key &key, const QString &value)
{
    bool isNumber = true;
    double number = 0.0;
    switch (key.kind) {
    case Kind::Text:
        return true;
    case Kind::NotEmpty:
        return !value.isEmpty();
    case Kind::Whole:
        number = static_cast<double>(value.toLongLong(&isNumber));
        break;
    case Kind::Amount:
        number = value.toDouble(&isNumber);
        break;
    }
    return (isNumber && number >= key.min && number <= key.max) || wordsOf(key).contains(value);
}

/// The same for keys that are easily taken for each other.
QString spoken(const QString &name)
{
    QString letters;
    for (const QChar letter : name.toLower()) {
        if (!letters.endsWith(letter)) {
            letters += letter;
        }
    }
    return letters;
}

/// The number in a name such as "Operator12"; -1 for other names.
int recordNumber(const QString &name)
{
    bool isNumber = false;
    const int number = name.mid(QLatin1String("Operator").size()).toInt(&isNumber);
    return name.startsWith(QLatin1String("Operator")) && isNumber ? number : -1;
}

/// The keys of the document that is the value of this key; none when it is none.
const std::vector<Key> *keysWithin(const QString &name)
{
    return name == QLatin1String("Slip") ? &SlipKeys : recordNumber(name) >= 0 ? &OperatorKeys : nullptr;
}

/// Where the text goes wrong.
QString errorPlace(const QString &xml)
{
    QXmlStreamReader reader(xml);
    while (!reader.atEnd()) {
        reader.readNext();
    }
    return QStringLiteral("line %1, column %2").arg(reader.lineNumber()).arg(reader.columnNumber());
}

void judgeEntry(const SettingsEntry &entry, const QString &name, const std::vector<Key> &keys,
                const ContractReport &report)
{
    for (const Key &key : keys) {
        const QString known = QLatin1String(key.name);
        if (entry.name == known) {
            if (!fits(key, entry.text)) {
                report("settings-values", Severity::Issue,
                       QStringLiteral("%1 is \"%2\"").arg(name, entry.text.left(40)));
            }
            return;
        }
        // Other keys are the driver's own.
        if (spoken(entry.name) == spoken(known)) {
            report("settings-keys", Severity::Issue, QStringLiteral("%1 instead of %2").arg(name, known));
        }
    }
}

/// `within` names the key that has this document as its value; for the outermost one it is empty.
void judgeDocument(const QString &xml, const QString &within, const std::vector<Key> &keys,
                   const ContractReport &report)
{
    const SettingsDocument document(xml);
    if (!document.isValid()) {
        report(within.isEmpty() ? "settings-form" : "settings-nested", Severity::Error, within + errorPlace(xml));
        return;
    }
    QSet<QString> names;
    for (const SettingsEntry &entry : document.entries()) {
        const QString name = within + entry.name;
        if (names.contains(entry.name)) {
            report("settings-names", Severity::Issue, QStringLiteral("%1 is there twice").arg(name));
        }
        names.insert(entry.name);
        const std::vector<Key> *inner = within.isEmpty() ? keysWithin(entry.name) : nullptr;
        if (!inner) {
            judgeEntry(entry, name, keys, report);
        } else if (!entry.text.isEmpty()) {
            judgeDocument(entry.text, name + QStringLiteral(": "), *inner, report);
        }
    }
    const double minimum = document.value(QStringLiteral("MinSum")).toDouble();
    if (minimum > document.value(QStringLiteral("MaxSum")).toDouble()) {
        report("settings-values", Severity::Issue, QStringLiteral("%1MinSum is above MaxSum").arg(within));
    }
}

} // namespace

void judgeSettings(const QString &xml, const ContractReport &report)
{
    judgeDocument(xml, QString(), DocumentKeys, report);
    const SettingsDocument document(xml);
    const int count = document.value(QStringLiteral("Operators")).toInt();
    QSet<int> records;
    for (const SettingsEntry &entry : document.entries()) {
        records.insert(recordNumber(entry.name));
    }
    records.remove(-1);
    const bool isGapless = records.isEmpty() || *std::max_element(records.cbegin(), records.cend()) < records.size();
    if (count != records.size() || !isGapless) {
        report("settings-operators", Severity::Error,
               QStringLiteral("Operators is %1, records: %2%3")
                   .arg(QString::number(count), QString::number(records.size()),
                        QLatin1String(isGapless ? "" : ", with gaps")));
    }
}

void judgeProtocols(const QString &choices, const ContractReport &report)
{
    QStringList entries = choices.split(QLatin1Char(';'));
    if (!entries.takeLast().isEmpty()) {
        report("protocol-choices", Severity::Error, QStringLiteral("no semicolon at the end"));
    }
    QSet<int> keys;
    for (const QString &entry : entries) {
        bool isNumber = false;
        const int key = entry.section(QLatin1Char(':'), 0, 0).toInt(&isNumber);
        if (!isNumber || !entry.contains(QLatin1Char(':')) || keys.contains(key)) {
            report("protocol-choices", Severity::Error, QStringLiteral("entry \"%1\"").arg(entry.left(40)));
        }
        keys.insert(key);
    }
}

void probeSettings(ContractSession &session)
{
    const SettingsDocument document(session.settings());
    const QString protocol = QStringLiteral("Protocol");
    QStringList keys = session.textOf("getSettingChoices(\"Protocol\")").split(QLatin1Char(';'));
    for (QString &key : keys) {
        key = key.section(QLatin1Char(':'), 0, 0);
    }
    const QString current = session.textOf("getSettingValue(\"Protocol\")");
    const QString stored = document.value(protocol);
    if (!stored.isEmpty() && stored != current) {
        session.report("protocol-value", Severity::Error,
                       QStringLiteral("\"%1\", the document says \"%2\"").arg(current.left(40), stored.left(40)));
    }
    const QString shown = stored.isEmpty() ? QStringLiteral("2") : stored;
    if (!keys.contains(shown)) {
        session.report("protocol-listed", Severity::Error, QStringLiteral("\"%1\" is not").arg(shown.left(40)));
    }
}
