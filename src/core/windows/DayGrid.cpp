#include "core/windows/DayGrid.h"

#include "ui/widgets/AccessibleRole.h"

#include <QPainter>

DayGrid::DayGrid(QWidget* parent)
    : QWidget(parent) {
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleRole(*this, QAccessible::Grouping);
}

void DayGrid::paintEvent(QPaintEvent* /*event*/) {
    constexpr double half = 0.5;
    constexpr double corner = 4;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(palette().color(hasFocus() ? QPalette::Highlight : QPalette::Mid), 1));
    painter.setBrush(palette().base());
    painter.drawRoundedRect(QRectF(rect()).adjusted(half, half, -half, -half), corner, corner);
}
