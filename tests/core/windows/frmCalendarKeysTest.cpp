#include "CalendarWindowFixture.h"

using namespace Qt::StringLiterals;

namespace {

class frmCalendarKeysTest : public CalendarWindowFixture {};

} // namespace

// The keyboard.

TEST_F(frmCalendarKeysTest, arrowKeys_chooseADay) {
    EXPECT_EQ(pick(FOURTH,
                   [](QWidget& window) {
                       press(window, Qt::Key_Right);
                       EXPECT_EQ(boldCells(window), QList<int>{4});
                       press(window, Qt::Key_Down);
                       EXPECT_EQ(boldCells(window), QList<int>{11});
                       press(window, Qt::Key_Left);
                       EXPECT_EQ(boldCells(window), QList<int>{10});
                       press(window, Qt::Key_Up);
                       EXPECT_EQ(boldCells(window), QList<int>{3});
                       press(window, Qt::Key_Right);
                       press(window, Qt::Key_Return);
                       EXPECT_FALSE(window.isVisible());
                   }),
              QVariant(QDate(2026, 2, 5)));
}

TEST_F(frmCalendarKeysTest, arrowKeys_crossIntoTheNeighbouringMonths) {
    EXPECT_EQ(pick(FOURTH,
                   [](QWidget& window) {
                       press(window, Qt::Key_Up);
                       EXPECT_EQ(text(window, "lblMonth"), u"January"_s);
                       expectMonth(window, 4, 31);
                       for (int i = 0; i < 4; ++i) {
                           press(window, Qt::Key_Right);
                       }
                       EXPECT_EQ(text(window, "lblMonth"), u"February"_s);
                       press(window, Qt::Key_Enter);
                   }),
              QVariant(QDate(2026, 2, 1)));
}

TEST_F(frmCalendarKeysTest, pageKeys_moveByMonthAndWithShiftByYear) {
    EXPECT_EQ(pick(QDate(2024, 3, 31),
                   [](QWidget& window) {
                       press(window, Qt::Key_PageUp);
                       expectMonth(window, 4, 29);
                       press(window, Qt::Key_PageUp, Qt::ShiftModifier);
                       expectMonth(window, 3, 28);
                       press(window, Qt::Key_PageDown);
                       EXPECT_EQ(text(window, "lblMonth"), u"March"_s);
                       press(window, Qt::Key_PageDown, Qt::ShiftModifier);
                       EXPECT_EQ(text(window, "lblYear"), u"2024"_s);
                       press(window, Qt::Key_Return);
                   }),
              QVariant(QDate(2024, 3, 28)));
}

TEST_F(frmCalendarKeysTest, escape_givesTheDateThatWasPassed) {
    EXPECT_EQ(pick(FOURTH,
                   [](QWidget& window) {
                       press(window, Qt::Key_PageDown);
                       press(window, Qt::Key_Escape);
                       EXPECT_FALSE(window.isVisible());
                   }),
              QVariant(FOURTH));
}

TEST_F(frmCalendarKeysTest, enterOnAnArrow_keepsTheDate) {
    EXPECT_EQ(pick(FOURTH,
                   [](QWidget& window) {
                       control(window, "udMonthUp").setFocus();
                       press(window, Qt::Key_Space);
                       EXPECT_EQ(text(window, "lblMonth"), u"March"_s);
                       press(window, Qt::Key_Return);
                       EXPECT_FALSE(window.isVisible());
                   }),
              QVariant(QDate(2026, 3, 4)));
}

TEST_F(frmCalendarKeysTest, mnemonics_pressTheButtons) {
    EXPECT_EQ(pick(FOURTH,
                   [](QWidget& window) {
                       clickDay(window, 15);
                       ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
                       press(window, Qt::Key_C, Qt::AltModifier);
                       EXPECT_TRUE(QTest::qWaitFor([&] { return !window.isVisible(); }));
                   }),
              QVariant(FOURTH));
}

// Reach.

TEST_F(frmCalendarKeysTest, focus_startsOnTheDays) {
    pick(FOURTH, [](QWidget& window) { EXPECT_EQ(window.focusWidget(), &control(window, "days")); });
}

TEST_F(frmCalendarKeysTest, tab_goesFromTopLeftToBottomRightThroughNamedControls) {
    pick(FOURTH, [](QWidget& window) {
        expectReadingOrder(window);
        expectNamedControls(window);
        EXPECT_EQ(tabOrder(window).size(), 7U);
    });
}

TEST_F(frmCalendarKeysTest, days_areReadAloudWithMonthAndYear) {
    pick(FOURTH, [](QWidget& window) {
        EXPECT_EQ(day(window, 0).accessibleName(), u"1 February 2026"_s);
        EXPECT_EQ(day(window, 30).accessibleName(), QString());
        EXPECT_EQ(control(window, "days").accessibleName(), u"4 February 2026"_s);
        press(window, Qt::Key_PageDown);
        press(window, Qt::Key_Left);
        EXPECT_EQ(control(window, "days").accessibleName(), u"3 March 2026"_s);
    });
}

TEST_F(frmCalendarKeysTest, windowThatNoCalendarOpened_letsKeysAndClicksPass) {
    frmCalendar window;
    window.show();
    for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Down, Qt::Key_PageUp, Qt::Key_PageDown}) {
        press(window, key);
    }
    QTest::mouseClick(&day(window, 3), Qt::LeftButton);
    EXPECT_TRUE(window.isVisible());
    press(window, Qt::Key_Escape);
    EXPECT_FALSE(window.isVisible());
}
