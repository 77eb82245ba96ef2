#include "compass/CompassDrawing.h"

#include "compass/CompassWorld.h"
#include "compass/PlanPicture.h"

#include <cmath>

using CompassGeometry::PlanPoint;

namespace {

const QString mismatch = QStringLiteral("Type mismatch");

/// The items of one kind, in their order.
template<class Item>
std::vector<Item> itemsOf(const PlanPicture& picture) {
    std::vector<Item> found;
    for (const PlanItem& item : picture.items()) {
        if (const auto* drawn = std::get_if<Item>(&item)) {
            found.push_back(*drawn);
        }
    }
    return found;
}

/// The place of a text that is drawn once; nothing when it is not.
std::optional<PlanText> textOf(const PlanPicture& picture, const QString& text) {
    for (const PlanText& drawn : itemsOf<PlanText>(picture)) {
        if (drawn.text == text) {
            return drawn;
        }
    }
    return std::nullopt;
}

class CompassDrawingTest : public testing::Test {
protected:
    CompassWorld home_;
    PlanPicture picture_;
    CompassDrawing room_{CompassDrawing::View::Room};
    CompassDrawing house_{CompassDrawing::View::Home};

    /// Four rooms of ten feet around the middle of a square home: 1 top left, 2 top right, 3 bottom left,
    /// 4 bottom right, which is on another floor.
    void openFourRooms(const QByteArray& north = "0") {
        home_.open({{.id = 1},
                    {.id = 2, .left = "120"},
                    {.id = 3, .top = "120"},
                    {.id = 4, .left = "120", .top = "120", .floor = "2"}},
                   north);
    }
    void draw(CompassDrawing& drawing, double north, const std::optional<PlanPoint>& clicked = {}) {
        drawing.DrawCompass(picture_, north, clicked);
        drawing.DrawRooms(picture_);
    }
    [[nodiscard]] QStringList names() const {
        QStringList found;
        for (const PlanText& text : itemsOf<PlanText>(picture_)) {
            found << text.text;
        }
        return found;
    }
};

} // namespace

TEST_F(CompassDrawingTest, home_drawsTheRoomsOfTheShownFloorAndPlacesThoseOfAll) {
    openFourRooms();
    house_.LoadRooms(1);
    draw(house_, 0);
    EXPECT_EQ(names(),
              (QStringList{QStringLiteral("N"), QStringLiteral("S"), QStringLiteral("E"), QStringLiteral("W"),
                           QStringLiteral("Room 1"), QStringLiteral("Room 2"), QStringLiteral("Room 3")}));
    EXPECT_EQ(home_.direction(1), QStringLiteral("6"));
    EXPECT_EQ(home_.direction(2), QStringLiteral("8"));
    EXPECT_EQ(home_.direction(3), QStringLiteral("2"));
    EXPECT_EQ(home_.direction(4), QStringLiteral("4"));
    EXPECT_EQ(home_.storedDirection(1), QStringLiteral("5"));
}

TEST_F(CompassDrawingTest, home_seesOnlyItsOwnRooms) {
    home_.open({{.id = 1}, {.id = 2, .left = "5000", .location = 2}});
    house_.LoadRooms(1);
    draw(house_, 0);
    EXPECT_EQ(house_.extent, (PlanExtent{0, 0, 120, 120, 60, 60}));
    EXPECT_EQ(home_.direction(2), QStringLiteral("5"));
}

TEST_F(CompassDrawingTest, room_seesItselfAloneAndLiesInNorthsSectorOrTheOneThatHoldsZero) {
    openFourRooms();
    room_.LoadRooms(3);
    draw(room_, 0);
    EXPECT_EQ(room_.extent, (PlanExtent{0, 120, 120, 240, 60, 180}));
    EXPECT_TRUE(textOf(picture_, QStringLiteral("Room 3")));
    EXPECT_FALSE(textOf(picture_, QStringLiteral("Room 1")));
    EXPECT_EQ(home_.direction(3), QStringLiteral("1"));
    EXPECT_EQ(home_.direction(1), QStringLiteral("5"));
    draw(room_, 180);
    EXPECT_EQ(home_.direction(3), QStringLiteral("9"));
    EXPECT_EQ(home_.storedDirection(3), QStringLiteral("5"));
}

