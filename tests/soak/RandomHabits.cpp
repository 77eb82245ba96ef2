// How the random user handles each kind of control.

#include "compass/windows/PlanWidget.h"
#include "core/windows/DayCell.h"
#include "reports/windows/PreviewWidget.h"
#include "soak/Entries.h"
#include "soak/RandomUser.h"
#include "ui/PlanRoom.h"
#include "ui/PlanView.h"

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QMouseEvent>
#include <QTabBar>
#include <QTest>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

const std::vector<RandomUser::Habit> RandomUser::habits{
    {8, &RandomUser::pressButton}, {7, &RandomUser::fillField},   {5, &RandomUser::useList},
    {1, &RandomUser::changeTab},   {2, &RandomUser::useRoomList}, {4, &RandomUser::handleRoom},
    {2, &RandomUser::turnPages},   {4, &RandomUser::pointAtPlan}, {5, &RandomUser::chooseDay},
    {6, &RandomUser::openMenu},    {2, &RandomUser::pressKeys},   {1, &RandomUser::resize},
};

namespace {

/// The controls of one kind that a user can see and use in a window.
template<class Control>
QList<Control*> usable(QWidget& window, bool (*wanted)(const Control&) = nullptr) {
    QList<Control*> found;
    for (Control* control : window.findChildren<Control*>()) {
        if (control->isVisible() && control->isEnabled() && control->window() == &window &&
            (wanted == nullptr || wanted(*control))) {
            found << control;
        }
    }
    return found;
}

bool isNamed(const QAbstractButton& button) {
    return !button.objectName().startsWith(u"qt_"_s) && !button.objectName().startsWith(u"Scroll"_s);
}

bool standsAlone(const QLineEdit& field) {
    return qobject_cast<QComboBox*>(field.parentWidget()) == nullptr;
}

void sendMouse(QWidget& target, QEvent::Type type, QPointF onScreen, Qt::MouseButton button,
               Qt::MouseButtons buttons) {
    QMouseEvent event(type, target.mapFromGlobal(onScreen), onScreen, button, buttons, Qt::NoModifier);
    QApplication::sendEvent(&target, &event);
}

QPointF somewhereIn(const QRect& area, Journal& journal) {
    return {static_cast<double>(area.left() + journal.below(std::max(area.width(), 1))),
            static_cast<double>(area.top() + journal.below(std::max(area.height(), 1)))};
}

} // namespace

bool RandomUser::pressButton(QWidget& window) {
    const auto buttons = usable<QAbstractButton>(window, isNamed);
    if (buttons.isEmpty()) {
        return false;
    }
    QAbstractButton* button = journal_.oneOf(buttons);
    if (journal_.oneIn(4) && (button->focusPolicy() & Qt::TabFocus) != 0) {
        perform(*button, u"pressed by the blank"_s, [&] {
            button->setFocus(Qt::TabFocusReason);
            QTest::keyClick(button, Qt::Key_Space);
        });
    } else {
        perform(*button, u"clicked"_s, [&] { QTest::mouseClick(button, Qt::LeftButton); });
    }
    return true;
}

bool RandomUser::fillField(QWidget& window) {
    const auto fields = usable<QLineEdit>(window, standsAlone);
    if (fields.isEmpty()) {
        return false;
    }
    enter(*journal_.oneOf(fields));
    return true;
}

