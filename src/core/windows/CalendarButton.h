#pragma once

#include <QPushButton>

/// The button beside a date field that opens the calendar; it shows the sign of one, as sharp and as dark as
/// the desktop's text. Enter is left to the window's own button.
class CalendarButton final : public QPushButton {
    Q_OBJECT

public:
    explicit CalendarButton(const QString& name, QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
};
