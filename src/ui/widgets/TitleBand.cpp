#include "ui/widgets/TitleBand.h"

#include "ui/widgets/ColorContrast.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QPainter>

namespace {

constexpr int windowEdge = 24;
constexpr int besideWidgets = 8;

} // namespace

TitleBand::TitleBand(QWidget* parent)
    : ElidedLabel(parent) {
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
    setText(shownCaption(caption));
    setAccessibleName(text().trimmed());
}

void TitleBand::setAccent(const std::optional<QColor>& color) {
    accent_ = color;
    colorWidgets();
    update();
}

void TitleBand::addWidget(QWidget* widget) {
    if (layout() == nullptr) {
        auto* row = new QHBoxLayout(this);
        row->setContentsMargins(windowEdge, besideWidgets, windowEdge, besideWidgets);
        row->addStretch(1);
    }
    static_cast<QHBoxLayout*>(layout())->addWidget(widget);
    setEndRoom(layout()->minimumSize().width() - windowEdge);
    colorWidgets();
}

void TitleBand::colorWidgets() {
    for (auto* widget : findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
        QPalette colors = widget->palette();
        colors.setColor(QPalette::Window, ground());
        colors.setColor(QPalette::WindowText, textColor());
        widget->setPalette(colors);
    }
}

QColor TitleBand::ground() const {
    return accent_.value_or(ColorContrast::paperGrey(palette()));
}

QColor TitleBand::textColor() const {
    return ColorContrast::textOn(ground());
}

QSize TitleBand::sizeHint() const {
    constexpr int above = 12;
    const QSize title = ElidedLabel::sizeHint() + QSize(0, 2 * above);
    return layout() == nullptr ? title : title.expandedTo(QSize(0, layout()->sizeHint().height()));
}

void TitleBand::paintEvent(QPaintEvent* event) {
    QPainter(this).fillRect(rect(), ground());
    ElidedLabel::paintEvent(event);
}

void TitleBand::changeEvent(QEvent* event) {
    if (event->type() == QEvent::PaletteChange) {
        colorWidgets();
        update();
    }
    ElidedLabel::changeEvent(event);
}