/// Replaces the text of a field, mostly by typing, and now and then presses Enter behind it.
void RandomUser::enter(QLineEdit& field) {
    QWidget& named = standsAlone(field) ? static_cast<QWidget&>(field) : *field.parentWidget();
    const QString text = Entries::textFor(named.objectName(), journal_);
    const bool ascii = text.size() < 30 && std::all_of(text.begin(), text.end(), [](QChar letter) {
                           return letter.unicode() >= 0x20 && letter.unicode() < 0x7F;
                       });
    perform(named, u"gets \"%1\""_s.arg(text.left(40)), [&] {
        QTest::mouseClick(&field, Qt::LeftButton);
        QTest::keyClick(&field, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(&field, Qt::Key_Delete);
        if (ascii) {
            QTest::keyClicks(&field, text);
        } else {
            QApplication::clipboard()->setText(text);
            QTest::keyClick(&field, Qt::Key_V, Qt::ControlModifier);
        }
    });
    if (journal_.oneIn(8)) {
        perform(named.window()->objectName() + u"/keys"_s, u"Enter in "_s + named.objectName(),
                [&] { QTest::keyClick(&field, Qt::Key_Return); });
    }
}

bool RandomUser::useList(QWidget& window) {
    const auto lists = usable<QComboBox>(window);
    if (lists.isEmpty()) {
        return false;
    }
    QComboBox* list = journal_.oneOf(lists);
    if (list->isEditable() && journal_.oneIn(3)) {
        enter(*list->lineEdit());
    } else if (journal_.oneIn(3)) {
        perform(*list, u"opened"_s, [&] { QTest::keyClick(list, Qt::Key_Down, Qt::AltModifier); });
    } else {
        const Qt::Key key = journal_.oneIn(2) ? Qt::Key_Down : Qt::Key_Up;
        perform(*list, key == Qt::Key_Down ? u"stepped down"_s : u"stepped up"_s, [&] {
            list->setFocus(Qt::TabFocusReason);
            QTest::keyClick(list, key);
        });
    }
    return true;
}

bool RandomUser::changeTab(QWidget& window) {
    const auto bars = usable<QTabBar>(window);
    if (bars.isEmpty()) {
        return false;
    }
    QTabBar* bar = journal_.oneOf(bars);
    const int tab = journal_.below(std::max(bar->count(), 1));
    perform(*bar, u"page %1"_s.arg(tab),
            [&] { QTest::mouseClick(bar, Qt::LeftButton, Qt::NoModifier, bar->tabRect(tab).center()); });
    return true;
}

bool RandomUser::useRoomList(QWidget& window) {
    const auto lists = usable<QListWidget>(window);
    if (lists.isEmpty() || lists.constFirst()->count() == 0) {
        return false;
    }
    QListWidget* list = lists.constFirst();
    QListWidgetItem* item = list->item(journal_.below(list->count()));
    const auto clicked = [&] {
        list->scrollToItem(item);
        QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier,
                          list->visualItemRect(item).center());
    };
    const int way = journal_.below(4);
    const QString row = u" row %1"_s.arg(list->row(item));
    if (way == 0) {
        perform(*list, u"Enter on"_s + row, [&] {
            clicked();
            QTest::keyClick(list, Qt::Key_Return);
        });
    } else if (way == 1) {
        perform(*list, u"double click on"_s + row, [&] {
            list->scrollToItem(item);
            QTest::mouseDClick(list->viewport(), Qt::LeftButton, Qt::NoModifier,
                               list->visualItemRect(item).center());
        });
    } else {
        perform(*list, u"click on"_s + row, clicked);
    }
    return true;
}

bool RandomUser::handleRoom(QWidget& window) {
    const auto rooms = usable<PlanRoom>(window);
    if (rooms.isEmpty()) {
        return false;
    }
    PlanRoom* room = journal_.oneOf(rooms);
    static constexpr std::array keys{Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down};
    const int way = journal_.below(8);
    if (way < 4) {
        dragRoom(*room);
    } else if (way == 4) {
        perform(*room, u"room %1 double-clicked"_s.arg(room->Index()),
                [&] { QTest::mouseDClick(room, Qt::LeftButton); });
    } else if (way == 5) {
        perform(*room, u"room %1 right-clicked"_s.arg(room->Index()),
                [&] { QTest::mouseClick(room, Qt::RightButton); });
    } else {
        const Qt::Key key = journal_.oneOf(keys);
        perform(*room, u"room %1 moved by key %2"_s.arg(room->Index()).arg(key - Qt::Key_Left), [&] {
            QTest::mouseClick(room, Qt::LeftButton);
            QTest::keyClick(room, key, journal_.oneIn(2) ? Qt::ShiftModifier : Qt::NoModifier);
        });
    }
    return true;
}

/// Drags a room somewhere on the plan or beside it; now and then Escape ends the drag.
void RandomUser::dragRoom(QWidget& room) {
    constexpr int beside = 30;
    QWidget& plan = *room.parentWidget();
    const QPointF from = room.mapToGlobal(somewhereIn(room.rect(), journal_));
    const QPointF onPlan = somewhereIn(plan.rect().adjusted(-beside, -beside, beside, beside), journal_);
    const QPointF to = plan.mapToGlobal(onPlan);
    const bool givenUp = journal_.oneIn(8);
    const QString text =
        u"%1 dragged to %2, %3"_s.arg(room.accessibleName().left(20)).arg(onPlan.x()).arg(onPlan.y());
    perform(room, givenUp ? text + u" and Escape"_s : text, [&] {
        sendMouse(room, QEvent::MouseButtonPress, from, Qt::LeftButton, Qt::LeftButton);
        sendMouse(room, QEvent::MouseMove, (from + to) / 2, Qt::NoButton, Qt::LeftButton);
        if (givenUp) {
            QTest::keyClick(&room, Qt::Key_Escape);
        }
        sendMouse(room, QEvent::MouseMove, to, Qt::NoButton, Qt::LeftButton);
        sendMouse(room, QEvent::MouseButtonRelease, to, Qt::LeftButton, Qt::NoButton);
    });
}

