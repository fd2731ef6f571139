// SPDX-License-Identifier: LGPL-2.1-or-later
#include "contents.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QSpinBox>
#include <QStackedWidget>
#include <QTextDocument>
#include <QTextEdit>
#include <QTreeWidget>

namespace {

typedef std::function<void(QWidget *)> Fill;

/// What fills a widget of the same class with what this one shows; nothing for a widget of another class.
template <class Widget, class Get, class Set>
Fill copied(QWidget *widget, Get get, Set set)
{
    Widget *source = qobject_cast<Widget *>(widget);
    if (!source) {
        return nullptr;
    }
    const auto value = get(source);
    return [=](QWidget *target) { set(static_cast<Widget *>(target), value); };
}

QStringList comboTexts(const QComboBox *combo)
{
    // The first one is the current one.
    QStringList texts(combo->currentText());
    for (int i = 0; i < combo->count(); ++i) {
        texts.append(combo->itemText(i));
    }
    return texts;
}

void setComboTexts(QComboBox *combo, const QStringList &texts)
{
    combo->addItems(texts.mid(1));
    combo->setCurrentText(texts.first());
}

QStringList listTexts(const QListWidget *list)
{
    QStringList texts;
    for (int i = 0; i < list->count(); ++i) {
        texts.append(list->item(i)->text());
    }
    return texts;
}

/// Rows with the texts of the cells; a cell may hold a label instead.
QList<QStringList> treeTexts(QTreeWidget *tree)
{
    QList<QStringList> rows;
    for (int i = 0; i < tree->topLevelItemCount(); ++i) {
        QTreeWidgetItem *item = tree->topLevelItem(i);
        QStringList row;
        for (int column = 0; column < tree->columnCount(); ++column) {
            const QLabel *label = qobject_cast<QLabel *>(tree->itemWidget(item, column));
            row.append(label ? label->text() : item->text(column));
        }
        rows.append(row);
    }
    return rows;
}

void setTreeTexts(QTreeWidget *tree, const QList<QStringList> &rows)
{
    for (const QStringList &row : rows) {
        QTreeWidgetItem *item = new QTreeWidgetItem(tree);
        for (int column = 0; column < row.size(); ++column) {
            if (Qt::mightBeRichText(row.at(column))) {
                tree->setItemWidget(item, column, new QLabel(row.at(column)));
            } else {
                item->setText(column, row.at(column));
            }
        }
    }
}

Fill fillFrom(QWidget *widget)
{
    const Fill fills[] = {
        copied<QLabel>(
            widget, [](auto *w) { return w->text(); }, [](auto *w, auto &text) { w->setText(text); }),
        copied<QLineEdit>(
            widget, [](auto *w) { return w->text(); }, [](auto *w, auto &text) { w->setText(text); }),
        copied<QTextEdit>(
            widget, [](auto *w) { return w->toPlainText(); }, [](auto *w, auto &text) { w->setPlainText(text); }),
        copied<QSpinBox>(
            widget, [](auto *w) { return w->value(); }, [](auto *w, int value) { w->setValue(value); }),
        copied<QDoubleSpinBox>(
            widget, [](auto *w) { return w->value(); }, [](auto *w, double value) { w->setValue(value); }),
        copied<QCheckBox>(
            widget, [](auto *w) { return w->isChecked(); }, [](auto *w, bool on) { w->setChecked(on); }),
        copied<QStackedWidget>(
            widget, [](auto *w) { return w->currentIndex(); }, [](auto *w, int index) { w->setCurrentIndex(index); }),
        copied<QComboBox>(widget, comboTexts, setComboTexts),
        copied<QListWidget>(widget, listTexts, [](auto *w, auto &texts) { w->addItems(texts); }),
        copied<QTreeWidget>(widget, treeTexts, setTreeTexts),
    };
    for (const Fill &fill : fills) {
        if (fill) {
            return fill;
        }
    }
    return nullptr;
}

} // namespace

Contents::Contents(const QWidget *window) : size(window->size())
{
    const QList<QWidget *> widgets = window->findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        const Fill fillWidget = fillFrom(widget);
        // The toolkit names the parts of its own widgets, too.
        if (fillWidget && !widget->objectName().isEmpty() && !widget->objectName().startsWith("qt_")) {
            fill.insert(widget->objectName(), fillWidget);
        }
    }
}

void Contents::applyTo(QWidget *window) const
{
    const QList<QWidget *> widgets = window->findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        const auto found = fill.constFind(widget->objectName());
        if (found != fill.constEnd()) {
            (*found)(widget);
        }
    }
    window->resize(size);
}
