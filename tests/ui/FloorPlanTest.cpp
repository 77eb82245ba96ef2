#include "ui/FloorPlan.h"

#include "ui/LocationPaneTest.h"

namespace {

class FloorPlanTest : public LocationPaneTest {
protected:
    [[nodiscard]] QString storedPlan() const {
        const Row home = row(u"Locations.xml"_s, u"LOCATIONID"_s, u"1"_s);
        return home.value(u"PLANWIDTH"_s) + u'x' + home.value(u"PLANLENGTH"_s);
    }
    void writePlan(const QByteArray& width, const QByteArray& length) {
        world_.write(u"Locations.xml"_s,
                     recordFile({R"(<z:row LOCATIONID="1" DESCRIPTION="Elm Street" PLANWIDTH=")" + width +
                                 R"(" PLANLENGTH=")" + length + R"("/>)"}));
    }
};

QByteArray roomRow(const QByteArray& id, const QByteArray& fields, const QByteArray& floor = "1") {
    return R"(<z:row ROOMID=")" + id + R"(" LOCATIONID="1" FLOORID=")" + floor + R"(" DESCRIPTION="Room )" +
           id + R"(" )" + fields + "/>";
}

const QByteArray place = R"(LEFT="12" TOP="24" WIDTH="120.5" LENGTH="96")";

} // namespace

TEST_F(FloorPlanTest, FillRooms_placesARoomForEachEntryInFileOrder) {
    writeRooms({roomRow("7", place), roomRow("3", place, "2"),
                roomRow("5", R"(LEFT="-20" TOP="590" WIDTH="1" LENGTH="1")")});
    start();
    EXPECT_EQ(listed(), QStringList({u"Room 7"_s, u"Room 5"_s}));
    EXPECT_EQ(visibleRooms(), 2);
    EXPECT_EQ(room(0).Left(), 12.0F);
    EXPECT_EQ(room(0).Top(), 24.0F);
    EXPECT_EQ(room(0).Width(), 120.5F);
    EXPECT_EQ(room(0).Height(), 96.0F);
    EXPECT_EQ(room(1).Left(), -20.0F);
    EXPECT_EQ(room(1).Top(), 590.0F);
    EXPECT_EQ(selected(), -1);
}

TEST_F(FloorPlanTest, rooms_areHiddenAndUsedAgainNeverDestroyed) {
    start();
    const auto all = [this] { return plan().findChildren<PlanRoom*>().size(); };
    EXPECT_EQ(all(), 9);
    PlanRoom* const first = &room(0);
    chooseFloor(1);
    EXPECT_EQ(all(), 9);
    EXPECT_EQ(visibleRooms(), 8);
    EXPECT_FALSE(room(8).isVisible());
    EXPECT_EQ(&room(0), first);
    EXPECT_EQ(first->accessibleName(), u"Master Bedroom"_s);
}

TEST_F(FloorPlanTest, damagedRow_keepsWhatItsRectangleShowedAndTheRestWorks) {
    writeRooms({roomRow("1", place), roomRow("two", R"(LEFT="x" TOP="30" WIDTH="" LENGTH="-5")"),
                roomRow("3", R"(LEFT="1e39" TOP="60" WIDTH="200" LENGTH="100")"),
                roomRow("4", R"(LEFT="300" TOP="300" WIDTH="100" LENGTH="100")")});
    start();
    EXPECT_EQ(visibleRooms(), 4);
    EXPECT_EQ(room(1).Top(), 30.0F);
    EXPECT_EQ(room(1).Left(), 0.0F);
    EXPECT_EQ(room(1).Width(), 120.0F);
    EXPECT_EQ(room(1).Height(), 120.0F);
    EXPECT_EQ(room(2).Left(), 0.0F);
    EXPECT_EQ(room(2).Top(), 60.0F);
    drag(at(310, 310), at(350, 330));
    EXPECT_NEAR(stored(u"4"_s, u"LEFT"_s).toDouble(), 340, 1);
    // A room without a key that can be found is moved on the screen alone.
    const QByteArray before = world_.read(u"Rooms.xml"_s);
    list().setCurrentRow(1); // in front of the others
    drag(at(20, 130), at(20, 430));
    EXPECT_EQ(world_.read(u"Rooms.xml"_s), before);
    EXPECT_NEAR(static_cast<double>(room(1).Top()), 330, 1);
}

TEST_F(FloorPlanTest, firstFloor_showsNoOutlinesTheSecondThoseOfTheFirst) {
    writeRooms({roomRow("1", place), roomRow("2", place, "2")});
    start();
    EXPECT_TRUE(plan().lines().isEmpty());
    chooseFloor(1);
    const QList<QLine> expected{
        {12, 24, 132, 24}, {12, 120, 132, 120}, {12, 24, 12, 120}, {132, 24, 132, 120}};
    EXPECT_EQ(plan().lines(), expected);
    ASSERT_EQ(plan().captions().size(), 1);
    EXPECT_EQ(plan().captions().constFirst().at, QPoint(22, 34));
    EXPECT_EQ(plan().captions().constFirst().text, u"Room 1"_s);
    chooseFloor(0);
    EXPECT_TRUE(plan().lines().isEmpty());
}

