// New homes, changed ones, and the end of a home.

#include "ui/LocationPaneTest.h"

namespace {

class LocationPaneSaveTest : public LocationPaneTest {
protected:
    void expectQuestion(const QString& title, MessageAnswer answer) {
        world_.prompts.expectMessage(
            title, u"Would you like to save the changes to this location before proceeding?"_s,
            MessageIcon::Question, answer);
    }
    void expectDeleteQuestion(const QString& name, MessageAnswer answer) {
        world_.prompts.expectMessage(u"Delete Location"_s,
                                     u"Are you sure that you want to delete location: "_s + name + u'?',
                                     MessageIcon::Question, answer);
    }
    void openList() {
        auto& list = control<RecordList>(*view_, "cboLocation");
        list.showPopup();
        list.hidePopup();
    }
    [[nodiscard]] QString storedName(const QString& id) const {
        return row(u"Locations.xml"_s, u"LOCATIONID"_s, id).value(u"DESCRIPTION"_s);
    }
};

} // namespace

TEST_F(LocationPaneSaveTest, newHome_isStoredWithItsFloorsAndShown) {
    startEmpty();
    type("txtLocation", u"Oak"_s);
    type("txtNumFloors", u"3"_s);
    click(*view_, "cmdSaveLocation");
    EXPECT_EQ(storedName(u"1"_s), u"Oak"_s);
    EXPECT_EQ(floors(), QStringList({u"First Floor"_s, u"Second Floor"_s, u"Third Floor"_s}));
    EXPECT_EQ(rows(u"Floors.xml"_s).size(), 3);
    EXPECT_EQ(band(), u"Oak"_s);
    EXPECT_EQ(panel(), u"Oak"_s);
    EXPECT_EQ(setting(u"LastLocation"_s), u"1"_s);
    EXPECT_EQ(view_->Mode, u"UPDATE"_s);
    EXPECT_TRUE(shown("cboLocation"));
    // No plan size is stored with it; an own plan is 600 by 600.
    EXPECT_FALSE(row(u"Locations.xml"_s, u"LOCATIONID"_s, u"1"_s).contains(u"PLANWIDTH"_s));
    EXPECT_EQ(plan().ScaleWidth(), 600);
}

TEST_F(LocationPaneSaveTest, newHome_enterSavesAndEscapeLeaves) {
    start();
    click(*view_, "cmdNewLocation");
    WindowDriver::press(*view_, Qt::Key_Escape);
    EXPECT_EQ(band(), u"Elm Street"_s);
    EXPECT_EQ(rows(u"Locations.xml"_s).size(), 1);
    click(*view_, "cmdNewLocation");
    type("txtLocation", u"Oak"_s);
    WindowDriver::press(*view_, Qt::Key_Return);
    EXPECT_EQ(homes(), QStringList({u"Elm Street"_s, u"Oak"_s}));
    EXPECT_EQ(band(), u"Oak"_s);
}

TEST_F(LocationPaneSaveTest, newHome_withoutANumberOfFloors_hasOne) {
    startEmpty();
    type("txtLocation", u"Oak"_s);
    click(*view_, "cmdSaveLocation");
    EXPECT_EQ(floors(), QStringList(u"First Floor"_s));
    click(*view_, "cmdNewLocation");
    type("txtLocation", u"Ash"_s);
    type("txtNumFloors", u"two"_s);
    click(*view_, "cmdSaveLocation");
    EXPECT_EQ(floors(), QStringList(u"First Floor"_s));
}

TEST_F(LocationPaneSaveTest, numberOfFloors_ofTheLastNewHome_standsThereAgain) {
    startEmpty();
    type("txtLocation", u"Oak"_s);
    type("txtNumFloors", u"2"_s);
    click(*view_, "cmdSaveLocation");
    click(*view_, "cmdNewLocation");
    EXPECT_EQ(control<QLineEdit>(*view_, "txtNumFloors").text(), u"2"_s);
    EXPECT_EQ(control<QLineEdit>(*view_, "txtLocation").text(), QString());
}

TEST_F(LocationPaneSaveTest, numberOfFloors_beyondAWholeNumber_isReported) {
    startEmpty();
    type("txtLocation", u"Oak"_s);
    type("txtNumFloors", u"99999999999"_s);
    world_.prompts.expectError(u"frmView.Save Location"_s, 6, u"Overflow"_s);
    click(*view_, "cmdSaveLocation");
    EXPECT_EQ(rows(u"Locations.xml"_s).size(), 0);
    EXPECT_TRUE(shown("txtLocation"));
}

TEST_F(LocationPaneSaveTest, typingANewHome_marksNothing) {
    start();
    click(*view_, "cmdNewLocation");
    type("txtLocation", u"Oak"_s);
    type("txtNumFloors", u"2"_s);
    EXPECT_FALSE(Global::CurrentLocation->IsDirty);
}

