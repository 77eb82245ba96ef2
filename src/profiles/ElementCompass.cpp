#include "catalogues/DirectionWheel.h"
#include "catalogues/ElementRelations.h"
#include "catalogues/cElement.h"
#include "core/Failure.h"
#include "profiles/CompassFigure.h"
#include "reports/surface/ReportSurface.h"

using namespace compassFigure;

namespace {

/// How far the element's own sectors stand out of the ring.
constexpr double ownRingRadius = 4125;

} // namespace

void cElement::DrawCompass(ReportSurface& vp, qint32 lX, qint32 lY) const {
    routine(u"cElement.Draw Compass", [&] {
        vp.BrushStyle(0);
        for (const DirectionSector& sector : directionSectors) {
            vp.BrushColor(Global::GetDirectionColor(sector.directionId, shades::light));
            drawSector(vp, lX, lY, radius, sector.directionId);
        }
        for (const DirectionSector& sector : directionSectors) {
            vp.BrushColor(Global::GetDirectionElementColor(sector.directionId, shades::normal));
            const bool isOwn = vp.BrushColor() == oColor.COLORVALUE;
            drawSector(vp, lX, lY, isOwn ? ownRingRadius : ringRadius, sector.directionId);
        }
        drawCentre(vp, lX, lY, Global::GetDirectionElementColor(directionIds::Center, shades::normal));
        writeLetters(vp, lX, lY, compassLetters);
    });
}
