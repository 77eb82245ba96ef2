#include "reports/pages/PageFonts.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QStringList>

namespace {

constexpr double twipsPerPoint = 20;

/// Arial, or the first installed face whose letters have the same widths, so that lines break alike.
QString installedDefaultFace() {
    static const QStringList candidates{PageFonts::defaultFace(),         QStringLiteral("Liberation Sans"),
                                        QStringLiteral("Arimo"),          QStringLiteral("Nimbus Sans"),
                                        QStringLiteral("Nimbus Sans L"),  QStringLiteral("Helvetica"),
                                        QStringLiteral("TeX Gyre Heros"), QStringLiteral("FreeSans")};
    for (const QString& face : candidates) {
        if (QFontDatabase::hasFamily(face)) {
            return face;
        }
    }
    return QFontDatabase::systemFont(QFontDatabase::GeneralFont).family();
}

} // namespace

QString PageFonts::defaultFace() {
    return QStringLiteral("Arial");
}

QString PageFonts::resolve(const QString& asked) {
    if (asked.isEmpty() || asked.compare(defaultFace(), Qt::CaseInsensitive) == 0) {
        return {};
    }
    const auto known = resolved_.constFind(asked);
    if (known != resolved_.cend()) {
        return *known;
    }
    return *resolved_.insert(asked, QFontDatabase::hasFamily(asked) ? asked : QString());
}

const PageFont& PageFonts::font(const TextStyle& style) {
    const int pixels = qRound(style.points * twipsPerPoint);
    const Key key{style.face, pixels, style.bold, style.italic, style.strikethrough};
    const auto known = fonts_.find(key);
    if (known != fonts_.end()) {
        return known->second;
    }
    static const QString defaultFamily = installedDefaultFace();
    QFont font(style.face.isEmpty() ? defaultFamily : style.face);
    font.setPixelSize(pixels);
    font.setBold(style.bold);
    font.setItalic(style.italic);
    font.setStrikeOut(style.strikethrough);
    // Hinting would round the widths to some device's pixels; a page has none.
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setStyleStrategy(QFont::PreferQuality);
    const QFontMetricsF metrics(font);
    return fonts_.emplace(key, PageFont{font, metrics.ascent(), metrics.lineSpacing()}).first->second;
}