TEST_F(LocationPaneSaveTest, editingTheListsText_andSave_renames) {
    start();
    chooseFloor(1);
    rename(u"Ash Lane"_s);
    EXPECT_TRUE(Global::CurrentLocation->IsDirty);
    EXPECT_TRUE(enabled("cmdSaveLocation"));
    EXPECT_TRUE(entryEnabled("mnuLocationsSave"));
    run("mnuLocationsSave");
    EXPECT_EQ(storedName(u"1"_s), u"Ash Lane"_s);
    EXPECT_EQ(homes(), QStringList(u"Ash Lane"_s));
    EXPECT_EQ(homeName(), u"Ash Lane"_s);
    EXPECT_EQ(band(), u"Ash Lane"_s);
    EXPECT_EQ(panel(), u"Ash Lane"_s);
    EXPECT_FALSE(enabled("cmdSaveLocation"));
    EXPECT_EQ(floorName(), u"First Floor"_s) << "saving goes back to the first floor";
    EXPECT_EQ(Global::CurrentFloorID, 1);
}

TEST_F(LocationPaneSaveTest, openingTheList_withChanges_asksWhetherToSave) {
    start();
    openList(); // asks nothing without changes
    rename(u"Ash"_s);
    expectQuestion(u"Select Location"_s, MessageAnswer::No);
    openList();
    EXPECT_EQ(homeName(), u"Elm Street"_s);
    EXPECT_FALSE(Global::CurrentLocation->IsDirty);
    EXPECT_FALSE(enabled("cmdSaveLocation"));
    rename(u"Oak"_s);
    expectQuestion(u"Select Location"_s, MessageAnswer::Yes);
    openList();
    EXPECT_EQ(storedName(u"1"_s), u"Oak"_s);
    EXPECT_EQ(homes(), QStringList(u"Oak"_s));
}

TEST_F(LocationPaneSaveTest, New_withChanges_asksWhetherToSave) {
    start();
    rename(u"Ash"_s);
    expectQuestion(u"New Location"_s, MessageAnswer::No);
    run("mnuLocationsNew");
    EXPECT_EQ(storedName(u"1"_s), u"Elm Street"_s);
    EXPECT_TRUE(shown("txtLocation"));
    click(*view_, "cmdNewLocation");
    rename(u"Oak"_s);
    view_->Mode = u"UPDATE"_s;
    expectQuestion(u"New Location"_s, MessageAnswer::Yes);
    click(*view_, "cmdNewLocation");
    EXPECT_EQ(storedName(u"1"_s), u"Oak"_s);
    EXPECT_TRUE(shown("txtLocation"));
}

TEST_F(LocationPaneSaveTest, Cancel_bringsTheHomeBackAndLeavesTheModeAtInsert) {
    start();
    click(*view_, "cmdNewLocation");
    type("txtLocation", u"Oak"_s);
    click(*view_, "cmdNewLocation");
    EXPECT_EQ(band(), u"Elm Street"_s);
    EXPECT_EQ(homeName(), u"Elm Street"_s);
    EXPECT_EQ(listed().size(), 9);
    EXPECT_FALSE(enabled("cmdSaveLocation"));
    EXPECT_FALSE(Global::CurrentLocation->IsDirty);
    EXPECT_EQ(setting(u"LastLocation"_s), u"1"_s);
    EXPECT_EQ(view_->Mode, u"INSERT"_s);
    // So the next save stores a copy.
    rename(u"Copy"_s);
    click(*view_, "cmdSaveLocation");
    EXPECT_EQ(homes(), QStringList({u"Elm Street"_s, u"Copy"_s}));
    EXPECT_EQ(floors(), QStringList(u"First Floor"_s));
    EXPECT_EQ(setting(u"LastLocation"_s), u"2"_s);
}

TEST_F(LocationPaneSaveTest, Cancel_whereTheFormerHomeIsGone_showsTheFirst) {
    start();
    Global::CurrentLocation->LocationID = 99;
    click(*view_, "cmdNewLocation");
    click(*view_, "cmdNewLocation");
    EXPECT_EQ(band(), u"Elm Street"_s);
    EXPECT_EQ(setting(u"LastLocation"_s), u"1"_s);
}

TEST_F(LocationPaneSaveTest, Cancel_inAnEmptyStore_leavesABlankPane) {
    startEmpty();
    click(*view_, "cmdNewLocation");
    EXPECT_TRUE(shown("cboLocation"));
    EXPECT_EQ(homeName(), QString());
    EXPECT_EQ(rows(u"Locations.xml"_s).size(), 0);
}

TEST_F(LocationPaneSaveTest, Delete_asksAndOnNoKeepsTheHome) {
    start();
    expectDeleteQuestion(u"Elm Street"_s, MessageAnswer::No);
    run("mnuLocationsDelete");
    EXPECT_EQ(rows(u"Locations.xml"_s).size(), 1);
}

