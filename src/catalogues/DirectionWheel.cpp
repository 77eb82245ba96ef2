#include "catalogues/DirectionWheel.h"

#include "core/Global.h"
#include "reports/surface/ReportSurface.h"

#include <algorithm>

void drawSector(ReportSurface& vp, double x, double y, double radius, qint32 directionId) {
    const auto* const sector =
        std::ranges::find(directionSectors, directionId, &DirectionSector::directionId);
    if (sector != directionSectors.end()) {
        // Surfaces draw counter-clockwise and bearings grow clockwise, so the sector begins at its far bound.
        vp.DrawCircle(x, y, radius, static_cast<double>(Global::CompassToRadians(sector->to)),
                      static_cast<double>(Global::CompassToRadians(sector->from)));
    }
}
