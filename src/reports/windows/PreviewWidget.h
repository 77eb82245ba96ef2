#pragma once

#include "reports/windows/PreviewLayout.h"

#include <QAbstractScrollArea>

class PageSurface;

/// Shows the pages of a surface as its `ZoomMode` and `Zoom` tell, white paper on a desk in every theme, and
/// lets the user scroll and choose pages. Only pages in sight are painted.
///
/// Keys: arrows scroll, or walk from thumbnail to thumbnail; Page Up and Page Down scroll and, at the page's
/// end, turn; Home and End go to the first and last page. The wheel scrolls, or turns where there is nothing
/// to scroll; with Ctrl it zooms by ten percent.
class PreviewWidget final : public QAbstractScrollArea {
    Q_OBJECT

public:
    /// `surface` must outlive the widget, which takes its `onViewChanged`.
    explicit PreviewWidget(PageSurface& surface, QWidget* parent = nullptr);

    /// Where the pages stand at present, before scrolling.
    [[nodiscard]] const PreviewPlan& plan() const { return plan_; }
    /// Where a page (from 0) stands in the viewport; an empty rectangle when the mode does not show it.
    [[nodiscard]] QRect pageArea(qint32 page) const;

    [[nodiscard]] QSize sizeHint() const override;

Q_SIGNALS:
    /// The user chose another page here, not by the window's buttons.
    void pageChosen();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void changeEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    [[nodiscard]] PreviewMode mode() const;
    [[nodiscard]] QPoint scrolled() const;
    void viewChanged();
    void describePage();
    void layOut();
    void showChosenPage();
    bool choose(qint32 page);
    void scrollOrTurn(int direction);
    bool walkThumbnails(int key);
    /// The size of the pages in percent; 0 where there are none.
    [[nodiscard]] double shownZoom() const;
    void zoomBy(double percent);
    void paintPlace(QPainter& painter, const PagePlace& place) const;

    PageSurface& surface_;
    PreviewPlan plan_;
    qint32 shownPage_ = 0;
    PreviewMode shownMode_ = PreviewMode::WholePage;
    int wheelRest_ = 0;
};
