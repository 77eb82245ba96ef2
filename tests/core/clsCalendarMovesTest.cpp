#include "CalendarFixture.h"
#include "ConversionWorld.h"

using namespace Qt::StringLiterals;

namespace {

class clsCalendarMovesTest : public CalendarFixture {};

} // namespace

// Moving.

TEST_F(clsCalendarMovesTest, IncrementMonth_january31_isTheLastOfFebruaryAndStaysThatDay) {
    EXPECT_EQ(pick(QDate(2023, 1, 31), [](clsCalendar& calendar) { calendar.IncrementMonth(); }),
              QVariant(QDate(2023, 2, 28)));
    EXPECT_EQ(pick(QDate(2024, 1, 31),
                   [](clsCalendar& calendar) {
                       calendar.IncrementMonth();
                       EXPECT_EQ(calendar.CurrentDate, QVariant(QDate(2024, 2, 29)));
                       calendar.IncrementMonth();
                   }),
              QVariant(QDate(2024, 3, 29)));
}

TEST_F(clsCalendarMovesTest, DecrementMonth_march31_isTheLastOfFebruary) {
    EXPECT_EQ(pick(QDate(2023, 3, 31), [](clsCalendar& calendar) { calendar.DecrementMonth(); }),
              QVariant(QDate(2023, 2, 28)));
}

TEST_F(clsCalendarMovesTest, months_crossTheYear) {
    EXPECT_EQ(pick(QDate(2023, 12, 5), [](clsCalendar& calendar) { calendar.IncrementMonth(); }),
              QVariant(QDate(2024, 1, 5)));
    EXPECT_EQ(shown_.year, u"2024"_s);
    EXPECT_EQ(pick(QDate(2024, 1, 5), [](clsCalendar& calendar) { calendar.DecrementMonth(); }),
              QVariant(QDate(2023, 12, 5)));
    EXPECT_EQ(shown_.month, u"December"_s);
}

TEST_F(clsCalendarMovesTest, years_clipFebruary29) {
    EXPECT_EQ(pick(QDate(2024, 2, 29), [](clsCalendar& calendar) { calendar.IncrementYear(); }),
              QVariant(QDate(2025, 2, 28)));
    EXPECT_EQ(pick(QDate(2024, 2, 29), [](clsCalendar& calendar) { calendar.DecrementYear(); }),
              QVariant(QDate(2023, 2, 28)));
}

TEST_F(clsCalendarMovesTest, moves_displayTheMonthThatTheyLeadTo) {
    pick(QDate(2022, 9, 10), [&](clsCalendar& calendar) {
        calendar.IncrementMonth();
        expectMonth(6, 31);
        EXPECT_EQ(shown_.month, u"October"_s);
        EXPECT_EQ(shown_.where(&CalendarCell::marked), QList<int>{15});
        calendar.IncrementYear();
        expectMonth(0, 31);
        EXPECT_EQ(shown_.year, u"2023"_s);
    });
}

TEST_F(clsCalendarMovesTest, SetDay_day15AndOk_givesThe15thOfTheMonthOnDisplay) {
    // February 2026 begins in the first cell.
    const auto fifteenth = [](clsCalendar& calendar) { calendar.SetDay(14); };
    EXPECT_EQ(pick({}, fifteenth), QVariant(u"15-Feb-2026"_s));
    EXPECT_EQ(pick(u"04-Feb-2026"_s, fifteenth), QVariant(u"15-Feb-2026"_s));
    EXPECT_EQ(pick(u"2/4/2026"_s, fifteenth), QVariant(u"2/15/2026"_s));
    EXPECT_EQ(pick(u"2026-02-04"_s, fifteenth), QVariant(u"2026-02-15"_s));
    EXPECT_EQ(pick(u"2026-02-04T00:00:00"_s, fifteenth), QVariant(u"2026-02-15T00:00:00"_s));
    EXPECT_EQ(pick(QDate(2026, 2, 4), fifteenth), QVariant(QDate(2026, 2, 15)));
    EXPECT_EQ(pick(QDateTime(QDate(2026, 2, 4), QTime(6, 46)), fifteenth),
              QVariant(QDateTime(QDate(2026, 2, 15), QTime(6, 46))));
}

TEST_F(clsCalendarMovesTest, SetDay_afterMoving_countsInTheMonthOnDisplay) {
    EXPECT_EQ(pick(u"1/31/2026"_s,
                   [](clsCalendar& calendar) {
                       calendar.IncrementMonth();
                       calendar.SetDay(14);
                   }),
              QVariant(u"2/15/2026"_s));
}

