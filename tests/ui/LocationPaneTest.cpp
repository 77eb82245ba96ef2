#include "ui/LocationPane.h"

#include "ui/LocationPaneTest.h"

// The controls and the pane's two states.

TEST_F(LocationPaneTest, design_hasItsCaptionsAndToolTips) {
    EXPECT_EQ(control<QPushButton>(*view_, "cmdNewLocation").text(), u"&New"_s);
    EXPECT_EQ(control<QPushButton>(*view_, "cmdSaveLocation").text(), u"&Save"_s);
    EXPECT_EQ(control<QPushButton>(*view_, "cmdRoom").text(), u"&Add Room"_s);
    EXPECT_EQ(control<QPushButton>(*view_, "cmdDelRoom").text(), u"Remove Room"_s);
    EXPECT_EQ(text("lblZoom"), u"Zoom:"_s);
    const auto tip = [&](const char* name) { return control(*view_, name).toolTip(); };
    EXPECT_EQ(tip("cboLocation"), u"Select a Location from the List"_s);
    EXPECT_EQ(tip("txtLocation"), u"Enter a description for the Location"_s);
    EXPECT_EQ(tip("cboFloors"), u"Select the Floor to display in the floorplan."_s);
    EXPECT_EQ(tip("txtNumFloors"), u"Number of floors at this location, including the basement"_s);
    EXPECT_EQ(tip("cmdNewLocation"), u"Click New to create a New Location"_s);
    EXPECT_EQ(tip("cmdSaveLocation"), u"Click Save to Save the Location"_s);
    EXPECT_EQ(tip("cmdRoom"), u"Click Add Room to add a New Room to the floorplan."_s);
    EXPECT_EQ(tip("cmdDelRoom"), u"Click Remove Room to delete a room from the floorplan"_s);
}

TEST_F(LocationPaneTest, openState_offersTheListsAndAllCommandsButSave) {
    start();
    EXPECT_EQ(text("lblLocation"), u"Select a Location to analyze:"_s);
    EXPECT_EQ(text("lblFloors"), u"Select a floor:"_s);
    EXPECT_TRUE(shown("cboLocation") && shown("cboFloors") && shown("cmdRoom") && shown("cmdDelRoom"));
    EXPECT_FALSE(shown("txtLocation") || shown("txtNumFloors"));
    EXPECT_EQ(control<QPushButton>(*view_, "cmdNewLocation").text(), u"New"_s);
    EXPECT_TRUE(enabled("cmdRoom") && enabled("cmdDelRoom") && enabled("cmdNewLocation"));
    EXPECT_FALSE(enabled("cmdSaveLocation"));
    EXPECT_FALSE(entryEnabled("mnuLocationsSave"));
    for (const char* entry :
         {"mnuLocationsNew", "mnuLocationsDelete", "mnuAdviceRooms", "mnuLocationsNewFloor",
          "mnuLocationsNewRoom", "mnuLocationsDeleteFloor", "mnuLocationsDeleteRoom", "mnuLocationsOpenRoom",
          "mnuLocationsRenameFloor", "mnuLocationsDirections"}) {
        EXPECT_TRUE(entryEnabled(entry)) << entry;
    }
    EXPECT_EQ(view_->Mode, u"UPDATE"_s);
}

TEST_F(LocationPaneTest, newState_offersTheFieldsSaveAndCancel) {
    start();
    click(*view_, "cmdNewLocation");
    EXPECT_EQ(text("lblLocation"), u"Enter the name for the new location and click Save:"_s);
    EXPECT_EQ(text("lblFloors"), u"Number of floors:"_s);
    EXPECT_TRUE(shown("txtLocation") && shown("txtNumFloors"));
    EXPECT_FALSE(shown("cboLocation") || shown("cboFloors") || shown("cmdRoom") || shown("cmdDelRoom"));
    const auto& button = control<QPushButton>(*view_, "cmdNewLocation");
    EXPECT_EQ(button.text(), u"Cancel"_s);
    EXPECT_EQ(button.toolTip(), u"Click Cancel to abandon the New Location"_s);
    EXPECT_TRUE(enabled("cmdNewLocation") && enabled("cmdSaveLocation"));
    EXPECT_TRUE(entryEnabled("mnuLocationsSave"));
    for (const char* entry :
         {"mnuLocationsNew", "mnuLocationsDelete", "mnuAdviceRooms", "mnuLocationsNewFloor",
          "mnuLocationsNewRoom", "mnuLocationsDeleteFloor", "mnuLocationsDeleteRoom", "mnuLocationsOpenRoom",
          "mnuLocationsRenameFloor", "mnuLocationsDirections"}) {
        EXPECT_FALSE(entryEnabled(entry)) << entry;
    }
    EXPECT_EQ(view_->Mode, u"INSERT"_s);
    EXPECT_EQ(band(), QString());
    EXPECT_EQ(listed(), QStringList());
    EXPECT_EQ(visibleRooms(), 0);
    EXPECT_EQ(view_->focusWidget()->objectName(), u"txtLocation"_s);
}

