#include "ui/widgets/TitleBand.h"

#include "ui/widgets/ColorContrast.h"

#include <QEvent>
#include <QPainter>

namespace {

/// What a caption looks like: "&&" as an ampersand, the mark of an accelerator not at all.
QString displayed(const QString& caption) {
    QString shown;
    for (qsizetype i = 0; i < caption.size(); ++i) {
        if (caption.at(i) == u'&') {
            ++i;
            if (i == caption.size()) {
                break;
            }
        }
        shown.append(caption.at(i));
    }
    return shown;
}

} // namespace

TitleBand::TitleBand(QWidget* parent)
    : ElidedLabel(parent) {
    constexpr int windowEdge = 24;
    setTextMargin(windowEdge);
    setTitleFont();
}

void TitleBand::setTitleFont() {
    constexpr double titleSize = 1.4;
    QFont title = parentWidget() != nullptr ? parentWidget()->font() : QFont();
    if (title.pointSizeF() > 0) {
        title.setPointSizeF(title.pointSizeF() * titleSize);
    } else {
        title.setPixelSize(qRound(title.pixelSize() * titleSize));
    }
    title.setWeight(QFont::DemiBold);
    setFont(title);
}

void TitleBand::setCaption(const QString& caption) {
    caption_ = caption;
    setText(displayed(caption));
    setAccessibleName(text().trimmed());
}

void TitleBand::setAccent(const std::optional<QColor>& color) {
    accent_ = color;
    update();
}

QColor TitleBand::ground() const {
    return accent_.value_or(ColorContrast::paperGrey(palette()));
}

QColor TitleBand::textColor() const {
    return ColorContrast::textOn(ground());
}

QSize TitleBand::sizeHint() const {
    constexpr int above = 12;
    return ElidedLabel::sizeHint() + QSize(0, 2 * above);
}

void TitleBand::paintEvent(QPaintEvent* event) {
    QPainter(this).fillRect(rect(), ground());
    ElidedLabel::paintEvent(event);
}

void TitleBand::changeEvent(QEvent* event) {
    if (event->type() == QEvent::PaletteChange) {
        update();
    }
    ElidedLabel::changeEvent(event);
}

QString captionText(QString text) {
    return text.replace(u'&', QStringLiteral("&&"));
}
