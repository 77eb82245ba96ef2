#include "ui/widgets/AccentTabBar.h"

#include "ui/widgets/ColorContrast.h"

#include <QPainter>

AccentTabBar::AccentTabBar(QWidget* parent)
    : QTabBar(parent) {}

void AccentTabBar::setAccent(const std::optional<QColor>& color) {
    accent_ = color;
    update();
}

QColor AccentTabBar::accent() const {
    return accent_.value_or(ColorContrast::paperGrey(palette()));
}

void AccentTabBar::paintEvent(QPaintEvent* event) {
    constexpr int thickness = 4;
    constexpr int rim = 2;
    QTabBar::paintEvent(event);
    if (currentIndex() >= 0) {
        QRect line = tabRect(currentIndex()).adjusted(rim, 0, -rim, 0);
        line.setTop(line.bottom() + 1 - thickness);
        QPainter(this).fillRect(line, accent());
    }
}
