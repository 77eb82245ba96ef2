#include "compass/PlanExtent.h"

#include "core/Conversion.h"
#include "store/cXMLHandler.h"

#include <algorithm>

namespace {

constexpr qint32 margin = 100;
constexpr qint32 titleSpace = 200;

/// Whole numbers are 32 bits wide: a sum beyond them fails with error 6.
qint32 sum(qint32 one, qint32 other) {
    return Conversion::toLong(static_cast<double>(one) + other);
}

qint32 difference(qint32 one, qint32 other) {
    return Conversion::toLong(static_cast<double>(one) - other);
}

qint32 middle(qint32 from, qint32 to) {
    return CompassGeometry::rounded(from + difference(to, from) / 2.0);
}

/// The edge of a scale whose origin stands in the middle of `side`, with `space` before it.
float edge(qint32 side, qint32 space) {
    return static_cast<float>(CompassGeometry::rounded(-(side / 2.0 + space)));
}

} // namespace

RoomPlace RoomPlace::ofResult(cXMLHandler& rooms) {
    const auto whole = [&](QStringView attribute) {
        return Conversion::toLong(rooms.GetAttribute(attribute.toString(), true));
    };
    RoomPlace place;
    place.LEFT = whole(u"LEFT");
    place.WIDTH = whole(u"WIDTH");
    place.TOP = whole(u"TOP");
    place.LENGTH = whole(u"LENGTH");
    return place;
}

void PlanExtent::measure(cXMLHandler& rooms) {
    bool first = true;
    for (qint32 index = 0; index < rooms.ResultCount; ++index) {
        rooms.GetResult(index);
        const RoomPlace room = RoomPlace::ofResult(rooms);
        const qint32 right = sum(room.LEFT, room.WIDTH);
        const qint32 bottom = sum(room.TOP, room.LENGTH);
        MinLeft = first ? room.LEFT : std::min(MinLeft, room.LEFT);
        MaxRight = first ? right : std::max(MaxRight, right);
        MinTop = first ? room.TOP : std::min(MinTop, room.TOP);
        MaxBottom = first ? bottom : std::max(MaxBottom, bottom);
        first = false;
    }
    CenterX = middle(MinLeft, MaxRight);
    CenterY = middle(MinTop, MaxBottom);
}

qint32 PlanExtent::side() const {
    return MaxRight <= MaxBottom ? difference(MaxBottom, MinTop) : difference(MaxRight, MinLeft);
}

PlanScale PlanExtent::screenScale() const {
    const qint32 extent = side();
    const auto reach = static_cast<float>(sum(extent, 2 * margin));
    return {.ScaleLeft = edge(extent, margin),
            .ScaleTop = edge(extent, margin),
            .ScaleWidth = reach,
            .ScaleHeight = reach};
}

PlanScale PlanExtent::printerScale() const {
    const qint32 extent = side();
    return {.ScaleLeft = edge(extent, margin),
            .ScaleTop = edge(extent, margin + titleSpace),
            .ScaleWidth = static_cast<float>(sum(extent, 2 * margin)),
            .ScaleHeight = static_cast<float>(sum(extent, 2 * (margin + titleSpace)))};
}

CompassGeometry::PlanPoint PlanExtent::cornerOf(const RoomPlace& room) const {
    return {.X = static_cast<double>(difference(room.LEFT, CenterX)),
            .Y = static_cast<double>(difference(room.TOP, CenterY))};
}

CompassGeometry::PlanPoint PlanExtent::middleOf(const RoomPlace& room) const {
    const CompassGeometry::PlanPoint corner = cornerOf(room);
    return {.X = corner.X + room.WIDTH / 2.0, .Y = corner.Y + room.LENGTH / 2.0};
}
