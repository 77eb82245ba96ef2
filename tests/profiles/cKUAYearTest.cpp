#include "profiles/cKUAYear.h"

#include "core/Conversion.h"
#include "support/QtPrinting.h"
#include "support/RecordFiles.h"
#include "support/TestWorld.h"

#include <QDateTime>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QString OBJECT_NOT_SET = u"Object variable or With block variable not set"_s;

QByteArray yearRow(const QByteArray& year, const QByteArray& start, const QByteArray& male = "8") {
    return "<z:row YEARID='" + year + "' STARTDATE='" + start + "' KUANUMBERMALE='" + male +
           "' KUANUMBERFEMALE='7' ANIMALID='6'/>";
}

TEST(cKUAYearTest, GetKUAYear_storedYear_fillsEveryField) {
    const TestWorld world;
    world.write(u"KUAYears.xml"_s, recordFile({yearRow("1965", "1965-02-04T00:00:00")}));
    cKUAYear year;
    EXPECT_TRUE(year.GetKUAYear(1965));
    EXPECT_EQ(year.YearID, 1965);
    EXPECT_EQ(year.StartDate, QVariant(u"1965-02-04 00:00:00"_s));
    EXPECT_EQ(year.KUANumberMale, 8);
    EXPECT_EQ(year.KUANumberFemale, 7);
    EXPECT_EQ(year.AnimalID, 6);
}

TEST(cKUAYearTest, GetKUAYear_startDate_readsAsADateInEveryLocale) {
    TestWorld world;
    for (const char* name : {"en_US", "en_GB", "de_DE", "sv_SE", "fr_FR", "zh_CN", "C"}) {
        world.setLocale(QLocale(QString::fromLatin1(name)));
        cKUAYear year;
        ASSERT_TRUE(year.GetKUAYear(1965));
        EXPECT_EQ(Conversion::toDate(year.StartDate), QDate(1965, 2, 4)) << name;
    }
}

TEST(cKUAYearTest, GetKUAYear_yearMissingFromTheTable_isFalseAndLeavesTheFields) {
    const TestWorld world;
    cKUAYear year;
    ASSERT_TRUE(year.GetKUAYear(1995));
    EXPECT_FALSE(year.GetKUAYear(1799));
    EXPECT_FALSE(year.GetKUAYear(2201));
    EXPECT_EQ(year.YearID, 1995);
    EXPECT_EQ(year.KUANumberMale, 5);
    EXPECT_EQ(year.KUANumberFemale, 1);
}

TEST(cKUAYearTest, GetKUAYear_found_leavesTheCursorOnTheRow) {
    const TestWorld world;
    cKUAYear year;
    ASSERT_TRUE(year.GetKUAYear(1995));
    EXPECT_TRUE(year.oXMLKUAYears->MoveNext());
    EXPECT_EQ(year.oXMLKUAYears->GetAttribute(u"YEARID"_s), u"1996");
}

TEST(cKUAYearTest, GetKUAYear_noNumber_isReportedWithTheFieldsBeforeItFilled) {
    TestWorld world;
    world.write(u"KUAYears.xml"_s, recordFile({yearRow("1965", "1965-02-04T00:00:00", "")}));
    cKUAYear year;
    world.prompts.expectError(u"cKUAYear.Get KUA Year"_s, 13, u"Type mismatch"_s);
    EXPECT_FALSE(year.GetKUAYear(1965));
    EXPECT_EQ(year.YearID, 1965);
    EXPECT_EQ(year.StartDate.toString(), u"1965-02-04 00:00:00");
    EXPECT_EQ(year.KUANumberFemale, 0);
}

TEST(cKUAYearTest, GetKUAYear_missingFile_isReportedByTheStore) {
    TestWorld world;
    world.remove(u"KUAYears.xml"_s);
    cKUAYear year;
    world.prompts.expectError(u"cXMLHandler.Find"_s, 91, OBJECT_NOT_SET);
    EXPECT_FALSE(year.GetKUAYear(1965));
    EXPECT_TRUE(year.LoadKUAYears());
}

// The year of the lunar calendar.

struct AdjustedYearCase {
    QVariant date;
    qint32 year = 0;
};

class CalculateAdjustedYearTest : public testing::TestWithParam<AdjustedYearCase> {};

TEST_P(CalculateAdjustedYearTest, isTheYearThatHasStarted) {
    const TestWorld world;
    EXPECT_EQ(Global::CalculateAdjustedYear(GetParam().date), GetParam().year);
}

