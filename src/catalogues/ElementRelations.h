#pragma once

#include <QString>

/// The shades in which every colour is kept.
namespace shades {

inline constexpr qint32 bright = 1;
inline constexpr qint32 normal = 2;
inline constexpr qint32 light = 3;

} // namespace shades

/// How directions, elements and colours relate. Each call reads the reference files that it needs anew.
namespace Global {

/// Whether the elements of two directions stand in no destroying relation. When they do, `elementName` is
/// set to the element of the second direction, whichever of the two destroys the other, and `reason` to a
/// phrase that tells; otherwise both are left untouched.
bool IsCompatible(qint32 direction1, qint32 direction2, QString& elementName, QString& reason);

/// A shade of a colour. A direction id serves as the id of its colour. The
/// result has red in the lowest byte; it is 0, black, for an unknown colour or shade.
qint32 GetDirectionColor(qint32 COLORID, qint32 shade);

/// The same for the colour of a direction's element; 0 also when the direction or element is unknown.
qint32 GetDirectionElementColor(qint32 directionId, qint32 shade);

} // namespace Global
