#pragma once

#include "reports/pages/PageFonts.h"

#include <QPointF>
#include <QTextLayout>

class QPainter;

/// Between what a text is broken into lines; all in twips.
struct LineLimits {
    /// Room of a line, from the left edge.
    double width = 0;
    /// How much further to the right the first line begins.
    double firstIndent = 0;
    /// Distance of the tab stops, counted from the left edge.
    double tabDistance = 0;
    /// Words are never broken: a word too long for a line stands out at the right instead.
    bool wholeWords = false;
};

/// A text broken into lines. It is measured once, here; a device only ever draws the lines, so that all
/// devices show the same ones. All lines are equally high, also those that borrow letters of another face.
class LaidText {
public:
    LaidText(const QString& text, const TextStyle& style, const PageFont& font, const LineLimits& limits);
    LaidText(const LaidText&) = delete;
    LaidText& operator=(const LaidText&) = delete;
    ~LaidText() = default;

    /// The text as it was written.
    [[nodiscard]] const QString& text() const { return text_; }
    [[nodiscard]] const TextStyle& style() const { return style_; }
    [[nodiscard]] qint32 lineCount() const { return layout_.lineCount(); }
    [[nodiscard]] double lineHeight() const { return lineHeight_; }
    /// From the top of a line to its base line.
    [[nodiscard]] double ascent() const { return ascent_; }
    /// The part of the text that stands in a line, without the line end.
    [[nodiscard]] QString lineText(qint32 line) const;
    /// Where a line begins, from the left edge.
    [[nodiscard]] double lineLeft(qint32 line) const;
    /// How far the letters of a line reach.
    [[nodiscard]] double lineWidth(qint32 line) const;

    /// Draws a line with its top left corner at a point of a painter that works in twips.
    void drawLine(QPainter& painter, qint32 line, QPointF topLeft) const;

private:
    QString text_;
    TextStyle style_;
    QTextLayout layout_;
    double ascent_;
    double lineHeight_;
};
