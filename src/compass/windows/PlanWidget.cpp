#include "compass/windows/PlanWidget.h"

#include "compass/windows/PlanPainter.h"
#include "ui/widgets/AccessibleRole.h"
#include "ui/widgets/PaperShadow.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QResizeEvent>
#include <QStyleOptionFocusRect>

#include <algorithm>

namespace {

constexpr double pointsPerInch = 72;

QPointF inPlan(const PlanScale& scale, double x, double y) {
    return {static_cast<double>(scale.ScaleLeft) + x * static_cast<double>(scale.ScaleWidth),
            static_cast<double>(scale.ScaleTop) + y * static_cast<double>(scale.ScaleHeight)};
}

} // namespace

PlanWidget::PlanWidget(QWidget* parent)
    : QWidget(parent) {
    setObjectName(QStringLiteral("picFloorPlan"));
    setAccessibleRole(*this, QAccessible::Graphic);
    setAccessibleName(tr("Floor plan with compass"));
    setMouseTracking(true);
    setCursor(Qt::CrossCursor);
}

void PlanWidget::setTurnable() {
    setFocusPolicy(Qt::StrongFocus);
}

QPointF PlanWidget::toPlan(const QPointF& point) const {
    return inPlan(picture_.scale(), point.x() / width(), point.y() / height());
}

QPointF PlanWidget::fromPlan(const QPointF& point) const {
    const PlanScale& scale = picture_.scale();
    const QPointF beside = point - inPlan(scale, 0, 0);
    return {beside.x() * width() / static_cast<double>(scale.ScaleWidth),
            beside.y() * height() / static_cast<double>(scale.ScaleHeight)};
}

void PlanWidget::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.fillRect(rect(), Qt::white); // paper is white in every theme
    const PlanPens pens{.lineWidth = 1, .font = font(), .unitsPerPoint = logicalDpiY() / pointsPerInch};
    paintPlan(painter, picture_, rect(), pens);
    if (hasFocus()) {
        QStyleOptionFocusRect focus;
        focus.initFrom(this);
        focus.backgroundColor = Qt::white;
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
    }
}

void PlanWidget::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    // A window that comes up tells its size too, and was drawn for it already.
    if (event->oldSize().isValid() && event->oldSize() != event->size()) {
        Q_EMIT resized();
    }
}

void PlanWidget::mouseMoveEvent(QMouseEvent* event) {
    // A window that opened over the plan and closed again makes the system tell the place once more; the
    // mouse has not moved, and what was said about the place has been said.
    if (lastPointed_ == event->position()) {
        return;
    }
    lastPointed_ = event->position();
    const QPointF point = toPlan(event->position());
    Q_EMIT pointed(point.x(), point.y());
}

void PlanWidget::mouseReleaseEvent(QMouseEvent* event) {
    const QPointF point = toPlan(event->position());
    Q_EMIT clicked(point.x(), point.y());
}

void PlanWidget::keyPressEvent(QKeyEvent* event) {
    constexpr double step = 1;
    constexpr double largeStep = 15;
    const bool right = event->key() == Qt::Key_Right;
    if (focusPolicy() == Qt::NoFocus || (!right && event->key() != Qt::Key_Left)) {
        QWidget::keyPressEvent(event);
        return;
    }
    const double degrees = (event->modifiers() & Qt::ShiftModifier) != 0 ? largeStep : step;
    Q_EMIT turned(right ? degrees : -degrees);
}

PlanDesk::PlanDesk(QWidget* parent)
    : QWidget(parent)
    , picFloorPlan(new PlanWidget(this)) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

QSize PlanDesk::minimumSizeHint() const {
    constexpr int smallest = 240;
    return {smallest, smallest};
}

void PlanDesk::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(QPalette::Mid));
    paintPaperShadow(painter, picFloorPlan->geometry());
}

void PlanDesk::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    constexpr int around = 16;
    const int room = std::min(width(), height()) - 2 * around;
    const int side =
        std::max(room - room % 2, 2); // even, so that a row of pixels lies on the centre's height
    picFloorPlan->setGeometry((width() - side) / 2, (height() - side) / 2, side, side);
    update();
}
