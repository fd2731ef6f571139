// SPDX-License-Identifier: LGPL-2.1-or-later
#include "fields.h"

#include <QClipboard>
#include <QListWidget>
#include <QPushButton>

/// The list of operators and one's record.
class OperatorsTest : public QObject
{
    Q_OBJECT

private slots:
    void list();
    void deletion();
    void record();
    void rules();
    void typedNumbers_data();
    void typedNumbers();
};

void OperatorsTest::list()
{
    Register shop({{"Operators", 3},
                   {"Operator0", document({{"Name", "Связь"}, {"Code", 1}, {"AddReqSum", "x"}})},
                   {"Operator2", document({{"Name", "Свет"}, {"Code", 2}})}});
    const auto look = [](QWidget *window) {
        QListWidget *list = child<QListWidget>(window, "lwOperators");
        QCOMPARE(list->count(), 3);
        QCOMPARE(list->item(1)->text(), QString());
        // Written anew, not as it was read.
        QCOMPARE(list->item(1)->data(Qt::UserRole).toString(), QNoxSettings().toXml(0));
        QVERIFY(!enabled(window, "pbtnEdit") && !enabled(window, "pbtnDelete"));
        list->setCurrentRow(0);
        QVERIFY(enabled(window, "pbtnEdit") && enabled(window, "pbtnDelete"));
    };
    const auto rename = [](const QString &name) {
        return [=](QWidget *window) {
            // Pasted with the line's end, as from a table.
            QApplication::clipboard()->setText(name + "\r\n");
            QLineEdit *edit = child<QLineEdit>(window, "leName");
            edit->selectAll();
            edit->paste();
            QCOMPARE(edit->text(), name + ' ');
            edit->backspace();
            enter(window, "leCode", "9");
        };
    };
    const auto deleteSecond = [](QWidget *window) {
        // The one that was added is current.
        QListWidget *list = child<QListWidget>(window, "lwOperators");
        QVERIFY(list->currentRow() == 3 && list->currentItem()->isSelected());
        child<QListWidget>(window, "lwOperators")->setCurrentRow(1);
        press("pbtnDelete")(window);
    };
    const std::vector<Step> steps = {press("pbtnOperators"), look,
                                     press("pbtnEdit"),      rename("Связь-2"),
                                     press("pbtnOk"),        press("pbtnAdd"),
                                     rename("Новый"),        press("pbtnCancel"),
                                     press("pbtnAdd"),       rename("Вода"),
                                     press("pbtnOk"),        deleteSecond};
    // Neither Escape in the list nor Cancel in the properties changes anything.
    const QString before = shop.driver.settings();
    std::vector<Step> escaped = steps;
    escaped.insert(escaped.end(), {key(Qt::Key_Escape), press("pbtnCancel")});
    QCOMPARE(shop.run(ShowProperties, escaped), 0);
    QCOMPARE(shop.stored("Operator0").toString(), QNoxSettings(before).get("Operator0").toString());
    QCOMPARE(shop.stored("Operators").toInt(), 3);

    std::vector<Step> accepted = steps;
    accepted.insert(accepted.end(), {press("pbtnOk"), press("pbtnOk")});
    QCOMPARE(shop.run(ShowProperties, accepted), 1);
    QCOMPARE(shop.stored("Operators").toInt(), 3);
    QStringList names;
    for (const char *record : {"Operator0", "Operator1", "Operator2"}) {
        names += nested(shop, record).get("Name").toString();
    }
    QCOMPARE(names.join(" "), QString("Связь-2 Свет Вода"));
    QCOMPARE(nested(shop, "Operator0").get("AddReqSum").toString(), QString("x"));
    QVERIFY(!shop.stored("Operator3").isValid());
}

void OperatorsTest::deletion()
{
    Register shop(
        {{"Operators", 2}, {"Operator0", document({{"Name", "A"}})}, {"Operator1", document({{"Name", "B"}})}});
    const auto remove = [](QWidget *window) {
        QListWidget *list = child<QListWidget>(window, "lwOperators");
        list->setCurrentRow(0);
        child<QPushButton>(window, "pbtnDelete")->click();
        // Edit goes by the inverted rule: only an empty list enables it.
        QVERIFY(enabled(window, "pbtnDelete") != enabled(window, "pbtnEdit"));
        QCOMPARE(enabled(window, "pbtnDelete"), list->count() == 1);
    };
    QCOMPARE(shop.run(ShowProperties,
                      {press("pbtnOperators"), remove, remove, press("pbtnEdit"), press("pbtnOk"), press("pbtnOk")}),
             1);
    QCOMPARE(shop.stored("Operators").toInt(), 0);
    QVERIFY(!shop.stored("Operator0").isValid());
}

void OperatorsTest::record()
{
    const std::vector<Field> fields = {{"leCode", "Code", "", "77"},
                                       {"leName", "Name", "Оператор", "Свет & газ"},
                                       {"spinMaxSum", "MaxSum", "0", "10000000000"},
                                       {"spinMinSum", "MinSum", "0", "0.01"},
                                       {"cmbCommissionType", "ComissionType", "0", "1"},
                                       {"cmbCommissionAddition", "ComissionAddition", "0", "2"},
                                       {"spinCommission", "Comission", "0", "2.5"},
                                       {"leGateway", "Gateway", "", "gw"},
                                       {"cmbParam1", "Param1", "0", "4"},
                                       {"leMask1", "Mask1", "(999)999-99-99", "99"},
                                       {"cmbParam2", "Param2", "0", "3"},
                                       {"leMask2", "Mask2", "(999)999-99-99", ""},
                                       {"leSumWareCode", "SumWareCode", "", "100"},
                                       {"leCommissionWareCode", "ComissionWareCode", "", "200"}};
    Register shop;
    QCOMPARE(shop.run(ShowProperties, {press("pbtnOperators"), press("pbtnAdd"), fill(fields), press("pbtnOk"),
                                       press("pbtnOk"), press("pbtnOk")}),
             1);
    compareStored(nested(shop, "Operator0"), fields);
}

