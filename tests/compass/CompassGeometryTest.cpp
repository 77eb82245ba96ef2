#include "compass/CompassGeometry.h"

#include "core/Failure.h"
#include "core/Global.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using namespace CompassGeometry;

namespace {

/// The number of the failure that a calculation ends in; 0 when it does not fail.
template<class Calculation>
qint32 failureOf(Calculation&& calculation) {
    try {
        std::forward<Calculation>(calculation)();
    } catch (const Failure& problem) {
        return problem.number;
    }
    return 0;
}

struct AngleCase {
    double X;
    double Y;
    double angle;
};

class GetAngleTest : public testing::TestWithParam<AngleCase> {};
class PointedAngleTest : public testing::TestWithParam<AngleCase> {};

constexpr double asExactAsPi = 1e-9;

} // namespace

TEST_P(GetAngleTest, ofAPoint_isItsCompassAngle) {
    EXPECT_NEAR(GetAngle(GetParam().X, GetParam().Y), GetParam().angle, asExactAsPi);
}

INSTANTIATE_TEST_SUITE_P(Axes, GetAngleTest,
                         testing::Values(AngleCase{0, 0, 0}, AngleCase{0, -5, 360}, AngleCase{5, 0, 90},
                                         AngleCase{0, 5, 180}, AngleCase{-5, 0, 270}));
INSTANTIATE_TEST_SUITE_P(Quadrants, GetAngleTest,
                         testing::Values(AngleCase{1, -1, 45}, AngleCase{1, 1, 135}, AngleCase{-1, 1, 225},
                                         AngleCase{-1, -1, 315}, AngleCase{1, -2, 26.565051177078},
                                         AngleCase{-2, -1, 296.565051177078}));

TEST_P(PointedAngleTest, ofAPoint_isWhatAClickThereGives) {
    EXPECT_NEAR(pointedAngle(GetParam().X, GetParam().Y), GetParam().angle, asExactAsPi);
}

INSTANTIATE_TEST_SUITE_P(Quadrants, PointedAngleTest,
                         testing::Values(AngleCase{1, -1, 45}, AngleCase{1, 1, 135}, AngleCase{-1, 1, 225},
                                         AngleCase{-1, -1, 315}));
INSTANTIATE_TEST_SUITE_P(VerticalAxis, PointedAngleTest,
                         testing::Values(AngleCase{0, -5, 0}, AngleCase{0, 5, 180}));

TEST(CompassGeometry, GetAngle_onTheAxes_isExact) {
    EXPECT_EQ(GetAngle(0, -5), 360);
    EXPECT_EQ(GetAngle(0, 5), 180);
    EXPECT_EQ(GetAngle(-5, 0), 270);
    EXPECT_EQ(GetAngle(5, 0), 90);
    EXPECT_EQ(GetAngle(0, 0), 0);
}

TEST(CompassGeometry, pointedAngle_atTheCentresHeight_dividesByZero) {
    for (const double X : {-5.0, 0.0, 5.0}) {
        EXPECT_EQ(failureOf([&] { (void)pointedAngle(X, 0); }), 11) << X;
    }
}

TEST(CompassGeometry, pointedAngle_beyondTheRangeOfNumbers_overflows) {
    EXPECT_EQ(failureOf([] { (void)pointedAngle(1e300, 1e-300); }), 6);
    EXPECT_EQ(failureOf([] { (void)GetAngle(1e300, 1e-300); }), 6);
}

TEST(CompassGeometry, degreesAndRadians_useTheProgramsOwnPi) {
    EXPECT_EQ(DegreesToRadians(180), 180 * (3.14159265359 / 180));
    EXPECT_EQ(RadiansToDegrees(1), 180 / 3.14159265359);
    EXPECT_NE(DegreesToRadians(180), std::acos(-1.0));
}

TEST(CompassGeometry, CompassToRadians_90_is0) {
    EXPECT_EQ(Global::CompassToRadians(90), 0.0F);
    EXPECT_EQ(Global::CompassToRadians(0), static_cast<float>(3.14159265359 / 2));
    EXPECT_EQ(Global::CompassToRadians(180), -static_cast<float>(3.14159265359 / 2));
}

TEST(CompassGeometry, rounded_halves_goToTheEvenNumber) {
    EXPECT_EQ(rounded(0.5), 0);
    EXPECT_EQ(rounded(1.5), 2);
    EXPECT_EQ(rounded(2.5), 2);
    EXPECT_EQ(rounded(-160.5), -160);
    EXPECT_EQ(rounded(-161.5), -162);
    EXPECT_EQ(failureOf([] { (void)rounded(3e9); }), 6);
}

TEST(CompassGeometry, sectors_northAtTheTop) {
    const SectorTable expected = {{{1, 345, 15},
                                   {6, 285, 345},
                                   {7, 255, 285},
                                   {2, 195, 255},
                                   {9, 165, 195},
                                   {4, 105, 165},
                                   {3, 75, 105},
                                   {8, 15, 75}}};
    EXPECT_EQ(sectors(0), expected);
}

TEST(CompassGeometry, sectors_north15_beginsAtTheStandInForZeroAndWraps) {
    const SectorTable table = sectors(15);
    EXPECT_EQ(table[0], (Sector{1, 359.99, 30}));
    EXPECT_EQ(table[1], (Sector{6, 300, 0})); // a sum of 360 ends at 0
    EXPECT_EQ(directionAt(table, 359.995), 1);
    EXPECT_EQ(directionAt(table, 0), 1);
    EXPECT_EQ(directionAt(table, 30), 1);
    EXPECT_EQ(directionAt(table, 30.0001), 8);
}

