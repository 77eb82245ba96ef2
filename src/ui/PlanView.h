#pragma once

#include <QLine>
#include <QList>
#include <QWidget>

class PlanRoom;

/// The paper of a floor plan. It is measured in inches from its top left corner, by one scale for both
/// directions, and shows the guide lines of the floor below. The rooms are its children.
class PlanView final : public QWidget {
    Q_OBJECT

public:
    static constexpr qint32 ScaleLeft = 0;
    static constexpr qint32 ScaleTop = 0;

    explicit PlanView(QWidget* parent);

    [[nodiscard]] qint32 ScaleWidth() const { return scaleWidth_; }
    [[nodiscard]] qint32 ScaleHeight() const { return scaleHeight_; }
    /// Sets the plan's extent in inches. Fails with error 380 (Invalid property value) unless it is positive.
    void setScaleWidth(qint32 inches);
    void setScaleHeight(qint32 inches);

    /// Makes the paper as large as `space` allows and centres it there.
    void fit(const QRect& space);
    [[nodiscard]] double pixelsPerInch() const { return pixelsPerInch_; }
    /// A point of this widget, in inches.
    [[nodiscard]] QPointF toPlan(QPointF pixels) const { return pixels / pixelsPerInch_; }
    /// The pixels that a rectangle of the plan covers; however small, it can be seen.
    [[nodiscard]] QRect toPixels(float left, float top, float width, float height) const;

    /// A text on the plan and the top left corner of its first letter, in inches.
    struct Caption {
        QPoint at;
        QString text;
    };
    /// Removes all lines and texts; the rooms stay.
    void Clear();
    void drawLine(QPoint from, QPoint to);
    void print(QPoint at, const QString& text);
    [[nodiscard]] const QList<QLine>& lines() const { return lines_; }
    [[nodiscard]] const QList<Caption>& captions() const { return captions_; }

Q_SIGNALS:
    /// The plan's extent changed; the paper has to be fitted anew.
    void scaleChanged();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void paintGrid(QPainter& painter, double step, const QColor& color) const;

    qint32 scaleWidth_ = 600;
    qint32 scaleHeight_ = 600;
    double pixelsPerInch_ = 1;
    QList<QLine> lines_;
    QList<Caption> captions_;
};

/// The desk that the paper lies on, in the middle of its room.
class FloorPlanDesk final : public QWidget {
    Q_OBJECT

public:
    explicit FloorPlanDesk(QWidget* parent);
    [[nodiscard]] PlanView& plan() { return *plan_; }
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void fitPlan();

    PlanView* plan_;
};
