#include "reports/surface/NullSurface.h"

void NullSurface::setProperty(SurfaceProperty property, const QVariant& value) {
    state_.insert(property, value);
}

QVariant NullSurface::property(SurfaceProperty property) const {
    return state_.value(property);
}
