#pragma once

#include "compass/CompassGeometry.h"
#include "compass/PlanSurface.h"

class cXMLHandler;

/// Where the room that the store's last result selected stands on the plan: whole inches.
struct RoomPlace {
    qint32 LEFT = 0;
    qint32 TOP = 0;
    qint32 WIDTH = 0;
    qint32 LENGTH = 0;

    /// Fails with error 13 for a stored text that is no number, with error 6 for one out of range.
    [[nodiscard]] static RoomPlace ofResult(cXMLHandler& rooms);
};

/// The bounding box of the rooms of a query and its middle, in inches of the plan.
struct PlanExtent {
    qint32 MinLeft = 0;
    qint32 MinTop = 0;
    qint32 MaxRight = 0;
    qint32 MaxBottom = 0;
    qint32 CenterX = 0;
    qint32 CenterY = 0;

    bool operator==(const PlanExtent&) const = default;

    /// Measures the rooms of the store's last query. A query without rooms leaves the box as it was. A row
    /// that cannot be read ends in its failure; the box then holds the rows before it, and the middle is
    /// what it was.
    void measure(cXMLHandler& rooms);

    /// The side of the square that the scale makes room for. Right is compared with bottom and not width
    /// with height, on purpose: it is the larger side only when the plan begins near 0.
    [[nodiscard]] qint32 side() const;

    /// The scale of the screen: square, with the middle at the origin.
    [[nodiscard]] PlanScale screenScale() const;
    /// The scale of a printed page, with space for a title.
    [[nodiscard]] PlanScale printerScale() const;

    /// A room's corner or middle, seen from the plan's middle.
    [[nodiscard]] CompassGeometry::PlanPoint cornerOf(const RoomPlace& room) const;
    [[nodiscard]] CompassGeometry::PlanPoint middleOf(const RoomPlace& room) const;
};
