#include "pictures/PictureFile.h"

#include <QHash>
#include <QImageWriter>
#include <QSet>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <vector>

namespace {

constexpr qsizetype mostColors = 256;

/// The colours of an image, the commonest first.
std::vector<QRgb> colorsOf(const QImage& image) {
    QHash<QRgb, qint64> counts;
    for (int y = 0; y < image.height(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            ++counts[line[x]];
        }
    }
    std::vector<QRgb> colors(counts.keyBegin(), counts.keyEnd());
    std::ranges::sort(colors, [&](QRgb one, QRgb other) {
        return counts.value(one) != counts.value(other) ? counts.value(one) > counts.value(other)
                                                        : one < other;
    });
    return colors;
}

/// The colours that a picture is reduced to: all of them where that is possible, otherwise the commonest,
/// which are its plain areas, and for the rest one colour of each shade, of coarser and coarser shades.
QList<QRgb> paletteOf(const QImage& image) {
    constexpr qsizetype plainAreas = 96;
    const std::vector<QRgb> colors = colorsOf(image);
    QList<QRgb> palette;
    for (const QRgb shade : {0xFFFFFFFFU, 0xFFFCFCFCU, 0xFFF8F8F8U, 0xFFF0F0F0U, 0xFFE0E0E0U}) {
        palette.clear();
        QSet<QRgb> taken;
        for (const QRgb color : colors) {
            if (palette.size() < plainAreas || !taken.contains(color & shade)) {
                taken.insert(color & shade);
                palette << color;
            }
        }
        if (palette.size() <= mostColors) {
            break;
        }
    }
    return palette.mid(0, mostColors);
}

} // namespace

void stop(const QString& why) {
    std::fprintf(stderr, "%s\n", qPrintable(why));
    std::exit(EXIT_FAILURE);
}

void savePicture(const QImage& image, const QString& path) {
    constexpr int hardest = 100;
    const QImage flat = image.convertToFormat(QImage::Format_RGB32);
    const QImage small =
        flat.convertToFormat(QImage::Format_Indexed8, paletteOf(flat), Qt::ThresholdDither | Qt::AvoidDither);
    QImageWriter writer(path, "png");
    writer.setCompression(hardest);
    if (!writer.write(small)) {
        stop(QStringLiteral("cannot write %1: %2").arg(path, writer.errorString()));
    }
    std::printf("%s\n", qPrintable(path));
}
