#include "reports/windows/PreviewWidget.h"

#include "reports/pages/PagePainter.h"
#include "reports/pages/PageSurface.h"
#include "ui/widgets/AccessibleRole.h"
#include "ui/widgets/PaperShadow.h"

#include <QKeyEvent>
#include <QLocale>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>

namespace {

constexpr int scrollStep = 40;
constexpr double zoomStep = 10;

void appendText(QStringList& texts, const LaidText* text) {
    if (text != nullptr && !text->text().trimmed().isEmpty()) {
        texts.append(text->text().trimmed());
    }
}

/// The words of a page for those who hear them.
QString textOf(const Page& page) {
    QStringList texts;
    appendText(texts, page.header.text.get());
    for (const PageItem& item : page.items) {
        if (const auto* line = std::get_if<TextLine>(&item); line != nullptr && line->line == 0) {
            appendText(texts, line->text.get());
        }
    }
    appendText(texts, page.footer.text.get());
    return texts.join(u'\n');
}

} // namespace

PreviewWidget::PreviewWidget(PageSurface& surface, QWidget* parent)
    : QAbstractScrollArea(parent)
    , surface_(surface) {
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleRole(*this, QAccessible::Document);
    setAccessibleName(tr("Report"));
    horizontalScrollBar()->setSingleStep(scrollStep);
    verticalScrollBar()->setSingleStep(scrollStep);
    surface.onViewChanged = [this] { viewChanged(); };
    viewChanged();
}

QSize PreviewWidget::sizeHint() const {
    return {640, 560};
}

PreviewMode PreviewWidget::mode() const {
    return static_cast<PreviewMode>(std::clamp(surface_.ZoomMode(), 0, 4));
}

QPoint PreviewWidget::scrolled() const {
    return {horizontalScrollBar()->value(), verticalScrollBar()->value()};
}

QRect PreviewWidget::pageArea(qint32 page) const {
    const auto place = std::find_if(plan_.pages.begin(), plan_.pages.end(),
                                    [page](const PagePlace& candidate) { return candidate.page == page; });
    return place == plan_.pages.end() ? QRect() : place->area.translated(-scrolled());
}

void PreviewWidget::viewChanged() {
    viewport()->setToolTip(surface_.property(SurfaceProperty::ToolTipText).toString());
    layOut();
    if (surface_.PreviewPage() != shownPage_ || mode() != shownMode_) {
        shownPage_ = surface_.PreviewPage();
        shownMode_ = mode();
        showChosenPage();
    }
    describePage();
    viewport()->update();
}

void PreviewWidget::describePage() {
    const auto index = static_cast<std::size_t>(surface_.PreviewPage() - 1);
    const std::vector<Page>& pages = surface_.document().pages;
    setAccessibleDescription(index < pages.size() ? textOf(pages[index]) : QString());
}

void PreviewWidget::layOut() {
    PreviewView view;
    view.mode = mode();
    view.zoom = surface_.Zoom();
    view.page = surface_.PreviewPage();
    view.pageCount = surface_.PageCount();
    view.pageSize = surface_.pageSize();
    PreviewSpace space;
    space.viewport = maximumViewportSize();
    space.scrollBarExtent = verticalScrollBar()->sizeHint().width();
    space.dotsPerInch = logicalDpiX();
    space.captionHeight = fontMetrics().height() + paperShadowReach;
    plan_ = planPreview(view, space);
    surface_.setShownZoom(shownZoom());

    const QSize room(
        plan_.desk.height() > space.viewport.height() ? space.viewport.width() - space.scrollBarExtent
                                                      : space.viewport.width(),
        plan_.desk.width() > space.viewport.width() ? space.viewport.height() - space.scrollBarExtent
                                                    : space.viewport.height());
    const auto setRange = [](QScrollBar* bar, int desk, int shown) {
        bar->setPageStep(shown);
        bar->setRange(0, std::max(desk - shown, 0));
    };
    setRange(horizontalScrollBar(), plan_.desk.width(), room.width());
    setRange(verticalScrollBar(), plan_.desk.height(), room.height());
}

void PreviewWidget::showChosenPage() {
    if (mode() != PreviewMode::Thumbnails) {
        verticalScrollBar()->setValue(0);
        horizontalScrollBar()->setValue(horizontalScrollBar()->maximum() / 2);
        return;
    }
    const QRect area = pageArea(surface_.PreviewPage() - 1).adjusted(0, -scrollStep, 0, scrollStep);
    QScrollBar* bar = verticalScrollBar();
    if (area.top() < 0) {
        bar->setValue(bar->value() + area.top());
    } else if (area.bottom() > bar->pageStep()) {
        bar->setValue(bar->value() + area.bottom() - bar->pageStep());
    }
}

bool PreviewWidget::choose(qint32 page) {
    if (page < 1 || page > surface_.PageCount() || page == surface_.PreviewPage()) {
        return false;
    }
    surface_.PreviewPage(static_cast<qint16>(page));
    Q_EMIT pageChosen();
    return true;
}

void PreviewWidget::paintEvent(QPaintEvent* event) {
    QPainter painter(viewport());
    painter.fillRect(event->rect(), palette().color(QPalette::Mid));
    if (plan_.pages.empty()) {
        const QColor ground = palette().color(QPalette::Mid);
        painter.setPen(ground.lightnessF() < 0.5F ? Qt::white : Qt::black);
        painter.drawText(viewport()->rect(), Qt::AlignCenter | Qt::TextWordWrap,
                         tr("There are no pages to show."));
    }
    const QRect dirty = event->rect().translated(scrolled());
    painter.translate(-scrolled());
    for (const PagePlace& place : plan_.pages) {
        const QRect reach =
            place.area.adjusted(-2 * paperShadowReach, -2 * paperShadowReach, 2 * paperShadowReach,
                                2 * paperShadowReach + fontMetrics().height());
        if (reach.intersects(dirty)) {
            paintPlace(painter, place);
        }
    }
    painter.translate(scrolled());
    if (hasFocus()) {
        painter.setPen(palette().color(QPalette::Highlight));
        painter.drawRect(viewport()->rect().adjusted(0, 0, -1, -1));
    }
}

