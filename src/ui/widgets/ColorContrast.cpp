#include "ui/widgets/ColorContrast.h"

#include <QPalette>

#include <algorithm>
#include <cmath>

namespace {

double linear(double channel) {
    return channel <= 0.03928 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& color) {
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

} // namespace

double ColorContrast::ratio(const QColor& one, const QColor& other) {
    const double first = luminance(one);
    const double second = luminance(other);
    return (std::max(first, second) + 0.05) / (std::min(first, second) + 0.05);
}

QColor ColorContrast::textOn(const QColor& ground) {
    // Black and white together reach 4.58 on every ground; a softer ink would leave a gap in the middle
    // greys, so it is used only where it suffices by itself.
    const QColor ink(0x1E, 0x1E, 0x1E);
    constexpr double legible = 4.5;
    if (ratio(ink, ground) >= legible) {
        return ink;
    }
    return ratio(Qt::white, ground) >= ratio(Qt::black, ground) ? QColor(Qt::white) : QColor(Qt::black);
}

QColor ColorContrast::between(const QColor& one, const QColor& other, double share) {
    const auto channel = [share](int from, int to) { return from + qRound(share * (to - from)); };
    return QColor(channel(one.red(), other.red()), channel(one.green(), other.green()),
                  channel(one.blue(), other.blue()));
}

bool ColorContrast::isDark(const QPalette& palette) {
    return luminance(palette.color(QPalette::Window)) < luminance(palette.color(QPalette::WindowText));
}

QPalette ColorContrast::legibleSelection(const QPalette& palette) {
    constexpr double legible = 4.5;
    constexpr int step = 104; // per cent
    constexpr int most = 64;
    QPalette selection;
    for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive}) {
        const QColor text = palette.color(group, QPalette::HighlightedText);
        QColor ground = palette.color(group, QPalette::Highlight);
        const bool lightText = luminance(text) > luminance(ground);
        for (int i = 0; i < most && ratio(text, ground) < legible; ++i) {
            ground = lightText ? ground.darker(step) : ground.lighter(step);
        }
        selection.setColor(group, QPalette::Highlight, ground);
        selection.setColor(group, QPalette::HighlightedText,
                           ratio(text, ground) < legible ? textOn(ground) : text);
    }
    return selection;
}

QColor ColorContrast::paperGrey(const QPalette& palette) {
    return isDark(palette) ? QColor(0x3A, 0x36, 0x2F) : QColor(0xE9, 0xE3, 0xD6);
}

QColor ColorContrast::fromStored(qint32 value) {
    const auto bits = static_cast<quint32>(value);
    return QColor(static_cast<int>(bits & 0xFFU), static_cast<int>((bits >> 8U) & 0xFFU),
                  static_cast<int>((bits >> 16U) & 0xFFU));
}

std::optional<QColor> ColorContrast::fromStored(const std::optional<qint32>& value) {
    return value ? std::optional(fromStored(*value)) : std::nullopt;
}
