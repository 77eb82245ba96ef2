#include "compass/CompassGeometry.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace CompassGeometry;

namespace {

/// All that follows counts in tenths of a degree.
constexpr int fullTurn = 3600;

int wrapped(int tenths) {
    return ((tenths % fullTurn) + fullTurn) % fullTurn;
}

/// How far a number of tenths moves when it is rounded to whole degrees, halves to the even degree.
int roundingStep(int tenths) {
    const int rest = tenths % 10;
    if (rest == 5) {
        return (tenths / 10) % 2 == 0 ? -5 : 5;
    }
    return rest < 5 ? -rest : 10 - rest;
}

/// A sector told from North clockwise: whose it is, and where it begins and ends beside North.
struct Share {
    int direction;
    int begin;
    int end;
};

constexpr Share shares[] = {{1, -150, 150},  {8, 150, 750},   {3, 750, 1050},  {4, 1050, 1650},
                            {9, 1650, 1950}, {2, 1950, 2550}, {7, 2550, 2850}, {6, 2850, 3450}};

/// The second opinion: which direction an angle has, from the compass rose alone. 0 in a gap that rounding
/// leaves, -1 too close to a border to tell.
int directionByTheRose(int north, double angle) {
    constexpr double tooClose = 0.3; // three hundredths of a degree
    for (std::size_t i = 0; i < std::size(shares); ++i) {
        const Share& share = shares[i];
        const double inside = std::fmod(angle * 10 - wrapped(north + share.begin) + 2 * fullTurn, fullTurn);
        const double width = share.end - share.begin;
        const double rest = width - inside;
        if (inside < tooClose || std::abs(rest) < tooClose) {
            return -1;
        }
        if (inside > width) {
            continue;
        }
        const int step = roundingStep(wrapped(north + share.end));
        if (step < 0 && rest < -step + tooClose) {
            return rest > -step - tooClose ? -1 : 0;
        }
        // Of two that overlap the one further clockwise has it, but North, which is asked first, keeps all.
        const int northsEnd = roundingStep(wrapped(north + shares[0].end));
        if (share.direction == 8 && northsEnd > 0 && inside < northsEnd + tooClose) {
            return inside > northsEnd - tooClose ? -1 : 1;
        }
        return share.direction;
    }
    return -1;
}

/// Degrees clockwise from one angle to another, 0 to 360.
double clockwise(double from, double to) {
    return std::fmod(to - from + 720, 360);
}

} // namespace

TEST(SectorProperties, theSectorsOfAnyNorth_coverTheCircleButForTheGapsThatRoundingMakes) {
    for (int north = 0; north < fullTurn; ++north) {
        const SectorTable table = sectors(north / 10.0);
        for (int tenth = 0; tenth < fullTurn; ++tenth) {
            const double angle = (tenth + 0.5) / 10;
            if (directionAt(table, angle)) {
                continue;
            }
            bool inAGap = false;
            for (std::size_t i = 0; i < table.size(); ++i) {
                const double end = table[i].EndAngle;
                const double nextStart = table[(i + table.size() - 1) % table.size()].StartAngle;
                inAGap = inAGap || (clockwise(end, angle) < 1 && clockwise(angle, nextStart) < 1);
            }
            ASSERT_TRUE(inAGap) << "North at " << north / 10.0 << ", nothing at " << angle;
        }
    }
}

TEST(SectorProperties, aWholeNorth_leavesNoGap) {
    for (int north = 0; north < 360; ++north) {
        const SectorTable table = sectors(north);
        for (int tenth = 0; tenth <= fullTurn; ++tenth) {
            ASSERT_TRUE(directionAt(table, tenth / 10.0)) << "North at " << north << ", " << tenth / 10.0;
        }
    }
}

TEST(SectorProperties, theSectorsOfAnyNorth_goOnceRoundTheCircle) {
    for (int north = 0; north < fullTurn; ++north) {
        const SectorTable table = sectors(north / 10.0);
        double sum = 0;
        for (std::size_t i = 0; i < table.size(); ++i) {
            const double width = clockwise(table[i].StartAngle, table[i].EndAngle);
            EXPECT_NEAR(width, i % 2 == 0 ? 30 : 60, 0.52) << "North at " << north / 10.0;
            EXPECT_EQ(table[i].EndAngle, std::floor(table[i].EndAngle));
            sum += width;
        }
        EXPECT_NEAR(sum, 360, 4.1);
    }
}

TEST(SectorProperties, everyPointOfAFineGrid_fallsWhereTheRoseSays) {
    constexpr int reach = 300;
    constexpr int grid = 20;
    qint64 told = 0;
    qint64 points = 0;
    for (int north = 0; north < fullTurn; ++north) {
        const SectorTable table = sectors(north / 10.0);
        for (int x = -reach; x <= reach; x += grid) {
            for (int y = -reach; y <= reach; y += grid) {
                if (x == 0 && y == 0) {
                    continue;
                }
                ++points;
                const double bearing = std::atan2(x, -y) * 180 / std::acos(-1.0);
                const int expected = directionByTheRose(north, bearing < 0 ? bearing + 360 : bearing);
                if (expected < 0) {
                    continue;
                }
                ++told;
                ASSERT_EQ(directionAt(table, GetAngle(x, y)).value_or(0), expected)
                    << "North at " << north / 10.0 << ", point " << x << ", " << y;
            }
        }
    }
    EXPECT_GT(told, points / 100 * 98);
}