void PreviewWidget::paintPlace(QPainter& painter, const PagePlace& place) const {
    paintPaperShadow(painter, place.area);
    painter.fillRect(place.area, Qt::white);
    painter.save();
    painter.setClipRect(place.area, Qt::IntersectClip);
    painter.translate(place.area.topLeft());
    const QSizeF page = surface_.pageSize();
    painter.scale(place.area.width() / page.width(), place.area.height() / page.height());
    paintPage(painter, surface_.document(), place.page, PaintTarget::Screen);
    painter.restore();

    const bool chosen = place.page + 1 == surface_.PreviewPage();
    if (mode() == PreviewMode::Thumbnails) {
        const QRect caption(place.area.left(), place.area.bottom() + paperShadowReach, place.area.width(),
                            fontMetrics().height());
        QFont font = painter.font();
        font.setBold(chosen);
        painter.setFont(font);
        const QColor ground = palette().color(QPalette::Mid);
        painter.setPen(ground.lightnessF() < 0.5F ? Qt::white : Qt::black);
        painter.drawText(caption, Qt::AlignCenter, locale().toString(place.page + 1));
    }
    if (chosen && plan_.pages.size() > 1) {
        constexpr int markWidth = 3;
        painter.setPen(QPen(palette().color(QPalette::Highlight), markWidth));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(place.area.adjusted(-2, -2, 1, 1));
    }
}

void PreviewWidget::resizeEvent(QResizeEvent* event) {
    QAbstractScrollArea::resizeEvent(event);
    layOut();
}

void PreviewWidget::mousePressEvent(QMouseEvent* event) {
    const QPoint place = event->position().toPoint();
    for (const PagePlace& candidate : plan_.pages) {
        if (pageArea(candidate.page).contains(place)) {
            choose(candidate.page + 1);
            break;
        }
    }
}

void PreviewWidget::wheelEvent(QWheelEvent* event) {
    constexpr int notch = 120;
    const bool zooming = event->modifiers().testFlag(Qt::ControlModifier);
    if (!zooming && (verticalScrollBar()->maximum() > 0 || event->angleDelta().y() == 0)) {
        QAbstractScrollArea::wheelEvent(event);
        return;
    }
    wheelRest_ += event->angleDelta().y();
    const int notches = wheelRest_ / notch;
    wheelRest_ -= notches * notch;
    if (zooming) {
        zoomBy(notches * zoomStep);
    } else {
        choose(std::clamp(surface_.PreviewPage() - notches, 1, std::max<qint32>(surface_.PageCount(), 1)));
    }
    event->accept();
}

double PreviewWidget::shownZoom() const {
    constexpr double twipsPerInch = 1440;
    return plan_.scale * twipsPerInch / logicalDpiX() * 100;
}

void PreviewWidget::zoomBy(double percent) {
    constexpr double smallest = 10;
    constexpr double largest = 400;
    if (percent == 0 || plan_.pages.empty()) {
        return;
    }
    // From a fit mode it goes on from what the eye sees.
    surface_.Zoom(std::clamp(shownZoom() + percent, smallest, largest));
}

void PreviewWidget::scrollOrTurn(int direction) {
    QScrollBar* bar = verticalScrollBar();
    const int end = direction > 0 ? bar->maximum() : bar->minimum();
    if (bar->value() != end) {
        bar->setValue(bar->value() + direction * (bar->pageStep() - scrollStep));
    } else if (mode() != PreviewMode::Thumbnails && choose(surface_.PreviewPage() + direction) &&
               direction < 0) {
        bar->setValue(bar->maximum());
    }
}

bool PreviewWidget::walkThumbnails(int key) {
    if (mode() != PreviewMode::Thumbnails) {
        return false;
    }
    qint32 step = 0;
    switch (key) {
    case Qt::Key_Left:
        step = -1;
        break;
    case Qt::Key_Right:
        step = 1;
        break;
    case Qt::Key_Up:
        step = -plan_.columns;
        break;
    case Qt::Key_Down:
        step = plan_.columns;
        break;
    default:
        return false;
    }
    choose(surface_.PreviewPage() + step);
    return true;
}

void PreviewWidget::keyPressEvent(QKeyEvent* event) {
    if (walkThumbnails(event->key())) {
        return;
    }
    switch (event->key()) {
    case Qt::Key_PageDown:
        scrollOrTurn(1);
        break;
    case Qt::Key_PageUp:
        scrollOrTurn(-1);
        break;
    case Qt::Key_Home:
        choose(1);
        verticalScrollBar()->setValue(0);
        break;
    case Qt::Key_End:
        choose(surface_.PageCount());
        verticalScrollBar()->setValue(verticalScrollBar()->maximum());
        break;
    default:
        QAbstractScrollArea::keyPressEvent(event);
    }
}

void PreviewWidget::changeEvent(QEvent* event) {
    QAbstractScrollArea::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        layOut();
    }
    viewport()->update();
}

void PreviewWidget::focusInEvent(QFocusEvent* event) {
    QAbstractScrollArea::focusInEvent(event);
    viewport()->update();
}

void PreviewWidget::focusOutEvent(QFocusEvent* event) {
    QAbstractScrollArea::focusOutEvent(event);
    viewport()->update();
}
