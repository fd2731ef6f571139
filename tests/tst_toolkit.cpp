// SPDX-License-Identifier: LGPL-2.1-or-later
#include "common/dialog_about.h"
#include "common/nohelpbuttondialogs.h"

#include "register.h"
#include "toolkit/windows.h"

#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QSpinBox>
#include <QTimeEdit>
#include <QTimer>
#include <QToolButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <stdexcept>

/// A dialog whose slot fails.
class FailingDialog : public NoHelpButtonDialog
{
    Q_OBJECT

public:
    explicit FailingDialog(bool atOnce)
    {
        if (atOnce) {
            fail();
        } else {
            QTimer::singleShot(0, this, SLOT(fail()));
        }
    }

private slots:
    void fail()
    {
        guarded([] { throw 42; });
        guarded([] { throw std::runtime_error("the second one"); });
    }
};

/// A number input of another module: hexadecimal digits, without a class name of its own.
class HexBox : public QSpinBox
{
public:
    explicit HexBox(QWidget *parent) : QSpinBox(parent) { setMaximum(0xFFFF); }

protected:
    QString textFromValue(int value) const override { return QString::number(value, 16); }
    int valueFromText(const QString &text) const override { return text.toInt(nullptr, 16); }
    QValidator::State validate(QString &, int &) const override { return QValidator::Acceptable; }
};

class ToolkitTest : public QObject
{
    Q_OBJECT

private slots:
    void failingSlots();
    void foreignDialog();
    void messageBoxes();
    void inputs();
    void files();
    void about();
    void scripts();

private:
    static bool hasHelpButton(const QWidget *window)
    {
        return window->windowFlags().testFlag(Qt::WindowContextHelpButtonHint);
    }
};

void ToolkitTest::failingSlots()
{
    QCOMPARE(QString(NoHelpButtonDialog().metaObject()->className()), QString("NoHelpButtonDialog"));
    QVERIFY(!hasHelpButton(std::make_unique<NoHelpButtonDialog>().get()));
    for (const bool atOnce : {true, false}) {
        FailingDialog dialog(atOnce);
        int thrown = 0;
        try {
            dialog.exec();
        } catch (int number) {
            thrown = number;
        }
        QCOMPARE(thrown, 42);
        QVERIFY(!dialog.isVisible());
        // What was thrown on is gone.
        QTimer::singleShot(0, &dialog, SLOT(accept()));
        QCOMPARE(dialog.exec(), static_cast<int>(QDialog::Accepted));
    }
}

// The dialog of another module, which has the library's base class, keeps its widgets and its size.
void ToolkitTest::foreignDialog()
{
    NoHelpButtonDialog dialog;
    QVBoxLayout *layout = new QVBoxLayout(&dialog);
    HexBox *hex = new HexBox(&dialog);
    QTimeEdit *time = new QTimeEdit(&dialog);
    time->setDisplayFormat("HH:mm");
    QSpinBox *grouped = new QSpinBox(&dialog);
    grouped->setMaximum(99999);
    grouped->setLocale(QLocale(QLocale::English, QLocale::UnitedStates));
    grouped->setProperty("showGroupSeparator", true);
    QLineEdit *edit = new QLineEdit(&dialog);
    QToolButton *inner = new QToolButton(edit);
    QScrollArea *area = new QScrollArea(&dialog);
    area->setWidget(new QLabel(QString("строка\n").repeated(100)));
    for (QWidget *widget : QList<QWidget *>{hex, time, grouped, edit, area}) {
        layout->addWidget(widget);
    }
    dialog.resize(400, 300);
    const auto look = [&](QWidget *) {
        QCOMPARE(dialog.size(), QSize(400, 300));
        QCOMPARE(inner->minimumHeight() + edit->minimumHeight() + hex->minimumHeight(), 0);
        hex->selectAll();
        QTest::keyClicks(hex, "ab");
        QCOMPARE(hex->value(), 0xAB);
        time->setFocus();
        time->setSelectedSection(QDateTimeEdit::HourSection);
        QTest::keyClicks(time, "1230");
        QCOMPARE(time->time(), QTime(12, 30));
        if (grouped->metaObject()->indexOfProperty("showGroupSeparator") >= 0) {
            grouped->selectAll();
            QTest::keyClicks(grouped, "12,345");
            QCOMPARE(grouped->value(), 12345);
        }
    };
    QCOMPARE(ModalScript({look, [](QWidget *window) { window->close(); }}).run([&] { return dialog.exec(); }), 0);
}

