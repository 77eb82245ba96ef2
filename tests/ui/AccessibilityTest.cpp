// Every window without a mouse and without eyes: what a screen reader is told, what the keyboard reaches.

#include "pictures/WindowTour.h"
#include "ui/StateTour.h"
#include "ui/frmViewTest.h"

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QAccessible>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QRadioButton>
#include <QTabBar>

#include <map>
#include <set>

namespace {

/// The windows that a walk has to come by, each of them with all its pages.
const std::set<QString> windows = {
    QStringLiteral("frmView"),         QStringLiteral("frmRoom"),     QStringLiteral("frmProfiles"),
    QStringLiteral("frmElements"),     QStringLiteral("frmNineKi"),   QStringLiteral("frmRoomDirection"),
    QStringLiteral("frmSetDirection"), QStringLiteral("frmCalendar"), QStringLiteral("frmAbout"),
    QStringLiteral("frmPrintPreview"), QStringLiteral("messageBox"),  QStringLiteral("inputBox"),
};

class AccessibilityTest : public frmViewTest {
protected:
    void SetUp() override {
        frmViewTest::SetUp();
        Global::Main();
    }
    void visit(const std::function<void(QWidget&, const QString&)>& look) {
        // The new room's window, whose answers are not given.
        world_.prompts.expectMessage(QStringLiteral("Close"),
                                     QStringLiteral("Would you like to save your changes before closing?"),
                                     MessageIcon::Question, MessageAnswer::No);
        std::set<QString> seen;
        const auto visitOne = [&](QWidget& window, const QString& name) {
            seen.insert(window.objectName());
            SCOPED_TRACE(qPrintable(window.objectName() + QStringLiteral(" as ") + name));
            look(window, name);
        };
        visitWindows(*view_, visitOne);
        visitStates(*view_, visitOne);
        visitBoxes(visitOne);
        EXPECT_EQ(seen, windows);
    }
};

QString nameOf(QAccessibleInterface& part) {
    return part.text(QAccessible::Name);
}

/// How a failure names a part of a window.
std::string describe(QAccessibleInterface& part) {
    const QObject* object = part.object();
    const QString control = object == nullptr ? QString()
                                              : QString::fromLatin1(object->metaObject()->className()) +
                                                    u' ' + object->objectName();
    return qPrintable(QStringLiteral("%1 (role %2, named \"%3\")")
                          .arg(control, QString::number(part.role(), 16), nameOf(part)));
}

/// A walk over what a screen reader sees of a window.
class TreeWalk {
public:
    void check(QAccessibleInterface& part) {
        const QAccessible::State state = part.state();
        if (state.invisible) {
            return;
        }
        ++parts_;
        if (isControl(part)) {
            EXPECT_FALSE(nameOf(part).trimmed().isEmpty()) << describe(part) << " has no name";
            EXPECT_FALSE(part.rect().isEmpty()) << describe(part) << " has no place";
        }
        const auto* widget = qobject_cast<QWidget*>(part.object());
        const bool passesFocusOn = widget != nullptr && widget->focusProxy() != nullptr;
        if (state.focusable && !passesFocusOn) {
            EXPECT_NE(part.role(), QAccessible::Client) << describe(part) << " is of no known kind";
        }
        for (int child = 0; child < part.childCount(); ++child) {
            if (QAccessibleInterface* next = part.child(child); next != nullptr && next->isValid()) {
                check(*next);
            }
        }
    }
    [[nodiscard]] int parts() const { return parts_; }

private:
    /// What a user can do something with, and what says something by its name alone.
    static bool isControl(QAccessibleInterface& part) {
        static const std::set<int> kinds = {
            QAccessible::Dialog,   QAccessible::Window,   QAccessible::PushButton,  QAccessible::ButtonMenu,
            QAccessible::CheckBox, QAccessible::ComboBox, QAccessible::RadioButton, QAccessible::EditableText,
            QAccessible::PageTab,  QAccessible::List,     QAccessible::ListItem,    QAccessible::Graphic,
            QAccessible::Table,    QAccessible::ToolBar,  QAccessible::StatusBar,
        };
        if (part.role() == QAccessible::MenuItem) {
            return !part.state().disabled;
        }
        // What a list or field consists of bears the name of the whole.
        const QAccessibleInterface* parent = part.parent();
        const bool isInner = parent != nullptr && (parent->role() == QAccessible::ComboBox);
        return !isInner && (part.state().focusable || kinds.contains(part.role()));
    }

