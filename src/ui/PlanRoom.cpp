#include "ui/PlanRoom.h"

#include "core/Failure.h"
#include "ui/FeetInches.h"
#include "ui/PlanView.h"
#include "ui/widgets/AccessibleRole.h"
#include "ui/widgets/PlainToolTip.h"

#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>

namespace {

const QColor ink(0x1E, 0x1E, 0x1E);
constexpr int textEdge = 4;

void refuseNegative(float extent) {
    if (extent < 0) {
        throw failure(ErrorNumber::InvalidPropertyValue);
    }
}

} // namespace

const QColor PlanRoom::selectionColor(200, 220, 250);

PlanRoom::PlanRoom(qint32 index, PlanView& plan)
    : QWidget(&plan)
    , plan_(plan)
    , index_(index) {
    setObjectName(QStringLiteral("recRoom"));
    setAccessibleRole(*this, QAccessible::ListItem);
    setFocusPolicy(Qt::ClickFocus);
    setCursor(Qt::OpenHandCursor);
    setAttribute(Qt::WA_OpaquePaintEvent);
    hide();
    placeOnPlan();
}

void PlanRoom::setWidth(float inches) {
    refuseNegative(inches);
    width_ = inches;
    placeOnPlan();
}

void PlanRoom::setHeight(float inches) {
    refuseNegative(inches);
    height_ = inches;
    placeOnPlan();
}

void PlanRoom::Move(float left, float top) {
    left_ = left;
    top_ = top;
    placeOnPlan();
}

void PlanRoom::placeOnPlan() {
    setGeometry(plan_.toPixels(left_, top_, width_, height_));
    setAccessibleDescription(placeText());
}

QString PlanRoom::placeText() const {
    return tr("%1 wide, %2 long; %3 from the left, %4 from the top")
        .arg(feetAndInches(width_), feetAndInches(height_), feetAndInches(left_), feetAndInches(top_));
}

void PlanRoom::setDescription(const QString& description) {
    description_ = description;
    lines_ = description.split(u' ');
    setAccessibleName(description);
    update();
}

void PlanRoom::setSelected(bool selected) {
    selected_ = selected;
    update();
}

QRect PlanRoom::textArea() const {
    return rect().adjusted(textEdge, textEdge, -textEdge, -textEdge);
}

bool PlanRoom::textFits() const {
    const QRect area = textArea();
    return lines_.size() * fontMetrics().height() <= area.height() &&
           std::all_of(lines_.begin(), lines_.end(), [&](const QString& line) {
               return fontMetrics().horizontalAdvance(line) <= area.width();
           });
}

bool PlanRoom::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip) {
        // A name that can be read needs no second showing.
        const QPoint at = static_cast<QHelpEvent*>(event)->globalPos();
        QToolTip::showText(at, textFits() ? QString() : plainToolTip(description_), this);
        return true;
    }
    return QWidget::event(event);
}

void PlanRoom::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.fillRect(rect(), selected_ ? selectionColor : QColor(Qt::white));
    painter.setPen(ink);
    const QRect area = textArea();
    const int lineHeight = painter.fontMetrics().height();
    for (qsizetype i = 0; i < lines_.size() && area.height() >= lineHeight; ++i) {
        const int top = area.top() + static_cast<int>(i) * lineHeight;
        if (top + lineHeight > area.bottom() + textEdge) {
            break;
        }
        const QString shown = painter.fontMetrics().elidedText(lines_.at(i), Qt::ElideRight, area.width());
        painter.drawText(QRect(area.left(), top, area.width(), lineHeight), Qt::AlignLeft | Qt::AlignVCenter,
                         shown);
    }
    const int outline = selected_ ? 2 : 1;
    for (int inset = 0; inset < outline; ++inset) {
        painter.drawRect(rect().adjusted(inset, inset, -1 - inset, -1 - inset));
    }
    if (hasFocus()) { // so that the keyboard's user sees that the arrow keys move the room now
        // Within the outline, made wider by one: further in stands the name.
        painter.drawRect(rect().adjusted(outline, outline, -1 - outline, -1 - outline));
        painter.setPen(QPen(Qt::white, 1, Qt::DashLine));
        painter.drawRect(rect().adjusted(1, 1, -2, -2));
    }
}

void PlanRoom::mousePressEvent(QMouseEvent* event) {
    Q_EMIT mouseDown(event->button(), mapToParent(event->position()), event->globalPosition().toPoint());
}

void PlanRoom::mouseMoveEvent(QMouseEvent* event) {
    Q_EMIT mouseMoved(mapToParent(event->position()));
}

void PlanRoom::mouseReleaseEvent(QMouseEvent* event) {
    Q_EMIT mouseUp(event->button(), mapToParent(event->position()));
}

void PlanRoom::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        Q_EMIT doubleClicked();
    } else {
        mousePressEvent(event);
    }
}

void PlanRoom::contextMenuEvent(QContextMenuEvent* event) {
    // The mouse opens the menu as soon as its button goes down.
    if (event->reason() == QContextMenuEvent::Keyboard) {
        Q_EMIT menuKeyPressed(mapToGlobal(rect().center()));
    }
    event->accept();
}

void PlanRoom::keyPressEvent(QKeyEvent* event) {
    // The system tells of the menu key by itself, but not of the other way to press it.
    if (event->key() == Qt::Key_F10 && event->modifiers() == Qt::ShiftModifier) {
        Q_EMIT menuKeyPressed(mapToGlobal(rect().center()));
        return;
    }
    event->ignore();
    Q_EMIT keyDown(event);
}
