// SPDX-License-Identifier: LGPL-2.1-or-later
#include "testing/cashier.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QPixmap>
#include <QStringList>

namespace {

/// What it is called, for people: without the mark of its key.
QString caption(const QAbstractButton *button)
{
    return button->text().remove(QLatin1Char('&'));
}

QAbstractButton *findButton(const QWidget *window, const QString &nameOrCaption)
{
    const QList<QAbstractButton *> buttons = window->findChildren<QAbstractButton *>();
    QAbstractButton *captioned = nullptr;
    for (QAbstractButton *button : buttons) {
        if (button->objectName() == nameOrCaption) {
            return button;
        }
        if (!captioned && caption(button) == nameOrCaption) {
            captioned = button;
        }
    }
    return captioned;
}

/// Why it cannot be pressed. The captions that are there show a letter of another alphabet that looks the same.
QString whyNotPressed(const QWidget *window, const QString &nameOrCaption)
{
    if (findButton(window, nameOrCaption)) {
        return QString::fromLatin1("\"%1\" is disabled").arg(nameOrCaption);
    }
    QStringList captions;
    const QList<QAbstractButton *> buttons = window->findChildren<QAbstractButton *>();
    for (const QAbstractButton *button : buttons) {
        if (button->isVisible() && !caption(button).isEmpty()) {
            captions.append(QString::fromLatin1("\"%1\"").arg(caption(button)));
        }
    }
    const QString missing = QString::fromLatin1("there is no button \"%1\"").arg(nameOrCaption);
    return captions.isEmpty()
               ? missing
               : QString::fromLatin1("%1; there are %2").arg(missing, captions.join(QLatin1String(", ")));
}

/// A label's text as people would say it.
QString spoken(const QLabel *label)
{
    QString text = label->text().remove(QLatin1Char('&')).simplified();
    if (text.endsWith(QLatin1Char(':'))) {
        text.chop(1);
    }
    return text;
}

/// A widget of the window that can be seen.
QWidget *find(QWidget *window, const QString &nameOrLabel)
{
    const QList<QWidget *> widgets = window->findChildren<QWidget *>();
    QWidget *labelled = nullptr;
    for (QWidget *widget : widgets) {
        const QLabel *label = qobject_cast<QLabel *>(widget);
        if (!widget->isVisible()) {
            continue;
        }
        if (widget->objectName() == nameOrLabel) {
            return widget;
        }
        if (!labelled && widget->accessibleName() == nameOrLabel) {
            labelled = widget;
        } else if (!labelled && label && label->buddy() && spoken(label) == nameOrLabel) {
            labelled = label->buddy();
        }
    }
    if (!labelled) {
        throw ModalScript::Impossible{QString::fromLatin1("there is no \"%1\"").arg(nameOrLabel)};
    }
    return labelled;
}

QWidget *findEnabled(QWidget *window, const QString &nameOrLabel)
{
    QWidget *widget = find(window, nameOrLabel);
    if (!widget->isEnabled()) {
        throw ModalScript::Impossible{QString::fromLatin1("\"%1\" is disabled").arg(nameOrLabel)};
    }
    return widget;
}

void strike(QWidget *widget, int code, const QString &text = QString(), Qt::KeyboardModifiers modifiers = {})
{
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, code, modifiers, text);
        QApplication::sendEvent(widget, &event);
    }
}

QString shownBy(const QWidget *widget)
{
    if (const auto *view = qobject_cast<const QAbstractItemView *>(widget)) {
        return view->currentIndex().data().toString();
    }
    if (widget->property("checkable").toBool()) {
        return widget->property("checked").toString();
    }
    for (const char *property : {"currentText", "plainText", "text"}) {
        const QVariant text = widget->property(property);
        if (text.isValid()) {
            return text.toString();
        }
    }
    throw ModalScript::Impossible{QString::fromLatin1("\"%1\" shows no text of its own").arg(widget->objectName())};
}

QPixmap picture(QWidget &widget)
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
    return widget.grab();
#else
    return QPixmap::grabWidget(&widget);
#endif
}

} // namespace

bool Cashier::tryPress(QWidget *window, const QString &button)
{
    QAbstractButton *found = findButton(window, button);
    return found && found->isEnabled() && QMetaObject::invokeMethod(found, "click", Qt::QueuedConnection);
}

ModalScript::Step Cashier::press(const QString &button)
{
    return [=](QWidget *window) {
        if (!tryPress(window, button)) {
            throw ModalScript::Impossible{whyNotPressed(window, button)};
        }
    };
}

ModalScript::Step Cashier::key(Qt::Key code)
{
    return [=](QWidget *window) {
        QWidget *widget = window->focusWidget() ? window->focusWidget() : window;
        for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QApplication::postEvent(widget, new QKeyEvent(type, code, Qt::NoModifier));
        }
    };
}

ModalScript::Step Cashier::type(const QString &input, const QString &text)
{
    return [=](QWidget *window) {
        QWidget *widget = findEnabled(window, input);
        widget->setFocus(Qt::OtherFocusReason);
        strike(widget, Qt::Key_A, QString(), Qt::ControlModifier);
        strike(widget, Qt::Key_Delete);
        for (int i = 0; i < text.size(); ++i) {
            const int length = text.at(i).isHighSurrogate() ? 2 : 1;
            strike(widget, text.at(i) == QLatin1Char('\n') ? Qt::Key_Return : Qt::Key_unknown, text.mid(i, length));
            i += length - 1;
        }
    };
}

ModalScript::Step Cashier::choose(const QString &list, const QString &item)
{
    return [=](QWidget *window) {
        QWidget *widget = findEnabled(window, list);
        auto *combo = qobject_cast<QComboBox *>(widget);
        auto *view = qobject_cast<QAbstractItemView *>(widget);
        const QAbstractItemModel *model = combo ? combo->model() : view ? view->model() : nullptr;
        const QModelIndexList found =
            model ? model->match(model->index(0, 0), Qt::DisplayRole, item, 1, Qt::MatchExactly) : QModelIndexList();
        if (found.isEmpty()) {
            throw ModalScript::Impossible{QString::fromLatin1("\"%1\" has no item \"%2\"").arg(list, item)};
        }
        if (view) {
            view->setCurrentIndex(found.first());
        } else {
            combo->setCurrentIndex(found.first().row());
            QMetaObject::invokeMethod(combo, "activated", Q_ARG(int, combo->currentIndex()));
        }
    };
}

ModalScript::Step Cashier::read(const QString &widget, QString *text)
{
    return [=](QWidget *window) { *text = shownBy(widget.isEmpty() ? window : find(window, widget)); };
}

ModalScript::Step Cashier::photograph(const QString &file)
{
    return [=](QWidget *window) {
        if (!picture(*window).save(file)) {
            throw ModalScript::Impossible{QString::fromLatin1("%1 cannot be written").arg(file)};
        }
    };
}

ModalScript::Step Cashier::close()
{
    return [](QWidget *window) { window->close(); };
}
