#include "reports/pages/PagePainter.h"

#include "reports/pages/PageDocument.h"

#include <QPainter>
#include <QPainterPath>
#include <QtMath>

#include <algorithm>
#include <cmath>

namespace {

/// Draws the items of a page, one overload for each kind.
class ItemPainter {
public:
    explicit ItemPainter(QPainter& painter)
        : painter_(painter) {}

    void operator()(const TextLine& item) { drawText(*item.text, item.line, 1, item.topLeft); }

    void operator()(const TurnedText& item) {
        painter_.save();
        painter_.translate(item.topLeft);
        painter_.rotate(-item.angle); // the painter turns clockwise
        drawText(*item.text, 0, item.text->lineCount(), {});
        painter_.restore();
    }

    void operator()(const Wedge& item) {
        const QPointF extent(item.radius, item.radius);
        QPainterPath path(item.center);
        path.arcTo(QRectF(item.center - extent, item.center + extent), qRadiansToDegrees(item.startAngle),
                   qRadiansToDegrees(item.sweep));
        path.closeSubpath();
        use(item.style);
        painter_.drawPath(path);
    }

    void operator()(const Disc& item) {
        use(item.style);
        painter_.drawEllipse(item.center, item.radius, item.radius);
    }

    void operator()(const Rectangle& item) {
        use(item.style);
        painter_.drawRect(item.area);
    }

    void operator()(const RunningText& item) {
        if (item.text != nullptr) {
            drawText(*item.text, 0, item.shownLines, item.topLeft);
        }
    }

private:
    void drawText(const LaidText& text, qint32 firstLine, qint32 count, QPointF topLeft) {
        painter_.setPen(text.style().color);
        for (qint32 index = 0; index < count; ++index) {
            text.drawLine(painter_, firstLine + index, topLeft + QPointF(0, index * text.lineHeight()));
        }
    }

    void use(const ShapeStyle& style) {
        painter_.setPen(QPen(style.outline, std::max(style.outlineWidth, thinnestLine), style.outlineStyle,
                             Qt::FlatCap, Qt::RoundJoin));
        painter_.setBrush(style.fill.isValid() ? QBrush(style.fill) : QBrush());
    }

    QPainter& painter_;
};

} // namespace

QPointF pointOnCircle(QPointF center, double radius, double angle) {
    return center + QPointF(radius * std::cos(angle), -radius * std::sin(angle));
}

void paintPage(QPainter& painter, const PageDocument& document, qint32 page, PaintTarget target) {
    if (page < 0 || static_cast<std::size_t>(page) >= document.pages.size()) {
        return;
    }
    const Page& shown = document.pages[static_cast<std::size_t>(page)];
    painter.save();
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    const QRectF paper(QPointF(), document.pageSize);
    painter.setClipRect(paper, Qt::IntersectClip);
    if (target == PaintTarget::Screen) {
        painter.fillRect(paper, shown.background);
    }
    ItemPainter itemPainter(painter);
    for (const PageItem& item : shown.items) {
        std::visit(itemPainter, item);
    }
    painter.setPen(QPen(Qt::black, thinnestLine));
    for (const QLineF& rule : shown.rules) {
        painter.drawLine(rule);
    }
    itemPainter(shown.header);
    itemPainter(shown.footer);
    painter.restore();
}
