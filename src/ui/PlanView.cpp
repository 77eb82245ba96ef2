#include "ui/PlanView.h"

#include "core/Failure.h"
#include "ui/PlanRoom.h"
#include "ui/widgets/AccessibleRole.h"
#include "ui/widgets/PaperShadow.h"

#include <QPaintEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

constexpr double inchesPerFoot = 12;
constexpr double feetPerGridLine = 10;
/// Grid lines nearer together than this are left out, in pixels.
constexpr double nearestGridLines = 8;

const QColor ink(0x1E, 0x1E, 0x1E);
const QColor footLine(0xF3, 0xF4, 0xF5);
const QColor tenFeetLine(0xE0, 0xE4, 0xE8);
const QColor lineOfFloorBelow(0xA8, 0xA8, 0xA8);
const QColor textOfFloorBelow(0x70, 0x70, 0x70);

void refuseUnlessPositive(qint32 extent) {
    if (extent <= 0) {
        throw failure(ErrorNumber::InvalidPropertyValue);
    }
}

/// A pixel that widgets can be placed at; what lies further out is not seen anyway.
int pixel(double position) {
    constexpr double furthest = 1 << 22;
    return static_cast<int>(std::lround(std::clamp(position, -furthest, furthest)));
}

} // namespace

PlanView::PlanView(QWidget* parent)
    : QWidget(parent) {
    setObjectName(QStringLiteral("picFloorPlan"));
    setAccessibleRole(*this, QAccessible::List);
    setAccessibleName(tr("Floor plan"));
}

void PlanView::setScaleWidth(qint32 inches) {
    refuseUnlessPositive(inches);
    scaleWidth_ = inches;
    Q_EMIT scaleChanged();
}

void PlanView::setScaleHeight(qint32 inches) {
    refuseUnlessPositive(inches);
    scaleHeight_ = inches;
    Q_EMIT scaleChanged();
}

void PlanView::fit(const QRect& space) {
    pixelsPerInch_ = std::max(std::min(static_cast<double>(space.width()) / scaleWidth_,
                                       static_cast<double>(space.height()) / scaleHeight_),
                              1e-9);
    QRect paper(0, 0, std::max(pixel(scaleWidth_ * pixelsPerInch_), 1),
                std::max(pixel(scaleHeight_ * pixelsPerInch_), 1));
    paper.moveCenter(space.center());
    setGeometry(paper);
    for (PlanRoom* room : findChildren<PlanRoom*>(Qt::FindDirectChildrenOnly)) {
        room->placeOnPlan();
    }
    update();
}

QRect PlanView::toPixels(float left, float top, float width, float height) const {
    // Each edge is rounded by itself and belongs to both rooms that touch there, so that one line parts them.
    constexpr int smallest = 3;
    const auto edge = [this](float from, float extent) {
        return pixel((static_cast<double>(from) + static_cast<double>(extent)) * pixelsPerInch_);
    };
    const QPoint corner(edge(left, 0), edge(top, 0));
    return {corner, QSize(std::max(edge(left, width) - corner.x() + 1, smallest),
                          std::max(edge(top, height) - corner.y() + 1, smallest))};
}

void PlanView::Clear() {
    lines_.clear();
    captions_.clear();
    update();
}

void PlanView::drawLine(QPoint from, QPoint to) {
    lines_.append(QLine(from, to));
    update();
}

void PlanView::print(QPoint at, const QString& text) {
    captions_.append({at, text});
    update();
}

void PlanView::paintGrid(QPainter& painter, double step, const QColor& color) const {
    const double distance = step * pixelsPerInch_;
    if (distance < nearestGridLines) {
        return;
    }
    painter.setPen(color);
    for (double x = distance; x < width(); x += distance) {
        painter.drawLine(pixel(x), 0, pixel(x), height());
    }
    for (double y = distance; y < height(); y += distance) {
        painter.drawLine(0, pixel(y), width(), pixel(y));
    }
}

void PlanView::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.fillRect(event->rect(), Qt::white);
    paintGrid(painter, inchesPerFoot, footLine);
    paintGrid(painter, inchesPerFoot * feetPerGridLine, tenFeetLine);

    const auto place = [this](QPoint inches) {
        return QPoint(pixel(inches.x() * pixelsPerInch_), pixel(inches.y() * pixelsPerInch_));
    };
    painter.setPen(lineOfFloorBelow);
    for (const QLine& line : lines_) {
        painter.drawLine(place(line.p1()), place(line.p2()));
    }
    painter.setPen(textOfFloorBelow);
    for (const Caption& caption : captions_) {
        painter.drawText(place(caption.at) + QPoint(0, painter.fontMetrics().ascent()), caption.text);
    }
    painter.setPen(ink);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

FloorPlanDesk::FloorPlanDesk(QWidget* parent)
    : QWidget(parent)
    , plan_(new PlanView(this)) {
    setObjectName(QStringLiteral("vsRight"));
    setAccessibleName(tr("Floor plan"));
    connect(plan_, &PlanView::scaleChanged, this, &FloorPlanDesk::fitPlan);
}

QSize FloorPlanDesk::minimumSizeHint() const {
    return {240, 200};
}

void FloorPlanDesk::fitPlan() {
    constexpr int edge = 16;
    plan_->fit(rect().adjusted(edge, edge, -edge, -edge));
    update();
}

void FloorPlanDesk::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    fitPlan();
}

void FloorPlanDesk::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.fillRect(event->rect(), palette().color(QPalette::Mid));
    paintPaperShadow(painter, plan_->geometry());
}