TEST(CompassGeometry, sectors_centreThatComesToZero_goesOnFromTheStandIn) {
    const SectorTable table = sectors(45);
    EXPECT_EQ(table[0], (Sector{1, 30, 60}));
    EXPECT_EQ(table[1].StartAngle, 359.99 - 30);
    EXPECT_EQ(table[1].EndAngle, 30); // 389.99 is rounded first
    EXPECT_EQ(table[2].StartAngle, 359.99 - 45 - 15);
}

TEST(CompassGeometry, sectors_fractionOfNorth_isKeptAtTheStartAndRoundedAtTheEnd) {
    const SectorTable table = sectors(10.25);
    EXPECT_EQ(table[0], (Sector{1, 355.25, 25}));
    EXPECT_EQ(table[7], (Sector{8, 25.25, 85}));
    EXPECT_EQ(directionAt(table, 25.1), std::nullopt); // the gap that rounding leaves
    const SectorTable over = sectors(10.75);
    EXPECT_EQ(over[0].EndAngle, 26);
    EXPECT_EQ(over[7].StartAngle, 25.75);
    EXPECT_EQ(directionAt(over, 25.9), 1); // in both; the earlier one has it
}

TEST(CompassGeometry, sectors_half_endsAtTheEvenNumber) {
    EXPECT_EQ(sectors(0.5)[0].EndAngle, 16);
    EXPECT_EQ(sectors(1.5)[0].EndAngle, 16);
    EXPECT_EQ(sectors(344.5)[0].EndAngle, 0);
    EXPECT_EQ(sectors(345.5)[0].EndAngle, 0);
}

TEST(CompassGeometry, sectors_storedNorthOutOfRange) {
    EXPECT_EQ(sectors(-30)[0], (Sector{1, 315, -15}));
    EXPECT_EQ(failureOf([] { (void)sectors(1e300); }), 6);
    EXPECT_EQ(failureOf([] { (void)sectors(std::numeric_limits<double>::quiet_NaN()); }), 6);
}

TEST(CompassGeometry, directionAt_boundary_belongsToTheFirstInTableOrder) {
    const SectorTable table = sectors(0);
    EXPECT_EQ(directionAt(table, 15), 1);
    EXPECT_EQ(directionAt(table, 75), 3);
    EXPECT_EQ(directionAt(table, 105), 4);
    EXPECT_EQ(directionAt(table, 165), 9);
    EXPECT_EQ(directionAt(table, 195), 2);
    EXPECT_EQ(directionAt(table, 255), 7);
    EXPECT_EQ(directionAt(table, 285), 6);
    EXPECT_EQ(directionAt(table, 345), 1);
    // North comes first in the table, so that its end is North's too where its sector does not wrap.
    EXPECT_EQ(directionAt(sectors(90), 105), 1);
    EXPECT_EQ(directionAt(sectors(90), 75), 1);
}

TEST(CompassGeometry, directionAt_straightUp_isNorthThroughTheUpperHalfOfTheWrap) {
    EXPECT_EQ(directionAt(sectors(0), GetAngle(0, -5)), 1);
    EXPECT_EQ(directionAt(sectors(0), GetAngle(0, 0)), 1);
}

TEST(CompassGeometry, middleAngle_ofASector) {
    EXPECT_EQ(middleAngle({6, 285, 345}), 315);
    EXPECT_EQ(middleAngle({1, 345, 15}), 360); // wraps, and stays
    EXPECT_EQ(middleAngle({1, 350, 20}), -5);  // 365 is mirrored
    EXPECT_EQ(middleAngle({1, 340, 10}), 355);
    EXPECT_EQ(middleAngle({7, 15, 15}), 15);
}

TEST(CompassGeometry, labelPoint_standsInItsQuadrantByTheTangentRule) {
    constexpr double side = 440; // a quarter less 35 is 75
    const double degree = 3.14159265359 / 180;
    const struct {
        double middle;
        double turned;
        double right;
        double down;
    } cases[] = {{60, 55, 1, -1}, {120, 65, 1, 1},  {210, 25, -1, 1}, {300, 65, -1, -1}, {90, 85, 1, -1},
                 {180, 5, 1, 1},  {270, 85, -1, 1}, {360, 5, -1, -1}, {-10, -15, 1, -1}};
    for (const auto& example : cases) {
        const PlanPoint point = labelPoint(example.middle, side, side);
        const double a = std::abs(75 * std::tan(example.turned * degree));
        const double b = std::abs(75 * std::tan((90 - example.turned) * degree));
        EXPECT_NEAR(point.X, example.right * (a + 20), asExactAsPi) << example.middle;
        EXPECT_NEAR(point.Y, example.down * (b + 20), asExactAsPi) << example.middle;
    }
}

TEST(CompassGeometry, labelPoint_nearAnAxis_liesFarOutside) {
    EXPECT_GT(labelPoint(95, 440, 440).X, 1e6);
    EXPECT_LT(labelPoint(5, 440, 440).Y, -1e6);
    EXPECT_EQ(labelPoint(5, 440, 440).X, 20);
}
