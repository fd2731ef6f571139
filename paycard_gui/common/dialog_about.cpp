// SPDX-License-Identifier: LGPL-2.1-or-later
#include "common/dialog_about.h"

#include "toolkit/windows.h"
#include "ui_dialog_about.h"
#include "window/inputs.h"
#include "window/showntext.h"
#include "window/windowfit.h"

#include <QHeaderView>
#include <QItemDelegate>
#include <QTextCursor>
#include <QTextDocument>

#include <algorithm>

namespace {

const wchar_t *const GuiName = L"ОРМА: Драйвер интерфейса";
const wchar_t *const GuiVersion = L"9.11.2.6032";

struct OutsideLibrary
{
    const char *name;
    const char *version;
    const char *license;
    const char *link;
};

const char *const ZlibLicense = "https://www.zlib.net/zlib_license.html";

// The four of one licence show its one name, and one library has none, on purpose.
const OutsideLibrary OutsideLibraries[] = {
    {"Qt", "4.8.7", "LGPL", "https://www.gnu.org/licenses/lgpl-3.0.html"},
    {"CxImage", "7.0.1", "Zlib/libpng", ZlibLicense},
    {"libpng", "1.6.10", "Zlib/libpng", ZlibLicense},
    {"zlib", "1.2.8", "Zlib/libpng", ZlibLicense},
    {"tinyxml2", "1.0.9", "Zlib/libpng", ZlibLicense},
    {"Tesra", "94.10.6", "", ""},
    {"libusb", "1.0.19", "LGPLv2", "https://www.gnu.org/licenses/old-licenses/lgpl-2.1.html"},
    {"cURL", "7.32.0", "MIT", "https://opensource.org/license/mit"},
    {"OpenSSL", "1.0.1e", "OpenSSL", "https://www.openssl.org/source/license-openssl-ssleay.txt"},
};

/// Draws rows without the frame of the focus.
class NoFocusItemDelegate : public QItemDelegate
{
public:
    using QItemDelegate::QItemDelegate;

protected:
    void drawFocus(QPainter * /*painter*/, const QStyleOptionViewItem & /*option*/,
                   const QRect & /*rect*/) const override
    {
    }
};

void setNameAndVersion(QLabel *label, const QString &name, const QString &version)
{
    ShownText::show(label, name.isEmpty() || version.isEmpty() ? name : name + QLatin1Char('\n') + version);
}

/// For texts on a background that is light in every palette.
void darkenText(QWidget *widget)
{
    QPalette palette = widget->palette();
    palette.setColor(QPalette::WindowText, Qt::black);
    palette.setColor(QPalette::Text, Qt::black);
    widget->setPalette(palette);
}

/// The same for labels, which take no palette from a widget with a style sheet. Links have the colour of the
/// application's, given them when the label reads its text: to measure it.
void darkenLabels(const QWidget *parent)
{
    QTextCharFormat link;
    link.setForeground(Qt::blue);
    const QList<QLabel *> labels = parent->findChildren<QLabel *>();
    for (QLabel *label : labels) {
        darkenText(label);
        label->sizeHint();
        if (QTextDocument *document = label->findChild<QTextDocument *>()) {
            QTextCursor text(document);
            text.select(QTextCursor::Document);
            text.mergeCharFormat(link);
        }
    }
}

} // namespace

DialogAbout::DialogAbout(const QString &driverName, const QString &driverVersion, QWidget *parent)
    : DialogAbout(driverName, driverVersion, QString::fromWCharArray(GuiName), QString::fromWCharArray(GuiVersion),
                  parent)
{
    ui->tree_license->setItemDelegate(new NoFocusItemDelegate(ui->tree_license));
    ui->header_container->setStyleSheet(tr("#header_container{background-color: rgb(255, 255, 255);}"));
    darkenLabels(ui->header_container);
}

DialogAbout::DialogAbout(const QString &driverName, const QString &driverVersion, const QString &guiName,
                         const QString &guiVersion, QWidget *parent)
    : NoHelpButtonDialog(parent), ui(new Ui_DialogAbout)
{
    ui->setupUi(this);
    setPictures();
    setDriverName(driverName, driverVersion);
    setGuiName(guiName, guiVersion);
    setLicenseInfo();
}

DialogAbout::~DialogAbout() = default;

int DialogAbout::exec()
{
    prepareInputs(*this);
    fitForm(*this);
    return NoHelpButtonDialog::exec();
}

void DialogAbout::setDriverName(const QString &name, const QString &version)
{
    setNameAndVersion(ui->label_driver, name, version);
}

void DialogAbout::setGuiName(const QString &name, const QString &version)
{
    setNameAndVersion(ui->label_gui, name, version);
}

void DialogAbout::setPictures()
{
    setWindowIcon(QIcon(QString::fromLatin1(":/images/icon_info.png")));
    const QString file = QString::fromLatin1(":/images/orma_logo_small.bmp");
    const QPixmap logo(file);
    if (!logo.isNull()) {
        ui->label_pict->setPixmap(Toolkit::sharpened(logo, file, *this));
        ui->label_pict->setMaximumSize(logo.size());
    }
}

void DialogAbout::setLicenseInfo()
{
    ui->tree_license->clear();
    for (const OutsideLibrary &library : OutsideLibraries) {
        const QStringList columns = {QString::fromLatin1(library.name), QString::fromLatin1(library.version)};
        QTreeWidgetItem *item = new QTreeWidgetItem(ui->tree_license, columns);
        QLabel *license = new QLabel(QString::fromLatin1("<a href=\"%1\">%2</a>")
                                         .arg(QString::fromLatin1(library.link), QString::fromLatin1(library.license)));
        license->setOpenExternalLinks(true);
        ui->tree_license->setItemWidget(item, 2, license);
    }
    darkenText(ui->tree_license);
    darkenLabels(ui->tree_license);
    for (int column = 0; column < ui->tree_license->columnCount(); ++column) {
        // Wider than the default where the font asks for it.
        ui->tree_license->resizeColumnToContents(column);
        ui->tree_license->setColumnWidth(
            column, std::max(ui->tree_license->columnWidth(column), ui->tree_license->header()->defaultSectionSize()));
    }
}

void DialogAbout::on_bbox_accepted()
{
    accept();
}
