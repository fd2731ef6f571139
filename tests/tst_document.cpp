// SPDX-License-Identifier: LGPL-2.1-or-later
#include "common/qnoxsettings.h"

#include <QDomDocument>
#include <QtTest>

#include <iterator>
#include <random>

// The older releases cannot bound what entities unfold to.
const bool readsEntities = QT_VERSION >= QT_VERSION_CHECK(5, 15, 0);

class DocumentTest : public QObject
{
    Q_OBJECT

private slots:
    void textForm();
    void numbers();
    void likeTheDom();
    void roundTrip_data();
    void roundTrip();
    void reading_data();
    void reading();
    void damaged();
    void hostile_data();
    void hostile();
};

void DocumentTest::textForm()
{
    QNoxSettings settings;
    QCOMPARE(settings.toXml(0).trimmed(), QString("<settings version=\"0\"/>"));

    settings.set("ip", "small letters last");
    settings.set("IPAddress", "10.0.0.1");
    settings.set("BaudRate", 9600);
    settings.set("Empty", QString());
    settings.set("gone", 1);
    settings.remove("gone");
    settings.remove("never there");
    QCOMPARE(settings.toXml(-3), QString("<settings version=\"-3\">\n"
                                         "    <value name=\"BaudRate\">9600</value>\n"
                                         "    <value name=\"Empty\"></value>\n"
                                         "    <value name=\"IPAddress\">10.0.0.1</value>\n"
                                         "    <value name=\"ip\">small letters last</value>\n"
                                         "</settings>\n"));
    QCOMPARE(settings.get("absent", 7), QVariant(7));
    QVERIFY(!settings.get("absent").isValid());
}

void DocumentTest::numbers()
{
    const std::pair<QVariant, QString> rows[] = {
        {-5, "-5"},      {1e10, "10000000000"}, {123456789.1234567, "123456789.123457"}, // fifteen digits
        {0.1, "0.1"},    {1e300, "1e+300"},     {true, "true"},
        {QVariant(), ""}};
    for (const auto &row : rows) {
        QNoxSettings settings;
        settings.set("n", row.first);
        // The document does not record types.
        QCOMPARE(QNoxSettings(settings.toXml(0)).get("n"), QVariant(row.second));
    }
}

// The text is to the letter that of the toolkit's DOM, and is read as the toolkit reads it, over generated documents.
void DocumentTest::likeTheDom()
{
    std::mt19937 generator(2026);
    const auto random = [&](int bound) { return static_cast<int>(generator() % static_cast<unsigned>(bound)); };
    const QString characters = QString::fromUtf8("ab]]]>>&<\"'\r\n\t Жщ€\x7f😀#;x");
    const auto text = [&] {
        QString result;
        for (int length = random(12); length > 0; --length) {
            // Pairs stay whole, halves are not written.
            const int at = random(static_cast<int>(characters.size()));
            const bool isSecond = characters.at(at).isLowSurrogate();
            result += characters.mid(at - isSecond, isSecond || characters.at(at).isHighSurrogate() ? 2 : 1);
        }
        return result;
    };
    for (int round = 0; round < 20000; ++round) {
        QMap<QString, QString> values;
        QNoxSettings settings;
        for (int entries = random(4); entries > 0; --entries) {
            const QString name = text();
            values[name] = text();
            settings.set(name, values[name]);
        }
        QDomDocument dom;
        // The line is cut off again. Without it Qt 4.8 writes for UTF-8, and breaks pairs.
        dom.appendChild(dom.createProcessingInstruction("xml", "version=\"1.0\" encoding=\"UTF-16\""));
        QDomElement root = dom.createElement("settings");
        root.setAttribute("version", round);
        dom.appendChild(root);
        for (auto value = values.constBegin(); value != values.constEnd(); ++value) {
            QDomElement element = dom.createElement("value");
            element.setAttribute("name", value.key());
            element.appendChild(dom.createTextNode(value.value()));
            root.appendChild(element);
        }
        QString xml = settings.toXml(round);
        QCOMPARE(xml, dom.toString(4).section('\n', 1));
        // One with a declaration goes to the toolkit's reader. Whatever happens to the text, the result is the same.
        for (int damage = random(3); damage > 0; --damage) {
            const QString pieces[] = {text(),
                                      "",
                                      " ",
                                      "&amp;",
                                      "&#xd;",
                                      "&#65;",
                                      "<!---->",
                                      "/>",
                                      QString(QChar(0x1F)),
                                      QString(QChar(0xFEFF)),
                                      QString(QChar(0xFFFE)),
                                      QString(QChar(0x2028)),
                                      "</value><value name=\"a\">"};
            xml.replace(1 + random(static_cast<int>(xml.size())), random(3), pieces[random(std::size(pieces))]);
        }
        QCOMPARE(QNoxSettings(xml).toXml(0), QNoxSettings("<?xml version=\"1.0\"?>" + xml).toXml(0));
    }
}