TEST_F(LocationPaneTest, controls_areNamedAndVisitedInReadingOrder) {
    start();
    expectNamedControls(*view_);
    expectReadingOrder(*view_);
    click(*view_, "cmdNewLocation");
    expectNamedControls(*view_);
    expectReadingOrder(*view_);
}

TEST_F(LocationPaneTest, emptyStore_firstPressOfLocations_bringsTheNewState) {
    startEmpty();
    EXPECT_TRUE(shown("txtLocation"));
    EXPECT_EQ(view_->Mode, u"INSERT"_s);
}

// Showing a home.

TEST_F(LocationPaneTest, home_isShownWithItsFloorsAndRooms) {
    start();
    EXPECT_EQ(band(), u"Elm Street"_s);
    EXPECT_EQ(homeName(), u"Elm Street"_s);
    EXPECT_EQ(floors(), QStringList({u"First Floor"_s, u"Second Floor"_s}));
    EXPECT_EQ(floorName(), u"First Floor"_s);
    EXPECT_EQ(Global::CurrentFloorID, 1);
    EXPECT_EQ(listed().size(), 9);
    EXPECT_EQ(visibleRooms(), 9);
    EXPECT_EQ(plan().ScaleWidth(), 600);
    EXPECT_EQ(plan().ScaleHeight(), 600);
}

TEST_F(LocationPaneTest, ampersand_isDoubledInTheBandWithoutLeadingBlanks) {
    world_.write(u"Locations.xml"_s, world_.read(u"Locations.xml"_s).replace("Elm Street", "Elm &amp; Oak"));
    start();
    EXPECT_EQ(band(), u"Elm && Oak"_s);
    EXPECT_EQ(homeName(), u"Elm & Oak"_s);
    EXPECT_EQ(panel(), u"Elm & Oak"_s);
}

TEST_F(LocationPaneTest, FillLocations_stopsAtTheFirstWithoutAName) {
    world_.write(u"Locations.xml"_s, recordFile({R"(<z:row LOCATIONID="1" DESCRIPTION="Elm Street"/>)",
                                                 R"(<z:row LOCATIONID="2" DESCRIPTION=""/>)",
                                                 R"(<z:row LOCATIONID="3" DESCRIPTION="Oak"/>)"}));
    start();
    EXPECT_EQ(homes(), QStringList(u"Elm Street"_s));
}

TEST_F(LocationPaneTest, FillFloors_takesAnIdThatIsNoNumberAsZero) {
    world_.write(u"Floors.xml"_s,
                 recordFile({R"(<z:row FLOORID="cellar" LOCATIONID="1" DESCRIPTION="Cellar"/>)",
                             R"(<z:row FLOORID="1" LOCATIONID="1" DESCRIPTION="Ground"/>)"}));
    start();
    EXPECT_EQ(floors(), QStringList({u"Cellar"_s, u"Ground"_s}));
    EXPECT_EQ(Global::CurrentFloorID, 0);
    EXPECT_EQ(listed(), QStringList());
}

TEST_F(LocationPaneTest, choosingAHome_showsAndRemembersIt) {
    world_.write(u"Locations.xml"_s,
                 recordFile({R"(<z:row LOCATIONID="1" DESCRIPTION="Elm Street"/>)",
                             R"(<z:row LOCATIONID="2" DESCRIPTION="Oak" PLANLENGTH="300"/>)"}));
    start();
    rename(u"Ash"_s);
    QTest::keyClick(&control(*view_, "cboLocation"), Qt::Key_Down);
    EXPECT_EQ(band(), u"Elm Street"_s);
    QTest::keyClick(&control(*view_, "cboLocation"), Qt::Key_Down);
    EXPECT_EQ(band(), u"Oak"_s);
    EXPECT_EQ(panel(), u"Oak"_s);
    EXPECT_EQ(setting(u"LastLocation"_s), u"2"_s);
    EXPECT_EQ(plan().ScaleHeight(), 300);
    EXPECT_FALSE(Global::CurrentLocation->IsDirty);
    EXPECT_FALSE(enabled("cmdSaveLocation"));
    EXPECT_EQ(floors(), QStringList());
}

