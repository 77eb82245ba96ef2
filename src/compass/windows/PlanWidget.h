#pragma once

#include "compass/PlanPicture.h"

#include <QPointF>
#include <QWidget>

#include <optional>

/// A sheet of paper with a plan on it. It tells where the mouse is in the plan's own coordinates.
class PlanWidget final : public QWidget {
    Q_OBJECT

public:
    explicit PlanWidget(QWidget* parent = nullptr);

    /// What the sheet shows. Call `update` after a change.
    [[nodiscard]] PlanPicture& picture() { return picture_; }

    /// Where a point of the widget lies on the plan, in inches from its middle.
    [[nodiscard]] QPointF toPlan(const QPointF& point) const;
    [[nodiscard]] QPointF fromPlan(const QPointF& point) const;

    /// Lets Tab reach the sheet, where Left and Right then turn what it shows.
    void setTurnable();

Q_SIGNALS:
    void pointed(double X, double Y);
    void clicked(double X, double Y);
    /// The keyboard asks for a turn, in degrees clockwise: 1 for Right, -1 for Left, 15 of them with Shift.
    void turned(double degrees);
    /// The sheet has another size than it was shown with.
    void resized();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    PlanPicture picture_;
    std::optional<QPointF> lastPointed_;
};

/// The desk that a plan lies on: keeps it square, as large as it goes, in the middle.
class PlanDesk final : public QWidget {
    Q_OBJECT

public:
    explicit PlanDesk(QWidget* parent = nullptr);

    /// The sheet, named picFloorPlan.
    PlanWidget* const picFloorPlan;

    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
};