TEST_F(CompassDrawingTest, roomStraightAboveTheCentre_fallsInNorthAt360) {
    home_.open({{.id = 1, .top = "0"}, {.id = 2, .top = "300"}});
    house_.LoadRooms(1);
    draw(house_, 0);
    EXPECT_EQ(home_.direction(1), QStringLiteral("1"));
    EXPECT_EQ(home_.direction(2), QStringLiteral("9"));
}

TEST_F(CompassDrawingTest, roomInAGap_keepsItsDirection) {
    // The middle of the second room stands at 25.1 degrees, between an end of 25 and a start of 25.25.
    home_.open({{.id = 1, .left = "-100000", .top = "-100000", .width = "200000", .length = "200000"},
                {.id = 2, .left = "42419", .top = "-90557", .width = "0", .length = "0", .direction = "7"}});
    house_.LoadRooms(1);
    draw(house_, 10.25);
    EXPECT_EQ(home_.direction(2), QStringLiteral("7"));
    draw(house_, 10);
    EXPECT_EQ(home_.direction(2), QStringLiteral("8"));
}

TEST_F(CompassDrawingTest, screen_scaleAndCircleFollowTheRooms) {
    openFourRooms();
    house_.LoadRooms(1);
    house_.DrawCompass(picture_, 0, std::nullopt);
    EXPECT_EQ(picture_.scale(), (PlanScale{-220, -220, 440, 440}));
    const PlanArc circle = itemsOf<PlanArc>(picture_).back();
    EXPECT_EQ(circle, (PlanArc{.x = 0, .y = 0, .radius = 180, .color = 0, .span = {}, .fill = {}}));
}

TEST_F(CompassDrawingTest, screen_everySliceHasItsOwnColourAndNorthWraps) {
    openFourRooms();
    house_.LoadRooms(1);
    house_.DrawCompass(picture_, 0, std::nullopt);
    std::vector<qint32> fills;
    for (const PlanArc& arc : itemsOf<PlanArc>(picture_)) {
        if (arc.fill) {
            EXPECT_EQ(arc.color, *arc.fill);
            fills.push_back(*arc.fill);
        }
    }
    EXPECT_EQ(fills, (std::vector<qint32>{0xD5F5FF, 0xD5F5FF, 0xE2E2E2, 0xAAAAFF, 0x9A9A9A, 0xC8A5DA,
                                          0xFFE3AA, 0x97EA6A, 0x97EA6A, 0xFFFFFF}));
}

TEST_F(CompassDrawingTest, home_lettersTurnTheClickedPointAboutTheCentre) {
    openFourRooms();
    house_.LoadRooms(1);
    house_.DrawCompass(picture_, 30, PlanPoint{50, -80});
    const auto at = [](float x, float y, const QString& letter) {
        return PlanText{x, y, letter, {}, 0, true};
    };
    EXPECT_EQ(itemsOf<PlanText>(picture_),
              (std::vector{at(50, -80, QStringLiteral("N")), at(-50, 80, QStringLiteral("S")),
                           at(80, 50, QStringLiteral("E")), at(-80, -50, QStringLiteral("W"))}));
}

TEST_F(CompassDrawingTest, home_northNotSet_lettersStandAtTheEdgeOfTheScaleThatHolds) {
    openFourRooms();
    house_.LoadRooms(1);
    house_.DrawCompass(picture_, 0, std::nullopt);
    EXPECT_EQ(textOf(picture_, QStringLiteral("N")).value().y, -180);
    EXPECT_EQ(textOf(picture_, QStringLiteral("S")).value().y, 180);
    EXPECT_EQ(textOf(picture_, QStringLiteral("E")).value().x, 180);
    EXPECT_EQ(textOf(picture_, QStringLiteral("W")).value().x, -180);
}

TEST_F(CompassDrawingTest, room_lettersOfTheFourWindsFollowTheTangentRule) {
    home_.open({{.width = "240", .length = "240"}});
    room_.LoadRooms(1);
    room_.DrawCompass(picture_, 45, std::nullopt);
    EXPECT_EQ(itemsOf<PlanText>(picture_).size(), 4U);
    // A quarter of 440 less 35 is 75; North's middle of 45 is reduced to 40.
    const PlanText north = textOf(picture_, QStringLiteral("N")).value();
    const double degree = 3.14159265359 / 180;
    EXPECT_FLOAT_EQ(north.x, static_cast<float>(75 * std::tan(40 * degree) + 20));
    EXPECT_FLOAT_EQ(north.y, static_cast<float>(-75 * std::tan(50 * degree) - 20));
    const PlanText south = textOf(picture_, QStringLiteral("S")).value();
    EXPECT_LT(south.x, 0);
    EXPECT_GT(south.y, 0);
}

