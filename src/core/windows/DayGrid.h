#pragma once

#include <QWidget>

/// The sheet that the days of the calendar stand on. It has the keyboard's focus in their stead and shows
/// by its edge whether it does.
class DayGrid final : public QWidget {
    Q_OBJECT

public:
    explicit DayGrid(QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
};
