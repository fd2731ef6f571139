// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef QTCOMPAT_H
#define QTCOMPAT_H

#include <QApplication>
#include <QFileDialog>
#include <QLibraryInfo>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QXmlStreamReader>

#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
#include <QWindow>
#endif

#if QT_VERSION < QT_VERSION_CHECK(5, 0, 0)
#include <QTextCodec>
#include <QTextDocument>
#endif

/// Everything in which the toolkit releases differ for this library; no other file asks for the version.

/// QDialog::exec() is virtual from Qt 5 on.
#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
#define PAYCARD_OVERRIDES_EXEC override
#else
#define PAYCARD_OVERRIDES_EXEC
#endif

namespace QtCompat {

inline QStringList splitSkippingEmpty(const QString &text, QChar separator)
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 14, 0)
    return text.split(separator, Qt::SkipEmptyParts);
#else
    return text.split(separator, QString::SkipEmptyParts);
#endif
}

/// The text as rich text that shows it literally.
inline QString escaped(const QString &text)
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
    return text.toHtmlEscaped();
#else
    return Qt::escape(text);
#endif
}

inline bool isDouble(const QVariant &value)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    return value.typeId() == QMetaType::Double;
#else
    return value.type() == QVariant::Double;
#endif
}

/// Bounds what one entity may unfold to, in characters. False where the release knows no bound.
inline bool boundEntities(QXmlStreamReader &reader, int characters)
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 15, 0)
    reader.setEntityExpansionLimit(characters);
    return true;
#else
    Q_UNUSED(reader);
    Q_UNUSED(characters);
    return false;
#endif
}

/// The directory of the toolkit's own translation files.
inline QString translationsDirectory()
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    return QLibraryInfo::path(QLibraryInfo::TranslationsPath);
#else
    return QLibraryInfo::location(QLibraryInfo::TranslationsPath);
#endif
}

/// Makes the dialog choose a directory and show nothing else. Setting the mode clears the option on Qt 5, and
/// the mode that stands for both is gone from Qt 6.
inline void chooseDirectoriesOnly(QFileDialog &dialog)
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
    dialog.setFileMode(QFileDialog::Directory);
    dialog.setOption(QFileDialog::ShowDirsOnly);
#else
    dialog.setFileMode(QFileDialog::DirectoryOnly);
#endif
}

/// Keeps a window without a parent above the application's active window, which may be a full-screen one that
/// stays on top. The oldest release does so by itself.
inline void keepAboveActiveWindow(QWidget &window)
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
    const QWidget *active = QApplication::activeWindow();
    if (active && !window.parentWidget()) {
        window.winId(); // gives it the handle that is asked for next
        window.windowHandle()->setTransientParent(active->windowHandle());
    }
#else
    Q_UNUSED(window);
#endif
}

/// Makes source texts and plain byte strings UTF-8 in the whole process. From Qt 5 on that is a fact of the
/// toolkit and there is nothing to set.
inline void useUtf8Texts()
{
#if QT_VERSION < QT_VERSION_CHECK(5, 0, 0)
    QTextCodec *utf8 = QTextCodec::codecForName("utf-8");
    QTextCodec::setCodecForTr(utf8);
    QTextCodec::setCodecForCStrings(utf8);
#endif
}

} // namespace QtCompat

#endif
