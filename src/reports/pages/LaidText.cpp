#include "reports/pages/LaidText.h"

#include <QPainter>
#include <QTextOption>

#include <algorithm>

namespace {

constexpr double twipsPerPoint = 20;

/// The line ends as the layout knows them.
QString withLineSeparators(QString text) {
    text.replace(QStringLiteral("\r\n"), QString(QChar::LineSeparator));
    for (const QChar end : {QChar(u'\r'), QChar(u'\n'), QChar(QChar::ParagraphSeparator)}) {
        text.replace(end, QChar(QChar::LineSeparator));
    }
    return text;
}

QTextOption optionOf(const LineLimits& limits) {
    QTextOption option(Qt::AlignLeft | Qt::AlignAbsolute);
    option.setWrapMode(limits.wholeWords ? QTextOption::WordWrap : QTextOption::WrapAtWordBoundaryOrAnywhere);
    option.setTabStopDistance(std::max(limits.tabDistance, 1.0));
    option.setUseDesignMetrics(true);
    return option;
}

} // namespace

LaidText::LaidText(const QString& text, const TextStyle& style, const PageFont& font,
                   const LineLimits& limits)
    : text_(text)
    , style_(style)
    , layout_(withLineSeparators(text), font.font)
    , ascent_(font.ascent)
    , lineHeight_(font.lineHeight) {
    layout_.setTextOption(optionOf(limits));
    layout_.setCacheEnabled(true); // keeps the shaped letters, or every painting would shape them anew
    layout_.beginLayout();
    double indent = limits.firstIndent;
    for (QTextLine line = layout_.createLine(); line.isValid(); line = layout_.createLine()) {
        line.setPosition({indent, 0}); // before the width is set, since tab stops count from the left edge
        line.setLineWidth(std::max(limits.width - indent, 1.0));
        indent = 0;
    }
    layout_.endLayout();
}

QString LaidText::lineText(qint32 line) const {
    const QTextLine found = layout_.lineAt(line);
    QString part = layout_.text().mid(found.textStart(), found.textLength());
    if (part.endsWith(QChar::LineSeparator)) {
        part.chop(1);
    }
    return part;
}

double LaidText::lineLeft(qint32 line) const {
    return layout_.lineAt(line).position().x();
}

double LaidText::lineWidth(qint32 line) const {
    return layout_.lineAt(line).naturalTextWidth();
}

void LaidText::drawLine(QPainter& painter, qint32 line, QPointF topLeft) const {
    const QTextLine found = layout_.lineAt(line);
    const double baseline = topLeft.y() + ascent_;
    found.draw(&painter, {topLeft.x(), baseline - found.ascent()});
    if (style_.underline) {
        // The usual share of the letters' size, clear of them: what some faces tell of their own underline
        // would cut through the letters' feet.
        constexpr double underlineBelowBaseline = 0.11;
        constexpr double underlineThickness = 0.06;
        const double size = style_.points * twipsPerPoint;
        painter.fillRect(QRectF(topLeft.x() + found.position().x(), baseline + underlineBelowBaseline * size,
                                found.naturalTextWidth(), underlineThickness * size),
                         painter.pen().color());
    }
}
