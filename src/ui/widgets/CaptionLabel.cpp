#include "ui/widgets/CaptionLabel.h"

#include "ui/widgets/Caption.h"

#include <QEvent>

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

QSize CaptionLabel::textSize(int width) const {
    const QFontMetrics metrics = fontMetrics();
    if (text().isEmpty()) {
        return {0, metrics.lineSpacing()};
    }
    if (const auto known = sizes_.find(width); known != sizes_.end()) {
        return known->second;
    }
    if (!shaped_) {
        QString lines = text();
        lines.replace(u'\n', QChar::LineSeparator);
        shaped_ = std::make_unique<QTextLayout>(lines, font());
        shaped_->setCacheEnabled(true);
    }
    // Lines are broken and stacked as the label does when it paints.
    QSizeF size(0, -metrics.leading());
    shaped_->beginLayout();
    for (QTextLine line = shaped_->createLine(); line.isValid(); line = shaped_->createLine()) {
        line.setLineWidth(width);
        size = {std::max(size.width(), line.naturalTextWidth()),
                size.height() + metrics.leading() + line.height()};
    }
    shaped_->endLayout();
    const QSize whole(static_cast<int>(std::ceil(size.width())), static_cast<int>(std::ceil(size.height())));
    constexpr std::size_t mostKnown = 16; // a window that is dragged wider asks for hundreds
    if (sizes_.size() == mostKnown) {
        sizes_.clear();
    }
    sizes_.emplace(width, whole);
    return whole;
}

int CaptionLabel::heightForWidth(int width) const {
    const QMargins edges = contentsMargins();
    const int room = width - edges.left() - edges.right() - 2 * margin();
    return textSize(std::max(room, 1)).height() + edges.top() + edges.bottom() + 2 * margin();
}

QSize CaptionLabel::sizeHint() const {
    constexpr int comfortableLine = 48;
    return textSize(widthOfCharacters(comfortableLine));
}

QSize CaptionLabel::minimumSizeHint() const {
    constexpr int shortestLine = 16;
    return {std::min(widthOfCharacters(shortestLine), sizeHint().width()), fontMetrics().lineSpacing()};
}

void CaptionLabel::changeEvent(QEvent* event) {
    if (event->type() == QEvent::FontChange) {
        forgetSizes();
    }
    QLabel::changeEvent(event);
}
