#include "core/clsCalendar.h"

#include "ConversionWorld.h"
#include "core/CalendarWindow.h"
#include "core/Conversion.h"
#include "core/FormPlacement.h"
#include "support/QtPrinting.h"
#include "support/TestWorld.h"

#include <QDateTime>
#include <gtest/gtest.h>

#include <functional>

using namespace Qt::StringLiterals;

namespace {

constexpr qint32 INVALID_CALL = 5;
constexpr qint32 TYPE_MISMATCH = 13;
constexpr qint32 NOT_SET = 91;

class PlainForm final : public FormPlacement {
public:
    double top = 0;
    double left = 0;
    double height = 0;
    double width = 0;

    [[nodiscard]] QString Name() const override { return u"form"_s; }
    [[nodiscard]] FormState WindowState() const override { return FormState::Normal; }
    void setWindowState(FormState /*state*/) override {}
    [[nodiscard]] double Top() const override { return top; }
    void setTop(double twips) override { top = twips; }
    [[nodiscard]] double Left() const override { return left; }
    void setLeft(double twips) override { left = twips; }
    [[nodiscard]] double Height() const override { return height; }
    void setHeight(double twips) override { height = twips; }
    [[nodiscard]] double Width() const override { return width; }
    void setWidth(double twips) override { width = twips; }
};

/// What the window showed last; outlives the window.
struct Shown {
    PlainForm form;
    QString month;
    QString year;
    std::array<CalendarCell, CalendarWindow::cellCount> cells;
    qint32 windows = 0;
    qint32 living = 0;
    bool refusesCells = false;

    [[nodiscard]] QStringList captions() const {
        QStringList texts;
        for (const CalendarCell& cell : cells) {
            texts << cell.caption;
        }
        return texts;
    }
    /// The indexes of the cells that hold.
    [[nodiscard]] QList<int> where(bool CalendarCell::*member) const {
        QList<int> found;
        for (std::size_t i = 0; i < cells.size(); ++i) {
            if (cells.at(i).*member) {
                found << static_cast<int>(i);
            }
        }
        return found;
    }
};

class ScriptedWindow final : public CalendarWindow {
public:
    ScriptedWindow(Shown& shown, std::function<void(clsCalendar&)> user)
        : shown_(shown)
        , user_(std::move(user)) {
        ++shown_.windows;
        ++shown_.living;
        shown_.form.width = 3000;
        shown_.form.height = 2400;
    }
    ScriptedWindow(const ScriptedWindow&) = delete;
    ScriptedWindow& operator=(const ScriptedWindow&) = delete;
    ~ScriptedWindow() override { --shown_.living; }

    [[nodiscard]] FormPlacement& placement() override { return shown_.form; }
    [[nodiscard]] double screenWidth() const override { return 15000; }
    [[nodiscard]] double screenHeight() const override { return 12000; }
    void setYear(const QString& year) override { shown_.year = year; }
    void setMonth(const QString& month) override { shown_.month = month; }
    [[nodiscard]] CalendarCell cell(qint16 index) const override {
        return shown_.cells.at(static_cast<std::size_t>(index));
    }
    void setCell(qint16 index, const CalendarCell& cell) override {
        if (shown_.refusesCells) {
            throw failure(ErrorNumber::OutOfMemory);
        }
        shown_.cells.at(static_cast<std::size_t>(index)) = cell;
    }
    void showModal() override {
        ASSERT_NE(mParent, nullptr);
        user_(*mParent);
    }

private:
    Shown& shown_;
    std::function<void(clsCalendar&)> user_;
};

/// A calendar whose user does as told.
class clsCalendarTest : public testing::Test {
protected:
    using User = std::function<void(clsCalendar&)>;

    TestWorld world_;
    Shown shown_;
    User user_ = [](clsCalendar&) {};
    clsCalendar calendar_{[this] { return std::make_unique<ScriptedWindow>(shown_, user_); }};

