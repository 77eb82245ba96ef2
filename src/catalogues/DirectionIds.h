#pragma once

#include <QtGlobal>

/// The ids of the nine directions, the keys of `Directions.xml`: the places of the Lo Shu square.
namespace directionIds {

inline constexpr qint32 North = 1;
inline constexpr qint32 SouthWest = 2;
inline constexpr qint32 East = 3;
inline constexpr qint32 SouthEast = 4;
inline constexpr qint32 Center = 5;
inline constexpr qint32 NorthWest = 6;
inline constexpr qint32 West = 7;
inline constexpr qint32 NorthEast = 8;
inline constexpr qint32 South = 9;

} // namespace directionIds