void DocumentTest::roundTrip_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("kept");
    const auto same = [](const char *name, const QString &text) { QTest::newRow(name) << text << text; };
    same("markup", "a&b<c>\"d'e]]>&amp;");
    same("document", "<?xml version=\"1.0\"?>\n<settings version=\"1\"><value name=\"x\">&lt;</value></settings>");
    same("white space", " \t ");
    same("line ends", "one\ntwo\r\nthree\rfour\n");
    same("beyond the first plane", QString::fromUtf8("Чек 😀 №1"));
    same("no characters beyond the first plane", QString::fromWCharArray(L"\xFDD0 \x1FFFE \x10FFFF"));
    const auto cut = [](const char *name, const QString &text, const QString &kept) {
        QTest::newRow(name) << text << kept;
    };
    cut("control characters", QString("a") + QChar(0x1F) + QChar(0) + "b", "ab");
    cut("half a pair", QString("a") + QChar(0xD83D) + "b" + QChar(0xDE00), "ab");
    cut("no characters", QString("a") + QChar(0xFFFE) + QChar(0xFFFF) + QChar(0xFFFD), QString("a") + QChar(0xFFFD));
}

void DocumentTest::roundTrip()
{
    QFETCH(QString, text);
    QFETCH(QString, kept);
    QNoxSettings settings;
    settings.set("before", "1");
    settings.set("key" + text, text);
    for (const char *declaration : {"", "<?xml version=\"1.0\"?>"}) {
        const QNoxSettings read(declaration + settings.toXml(0));
        QCOMPARE(read.get("before").toString(), QString("1"));
        QCOMPARE(read.get("key" + kept).toString(), kept);
    }
}

void DocumentTest::reading_data()
{
    QTest::addColumn<QString>("xml");
    QTest::addColumn<QString>("entries"); // name=value, in ascending order
    QTest::addColumn<int>("version");     // 5 before the text is read
    const auto row = [](const char *name, const char *xml, const char *entries, int version) {
        QTest::newRow(name) << QString(xml) << QString(entries) << version;
    };
    row("version of the root does not count", "<settings version='7'><value name='a'>1</value></settings>", "a=1", 5);
    row("version below the root", "<r><x><settings version='7'/></x><settings version='8'/></r>", "", 7);
    row("version that is no number", "<r><settings version='x'/><settings version='8'/></r>", "", 0);
    row("any depth, any root", "<r><a><value name='x'>1</value></a><b><c><value name='y'>2</value></c></b></r>",
        "x=1 y=2", 5);
    row("the later one wins", "<r><value name='x'>1</value><value name='x'>2</value></r>", "x=2", 5);
    row("no name", "<r><value>1</value></r>", "=1", 5);
    row("text beneath", "<r><value name='x'>1<b>2<!-- no --></b><![CDATA[<3]]></value></r>", "x=12<3", 5);
    row("value in a value", "<r><value name='x'>1<value name='y'>2</value>3</value></r>", "x=123 y=2", 5);
    row("the root is no value", "<value name='x'>1<value name='y'>2</value></value>", "y=2", 5);
    row("prefixes are part of the name", "<r xmlns:p='u'><p:value name='x'>1</p:value><value name='y'>2</value></r>",
        "y=2", 5);
    row("prefix without a namespace", "<r><p:x><value name='y'>2</value></p:x></r>", "y=2", 5);
    row("declaration", "<?xml version='1.0' encoding='windows-1251'?><r><value name='x'>\xD0\xB6</value></r>",
        "x=\xD0\xB6", 5);
    row("declaration of an unknown encoding and version", "<?xml version='1.7' encoding='koi-9'?><r><value/></r>", "=",
        5);
    row("malformed declaration", "<?xml encoding='UTF-8'?><r><value/></r>", "", 5);
    row("byte order mark", "\xEF\xBB\xBF<?xml version='1.0'?><r><value name='x'>1</value></r>", "x=1", 5);
    row("blank before the declaration", " <?xml version='1.0'?><r><value/></r>", "", 5);
    row("entity", "<!DOCTYPE r [<!ENTITY e 'E'>]><r><value name='x'>&e;&e;</value></r>", readsEntities ? "x=EE" : "",
        5);
    row("empty", "", "", 5);
    row("no document", "Protocol=3", "", 5);
    row("entries before the error", "<r><settings version='7'/><value name='x'>1</value><value name='y'>2</valve></r>",
        "", 5);
    row("two roots", "<r><value name='x'>1</value></r><r/>", "", 5);
}

