#include "pictures/ContactSheet.h"

#include "pictures/PictureFile.h"

#include <QApplication>
#include <QDir>
#include <QIcon>
#include <QPainter>
#include <QPalette>

namespace {

constexpr int tile = 60;
constexpr int smallTile = 32;
constexpr int cell = 120;
constexpr int rowHeight = 112;
constexpr int edge = 24;
constexpr int between = 8;
constexpr int columns = 9;

const QString root = QStringLiteral(":/talivane/pictures");

/// The folders of the record's pictures, each a list by which a catalogue names them.
QStringList lists() {
    return QDir(root).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
}

QStringList picturesOf(const QString& list) {
    return QDir(root + u'/' + list).entryList({QStringLiteral("*.svg")}, QDir::Files, QDir::Name);
}

int rowsOf(const QString& list) {
    return (static_cast<int>(picturesOf(list).size()) + columns - 1) / columns;
}

void drawPicture(QPainter& painter, const QPoint& corner, const QString& path) {
    const QIcon picture(path);
    picture.paint(&painter, QRect(corner, QSize(tile, tile)));
    picture.paint(&painter,
                  QRect(corner + QPoint(tile + between, tile - smallTile), QSize(smallTile, smallTile)));
    const QString name = path.section(u'/', -1).chopped(4).replace(u'_', u' ');
    painter.drawText(QRect(corner + QPoint(0, tile + between / 2), QSize(cell - between, rowHeight - tile)),
                     Qt::TextWordWrap, name);
}

} // namespace

void drawContactSheet(const QString& folder, const QString& suffix) {
    int rows = 0;
    for (const QString& list : lists()) {
        rows += rowsOf(list);
    }
    const double scale = qApp->devicePixelRatio();
    QImage sheet((QSizeF(2 * edge + columns * cell, 2 * edge + rows * rowHeight) * scale).toSize(),
                 QImage::Format_RGB32);
    sheet.setDevicePixelRatio(scale);
    sheet.fill(QApplication::palette().color(QPalette::Window));
    QPainter painter(&sheet);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QApplication::palette().color(QPalette::WindowText));
    int row = 0;
    for (const QString& list : lists()) {
        int place = 0;
        for (const QString& name : picturesOf(list)) {
            const QPoint corner(edge + place % columns * cell, edge + (row + place / columns) * rowHeight);
            drawPicture(painter, corner, root + u'/' + list + u'/' + name);
            ++place;
        }
        row += rowsOf(list);
    }
    painter.end();
    savePicture(sheet, folder + QStringLiteral("/all-pictures") + suffix + QStringLiteral(".png"));
}