void ToolkitTest::messageBoxes()
{
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    QString shown;
    bool isDefault = false;
    const auto answer = [&](QMessageBox::StandardButton button, const std::function<int()> &ask) {
        ModalScript script({[&](QWidget *window) {
            QMessageBox *box = qobject_cast<QMessageBox *>(window);
            icon = box->icon();
            shown = QString("%1|%2|%3").arg(box->windowTitle(), box->text()).arg(int(box->standardButtons()));
            isDefault = box->defaultButton() == box->button(button);
            QVERIFY(!hasHelpButton(box));
            QVERIFY(box->height() <= Toolkit::availableGeometry(*box).height());
            button == QMessageBox::NoButton ? void(box->close()) : box->button(button)->click();
        }});
        return script.run(ask);
    };
    const auto buttons = QMessageBox::Yes | QMessageBox::No;
    QCOMPARE(answer(QMessageBox::Ok, [] { return NoHelpButtonMessageBox::critical(nullptr, "T", "t"); }),
             static_cast<int>(QMessageBox::Ok));
    QCOMPARE(shown, QString("T|t|%1").arg(int(QMessageBox::Ok)));
    QVERIFY(isDefault);
    QCOMPARE(icon, QMessageBox::Critical);
    QCOMPARE(answer(QMessageBox::Yes,
                    [=] { return NoHelpButtonMessageBox::warning(nullptr, "T", "t", buttons, QMessageBox::No); }),
             static_cast<int>(QMessageBox::Yes));
    QCOMPARE(shown, QString("T|t|%1").arg(int(buttons)));
    QVERIFY(!isDefault);
    QCOMPARE(icon, QMessageBox::Warning);
    // Whole, however long it is.
    const QString lines = QString("строка\n").repeated(200);
    answer(QMessageBox::Ok, [&] { return NoHelpButtonMessageBox::information(nullptr, "T", lines); });
    QCOMPARE(shown, QString("T|%1|%2").arg(lines).arg(int(QMessageBox::Ok)));
    QCOMPARE(icon, QMessageBox::Information);
    // Closing it answers with the button that the toolkit's own has for that.
    const int closed = answer(QMessageBox::NoButton, [] { return QMessageBox::question(nullptr, "T", "t"); });
    const QString own = shown;
    QCOMPARE(answer(QMessageBox::NoButton, [] { return NoHelpButtonMessageBox::question(nullptr, "T", "t"); }), closed);
    QCOMPARE(shown, own);
    QCOMPARE(icon, QMessageBox::Question);
}

void ToolkitTest::inputs()
{
    QString seen;
    const auto play = [&](bool accept, const std::function<int()> &call) {
        ModalScript script({[&](QWidget *window) {
            QInputDialog *dialog = qobject_cast<QInputDialog *>(window);
            seen = QString("%1 %2 %3").arg(dialog->inputMode()).arg(dialog->labelText()).arg(hasHelpButton(dialog));
            if (QSpinBox *spin = dialog->findChild<QSpinBox *>()) {
                spin->setValue(1000);
            }
            accept ? dialog->accept() : dialog->reject();
        }});
        return script.run(call);
    };
    bool ok = false;
    QString text;
    const auto getText = [&] {
        text = NoHelpButtonInputDialog::getText(nullptr, "T", "l", QLineEdit::Normal, "начало", &ok);
        return 0;
    };
    play(true, getText);
    QVERIFY(ok && text == "начало" && seen == "0 l 0");
    play(false, getText);
    QVERIFY(!ok && text.isNull());

    // The limits and the value go to the other inputs: the integer one keeps its own range.
    const auto getInt = [&] { return NoHelpButtonInputDialog::getInt(nullptr, "T", "l", &ok, 5, -10, 10000); };
    QCOMPARE(play(true, getInt), 99);
    QVERIFY(!ok && seen == "1 l 0");
    ok = true;
    QCOMPARE(play(false, getInt), 0);
    QVERIFY(!ok);

    double number = 0;
    const auto getDouble = [&] {
        number = NoHelpButtonInputDialog::getDouble(nullptr, "T", "l", &ok, 1234.5678, 0, 10);
        return 0;
    };
    play(true, getDouble);
    QVERIFY(ok && seen == "2 l 0");
    QCOMPARE(number, 1234.57);
    play(false, getDouble);
    QVERIFY(!ok && number == 0.0);
    for (const char *entered : {"7.25", "7,25", "0"}) {
        ModalScript script({[&](QWidget *window) {
            QDoubleSpinBox *spin = window->findChild<QDoubleSpinBox *>();
            spin->selectAll();
            QTest::keyClicks(spin, entered);
            qobject_cast<QDialog *>(window)->accept();
        }});
        script.run(getDouble);
        QVERIFY(ok && number == (*entered == '0' ? 0.0 : 7.25));
    }
}

