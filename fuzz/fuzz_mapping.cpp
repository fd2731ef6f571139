// SPDX-License-Identifier: LGPL-2.1-or-later
//
// Mapping lists. The lines of the input are the list, a text to look for in it, and a current key.
#include "common/qt_utils.h"
#include "require.h"

#include <QApplication>
#include <QByteArray>
#include <QComboBox>
#include <QListWidget>

#include <cstddef>
#include <cstdint>

namespace {

std::vector<wchar_t> wide(const QString &text)
{
    std::vector<wchar_t> buffer;
    const int length = QStringToWChar(text, buffer);
    REQUIRE(length >= 0 && buffer.at(static_cast<std::size_t>(length)) == L'\0');
    REQUIRE(QString::fromWCharArray(buffer.data(), length) == text);
    return buffer;
}

void checkLookUps(const QString &mapping, const QString &wanted)
{
    QMap<QString, QString> map;
    parseMapping(mapping, map);
    for (auto entry = map.cbegin(); entry != map.cend(); ++entry) {
        // Of entries with one key the first is found, the last is in the map.
        QString found;
        REQUIRE(GetValueFromMappingKey(mapping, entry.key(), found));
        REQUIRE(mappingValue(mapping, entry.key()) == found);
        REQUIRE(mappingValue(mapping, mappingKey(mapping, entry.value())) == entry.value() ||
                GetValueFromMappingKey(mapping, mappingKey(mapping, entry.value()), found));
    }

    QString value = wanted;
    if (!GetValueFromMappingKey(mapping, wanted, value)) {
        REQUIRE(value == wanted);
        REQUIRE(!map.contains(wanted));
        REQUIRE(mappingValue(mapping, wanted).isEmpty());
    }
    REQUIRE(GetKeyFromMappingValue(mapping, wanted) == -1 || mapping.contains(':' + wanted + ';'));
    const int number = wanted.toInt();
    REQUIRE(GetValueFromMappingKey(mapping, number, value) ==
            GetValueFromMappingKey(mapping, QString::number(number), value));
}

/// Whatever the list was, each key in the combo box can be selected, and is what is then read.
void checkItems(QComboBox &combo)
{
    for (int i = 0; i < combo.count(); ++i) {
        const QString key = combo.itemData(i).toString();
        const int index = QComboCanSelect(&combo, key);
        REQUIRE(index >= 0 && index <= i);
        QComboSelect(&combo, key);
        REQUIRE(combo.currentIndex() == index);
        REQUIRE(QComboGetSelection(&combo) == key && cmbDataStr(&combo) == key);
        bool isNumber = false;
        const int number = key.toInt(&isNumber);
        REQUIRE(!isNumber || cmbData(&combo) == number);
        QComboSelectWithText(&combo, combo.itemText(i));
        REQUIRE(combo.currentText() == combo.itemText(i));
    }
}

void checkNarrow(QComboBox &combo, const QString &mapping, const QString &wanted)
{
    QMap<QString, QString> map;
    parseMapping(mapping, map);
    for (const bool showKey : {false, true}) {
        strToComboBox(&combo, mapping, showKey);
        REQUIRE(combo.currentIndex() == (combo.count() > 0 ? 0 : -1));
        for (auto entry = map.cbegin(); entry != map.cend(); ++entry) {
            REQUIRE(QComboCanSelect(&combo, entry.key()) >= 0);
        }
        checkItems(combo);
        QComboSelectIfCan(&combo, wanted, QString::fromLatin1("none:such"));
        REQUIRE(map.contains(wanted) ? cmbDataStr(&combo) == wanted : combo.currentIndex() == -1);
    }
}

void checkWide(QComboBox &combo, const QString &mapping, const QString &current)
{
    const QString fixed = QString::fromLatin1("FIXED");
    // Wide texts end at their first zero.
    const QString key = current.left(current.indexOf(QChar()));
    REQUIRE(WStrToQCombo(&combo, wide(mapping).data(), wide(current).data()) == 0);
    REQUIRE((combo.currentIndex() >= 0) == (combo.count() > 0));
    const bool locked = QComboCanSelect(&combo, fixed) >= 0 || key == fixed;
    REQUIRE(combo.isEnabled() != locked);
    if (QComboCanSelect(&combo, fixed) >= 0) {
        REQUIRE(cmbDataStr(&combo) == fixed);
    } else if (QComboCanSelect(&combo, key) >= 0) {
        REQUIRE(cmbDataStr(&combo) == key);
    } else {
        REQUIRE(combo.currentIndex() <= 0);
    }
    checkItems(combo);

    REQUIRE(WStrToQCombo(&combo, wide(mapping).data(), nullptr) == 0);
    REQUIRE((combo.currentIndex() >= 0) == (combo.count() > 0));
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    new QApplication(*argc, *argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray input(reinterpret_cast<const char *>(data), static_cast<int>(size));
    const QList<QByteArray> lines = input.split('\n');
    const QString mapping = QString::fromUtf8(lines.value(0));
    const QString wanted = QString::fromUtf8(lines.value(1));
    const QString current = QString::fromUtf8(lines.value(2));

    static QComboBox combo;
    static QListWidget list;
    checkLookUps(mapping, wanted);
    checkNarrow(combo, mapping, wanted);
    checkWide(combo, mapping, current);

    list.clear();
    REQUIRE(WStrToQListWidget(&list, mapping) == 0);
    for (int i = 0; i < list.count(); ++i) {
        REQUIRE(list.item(i)->checkState() == Qt::Checked);
    }
    return 0;
}
