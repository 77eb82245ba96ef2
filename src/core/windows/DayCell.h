#pragma once

#include "core/CalendarWindow.h"

#include <QLabel>

/// One day of the calendar: plain, filled where it is the chosen one, ringed where it is today.
class DayCell final : public QLabel {
    Q_OBJECT

public:
    explicit DayCell(QWidget* parent = nullptr);

    [[nodiscard]] const CalendarCell& cell() const { return cell_; }
    void setCell(const CalendarCell& cell);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

Q_SIGNALS:
    void clicked();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    CalendarCell cell_;
    bool pressed_ = false;
};
