#pragma once

#include "reports/pages/LaidText.h"

#include <QColor>
#include <QLineF>
#include <QRectF>
#include <QSizeF>

#include <memory>
#include <variant>
#include <vector>

/// Fill and outline of a shape.
struct ShapeStyle {
    /// Invalid for a shape that is not filled.
    QColor fill;
    QColor outline;
    double outlineWidth = 0;
    Qt::PenStyle outlineStyle = Qt::SolidLine;
};

/// A pie slice. Angles are radians, counter-clockwise from the right; the sweep is at least 0 and less than
/// a full turn.
struct Wedge {
    QPointF center;
    double radius = 0;
    double startAngle = 0;
    double sweep = 0;
    ShapeStyle style;
};

struct Disc {
    QPointF center;
    double radius = 0;
    ShapeStyle style;
};

struct Rectangle {
    QRectF area;
    ShapeStyle style;
};

/// One line of a paragraph. The lines of a paragraph share its text and may stand on several pages.
struct TextLine {
    std::shared_ptr<const LaidText> text;
    qint32 line = 0;
    /// Where the line begins on the page, without its own indent.
    QPointF topLeft;
    /// The text stands at a place of its own, as the letters of a chart do, and not in the flow.
    bool positioned = false;
};

/// A text of one or more lines turned about its top left corner.
struct TurnedText {
    std::shared_ptr<const LaidText> text;
    QPointF topLeft;
    /// Degrees, counter-clockwise.
    double angle = 0;
};

using PageItem = std::variant<TextLine, TurnedText, Wedge, Disc, Rectangle>;

/// Header or footer of a page.
struct RunningText {
    /// Null where the page has none.
    std::shared_ptr<const LaidText> text;
    QPointF topLeft;
    /// How many lines have room in the margin.
    qint32 shownLines = 0;
};

struct Page {
    /// In the order in which they were written: a later one covers an earlier one.
    std::vector<PageItem> items;
    RunningText header;
    /// The header was set for this page; otherwise it goes on from the page before.
    bool headerBegins = false;
    RunningText footer;
    /// The thin rules above and below the text area.
    std::vector<QLineF> rules;
    /// Colour behind the page where it is shown on a screen; paper stays white.
    QColor background = Qt::white;
};

/// A finished report: pages of items at fixed places, in twips from the top left corner of the page,
/// independent of any device.
struct PageDocument {
    QSizeF pageSize;
    /// What the whole is called; empty where its first header says that.
    QString title;
    std::vector<Page> pages;
};

/// The point of a circle at an angle (radians, counter-clockwise from the right, on a page where y grows
/// downwards).
[[nodiscard]] QPointF pointOnCircle(QPointF center, double radius, double angle);

/// The line that stands for a pen: pens of a twip or less would vanish, so no line is thinner than this.
inline constexpr double thinnestLine = 10;
