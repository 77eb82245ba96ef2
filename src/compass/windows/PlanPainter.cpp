#include "compass/windows/PlanPainter.h"

#include "compass/PlanPicture.h"
#include "ui/widgets/ColorContrast.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace {

const QColor ink(0x1E, 0x1E, 0x1E);

/// Beyond this many units outside its area nothing can be seen, and the painter would lose count.
constexpr double farAway = 100000;

double degrees(float radians) {
    return static_cast<double>(radians) * 180 / std::numbers::pi;
}

enum class Layer { Shapes, Names, Letters };

Layer layerOf(const PlanItem& item) {
    const auto* text = std::get_if<PlanText>(&item);
    if (text == nullptr) {
        return Layer::Shapes;
    }
    return text->bold ? Layer::Letters : Layer::Names;
}

/// Paints single items of a picture.
class ItemPainter {
public:
    ItemPainter(QPainter& painter, const QRectF& area, const PlanPens& pens)
        : painter_(painter)
        , area_(area)
        , pens_(pens) {
        setScale({});
    }

    void setScale(const PlanScale& scale) {
        const auto width = static_cast<double>(scale.ScaleWidth);
        const auto height = static_cast<double>(scale.ScaleHeight);
        isVisible_ = width > 0 && height > 0;
        if (!isVisible_) {
            return;
        }
        unitsPerInch_ = std::min(area_.width() / width, area_.height() / height);
        origin_ = area_.center() - QPointF(width, height) * (unitsPerInch_ / 2) -
                  QPointF(static_cast<double>(scale.ScaleLeft), static_cast<double>(scale.ScaleTop)) *
                      unitsPerInch_;
    }

    /// A scale is nothing to be seen.
    void paint(const PlanScale& /*scale*/) {}

    void paint(const PlanLine& line) {
        painter_.setPen(QPen(ink, pens_.lineWidth));
        painter_.drawLine(onGrid(at(line.x1, line.y1)), onGrid(at(line.x2, line.y2)));
    }

    void paint(const PlanArc& arc) {
        const QPointF centre = at(arc.x, arc.y);
        const double radius = static_cast<double>(arc.radius) * unitsPerInch_;
        const QColor color = ColorContrast::fromStored(arc.color);
        painter_.setPen(QPen(arc.color == 0 ? ink : color, pens_.lineWidth));
        painter_.setBrush(arc.fill ? QBrush(ColorContrast::fromStored(*arc.fill)) : QBrush(Qt::NoBrush));
        if (radius <= 0) {
            return;
        }
        if (arc.span) {
            painter_.drawPath(slice(centre, radius, *arc.span));
        } else {
            painter_.drawEllipse(centre, radius, radius);
        }
    }

    void paint(const PlanText& text) {
        const QPointF point = at(text.x, text.y);
        if (std::abs(point.x()) >= farAway || std::abs(point.y()) >= farAway) {
            return;
        }
        QFont font = pens_.font;
        if (text.fontSize > 0) {
            font.setPixelSize(qRound(static_cast<double>(text.fontSize) * pens_.unitsPerPoint));
        }
        font.setBold(text.bold);
        const QFontMetricsF metrics(font, painter_.device());
        QPointF baseline = point + QPointF(0, metrics.ascent());
        for (const QString& line : linesOf(text, metrics)) {
            paintLine(line, baseline, font);
            baseline.ry() += metrics.lineSpacing();
        }
    }

    /// Whether what is painted now has an extent.
    [[nodiscard]] bool isVisible() const { return isVisible_; }

private:
    [[nodiscard]] QPointF at(float x, float y) const {
        const QPointF point =
            origin_ + QPointF(static_cast<double>(x), static_cast<double>(y)) * unitsPerInch_;
        return {std::clamp(point.x(), -farAway, farAway), std::clamp(point.y(), -farAway, farAway)};
    }

    /// The text in lines that keep to its space; at least one.
    [[nodiscard]] QStringList linesOf(const PlanText& text, const QFontMetricsF& metrics) const {
        const double width = static_cast<double>(text.space.width) * unitsPerInch_;
        if (width <= 0 || metrics.horizontalAdvance(text.text) <= width) {
            return {text.text};
        }
        const double height = static_cast<double>(text.space.height) * unitsPerInch_;
        const auto most = std::max<qsizetype>(static_cast<qsizetype>(height / metrics.lineSpacing()), 1);
        QStringList lines;
        for (const QString& word : text.text.split(u' ', Qt::SkipEmptyParts)) {
            const QString longer = lines.isEmpty() ? word : lines.last() + u' ' + word;
            if (lines.isEmpty() || (lines.size() < most && metrics.horizontalAdvance(longer) > width)) {
                lines << word;
            } else {
                lines.last() = longer;
            }
        }
        for (QString& line : lines) {
            line = metrics.elidedText(line, Qt::ElideRight, width);
        }
        return lines;
    }

    void paintLine(const QString& line, const QPointF& baseline, const QFont& font) {
        // A rim of paper keeps a text legible where walls or another text cross it.
        QPainterPath outline;
        outline.addText(baseline, font, line);
        constexpr int rimStrength = 190;
        constexpr double rimWidth = 3;
        painter_.strokePath(outline, QPen(QColor(255, 255, 255, rimStrength), rimWidth * pens_.lineWidth,
                                          Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter_.setFont(font);
        painter_.setPen(ink);
        painter_.drawText(baseline, line);
    }

    /// The middle of the nearest unit, where an upright line is crisp.
    static QPointF onGrid(const QPointF& point) {
        return {std::floor(point.x()) + 0.5, std::floor(point.y()) + 0.5};
    }

    /// An arc with a line to the centre at each end whose angle is below 0.
    static QPainterPath slice(const QPointF& centre, double radius, const PlanArc::Span& span) {
        const QRectF circle(centre.x() - radius, centre.y() - radius, 2 * radius, 2 * radius);
        const double start = degrees(std::abs(span.start));
        double sweep = degrees(std::abs(span.end)) - start;
        if (sweep < 0) {
            sweep += 360;
        }
        QPainterPath path;
        if (span.start < 0) {
            path.moveTo(centre);
        } else {
            path.arcMoveTo(circle, start);
        }
        path.arcTo(circle, start, sweep);
        if (span.end < 0) {
            path.lineTo(centre);
        }
        return path;
    }

    QPainter& painter_;
    QRectF area_;
    const PlanPens& pens_;
    bool isVisible_ = false;
    double unitsPerInch_ = 1;
    QPointF origin_;
};

} // namespace

void paintPlan(QPainter& painter, const PlanPicture& picture, const QRectF& area, const PlanPens& pens) {
    painter.save();
    painter.setClipRect(area, Qt::IntersectClip);
    painter.setRenderHint(QPainter::Antialiasing);
    // Names stand above all walls, and the few bold letters of the compass above all names.
    for (const Layer layer : {Layer::Shapes, Layer::Names, Layer::Letters}) {
        ItemPainter items(painter, area, pens);
        for (const PlanItem& item : picture.items()) {
            if (const auto* scale = std::get_if<PlanScale>(&item)) {
                items.setScale(*scale);
            } else if (items.isVisible() && layerOf(item) == layer) {
                std::visit([&](const auto& drawn) { items.paint(drawn); }, item);
            }
        }
    }
    painter.restore();
}
