#pragma once

#include <QFont>
#include <QRectF>

class PlanPicture;
class QPainter;

/// What a plan's picture is painted with, in the painter's units.
struct PlanPens {
    double lineWidth = 1;
    /// The font of texts without a size of their own.
    QFont font;
    /// How many units a point is.
    double unitsPerPoint = 1;
};

/// Paints a picture onto an area, as large as it fits and in the area's middle; nothing is painted outside.
void paintPlan(QPainter& painter, const PlanPicture& picture, const QRectF& area, const PlanPens& pens);
