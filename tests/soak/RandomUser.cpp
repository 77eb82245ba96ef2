#include "soak/RandomUser.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

#include <numeric>
#include <utility>

using namespace Qt::StringLiterals;

// How the user goes about it; how each kind of control is handled stands in RandomHabits.cpp.

RandomUser::RandomUser(Journal& journal, std::function<void(const QString&)> acted)
    : journal_(journal)
    , acted_(std::move(acted)) {}

void RandomUser::act(QWidget& window) {
    if (QWidget* popup = QApplication::activePopupWidget(); popup != nullptr) {
        actInPopup(*popup);
        return;
    }
    const int all = std::accumulate(habits.begin(), habits.end(), 0,
                                    [](int sum, const Habit& habit) { return sum + habit.weight; });
    for (int attempt = 0; attempt < 50; ++attempt) {
        int dice = journal_.below(all);
        const Habit* habit = habits.data();
        while (dice >= habit->weight) {
            dice -= habit->weight;
            ++habit;
        }
        if ((this->*habit->handle)(window)) {
            return;
        }
    }
    ADD_FAILURE() << qPrintable(window.objectName()) << " offers nothing to do";
}

void RandomUser::perform(QWidget& control, const QString& action, const std::function<void()>& events) {
    perform(control.window()->objectName() + u'/' + control.objectName(), action, events);
}

/// Sends the events of one action and deals with every modal window that comes of them.
void RandomUser::perform(const QString& control, const QString& action, const std::function<void()>& events) {
    journal_.act(control + u' ' + action);
    QTimer modal;
    QObject::connect(&modal, &QTimer::timeout, qApp, [this] { meetModal(); });
    modal.start(0);
    events();
    QApplication::processEvents();
    modal.stop();
    acted_(control);
}

void RandomUser::meetModal() {
    QWidget* modal = QApplication::activeModalWidget();
    if (modal == nullptr || visited_.contains(modal) || !modal->isVisible()) {
        return;
    }
    visited_.append(modal);
    visit(*modal);
    visited_.removeLast();
}

void RandomUser::visit(QWidget& modal) {
    constexpr int longestVisit = 20;
    const QPointer<QWidget> window(&modal);
    const auto open = [&] {
        return window != nullptr && window->isVisible() && !testing::Test::HasFailure();
    };
    for (int left = 1 + journal_.below(longestVisit); left > 0 && open(); --left) {
        act(*window);
    }
    if (window == nullptr || !window->isVisible()) {
        return;
    }
    while (QWidget* popup = QApplication::activePopupWidget()) {
        popup->close();
    }
    perform(*window, u"close box"_s, [&] { window->close(); });
    if (window != nullptr && window->isVisible()) {
        ADD_FAILURE() << qPrintable(window->objectName()) << " does not close";
        window->hide();
    }
}

void RandomUser::actInPopup(QWidget& popup) {
    if (auto* menu = qobject_cast<QMenu*>(&popup); menu != nullptr) {
        actInMenu(*menu);
    } else if (auto* list = popup.findChild<QAbstractItemView*>(); list != nullptr) {
        actInList(*list);
    } else {
        perform(popup, u"left by Escape"_s, [&] { QTest::keyClick(&popup, Qt::Key_Escape); });
    }
}

/// Clicks an entry of an open menu, a disabled one too, or leaves the menu.
void RandomUser::actInMenu(QMenu& menu) {
    const QString window =
        (menu.parentWidget() != nullptr ? menu.parentWidget() : &menu)->window()->objectName();
    QList<QAction*> entries;
    for (QAction* entry : menu.actions()) {
        // The program ends now and then, not all the time.
        if (!entry->isSeparator() && (entry->objectName() != u"mnuFileExit" || journal_.oneIn(6))) {
            entries << entry;
        }
    }
    if (entries.isEmpty() || journal_.oneIn(10)) {
        perform(window + u'/' + menu.objectName(), u"left by Escape"_s,
                [&] { QTest::keyClick(&menu, Qt::Key_Escape); });
        return;
    }
    QAction* entry = journal_.oneOf(entries);
    perform(window + u'/' + entry->objectName(), u"chosen"_s, [&] {
        const QPointer<QMenu> open(&menu);
        QTest::mouseClick(&menu, Qt::LeftButton, Qt::NoModifier, menu.actionGeometry(entry).center());
        if (open != nullptr && open->isVisible()) {
            open->close(); // a disabled entry leaves it open
        }
    });
}

/// Chooses in an open list by the mouse or the keys, or leaves it.
void RandomUser::actInList(QAbstractItemView& list) {
    const QWidget* owner = list.window()->parentWidget();
    const QString name = owner != nullptr ? owner->window()->objectName() + u'/' + owner->objectName()
                                          : list.window()->objectName();
    const int count = list.model()->rowCount();
    if (count == 0 || journal_.oneIn(4)) {
        perform(name, u"list left by Escape"_s, [&] { QTest::keyClick(&list, Qt::Key_Escape); });
        return;
    }
    const int entry = journal_.below(count);
    perform(name, u"entry %1 chosen in the list"_s.arg(entry), [&] {
        const int from = list.currentIndex().row(); // -1 where what is shown does not stand in the list
        for (int step = from; step != entry; step += entry > from ? 1 : -1) {
            QTest::keyClick(&list, entry > from ? Qt::Key_Down : Qt::Key_Up);
        }
        QTest::keyClick(&list, Qt::Key_Return);
    });
}
