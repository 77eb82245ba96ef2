#include "core/windows/CalendarButton.h"

#include <QPainter>

CalendarButton::CalendarButton(const QString& name, QWidget* parent)
    : QPushButton(parent) {
    setObjectName(name);
    setAccessibleName(tr("Calendar"));
    setToolTip(tr("Choose a date from a calendar"));
    setAutoDefault(false);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize CalendarButton::sizeHint() const {
    constexpr int beside = 8;
    const int height = QPushButton::sizeHint().height();
    return {height + beside, height};
}

void CalendarButton::paintEvent(QPaintEvent* event) {
    QPushButton::paintEvent(event);
    // A sheet of 12 by 12 units: rings, the month's strip, two weeks of three days.
    constexpr double units = 16;
    constexpr double line = 1.2;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double scale = fontMetrics().height() / units;
    painter.translate(QRectF(rect()).center());
    painter.scale(scale, scale);
    const QColor ink =
        palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::ButtonText);
    painter.setPen(QPen(ink, line));
    painter.drawRoundedRect(QRectF(-6, -5, 12, 11), 1, 1);
    painter.drawLine(QPointF(-3, -7), QPointF(-3, -4));
    painter.drawLine(QPointF(3, -7), QPointF(3, -4));
    painter.drawLine(QPointF(-6, -2), QPointF(6, -2));
    painter.setPen(Qt::NoPen);
    painter.setBrush(ink);
    for (const double y : {0.0, 3.0}) {
        for (const double x : {-3.5, 0.0, 3.5}) {
            painter.drawRect(QRectF(x - line / 2, y, line, line));
        }
    }
}