TEST_F(FloorPlanTest, floorsReorderedInTheFile_guideFollowsTheList) {
    world_.write(u"Floors.xml"_s,
                 recordFile({R"(<z:row FLOORID="2" LOCATIONID="1" DESCRIPTION="Second Floor"/>)",
                             R"(<z:row FLOORID="1" LOCATIONID="1" DESCRIPTION="First Floor"/>)"}));
    writeRooms({roomRow("1", place), roomRow("2", R"(LEFT="5" TOP="5" WIDTH="9" LENGTH="9")", "2")});
    start();
    EXPECT_TRUE(plan().lines().isEmpty());
    chooseFloor(1);
    EXPECT_EQ(plan().captions().constFirst().text, u"Room 2"_s);
}

TEST_F(FloorPlanTest, damagedRowBelow_isReportedAfterTheLinesBeforeIt) {
    writeRooms({roomRow("1", place), roomRow("2", R"(LEFT="1" TOP="2" WIDTH="3" LENGTH="long")"),
                roomRow("3", place), roomRow("4", place, "2")});
    start();
    world_.prompts.expectError(u"frmView.Draw Rooms"_s, 13, u"Type mismatch"_s);
    chooseFloor(1);
    EXPECT_EQ(plan().lines().size(), 5);
    EXPECT_EQ(plan().lines().constLast(), QLine(1, 2, 4, 2));
    EXPECT_EQ(visibleRooms(), 1);
    EXPECT_TRUE(entryEnabled("mnuLocationsOpenRoom"));
}

TEST_F(FloorPlanTest, SetPicScaleMode_doublesTheExtent) {
    writePlan("700", "501");
    start();
    chooseFloor(1);
    const auto& plans = control<FloorPlan>(*view_, "vsSplit");
    EXPECT_EQ(plans.PlanLeft, 0);
    EXPECT_EQ(plans.PlanTop, 0);
    EXPECT_EQ(plans.PlanRight, 1400);
    EXPECT_EQ(plans.PlanBottom, 1002);
    EXPECT_EQ(plans.PlanCenterX, 700);
    EXPECT_EQ(plans.PlanCenterY, 501);
}

TEST_F(FloorPlanTest, SetPicScaleMode_beyondAWholeNumber_isReportedAndTheOutlinesAreDrawn) {
    writePlan("2000000000", "600");
    start();
    world_.prompts.expectError(u"frmView.Set Pic ScaleMode"_s, 6, u"Overflow"_s);
    chooseFloor(1);
    EXPECT_EQ(plan().lines().size(), 36);
}

TEST_F(FloorPlanTest, floorWithoutRooms_disablesWhatNeedsOne) {
    writeRooms({roomRow("1", place, "2")});
    start();
    for (const char* entry : {"mnuLocationsDirections", "mnuLocationsOpenRoom", "mnuLocationsDeleteRoom"}) {
        EXPECT_FALSE(entryEnabled(entry)) << entry;
    }
    EXPECT_TRUE(entryEnabled("mnuLocationsNewRoom"));
    chooseFloor(1);
    for (const char* entry : {"mnuLocationsDirections", "mnuLocationsOpenRoom", "mnuLocationsDeleteRoom"}) {
        EXPECT_TRUE(entryEnabled(entry)) << entry;
    }
}

TEST_F(FloorPlanTest, missingRooms_areReportedAndThePlanIsEmpty) {
    start();
    world_.remove(u"Rooms.xml"_s);
    world_.prompts.expectError(u"cXMLHandler.Move First"_s, 91);
    world_.prompts.expectError(u"cXMLHandler.Query"_s, 91);
    world_.prompts.expectError(u"cXMLHandler.Query"_s, 91); // the floor below
    chooseFloor(1);
    EXPECT_EQ(visibleRooms(), 0);
}

// Zoom.

TEST_F(FloorPlanTest, zoomInThenOut_comesBackAndEachPressIsStored) {
    start();
    chooseFloor(1);
    click(*view_, "cmdPlus");
    EXPECT_EQ(storedPlan(), u"500x500"_s);
    EXPECT_EQ(plan().ScaleWidth(), 500);
    EXPECT_EQ(floorName(), u"First Floor"_s) << "the save opens the home anew";
    click(*view_, "cmdMinus");
    EXPECT_EQ(storedPlan(), u"600x600"_s);
    EXPECT_EQ(room(0).Left(), 60.0F) << "rooms keep their places and sizes";
}

