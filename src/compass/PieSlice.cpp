#include "compass/PlanSurface.h"
#include "core/Global.h"

#include <utility>

namespace {

/// 0 has no sign, and so no line to the centre: the next angle that has one stands for it.
constexpr float tiny = 1 / 100.0F;

constexpr float fullTurn(float more) {
    return static_cast<float>(2 * Global::PI + static_cast<double>(more));
}

} // namespace

void PieSlice(PlanSurface& obj, float x, float y, float radius, qint32 Color, float start_ang,
              float end_ang) {
    // Compass angles run the other way round, so the ends change places.
    float from = Global::CompassToRadians(end_ang);
    float to = Global::CompassToRadians(start_ang);
    if (from == 0) {
        from = tiny;
    }
    if (to == 0) {
        to = tiny;
    }
    if (from > to) {
        std::swap(from, to);
    }
    if (to < 0) {
        from = fullTurn(from);
        to = fullTurn(to);
    }
    if (from > 0) {
        obj.Circle(x, y, radius, Color, -from, -to);
        return;
    }
    const float below = fullTurn(from);
    obj.Circle(x, y, radius, obj.FillColor, -below, -tiny);
    obj.Circle(x, y, radius, obj.FillColor, -tiny, -to);
    obj.Circle(x, y, radius, Color, -below, tiny);
    obj.Circle(x, y, radius, Color, tiny, -to);
}
