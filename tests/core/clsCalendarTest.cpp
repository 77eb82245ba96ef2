#include "CalendarFixture.h"

using namespace Qt::StringLiterals;

namespace {

class clsCalendarTest : public CalendarFixture {};

} // namespace

// Months.

TEST_F(clsCalendarTest, FillMonth_februaryOfALeapYear_fills29Cells) {
    show(QDate(2024, 2, 10));
    expectMonth(4, 29);
    EXPECT_EQ(shown_.month, u"February"_s);
    EXPECT_EQ(shown_.year, u"2024"_s);
}

TEST_F(clsCalendarTest, FillMonth_februaryOfAnotherYear_fills28Cells) {
    show(QDate(2023, 2, 10));
    expectMonth(3, 28);
}

TEST_F(clsCalendarTest, FillMonth_februaryOfTheCenturies_followsTheCalendar) {
    show(QDate(1900, 2, 1));
    expectMonth(4, 28);
    show(QDate(2000, 2, 1));
    expectMonth(2, 29);
}

TEST_F(clsCalendarTest, FillMonth_31DaysFromASaturday_fillsCells6To36) {
    show(QDate(2022, 10, 31));
    expectMonth(6, 31);
    EXPECT_EQ(shown_.cells.at(36).caption, u"31"_s);
    EXPECT_TRUE(shown_.cells.at(36).marked);
}

TEST_F(clsCalendarTest, FillMonth_28DaysFromASunday_leavesTheLastCellsBlank) {
    show(QDate(2026, 2, 28));
    expectMonth(0, 28);
    EXPECT_EQ(shown_.cells.at(28), CalendarCell());
}

TEST_F(clsCalendarTest, FillMonth_everyMonthOfFourCenturies_beginsUnderItsWeekdayWithAllItsDays) {
    pick(QDate(1800, 1, 1), [&](clsCalendar& calendar) {
        int first = 3; // a Wednesday
        for (int year = 1800; year < 2200; ++year) {
            const bool leap = year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
            for (const int days : {31, leap ? 29 : 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31}) {
                expectMonth(first, days);
                ASSERT_FALSE(HasFailure()) << year;
                first = (first + days) % 7;
                calendar.IncrementMonth();
            }
        }
    });
    EXPECT_EQ(shown_.year, u"2200"_s);
}

TEST_F(clsCalendarTest, FillMonth_marksTheDateAloneAndRingsToday) {
    world_.clock.setToday(QDate(2026, 2, 14));
    show(QDate(2026, 2, 4));
    EXPECT_EQ(shown_.where(&CalendarCell::marked), QList<int>{3});
    EXPECT_EQ(shown_.where(&CalendarCell::today), QList<int>{13});
    show(QDate(2025, 2, 14));
    EXPECT_EQ(shown_.where(&CalendarCell::today), QList<int>());
}

TEST_F(clsCalendarTest, FillMonth_december9999_isWhole) {
    show(QDate(9999, 12, 31));
    expectMonth(3, 31);
}

// Opening.

TEST_F(clsCalendarTest, ShowCalendar_noDate_opensOnTodayInMediumDate) {
    world_.clock.setToday(QDate(2026, 2, 14));
    const QVariant result = pick({}, [&](clsCalendar& calendar) {
        EXPECT_EQ(calendar.CurrentDate, QVariant(u"14-Feb-2026"_s));
        EXPECT_EQ(calendar.HoldDate, QVariant(QString()));
        EXPECT_EQ(shown_.where(&CalendarCell::marked), QList<int>{13});
    });
    EXPECT_EQ(result, QVariant(u"14-Feb-2026"_s));
}

TEST_F(clsCalendarTest, ShowCalendar_noDateAndCancel_givesTheEmptyText) {
    EXPECT_EQ(pick({}, cancel), QVariant(QString()));
}

TEST_F(clsCalendarTest, ShowCalendar_noDateAndCancelAfterMoving_givesTheEmptyText) {
    EXPECT_EQ(pick({},
                   [](clsCalendar& calendar) {
                       calendar.IncrementYear();
                       calendar.SetDay(10);
                       cancel(calendar);
                   }),
              QVariant(QString()));
}