INSTANTIATE_TEST_SUITE_P(
    ofADate, CalculateAdjustedYearTest,
    testing::Values(AdjustedYearCase{QDate(1965, 2, 3), 1964}, AdjustedYearCase{QDate(1965, 2, 4), 1965},
                    AdjustedYearCase{QDate(1965, 12, 31), 1965}, AdjustedYearCase{QDate(1965, 1, 1), 1964},
                    // Years that start on the 5th and on the 3rd.
                    AdjustedYearCase{QDate(1915, 2, 4), 1914}, AdjustedYearCase{QDate(1915, 2, 5), 1915},
                    AdjustedYearCase{QDate(2025, 2, 2), 2024}, AdjustedYearCase{QDate(2025, 2, 3), 2025},
                    // The first and last years of the table.
                    AdjustedYearCase{QDate(1800, 2, 3), 1799}, AdjustedYearCase{QDate(1800, 2, 4), 1800},
                    AdjustedYearCase{QDate(2200, 2, 3), 2199}, AdjustedYearCase{QDate(2200, 2, 4), 2200},
                    // Years outside it start on 4 February.
                    AdjustedYearCase{QDate(1799, 2, 3), 1798}, AdjustedYearCase{QDate(1799, 2, 4), 1799},
                    AdjustedYearCase{QDate(2201, 2, 3), 2200}, AdjustedYearCase{QDate(2201, 2, 4), 2201},
                    AdjustedYearCase{QDate(150, 2, 3), 149}, AdjustedYearCase{QDate(150, 2, 4), 150}));

INSTANTIATE_TEST_SUITE_P(ofAText, CalculateAdjustedYearTest,
                         testing::Values(AdjustedYearCase{u"2/3/1965"_s, 1964},
                                         AdjustedYearCase{u"2/4/1965"_s, 1965},
                                         AdjustedYearCase{u"February 4, 1965"_s, 1965},
                                         AdjustedYearCase{u"1965-02-03T00:00:00"_s, 1964},
                                         AdjustedYearCase{u"1965-02-03 23:59:59"_s, 1964}));

INSTANTIATE_TEST_SUITE_P(ofADateWithATimeOfDay, CalculateAdjustedYearTest,
                         testing::Values(AdjustedYearCase{QDateTime(QDate(1965, 2, 3), QTime(23, 59, 59)),
                                                          1964},
                                         AdjustedYearCase{QDateTime(QDate(1965, 2, 4), QTime(0, 0)), 1965}));

INSTANTIATE_TEST_SUITE_P(ofNoDate, CalculateAdjustedYearTest,
                         testing::Values(AdjustedYearCase{QVariant(), 0}, AdjustedYearCase{QString(), 0},
                                         AdjustedYearCase{u"soon"_s, 0}, AdjustedYearCase{QDate(), 0},
                                         AdjustedYearCase{u"February 30, 1965"_s, 0}));

TEST(CalculateAdjustedYear, timeOfDayOfTheStart_playsNoPart) {
    const TestWorld world;
    world.write(u"KUAYears.xml"_s, recordFile({yearRow("1965", "1965-02-04T22:46:00")}));
    EXPECT_EQ(Global::CalculateAdjustedYear(QDate(1965, 2, 4)), 1965);
    EXPECT_EQ(Global::CalculateAdjustedYear(QDate(1965, 2, 3)), 1964);
}

TEST(CalculateAdjustedYear, startDateIsTheTables_notAFixedDay) {
    const TestWorld world;
    world.write(u"KUAYears.xml"_s, recordFile({yearRow("1965", "1965-02-20T00:00:00")}));
    EXPECT_EQ(Global::CalculateAdjustedYear(QDate(1965, 2, 19)), 1964);
    EXPECT_EQ(Global::CalculateAdjustedYear(QDate(1965, 2, 20)), 1965);
    EXPECT_EQ(Global::CalculateAdjustedYear(QDate(1966, 2, 4)), 1966); // no row
}

TEST(CalculateAdjustedYear, fallback_worksInEveryLocale) {
    TestWorld world;
    for (const char* name : {"en_US", "en_GB", "de_DE", "sv_SE", "fr_FR", "zh_CN", "C"}) {
        world.setLocale(QLocale(QString::fromLatin1(name)));
        EXPECT_EQ(Global::CalculateAdjustedYear(QDate(1799, 2, 3)), 1798) << name;
        EXPECT_EQ(Global::CalculateAdjustedYear(QDate(1799, 2, 4)), 1799) << name;
    }
}

TEST(CalculateAdjustedYear, startDateThatIsNoDate_isReportedAndGivesZero) {
    TestWorld world;
    world.write(u"KUAYears.xml"_s, recordFile({yearRow("1965", "spring")}));
    world.prompts.expectError(u"Global.Calculate Adjusted Year"_s, 13, u"Type mismatch"_s);
    EXPECT_EQ(Global::CalculateAdjustedYear(QDate(1965, 6, 1)), 0);
}

TEST(CalculateAdjustedYear, missingTable_isReportedByTheStoreAndTheFallbackServes) {
    TestWorld world;
    world.remove(u"KUAYears.xml"_s);
    world.prompts.expectError(u"cXMLHandler.Find"_s, 91, OBJECT_NOT_SET);
    EXPECT_EQ(Global::CalculateAdjustedYear(QDate(1965, 2, 3)), 1964);
}

} // namespace
