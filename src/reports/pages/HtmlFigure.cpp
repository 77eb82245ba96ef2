#include "reports/pages/HtmlFigure.h"

#include "reports/pages/HtmlText.h"

#include <QTransform>

#include <algorithm>

namespace {

constexpr double twipsPerPoint = 20;

QString pointText(QPointF point) {
    return htmlNumber(point.x()) + u' ' + htmlNumber(point.y());
}

QRectF around(QPointF center, double radius) {
    return {center.x() - radius, center.y() - radius, 2 * radius, 2 * radius};
}

QRectF lineArea(const LaidText& text, qint32 line, QPointF topLeft) {
    return {topLeft.x() + text.lineLeft(line), topLeft.y(), text.lineWidth(line), text.lineHeight()};
}

QString lettersCss(const TextStyle& style) {
    QString css;
    if (style.bold) {
        css += QLatin1String(" font-weight=\"bold\"");
    }
    if (style.italic) {
        css += QLatin1String(" font-style=\"italic\"");
    }
    if (style.underline) {
        css += QLatin1String(" text-decoration=\"underline\"");
    }
    return css;
}

/// The dashes of an outline as SVG counts them: in units, where a pen counts in its own widths.
QString dashes(const ShapeStyle& style) {
    QStringList lengths;
    const double width = std::max(style.outlineWidth, thinnestLine);
    for (const double length : QPen(QBrush(), 1, style.outlineStyle).dashPattern()) {
        lengths += htmlNumber(length * width);
    }
    return lengths.isEmpty() ? QString() : QStringLiteral(" stroke-dasharray=\"%1\"").arg(lengths.join(u' '));
}

} // namespace

void HtmlFigure::add(const TextLine& item) {
    if (item.line == 0) {
        labels_ += item.text->text().simplified();
    }
    addLine(*item.text, item.line, item.topLeft);
}

void HtmlFigure::add(const TurnedText& item) {
    labels_ += item.text->text().simplified();
    const QTransform turn = QTransform::fromTranslate(item.topLeft.x(), item.topLeft.y()).rotate(-item.angle);
    const QRectF before = bounds_;
    bounds_ = {};
    picture_ += QStringLiteral("<g transform=\"translate(%1) rotate(%2)\">\n")
                    .arg(pointText(item.topLeft), htmlNumber(-item.angle));
    for (qint32 line = 0; line < item.text->lineCount(); ++line) {
        addLine(*item.text, line, {0, line * item.text->lineHeight()});
    }
    picture_ += QLatin1String("</g>\n");
    bounds_ = before.united(turn.mapRect(bounds_));
}

void HtmlFigure::add(const Wedge& item) {
    hasWedges_ = true;
    const QPointF from = pointOnCircle(item.center, item.radius, item.startAngle);
    const QPointF to = pointOnCircle(item.center, item.radius, item.startAngle + item.sweep);
    const QString radius = htmlNumber(item.radius);
    const QString path =
        QStringLiteral("d=\"M%1 L%2 A%3 %3 0 %4 0 %5 Z\"")
            .arg(pointText(item.center), pointText(from), radius,
                 item.sweep > M_PI ? QStringLiteral("1") : QStringLiteral("0"), pointText(to));
    addShape(QStringLiteral("path"), path, item.style, around(item.center, item.radius));
}

void HtmlFigure::add(const Disc& item) {
    const QString geometry =
        QStringLiteral("cx=\"%1\" cy=\"%2\" r=\"%3\"")
            .arg(htmlNumber(item.center.x()), htmlNumber(item.center.y()), htmlNumber(item.radius));
    addShape(QStringLiteral("circle"), geometry, item.style, around(item.center, item.radius));
}

void HtmlFigure::add(const Rectangle& item) {
    const QString geometry = QStringLiteral("x=\"%1\" y=\"%2\" width=\"%3\" height=\"%4\"")
                                 .arg(htmlNumber(item.area.x()), htmlNumber(item.area.y()),
                                      htmlNumber(item.area.width()), htmlNumber(item.area.height()));
    addShape(QStringLiteral("rect"), geometry, item.style, item.area);
}

void HtmlFigure::addLine(const LaidText& text, qint32 line, QPointF topLeft) {
    const TextStyle& style = text.style();
    const QPointF base(topLeft.x() + text.lineLeft(line), topLeft.y() + text.ascent());
    picture_ += QStringLiteral("<text x=\"%1\" y=\"%2\" font-size=\"%3\" fill=\"%4\"%5>")
                    .arg(htmlNumber(base.x()), htmlNumber(base.y()), htmlNumber(style.points * twipsPerPoint),
                         style.color.name(), lettersCss(style));
    appendEscaped(picture_, text.lineText(line));
    picture_ += QLatin1String("</text>\n");
    bounds_ = bounds_.united(lineArea(text, line, topLeft));
}

void HtmlFigure::addShape(const QString& element, const QString& geometry, const ShapeStyle& style,
                          const QRectF& area) {
    const bool outlined = style.outlineStyle != Qt::NoPen;
    picture_ += QStringLiteral("<%1 %2 fill=\"%3\" stroke=\"%4\" stroke-width=\"%5\"%6/>\n")
                    .arg(element, geometry, style.fill.isValid() ? style.fill.name() : QStringLiteral("none"),
                         outlined ? style.outline.name() : QStringLiteral("none"),
                         htmlNumber(std::max(style.outlineWidth, thinnestLine)), dashes(style));
    bounds_ = bounds_.united(area);
}

QString HtmlFigure::html(QStringView cssClass) const {
    const QRectF shown = bounds_.adjusted(-thinnestLine, -thinnestLine, thinnestLine, thinnestLine);
    QString html = cssClass.isEmpty() ? QStringLiteral("<figure>\n")
                                      : QStringLiteral("<figure class=\"%1\">\n").arg(cssClass);
    html += QStringLiteral(
                "<svg xmlns=\"http://www.w3.org/2000/svg\" role=\"img\" width=\"%1pt\" height=\"%2pt\" "
                "viewBox=\"%3 %4\" aria-label=\"")
                .arg(htmlNumber(shown.width() / twipsPerPoint), htmlNumber(shown.height() / twipsPerPoint),
                     pointText(shown.topLeft()), pointText({shown.width(), shown.height()}));
    const QString kind = hasWedges_ ? QStringLiteral("Chart") : QStringLiteral("Drawing");
    appendEscaped(html,
                  labels_.isEmpty() ? kind : kind + QLatin1String(": ") + labels_.join(QLatin1String(", ")));
    return html + QLatin1String("\">\n") + picture_ + QLatin1String("</svg>\n</figure>\n");
}
