// SPDX-License-Identifier: LGPL-2.1-or-later
#include "register.h"
#include "testing/contract/contractkeys.h"

#include <QListWidget>
#include <QRegularExpression>

#include <algorithm>
#include <map>

/// The tables of docs/settings.md, beside the list of the driver checker and what the windows take and store.
class SettingsTest : public QObject
{
    Q_OBJECT

private slots:
    void checker();
    void windows_data();
    void windows();
    void operators();
};

namespace {

typedef QMap<QString, QString> Entries;
/// What is stored, nothing when it is not valid, and what OK makes of it.
typedef std::pair<QVariant, QString> Case;

/// A key of the guide.
struct Setting
{
    QString section, name, type, range, missing, note;
    double min = 0.0, max = -1.0; ///< of its numbers, if it has any
    QStringList words = {};       ///< as they stand there, perhaps with the protocols that have them
    bool isChoice = false;

    QString path() const { return (section == "Operator" ? "Operator0/" : section == "Slip" ? "Slip/" : "") + name; }
};

/// The text between the first two backticks; all of it where there are none.
QString literal(const QString &cell)
{
    return cell.contains('`') ? cell.section('`', 1, 1) : cell;
}

/// "LumiPay (protocols 8, 9 and 10)" and "protocol 8 only" hold for these, other texts for all.
bool holdsFor(int protocol, const QString &text)
{
    static const QRegularExpression list("protocols? ([0-9, and]+)");
    const QString numbers = list.match(text).captured(1).replace(',', ' ');
    return numbers.isEmpty() || numbers.split(' ').contains(QString::number(protocol));
}

/// The cells of every row whose first cell begins so, and the title that it stands under as number 0.
QList<QStringList> rows(const QRegularExpression &first)
{
    QFile file(PAYCARD_SOURCES "/docs/settings.md");
    if (!file.open(QIODevice::ReadOnly)) {
        qFatal("There is no guide");
    }
    QList<QStringList> found;
    QString title;
    const QStringList lines = QString::fromUtf8(file.readAll()).split('\n');
    for (const QString &line : lines) {
        static const QRegularExpression bar(" *\\| *");
        title = line.startsWith('#') ? line.section(' ', 1) : title;
        if (line.startsWith("| ") && first.match(line.mid(2)).hasMatch()) {
            found += line.split(bar);
            found.last().first() = title;
        }
    }
    return found;
}

/// Reads "0 to 99", "0 the computer, 1 the modem" and "`true`, `false`". The rest is for people.
void readRange(Setting &setting)
{
    static const QRegularExpression span("^`?(\\d+)`? to `?(\\d+)");
    const QStringList parts = setting.range.split(", ");
    for (const QString &part : parts) {
        const QRegularExpressionMatch match = span.match(part);
        bool isNumber = false;
        const double number = part.section(' ', 0, 0).toDouble(&isNumber);
        if (match.hasMatch()) {
            setting.min = match.captured(1).toDouble();
            setting.max = match.captured(2).toDouble();
        } else if (isNumber && setting.type != "text") {
            setting.max = number;
        } else if (isNumber || part.startsWith('`')) {
            setting.words += part;
        }
        setting.isChoice = setting.isChoice || part.startsWith('`') || (isNumber && !match.hasMatch());
    }
}

std::vector<Setting> guide()
{
    std::vector<Setting> settings;
    for (const QStringList &cells : rows(QRegularExpression("^`[^.|]* \\|"))) {
        const QString missing = cells.at(4) == "empty" ? QString() : literal(cells.at(4));
        for (const QString &name : cells.at(1).split(", ")) {
            settings.push_back({cells.at(0), literal(name), cells.at(2), cells.at(3), missing, cells.at(5)});
            readRange(settings.back());
        }
    }
    return settings;
}

/// The values of a key, as people would say it.
QString valuesOf(double min, double max, const QStringList &words, bool isEmptyToo)
{
    QStringList values;
    std::transform(words.begin(), words.end(), std::back_inserter(values), literal);
    if (min <= max) {
        values.prepend(QString("%1 to %2").arg(min, 0, 'f', 0).arg(max, 0, 'f', 0));
    }
    return values.isEmpty() ? QString(isEmptyToo ? "any" : "not empty") : values.join(", ");
}

/// Values in the key's range and beside it. Texts differ from key to key, and name a directory.
std::vector<Case> casesOf(const Setting &setting, int protocol, std::size_t index)
{
    if (setting.name == "Protocol") {
        const QString own = QString::number(protocol);
        return {{own == setting.missing ? QVariant() : own, own}};
    }
    std::vector<Case> cases;
    if (!setting.missing.isEmpty() || !setting.range.startsWith("not empty")) {
        cases.emplace_back(QVariant(), setting.missing);
    }
    if (setting.min <= setting.max) {
        const auto text = [](double number) { return QString::number(number, 'f', 0); };
        const bool isAmount = setting.type.startsWith("roubles");
        const double zero = qBound(setting.min, 0.0, setting.max);
        const std::pair<QString, double> numbers[] = {
            {text(setting.min), setting.min},     {text(setting.max), setting.max},
            {text(setting.min - 1), setting.min}, {text(setting.max + 1), setting.max},
            {isAmount ? "nan" : "12.5", zero},    {isAmount ? "inf" : "1e30", zero}};
        for (const auto &number : numbers) {
            const QString inside = text(number.second);
            cases.emplace_back(number.first, setting.isChoice && number.first != inside ? setting.missing : inside);
        }
    } else if (!setting.isChoice) {
        const QString own = '/' + QString("./").repeated(static_cast<int>(index));
        cases.emplace_back(own, own);
    }
    for (const QString &word : setting.words) {
        cases.emplace_back(literal(word), holdsFor(protocol, word) ? literal(word) : setting.missing);
    }
    if (setting.isChoice) {
        cases.emplace_back("other", setting.missing);
    }
    return cases;
}

/// Whether OK writes the key when this port is chosen.
bool isWritten(const Setting &setting, int protocol, const QString &port)
{
    const bool isForPort = setting.note.contains("always") || setting.note.contains('`' + port + '`') ||
                           (setting.note.contains("COM ports") && port.at(0).isDigit());
    const bool goesByPort = setting.section.startsWith("Terminal");
    return holdsFor(protocol, setting.note) && !setting.type.isEmpty() && (!goesByPort || isForPort);
}

/// The entries, also those of documents within the document.
Entries entriesOf(const QString &xml, const QString &path = QString())
{
    Entries entries;
    const QList<SettingsEntry> read = SettingsDocument(xml).entries();
    for (const SettingsEntry &entry : read) {
        if (entry.text.startsWith('<')) {
            entries.insert(entriesOf(entry.text, path + entry.name + '/'));
        } else {
            entries.insert(path + entry.name, entry.text);
        }
    }
    return entries;
}

/// The first thing that differs, in words.
QString difference(const Entries &seen, const Entries &expected)
{
    const QStringList names = seen.keys() + expected.keys();
    for (const QString &name : names) {
        const QString one = seen.value(name, "not there");
        const QString other = expected.value(name, "not there");
        if (one != other) {
            return QString("%1 is \"%2\", expected: \"%3\"").arg(name, one, other);
        }
    }
    return QString();
}

} // namespace