void OperatorsTest::rules()
{
    Register shop({{"Operators", 1}, {"Operator0", document({{"Name", "A"}, {"Code", 1}, {"ComissionType", 7}})}});
    const auto rules = [](QWidget *window) {
        QCOMPARE(shown(window, "cmbCommissionType"), QString("0"));
        const auto expect = [&](const QString &error) {
            QCOMPARE(text(window, "lbError"), error.isEmpty() ? error : "Ошибка: " + error);
            QCOMPARE(enabled(window, "pbtnOk"), error.isEmpty());
        };
        expect(QString());
        enter(window, "leCode", QString());
        expect("Не указан код");
        enter(window, "leName", QString());
        expect("Не указано название");
        enter(window, "leName", "A");
        enter(window, "leCode", "1");
        enter(window, "spinMinSum", "100");
        expect("Минимальный платеж не может быть больше максимального");
        enter(window, "spinMaxSum", "99.99");
        expect("Минимальный платеж не может быть больше максимального");
        enter(window, "spinMaxSum", "100");
        expect(QString());
    };
    const auto edit = [](QWidget *window) {
        QListWidget *list = child<QListWidget>(window, "lwOperators");
        QTimer::singleShot(0, list, [=] {
            QMetaObject::invokeMethod(list, "itemDoubleClicked", Q_ARG(QListWidgetItem *, list->item(0)));
        });
    };
    shop.run(ShowProperties, {press("pbtnOperators"), edit, rules, press("pbtnOk"), press("pbtnOk"), press("pbtnOk")});
    QCOMPARE(nested(shop, "Operator0").get("MinSum").toString(), QString("100"));
}

void OperatorsTest::typedNumbers_data()
{
    QTest::addColumn<QLocale>("locale");
    for (const char *name : {"C", "en_US", "ru_RU", "de_DE"}) {
        QTest::newRow(name) << QLocale(name);
    }
}

// A point and a comma are the decimal separator on every keyboard; no digit moves unnoticed.
void OperatorsTest::typedNumbers()
{
    QFETCH(QLocale, locale);
    const struct
    {
        const char *entered;
        double amount; ///< from 7
        int typedCode; ///< from 7
        int pastedCode;
        double pasted; ///< from 7
    } rows[] = {
        {"10.55", 10.55, 10, 7, 10.55},    {"10,55", 10.55, 10, 7, 10.55}, {"1 000,50", 1000.5, 1000, 7, 1000.5},
        {"0.5", 0.5, 0, 7, 0.5},           {"10.555", 10.55, 10, 7, 7},    {"1,000.5", 1, 1, 7, 7},
        {"1.2.3", 1.23, 1, 7, 7},          {"10 55", 1055, 1055, 7, 7},    {"1e3", 13, 13, 7, 7},
        {"1 000", 1000, 1000, 1000, 1000}, {" 42\n", 42, 42, 42, 42},
    };
    const QLocale before;
    QLocale::setDefault(locale);
    const auto put = [](QWidget *spin, const QString &text, bool paste) {
        qobject_cast<QAbstractSpinBox *>(spin)->selectAll();
        if (paste) {
            QApplication::clipboard()->setText(text);
            QTest::keyClick(spin, Qt::Key_V, Qt::ControlModifier);
        } else {
            QTest::keyClicks(spin, text.trimmed());
        }
        qobject_cast<QAbstractSpinBox *>(spin)->interpretText();
    };
    const auto enterAll = [&](QWidget *window) {
        for (const auto &row : rows) {
            for (const bool paste : {false, true}) {
                auto *amount = child<QDoubleSpinBox>(window, "spinMinSum");
                amount->setValue(7);
                put(amount, row.entered, paste);
                QVERIFY2(qFuzzyCompare(amount->value(), paste ? row.pasted : row.amount), row.entered);
                QCOMPARE(amount->text(), locale.toString(amount->value(), 'f', 2).remove(locale.groupSeparator()));
            }
        }
    };
    const auto enterWhole = [&](QWidget *window) {
        for (const auto &row : rows) {
            for (const bool paste : {false, true}) {
                auto *code = child<QSpinBox>(window, "spinPointCode");
                code->setValue(7);
                put(code, row.entered, paste);
                QVERIFY2(code->value() == (paste ? row.pastedCode : row.typedCode), row.entered);
            }
        }
    };
    Register shop;
    shop.run(ShowProperties,
             {press("pbtnOperators"), press("pbtnAdd"), enterAll, press("pbtnCancel"), key(Qt::Key_Escape),
              press("pbtnSettingsButton"), enterWhole, press("pbtnCancel"), press("pbtnCancel")});
    QLocale::setDefault(before);
}

QTEST_MAIN(OperatorsTest)
#include "tst_operators.moc"