TEST_F(CompassDrawingTest, rooms_areFourLinesAndTheirName) {
    home_.open({{.left = "100", .top = "200", .width = "60", .length = "40"}});
    room_.LoadRooms(1);
    room_.DrawRooms(picture_);
    const std::vector<PlanLine> lines = itemsOf<PlanLine>(picture_);
    ASSERT_EQ(lines.size(), 6U);
    EXPECT_EQ(lines[0], (PlanLine{-30, -20, 30, -20}));
    EXPECT_EQ(lines[1], (PlanLine{30, -20, 30, 20}));
    EXPECT_EQ(lines[2], (PlanLine{30, 20, -30, 20}));
    EXPECT_EQ(lines[3], (PlanLine{-30, 20, -30, -20}));
    EXPECT_EQ(itemsOf<PlanText>(picture_),
              (std::vector{PlanText{-20, -10, QStringLiteral("Room 1"), {}, 0, false}}));
}

TEST_F(CompassDrawingTest, home_nameIsKeptInsideItsRoom) {
    openFourRooms();
    house_.LoadRooms(1);
    house_.DrawRooms(picture_);
    EXPECT_EQ(textOf(picture_, QStringLiteral("Room 1")).value().space, (PlanSpace{110, 110}));
}

TEST_F(CompassDrawingTest, centre_isMarkedAfterTheRooms) {
    openFourRooms();
    house_.LoadRooms(1);
    house_.DrawRooms(picture_);
    const std::vector<PlanItem>& items = picture_.items();
    ASSERT_GE(items.size(), 4U);
    const std::vector<PlanItem> mark(items.end() - 4, items.end());
    EXPECT_EQ(mark, (std::vector<PlanItem>{
                        PlanLine{0, -30, 0, 30}, PlanLine{-30, 0, 30, 0},
                        PlanArc{.x = 0, .y = 0, .radius = 10, .color = 0, .span = {}, .fill = {}},
                        PlanArc{.x = 0, .y = 0, .radius = 5, .color = 0, .span = {}, .fill = 255}}));
    EXPECT_EQ(picture_.FillStyle, PlanFill::Transparent);
    EXPECT_EQ(picture_.FillColor, 0);
}

TEST_F(CompassDrawingTest, print_outlinesAreBlackAndNothingIsFilled) {
    openFourRooms();
    house_.LoadRooms(1);
    house_.PrintCompass(picture_, 20, {10, -20}, false);
    EXPECT_EQ(picture_.scale(), (PlanScale{-220, -420, 440, 840}));
    for (const PlanArc& arc : itemsOf<PlanArc>(picture_)) {
        EXPECT_EQ(arc.fill, std::nullopt);
        EXPECT_EQ(arc.color, 0);
    }
    EXPECT_EQ(textOf(picture_, QStringLiteral("E")), (PlanText{20, 10, QStringLiteral("E"), {}, 0, true}));
}

TEST_F(CompassDrawingTest, print_inColour_looksAsOnTheScreen) {
    openFourRooms();
    house_.LoadRooms(1);
    house_.PrintCompass(picture_, 20, {10, -20}, true);
    PlanPicture screen;
    house_.DrawCompass(screen, 20, PlanPoint{10, -20});
    EXPECT_EQ(itemsOf<PlanArc>(picture_), itemsOf<PlanArc>(screen));
    EXPECT_EQ(itemsOf<PlanText>(picture_), itemsOf<PlanText>(screen));
}

TEST_F(CompassDrawingTest, print_roomsChangeNoDirection) {
    openFourRooms();
    house_.LoadRooms(1);
    house_.PrintCompass(picture_, 0, {}, false);
    house_.PrintRooms(picture_);
    EXPECT_EQ(home_.direction(1), QStringLiteral("5"));
    EXPECT_TRUE(textOf(picture_, QStringLiteral("Room 1")));
    EXPECT_FALSE(textOf(picture_, QStringLiteral("Room 4")));
}

