// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QLabel>

/// The line of a window that says what is wrong: red, of as many lines as it takes, and as wide as the window is. While
/// the palette is dark it has a background of its own, since its red could not be read on that of the window.
class ErrorLine : public QLabel
{
    Q_OBJECT
    /// What stands before each error.
    Q_PROPERTY(QString prefix READ prefix WRITE setPrefix)

public:
    explicit ErrorLine(QWidget *parent = nullptr);

    const QString &prefix() const { return beforeError; }
    void setPrefix(const QString &text);

    /// Shows the error, or none. The window grows as high as it then needs to be; in one that is open a new error is
    /// announced to a screen reader, too (with a window that opens its error is read anyway).
    void setError(const QString &error);

signals:
    void changed();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QString beforeError;
};
