#include "DirectionTables.h"
#include "RowsetFile.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <set>
#include <string>
#include <vector>

namespace {

class SampleHouseholdTest : public testing::Test {
protected:
    RowsetFile profiles_{"sample/Profiles.xml"};
    RowsetFile locations_{"sample/Locations.xml"};
    RowsetFile floors_{"sample/Floors.xml"};
    RowsetFile rooms_{"sample/Rooms.xml"};

    std::set<int> numbers(const std::string& field) const {
        std::set<int> values;
        for (const RowsetRow& room : rooms_.rows()) {
            values.insert(room.number(field));
        }
        return values;
    }
};

std::set<int> oneTo(int last) {
    std::set<int> values;
    for (int value = 1; value <= last; ++value) {
        values.insert(value);
    }
    return values;
}

struct Rectangle {
    double left;
    double top;
    double right;
    double bottom;
};

Rectangle outline(const RowsetRow& room) {
    const double left = room.decimal("LEFT");
    const double top = room.decimal("TOP");
    return {left, top, left + room.decimal("WIDTH"), top + room.decimal("LENGTH")};
}

bool overlap(const Rectangle& one, const Rectangle& other) {
    return one.left < other.right && other.left < one.right && one.top < other.bottom &&
           other.top < one.bottom;
}

Rectangle boundsOf(const std::vector<RowsetRow>& rooms) {
    Rectangle bounds = outline(rooms.front());
    for (const RowsetRow& room : rooms) {
        const Rectangle part = outline(room);
        bounds = {std::min(bounds.left, part.left), std::min(bounds.top, part.top),
                  std::max(bounds.right, part.right), std::max(bounds.bottom, part.bottom)};
    }
    return bounds;
}

/// Compass bearing of a point from the middle of the plan, clockwise from its top, 0 to 360.
double bearing(double x, double y) {
    return std::fmod(std::atan2(x, -y) * 180.0 / std::numbers::pi + 360.0, 360.0);
}

TEST_F(SampleHouseholdTest, profiles_standOnEachSideOfTheStartOfOneLunarYear) {
    const RowsetFile years("KUAYears.xml");
    ASSERT_EQ(profiles_.rows().size(), 2U);
    std::set<int> offsets;
    std::set<std::string> westernYears;
    std::set<std::string> genders;
    for (const RowsetRow& person : profiles_.rows()) {
        SCOPED_TRACE(person.text("PROFILENAME"));
        const std::string birth = person.text("BIRTHDATE");
        ASSERT_EQ(birth.size(), 19U);
        EXPECT_EQ(birth.substr(10), "T00:00:00");
        const int westernYear = std::stoi(birth.substr(0, 4));
        // ISO dates compare as text.
        const int lunarYear =
            birth < years.row("YEARID", westernYear).text("STARTDATE") ? westernYear - 1 : westernYear;
        EXPECT_EQ(person.number("ADJBIRTHYEAR"), lunarYear);
        const std::string column = person.text("GENDER") == "M" ? "KUANUMBERMALE" : "KUANUMBERFEMALE";
        EXPECT_EQ(person.number("KUANUMBER"), years.row("YEARID", lunarYear).number(column));
        offsets.insert(westernYear - lunarYear);
        westernYears.insert(birth.substr(0, 4));
        genders.insert(person.text("GENDER"));
    }
    EXPECT_EQ(offsets, (std::set<int>{0, 1}));
    EXPECT_EQ(westernYears.size(), 1U);
    EXPECT_EQ(genders, (std::set<std::string>{"F", "M"}));
}

TEST_F(SampleHouseholdTest, profiles_belongToBothGroups) {
    const RowsetFile table("PersonalDirections.xml");
    std::set<std::string> groups;
    for (const RowsetRow& person : profiles_.rows()) {
        groups.insert(table.row("PERSONALDIRECTIONID", person.number("KUANUMBER")).text("GROUP"));
    }
    EXPECT_EQ(groups.size(), 2U);
}

TEST_F(SampleHouseholdTest, rooms_coverEveryTypeFlooringDirectionAndFeature) {
    EXPECT_EQ(numbers("ROOMTYPEID"), oneTo(13));
    EXPECT_EQ(numbers("FLOORTYPEID"), oneTo(4));
    EXPECT_EQ(numbers("RELATIVEDIRECTION"), oneTo(9));
    for (const char* feature : {"HASENTRANCE", "HASEXPOSEDBEAMS", "HASLOWCEILING"}) {
        std::set<bool> seen;
        for (const RowsetRow& room : rooms_.rows()) {
            seen.insert(room.flag(feature));
        }
        EXPECT_EQ(seen.size(), 2U) << feature;
    }
    EXPECT_EQ(std::count_if(rooms_.rows().begin(), rooms_.rows().end(),
                            [](const RowsetRow& room) { return room.flag("HASENTRANCE"); }),
              1);
}

TEST_F(SampleHouseholdTest, rooms_standOnTheTwoFloorsOfTheHome) {
    ASSERT_EQ(locations_.rows().size(), 1U);
    const int home = locations_.rows().front().number("LOCATIONID");
    std::set<int> floorIds;
    for (const RowsetRow& floor : floors_.rows()) {
        EXPECT_EQ(floor.number("LOCATIONID"), home);
        floorIds.insert(floor.number("FLOORID"));
    }
    EXPECT_EQ(floorIds.size(), 2U);
    EXPECT_EQ(numbers("FLOORID"), floorIds);
    std::set<std::string> names;
    for (const RowsetRow& room : rooms_.rows()) {
        EXPECT_EQ(room.number("LOCATIONID"), home);
        EXPECT_TRUE(names.insert(room.text("DESCRIPTION")).second) << room.text("DESCRIPTION");
    }
}

TEST_F(SampleHouseholdTest, rooms_neverOverlapOnTheirFloor) {
    for (std::size_t first = 0; first < rooms_.rows().size(); ++first) {
        for (std::size_t second = first + 1; second < rooms_.rows().size(); ++second) {
            const RowsetRow& one = rooms_.rows()[first];
            const RowsetRow& other = rooms_.rows()[second];
            if (one.number("FLOORID") == other.number("FLOORID")) {
                EXPECT_FALSE(overlap(outline(one), outline(other)))
                    << one.text("DESCRIPTION") << " and " << other.text("DESCRIPTION");
            }
        }
    }
}

TEST_F(SampleHouseholdTest, rooms_fillTheGroundFloorAndStayInsideIt) {
    std::vector<RowsetRow> ground;
    for (const RowsetRow& room : rooms_.rows()) {
        if (room.number("FLOORID") == floors_.rows().front().number("FLOORID")) {
            ground.push_back(room);
        }
    }
    const Rectangle house = boundsOf(ground);
    double area = 0.0;
    for (const RowsetRow& room : ground) {
        area += room.decimal("WIDTH") * room.decimal("LENGTH");
    }
    EXPECT_DOUBLE_EQ(area, (house.right - house.left) * (house.bottom - house.top));
    const RowsetRow& home = locations_.rows().front();
    EXPECT_GE(house.left, 0.0);
    EXPECT_GE(house.top, 0.0);
    EXPECT_LE(house.right, home.decimal("PLANWIDTH"));
    EXPECT_LE(house.bottom, home.decimal("PLANLENGTH"));
    for (const RowsetRow& room : rooms_.rows()) {
        const Rectangle part = outline(room);
        EXPECT_TRUE(part.left >= house.left && part.top >= house.top && part.right <= house.right &&
                    part.bottom <= house.bottom)
            << room.text("DESCRIPTION");
        // Nothing narrower than seven feet or larger than a hall.
        EXPECT_GE(std::min(room.decimal("WIDTH"), room.decimal("LENGTH")), 84.0);
        EXPECT_LE(std::max(room.decimal("WIDTH"), room.decimal("LENGTH")), 240.0);
    }
}

TEST_F(SampleHouseholdTest, northOffset_isTheBearingOfTheClickedPoint) {
    const RowsetRow& home = locations_.rows().front();
    EXPECT_NE(home.decimal("NORTHOFFSET"), 0.0);
    EXPECT_NEAR(home.decimal("NORTHOFFSET"), bearing(home.decimal("LABLEX"), home.decimal("LABLEY")), 1e-9);
}

// Sectors lie round the middle of the home, turned by North: 30 degrees for the four cardinal directions,
// 60 for the four between them. Every middle point keeps well clear of the boundaries, where the
// program's rounding of sector ends could decide.
TEST_F(SampleHouseholdTest, relativeDirections_followFromThePlanButForTheCenter) {
    struct Sector {
        int direction;
        double middle;
        double halfWidth;
    };
    constexpr std::array<Sector, 8> sectors{{{1, 0.0, 15.0},
                                             {8, 45.0, 30.0},
                                             {3, 90.0, 15.0},
                                             {4, 135.0, 30.0},
                                             {9, 180.0, 15.0},
                                             {2, 225.0, 30.0},
                                             {7, 270.0, 15.0},
                                             {6, 315.0, 30.0}}};
    const Rectangle house = boundsOf(rooms_.rows());
    const double north = locations_.rows().front().decimal("NORTHOFFSET");
    int centered = 0;
    for (const RowsetRow& room : rooms_.rows()) {
        SCOPED_TRACE(room.text("DESCRIPTION"));
        const Rectangle part = outline(room);
        const double x = (part.left + part.right - house.left - house.right) / 2.0;
        const double y = (part.top + part.bottom - house.top - house.bottom) / 2.0;
        if (room.number("RELATIVEDIRECTION") == 5) {
            ++centered;
            EXPECT_LT(std::hypot(x, y), 48.0);
            continue;
        }
        const double fromNorth = bearing(x, y) - north;
        const auto sector = std::find_if(sectors.begin(), sectors.end(), [&](const Sector& candidate) {
            return std::abs(std::remainder(fromNorth - candidate.middle, 360.0)) <= candidate.halfWidth - 3.0;
        });
        ASSERT_NE(sector, sectors.end()) << "too near a boundary: " << fromNorth;
        EXPECT_EQ(room.number("RELATIVEDIRECTION"), sector->direction);
    }
    EXPECT_EQ(centered, 1);
}

} // namespace
