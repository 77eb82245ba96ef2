#include "catalogues/DirectionWheel.h"
#include "catalogues/ElementRelations.h"
#include "core/Failure.h"
#include "profiles/CompassFigure.h"
#include "profiles/cProfile.h"
#include "reports/surface/ReportSurface.h"

#include <algorithm>
#include <array>

using namespace compassFigure;

namespace {

/// The outer radius of the sectors that are not the person's own.
constexpr double otherRadius = 5335;

/// What a personal direction is called on the chart, and the colour of its sector.
struct ChartWord {
    qint32 cPersonalDirection::*directionId;
    qint32 color;
    QStringView word;
};

constexpr qint32 beneficialGreen = 0x97EA6A;
constexpr qint32 problematicBlue = 0xFFE3AA;

/// In the order of testing.
constexpr std::array<ChartWord, 8> chartWords{{
    {&cPersonalDirection::DEVELOPMENTDIRECTIONID, beneficialGreen, u"Development"},
    {&cPersonalDirection::HEALTHDIRECTIONID, beneficialGreen, u"Health"},
    {&cPersonalDirection::ROMANCEDIRECTIONID, beneficialGreen, u"Romance"},
    {&cPersonalDirection::SUCCESSDIRECTIONID, beneficialGreen, u"Success"},
    {&cPersonalDirection::BADLUCKDIRECTIONID, problematicBlue, u"Bad Luck"},
    {&cPersonalDirection::ILLNESSDIRECTIONID, problematicBlue, u"Illness"},
    {&cPersonalDirection::OBSTACLEDIRECTIONID, problematicBlue, u"Obstacles"},
    {&cPersonalDirection::DESTRUCTIONDIRECTIONID, problematicBlue, u"Total Loss"},
}};

/// Where the word of a sector begins, in shares of the radius from the centre, and how it is turned, in
/// tenths of a degree counter-clockwise.
struct WordPlace {
    qint32 directionId;
    double textAngle;
    double right;
    double down;
};

constexpr std::array<WordPlace, 8> wordPlaces{{
    {directionIds::North, 2700, 0.05, 0.6},
    {directionIds::SouthWest, 470, 0.35, -0.35},
    {directionIds::East, 0, -0.8, -0.03},
    {directionIds::SouthEast, 3150, -0.47, -0.54},
    {directionIds::NorthWest, 3150, 0.4, 0.29},
    {directionIds::West, 0, 0.5, -0.03},
    {directionIds::NorthEast, 470, -0.55, 0.5},
    {directionIds::South, 900, -0.05, -0.5},
}};

} // namespace

void cProfile::DrawCompass(ReportSurface& vp, qint32 lX, qint32 lY) const {
    routine(u"cProfile.Draw Compass", [&] {
        vp.BrushStyle(0);
        for (qint32 id = directionIds::North; id <= directionIds::South; ++id) {
            const bool isOwn = oColor.COLORVALUE == Global::GetDirectionColor(id, shades::normal);
            vp.BrushColor(isOwn ? oColor.COLORVALUE : Global::GetDirectionColor(id, shades::light));
            drawSector(vp, lX, lY, isOwn ? radius : otherRadius, id);
        }
        for (const DirectionSector& sector : directionSectors) {
            vp.BrushColor(Global::GetDirectionElementColor(sector.directionId, shades::light));
            drawSector(vp, lX, lY, ringRadius, sector.directionId);
        }
        drawCentre(vp, lX, lY, Global::GetDirectionColor(directionIds::Center, shades::normal));
        writeLetters(vp, lX, lY, compassLetters);
    });
}

void cProfile::DrawDirectionChart(ReportSurface& vp, qint32 lX, qint32 lY) const {
    routine(u"cProfile.Draw Direction Chart", [&] {
        vp.BrushStyle(0);
        vp.PenColor(0);
        // A direction that means nothing to the person is drawn as the one before it.
        QString word;
        for (qint32 id = directionIds::North; id <= directionIds::South; ++id) {
            const auto* const meaning = std::ranges::find_if(chartWords, [&](const ChartWord& entry) {
                return oPersonalDirection.*entry.directionId == id;
            });
            if (meaning != chartWords.end()) {
                vp.BrushColor(meaning->color);
                word = meaning->word.toString();
            }
            const bool isOwn = oColor.COLORVALUE == Global::GetDirectionColor(id, shades::normal);
            drawSector(vp, lX, lY, isOwn ? radius : otherRadius, id);
            DrawDirectionName(vp, lX, lY, radius, word, id);
        }
        drawCentre(vp, lX, lY, Global::GetDirectionColor(directionIds::Center, shades::normal));
        writeLetters(vp, lX, lY, chartLetters);
    });
}

/// Writes the word of a direction into its sector; a direction without a sector has no word.
void cProfile::DrawDirectionName(ReportSurface& vp, qint32 lX, qint32 lY, qint32 lRadius,
                                 const QString& label, qint32 id) {
    routine(u"cProfile.DrawDirectionName", [&] {
        constexpr double width = 5000; // ample for every word
        const auto* const place = std::ranges::find(wordPlaces, id, &WordPlace::directionId);
        if (place != wordPlaces.end()) {
            vp.TextAngle(place->textAngle);
            vp.TextBox(label, lX + place->right * lRadius, lY + place->down * lRadius, width, 0);
        }
        vp.TextAngle(0);
    });
}
