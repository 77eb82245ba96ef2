#include "ui/widgets/CaptionLabel.h"

#include "ui/widgets/Caption.h"

#include <QEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>

CaptionLabel::CaptionLabel(const QString& name, QWidget* parent)
    : QLabel(parent) {
    setObjectName(name);
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    setAlignment(Qt::AlignTop | Qt::AlignLeading);
}

void CaptionLabel::setCaption(const QString& caption) {
    caption_ = caption;
    QString shown = shownCaption(caption).replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    while (shown.endsWith(u'\n')) {
        shown.chop(1);
    }
    setText(shown);
    forgetSizes();
}

void CaptionLabel::forgetSizes() {
    shaped_.reset();
    sizes_.clear();
}

int CaptionLabel::widthOfCharacters(int count) const {
    return count * fontMetrics().averageCharWidth();
}

QSizeF CaptionLabel::layLines(int width) const {
    const qreal leading = fontMetrics().leading();
    if (!shaped_) {
        QString lines = text();
        lines.replace(u'\n', QChar::LineSeparator);
        shaped_ = std::make_unique<QTextLayout>(lines, font());
        QTextOption option(Qt::AlignLeading);
        option.setTextDirection(layoutDirection());
        shaped_->setTextOption(option);
        shaped_->setCacheEnabled(true);
        // The layout is never ended: to end it and begin anew would throw away the shapes with the lines.
        shaped_->beginLayout();
    }
    shaped_->clearLayout();
    QSizeF size(0, -leading);
    for (QTextLine line = shaped_->createLine(); line.isValid(); line = shaped_->createLine()) {
        line.setLineWidth(width);
        size.rheight() += leading;
        line.setPosition({0, size.height()});
        size = {std::max(size.width(), line.naturalTextWidth()), size.height() + line.height()};
    }
    laidWidth_ = width;
    return size;
}

QSize CaptionLabel::textSize(int width) const {
    if (text().isEmpty()) {
        return {0, fontMetrics().lineSpacing()};
    }
    if (const auto known = sizes_.find(width); known != sizes_.end()) {
        return known->second;
    }
    const QSizeF size = layLines(width);
    const QSize whole(static_cast<int>(std::ceil(size.width())), static_cast<int>(std::ceil(size.height())));
    constexpr std::size_t mostKnown = 16; // a window that is dragged wider asks for hundreds
    if (sizes_.size() == mostKnown) {
        sizes_.clear();
    }
    sizes_.emplace(width, whole);
    return whole;
}

int CaptionLabel::textWidth(int labelWidth) const {
    const QMargins edges = contentsMargins();
    return std::max(labelWidth - edges.left() - edges.right() - 2 * margin(), 1);
}

int CaptionLabel::heightForWidth(int width) const {
    const QMargins edges = contentsMargins();
    return textSize(textWidth(width)).height() + edges.top() + edges.bottom() + 2 * margin();
}

QSize CaptionLabel::sizeHint() const {
    constexpr int comfortableLine = 48;
    return textSize(widthOfCharacters(comfortableLine));
}

QSize CaptionLabel::minimumSizeHint() const {
    constexpr int shortestLine = 16;
    return {std::min(widthOfCharacters(shortestLine), sizeHint().width()), fontMetrics().lineSpacing()};
}

void CaptionLabel::paintEvent(QPaintEvent* /*event*/) {
    const int room = textWidth(width());
    if (!text().isEmpty() && (!shaped_ || laidWidth_ != room)) {
        layLines(room);
    }
    QPainter painter(this);
    drawFrame(&painter);
    if (shaped_) {
        painter.setPen(palette().color(foregroundRole()));
        shaped_->draw(&painter, contentsRect().topLeft() + QPointF(margin(), margin()));
    }
}

void CaptionLabel::changeEvent(QEvent* event) {
    if (event->type() == QEvent::FontChange || event->type() == QEvent::LayoutDirectionChange) {
        forgetSizes();
    }
    QLabel::changeEvent(event);
}
