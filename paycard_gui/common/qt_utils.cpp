// SPDX-License-Identifier: LGPL-2.1-or-later
#include "common/qt_utils.h"

#include "common/ipaycard.h"
#include "text/drivertext.h"
#include "toolkit/platforms.h"
#include "toolkit/texts.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QListWidget>
#include <QLocale>
#include <QTranslator>

#include <algorithm>
#include <optional>

namespace {

/// Sets the text codecs when the library is loaded, before anything of it is called.
const struct LoadTimeSetup
{
    LoadTimeSetup() { Toolkit::useUtf8Texts(); }
} loadTimeSetup;

struct MappingEntry
{
    explicit MappingEntry(const QString &text)
    {
        const auto colon = text.indexOf(QLatin1Char(':'));
        key = text.left(colon);
        value = colon < 0 ? QString() : text.mid(colon + 1);
    }
    QString key;
    QString value;
};

QStringList entriesOf(const QString &mapping)
{
    return Toolkit::splitSkippingEmpty(mapping, QLatin1Char(';'));
}

/// The first entry for which `matches` holds, empty pieces between semicolons included.
template <class Matches>
std::optional<MappingEntry> findEntry(const QString &mapping, Matches matches)
{
    const QStringList pieces = mapping.split(QLatin1Char(';'));
    for (const QString &piece : pieces) {
        const MappingEntry entry(piece);
        if (matches(entry)) {
            return entry;
        }
    }
    return std::nullopt;
}

/// Index of the first item with this data in this role, or -1. Compared as text: the toolkit compares an integer
/// with a text by number, so that 2 would find "02". No data is not the empty text.
int findItem(const QComboBox *combo, const QVariant &value, int role)
{
    const int count = combo ? combo->count() : 0;
    for (int i = 0; i < count; ++i) {
        const QVariant data = combo->itemData(i, role);
        if (data.isValid() == value.isValid() && data.toString() == value.toString()) {
            return i;
        }
    }
    return -1;
}

void setCurrent(QComboBox *combo, int index)
{
    if (combo) {
        combo->setCurrentIndex(index);
    }
}

/// The first buffer for a setting, in characters.
const std::size_t SettingBufferSize = 2048;

/// Reads a text into the buffer, which grows to exactly the length reported; as many characters count as the
/// driver's last answer says, but never more than there are.
template <class Get>
QString readSetting(std::vector<wchar_t> &buffer, Get get)
{
    const DriverText::Lengths lengths = DriverText::read(buffer, 0, get);
    const int length = DriverText::isCredible(lengths.first) ? lengths.last : 0;
    return QString::fromWCharArray(buffer.data(), std::max(0, std::min(length, static_cast<int>(buffer.size()))));
}

QString readValue(NOX::IVELBase *driver, const wchar_t *name, std::vector<wchar_t> &buffer)
{
    return readSetting(buffer,
                       [=](wchar_t *characters, int size) { return driver->getSettingValue(name, characters, size); });
}

} // namespace

QString QComboGetSelection(QComboBox *combo)
{
    return combo && combo->currentIndex() >= 0 ? cmbDataStr(combo) : QString();
}

QString cmbDataStr(QComboBox *combo, int role)
{
    return combo && combo->currentIndex() >= 0 ? combo->itemData(combo->currentIndex(), role).toString()
                                               : QString::fromLatin1("");
}

int cmbData(QComboBox *combo, int role)
{
    if (!combo || combo->currentIndex() < 0) {
        return -1;
    }
    // A variant cuts the number of a text that is too large, where the text itself gives 0.
    const QVariant data = combo->itemData(combo->currentIndex(), role);
    return Toolkit::typeOf(data) == QMetaType::QString ? data.toString().toInt() : data.toInt();
}

int QComboCanSelect(QComboBox *combo, const QString &text)
{
    return findItem(combo, text, Qt::UserRole);
}

int QComboCanSelect(QComboBox *combo, int value)
{
    return QComboCanSelect(combo, QString::number(value));
}

void QComboSelect(QComboBox *combo, const QVariant &value)
{
    setCurrent(combo, findItem(combo, value, Qt::UserRole));
}

