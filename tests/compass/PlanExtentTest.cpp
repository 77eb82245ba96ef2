#include "compass/PlanExtent.h"

#include "compass/CompassWorld.h"
#include "core/Failure.h"

using CompassGeometry::PlanPoint;

namespace {

class PlanExtentTest : public testing::Test {
protected:
    CompassWorld home_;

    PlanExtent measured(const std::vector<RoomRow>& rows) {
        home_.open(rows);
        cXMLHandler& rooms = *Global::CurrentLocation->oXMLRooms;
        EXPECT_TRUE(rooms.Query(QStringLiteral("//z:row")));
        PlanExtent extent;
        extent.measure(rooms);
        return extent;
    }

    /// The number of the failure that measuring ends in.
    qint32 failureOf(const RoomRow& row) {
        try {
            (void)measured({row});
        } catch (const Failure& problem) {
            return problem.number;
        }
        return 0;
    }
};

} // namespace

TEST_F(PlanExtentTest, measure_isTheBoxAroundAllRooms) {
    const PlanExtent extent = measured({{.id = 1, .left = "100", .top = "40", .width = "50", .length = "60"},
                                        {.id = 2, .left = "-20", .top = "90", .width = "10", .length = "300"},
                                        {.id = 3, .left = "30", .top = "10", .width = "400", .length = "5"}});
    EXPECT_EQ(extent, (PlanExtent{-20, 10, 430, 390, 205, 200}));
}

TEST_F(PlanExtentTest, measure_attributesAreRoundedBeforeTheyAreAdded) {
    const PlanExtent extent =
        measured({{.id = 1, .left = "0.5", .top = "1.5", .width = "10.5", .length = "11.5"}});
    EXPECT_EQ(extent, (PlanExtent{0, 2, 10, 14, 5, 8}));
}

TEST_F(PlanExtentTest, middle_ofAnOddBox_isRoundedHalfToEven) {
    EXPECT_EQ(measured({{.width = "1", .length = "3"}}).CenterX, 0);
    EXPECT_EQ(measured({{.width = "1", .length = "3"}}).CenterY, 2);
}

TEST_F(PlanExtentTest, measure_queryWithoutRooms_leavesAnEmptyBox) {
    EXPECT_EQ(measured({}), PlanExtent{});
    EXPECT_EQ(PlanExtent{}.screenScale(), (PlanScale{-100, -100, 200, 200}));
}

TEST_F(PlanExtentTest, side_roomOf120By240_isTheOneThatTheComparisonChooses) {
    EXPECT_EQ(measured({{.width = "120", .length = "240"}}).side(), 240);
    EXPECT_EQ(measured({{.width = "240", .length = "120"}}).side(), 240);
    // Far right of 0 the width is chosen, though the length is larger.
    EXPECT_EQ(measured({{.left = "400", .width = "120", .length = "240"}}).side(), 120);
    EXPECT_EQ(measured({{.top = "400", .width = "240", .length = "120"}}).side(), 120);
    // Where right and bottom are one, the length is chosen.
    EXPECT_EQ(measured({{.left = "120", .width = "120", .length = "240"}}).side(), 240);
    EXPECT_EQ(measured({{.top = "120", .width = "240", .length = "120"}}).side(), 120);
}

TEST_F(PlanExtentTest, screenScale_isSquareWithAHundredInchesOfMargin) {
    EXPECT_EQ(measured({{.width = "120", .length = "240"}}).screenScale(), (PlanScale{-220, -220, 440, 440}));
    EXPECT_EQ(measured({{.left = "400", .width = "121", .length = "240"}}).screenScale(),
              (PlanScale{-160, -160, 321, 321})); // 160.5 goes to the even number
}

TEST_F(PlanExtentTest, printerScale_hasRoomForTheTitle) {
    EXPECT_EQ(measured({{.width = "120", .length = "240"}}).printerScale(),
              (PlanScale{-220, -420, 440, 840}));
}

TEST_F(PlanExtentTest, plansOfOddSizes) {
    EXPECT_EQ(measured({{.width = "1", .length = "1"}}).screenScale(), (PlanScale{-100, -100, 201, 201}));
    EXPECT_EQ(measured({{.width = "10000", .length = "10000"}}).screenScale(),
              (PlanScale{-5100, -5100, 10200, 10200}));
    EXPECT_EQ(measured({{.left = "-500", .top = "-700", .width = "100", .length = "100"}}),
              (PlanExtent{-500, -700, -400, -600, -450, -650}));
}

TEST_F(PlanExtentTest, rowsThatCannotBeRead_failWithTheirNumber) {
    EXPECT_EQ(failureOf({.left = "wide"}), 13);
    EXPECT_EQ(failureOf({.length = ""}), 13);
    EXPECT_EQ(failureOf({.top = "3e9"}), 6);
    EXPECT_EQ(failureOf({.left = "2147483647", .width = "1"}), 6);
    EXPECT_EQ(failureOf({.left = "-2147483648", .width = "2147483647"}), 0);
}

TEST_F(PlanExtentTest, sideOrMiddleBeyond32Bits_fails) {
    EXPECT_THROW((void)measured({{.id = 1, .left = "-2147483648"}, {.id = 2, .left = "2147483000"}}),
                 Failure);
    const PlanExtent wide = measured({{.width = "2147483647", .length = "1"}});
    EXPECT_THROW((void)wide.screenScale(), Failure);
}

TEST_F(PlanExtentTest, middleOf_aRoom_isSeenFromThePlansMiddle) {
    const PlanExtent extent = measured({{.width = "100", .length = "100"}});
    const RoomPlace room{.LEFT = 10, .TOP = 20, .WIDTH = 25, .LENGTH = 15};
    EXPECT_EQ(extent.cornerOf(room), (PlanPoint{-40, -30}));
    EXPECT_EQ(extent.middleOf(room), (PlanPoint{-27.5, -22.5}));
}