TEST_F(LocationPaneTest, choosingAHomeWithoutFloors_takesTheLastOnesRoomsAway) {
    world_.write(u"Locations.xml"_s, recordFile({R"(<z:row LOCATIONID="1" DESCRIPTION="Elm Street"/>)",
                                                 R"(<z:row LOCATIONID="2" DESCRIPTION="Oak"/>)"}));
    start();
    ASSERT_EQ(visibleRooms(), 9);
    QTest::keyClick(&control(*view_, "cboLocation"), Qt::Key_Down);
    EXPECT_EQ(band(), u"Oak"_s);
    EXPECT_EQ(listed(), QStringList());
    EXPECT_EQ(visibleRooms(), 0);
    EXPECT_FALSE(entryEnabled("mnuLocationsOpenRoom"));
}

TEST_F(LocationPaneTest, choosingAHomeThatCannotBeShown_takesTheLastOnesFloorsAway) {
    world_.write(u"Locations.xml"_s,
                 recordFile({R"(<z:row LOCATIONID="1" DESCRIPTION="Elm Street"/>)",
                             R"(<z:row LOCATIONID="2" DESCRIPTION="Oak" PLANLENGTH="0"/>)"}));
    start();
    world_.prompts.expectError(u"frmView.ClearScreenLocation"_s, 380, u"Invalid property value"_s);
    QTest::keyClick(&control(*view_, "cboLocation"), Qt::Key_Down);
    EXPECT_EQ(band(), u"Oak"_s);
    EXPECT_EQ(floors(), QStringList()); // a room added now would stand on a floor of the other home
    EXPECT_EQ(visibleRooms(), 0);
}

TEST_F(LocationPaneTest, planSizeOfZero_isReportedAndThePaneGoesOn) {
    world_.write(u"Locations.xml"_s,
                 world_.read(u"Locations.xml"_s).replace("PLANLENGTH=\"600\"", "PLANLENGTH=\"0\""));
    for (int shown = 0; shown < 2; ++shown) { // at the start and at the press of the toolbar
        world_.prompts.expectError(u"frmView.ClearScreenLocation"_s, 380, u"Invalid property value"_s);
    }
    start();
    EXPECT_EQ(band(), u"Elm Street"_s);
    EXPECT_EQ(floors(), QStringList());
    EXPECT_FALSE(view_->Loading);
    rename(u"Oak"_s);
    EXPECT_TRUE(enabled("cmdSaveLocation"));
}

TEST_F(LocationPaneTest, missingFloors_areReportedUnderTheStoresLabel) {
    world_.remove(u"Floors.xml"_s);
    for (int shown = 0; shown < 2; ++shown) {
        world_.prompts.expectError(u"cXMLHandler.Query"_s, 91);
    }
    start();
    EXPECT_EQ(floors(), QStringList());
    EXPECT_FALSE(view_->Filling);
}

// Floors.

TEST_F(LocationPaneTest, choosingAFloor_showsItsRooms) {
    start();
    chooseFloor(1);
    EXPECT_EQ(Global::CurrentFloorID, 2);
    EXPECT_EQ(listed().constFirst(), u"Master Bedroom"_s);
    EXPECT_EQ(visibleRooms(), 8);
}

TEST_F(LocationPaneTest, NewFloor_isAddedShownAndToldAbout) {
    start();
    world_.prompts.expectMessage(u"New Floor"_s, u"A Floor Named Third Floor has been added."_s,
                                 MessageIcon::Information);
    run("mnuLocationsNewFloor");
    EXPECT_EQ(floors(), QStringList({u"First Floor"_s, u"Second Floor"_s, u"Third Floor"_s}));
    EXPECT_EQ(floorName(), u"Third Floor"_s);
    EXPECT_EQ(Global::CurrentFloorID, 3);
    EXPECT_EQ(row(u"Floors.xml"_s, u"FLOORID"_s, u"3"_s).value(u"LOCATIONID"_s), u"1"_s);
}

