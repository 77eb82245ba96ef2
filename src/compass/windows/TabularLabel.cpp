#include "compass/windows/TabularLabel.h"

#include <QPainter>

#include <algorithm>

namespace {

constexpr int columns = 3;
/// The longest fact: a name, a sign, fifteen digits, a separator and a leading zero.
const QString longestFact = QStringLiteral("Angle = -0.000000000000000");

} // namespace

TabularLabel::TabularLabel(QWidget* parent)
    : QLabel(parent) {
    setTextFormat(Qt::PlainText);
}

int TabularLabel::cell() const {
    int widest = 0;
    for (char digit = '0'; digit <= '9'; ++digit) {
        widest = std::max(widest, fontMetrics().horizontalAdvance(QLatin1Char(digit)));
    }
    return widest;
}

int TabularLabel::advanceOf(QChar character) const {
    return character.isDigit() ? cell() : fontMetrics().horizontalAdvance(character);
}

int TabularLabel::columnWidth() const {
    int width = 0;
    for (const QChar character : longestFact) {
        width += advanceOf(character);
    }
    return width;
}

QSize TabularLabel::sizeHint() const {
    return {columns * columnWidth(), fontMetrics().height()};
}

int TabularLabel::positionOf(qsizetype index) const {
    const QString shown = text();
    int column = 0;
    int position = 0;
    for (qsizetype i = 0; i < std::min(index, shown.size()); ++i) {
        position += advanceOf(shown.at(i));
        // The comma of a number has no blank after it; that of the next fact has.
        if (i > 0 && shown.at(i) == u' ' && shown.at(i - 1) == u',') {
            ++column;
            position = std::max(position, column * columnWidth());
        }
    }
    return position;
}

void TabularLabel::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::WindowText));
    const QString shown = text();
    const int baseline = (height() - fontMetrics().height()) / 2 + fontMetrics().ascent();
    for (qsizetype i = 0; i < shown.size(); ++i) {
        const bool separator = i + 1 < shown.size() && shown.at(i) == u',' && shown.at(i + 1) == u' ';
        if (!separator) { // the columns part the facts for the eye
            painter.drawText(positionOf(i), baseline, shown.at(i));
        }
    }
}
