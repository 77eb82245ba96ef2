#include "HomeFixture.h"

using namespace Qt::StringLiterals;

namespace {

class cLocationTest : public HomeFixture {};

TEST_F(cLocationTest, creation_touchesNoFile) {
    world.remove(LOCATIONS);
    const cLocation fresh;
    EXPECT_EQ(fresh.oXMLLocations, nullptr);
    EXPECT_EQ(fresh.oXMLFloors, nullptr);
    EXPECT_EQ(fresh.oXMLRooms, nullptr);
    EXPECT_EQ(fresh.LocationID, 0);
    EXPECT_EQ(fresh.NORTHOFFSET, 0);
    EXPECT_FALSE(fresh.IsDirty);
}

// GetLocation.

TEST_F(cLocationTest, GetLocation_storedId_fillsAllFields) {
    world.write(LOCATIONS,
                recordFile({"<z:row LOCATIONID='7' DESCRIPTION='Mill' PLANLENGTH='480' PLANWIDTH='720' "
                            "NORTHOFFSET='176.865504787868' LABLEX='-11.5' LABLEY='210'/>"}));
    ASSERT_TRUE(home.LoadLocations());
    home.IsDirty = true;
    EXPECT_TRUE(home.GetLocation(7));
    EXPECT_EQ(home.LocationID, 7);
    EXPECT_EQ(home.DESCRIPTION, u"Mill");
    EXPECT_EQ(home.PLANLENGTH, 480);
    EXPECT_EQ(home.PLANWIDTH, 720);
    EXPECT_EQ(home.NORTHOFFSET, 176.865504787868);
    EXPECT_EQ(home.LABLEX, -11.5);
    EXPECT_EQ(home.LABLEY, 210);
    EXPECT_FALSE(home.IsDirty);
}

TEST_F(cLocationTest, GetLocation_noArgumentAndEmptyLastLocation_createsALocationAndIsTrue) {
    ASSERT_TRUE(home.GetLocation(2));
    EXPECT_TRUE(home.GetLocation());
    EXPECT_TRUE(home.GetLocation(QString()));
    EXPECT_EQ(world.mainWindow.calls(), (QStringList{u"NewLocation"_s, u"NewLocation"_s}));
    EXPECT_EQ(home.LocationID, 2);
    EXPECT_EQ(home.DESCRIPTION, u"Lakeside");
}

TEST_F(cLocationTest, GetLocation_noArgument_takesTheLastLocation) {
    world.settings.setText(START_UP, u"LastLocation"_s, u"2"_s);
    EXPECT_TRUE(home.GetLocation());
    EXPECT_EQ(home.DESCRIPTION, u"Lakeside");
    EXPECT_TRUE(world.mainWindow.calls().isEmpty());
}

TEST_F(cLocationTest, GetLocation_idThatNoLongerExists_isFalseAndLeavesThePreviousLocation) {
    ASSERT_TRUE(home.GetLocation(u"2"_s));
    home.IsDirty = true;
    world.settings.setText(START_UP, u"LastLocation"_s, u"9"_s);
    EXPECT_FALSE(home.GetLocation(9));
    EXPECT_FALSE(home.GetLocation());
    EXPECT_EQ(home.LocationID, 2);
    EXPECT_EQ(home.DESCRIPTION, u"Lakeside");
    EXPECT_TRUE(home.IsDirty);
}

TEST_F(cLocationTest, GetLocation_missingNumbers_haveDefaults) {
    home.PLANLENGTH = 1;
    home.PLANWIDTH = 2;
    home.NORTHOFFSET = 3;
    home.LABLEX = 4;
    home.LABLEY = 5;
    EXPECT_TRUE(home.GetLocation(1));
    EXPECT_EQ(home.PLANLENGTH, 600);
    EXPECT_EQ(home.PLANWIDTH, 600);
    EXPECT_EQ(home.NORTHOFFSET, 0);
    EXPECT_EQ(home.LABLEX, 0);
    EXPECT_EQ(home.LABLEY, 0);
}

TEST_F(cLocationTest, GetLocation_numbersThatAreNone_haveDefaultsToo) {
    world.write(LOCATIONS, recordFile({"<z:row LOCATIONID='one' PLANLENGTH='long' PLANWIDTH='' "
                                       "NORTHOFFSET='north' LABLEX='x' LABLEY='12 in'/>"}));
    ASSERT_TRUE(home.LoadLocations());
    home.LocationID = 8;
    EXPECT_TRUE(home.GetLocation(u"one"_s));
    EXPECT_EQ(home.LocationID, 0);
    EXPECT_EQ(home.PLANLENGTH, 600);
    EXPECT_EQ(home.PLANWIDTH, 600);
    EXPECT_EQ(home.NORTHOFFSET, 0);
    EXPECT_EQ(home.LABLEX, 0);
    EXPECT_EQ(home.LABLEY, 0);
}

TEST_F(cLocationTest, GetLocation_numberOutOfRange_isReportedWithTheFieldsHalfRead) {
    world.write(LOCATIONS, recordFile({"<z:row LOCATIONID='3' DESCRIPTION='Tower' PLANLENGTH='500' "
                                       "PLANWIDTH='3000000000' NORTHOFFSET='90'/>"}));
    ASSERT_TRUE(home.LoadLocations());
    home.IsDirty = true;
    world.prompts.expectError(u"cLocation.Get Location"_s, 6, u"Overflow"_s);
    EXPECT_FALSE(home.GetLocation(3));
    EXPECT_EQ(home.DESCRIPTION, u"Tower");
    EXPECT_EQ(home.PLANLENGTH, 500);
    EXPECT_EQ(home.PLANWIDTH, 600);
    EXPECT_EQ(home.NORTHOFFSET, 0);
    EXPECT_TRUE(home.IsDirty);
}

TEST_F(cLocationTest, GetLocation_northOffset_passesThroughFifteenDigits) {
    world.write(LOCATIONS,
                recordFile({"<z:row LOCATIONID='1' NORTHOFFSET='1.2345678901234567' LABLEX='1e3'/>"}));
    ASSERT_TRUE(home.LoadLocations());
    EXPECT_TRUE(home.GetLocation(1));
    EXPECT_EQ(home.NORTHOFFSET, 1.23456789012346);
    EXPECT_EQ(home.LABLEX, 1000);
}

TEST_F(cLocationTest, CreateLocation_noMainWindow_isReported) {
    Services services = Global::services();
    services.mainWindow = nullptr;
    Global::use(services);
    expectObjectNotSet(u"cLocation.Create Location"_s);
    EXPECT_TRUE(home.GetLocation());
}

TEST_F(cLocationTest, operations_beforeALoad_areReportedUnderTheirOwnLabels) {
    cLocation fresh;
    for (const QString& label :
         {u"cLocation.Get Location"_s, u"cLocation.Insert Location"_s, u"cLocation.Update Location"_s,
          u"cLocation.Update North Offset"_s, u"cLocation.Delete Location"_s, u"cLocation.Delete Floor"_s,
          u"cLocation.Insert Floor"_s, u"cLocation.Rename Floor"_s}) {
        expectObjectNotSet(label);
    }
    EXPECT_FALSE(fresh.GetLocation(1));
    EXPECT_FALSE(fresh.InsertLocation(1));
    EXPECT_FALSE(fresh.UpdateLocation());
    EXPECT_FALSE(fresh.UpdateNorthOffset());
    EXPECT_FALSE(fresh.DeleteLocation());
    EXPECT_FALSE(fresh.DeleteFloor(1));
    EXPECT_FALSE(fresh.InsertFloor());
    EXPECT_FALSE(fresh.RenameFloor(1, u"Loft"_s));
}

// The loads.

TEST_F(cLocationTest, loads_missingFiles_areTrueAndReportedAtFirstUse) {
    world.remove(LOCATIONS);
    world.remove(FLOORS);
    world.remove(ROOMS);
    cLocation fresh;
    expectObjectNotSet(u"cXMLHandler.Move First"_s); // the repair of decimal numbers walks the records
    EXPECT_TRUE(fresh.LoadLocations());
    EXPECT_TRUE(fresh.LoadFloors()); // no repair here, so nothing is used yet
    expectObjectNotSet(u"cXMLHandler.Move First"_s);
    EXPECT_TRUE(fresh.LoadRooms());
    expectObjectNotSet(u"cXMLHandler.Find"_s);
    EXPECT_FALSE(fresh.GetLocation(1));
    EXPECT_FALSE(QFile::exists(world.file(LOCATIONS)));
}

TEST_F(cLocationTest, LoadRooms_commaOnASystemWithAPoint_isRewrittenAndSaved) {
    world.write(ROOMS, recordFile({"<z:row ROOMID='1' TOP='12,5'/>"}));
    EXPECT_TRUE(home.LoadRooms());
    EXPECT_EQ(stored(ROOMS), QByteArrayList{"<z:row ROOMID=\"1\" TOP=\"12.5\" />"});
    world.setLocale(QLocale(QLocale::German, QLocale::Germany));
    EXPECT_TRUE(home.LoadRooms());
    EXPECT_EQ(stored(ROOMS), QByteArrayList{"<z:row ROOMID=\"1\" TOP=\"12,5\" />"});
}

TEST_F(cLocationTest, LoadFloors_repairsNothing) {
    const QByteArray floors = recordFile({floorRow(1, 1, "2,5")});
    world.write(FLOORS, floors);
    EXPECT_TRUE(home.LoadFloors());
    EXPECT_EQ(world.read(FLOORS), floors);
}

TEST_F(cLocationTest, LoadRooms_again_dropsUnsavedChanges) {
    ASSERT_TRUE(home.oXMLRooms->Find(u"ROOMID"_s, 1));
    ASSERT_TRUE(home.oXMLRooms->SetAttribute(u"RELATIVEDIRECTION"_s, 4));
    EXPECT_TRUE(home.LoadRooms());
    ASSERT_TRUE(home.oXMLRooms->Find(u"ROOMID"_s, 1));
    EXPECT_EQ(home.oXMLRooms->GetAttribute(u"RELATIVEDIRECTION"_s), QString());
}

// Insert.

TEST_F(cLocationTest, InsertLocation_storesIdAndNameOnly) {
    ASSERT_TRUE(home.GetLocation(1));
    home.DESCRIPTION = u"Mill"_s;
    home.PLANLENGTH = 480;
    home.NORTHOFFSET = 90;
    home.IsDirty = true;
    EXPECT_TRUE(home.InsertLocation(2));
    EXPECT_EQ(stored(LOCATIONS).at(2), locationRow(3, "Mill"));
    EXPECT_EQ(stored(FLOORS).sliced(3),
              (QByteArrayList{floorRow(4, 3, "First Floor"), floorRow(5, 3, "Second Floor")}));
    // Read back: what is not stored has its defaults.
    EXPECT_EQ(home.LocationID, 3);
    EXPECT_EQ(home.PLANLENGTH, 600);
    EXPECT_EQ(home.NORTHOFFSET, 0);
    EXPECT_FALSE(home.IsDirty);
}

TEST_F(cLocationTest, InsertLocation_emptyFiles_startAtOne) {
    world.write(LOCATIONS, recordFile({}));
    world.write(FLOORS, recordFile({}));
    load();
    home.DESCRIPTION = u"Mill"_s;
    EXPECT_TRUE(home.InsertLocation(1));
    EXPECT_EQ(stored(LOCATIONS), QByteArrayList{locationRow(1, "Mill")});
    EXPECT_EQ(stored(FLOORS), QByteArrayList{floorRow(1, 1, "First Floor")});
}

TEST_F(cLocationTest, InsertLocation_twelveFloors_areNamedToTheTenthAndThenOther) {
    EXPECT_TRUE(home.InsertLocation(12));
    EXPECT_EQ(floorNames(3),
              (QStringList{u"First Floor"_s, u"Second Floor"_s, u"Third Floor"_s, u"Fourth Floor"_s,
                           u"Fifth Floor"_s, u"Sixth Floor"_s, u"Seventh Floor"_s, u"Eighth Floor"_s,
                           u"Ninth Floor"_s, u"Tenth Floor"_s, u"Other Floor"_s, u"Other Floor"_s}));
}

TEST_F(cLocationTest, InsertLocation_noFloors_storesTheLocationAlone) {
    const QByteArrayList before = stored(FLOORS);
    home.DESCRIPTION = u"Field"_s;
    EXPECT_TRUE(home.InsertLocation(0));
    EXPECT_EQ(stored(LOCATIONS).size(), 3);
    EXPECT_EQ(stored(FLOORS), before);
    EXPECT_TRUE(home.InsertLocation(-1));
    EXPECT_EQ(stored(FLOORS), before);
}

TEST_F(cLocationTest, InsertLocation_afterTheHighestWasDeleted_givesItsIdOutAgain) {
    ASSERT_TRUE(home.GetLocation(2));
    ASSERT_TRUE(home.DeleteLocation());
    EXPECT_TRUE(home.InsertLocation(1));
    EXPECT_EQ(home.LocationID, 2);
    EXPECT_EQ(stored(FLOORS).last(), floorRow(3, 2, "First Floor"));
}

TEST_F(cLocationTest, InsertLocation_nameOfAnyScript_survivesTheFile) {
    for (const QString& name : {u"O'Hara & \"Sons\" <Ltd>"_s, u"王家 别墅"_s, u"בית ברחוב"_s,
                                u"بيت العائلة"_s, u"two\r\nlines"_s, u"\U0001F3E1"_s, QString()}) {
        home.DESCRIPTION = name;
        EXPECT_TRUE(home.InsertLocation(1));
        cLocation fresh;
        ASSERT_TRUE(fresh.LoadLocations());
        EXPECT_TRUE(fresh.GetLocation(home.LocationID));
        EXPECT_EQ(fresh.DESCRIPTION, name);
    }
}

TEST_F(cLocationTest, InsertLocation_damagedFloors_isReportedWithTheLocationStored) {
    home.oXMLFloors.reset();
    expectObjectNotSet(u"cLocation.Insert Location"_s);
    EXPECT_FALSE(home.InsertLocation(1));
    EXPECT_EQ(stored(LOCATIONS).size(), 3);
}

TEST_F(cLocationTest, InsertFloor_takesItsNameFromTheCount) {
    ASSERT_TRUE(home.GetLocation(1));
    EXPECT_TRUE(home.InsertFloor());
    EXPECT_EQ(stored(FLOORS).last(), floorRow(4, 1, "Third Floor"));
}

TEST_F(cLocationTest, InsertFloor_firstFloorOfALocation_isTheFirst) {
    ASSERT_TRUE(home.InsertLocation(0));
    EXPECT_TRUE(home.InsertFloor());
    EXPECT_EQ(floorNames(3), QStringList{u"First Floor"_s});
}

TEST_F(cLocationTest, InsertFloor_pastTheTenth_isNumbered) {
    ASSERT_TRUE(home.InsertLocation(9));
    for (int i = 0; i < 4; ++i) {
        EXPECT_TRUE(home.InsertFloor());
    }
    EXPECT_EQ(floorNames(3).sliced(9),
              (QStringList{u"Tenth Floor"_s, u"Floor 11"_s, u"Floor 12"_s, u"Floor 13"_s}));
}

TEST_F(cLocationTest, InsertFloor_afterADeletionInTheMiddle_repeatsAName) {
    ASSERT_TRUE(home.InsertLocation(3));
    ASSERT_TRUE(home.DeleteFloor(5));
    EXPECT_TRUE(home.InsertFloor());
    EXPECT_EQ(floorNames(3), (QStringList{u"First Floor"_s, u"Third Floor"_s, u"Third Floor"_s}));
}

TEST_F(cLocationTest, RenameFloor_storedFloor_isSaved) {
    EXPECT_TRUE(home.RenameFloor(3, u"Attic & loft"_s));
    EXPECT_EQ(stored(FLOORS),
              (QByteArrayList{floorRow(1, 1), floorRow(3, 2, "Attic &amp; loft"), floorRow(2, 1)}));
}

TEST_F(cLocationTest, RenameFloor_unknownFloor_isFalseAndWritesNothing) {
    const QByteArray before = world.read(FLOORS);
    EXPECT_FALSE(home.RenameFloor(9, u"Attic"_s));
    EXPECT_EQ(world.read(FLOORS), before);
}

// Update.

TEST_F(cLocationTest, UpdateLocation_writesNameAndPlanSizeOnly) {
    ASSERT_TRUE(home.GetLocation(2));
    home.DESCRIPTION = u"Lakeside House"_s;
    home.PLANLENGTH = 480;
    home.PLANWIDTH = 720;
    home.NORTHOFFSET = 90;
    home.IsDirty = true;
    EXPECT_TRUE(home.UpdateLocation());
    EXPECT_FALSE(home.IsDirty);
    EXPECT_EQ(stored(LOCATIONS),
              (QByteArrayList{locationRow(1, "Elm Street"),
                              "<z:row LOCATIONID=\"2\" DESCRIPTION=\"Lakeside House\" PLANLENGTH=\"480\" "
                              "PLANWIDTH=\"720\" />"}));
}

TEST_F(cLocationTest, UpdateNorthOffset_writesNorthAndItsPointOnly) {
    ASSERT_TRUE(home.GetLocation(2));
    home.DESCRIPTION = u"not stored"_s;
    home.PLANLENGTH = 480;
    home.NORTHOFFSET = 176.865504787868123;
    home.LABLEX = -11.5;
    home.LABLEY = 210;
    home.IsDirty = true;
    EXPECT_TRUE(home.UpdateNorthOffset());
    EXPECT_FALSE(home.IsDirty);
    EXPECT_EQ(stored(LOCATIONS).at(1),
              "<z:row LOCATIONID=\"2\" DESCRIPTION=\"Lakeside\" NORTHOFFSET=\"176.865504787868\" "
              "LABLEX=\"-11.5\" LABLEY=\"210\" />");
}

TEST_F(cLocationTest, UpdateNorthOffset_everyLocale_comesBackTheSame) {
    for (const auto& [locale, text] : {std::pair{"en_US", "17.25"},
                                       {"en_GB", "17.25"},
                                       {"de_DE", "17,25"},
                                       {"sv_SE", "17,25"},
                                       {"fr_FR", "17,25"},
                                       {"zh_CN", "17.25"},
                                       {"C", "17.25"}}) {
        world.setLocale(QLocale(QString::fromLatin1(locale)));
        load();
        ASSERT_TRUE(home.GetLocation(1));
        home.NORTHOFFSET = 17.25;
        home.LABLEX = -1234.5;
        EXPECT_TRUE(home.UpdateNorthOffset());
        EXPECT_TRUE(stored(LOCATIONS).first().contains("NORTHOFFSET=\"" + QByteArray(text) + "\"")) << locale;
        cLocation fresh;
        ASSERT_TRUE(fresh.LoadLocations());
        EXPECT_TRUE(fresh.GetLocation(1));
        EXPECT_EQ(fresh.NORTHOFFSET, 17.25) << locale;
        EXPECT_EQ(fresh.LABLEX, -1234.5) << locale;
    }
}

TEST_F(cLocationTest, LoadLocations_decimalSymbolChanges_keepsTheNumbers) {
    ASSERT_TRUE(home.GetLocation(1));
    home.NORTHOFFSET = 17.25;
    ASSERT_TRUE(home.UpdateNorthOffset());
    for (const char* name : {"de_DE", "en_GB", "fr_FR", "zh_CN", "sv_SE", "en_US"}) {
        world.setLocale(QLocale(QString::fromLatin1(name)));
        cLocation fresh;
        ASSERT_TRUE(fresh.LoadLocations());
        EXPECT_TRUE(fresh.GetLocation(1));
        EXPECT_EQ(fresh.NORTHOFFSET, 17.25) << name;
    }
}

TEST_F(cLocationTest, updates_unknownLocation_areFalseAndWriteNothing) {
    const QList<QByteArray> before = allFiles();
    home.LocationID = 9;
    home.IsDirty = true;
    EXPECT_FALSE(home.UpdateLocation());
    EXPECT_FALSE(home.UpdateNorthOffset());
    EXPECT_FALSE(home.DeleteLocation());
    EXPECT_TRUE(home.IsDirty);
    EXPECT_EQ(allFiles(), before);
}

TEST_F(cLocationTest, UpdateLocation_fileThatCannotBeWritten_isReportedAndKeptInMemory) {
    ASSERT_TRUE(home.GetLocation(1));
    world.remove(LOCATIONS);
    ASSERT_TRUE(QDir().mkdir(world.file(LOCATIONS)));
    home.DESCRIPTION = u"Elm Road"_s;
    world.prompts.expectError(u"cXMLHandler.Save Document"_s, 75, u"Path/File access error"_s);
    EXPECT_TRUE(home.UpdateLocation());
    EXPECT_TRUE(home.GetLocation(1));
    EXPECT_EQ(home.DESCRIPTION, u"Elm Road");
}

// Delete.

} // namespace
