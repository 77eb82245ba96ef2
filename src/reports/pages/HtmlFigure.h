#pragma once

#include "reports/pages/PageDocument.h"

#include <QRectF>
#include <QString>
#include <QStringList>

/// A chart as HTML shows it: the shapes and positioned texts that follow one another on a page, gathered into
/// one picture of lines and real letters, in the order in which they were written.
class HtmlFigure {
public:
    void add(const TextLine& item);
    void add(const TurnedText& item);
    void add(const Wedge& item);
    void add(const Disc& item);
    void add(const Rectangle& item);

    [[nodiscard]] bool isEmpty() const { return picture_.isEmpty(); }
    /// The place that the figure takes on its page, in twips.
    [[nodiscard]] QRectF bounds() const { return bounds_; }

    /// The figure as an HTML element; `cssClass` may be empty.
    [[nodiscard]] QString html(QStringView cssClass) const;

private:
    void addLine(const LaidText& text, qint32 line, QPointF topLeft);
    void addShape(const QString& element, const QString& geometry, const ShapeStyle& style,
                  const QRectF& area);

    QString picture_;
    QStringList labels_;
    QRectF bounds_;
    bool hasWedges_ = false;
};