void ToolkitTest::files()
{
    QTemporaryDir directory;
    const QString path = directory.path();
    QString offered;
    QString filter = "Б (*.b)";
    const auto play = [&](bool accept, const std::function<QString()> &call) {
        QString chosen;
        ModalScript script({[&](QWidget *window) {
            QFileDialog *dialog = qobject_cast<QFileDialog *>(window);
            offered = dialog->findChild<QLineEdit *>("fileNameEdit")->text() + '|' + dialog->windowTitle() +
                      (hasHelpButton(dialog) ? "|?" : "") +
                      (dialog->testOption(QFileDialog::ShowDirsOnly) ? "|dirs" : "");
            if (!filter.isEmpty()) {
                dialog->selectNameFilter("А (*.a)");
            }
            accept ? static_cast<QDialog *>(dialog)->accept() : dialog->reject();
        }});
        script.run([&] {
            chosen = call();
            return 0;
        });
        return chosen;
    };
    const auto save = [&](const QString &target) {
        return play(true, [&] { return NoHelpButtonFileDialog::getSaveFileName(nullptr, "T", path + target); });
    };
    QCOMPARE(save("/a.tar.gz"), path + "/a.tar.gz");
    QCOMPARE(offered, QString("a.tar.gz|T"));
    QCOMPARE(save("/report"), path + "/report.");
    QCOMPARE(save(QString()), path + "/" + QFileInfo(path).fileName() + ".");

    const auto open = [&] {
        return NoHelpButtonFileDialog::getOpenFileName(nullptr, "T", path, "А (*.a);;Б (*.b)", &filter);
    };
    QVERIFY(play(false, open).isNull());
    QCOMPARE(filter, QString("Б (*.b)")); // the choice was cancelled
    QVERIFY(QFile(path + "/x.a").open(QIODevice::WriteOnly));
    const auto save2 = [&] {
        return NoHelpButtonFileDialog::getSaveFileName(nullptr, "T", path + "/new.tar.a", "А (*.a);;Б (*.b)", &filter);
    };
    // The toolkit's own question is no last window of the host either.
    QSignalSpy lastWindow(qApp, SIGNAL(lastWindowClosed()));
    ModalScript replace({[](QWidget *window) { QTimer::singleShot(0, window, SLOT(accept())); }, press("Yes")});
    QTimer::singleShot(0, qApp, [&] {
        replace.run([&] {
            QCoreApplication::exit(NoHelpButtonFileDialog::getSaveFileName(nullptr, "T", path + "/x.a", QString(),
                                                                           nullptr) == path + "/x.a");
            return 0;
        });
    });
    QCOMPARE(QApplication::exec(), 1);
    QVERIFY(replace.completed() && lastWindow.isEmpty());
    QCOMPARE(play(true, save2), path + "/new.tar.a");
    QCOMPARE(offered, QString("new.tar.a|T"));
    QCOMPARE(filter, QString("А (*.a)"));

    filter.clear();
    QCOMPARE(play(true, [&] { return NoHelpButtonFileDialog::getExistingDirectory(nullptr, "T", path); }), path);
    QVERIFY2(offered.endsWith("|T|dirs"), qPrintable(offered));
    play(false,
         [&] { return NoHelpButtonFileDialog::getExistingDirectory(nullptr, "T", path, QFileDialog::Options()); });
    QVERIFY2(offered.endsWith("|T"), qPrintable(offered));
}