    static void cancel(clsCalendar& calendar) { calendar.CurrentDate = calendar.HoldDate; }
    /// Opens the calendar on `start`, lets the user act and gives the result.
    QVariant pick(const QVariant& start, User user) {
        user_ = std::move(user);
        return calendar_.ShowCalendar(1, nullptr, {}, {}, start);
    }
    void show(QDate date) {
        pick(date, [](clsCalendar&) {});
    }
    /// The cells of the days 1 to `days`, beginning at `first`, all others blank.
    void expectMonth(int first, int days) const {
        QStringList expected;
        for (int i = 0; i < CalendarWindow::cellCount; ++i) {
            const int day = i - first + 1;
            expected << (day >= 1 && day <= days ? QString::number(day) : QString());
            EXPECT_EQ(shown_.cells.at(static_cast<std::size_t>(i)).enabled, !expected.last().isEmpty()) << i;
        }
        EXPECT_EQ(shown_.captions(), expected);
    }
};

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

// Moving.

TEST_F(clsCalendarTest, IncrementMonth_january31_isTheLastOfFebruaryAndStaysThatDay) {
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

TEST_F(clsCalendarTest, DecrementMonth_march31_isTheLastOfFebruary) {
    EXPECT_EQ(pick(QDate(2023, 3, 31), [](clsCalendar& calendar) { calendar.DecrementMonth(); }),
              QVariant(QDate(2023, 2, 28)));
}

TEST_F(clsCalendarTest, months_crossTheYear) {
    EXPECT_EQ(pick(QDate(2023, 12, 5), [](clsCalendar& calendar) { calendar.IncrementMonth(); }),
              QVariant(QDate(2024, 1, 5)));
    EXPECT_EQ(shown_.year, u"2024"_s);
    EXPECT_EQ(pick(QDate(2024, 1, 5), [](clsCalendar& calendar) { calendar.DecrementMonth(); }),
              QVariant(QDate(2023, 12, 5)));
    EXPECT_EQ(shown_.month, u"December"_s);
}

TEST_F(clsCalendarTest, years_clipFebruary29) {
    EXPECT_EQ(pick(QDate(2024, 2, 29), [](clsCalendar& calendar) { calendar.IncrementYear(); }),
              QVariant(QDate(2025, 2, 28)));
    EXPECT_EQ(pick(QDate(2024, 2, 29), [](clsCalendar& calendar) { calendar.DecrementYear(); }),
              QVariant(QDate(2023, 2, 28)));
}

TEST_F(clsCalendarTest, moves_displayTheMonthThatTheyLeadTo) {
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

TEST_F(clsCalendarTest, SetDay_day15AndOk_givesThe15thOfTheMonthOnDisplay) {
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

TEST_F(clsCalendarTest, SetDay_afterMoving_countsInTheMonthOnDisplay) {
    EXPECT_EQ(pick(u"1/31/2026"_s,
                   [](clsCalendar& calendar) {
                       calendar.IncrementMonth();
                       calendar.SetDay(14);
                   }),
              QVariant(u"2/15/2026"_s));
}

TEST_F(clsCalendarTest, SetDay_textOfAnotherForm_comesBackAsShortDate) {
    EXPECT_EQ(pick(u"February 4, 2026"_s, [](clsCalendar& calendar) { calendar.SetDay(14); }),
              QVariant(u"2/15/2026"_s));
    EXPECT_EQ(pick(u"2/4/26"_s, [](clsCalendar& calendar) { calendar.SetDay(14); }),
              QVariant(u"2/15/2026"_s));
}

TEST_F(clsCalendarTest, SetDay_movesTheMarkAndNothingElse) {
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

TEST_F(clsCalendarTest, moveByDays_withinTheMonthAndBeyondIt) {
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

TEST_F(clsCalendarTest, moveByDays_beyondTheLastDay_staysSilently) {
    EXPECT_EQ(pick(QDate(9999, 12, 31), [](clsCalendar& calendar) { calendar.moveByDays(1); }),
              QVariant(QDate(9999, 12, 31)));
}

// Failures.

TEST_F(clsCalendarTest, moves_beyondTheYears_areReportedAndStay) {
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

TEST_F(clsCalendarTest, moves_ofWhatIsNoDate_areReported) {
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

TEST_F(clsCalendarTest, DisplayMonth_withoutAWindow_isReportedAfterTheDateHasMoved) {
    calendar_.CurrentDate = QDate(2026, 1, 31);
    world_.prompts.expectError(u"clsCalendar.DisplayMonth"_s, NOT_SET);
    calendar_.IncrementMonth();
    EXPECT_EQ(calendar_.CurrentDate, QVariant(QDate(2026, 2, 28)));
}

TEST_F(clsCalendarTest, FillMonth_cellsThatRefuse_isReportedOnceAndTheWindowStillShows) {
    shown_.refusesCells = true;
    world_.prompts.expectError(u"clsCalendar.FillMonth"_s, 7);
    EXPECT_EQ(pick(QDate(2026, 1, 31), [](clsCalendar&) {}), QVariant(QDate(2026, 1, 31)));
}

TEST_F(clsCalendarTest, SetDay_blankOrMissingCell_isReportedAndChangesNothing) {
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

TEST_F(clsCalendarTest, ShowCalendar_withoutAWindow_isReportedAndGivesNothing) {
    clsCalendar bare(nullptr);
    world_.prompts.expectError(u"clsCalendar.Show Calendar"_s, NOT_SET);
    EXPECT_FALSE(bare.ShowCalendar(1).isValid());
}

TEST_F(clsCalendarTest, ShowCalendar_failingWhileShown_unloadsTheWindow) {
    world_.prompts.expectError(u"clsCalendar.Show Calendar"_s, INVALID_CALL);
    EXPECT_FALSE(pick({}, [](clsCalendar&) { throw failure(ErrorNumber::InvalidProcedureCall); }).isValid());
    EXPECT_EQ(shown_.living, 0);
}

// Regions.

class clsCalendarInLocaleTest : public clsCalendarTest, public testing::WithParamInterface<const char*> {
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