TEST_F(clsCalendarMovesTest, SetDay_textOfAnotherForm_comesBackAsShortDate) {
    EXPECT_EQ(pick(u"February 4, 2026"_s, [](clsCalendar& calendar) { calendar.SetDay(14); }),
              QVariant(u"2/15/2026"_s));
    EXPECT_EQ(pick(u"2/4/26"_s, [](clsCalendar& calendar) { calendar.SetDay(14); }),
              QVariant(u"2/15/2026"_s));
}

TEST_F(clsCalendarMovesTest, SetDay_movesTheMarkAndNothingElse) {
    pick(QDate(2026, 2, 4), [&](clsCalendar& calendar) {
        const QStringList before = shown_.captions();
        calendar.SetDay(13);
        EXPECT_EQ(shown_.where(&CalendarCell::marked), QList<int>{13});
        EXPECT_EQ(shown_.where(&CalendarCell::today), QList<int>{13});
        calendar.SetDay(20);
        EXPECT_EQ(shown_.where(&CalendarCell::marked), QList<int>{20});
        EXPECT_EQ(shown_.where(&CalendarCell::today), QList<int>{13});
        EXPECT_EQ(shown_.captions(), before);
    });
}

TEST_F(clsCalendarMovesTest, moveByDays_withinTheMonthAndBeyondIt) {
    pick(QDate(2026, 2, 14), [&](clsCalendar& calendar) {
        calendar.moveByDays(7);
        EXPECT_EQ(shown_.where(&CalendarCell::marked), QList<int>{20});
        calendar.moveByDays(8);
        EXPECT_EQ(calendar.CurrentDate, QVariant(QDate(2026, 3, 1)));
        EXPECT_EQ(shown_.month, u"March"_s);
        calendar.moveByDays(-1);
        EXPECT_EQ(calendar.CurrentDate, QVariant(QDate(2026, 2, 28)));
        EXPECT_EQ(shown_.month, u"February"_s);
    });
    EXPECT_EQ(pick(QDate(2025, 12, 31), [](clsCalendar& calendar) { calendar.moveByDays(1); }),
              QVariant(QDate(2026, 1, 1)));
}

TEST_F(clsCalendarMovesTest, moveByDays_beyondTheLastDay_staysSilently) {
    EXPECT_EQ(pick(QDate(9999, 12, 31), [](clsCalendar& calendar) { calendar.moveByDays(1); }),
              QVariant(QDate(9999, 12, 31)));
}

// Failures.

TEST_F(clsCalendarMovesTest, moves_beyondTheYears_areReportedAndStay) {
    world_.prompts.expectError(u"clsCalendar.IncrementYear"_s, INVALID_CALL);
    world_.prompts.expectError(u"clsCalendar.IncrementMonth"_s, INVALID_CALL);
    EXPECT_EQ(pick(QDate(9999, 12, 31),
                   [](clsCalendar& calendar) {
                       calendar.IncrementYear();
                       calendar.IncrementMonth();
                   }),
              QVariant(QDate(9999, 12, 31)));
    world_.prompts.expectError(u"clsCalendar.DecrementYear"_s, INVALID_CALL);
    world_.prompts.expectError(u"clsCalendar.DecrementMonth"_s, INVALID_CALL);
    EXPECT_EQ(pick(QDate(100, 1, 1),
                   [](clsCalendar& calendar) {
                       calendar.DecrementYear();
                       calendar.DecrementMonth();
                   }),
              QVariant(QDate(100, 1, 1)));
}

TEST_F(clsCalendarMovesTest, moves_ofWhatIsNoDate_areReported) {
    calendar_.CurrentDate = u"soon"_s;
    for (const char* label : {"DecrementMonth", "IncrementMonth", "DecrementYear", "IncrementYear"}) {
        world_.prompts.expectError(u"clsCalendar."_s + QString::fromLatin1(label), TYPE_MISMATCH,
                                   u"Type mismatch"_s);
    }
    calendar_.DecrementMonth();
    calendar_.IncrementMonth();
    calendar_.DecrementYear();
    calendar_.IncrementYear();
    EXPECT_EQ(calendar_.CurrentDate, QVariant(u"soon"_s));
}