TEST_F(FloorPlanTest, zoomInPastZero_isRefusedAndNotStored) {
    writePlan("200", "100");
    start();
    world_.prompts.expectError(u"frmView.cmdPlus_Click"_s, 380, u"Invalid property value"_s);
    click(*view_, "cmdPlus");
    EXPECT_EQ(storedPlan(), u"200x100"_s);
    EXPECT_EQ(plan().ScaleHeight(), 100);
    EXPECT_EQ(Global::CurrentLocation->PLANLENGTH, 0);
    click(*view_, "cmdMinus");
    EXPECT_EQ(storedPlan(), u"200x100"_s);
}

TEST_F(FloorPlanTest, zoomOutPastAWholeNumber_isReported) {
    writePlan("2147483600", "2147483600");
    start();
    world_.prompts.expectError(u"frmView.cmdMinus_Click"_s, 6, u"Overflow"_s);
    click(*view_, "cmdMinus");
    EXPECT_EQ(storedPlan(), u"2147483600x2147483600"_s);
}

TEST_F(FloorPlanTest, zoom_withAChangedName_savesTheName) {
    start();
    rename(u"Oak"_s);
    click(*view_, "cmdMinus");
    EXPECT_EQ(band(), u"Oak"_s);
    EXPECT_EQ(storedPlan(), u"700x700"_s);
}

TEST_F(FloorPlanTest, newState_hasNoPlanToZoom) {
    start();
    click(*view_, "cmdNewLocation");
    EXPECT_FALSE(enabled("cmdPlus"));
    EXPECT_FALSE(enabled("cmdMinus"));
}

// Commands.

TEST_F(FloorPlanTest, NewRoom_saved_isListedSelectedAndInFront) {
    start();
    // What the editor fills in itself after the save counts as a change.
    world_.prompts.expectMessage(u"Close"_s, u"Would you like to save your changes before closing?"_s,
                                 MessageIcon::Question, MessageAnswer::No);
    whileModal([this] { click(*view_, "cmdRoom"); },
               [](QWidget& window) {
                   EXPECT_EQ(window.objectName(), u"frmRoom"_s);
                   auto& name = control<QLineEdit>(window, "txtDescription");
                   name.setFocus();
                   QTest::keyClicks(&name, u"Sauna"_s);
                   click(window, "cmdOK");
                   click(window, "cmdCancel");
               });
    EXPECT_EQ(listed().constLast(), u"Sauna"_s);
    EXPECT_EQ(selected(), 9);
    EXPECT_EQ(room(9).Left(), 0.0F);
    EXPECT_EQ(room(9).Width(), 120.0F);
    EXPECT_EQ(plan().childAt(5, 5), &room(9));
    EXPECT_EQ(stored(u"18"_s, u"FLOORID"_s), u"1"_s);
}

TEST_F(FloorPlanTest, NewRoom_notSaved_changesNothing) {
    start();
    list().setCurrentRow(2);
    const QByteArray before = world_.read(u"Rooms.xml"_s);
    world_.prompts.expectMessage(u"Close"_s, u"Would you like to save your changes before closing?"_s,
                                 MessageIcon::Question, MessageAnswer::No);
    whileModal([this] { run("mnuLocationsNewRoom"); }, [](QWidget& window) { click(window, "cmdCancel"); });
    EXPECT_EQ(world_.read(u"Rooms.xml"_s), before);
    EXPECT_EQ(selected(), 2);
}

TEST_F(FloorPlanTest, OpenRoom_saved_selectsTheRoomAgain) {
    start();
    list().setCurrentRow(4);
    whileModal([this] { run("mnuLocationsOpenRoom"); },
               [](QWidget& window) {
                   auto& name = control<QLineEdit>(window, "txtDescription");
                   name.setFocus();
                   name.selectAll();
                   QTest::keyClicks(&name, u"Long Hall"_s);
                   click(window, "cmdOK");
                   click(window, "cmdCancel");
               });
    EXPECT_EQ(selected(), 4);
    EXPECT_EQ(listed().at(4), u"Long Hall"_s);
    EXPECT_EQ(room(4).accessibleName(), u"Long Hall"_s);
    EXPECT_TRUE(room(4).isSelected());
}

TEST_F(FloorPlanTest, OpenRoom_withoutASelection_doesNothing) {
    start();
    run("mnuLocationsOpenRoom");
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(FloorPlanTest, DeleteRoom_asksNothing) {
    start();
    click(*view_, "cmdDelRoom"); // nothing is selected yet
    EXPECT_EQ(rows(u"Rooms.xml"_s).size(), 17);
    list().setCurrentRow(1);
    click(*view_, "cmdDelRoom");
    EXPECT_TRUE(row(u"Rooms.xml"_s, u"ROOMID"_s, u"2"_s).isEmpty());
    EXPECT_EQ(rows(u"Rooms.xml"_s).size(), 16);
    EXPECT_EQ(listed().size(), 8);
    EXPECT_EQ(selected(), -1);
    EXPECT_EQ(visibleRooms(), 8);
    for (int i = 0; i < 8; ++i) {
        EXPECT_FALSE(room(i).isSelected());
    }
}