TEST_F(LocationPaneSaveTest, Delete_showsTheFirstHomeThatIsLeft) {
    world_.write(u"Locations.xml"_s, recordFile({R"(<z:row LOCATIONID="1" DESCRIPTION="Elm Street"/>)",
                                                 R"(<z:row LOCATIONID="2" DESCRIPTION="Oak"/>)"}));
    start();
    expectDeleteQuestion(u"Elm Street"_s, MessageAnswer::Yes);
    run("mnuLocationsDelete");
    EXPECT_EQ(band(), u"Oak"_s);
    EXPECT_EQ(panel(), u"Oak"_s);
    EXPECT_EQ(setting(u"LastLocation"_s), u"2"_s);
    EXPECT_EQ(rows(u"Rooms.xml"_s).size(), 0);
    EXPECT_EQ(rows(u"Floors.xml"_s).size(), 0);
}

TEST_F(LocationPaneSaveTest, Delete_ofAHomeThatIsGone_warns) {
    start();
    Global::CurrentLocation->LocationID = 7;
    expectDeleteQuestion(u"Elm Street"_s, MessageAnswer::Yes);
    world_.prompts.expectMessage(u"Delete Location"_s, u"Unable to delete this location: Elm Street"_s,
                                 MessageIcon::Exclamation);
    run("mnuLocationsDelete");
    EXPECT_EQ(rows(u"Locations.xml"_s).size(), 1);
}

TEST_F(LocationPaneSaveTest, Delete_ofTheLastHome_writesThePersonsSettingAndEndsInTheNewState) {
    start();
    Global::CurrentProfile->PROFILEID = 2;
    expectDeleteQuestion(u"Elm Street"_s, MessageAnswer::Yes);
    run("mnuLocationsDelete");
    EXPECT_EQ(setting(u"LastProfile"_s), u"2"_s);
    EXPECT_EQ(setting(u"LastLocation"_s), u"1"_s) << "points at the home that is gone";
    EXPECT_EQ(panel(), QString());
    EXPECT_TRUE(shown("txtLocation"));
    EXPECT_EQ(view_->Mode, u"INSERT"_s);
}

TEST_F(LocationPaneSaveTest, readOnlyFile_isReportedAndTheNameStandsInMemoryOnly) {
    start();
    rename(u"Ash"_s);
    world_.remove(u"Locations.xml"_s);
    QDir().mkdir(world_.file(u"Locations.xml"_s));
    world_.prompts.expectError(u"cXMLHandler.Save Document"_s, 75);
    click(*view_, "cmdSaveLocation");
    EXPECT_EQ(homeName(), u"Ash"_s);
}

TEST_F(LocationPaneSaveTest, Directions_cancelled_keepsSaveAndReadsTheRoomsAnew) {
    start();
    rename(u"Ash"_s);
    Global::CurrentLocation->oXMLRooms->Find(u"ROOMID"_s, 1);
    Global::CurrentLocation->oXMLRooms->SetAttribute(u"LEFT"_s, 1);
    whileModal([this] { run("mnuLocationsDirections"); },
               [](QWidget& window) {
                   EXPECT_EQ(window.objectName(), u"frmSetDirection"_s);
                   click(window, "cmdCancel");
               });
    EXPECT_EQ(Global::CurrentLocation->DESCRIPTION, u"Ash"_s);
    EXPECT_TRUE(enabled("cmdSaveLocation"));
    Global::CurrentLocation->oXMLRooms->Find(u"ROOMID"_s, 1);
    EXPECT_EQ(Global::CurrentLocation->oXMLRooms->GetAttribute(u"LEFT"_s), u"60"_s);
}

TEST_F(LocationPaneSaveTest, Directions_confirmed_disablesSave) {
    start();
    rename(u"Ash"_s);
    whileModal([this] { run("mnuLocationsDirections"); }, [](QWidget& window) { click(window, "cmdOK"); });
    EXPECT_FALSE(enabled("cmdSaveLocation"));
    EXPECT_FALSE(entryEnabled("mnuLocationsSave"));
}

TEST_F(LocationPaneSaveTest, enterInTheListsText_savesAChangedNameOnly) {
    start();
    const QByteArray before = world_.read(u"Locations.xml"_s);
    auto& list = control<RecordList>(*view_, "cboLocation");
    QTest::keyClick(list.lineEdit(), Qt::Key_Return);
    EXPECT_EQ(world_.read(u"Locations.xml"_s), before);
    rename(u"Ash"_s);
    QTest::keyClick(list.lineEdit(), Qt::Key_Return);
    EXPECT_EQ(storedName(u"1"_s), u"Ash"_s);
    EXPECT_EQ(band(), u"Ash"_s);
}
