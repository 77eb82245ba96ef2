// Renders a vector picture into DIR/<size>x<size>/apps/NAME.png for each size of the hicolor icon theme.
#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <array>
#include <cstdio>

namespace {

constexpr std::array<int, 9> sizes{16, 22, 24, 32, 48, 64, 128, 256, 512};

bool render(QSvgRenderer& picture, int size, const QString& path) {
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    picture.render(&painter, QRectF(0, 0, size, size));
    painter.end();
    return image.save(path);
}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    if (arguments.size() != 4) {
        std::fprintf(stderr, "usage: talivane_icons PICTURE.svg NAME DIR\n");
        return 2;
    }
    QSvgRenderer picture(arguments.at(1));
    for (const int size : sizes) {
        const QDir folder(QStringLiteral("%1/%2x%2/apps").arg(arguments.at(3)).arg(size));
        if (!folder.mkpath(QStringLiteral(".")) ||
            !render(picture, size, folder.filePath(arguments.at(2) + QStringLiteral(".png")))) {
            std::fprintf(stderr, "cannot write %s\n", qPrintable(folder.path()));
            return 1;
        }
    }
    return 0;
}
