// SPDX-License-Identifier: LGPL-2.1-or-later
#include "contents.h"
#include "firstpaint.h"
#include "paycard_gui.h"
#include "prepareddriver.h"
#include "suites.h"
#include "ui_arcus2lumipaysettingsdialog.h"
#include "ui_arcus2ormasettingsdialog.h"
#include "ui_arcus2settingsdialog.h"
#include "ui_commissionadditiondialog.h"
#include "ui_cyberplatsettingsdialog.h"
#include "ui_dialog_about.h"
#include "ui_inpaslumipaysettingsdialog.h"
#include "ui_inpasormasettingsdialog.h"
#include "ui_operatordialog.h"
#include "ui_operatorlistdialog.h"
#include "ui_paysystemdialog.h"
#include "ui_sberbanklumipaysettingsdialog.h"
#include "ui_sberbankormasettingsdialog.h"
#include "ui_selectoperatordialog.h"
#include "ui_slipdialog.h"

#include <QListWidget>
#include <QMessageBox>

namespace {

const double Aim = 1.10;
const int Operators = 1;

/// The floors: a dialog with the form that shows these contents, and one with the form only.
template <class Form>
void runForm(QWidget *parent, const Contents *contents)
{
    QDialog dialog(parent);
    Form form;
    form.setupUi(&dialog);
    if (contents) {
        contents->applyTo(&dialog);
    }
    dialog.exec();
}

typedef void (*Floor)(QWidget *parent, const Contents *contents);

struct Entry
{
    const char *what;
    int (*function)(NOX::PayCard::IPayCard *, QWidget *);
    Floor floor;
};

const Entry entries[] = {
    {"ShowProperties", ShowProperties, runForm<Ui_PaySystemDialog>},
    {"SelectOperator", SelectOperator, runForm<Ui_SelectOperatorDialog>},
    {"CommissionAddition", CommissionAddition, runForm<Ui_CommissionAdditionDialog>},
};

/// A window that a button opens.
struct SubDialog
{
    const char *what;
    /// Of the properties.
    const char *protocol;
    /// Opens the window that has the button; null where that is the properties themselves.
    const char *over;
    const char *button;
    Floor floor;
};

const SubDialog subDialogs[] = {
    {"Slip", "2", nullptr, "pbtnSlip", runForm<Ui_SlipDialog>},
    {"Operator list", "2", nullptr, "pbtnOperators", runForm<Ui_OperatorListDialog>},
    {"Operator", "2", "pbtnOperators", "pbtnEdit", runForm<Ui_OperatorDialog>},
    {"CyberPlat", "2", nullptr, "pbtnSettingsButton", runForm<Ui_CyberPlatSettingsDialog>},
    {"ARCUS2", "6", nullptr, "pbtnSettingsButton", runForm<Ui_Arcus2SettingsDialog>},
    {"INPAS LumiPay", "8", nullptr, "pbtnSettingsButton", runForm<Ui_InpasLumiPaySettingsDialog>},
    {"ARCUS2 LumiPay", "9", nullptr, "pbtnSettingsButton", runForm<Ui_Arcus2LumiPaySettingsDialog>},
    {"Sberbank LumiPay", "10", nullptr, "pbtnSettingsButton", runForm<Ui_SberbankLumiPaySettingsDialog>},
    {"Sberbank terminal", "11", nullptr, "pbtnSettingsButton", runForm<Ui_SberbankOrmaSettingsDialog>},
    {"INPAS terminal", "12", nullptr, "pbtnSettingsButton", runForm<Ui_InpasOrmaSettingsDialog>},
    {"ARCUS2 terminal", "13", nullptr, "pbtnSettingsButton", runForm<Ui_Arcus2OrmaSettingsDialog>},
    {"About", "2", nullptr, "pbtnAbout", runForm<Ui_DialogAbout>},
};

QPushButton *button(QWidget *window, const char *name)
{
    QPushButton *found = window->findChild<QPushButton *>(name);
    if (!found) {
        qFatal("%s has no %s", window->metaObject()->className(), name);
    }
    return found;
}

/// Measures the window that `open` opens over `over`.
Medians measureWindow(FirstPaint &firstPaint, PreparedDriver &driver, double seconds, const std::function<void()> &open,
                      Floor floor, QWidget *over)
{
    Contents contents;
    firstPaint.measure(open, [&](QDialog *window) {
        contents = Contents(window);
        window->reject();
    });
    return interleave(
        seconds,
        [&] {
            driver.spent = 0;
            const qint64 painted = firstPaint.measure(open);
            return painted - driver.spent;
        },
        [&] { return firstPaint.measure([&] { floor(over, &contents); }); },
        [&] { return firstPaint.measure([&] { floor(over, nullptr); }); });
}

Medians measureSubDialog(const SubDialog &subDialog, double seconds)
{
    FirstPaint firstPaint;
    PreparedDriver driver;
    driver.settings = shopSettings(subDialog.protocol, Operators);
    Medians medians;
    const FirstPaint::Action measure = [&](QDialog *over) {
        if (QListWidget *list = over->findChild<QListWidget *>("lwOperators")) {
            list->setCurrentRow(0);
        }
        QPushButton *opener = button(over, subDialog.button);
        medians = measureWindow(
            firstPaint, driver, seconds, [=] { opener->click(); }, subDialog.floor, over);
        over->reject();
    };
    const FirstPaint::Action descend = [&](QDialog *properties) {
        firstPaint.measure([&] { button(properties, subDialog.over)->click(); }, measure);
        properties->reject();
    };
    firstPaint.measure([&] { ShowProperties(&driver, nullptr); }, subDialog.over ? descend : measure);
    return medians;
}

void measureConfirmation(Table &table, PreparedDriver &driver, double seconds)
{
    FirstPaint firstPaint;
    QString title;
    QString text;
    firstPaint.measure([&] { ConfirmPayment(&driver, nullptr); },
                       [&](QDialog *window) {
                           title = window->windowTitle();
                           text = qobject_cast<QMessageBox *>(window)->text();
                           window->reject();
                       });
    const auto bare = [&] {
        QMessageBox box(QMessageBox::Question, title, text, QMessageBox::Ok | QMessageBox::Cancel);
        box.exec();
    };
    table.addRatio("ConfirmPayment",
                   interleave(
                       seconds,
                       [&] {
                           driver.spent = 0;
                           const qint64 painted = firstPaint.measure([&] { ConfirmPayment(&driver, nullptr); });
                           return painted - driver.spent;
                       },
                       [&] { return firstPaint.measure(bare); }),
                   Aim);
}

} // namespace

void measureWindows(Table &table, double seconds)
{
    PreparedDriver driver;
    driver.settings = shopSettings("2", Operators);
    for (const Entry &entry : entries) {
        FirstPaint firstPaint;
        const auto open = [&] { entry.function(&driver, nullptr); };
        table.addRatio(entry.what, measureWindow(firstPaint, driver, seconds, open, entry.floor, nullptr), Aim);
    }
    measureConfirmation(table, driver, seconds);
    for (const SubDialog &subDialog : subDialogs) {
        table.addRatio(subDialog.what, measureSubDialog(subDialog, seconds), Aim);
    }
}
