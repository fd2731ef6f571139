// SPDX-License-Identifier: LGPL-2.1-or-later
#include "register.h"

#include <QComboBox>

/// The translations: complete, and such that what the library does with its texts goes on working.
class TranslationTest : public QObject
{
    Q_OBJECT

private slots:
    void complete();
    void takenWithEachWindow();
    void lastSemicolon();
};

namespace {

/// Translations by context and text; empty for one that is not finished.
QMap<QString, QString> translations(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        qFatal("%s cannot be read", qPrintable(path));
    }
    QMap<QString, QString> result;
    QString context;
    QString text;
    for (QXmlStreamReader reader(&file); !reader.atEnd(); reader.readNext()) {
        if (!reader.isStartElement()) {
            continue;
        }
        if (reader.name() == QLatin1String("name")) {
            context = reader.readElementText();
        } else if (reader.name() == QLatin1String("source")) {
            text = reader.readElementText();
        } else if (reader.name() == QLatin1String("translation")) {
            const bool finished = reader.attributes().isEmpty();
            const QString translation = reader.readElementText();
            result.insert(context + ": " + text, finished ? translation : QString());
        }
    }
    return result;
}

/// What has to be the same in a text and its translation: placeholders, colons, semicolons, numeric keys, blanks
/// at the ends.
QStringList marks(const QString &text)
{
    QStringList found;
    QRegularExpressionMatchIterator match = QRegularExpression("%\\d|[:;]|\\d+(?=:)|^ | $").globalMatch(text);
    while (match.hasNext()) {
        found += match.next().captured();
    }
    return found;
}

} // namespace

void TranslationTest::complete()
{
    QTemporaryDir directory;
    const QString fresh = directory.filePath("paycard_gui_en.ts");
    QCOMPARE(QProcess::execute(PAYCARD_LUPDATE, {"-silent", PAYCARD_SOURCES "/paycard_gui", "-ts", fresh}), 0);
    const QStringList texts = translations(fresh).keys();
    QVERIFY(texts.size() > 100);
    const QMap<QString, QString> all = translations(PAYCARD_SOURCES "/translations/paycard_gui_en.ts");
    for (const QString &text : texts) {
        const QString english = all.value(text);
        QVERIFY2(!english.isEmpty() && !english.contains(QRegularExpression("[а-яА-Я]")), qPrintable(text));
        QVERIFY2(marks(english) == marks(text.section(": ", 1)), qPrintable(text));
    }
    QCOMPARE(all.size(), texts.size());
}

// A host may change its language between two windows.
void TranslationTest::takenWithEachWindow()
{
    QTranslator english;
    QVERIFY(english.load("paycard_gui_en", PAYCARD_TRANSLATIONS));
    for (const bool translated : {false, true, false}) {
        if (translated) {
            QCoreApplication::installTranslator(&english);
        }
        const auto look = [&](QWidget *window) {
            QCoreApplication::removeTranslator(&english);
            const QString port = translated ? "Device file" : "Файл устройства";
            const QString speed = translated ? "1200 baud" : "1200 бод";
            QVERIFY(child<QComboBox>(window, "cmbPort")->findText(port) >= 0);
            QVERIFY(child<QComboBox>(window, "cmbTtyBaudrate")->findText(speed) >= 0);
        };
        Register shop({{"Protocol", 11}});
        QCOMPARE(
            shop.run(ShowProperties, {press("pbtnSettingsButton"), look, press("pbtnCancel"), press("pbtnCancel")}), 0);
    }
}

/// Leaves out what is usual but not required.
class TerseTranslator : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *, const char *text, const char *, int) const override
    {
        const QString own = QString::fromUtf8(text);
        return own.startsWith("%1:") && own.endsWith(';') ? own.chopped(1) : QString();
    }
};

void TranslationTest::lastSemicolon()
{
    TerseTranslator terse;
    QCoreApplication::installTranslator(&terse);
    Register shop({{"Operators", 1}, {"Operator0", document({{"MaxSum", 1000}})}});
    shop.driver.operation.sum = 100;
    shop.driver.operation.operatorIndex = 0;
    const auto last = [](QWidget *window) { child<QComboBox>(window, "cmbCommissionAddition")->setCurrentIndex(1); };
    QCOMPARE(shop.run(CommissionAddition, {last, press("pbtnOk")}), 2);
    QCoreApplication::removeTranslator(&terse);
}

QTEST_MAIN(TranslationTest)
#include "tst_translation.moc"
