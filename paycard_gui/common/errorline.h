// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef ERRORLINE_H
#define ERRORLINE_H

#include <QLabel>

/// A window's error line. Its red cannot be read on the background of a dark palette, so there it brings its own.
class ErrorLine : public QLabel
{
public:
    using QLabel::QLabel;

protected:
    void paintEvent(QPaintEvent *event) override;
};

#endif