TEST_F(clsCalendarTest, ShowCalendar_validDate_opensOnItAndCancelGivesItUnchanged) {
    for (const QVariant& date :
         {QVariant(u"2/4/1965"_s), QVariant(u" Feb 4, 65"_s), QVariant(QDate(1965, 2, 4)),
          QVariant(QDateTime(QDate(1965, 2, 4), QTime(6, 46))), QVariant(u"1965-02-04T00:00:00"_s)}) {
        const QVariant result = pick(date, [&](clsCalendar& calendar) {
            EXPECT_EQ(calendar.CurrentDate, date);
            EXPECT_EQ(calendar.HoldDate, date);
            EXPECT_EQ(shown_.month + shown_.year, u"February1965"_s);
            EXPECT_EQ(shown_.where(&CalendarCell::marked), QList<int>{4});
            calendar.IncrementMonth();
            cancel(calendar);
        });
        EXPECT_EQ(result, date);
    }
}

TEST_F(clsCalendarTest, ShowCalendar_whatIsNoDate_actsLikeAMissingDate) {
    for (const QVariant& text : {QVariant(u"soon"_s), QVariant(QString()), QVariant(u"2/30/2026"_s),
                                 QVariant(42), QVariant(QDate())}) {
        EXPECT_EQ(pick(text, [](clsCalendar&) {}), QVariant(u"14-Feb-2026"_s));
        EXPECT_EQ(pick(text, cancel), QVariant(QString()));
    }
}

TEST_F(clsCalendarTest, ShowCalendar_again_beginsAnewWithAWindowOfItsOwn) {
    pick(QDate(1965, 2, 4), [](clsCalendar& calendar) { calendar.IncrementYear(); });
    EXPECT_EQ(shown_.living, 0);
    EXPECT_EQ(pick({}, cancel), QVariant(QString()));
    EXPECT_EQ(shown_.windows, 2);
    EXPECT_EQ(shown_.living, 0);
}

// Placing.

TEST_F(clsCalendarTest, ShowCalendar_position1_isTheMiddleOfTheScreen) {
    const PlainForm form;
    calendar_.ShowCalendar(1, &form, 10, 20);
    EXPECT_EQ(shown_.form.left, 6000);
    EXPECT_EQ(shown_.form.top, 4800);
}

TEST_F(clsCalendarTest, ShowCalendar_position2_isTheMiddleOfTheForm) {
    PlainForm form;
    form.left = 900;
    form.top = -600;
    form.width = 9000;
    form.height = 6000;
    calendar_.ShowCalendar(2, &form, 10, 20);
    EXPECT_EQ(shown_.form.left, 900 + 4500 - 1500);
    EXPECT_EQ(shown_.form.top, -600 + 3000 - 1200);
}

TEST_F(clsCalendarTest, ShowCalendar_position2WithoutAForm_isTheMiddleOfTheScreen) {
    calendar_.ShowCalendar(2);
    EXPECT_EQ(shown_.form.left, 6000);
    EXPECT_EQ(shown_.form.top, 4800);
}

TEST_F(clsCalendarTest, ShowCalendar_position3_isThePointWhereverItLies) {
    calendar_.ShowCalendar(3, nullptr, 1500, u" 2,700.5 "_s);
    EXPECT_EQ(shown_.form.left, 1500);
    EXPECT_EQ(shown_.form.top, 2700.5);
    calendar_.ShowCalendar(3, nullptr, -90000.0, 1000000);
    EXPECT_EQ(shown_.form.left, -90000);
    EXPECT_EQ(shown_.form.top, 1000000);
}

TEST_F(clsCalendarTest, ShowCalendar_position3WithWhatIsNoNumber_is0) {
    shown_.form.left = 7;
    calendar_.ShowCalendar(3, nullptr, u"left"_s, QVariant());
    EXPECT_EQ(shown_.form.left, 0);
    EXPECT_EQ(shown_.form.top, 0);
}

TEST_F(clsCalendarTest, ShowCalendar_anyOtherPosition_isTheMiddleOfTheScreen) {
    const PlainForm form;
    for (const qint16 position : {qint16{0}, qint16{4}, qint16{-1}, qint16{32767}}) {
        shown_.form.left = shown_.form.top = 0;
        calendar_.ShowCalendar(position, &form, 10, 20);
        EXPECT_EQ(shown_.form.left, 6000);
        EXPECT_EQ(shown_.form.top, 4800);
    }
}