TEST_F(CompassDrawingTest, homeWithoutRooms_showsTheCompassAlone) {
    home_.open({});
    house_.LoadRooms(1);
    draw(house_, 90);
    EXPECT_EQ(picture_.scale(), (PlanScale{-100, -100, 200, 200}));
    EXPECT_EQ(itemsOf<PlanText>(picture_).size(), 4U);
}

TEST_F(CompassDrawingTest, damagedSizeInTheMiddle_isReportedAndTheRoomsBeforeItAreDrawn) {
    home_.open({{.id = 1}, {.id = 2, .left = "wide"}, {.id = 3, .left = "200", .top = "-400"}});
    house_.LoadRooms(1);
    home_.world.prompts.expectError(QStringLiteral("frmSetDirection.Set Pic ScaleMode"), 13, mismatch);
    house_.DrawCompass(picture_, 0, std::nullopt);
    EXPECT_EQ(itemsOf<PlanText>(picture_).size(), 4U); // the compass stands all the same
    home_.world.prompts.expectError(QStringLiteral("frmSetDirection.Set Pic ScaleMode"), 13, mismatch);
    home_.world.prompts.expectError(QStringLiteral("frmSetDirection.Draw Rooms"), 13, mismatch);
    house_.DrawRooms(picture_);
    EXPECT_TRUE(textOf(picture_, QStringLiteral("Room 1")));
    EXPECT_FALSE(textOf(picture_, QStringLiteral("Room 3")));
    EXPECT_EQ(home_.direction(1), QStringLiteral("4"));
    EXPECT_EQ(home_.direction(3), QStringLiteral("5"));
}

TEST_F(CompassDrawingTest, damagedFloor_isReportedOnceUnderItsRoutine) {
    home_.open({{.id = 1, .floor = "up"}});
    room_.LoadRooms(1);
    home_.world.prompts.expectError(QStringLiteral("frmRoomDirection.Draw Room"), 13, mismatch);
    draw(room_, 0);
    home_.world.prompts.expectError(QStringLiteral("frmRoomDirection.Print Room"), 13, mismatch);
    room_.PrintRooms(picture_);
}

TEST_F(CompassDrawingTest, damagedSizeOnPaper_isReportedUnderThePrintersLabels) {
    home_.open({{.id = 1, .length = "x"}});
    room_.LoadRooms(1);
    home_.world.prompts.expectError(QStringLiteral("frmRoomDirection.Set Printer ScaleMode"), 13, mismatch);
    room_.PrintCompass(picture_, 0, {}, false);
    EXPECT_FALSE(itemsOf<PlanArc>(picture_).empty());
}

TEST_F(CompassDrawingTest, northBeyondTheRangeOfNumbers_isReportedAndTheSectorsStay) {
    openFourRooms();
    house_.LoadRooms(1);
    house_.DrawCompass(picture_, 0, std::nullopt);
    const CompassGeometry::SectorTable before = house_.Sectors;
    home_.world.prompts.expectError(QStringLiteral("frmSetDirection.Draw Compass"), 6,
                                    QStringLiteral("Overflow"));
    house_.DrawCompass(picture_, 1e300, std::nullopt);
    EXPECT_EQ(house_.Sectors, before);
    home_.world.prompts.expectError(QStringLiteral("frmSetDirection.Print Compass"), 6,
                                    QStringLiteral("Overflow"));
    house_.PrintCompass(picture_, 1e300, {}, true);
}

TEST_F(CompassDrawingTest, withoutAHome_everyRoutineReportsUnderItsOwnLabel) {
    const QString notSet = QStringLiteral("Object variable or With block variable not set");
    for (const char* label : {"Load Rooms", "Set Pic ScaleMode", "Set Pic ScaleMode", "Draw Rooms",
                              "Set Printer ScaleMode", "Print Rooms"}) {
        home_.world.prompts.expectError(QStringLiteral("frmSetDirection.") + QLatin1String(label), 91,
                                        notSet);
    }
    house_.LoadRooms(1);
    house_.DrawCompass(picture_, 0, std::nullopt);
    house_.DrawRooms(picture_);
    house_.PrintRooms(picture_);
}
