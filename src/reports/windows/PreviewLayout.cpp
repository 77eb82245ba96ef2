#include "reports/windows/PreviewLayout.h"

#include <algorithm>

namespace {

constexpr qint32 deskEdge = 24;
constexpr qint32 gap = 24;
constexpr qint32 thumbnailHeight = 200;
constexpr double twipsPerInch = 1440;
/// However small the window, a page stays a page.
constexpr double smallestScale = 0.002;

QSize pixelSize(QSizeF page, double scale) {
    return {std::max(qRound(page.width() * scale), 1), std::max(qRound(page.height() * scale), 1)};
}

double fitting(double available, double needed) {
    return std::max(available / needed, smallestScale);
}

/// The pages from `first` on, side by side in rows, the whole in the middle of the room.
PreviewPlan grid(qint32 first, qint32 count, qint32 columns, QSize page, qint32 captionHeight, QSize room) {
    const qint32 slots = std::max(columns, 1);
    const qint32 rows = (count + slots - 1) / slots;
    const QSize cell(page.width() + gap, page.height() + captionHeight + gap);
    const QSize used(slots * cell.width() - gap + 2 * deskEdge, rows * cell.height() - gap + 2 * deskEdge);
    PreviewPlan plan;
    plan.columns = slots;
    plan.desk = used.expandedTo(room);
    const QPoint origin((plan.desk.width() - used.width()) / 2 + deskEdge,
                        (plan.desk.height() - used.height()) / 2 + deskEdge);
    plan.pages.reserve(static_cast<std::size_t>(count));
    for (qint32 i = 0; i < count; ++i) {
        const QPoint place(i % slots * cell.width(), i / slots * cell.height());
        plan.pages.push_back({first + i, QRect(origin + place, page)});
    }
    return plan;
}

PreviewPlan planIn(const PreviewView& view, const PreviewSpace& space, QSize room) {
    const QSizeF page = view.pageSize;
    const QSizeF inner(room.width() - 2 * deskEdge, room.height() - 2 * deskEdge);
    const qint32 chosen = std::clamp(view.page, 1, view.pageCount) - 1;
    const auto single = [&](double scale) {
        PreviewPlan plan = grid(chosen, 1, 1, pixelSize(page, scale), 0, room);
        plan.scale = scale;
        return plan;
    };
    switch (view.mode) {
    case PreviewMode::FitWidth:
        return single(fitting(inner.width(), page.width()));
    case PreviewMode::WholePage:
        return single(std::min(fitting(inner.width(), page.width()), fitting(inner.height(), page.height())));
    case PreviewMode::TwoPages: {
        const double scale = std::min(fitting((inner.width() - gap) / 2, page.width()),
                                      fitting(inner.height(), page.height()));
        const qint32 first = chosen - chosen % 2;
        PreviewPlan plan =
            grid(first, std::min(2, view.pageCount - first), 2, pixelSize(page, scale), 0, room);
        plan.scale = scale;
        return plan;
    }
    case PreviewMode::Thumbnails: {
        const double scale = thumbnailHeight / page.height();
        const QSize size = pixelSize(page, scale);
        const qint32 columns =
            std::clamp((qRound(inner.width()) + gap) / (size.width() + gap), 1, view.pageCount);
        PreviewPlan plan = grid(0, view.pageCount, columns, size, space.captionHeight, room);
        plan.scale = scale;
        return plan;
    }
    case PreviewMode::Percentage:
        break;
    }
    return single(view.zoom / 100 * space.dotsPerInch / twipsPerInch);
}

} // namespace

PreviewPlan planPreview(const PreviewView& view, const PreviewSpace& space) {
    if (view.pageCount < 1 || view.pageSize.isEmpty()) {
        return {{}, space.viewport, 1, 0};
    }
    // A scroll bar takes room from the pages, which can call for the other one.
    QSize room = space.viewport;
    PreviewPlan plan = planIn(view, space, room);
    for (int attempt = 0; attempt < 2; ++attempt) {
        QSize remaining = space.viewport;
        if (plan.desk.height() > room.height()) {
            remaining.rwidth() -= space.scrollBarExtent;
        }
        if (plan.desk.width() > room.width()) {
            remaining.rheight() -= space.scrollBarExtent;
        }
        if (remaining == room) {
            break;
        }
        room = remaining;
        plan = planIn(view, space, room);
    }
    return plan;
}
