#pragma once

#include <QRect>
#include <QSize>
#include <QSizeF>

#include <vector>

/// The zoom modes of a page surface as a preview understands them.
enum class PreviewMode : qint32 { Percentage = 0, FitWidth = 1, Thumbnails = 2, TwoPages = 3, WholePage = 4 };

/// What a preview has to show.
struct PreviewView {
    PreviewMode mode = PreviewMode::WholePage;
    /// Percent; counts in the mode of that name only.
    double zoom = 100;
    /// The page chosen, from 1.
    qint32 page = 1;
    qint32 pageCount = 0;
    /// Twips.
    QSizeF pageSize;
};

/// What it may use: logical pixels.
struct PreviewSpace {
    /// The room for pages where no scroll bar stands.
    QSize viewport;
    qint32 scrollBarExtent = 0;
    /// Logical dots per inch of the screen: 100 percent.
    double dotsPerInch = 96;
    /// Height of a line of small print under a thumbnail.
    qint32 captionHeight = 0;
};

/// Where a page stands on the desk.
struct PagePlace {
    /// Counted from 0.
    qint32 page = 0;
    QRect area;
};

struct PreviewPlan {
    std::vector<PagePlace> pages;
    /// The whole desk; larger than the viewport where there is something to scroll.
    QSize desk;
    /// Thumbnails in one row.
    qint32 columns = 1;
    /// Logical pixels to the twip.
    double scale = 0;
};

/// Lays the pages that a mode shows on the desk: one page, a pair that begins with an odd one, or all.
[[nodiscard]] PreviewPlan planPreview(const PreviewView& view, const PreviewSpace& space);