TEST_F(clsCalendarMovesTest, DisplayMonth_withoutAWindow_isReportedAfterTheDateHasMoved) {
    calendar_.CurrentDate = QDate(2026, 1, 31);
    world_.prompts.expectError(u"clsCalendar.DisplayMonth"_s, NOT_SET);
    calendar_.IncrementMonth();
    EXPECT_EQ(calendar_.CurrentDate, QVariant(QDate(2026, 2, 28)));
}

TEST_F(clsCalendarMovesTest, FillMonth_cellsThatRefuse_isReportedOnceAndTheWindowStillShows) {
    shown_.refusesCells = true;
    world_.prompts.expectError(u"clsCalendar.FillMonth"_s, 7);
    EXPECT_EQ(pick(QDate(2026, 1, 31), [](clsCalendar&) {}), QVariant(QDate(2026, 1, 31)));
}

TEST_F(clsCalendarMovesTest, SetDay_blankOrMissingCell_isReportedAndChangesNothing) {
    world_.prompts.expectError(u"clsCalendar.Set Day"_s, TYPE_MISMATCH);
    world_.prompts.expectError(u"clsCalendar.Set Day"_s, INVALID_CALL);
    world_.prompts.expectError(u"clsCalendar.Set Day"_s, INVALID_CALL);
    EXPECT_EQ(pick(QDate(2026, 2, 4),
                   [&](clsCalendar& calendar) {
                       calendar.SetDay(28);
                       calendar.SetDay(37);
                       calendar.SetDay(-1);
                       EXPECT_EQ(shown_.where(&CalendarCell::marked), QList<int>{3});
                   }),
              QVariant(QDate(2026, 2, 4)));
}

TEST_F(clsCalendarMovesTest, ShowCalendar_withoutAWindow_isReportedAndGivesNothing) {
    clsCalendar bare(nullptr);
    world_.prompts.expectError(u"clsCalendar.Show Calendar"_s, NOT_SET);
    EXPECT_FALSE(bare.ShowCalendar(1).isValid());
}

TEST_F(clsCalendarMovesTest, ShowCalendar_failingWhileShown_unloadsTheWindow) {
    world_.prompts.expectError(u"clsCalendar.Show Calendar"_s, INVALID_CALL);
    EXPECT_FALSE(pick({}, [](clsCalendar&) { throw failure(ErrorNumber::InvalidProcedureCall); }).isValid());
    EXPECT_EQ(shown_.living, 0);
}

// Regions.

class clsCalendarInLocaleTest : public clsCalendarMovesTest, public testing::WithParamInterface<const char*> {
protected:
    void SetUp() override { world_.setLocale(QLocale(QString::fromLatin1(GetParam()))); }
};

INSTANTIATE_TEST_SUITE_P(AllLocales, clsCalendarInLocaleTest, testing::ValuesIn(testedLocales), localeName);

TEST_P(clsCalendarInLocaleTest, SetDay_everyDayOfAYear_keepsTheFormOfTheDate) {
    for (QString (*form)(QDate) : {static_cast<QString (*)(QDate)>(Conversion::shortDate),
                                   static_cast<QString (*)(QDate)>(Conversion::mediumDate)}) {
        for (QDate date(2026, 1, 1); date.year() == 2026; date = date.addDays(1)) {
            const QVariant result = pick(form(date), [&](clsCalendar& calendar) {
                const int first = QDate(date.year(), date.month(), 1).dayOfWeek() % 7;
                calendar.SetDay(static_cast<qint16>(first + 14));
            });
            ASSERT_EQ(result, QVariant(form(QDate(date.year(), date.month(), 15)))) << qPrintable(form(date));
        }
    }
}

TEST_P(clsCalendarInLocaleTest, months_goThroughAYearInTheFormOfTheDate) {
    const QDate start(2023, 12, 31);
    pick(Conversion::shortDate(start), [&](clsCalendar& calendar) {
        QDate expected = start;
        for (int month = 0; month < 12; ++month) {
            calendar.IncrementMonth();
            expected = expected.addMonths(1);
            ASSERT_EQ(calendar.CurrentDate, QVariant(Conversion::shortDate(expected)));
            EXPECT_EQ(shown_.month,
                      QLocale(QString::fromLatin1(GetParam())).standaloneMonthName(expected.month()));
            EXPECT_EQ(shown_.year, u"2024"_s);
        }
    });
}

TEST_P(clsCalendarInLocaleTest, ShowCalendar_noDate_givesTodayAsMediumDate) {
    EXPECT_EQ(pick({}, [](clsCalendar&) {}), QVariant(Conversion::mediumDate(QDate(2026, 2, 14))));
}