    int parts_ = 0;
};

/// All that answers to Alt and a letter in a window as it stands, by the letter.
std::map<QString, QStringList> mnemonics(QWidget& window) {
    std::map<QString, QStringList> found;
    const auto add = [&](const QKeySequence& keys, const QString& name) {
        if (!keys.isEmpty()) {
            found[keys.toString()] << name;
        }
    };
    for (const auto* bar : window.findChildren<QMenuBar*>()) {
        for (const QAction* menu : bar->actions()) {
            if (menu->isVisible() && menu->isEnabled()) {
                add(QKeySequence::mnemonic(menu->text()), menu->menu()->objectName());
            }
        }
    }
    for (const auto* button : window.findChildren<QAbstractButton*>()) {
        if (button->isVisible() && button->isEnabled()) {
            add(button->shortcut(), button->objectName());
        }
    }
    for (const auto* label : window.findChildren<QLabel*>()) {
        if (label->isVisible() && label->buddy() != nullptr) {
            add(QKeySequence::mnemonic(label->text()), label->objectName());
        }
    }
    for (const auto* tabs : window.findChildren<QTabBar*>()) {
        for (int page = 0; tabs->isVisible() && page < tabs->count(); ++page) {
            add(QKeySequence::mnemonic(tabs->tabText(page)), tabs->tabText(page));
        }
    }
    return found;
}

/// The letters of a menu's entries, by the letter.
std::map<QString, QStringList> mnemonics(const QMenu& menu) {
    std::map<QString, QStringList> found;
    for (const QAction* entry : menu.actions()) {
        const QKeySequence keys = QKeySequence::mnemonic(entry->text());
        if (entry->isVisible() && !keys.isEmpty()) {
            found[keys.toString()] << entry->objectName();
        }
    }
    return found;
}

void expectEachAlone(const std::map<QString, QStringList>& letters) {
    for (const auto& [letter, owners] : letters) {
        EXPECT_EQ(owners.size(), 1) << qPrintable(letter) << " calls "
                                    << qPrintable(owners.join(QStringLiteral(" and ")));
    }
}

/// Whether Tab goes on to what is read next: to the right in the same row, to the next group on the right, or
/// downwards. A jump is a step back: to the left in a row, or up without going to the right.
bool readsOn(const QRect& from, const QRect& to) {
    const bool sameRow = to.top() <= from.bottom() && from.top() <= to.bottom();
    if (sameRow) {
        return from.left() < to.left();
    }
    return from.bottom() < to.top() || from.right() < to.left();
}

/// What a user works with by the mouse, as far as it is shown and may be used.
QList<QWidget*> usableControls(QWidget& window) {
    QList<QWidget*> found;
    for (auto* widget : window.findChildren<QWidget*>()) {
        const bool isControl =
            qobject_cast<QAbstractButton*>(widget) != nullptr ||
            qobject_cast<QComboBox*>(widget) != nullptr || qobject_cast<QLineEdit*>(widget) != nullptr ||
            (widget->objectName() == u"picFloorPlan" && window.objectName() == u"frmSetDirection");
        const bool isInner = qobject_cast<QComboBox*>(widget->parentWidget()) != nullptr ||
                             qobject_cast<QTabBar*>(widget->parentWidget()) != nullptr;
        if (isControl && !isInner && widget->isVisible() && widget->isEnabled() &&
            widget->objectName() != u"qt_menubar_ext_button" &&
            widget->objectName() != u"qt_toolbar_ext_button") {
            found << widget;
        }
    }
    return found;
}

} // namespace

TEST_F(AccessibilityTest, everyPartOfEveryWindow_hasAKindANameAndAPlace) {
    visit([](QWidget& window, const QString& /*name*/) {
        QAccessibleInterface* tree = QAccessible::queryAccessibleInterface(&window);
        ASSERT_NE(tree, nullptr);
        TreeWalk walk;
        walk.check(*tree);
        EXPECT_GE(walk.parts(), 5);
    });
}

TEST_F(AccessibilityTest, noTwoPartsOfAWindow_answerToTheSameLetter) {
    visit([](QWidget& window, const QString& /*name*/) {
        expectEachAlone(mnemonics(window));
        for (const auto* menu : window.findChildren<QMenu*>()) {
            SCOPED_TRACE(qPrintable(menu->objectName()));
            expectEachAlone(mnemonics(*menu));
        }
    });
}

TEST_F(AccessibilityTest, tab_readsOnInEveryWindow) {
    visit([](QWidget& window, const QString& /*name*/) {
        const std::vector<QWidget*> order = WindowDriver::tabOrder(window);
        ASSERT_FALSE(order.empty());
        for (std::size_t i = 1; i < order.size(); ++i) {
            const auto place = [&](const QWidget* stop) {
                return QRect(stop->mapTo(&window, QPoint()), stop->size());
            };
            EXPECT_TRUE(readsOn(place(order[i - 1]), place(order[i])))
                << qPrintable(order[i - 1]->objectName()) << " leads to "
                << qPrintable(order[i]->objectName());
        }
    });
}

TEST_F(AccessibilityTest, tab_reachesWhateverTheMouseCanUse) {
    visit([](QWidget& window, const QString& /*name*/) {
        const std::vector<QWidget*> order = WindowDriver::tabOrder(window);
        for (QWidget* control : usableControls(window)) {
            const auto* radio = qobject_cast<QRadioButton*>(control);
            EXPECT_TRUE(std::ranges::find(order, control) != order.end() || radio != nullptr)
                << qPrintable(control->objectName()) << " is reached by the mouse alone";
        }
    });
}

TEST_F(AccessibilityTest, roomsOfThePlan_areEntriesOfAListThatTellTheirPlaceAndTheirState) {
    WindowDriver::click(*view_, "LOCATION");
    auto& list = WindowDriver::control<QWidget>(*view_, "picFloorPlan");
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&list)->role(), QAccessible::List);
    WindowDriver::control<QListWidget>(*view_, "lstRooms").setCurrentRow(1);
    int selected = 0;
    int rooms = 0;
    for (auto* room : list.findChildren<QWidget*>(QStringLiteral("recRoom"))) {
        QAccessibleInterface* told = QAccessible::queryAccessibleInterface(room);
        ASSERT_NE(told, nullptr);
        if (told->state().invisible) {
            continue;
        }
        ++rooms;
        selected += told->state().selected ? 1 : 0;
        EXPECT_EQ(told->role(), QAccessible::ListItem);
        EXPECT_FALSE(nameOf(*told).isEmpty());
        EXPECT_TRUE(told->text(QAccessible::Description).contains(QStringLiteral("from the left")));
        EXPECT_TRUE(told->state().focusable);
        EXPECT_TRUE(told->state().selectable);
        EXPECT_EQ(told->rect().size(), room->size());
    }
    EXPECT_GE(rooms, 3);
    EXPECT_EQ(selected, 1);
}
