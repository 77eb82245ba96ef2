// Sectors for any direction of North, and any point of a plan.

#include "FuzzWorld.h"
#include "compass/CompassGeometry.h"
#include "core/Failure.h"

#include <cmath>

namespace {

/// A plan's numbers are 32-bit floats or whole numbers of inches; those of the machine go far beyond.
bool isPlanNumber(double value) {
    constexpr double furthest = 1e9;
    return std::isfinite(value) && std::abs(value) < furthest;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace CompassGeometry;
    FuzzInput input(data, size);
    const double north = input.number();
    const double x = input.number();
    const double y = input.number();
    try {
        const SectorTable table = sectors(north);
        const double angle = GetAngle(x, y);
        if (isPlanNumber(x) && isPlanNumber(y) && !(angle >= 0 && angle <= 360)) {
            broken(QStringLiteral("an angle lies on the circle"));
        }
        if (const auto direction = directionAt(table, angle);
            direction && (*direction < 1 || *direction > 9)) {
            broken(QStringLiteral("a direction is one of nine"));
        }
        for (const Sector& sector : table) {
            if (north >= 0 && north <= 360 &&
                (sector.EndAngle != std::round(sector.EndAngle) || sector.StartAngle < 0 ||
                 sector.StartAngle > 360 || sector.EndAngle < 0 || sector.EndAngle >= 360)) {
                broken(QStringLiteral("a sector lies on the circle"));
            }
            (void)labelPoint(middleAngle(sector), 600, 400);
        }
        (void)pointedAngle(x, y);
    } catch (const Failure&) {
        return 0; // the report that a user gets
    }
    return 0;
}
