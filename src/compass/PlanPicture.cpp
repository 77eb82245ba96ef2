#include "compass/PlanPicture.h"

void PlanPicture::setScale(const PlanScale& scale) {
    PlanSurface::setScale(scale);
    items_.emplace_back(scale);
}

void PlanPicture::Cls() {
    items_.clear();
    CurrentX = 0;
    CurrentY = 0;
}

void PlanPicture::Line(float x1, float y1, float x2, float y2) {
    items_.emplace_back(PlanLine{x1, y1, x2, y2});
}

void PlanPicture::Circle(float x, float y, float radius) {
    PlanArc circle{.x = x, .y = y, .radius = radius, .color = 0, .span = {}, .fill = {}};
    if (FillStyle == PlanFill::Solid) {
        circle.fill = FillColor;
    }
    items_.emplace_back(circle);
}

void PlanPicture::Circle(float x, float y, float radius, qint32 color, float start, float end) {
    PlanArc arc{
        .x = x, .y = y, .radius = radius, .color = color, .span = PlanArc::Span{start, end}, .fill = {}};
    if (FillStyle == PlanFill::Solid && start < 0 && end < 0) {
        arc.fill = FillColor;
    }
    items_.emplace_back(arc);
}

void PlanPicture::Print(const QString& text, const PlanSpace& space) {
    items_.emplace_back(PlanText{CurrentX, CurrentY, text, space, FontSize, FontBold});
}
