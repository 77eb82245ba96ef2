#include "ui/platform/WidgetPlacement.h"

#include "core/Global.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

constexpr double twipsPerPixel = 15;

int toPixels(double twips) {
    constexpr double limit = std::numeric_limits<int>::max() / 2.0;
    return static_cast<int>(std::lround(std::clamp(twips / twipsPerPixel, -limit, limit)));
}

double toTwips(int pixels) {
    return pixels * twipsPerPixel;
}

/// Where a window stands by design: in the middle of the one that opened it, or of the screen.
void centre(QWidget& window) {
    QRect around;
    if (window.parentWidget() != nullptr) {
        around = window.parentWidget()->window()->geometry();
    } else if (const QScreen* screen = QGuiApplication::primaryScreen(); screen != nullptr) {
        around = screen->availableGeometry();
    }
    QRect frame = window.frameGeometry();
    frame.moveCenter(around.center());
    window.move(frame.topLeft());
}

} // namespace

QString WidgetPlacement::Name() const {
    return window_.objectName();
}

FormState WidgetPlacement::WindowState() const {
    const Qt::WindowStates states = window_.windowState();
    if (states.testFlag(Qt::WindowMinimized)) {
        return FormState::Minimized;
    }
    return states.testFlag(Qt::WindowMaximized) ? FormState::Maximized : FormState::Normal;
}

void WidgetPlacement::setWindowState(FormState state) {
    const Qt::WindowStates others = window_.windowState() & ~(Qt::WindowMinimized | Qt::WindowMaximized);
    switch (state) {
    case FormState::Normal:
        window_.setWindowState(others);
        break;
    case FormState::Minimized:
        window_.setWindowState(others | Qt::WindowMinimized);
        break;
    case FormState::Maximized:
        window_.setWindowState(others | Qt::WindowMaximized);
        break;
    }
}

double WidgetPlacement::Top() const {
    return toTwips(window_.y());
}

void WidgetPlacement::setTop(double twips) {
    window_.move(window_.x(), toPixels(twips));
}

double WidgetPlacement::Left() const {
    return toTwips(window_.x());
}

void WidgetPlacement::setLeft(double twips) {
    window_.move(toPixels(twips), window_.y());
}

double WidgetPlacement::Height() const {
    return toTwips(window_.height());
}

void WidgetPlacement::setHeight(double twips) {
    window_.resize(window_.width(), toPixels(twips));
}

double WidgetPlacement::Width() const {
    return toTwips(window_.width());
}

void WidgetPlacement::setWidth(double twips) {
    window_.resize(toPixels(twips), window_.height());
}

void WidgetPlacement::keepOnScreen() {
    // A strip of the top edge this long must lie on a screen: enough of the title bar to drag the window by.
    constexpr int handle = 100;
    const QRect frame = window_.frameGeometry();
    const QRect titleBar(frame.left(), frame.top(), frame.width(), 1);
    const QList<QScreen*> screens = QGuiApplication::screens();
    const bool reachable = std::any_of(screens.begin(), screens.end(), [&](const QScreen* screen) {
        return screen->availableGeometry().intersected(titleBar).width() >= std::min(handle, frame.width());
    });
    const QScreen* home = QGuiApplication::screenAt(frame.center());
    if (home == nullptr) {
        home = QGuiApplication::primaryScreen();
    }
    if (home == nullptr) {
        return;
    }
    const QRect available = home->availableGeometry();
    const QSize size = window_.size().boundedTo(available.size());
    const bool cut = size != window_.size();
    if (cut) {
        window_.resize(size);
    }
    if (cut || !reachable) {
        window_.move(std::clamp(frame.left(), available.left(), available.right() + 1 - size.width()),
                     std::clamp(frame.top(), available.top(), available.bottom() + 1 - size.height()));
    }
}

void restorePlacement(QWidget& window) {
    if (!window.testAttribute(Qt::WA_Moved)) {
        centre(window);
    }
    WidgetPlacement placement(window);
    Global::GetFormSettings(placement);
    if (placement.WindowState() == FormState::Normal) {
        placement.keepOnScreen();
    }
}

void savePlacement(QWidget& window) {
    Global::SaveFormSettings(WidgetPlacement(window));
}
