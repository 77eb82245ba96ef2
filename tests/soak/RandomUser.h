#pragma once

#include "soak/Journal.h"

#include <QWidget>

#include <functional>
#include <vector>

class QAbstractItemView;
class QComboBox;
class QLineEdit;
class QListWidget;
class QMenu;
class QMenuBar;
class QTabBar;

/// Does what a user could do next: takes one of the controls that can be seen and used, and handles it with
/// real mouse and key events. Where a modal window opens, it goes on in there, and closes it in the end.
class RandomUser {
public:
    /// `acted` hears after each action which control of which window was handled, as "frmView/cmdRoom"; the
    /// control "keys" stands for what the keyboard's focus decides.
    RandomUser(Journal& journal, std::function<void(const QString& control)> acted);

    /// One action in this window, with all that it opens.
    void act(QWidget& window);
    /// The modal window that the present action is in, also when it has just been closed; nullptr in the
    /// main window.
    [[nodiscard]] QWidget* inside() const { return visited_.isEmpty() ? nullptr : visited_.last(); }

private:
    /// Whether there was anything of its kind to handle.
    using Handler = bool (RandomUser::*)(QWidget& window);
    struct Habit {
        int weight;
        Handler handle;
    };
    static const std::vector<Habit> habits;

    void perform(QWidget& control, const QString& action, const std::function<void()>& events);
    void perform(const QString& control, const QString& action, const std::function<void()>& events);
    void meetModal();
    void visit(QWidget& modal);
    void actInPopup(QWidget& popup);
    void actInMenu(QMenu& menu);
    void actInList(QAbstractItemView& list);

    bool pressButton(QWidget& window);
    bool fillField(QWidget& window);
    bool useList(QWidget& window);
    bool changeTab(QWidget& window);
    bool useRoomList(QWidget& window);
    bool handleRoom(QWidget& window);
    bool turnPages(QWidget& window);
    bool pointAtPlan(QWidget& window);
    bool chooseDay(QWidget& window);
    bool openMenu(QWidget& window);
    bool pressKeys(QWidget& window);
    bool resize(QWidget& window);

    void enter(QLineEdit& field);
    void dragRoom(QWidget& room);

    Journal& journal_;
    std::function<void(const QString&)> acted_;
    /// The modal windows that are open, or were just closed, the innermost last.
    QList<QWidget*> visited_;
};
