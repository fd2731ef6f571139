// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef DIALOG_ABOUT_H
#define DIALOG_ABOUT_H

#include "common/nohelpbuttondialogs.h"
#include "common/paycard_export.h"

#include <memory>

class Ui_DialogAbout;

/// About the driver, this library and the outside libraries that the driver family uses.
class PAYCARD_EXPORT DialogAbout : public NoHelpButtonDialog
{
    Q_OBJECT

public:
    /// For this library: with its own name and version, on a white header.
    DialogAbout(const QString &driverName, const QString &driverVersion, QWidget *parent);
    /// For other modules of the family, in the toolkit's own colours.
    DialogAbout(const QString &driverName, const QString &driverVersion, const QString &guiName,
                const QString &guiVersion, QWidget *parent);
    ~DialogAbout() override;

    /// Fits the window to its texts, then as the base does.
    int exec() PAYCARD_OVERRIDES_EXEC;

    /// An empty name clears the line, whatever the version.
    void setDriverName(const QString &name, const QString &version);
    /// The same for the graphical module, whose line is below.
    void setGuiName(const QString &name, const QString &version);

private slots:
    void on_bbox_accepted();

private:
    void setPictures();
    void setLicenseInfo();

    std::unique_ptr<Ui_DialogAbout> ui;
};

#endif