TEST_F(LocationPaneTest, RenameFloor_storesTheNameAndGoesToTheFirstFloor) {
    start();
    chooseFloor(1);
    world_.prompts.expectInput(u"Rename Floor"_s, u"Please Enter a new name for this floor."_s,
                               u"Second Floor"_s, u"Attic & loft"_s);
    run("mnuLocationsRenameFloor");
    EXPECT_EQ(floors(), QStringList({u"First Floor"_s, u"Attic & loft"_s}));
    EXPECT_EQ(floorName(), u"First Floor"_s);
    EXPECT_EQ(row(u"Floors.xml"_s, u"FLOORID"_s, u"2"_s).value(u"DESCRIPTION"_s), u"Attic & loft"_s);
}

TEST_F(LocationPaneTest, RenameFloor_toItsPresentNameOrNothing_changesNothing) {
    start();
    chooseFloor(1);
    const QByteArray before = world_.read(u"Floors.xml"_s);
    for (const QString& answer : {u"Second Floor"_s, QString()}) { // the empty text is also a cancel
        world_.prompts.expectInput(u"Rename Floor"_s, u"Please Enter a new name for this floor."_s,
                                   u"Second Floor"_s, answer);
        run("mnuLocationsRenameFloor");
        EXPECT_EQ(floorName(), u"Second Floor"_s);
    }
    EXPECT_EQ(world_.read(u"Floors.xml"_s), before);
}

TEST_F(LocationPaneTest, RenameFloor_ofAFloorThatIsGone_passesSilently) {
    start();
    chooseFloor(1);
    Global::CurrentLocation->oXMLFloors->Find(u"FLOORID"_s, 2);
    Global::CurrentLocation->oXMLFloors->Delete();
    world_.prompts.expectInput(u"Rename Floor"_s, u"Please Enter a new name for this floor."_s,
                               u"Second Floor"_s, u"Attic"_s);
    run("mnuLocationsRenameFloor");
    EXPECT_EQ(floorName(), u"Second Floor"_s);
}

TEST_F(LocationPaneTest, DeleteFloor_asksAndTakesItsRoomsAway) {
    start();
    world_.prompts.expectMessage(u"Delete Floor"_s,
                                 u"Are you sure that you want to delete floor: First Floor?"_s,
                                 MessageIcon::Question, MessageAnswer::No);
    run("mnuLocationsDeleteFloor");
    EXPECT_EQ(rows(u"Floors.xml"_s).size(), 2);
    world_.prompts.expectMessage(u"Delete Floor"_s,
                                 u"Are you sure that you want to delete floor: First Floor?"_s,
                                 MessageIcon::Question, MessageAnswer::Yes);
    run("mnuLocationsDeleteFloor");
    EXPECT_EQ(floors(), QStringList(u"Second Floor"_s));
    EXPECT_EQ(listed().size(), 8);
    EXPECT_EQ(rows(u"Rooms.xml"_s).size(), 8);
}

TEST_F(LocationPaneTest, DeleteFloor_ofTheLastOne_leavesAnEmptyPlan) {
    start();
    for (const QString& name : {u"First Floor"_s, u"Second Floor"_s}) {
        world_.prompts.expectMessage(u"Delete Floor"_s,
                                     u"Are you sure that you want to delete floor: "_s + name + u'?',
                                     MessageIcon::Question, MessageAnswer::Yes);
        run("mnuLocationsDeleteFloor");
    }
    EXPECT_EQ(listed(), QStringList());
    EXPECT_EQ(visibleRooms(), 0);
    EXPECT_EQ(rows(u"Rooms.xml"_s).size(), 0);
    // Without a floor there is nothing to rename or delete, and a new room has nowhere to go.
    run("mnuLocationsRenameFloor");
    run("mnuLocationsDeleteFloor");
    world_.prompts.expectError(u"frmView.mnuLocationsNewRoom_Click"_s, 381,
                               u"Invalid property array index"_s);
    click(*view_, "cmdRoom");
}

TEST_F(LocationPaneTest, OpenLocation_withoutAnId_showsTheFirstHome) {
    start();
    run("mnuLocationsNew");
    EXPECT_EQ(view_->Mode, u"INSERT"_s);
    Global::CurrentLocation->LocationID = 0;
    control<LocationPane>(*view_, "vsMainLocation").OpenLocation();
    EXPECT_EQ(view_->Mode, u"UPDATE"_s);
    EXPECT_EQ(Global::CurrentLocation->LocationID, 1);
    EXPECT_EQ(band().trimmed(), homes().constFirst());
    EXPECT_EQ(setting(u"LastLocation"_s), u"1"_s);
}
