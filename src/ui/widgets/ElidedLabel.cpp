#include "ui/widgets/ElidedLabel.h"

#include "ui/widgets/PlainToolTip.h"

#include <QEvent>
#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

ElidedLabel::ElidedLabel(QWidget* parent)
    : QFrame(parent) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void ElidedLabel::setText(const QString& text) {
    if (text == text_) {
        return;
    }
    text_ = text;
    setAccessibleDescription(text);
    updateGeometry();
    update();
}

void ElidedLabel::setTextMargin(int pixels) {
    margin_ = pixels;
    updateGeometry();
    update();
}

void ElidedLabel::setEndRoom(int pixels) {
    endRoom_ = pixels;
    updateGeometry();
    update();
}

QString ElidedLabel::shownText() const {
    return fontMetrics().elidedText(text_, Qt::ElideRight, textRect().width());
}

QRect ElidedLabel::textRect() const {
    return QStyle::visualRect(layoutDirection(), rect(),
                              contentsRect().adjusted(margin_, 0, -margin_ - endRoom_, 0));
}

QSize ElidedLabel::sizeHint() const {
    const int frame = 2 * frameWidth();
    return {fontMetrics().horizontalAdvance(text_) + 2 * margin_ + endRoom_ + frame + 1,
            fontMetrics().height() + frame};
}

QSize ElidedLabel::minimumSizeHint() const {
    // A layout asks often, and each answer would shape the dots anew.
    if (dotsWidth_ == 0) {
        dotsWidth_ = fontMetrics().horizontalAdvance(QStringLiteral("\u2026"));
    }
    return {2 * margin_ + endRoom_ + dotsWidth_, sizeHint().height()};
}

QColor ElidedLabel::textColor() const {
    return palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, foregroundRole());
}

void ElidedLabel::paintEvent(QPaintEvent* event) {
    QFrame::paintEvent(event);
    QPainter painter(this);
    painter.setPen(textColor());
    // Absolute, as the painter would mirror by the text's direction, not the window's.
    const Qt::Alignment start = layoutDirection() == Qt::RightToLeft ? Qt::AlignRight : Qt::AlignLeft;
    painter.drawText(textRect(),
                     static_cast<int>(start | Qt::AlignAbsolute | Qt::AlignVCenter) | Qt::TextSingleLine,
                     shownText());
}

void ElidedLabel::changeEvent(QEvent* event) {
    if (event->type() == QEvent::FontChange) {
        dotsWidth_ = 0;
    }
    QFrame::changeEvent(event);
}

bool ElidedLabel::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip && toolTip().isEmpty() && shownText() != text_) {
        QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), plainToolTip(text_), this);
        return true;
    }
    return QFrame::event(event);
}
