#include "ui/widgets/PicturePanel.h"

#include "ui/widgets/Caption.h"
#include "ui/widgets/ColorContrast.h"

#include <QEvent>
#include <QPainter>
#include <QStyle>
#include <QTextLayout>

#include <algorithm>

namespace {

constexpr int side = 60;
constexpr int corner = 8;
constexpr int gap = 8;
/// The lines that a caption may take; the longest takes two at the usual widths.
constexpr int lines = 3;
constexpr int narrowestCaption = 96;

/// The text with a bar to line breaks behind its hyphens, so that "North-West" stays whole.
QString unbrokenAtHyphens(QString text) {
    return text.replace(u'-', QStringLiteral("-\u2060"));
}

} // namespace

PicturePanel::PicturePanel(const QString& name, Place captionPlace, QWidget* parent)
    : QWidget(parent)
    , captionPlace_(captionPlace) {
    setObjectName(name);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void PicturePanel::setCaption(const QString& leadIn, const QString& value) {
    leadIn_ = leadIn;
    value_ = value;
    setAccessibleName(shownCaption(caption()));
    update();
}

void PicturePanel::setPicture(const QIcon& picture) {
    picture_ = picture;
    update();
}

void PicturePanel::setPlaceMarked(bool marked) {
    placeMarked_ = marked;
    update();
}

int PicturePanel::captionHeight() const {
    return lines * fontMetrics().lineSpacing();
}

QSize PicturePanel::sizeHint() const {
    const QMargins edges = contentsMargins();
    const QSize content = captionPlace_ == Place::Beside
                              ? QSize(side + gap + narrowestCaption, std::max(side, captionHeight()))
                              : QSize(std::max(side, narrowestCaption), side + gap + captionHeight());
    return content.grownBy(edges);
}

QSize PicturePanel::minimumSizeHint() const {
    return sizeHint();
}

QRect PicturePanel::pictureRect() const {
    const QRect room = contentsRect();
    QRect place(room.topLeft(), QSize(side, side));
    if (captionPlace_ == Place::Under) {
        place.moveLeft(room.left() + (room.width() - side) / 2);
    } else {
        place.moveTop(room.top() + (room.height() - side) / 2);
    }
    return QStyle::visualRect(layoutDirection(), room, place);
}

QRect PicturePanel::captionRect() const {
    const QRect room = contentsRect();
    const QRect place = captionPlace_ == Place::Under ? room.adjusted(0, side + gap, 0, 0)
                                                      : room.adjusted(side + gap, 0, 0, 0);
    return QStyle::visualRect(layoutDirection(), room, place);
}

void PicturePanel::paintEvent(QPaintEvent* /*event*/) {
    // Opaque colours: Qt hands every translucent fill with smooth edges to threads, which costs more than the
    // fill.
    const auto tint = [this](double strength) {
        return ColorContrast::between(palette().color(backgroundRole()),
                                      palette().color(QPalette::WindowText), strength);
    };
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (!picture_.isNull()) {
        picture_.paint(&painter, pictureRect());
        // A white tile would have no edge on a white page.
        constexpr double hairline = 0.15;
        constexpr double half = 0.5;
        painter.setPen(tint(hairline));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(QRectF(pictureRect()).adjusted(half, half, -half, -half), corner, corner);
    } else if (placeMarked_) {
        constexpr double faint = 0.08;
        painter.setPen(Qt::NoPen);
        painter.setBrush(tint(faint));
        painter.drawRoundedRect(pictureRect(), corner, corner);
    }
    paintCaption(painter);
}

void PicturePanel::paintCaption(QPainter& painter) const {
    const QString leadIn = shownCaption(leadIn_);
    const QString value = unbrokenAtHyphens(shownCaption(value_));
    QTextLayout layout(leadIn + value, font());
    const bool mirrored = layoutDirection() == Qt::RightToLeft;
    QTextOption option(captionPlace_ == Place::Under ? Qt::AlignHCenter
                       : mirrored                    ? Qt::AlignRight
                                                     : Qt::AlignLeft);
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    option.setTextDirection(layoutDirection());
    layout.setTextOption(option);
    QTextLayout::FormatRange bold;
    bold.start = static_cast<int>(leadIn.size());
    bold.length = static_cast<int>(value.size());
    // A band's letters are heavy already: one face less to load.
    bold.format.setFontWeight(font().weight() < QFont::DemiBold ? QFont::Bold : font().weight());
    layout.setFormats({bold});

    const QRect room = captionRect();
    qreal height = 0;
    layout.beginLayout();
    for (int i = 0; i < lines; ++i) {
        QTextLine line = layout.createLine();
        if (!line.isValid()) {
            break;
        }
        line.setLineWidth(room.width());
        line.setPosition({0, height});
        height += line.height();
    }
    layout.endLayout();
    const qreal top =
        captionPlace_ == Place::Under ? room.top() : room.top() + std::max(0.0, (room.height() - height) / 2);
    painter.setPen(palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, foregroundRole()));
    layout.draw(&painter, QPointF(room.left(), top));
}

void PicturePanel::changeEvent(QEvent* event) {
    if (event->type() == QEvent::FontChange) {
        updateGeometry();
    }
    QWidget::changeEvent(event);
}
