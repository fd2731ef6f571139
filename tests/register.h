// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef REGISTER_H
#define REGISTER_H

#include "common/qnoxsettings.h"
#include "paycard_gui.h"
#include "testing/cashier.h"
#include "testing/simulateddriver.h"

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QMessageBox>
#include <QtTest>

#include <utility>

using Cashier::choose;
using Cashier::key;
using Cashier::press;
using Cashier::type;

typedef int (*EntryPoint)(NOX::PayCard::IPayCard *, QWidget *);
typedef std::vector<std::pair<QString, QVariant>> Values;

/// The text of a document with these values.
inline QString document(const Values &values)
{
    QNoxSettings settings;
    for (const auto &value : values) {
        settings.set(value.first, value.second);
    }
    return settings.toXml(2);
}

/// A child that the test cannot do without.
template <class Widget>
Widget *child(QWidget *window, const char *name)
{
    Widget *widget = window->findChild<Widget *>(QString::fromLatin1(name));
    if (!widget) {
        qFatal("%s has no %s", window->metaObject()->className(), name);
    }
    return widget;
}

/// Whether the toolkit has made it for a spin or combo box.
inline bool isPartOfInput(const QWidget *widget)
{
    const QObject *parent = widget->parent();
    return qobject_cast<const QAbstractSpinBox *>(parent) || qobject_cast<const QComboBox *>(parent);
}

/// A register at work: the simulated driver, and a cashier or technician who plays the steps.
class Register
{
public:
    explicit Register(const Values &settings = {}) { driver.replaceSettings(document(settings), nullptr); }

    int run(EntryPoint function, const std::vector<ModalScript::Step> &steps, QWidget *parent = nullptr)
    {
        ModalScript script(steps);
        const int result = script.run([&] { return function(&driver, parent); });
        if (!mayEndEarly && !script.completed()) {
            QTest::qFail(qPrintable(script.problem()), __FILE__, __LINE__);
        }
        return result;
    }

    QVariant stored(const char *name) const { return QNoxSettings(driver.settings()).get(QString::fromLatin1(name)); }

    int calls(const char *operation) const
    {
        int count = 0;
        for (const DriverCall &call : driver.journal()) {
            count += call.operation == QLatin1String(operation) ? 1 : 0;
        }
        return count;
    }

    SimulatedDriver driver;
    /// Whether a run may leave steps unplayed or windows open. Otherwise that fails the test.
    bool mayEndEarly = false;
};

#endif
