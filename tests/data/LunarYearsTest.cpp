#include "RowsetFile.h"

#include <gtest/gtest.h>

#include <array>
#include <chrono>
#include <cmath>
#include <map>
#include <numbers>
#include <string>
#include <utility>

namespace {

using std::chrono::sys_days;

double sinDegrees(double degrees) {
    return std::sin(degrees * std::numbers::pi / 180.0);
}

/// The Sun's apparent longitude in degrees, from the short method of J. Meeus, Astronomical Algorithms,
/// chapter 25: a mean orbit with the equation of the center, good to 0.01 degrees. The table itself
/// comes from a full planetary theory.
double apparentSolarLongitude(double julianEphemerisDay) {
    const double t = (julianEphemerisDay - 2451545.0) / 36525.0;
    const double meanLongitude = 280.46646 + t * (36000.76983 + t * 0.0003032);
    const double anomaly = 357.52911 + t * (35999.05029 - t * 0.0001537);
    const double equationOfCenter = (1.914602 - t * (0.004817 + t * 0.000014)) * sinDegrees(anomaly) +
                                    (0.019993 - t * 0.000101) * sinDegrees(2.0 * anomaly) +
                                    0.000289 * sinDegrees(3.0 * anomaly);
    const double node = 125.04 - 1934.136 * t;
    return meanLongitude + equationOfCenter - 0.00569 - 0.00478 * sinDegrees(node);
}

/// TT - UT in seconds, drawn straight between the values that F. Espenak publishes for round years.
double deltaT(int year) {
    constexpr std::array<std::pair<int, double>, 10> known{{{1800, 14.0},
                                                            {1850, 7.0},
                                                            {1900, -3.0},
                                                            {1950, 29.0},
                                                            {2000, 64.0},
                                                            {2020, 69.0},
                                                            {2050, 93.0},
                                                            {2100, 203.0},
                                                            {2150, 328.0},
                                                            {2200, 442.0}}};
    std::size_t next = 1;
    while (next + 1 < known.size() && known[next].first < year) {
        ++next;
    }
    const auto& [yearBefore, before] = known[next - 1];
    const auto& [yearAfter, after] = known[next];
    return before + (after - before) * (year - yearBefore) / (yearAfter - yearBefore);
}

/// Li Chun of a Western year as days since 1 January 1970, 0h, in China Standard Time.
double lunarYearStart(int year) {
    double julianDay =
        2440587.5 + static_cast<double>(sys_days(std::chrono::year(year) / 2 / 4).time_since_epoch().count());
    for (int round = 0; round < 6; ++round) {
        julianDay += std::remainder(315.0 - apparentSolarLongitude(julianDay), 360.0) / 360.0 * 365.2422;
    }
    return julianDay - 2440587.5 - deltaT(year) / 86400.0 + 8.0 / 24.0;
}

/// The day of a STARTDATE, counted like lunarYearStart.
int storedDay(const RowsetRow& row) {
    const std::string text = row.text("STARTDATE");
    EXPECT_EQ(text.size(), 19U);
    EXPECT_EQ(text.substr(10), "T00:00:00");
    const std::chrono::year_month_day date{
        std::chrono::year(std::stoi(text.substr(0, 4))),
        std::chrono::month(static_cast<unsigned>(std::stoi(text.substr(5, 2)))),
        std::chrono::day(static_cast<unsigned>(std::stoi(text.substr(8, 2))))};
    EXPECT_TRUE(date.ok()) << text;
    return static_cast<int>(sys_days(date).time_since_epoch().count());
}

/// The years whose instant lies within a quarter of an hour of midnight, with the day that the table
/// gives. The data folder's README says why.
const std::map<int, std::string>& yearsNearMidnight() {
    static const std::map<int, std::string> years{{1807, "02-05"}, {1844, "02-04"}, {1877, "02-03"},
                                                  {1947, "02-04"}, {1980, "02-05"}, {2013, "02-04"},
                                                  {2083, "02-03"}, {2153, "02-03"}, {2186, "02-03"}};
    return years;
}

int floorMod(int value, int length) {
    return ((value % length) + length) % length;
}

TEST(LunarYearsTableTest, years_runFrom1800To2200WithoutGap) {
    const RowsetFile table("KUAYears.xml");
    int year = 1800;
    for (const RowsetRow& row : table.rows()) {
        EXPECT_EQ(row.number("YEARID"), year++);
    }
    EXPECT_EQ(year, 2201);
}

TEST(LunarYearsTableTest, startDate_isAnEarlyFebruaryDayOfItsYear) {
    const RowsetFile table("KUAYears.xml");
    for (const RowsetRow& row : table.rows()) {
        const std::string date = row.text("STARTDATE");
        EXPECT_EQ(date.substr(0, 8), row.text("YEARID") + "-02-");
        const int day = std::stoi(date.substr(8, 2));
        EXPECT_TRUE(day >= 3 && day <= 5) << date;
    }
}

TEST(LunarYearsTableTest, startDate_isTheDayOfTheSunsLongitude315) {
    constexpr double quarterHour = 15.0 / (24.0 * 60.0);
    const RowsetFile table("KUAYears.xml");
    for (const RowsetRow& row : table.rows()) {
        const int year = row.number("YEARID");
        const double instant = lunarYearStart(year);
        const double pastMidnight = instant - std::floor(instant);
        const auto listed = yearsNearMidnight().find(year);
        if (listed != yearsNearMidnight().end()) {
            EXPECT_EQ(row.text("STARTDATE").substr(5, 5), listed->second);
            EXPECT_LT(std::abs(instant - std::round(instant)), 2.0 * quarterHour) << year;
            EXPECT_LE(std::abs(storedDay(row) + 0.5 - instant), 0.5 + quarterHour) << year;
        } else {
            EXPECT_EQ(storedDay(row), static_cast<int>(std::floor(instant)))
                << year << ", " << pastMidnight * 24.0 << " h";
        }
    }
}

// Days that Chinese almanacs print.
TEST(LunarYearsTableTest, startDate_agreesWithPublishedAlmanacs) {
    const std::map<int, std::string> published{
        {1913, "02-04"}, {1919, "02-05"}, {1960, "02-05"}, {1964, "02-05"}, {1965, "02-04"},
        {1976, "02-05"}, {1980, "02-05"}, {1984, "02-04"}, {1985, "02-04"}, {1988, "02-04"},
        {1995, "02-04"}, {2000, "02-04"}, {2012, "02-04"}, {2013, "02-04"}, {2017, "02-03"},
        {2020, "02-04"}, {2021, "02-03"}, {2022, "02-04"}, {2024, "02-04"}, {2025, "02-03"}};
    const RowsetFile table("KUAYears.xml");
    for (const auto& [year, day] : published) {
        EXPECT_EQ(table.row("YEARID", year).text("STARTDATE").substr(5, 5), day) << year;
    }
}

TEST(LunarYearsTableTest, numbers_fallForMenAndRiseForWomenFrom1995) {
    const RowsetFile table("KUAYears.xml");
    EXPECT_EQ(table.row("YEARID", 1995).number("KUANUMBERMALE"), 5);
    EXPECT_EQ(table.row("YEARID", 1995).number("KUANUMBERFEMALE"), 1);
    for (std::size_t index = 1; index < table.rows().size(); ++index) {
        const RowsetRow& before = table.rows()[index - 1];
        const RowsetRow& row = table.rows()[index];
        SCOPED_TRACE(row.text("YEARID"));
        const int male = before.number("KUANUMBERMALE");
        const int female = before.number("KUANUMBERFEMALE");
        EXPECT_EQ(row.number("KUANUMBERMALE"), male == 1 ? 9 : male - 1);
        EXPECT_EQ(row.number("KUANUMBERFEMALE"), female == 9 ? 1 : female + 1);
    }
}

// A rule of thumb from outside the table: a man of the twentieth century takes ten less the digits of his
// year's last two, a woman five and those digits, each summed until one digit is left.
TEST(LunarYearsTableTest, numbers_agreeWithTheDigitSumOfTheTwentiethCentury) {
    const RowsetFile table("KUAYears.xml");
    for (int year = 1900; year < 2000; ++year) {
        const auto digitRoot = [](int value) { return value == 0 ? 0 : 1 + (value - 1) % 9; };
        const int digits = digitRoot(year % 100);
        const RowsetRow& row = table.row("YEARID", year);
        EXPECT_EQ(row.number("KUANUMBERMALE"), digitRoot(10 - digits)) << year;
        EXPECT_EQ(row.number("KUANUMBERFEMALE"), digitRoot(5 + digits)) << year;
    }
}

TEST(LunarYearsTableTest, numbers_areTheNumberOfExactlyOneDirection) {
    const RowsetFile directions("Directions.xml");
    for (int number = 1; number <= 9; ++number) {
        int found = 0;
        for (const RowsetRow& row : directions.rows()) {
            found += row.number("KUA") == number ? 1 : 0;
        }
        EXPECT_EQ(found, 1) << number;
    }
}

TEST(LunarYearsTableTest, animals_followTheTwelveYearCycleThroughTheBoarOf1995) {
    const RowsetFile table("KUAYears.xml");
    const RowsetFile animals("Animals.xml");
    const auto signOf = [&](int year) {
        return animals.row("ANIMALID", table.row("YEARID", year).number("ANIMALID")).text("ANIMALNAME");
    };
    const std::array<std::string, 12> fromBoar{"Boar",  "Rat",   "Ox",    "Tiger",  "Rabbit",  "Dragon",
                                               "Snake", "Horse", "Sheep", "Monkey", "Rooster", "Dog"};
    for (int year = 1800; year <= 2200; ++year) {
        EXPECT_EQ(signOf(year), fromBoar.at(static_cast<std::size_t>(floorMod(year - 1995, 12)))) << year;
    }
}

TEST(LunarYearsTableTest, readme_listsTheYearsNearMidnight) {
    const std::string readme = dataText("README.md");
    for (const auto& [year, day] : yearsNearMidnight()) {
        EXPECT_NE(readme.find("| " + std::to_string(year) + "-" + day + " |"), std::string::npos) << year;
    }
}

} // namespace
