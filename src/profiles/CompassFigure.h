#pragma once

#include <QStringView>

#include <array>
#include <cstddef>

class ReportSurface;

/// What the compasses of people and elements and a person's chart of directions have in common. Lengths are
/// twips.
namespace compassFigure {

inline constexpr qint32 radius = 5500;
inline constexpr double centreRadius = 1650;
/// The inner ring of a compass.
inline constexpr double ringRadius = 3850;

/// How far something stands from the centre, to the right or down: whole twips, or a share of the radius.
class Offset {
public:
    constexpr Offset(qint32 twips)
        : twips_(twips) {}
    constexpr Offset(double shareOfRadius)
        : share_(shareOfRadius) {}

    [[nodiscard]] constexpr double from(qint32 centre) const { return centre + twips_ + share_ * radius; }

private:
    qint32 twips_ = 0;
    double share_ = 0;
};

/// The letters of a direction and where they stand.
struct Letters {
    QStringView text;
    Offset right;
    Offset down;
};

inline constexpr std::array<Letters, 8> compassLetters{{
    {u"S", -50, -0.95},
    {u"SW", 0.6, -0.6},
    {u"SE", -0.67, -0.62},
    {u"N", -50, 0.87},
    {u"NE", -0.67, 0.58},
    {u"E", -0.93, -50},
    {u"W", 0.87, -50},
    {u"NW", 0.58, 0.56},
}};

/// The same, but for the W: the chart stands on a page with margins, which that letter would touch.
inline constexpr std::array<Letters, 8> chartLetters = [] {
    constexpr std::size_t west = 6;
    std::array<Letters, 8> letters = compassLetters;
    letters[west].right = 0.83;
    return letters;
}();

/// Draws the disc in the middle.
void drawCentre(ReportSurface& vp, qint32 x, qint32 y, qint32 color);

/// Writes letters about a centre.
void writeLetters(ReportSurface& vp, qint32 x, qint32 y, const std::array<Letters, 8>& letters);

} // namespace compassFigure
