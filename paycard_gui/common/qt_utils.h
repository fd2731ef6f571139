// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef QT_UTILS_H
#define QT_UTILS_H

#include "common/paycard_export.h"

#include <QMap>
#include <QString>
#include <QVariant>

#include <vector>

class QComboBox;
class QCoreApplication;
class QListWidget;

namespace NOX {
class IVELBase;
}

/// \file
/// Helpers shared by the driver family's graphical modules. They report failure by their result and never
/// throw on their own account.
///
/// A mapping list is a text of entries "key:value;". A key holds neither colon nor semicolon, a value no
/// semicolon; there is no escaping. Combo boxes filled from one show the values and keep the keys, as text,
/// under Qt::UserRole. Keys and texts are compared exactly and case-sensitively.

/// \name The current item of a combo box
///@{

/// Key of the current item; a null text when none is current.
PAYCARD_EXPORT QString QComboGetSelection(QComboBox *combo);
/// The current item's data as text; empty when none is current or `combo` is null.
PAYCARD_EXPORT QString cmbDataStr(QComboBox *combo, int role = Qt::UserRole);
/// The current item's data as a number (0 if it is none); -1 when none is current or `combo` is null.
PAYCARD_EXPORT int cmbData(QComboBox *combo, int role = Qt::UserRole);
/// Index of the first item with this key, or -1.
PAYCARD_EXPORT int QComboCanSelect(QComboBox *combo, const QString &text);
/// The same for a number as the key.
PAYCARD_EXPORT int QComboCanSelect(QComboBox *combo, int value);
/// Makes the first item with this key current. Without one, none is current afterwards.
PAYCARD_EXPORT void QComboSelect(QComboBox *combo, const QVariant &value);
/// The same for a text as the key.
PAYCARD_EXPORT void QComboSelect(QComboBox *combo, const QString &text);
/// The same for a number as the key.
PAYCARD_EXPORT void QComboSelect(QComboBox *combo, int value);
/// The same for a text of the driver as the key.
PAYCARD_EXPORT void QComboSelect(QComboBox *combo, const wchar_t *text);
/// Selects by `value` if an item has this key, otherwise by `fallback`.
PAYCARD_EXPORT void QComboSelectIfCan(QComboBox *combo, const QString &value, const QString &fallback);
/// Like QComboSelect(), by the text shown.
PAYCARD_EXPORT void QComboSelectWithText(QComboBox *combo, const QString &text);

///@}
/// \name Widgets filled from mapping lists
///@{

/// Replaces the items of the combo box by the list's entries, shown as the value or, with `showKey`, as
/// "key - value". The first one is current then. Does nothing when `combo` is null.
PAYCARD_EXPORT void strToComboBox(QComboBox *combo, const QString &mapping, bool showKey);
/// Replaces the items of the combo box by those of a wide list, which the current key and an at-sign may
/// precede: "2@1:A;2:B;". `currentKey` replaces that key unless null. Selects the item with the current key,
/// or the first. An entry with the key "FIXED" is selected and locks the choice. An entry without its closing
/// semicolon is dropped. Returns 0.
PAYCARD_EXPORT int WStrToQCombo(QComboBox *combo, const wchar_t *mapping, const wchar_t *currentKey);
/// Appends a ticked item for each device of the list. Its key is kept under Qt::UserRole; of a key "TTY$n",
/// "TTY" is, and "n" in the role after it. Returns 0.
PAYCARD_EXPORT int WStrToQListWidget(QListWidget *list, const QString &devices);

///@}
/// \name Texts and mapping lists
///@{

/// Replaces the buffer's contents by the text, in wide characters, and zeros: it gets one element more than the text
/// has UTF-16 code units. Returns the number of wide characters.
PAYCARD_EXPORT int QStringToWChar(const QString &text, std::vector<wchar_t> &buffer);
/// Adds the list's entries to the map, where a later entry of the same key replaces the earlier one.
PAYCARD_EXPORT void parseMapping(const QString &mapping, QMap<QString, QString> &map);
/// Key of the first entry with this value; empty if there is none.
PAYCARD_EXPORT QString mappingKey(QString mapping, const QString &value);
/// Value of the first entry with this key; empty if there is none.
PAYCARD_EXPORT QString mappingValue(QString mapping, const QString &key);
/// True, with the value of the first entry with this key, if there is one; otherwise `value` is left alone.
PAYCARD_EXPORT bool GetValueFromMappingKey(const QString &mapping, const QString &key, QString &value);
/// The same for a number as the key.
PAYCARD_EXPORT bool GetValueFromMappingKey(const QString &mapping, int key, QString &value);
/// Numeric key (0 if it is none) of the first entry with this value; -1 if there is none. Only entries with
/// their closing semicolon count.
PAYCARD_EXPORT int GetKeyFromMappingValue(const QString &mapping, const QString &value);

///@}
/// \name A device's settings, asked of its driver
///@{

/// Current value of the named setting: as many characters as the driver's last answer says.
PAYCARD_EXPORT QString readCurrentSetting(NOX::IVELBase *driver, const wchar_t *name);
/// Caption of the current value in the setting's list of choices; a null text when it is not listed.
PAYCARD_EXPORT QString readDescriptionOfCurrentSetting(NOX::IVELBase *driver, const wchar_t *name);
/// A name for the device from its model and connection; the local time when the kind of port is unknown.
PAYCARD_EXPORT QString defaultDeviceName(NOX::IVELBase *driver);

///@}
/// \name The process
///@{

/// The application object. Created if there is none, then never destroyed, and the library stays loaded; the
/// locale of the process stays as it was. Null when none can be created: there is no display to connect to, the
/// process has loaded another major release of the toolkit, or it ends and its application object has gone.
PAYCARD_EXPORT QCoreApplication *app();
/// Directory of the application's executable with a separator at the end; the last one known while there is
/// no application object.
PAYCARD_EXPORT QString appDir();
/// The driver family's configuration directory of this user with a separator at the end. The same on every
/// call; neither created nor tested for existence.
PAYCARD_EXPORT QString configDir();
/// Installs the toolkit's own translation for the system's language, if there is one.
PAYCARD_EXPORT void installTranslator(QCoreApplication &application);
/// Registers the library's images, as loading the library does. Returns 1.
PAYCARD_EXPORT int qInitResources_paycard_gui();
/// Takes the registration back, as unloading the library does. Returns 1.
PAYCARD_EXPORT int qCleanupResources_paycard_gui();

///@}

#endif