void ToolkitTest::about()
{
    DialogAbout own("Драйвер", "1.0", nullptr);
    QCOMPARE(child<QLabel>(&own, "label_driver")->text(), QString("Драйвер\n1.0"));
    QCOMPARE(child<QLabel>(&own, "label_gui")->text(), QString("ОРМА: Драйвер интерфейса\n9.11.2.6032"));
    QVERIFY(!child<QWidget>(&own, "header_container")->styleSheet().isEmpty());
    QTreeWidget *table = child<QTreeWidget>(&own, "tree_license");
    QCOMPARE(table->topLevelItemCount(), 9);
    const auto licence = [=](int row) {
        return qobject_cast<QLabel *>(table->itemWidget(table->topLevelItem(row), 2));
    };
    QVERIFY(licence(1)->openExternalLinks());
    QVERIFY(licence(1)->text().endsWith(">Zlib/libpng</a>"));
    QCOMPARE(table->topLevelItem(5)->text(0) + licence(5)->text(), QString("Tesra<a href=\"\"></a>"));
    ModalScript script({press("OK")});
    QCOMPARE(script.run([&] { return own.exec(); }), static_cast<int>(QDialog::Accepted));

    // At 800 x 600 a long name scrolls, and the button does not.
    const QString name = QString("слово ").repeated(83);
    DialogAbout large(name, name, nullptr);
    ModalScript look({[&](QWidget *window) {
                          QCOMPARE(child<QLabel>(window, "label_driver")->text().left(498), name);
                          window->resize(window->width(), 600);
                          QCOMPARE(window->height(), 600);
                          const QWidget *box = child<QWidget>(window, "bbox");
                          QVERIFY(box->mapTo(window, box->rect().bottomRight()).y() < 600);
                      },
                      press("OK")});
    QCOMPARE(look.run([&] { return large.exec(); }), static_cast<int>(QDialog::Accepted));

    DialogAbout other(QString(), "1.0", "Модуль", QString(), nullptr);
    QCOMPARE(child<QLabel>(&other, "label_driver")->text(), QString());
    QCOMPARE(child<QLabel>(&other, "label_gui")->text(), QString("Модуль"));
    QVERIFY(child<QWidget>(&other, "header_container")->styleSheet().isEmpty());
}

// A script says what kept it from its end, and the call returns all the same.
void ToolkitTest::scripts()
{
    QString text;
    const struct
    {
        std::vector<ModalScript::Step> steps;
        const char *problem;
    } rows[] = {
        {{press("ОК")},
         "after 1 of 1 steps: QInputDialog \"T\": there is no button \"ОК\"; there are \"OK\", \"Cancel\""},
        {{[](QWidget *window) { window->findChild<QPushButton *>()->setEnabled(false); }, press("OK")},
         "after 2 of 2 steps: QInputDialog \"T\": \"OK\" is disabled"},
        {{type("nothing", "x"), press("OK")}, "after 1 of 2 steps: QInputDialog \"T\": there is no \"nothing\""},
        {{choose("l", "x")}, "after 1 of 1 steps: QInputDialog \"T\": \"l\" has no item \"x\""},
        {{Cashier::read("l", &text)}, "after 1 of 1 steps: QInputDialog \"T\" was left open"},
        {{press("OK"), press("OK")}, "after 1 of 2 steps: the call has returned"},
        {{type("l", "a\U0001F600&ж"), Cashier::read("l", &text), key(Qt::Key_Escape)}, ""},
        {{[](QWidget *) {}, Cashier::photograph("/no/such/directory/x.png")},
         "after 2 of 2 steps: QInputDialog \"T\": /no/such/directory/x.png cannot be written"},
    };
    for (const auto &row : rows) {
        ModalScript script(row.steps);
        script.run([] {
            NoHelpButtonInputDialog::getText(nullptr, "T", "&l:", QLineEdit::Normal, "x");
            return 0;
        });
        QCOMPARE(script.problem(), QString(row.problem));
    }
    QCOMPARE(text, QString("a\U0001F600&ж"));
}

QTEST_MAIN(ToolkitTest)
#include "tst_toolkit.moc"