void DocumentTest::reading()
{
    QFETCH(QString, xml);
    QFETCH(QString, entries);
    QNoxSettings settings("<r><settings version='5'/><value name='old'>1</value></r>");
    settings.fromXml(xml);
    QNoxSettings expected;
    const QStringList pairs = entries.isEmpty() ? QStringList() : entries.split(' ');
    for (const QString &pair : pairs) {
        expected.set(pair.section('=', 0, 0), pair.section('=', 1));
    }
    QTEST(settings.toXml(0).section('"', 1, 1).toInt(), "version");
    QCOMPARE(settings.toXml(9), expected.toXml(9));
}

// A document that was cut off anywhere gives nothing rather than a part of the settings.
void DocumentTest::damaged()
{
    const QString whole = "<settings version=\"2\">\n<value name=\"a&amp;b\">1</value>\n</settings>";
    for (int length = 0; length < whole.size(); ++length) {
        QVERIFY2(!QNoxSettings(whole.left(length)).get("a&b").isValid(), qPrintable(whole.left(length)));
    }
    QCOMPARE(QNoxSettings(whole).get("a&b").toString(), QString("1"));
}

void DocumentTest::hostile_data()
{
    QTest::addColumn<QString>("xml");
    QTest::addColumn<int>("length"); // of the value "x", -1 for none
    const QString deep = QString("<d>").repeated(100000) + "%1" + QString("</d>").repeated(100000);
    const QString value = "<value name='x'>%1</value>";
    QTest::newRow("nested elements") << deep.arg(value.arg("1")) << 1;
    QTest::newRow("nested values that unfold")
        << "<r>" + QString("<value name='x'>").repeated(5000) + QString("t").repeated(100000) +
               QString("</value>").repeated(5000) + "</r>"
        << -1;
    QTest::newRow("five megabytes")
        << "<r>" + QString("<value name='y'>fifty characters and more</value>").repeated(110000) + value.arg("1") +
               "</r>"
        << 1;
    QTest::newRow("a million characters") << "<r>" + value.arg(QString("t").repeated(1000000)) + "</r>" << 1000000;
    QTest::newRow("one name two hundred times") << "<r>" + value.arg("1").repeated(200) + value.arg("22") + "</r>" << 2;
    // Nine levels of ten: a thousand million characters for each reference.
    QString bomb = "<!DOCTYPE r [<!ENTITY e0 'aaaaaaaaaa'>";
    for (int level = 1; level < 9; ++level) {
        bomb += QString("<!ENTITY e%1 '%2'>").arg(level).arg(QString("&e%1;").arg(level - 1).repeated(10));
    }
    QTest::newRow("entities in entities") << bomb + "]><r>" + value.arg("&e8;") + "</r>" << -1;
    QTest::newRow("the same, not referred to")
        << bomb + "]><r>" + value.arg("&e4;") + "</r>" << (readsEntities ? 100000 : -1);
    QTest::newRow("the same, behind a character reference")
        << bomb + "<!ENTITY f '&#38;e8;'>]><r>" + value.arg("&f;") + "</r>" << -1;
    QTest::newRow("the same, in a default")
        << bomb + "<!ATTLIST value name CDATA '&e8;'>]><r>" + value.arg("1") + "</r>" << -1;
    QTest::newRow("one entity in a large document")
        << "<!DOCTYPE r [<!ENTITY e 'E'>]><r>" + value.arg("&e;" + QString("t").repeated(99999)) + "</r>"
        << (readsEntities ? 100000 : -1);
    QTest::newRow("entities beside the values")
        << "<!DOCTYPE r [<!ENTITY a '" + QString("a").repeated(131000) + "'>]><r>" + QString("&a;").repeated(510) +
               QString("t").repeated(400000) + value.arg("1") + "</r>"
        << -1;
    QTest::newRow("many entities in a name")
        << "<!DOCTYPE r [<!ENTITY a '" + QString("a").repeated(4000) + "'>]><r><value name='" +
               QString("&a;").repeated(20000) + "'/>" + value.arg("1") + "</r>"
        << -1;
}

void DocumentTest::hostile()
{
    QFETCH(QString, xml);
    const QVariant value = QNoxSettings(xml).get("x");
    QTEST(value.isValid() ? static_cast<int>(value.toString().size()) : -1, "length");
}

QTEST_APPLESS_MAIN(DocumentTest)
#include "tst_document.moc"
