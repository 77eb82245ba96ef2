#include "core/windows/DayCell.h"

#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <utility>

DayCell::DayCell(QWidget* parent)
    : QLabel(parent) {
    setTextFormat(Qt::PlainText);
    setAlignment(Qt::AlignCenter);
    setAttribute(Qt::WA_Hover);
    setEnabled(false);
}

void DayCell::setCell(const CalendarCell& cell) {
    cell_ = cell;
    setEnabled(cell.enabled);
    QFont weight = font();
    weight.setBold(cell.marked);
    setFont(weight);
    setText(cell.caption);
    update();
}

QSize DayCell::sizeHint() const {
    constexpr int around = 8;
    QFont bold = font();
    bold.setBold(true);
    const QFontMetrics metrics(bold);
    const int text = std::max(metrics.height(), metrics.horizontalAdvance(QStringLiteral("30")));
    return {text + 2 * around, text + around};
}

QSize DayCell::minimumSizeHint() const {
    return sizeHint();
}

void DayCell::mousePressEvent(QMouseEvent* event) {
    pressed_ = event->button() == Qt::LeftButton;
}

void DayCell::mouseReleaseEvent(QMouseEvent* event) {
    const bool pressed = std::exchange(pressed_, false);
    if (pressed && event->button() == Qt::LeftButton && rect().contains(event->position().toPoint())) {
        Q_EMIT clicked();
    }
}

void DayCell::paintEvent(QPaintEvent* /*event*/) {
    if (!cell_.enabled) {
        return;
    }
    constexpr double inset = 1;
    constexpr double corner = 4;
    constexpr double hoverOpacity = 0.15;
    const QRectF tile = QRectF(rect()).adjusted(inset, inset, -inset, -inset);
    const QColor accent = palette().color(QPalette::Highlight);
    const QColor onAccent = palette().color(QPalette::HighlightedText);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (cell_.marked || underMouse()) {
        painter.setOpacity(cell_.marked ? 1 : hoverOpacity);
        painter.setPen(Qt::NoPen);
        painter.setBrush(accent);
        painter.drawRoundedRect(tile, corner, corner);
        painter.setOpacity(1);
    }
    const QColor ink = cell_.marked ? onAccent : palette().color(QPalette::Text);
    if (cell_.today) {
        // Within the fill, so that today shows on the chosen day too.
        const double within = cell_.marked ? 2.5 : 0.5;
        painter.setPen(QPen(ink, 1));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(tile.adjusted(within, within, -within, -within), corner, corner);
    }
    painter.setPen(ink);
    painter.drawText(rect(), Qt::AlignCenter, text());
}
