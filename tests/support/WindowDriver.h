#pragma once

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QMenu>
#include <QTest>
#include <QTimer>
#include <QWidget>
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

/// Finds the controls of a window by their names and drives them with real mouse and key events.
namespace WindowDriver {

/// The control of that name; fails the test, and ends it, where there is none.
template<class Control = QWidget>
Control& control(QWidget& window, const char* name) {
    auto* found = window.findChild<Control*>(QString::fromLatin1(name));
    if (found == nullptr) {
        throw std::runtime_error(std::string("there is no control ") + name);
    }
    return *found;
}

inline void click(QWidget& window, const char* name) {
    QTest::mouseClick(&control(window, name), Qt::LeftButton);
}

/// Presses a key where the keyboard's focus is.
inline void press(QWidget& window, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QWidget* target = window.focusWidget() != nullptr ? window.focusWidget() : &window;
    QTest::keyClick(target, key, modifiers);
}

/// Chooses a menu entry with the mouse: opens the menu and clicks the entry.
inline void choose(QWidget& window, const char* menuName, const char* entryName) {
    auto& menu = control<QMenu>(window, menuName);
    auto& entry = control<QAction>(window, entryName);
    menu.popup(window.mapToGlobal(QPoint(0, 0)));
    QTest::mouseClick(&menu, Qt::LeftButton, Qt::NoModifier, menu.actionGeometry(&entry).center());
    menu.close();
}

/// Runs `inside` while the modal window that `open` shows is up, then closes the window if it is still
/// there. Fails the test when no modal window comes.
inline void whileModal(const std::function<void()>& open, const std::function<void(QWidget&)>& inside) {
    bool came = false;
    QTimer::singleShot(0, qApp, [&] {
        QWidget* modal = QApplication::activeModalWidget();
        if (modal == nullptr) {
            return;
        }
        came = true;
        try {
            inside(*modal);
        } catch (const std::exception& problem) {
            ADD_FAILURE() << problem.what();
        }
        if (modal->isVisible()) {
            modal->close();
        }
    });
    open();
    EXPECT_TRUE(came) << "no modal window was shown";
}

/// The controls that Tab visits in a window, in its order, beginning with the first.
inline std::vector<QWidget*> tabOrder(QWidget& window) {
    std::vector<QWidget*> order;
    for (QWidget* next = window.nextInFocusChain(); next != &window; next = next->nextInFocusChain()) {
        if (next->window() == &window && (next->focusPolicy() & Qt::TabFocus) != 0 && next->isVisible() &&
            next->focusProxy() == nullptr) {
            order.push_back(next);
        }
    }
    return order;
}

/// Fails unless Tab visits the controls from top left to bottom right, row by row.
inline void expectReadingOrder(QWidget& window) {
    const std::vector<QWidget*> order = tabOrder(window);
    EXPECT_GE(order.size(), 1U);
    for (std::size_t i = 1; i < order.size(); ++i) {
        const QRect before(order[i - 1]->mapTo(&window, QPoint()), order[i - 1]->size());
        const QRect after(order[i]->mapTo(&window, QPoint()), order[i]->size());
        const bool sameRow = after.top() <= before.bottom() && before.top() <= after.bottom();
        EXPECT_TRUE(sameRow ? before.left() < after.left() : before.bottom() < after.top())
            << qPrintable(order[i - 1]->objectName()) << " comes before "
            << qPrintable(order[i]->objectName());
    }
}

/// Fails for a control that Tab reaches without a name of its own or one to be read aloud.
inline void expectNamedControls(QWidget& window) {
    for (const QWidget* visited : tabOrder(window)) {
        EXPECT_FALSE(visited->objectName().isEmpty()) << visited->metaObject()->className();
        EXPECT_FALSE(visited->accessibleName().isEmpty()) << qPrintable(visited->objectName());
    }
}

} // namespace WindowDriver
