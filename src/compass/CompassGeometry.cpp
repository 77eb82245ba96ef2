#include "compass/CompassGeometry.h"

#include "core/Conversion.h"
#include "core/Failure.h"
#include "core/Global.h"

#include <cmath>

namespace {

constexpr double fullTurn = 360;
constexpr double quarterTurn = 90;
constexpr double halfTurn = 180;

/// A sector's direction and half its width, in degrees.
struct SectorShape {
    qint32 directionId;
    double halfWidth;
};

constexpr std::array<SectorShape, CompassGeometry::SECTOR_COUNT> shapes = {{
    {1, 15},
    {6, 30},
    {7, 15},
    {2, 30},
    {9, 15},
    {4, 30},
    {3, 15},
    {8, 30},
}};

/// Brings an angle that went back past the top into the circle; 0 itself has its own stand-in.
double fromTheTop(double angle) {
    if (angle < 0) {
        return angle + fullTurn;
    }
    return angle == 0 ? CompassGeometry::FULL_TURN_BUT_A_HUNDREDTH : angle;
}

double checkedFinite(double value) {
    if (!std::isfinite(value)) {
        throw failure(ErrorNumber::Overflow);
    }
    return value;
}

double quotient(double dividend, double divisor) {
    if (divisor == 0) {
        throw failure(ErrorNumber::DivisionByZero);
    }
    return checkedFinite(dividend / divisor);
}

} // namespace

double CompassGeometry::DegreesToRadians(double degrees) {
    return degrees * (Global::PI / halfTurn);
}

double CompassGeometry::RadiansToDegrees(double radians) {
    return radians * (halfTurn / Global::PI);
}

qint32 CompassGeometry::rounded(double value) {
    return Conversion::toLong(value);
}

double CompassGeometry::GetAngle(double X, double Y) {
    if (Y == 0) {
        return X < 0 ? fullTurn - quarterTurn : X > 0 ? quarterTurn : 0;
    }
    if (X == 0) {
        return Y < 0 ? fullTurn : halfTurn;
    }
    return pointedAngle(X, Y);
}

double CompassGeometry::pointedAngle(double X, double Y) {
    const double slope = RadiansToDegrees(std::atan(quotient(X, Y)));
    if (X < 0) {
        return Y < 0 ? fullTurn - slope : fullTurn - (slope + halfTurn);
    }
    return std::abs(Y < 0 ? slope : slope - halfTurn);
}

CompassGeometry::SectorTable CompassGeometry::sectors(double north) {
    constexpr double betweenCentres = 45;
    SectorTable table;
    double centre = north;
    for (std::size_t i = 0; i < table.size(); ++i) {
        const SectorShape& shape = shapes[i];
        table[i] = {.DirectionID = shape.directionId,
                    .StartAngle = fromTheTop(centre - shape.halfWidth),
                    .EndAngle = static_cast<double>(rounded(centre + shape.halfWidth) %
                                                    static_cast<qint32>(fullTurn))};
        centre = fromTheTop(centre - betweenCentres);
    }
    return table;
}

std::optional<qint32> CompassGeometry::directionAt(const SectorTable& table, double angle) {
    for (const Sector& sector : table) {
        const double start = sector.StartAngle;
        const double end = sector.EndAngle;
        const bool holds = start < end
                               ? angle >= start && angle <= end
                               : (angle <= fullTurn && angle >= start) || (angle >= 0 && angle <= end);
        if (holds) {
            return sector.DirectionID;
        }
    }
    return std::nullopt;
}

double CompassGeometry::middleAngle(const Sector& sector) {
    if (sector.StartAngle <= sector.EndAngle) {
        return (sector.EndAngle - sector.StartAngle) / 2 + sector.StartAngle;
    }
    const double middle = (fullTurn - sector.StartAngle + sector.EndAngle) / 2 + sector.StartAngle;
    // A reflection and not a wrap, on purpose: the label stands on the mirror side.
    return middle > fullTurn ? fullTurn - middle : middle;
}

CompassGeometry::PlanPoint CompassGeometry::labelPoint(double middleAngle, double scaleWidth,
                                                       double scaleHeight) {
    constexpr double turn = 5;
    constexpr double inset = 35;
    constexpr double outward = 20;
    const bool right = middleAngle <= halfTurn;
    const bool up = middleAngle <= quarterTurn || middleAngle > fullTurn - quarterTurn;
    double turned = 0;
    if (middleAngle <= quarterTurn) {
        turned = middleAngle - turn;
    } else if (middleAngle <= halfTurn) {
        turned = (halfTurn - middleAngle) + turn;
    } else if (middleAngle <= fullTurn - quarterTurn) {
        turned = (middleAngle - halfTurn) - turn;
    } else {
        turned = (fullTurn - middleAngle) + turn;
    }
    const double a = checkedFinite(rounded(scaleHeight / 4 - inset) * std::tan(DegreesToRadians(turned)));
    const double b =
        checkedFinite(rounded(scaleWidth / 4 - inset) * std::tan(DegreesToRadians(quarterTurn - turned)));
    const auto moved = [](double value) { return value < 0 ? value - outward : value + outward; };
    return {.X = moved(right ? std::abs(a) : -std::abs(a)), .Y = moved(up ? -std::abs(b) : std::abs(b))};
}
