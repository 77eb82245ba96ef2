#pragma once

#include "catalogues/DirectionIds.h"

#include <array>

class ReportSurface;

/// A sector of the wheel of directions: its bounds in compass degrees, clockwise from the top of the page.
struct DirectionSector {
    qint32 directionId;
    float from;
    float to;
};

/// The sectors in the order of their ids, in which every wheel is drawn. South stands at the top and East on
/// the left, as these charts have it; the cardinal sectors are 30 degrees wide, the four corners 60. The
/// centre has none.
inline constexpr std::array<DirectionSector, 8> directionSectors{{
    {directionIds::North, 165, 195},
    {directionIds::SouthWest, 15, 75},
    {directionIds::East, 255, 285},
    {directionIds::SouthEast, 285, 345},
    {directionIds::NorthWest, 105, 165},
    {directionIds::West, 75, 105},
    {directionIds::NorthEast, 195, 255},
    {directionIds::South, 345, 15},
}};

/// Draws the sector of a direction about a centre, in twips, with the surface's brush. A direction without a
/// sector draws nothing.
void drawSector(ReportSurface& vp, double x, double y, double radius, qint32 directionId);