bool RandomUser::turnPages(QWidget& window) {
    const auto previews = usable<PreviewWidget>(window);
    if (previews.isEmpty()) {
        return false;
    }
    PreviewWidget* preview = journal_.oneOf(previews);
    static constexpr std::array keys{Qt::Key_PageDown, Qt::Key_PageUp, Qt::Key_Home,
                                     Qt::Key_End,      Qt::Key_Right,  Qt::Key_Down};
    if (journal_.oneIn(4)) {
        const QPoint at = somewhereIn(preview->viewport()->rect(), journal_).toPoint();
        perform(*preview, u"clicked"_s,
                [&] { QTest::mouseClick(preview->viewport(), Qt::LeftButton, Qt::NoModifier, at); });
    } else {
        const Qt::Key key = journal_.oneOf(keys);
        perform(*preview, u"key 0x%1"_s.arg(static_cast<int>(key), 0, 16),
                [&] { QTest::keyClick(preview, key); });
    }
    return true;
}

bool RandomUser::pointAtPlan(QWidget& window) {
    const auto plans = usable<PlanWidget>(window);
    if (plans.isEmpty()) {
        return false;
    }
    PlanWidget* plan = plans.constFirst();
    const QPointF at = somewhereIn(plan->rect(), journal_);
    perform(*plan, u"clicked at %1, %2"_s.arg(at.x()).arg(at.y()), [&] {
        sendMouse(*plan, QEvent::MouseMove, plan->mapToGlobal(at), Qt::NoButton, Qt::NoButton);
        QTest::mouseClick(plan, Qt::LeftButton, Qt::NoModifier, at.toPoint());
    });
    return true;
}

bool RandomUser::chooseDay(QWidget& window) {
    const auto days = usable<DayCell>(window);
    if (days.isEmpty()) {
        return false;
    }
    DayCell* day = journal_.oneOf(days);
    perform(*day, u"clicked"_s, [&] { QTest::mouseClick(day, Qt::LeftButton); });
    return true;
}

bool RandomUser::openMenu(QWidget& window) {
    const auto bars = usable<QMenuBar>(window);
    if (bars.isEmpty()) {
        return false;
    }
    QMenuBar* bar = bars.constFirst();
    QList<QAction*> menus;
    for (QAction* menu : bar->actions()) {
        if (menu->isVisible()) {
            menus << menu;
        }
    }
    QAction* menu = journal_.oneOf(menus);
    QTest::mousePress(bar, Qt::LeftButton, Qt::NoModifier, bar->actionGeometry(menu).center());
    QTest::mouseRelease(bar, Qt::LeftButton, Qt::NoModifier, bar->actionGeometry(menu).center());
    if (QWidget* popup = QApplication::activePopupWidget(); popup != nullptr) {
        actInPopup(*popup);
        return true;
    }
    return false;
}

bool RandomUser::pressKeys(QWidget& window) {
    static constexpr std::array keys{Qt::Key_Tab,      Qt::Key_Tab,  Qt::Key_Backtab, Qt::Key_Return,
                                     Qt::Key_Escape,   Qt::Key_Up,   Qt::Key_Down,    Qt::Key_Delete,
                                     Qt::Key_PageDown, Qt::Key_Right};
    const Qt::Key key = journal_.oneOf(keys);
    QWidget* target = window.focusWidget() != nullptr ? window.focusWidget() : &window;
    perform(window.objectName() + u"/keys"_s,
            u"key 0x%1 on %2"_s.arg(static_cast<int>(key), 0, 16).arg(target->objectName()),
            [&] { QTest::keyClick(target, key); });
    return true;
}

bool RandomUser::resize(QWidget& window) {
    constexpr int least = 500;
    constexpr int spread = 700;
    if (window.minimumSize() == window.maximumSize() || !journal_.oneIn(3)) {
        return false;
    }
    const QSize size(least + journal_.below(spread), least + journal_.below(spread / 2));
    perform(window, u"resized to %1 by %2"_s.arg(size.width()).arg(size.height()),
            [&] { window.resize(size); });
    return true;
}