void QComboSelect(QComboBox *combo, const QString &text)
{
    QComboSelect(combo, QVariant(text));
}

void QComboSelect(QComboBox *combo, int value)
{
    QComboSelect(combo, QString::number(value));
}

void QComboSelect(QComboBox *combo, const wchar_t *text)
{
    QComboSelect(combo, QString::fromWCharArray(text));
}

void QComboSelectIfCan(QComboBox *combo, const QString &value, const QString &fallback)
{
    QComboSelect(combo, QComboCanSelect(combo, value) >= 0 ? value : fallback);
}

void QComboSelectWithText(QComboBox *combo, const QString &text)
{
    setCurrent(combo, findItem(combo, text, Qt::DisplayRole));
}

void strToComboBox(QComboBox *combo, const QString &mapping, bool showKey)
{
    if (!combo) {
        return;
    }
    combo->clear();
    const QStringList pieces = entriesOf(mapping);
    for (const QString &piece : pieces) {
        const MappingEntry entry(piece);
        combo->addItem(showKey ? QString::fromLatin1("%1 - %2").arg(entry.key, entry.value) : entry.value, entry.key);
    }
}

int WStrToQCombo(QComboBox *combo, const wchar_t *mapping, const wchar_t *currentKey)
{
    const QString fixedKey = QString::fromLatin1("FIXED");
    QString rest = mapping ? QString::fromWCharArray(mapping) : QString();
    QString current;
    const auto at = rest.indexOf(QLatin1Char('@'));
    if (at >= 0) {
        current = rest.left(at);
        rest = rest.mid(at + 1);
    }
    if (currentKey) {
        current = QString::fromWCharArray(currentKey);
    }

    combo->clear();
    int selected = 0;
    for (decltype(rest.size()) start = 0, end = 0; start < rest.size(); start = end + 1) {
        const auto colon = rest.indexOf(QLatin1Char(':'), start);
        end = colon < 0 ? -1 : rest.indexOf(QLatin1Char(';'), colon);
        if (end < 0) {
            break;
        }
        const QString key = rest.mid(start, colon - start);
        if (key == fixedKey) {
            current = fixedKey;
        }
        if (key == current) {
            selected = combo->count();
        }
        combo->addItem(rest.mid(colon + 1, end - colon - 1), key);
    }
    combo->setCurrentIndex(selected);
    combo->setEnabled(current != fixedKey);
    return 0;
}

int WStrToQListWidget(QListWidget *list, const QString &devices)
{
    const QStringList pieces = entriesOf(devices);
    for (const QString &piece : pieces) {
        const MappingEntry entry(piece);
        const QStringList keys = Toolkit::splitSkippingEmpty(entry.key, QLatin1Char('$'));
        QListWidgetItem *item = new QListWidgetItem(entry.value);
        item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
        item->setCheckState(Qt::Checked);
        item->setData(Qt::UserRole, keys.value(0));
        if (keys.size() == 2 && keys.first() == QLatin1String("TTY")) {
            item->setData(Qt::UserRole + 1, keys.last());
        }
        list->addItem(item);
    }
    return 0;
}

int QStringToWChar(const QString &text, std::vector<wchar_t> &buffer)
{
    const std::wstring wide = Toolkit::wideText(text);
    buffer.assign(static_cast<std::size_t>(text.size()) + 1, L'\0');
    std::copy(wide.begin(), wide.end(), buffer.begin());
    return static_cast<int>(wide.size());
}

void parseMapping(const QString &mapping, QMap<QString, QString> &map)
{
    const QStringList pieces = entriesOf(mapping);
    for (const QString &piece : pieces) {
        const MappingEntry entry(piece);
        map.insert(entry.key, entry.value);
    }
}

QString mappingKey(QString mapping, const QString &value) // NOLINT(performance-unnecessary-value-param)
{
    const auto entry = findEntry(mapping, [&](const MappingEntry &e) { return e.value == value; });
    return entry ? entry->key : QString();
}