void SettingsTest::checker()
{
    using namespace ContractKeys;
    Entries listed, documented;
    const std::pair<QString, std::vector<Key>> lists[] = {
        {"", DocumentKeys}, {"Slip/", SlipKeys}, {"Operator0/", OperatorKeys}};
    for (const auto &list : lists) {
        for (const Key &key : list.second) {
            listed.insert(list.first + key.name, valuesOf(key.min, key.max, wordsOf(key), key.kind != Kind::NotEmpty));
        }
    }
    for (const Setting &setting : guide()) {
        documented.insert(setting.path(),
                          valuesOf(setting.min, setting.max, setting.words, setting.range != "not empty"));
    }
    documented["Protocol"] = listed.value("Protocol"); // the driver's list
    QCOMPARE(difference(listed, documented), QString());
}

void SettingsTest::windows_data()
{
    QTest::addColumn<int>("protocol");
    QTest::addColumn<QStringList>("windows");
    for (const QStringList &cells : rows(QRegularExpression("^[0-9, ]+\\|"))) {
        for (const QString &protocol : cells.at(1).split(", ")) {
            QTest::newRow(protocol.toUtf8()) << protocol.toInt() << cells;
        }
    }
}

// What OK writes in all windows of a protocol, whatever was stored; everything else stays as it was.
void SettingsTest::windows()
{
    QFETCH(int, protocol);
    QFETCH(QStringList, windows);
    const bool hasOperators = windows.at(5) == "yes";
    const bool hasOwn = !windows.at(6).isEmpty();
    std::vector<std::pair<Setting, std::vector<Case>>> settings;
    std::size_t most = 1, ports = 1;
    for (const Setting &setting : guide()) {
        const bool isOpened = setting.section == "Operator" ? hasOperators
                              : setting.section == "Slip"   ? !hasOwn // the same for all; that takes time
                                                            : holdsFor(protocol, setting.section);
        if (isOpened && setting.type != "document" && setting.name != "Operators") {
            settings.emplace_back(setting, casesOf(setting, protocol, settings.size()));
            std::size_t &count = setting.name == "Port" ? ports : most;
            count = std::max(count, settings.back().second.size());
        }
    }
    const auto look = [&](QWidget *window) {
        const char *const widgets[] = {"lePathACDialog", "spinTimeout", "pbtnSlip", "pbtnOperators",
                                       "pbtnSettingsButton"};
        for (int i = 0; i < 5; ++i) {
            QCOMPARE(child<QWidget>(window, widgets[i])->isEnabled(), !windows.at(i + 2).isEmpty());
        }
    };
    const auto select = [](QWidget *window) { child<QListWidget>(window, "lwOperators")->setCurrentRow(0); };
    std::vector<ModalScript::Step> steps = {look, press(hasOwn ? "pbtnSettingsButton" : "pbtnSlip"), press("pbtnOk")};
    if (hasOperators) {
        steps.insert(steps.end(),
                     {press("pbtnOperators"), select, press("pbtnEdit"), press("pbtnOk"), press("pbtnOk")});
    }
    steps.push_back(press("pbtnOk"));

    for (std::size_t run = 0; run < most * ports; ++run) {
        QString port; // comes before the keys that depend on it
        std::map<QString, Values> documents;
        Entries expected;
        for (const auto &setting : settings) {
            const std::size_t number = setting.first.name == "Port" ? run / most : run % most;
            const Case &value = setting.second.at(number % setting.second.size());
            const QString path = setting.first.path();
            port = setting.first.name == "Port" ? value.second : port;
            if (value.first.isValid()) {
                documents[path.section('/', 0, -2)].emplace_back(path.section('/', -1), value.first);
                expected.insert(path, value.first.toString());
            }
            if (isWritten(setting.first, protocol, port)) {
                expected.insert(path, value.second);
            }
        }
        for (const char *inner : {"Slip", "Operator0"}) {
            if (documents.count(inner) > 0) {
                documents[""].emplace_back(inner, document(documents[inner]));
            }
        }
        if (hasOperators) {
            documents[""].emplace_back("Operators", 1);
            expected.insert("Operators", "1");
        }
        Register shop(documents[""]);
        QCOMPARE(shop.run(ShowProperties, steps), 1);
        QCOMPARE(difference(entriesOf(shop.driver.settings()), expected), QString());
    }
}

// As many as the list shows.
void SettingsTest::operators()
{
    for (const Setting &setting : guide()) {
        for (const Case &value : setting.name == "Operators" ? casesOf(setting, 2, 0) : std::vector<Case>()) {
            Register shop({{"Operators", value.first}});
            const auto look = [&](QWidget *window) {
                QCOMPARE(QString::number(child<QListWidget>(window, "lwOperators")->count()), value.second);
            };
            shop.run(ShowProperties, {press("pbtnOperators"), look, key(Qt::Key_Escape), press("pbtnCancel")});
        }
    }
}

QTEST_MAIN(SettingsTest)
#include "tst_settings.moc"
