#pragma once

#include <QtGlobal>

#include <array>
#include <optional>

/// How angles, sectors and points of a floor plan relate: plain arithmetic. Compass degrees are 0 at the
/// top of the plan and grow clockwise; plan points are inches from the plan's centre, X to the right and Y
/// downward. A division by zero or an overflow is thrown as a Failure, never an infinity.
namespace CompassGeometry {

/// One of the eight parts of a plan; it runs clockwise from `StartAngle` to `EndAngle`.
struct Sector {
    qint32 DirectionID = 0;
    double StartAngle = 0;
    /// Always whole.
    double EndAngle = 0;

    bool operator==(const Sector&) const = default;
};

constexpr std::size_t SECTOR_COUNT = 8;
using SectorTable = std::array<Sector, SECTOR_COUNT>;

/// The value that stands for an angle of 0 where a sector or its centre begins.
inline constexpr double FULL_TURN_BUT_A_HUNDREDTH = 35999 / 100.0;

[[nodiscard]] double DegreesToRadians(double degrees);
[[nodiscard]] double RadiansToDegrees(double radians);

/// A whole number, rounded half to even, 32 bits wide.
[[nodiscard]] qint32 rounded(double value);

/// The compass angle of a point seen from the centre, 0 to 360. Straight up is 360, the centre itself 0.
[[nodiscard]] double GetAngle(double X, double Y);

/// The compass angle of a point that the mouse shows. It has no rule for the axes: straight up is 0, and a
/// point at the centre's height divides by zero.
[[nodiscard]] double pointedAngle(double X, double Y);

/// The eight sectors for a direction of North, in the order in which they are drawn and searched:
/// counter-clockwise from North. End angles are rounded and start angles are not, so neighbours can overlap
/// or leave a gap of less than a degree.
[[nodiscard]] SectorTable sectors(double north);

/// The direction of the first sector that holds the angle, bounds included; nothing when it falls in a gap.
[[nodiscard]] std::optional<qint32> directionAt(const SectorTable& table, double angle);

/// The middle of a sector, to place its label. For a sector that wraps over the top it may be mirrored.
[[nodiscard]] double middleAngle(const Sector& sector);

struct PlanPoint {
    double X = 0;
    double Y = 0;

    bool operator==(const PlanPoint&) const = default;
};

/// Where the label of a sector with that middle angle stands on a surface of that scale. Near an axis it can
/// lie far outside.
[[nodiscard]] PlanPoint labelPoint(double middleAngle, double scaleWidth, double scaleHeight);

} // namespace CompassGeometry