QString mappingValue(QString mapping, const QString &key) // NOLINT(performance-unnecessary-value-param)
{
    QString value;
    GetValueFromMappingKey(mapping, key, value);
    return value;
}

bool GetValueFromMappingKey(const QString &mapping, const QString &key, QString &value)
{
    const auto entry = findEntry(mapping, [&](const MappingEntry &e) { return e.key == key; });
    if (entry) {
        value = entry->value;
    }
    return entry.has_value();
}

bool GetValueFromMappingKey(const QString &mapping, int key, QString &value)
{
    return GetValueFromMappingKey(mapping, QString::number(key), value);
}

int GetKeyFromMappingValue(const QString &mapping, const QString &value)
{
    const auto colon = mapping.indexOf(QLatin1Char(':') + value + QLatin1Char(';'));
    if (colon <= 0) {
        return -1;
    }
    const auto start = mapping.lastIndexOf(QLatin1Char(';'), colon) + 1;
    return mapping.mid(start, colon - start).toInt();
}

QString readCurrentSetting(NOX::IVELBase *driver, const wchar_t *name)
{
    std::vector<wchar_t> buffer(SettingBufferSize);
    return readValue(driver, name, buffer);
}

QString readDescriptionOfCurrentSetting(NOX::IVELBase *driver, const wchar_t *name)
{
    std::vector<wchar_t> buffer(SettingBufferSize);
    const QString choices = readSetting(
        buffer, [=](wchar_t *characters, int size) { return driver->getSettingChoices(name, characters, size); });
    QString description;
    GetValueFromMappingKey(choices, readValue(driver, name, buffer), description);
    return description;
}

QString defaultDeviceName(NOX::IVELBase *driver)
{
    const QString model = readDescriptionOfCurrentSetting(driver, L"Model");
    const QString port = readDescriptionOfCurrentSetting(driver, L"Port");
    if (port == QString::fromWCharArray(L"Файл устройства")) {
        const QString suffix = readCurrentSetting(driver, L"TTYSuffix");
        return QObject::tr("%1 (%2 %3)").arg(model, suffix, readDescriptionOfCurrentSetting(driver, L"BaudRate"));
    }
    if (port == QLatin1String("TCP/IP") || port == QLatin1String("UDP/IP")) {
        const QString address = readCurrentSetting(driver, L"IPAddress");
        return QObject::tr("%1 (%2:%3)").arg(model, address, readCurrentSetting(driver, L"IPPort"));
    }
    if (port.startsWith(QLatin1String("COM"))) {
        return QObject::tr("%1 (%2 %3)").arg(model, port, readDescriptionOfCurrentSetting(driver, L"BaudRate"));
    }
    if (port == QLatin1String("Bluetooth")) {
        return QObject::tr("%1 (%2)").arg(model, readCurrentSetting(driver, L"MACAddress"));
    }
    if (port.startsWith(QLatin1String("USB:"))) {
        return QObject::tr("%1 (%2)").arg(model, port);
    }
    return QDateTime::currentDateTime().toString(QString::fromLatin1("yyyy.MM.dd HH:mm:ss.zzz"));
}

QString appDir()
{
    static QString directory;
    if (QCoreApplication::instance()) {
        directory = QCoreApplication::applicationDirPath() + QDir::separator();
    }
    return directory;
}

QString configDir()
{
    static const QString directory = QDir::homePath() + QDir::separator() + QObject::tr(".orma") + QDir::separator() +
                                     QObject::tr("drivers9") + QDir::separator();
    return directory;
}

void installTranslator(QCoreApplication & /*application*/)
{
    static QTranslator translator;
    static bool loaded = false;
    if (!loaded) {
        // A translator whose loading fails loses what it had, so one that is loaded is left alone.
        const QString file = QString::fromLatin1("qt_") + QLocale::system().name();
        loaded = translator.load(file, Toolkit::translationsDirectory()) ||
                 translator.load(file, appDir() + QString::fromLatin1("translations/"));
    }
    if (loaded) {
        QCoreApplication::removeTranslator(&translator);
        QCoreApplication::installTranslator(&translator);
    }
}
