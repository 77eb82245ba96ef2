#include "HomeFixture.h"

using namespace Qt::StringLiterals;

namespace {

class cLocationDeletesTest : public HomeFixture {};

TEST_F(cLocationDeletesTest, DeleteLocation_takesItsFloorsAndRoomsAndNoOthers) {
    ASSERT_TRUE(home.GetLocation(1));
    EXPECT_TRUE(home.DeleteLocation());
    EXPECT_EQ(stored(LOCATIONS), QByteArrayList{locationRow(2, "Lakeside")});
    EXPECT_EQ(stored(FLOORS), QByteArrayList{floorRow(3, 2)});
    EXPECT_EQ(stored(ROOMS), QByteArrayList{roomRow(4, 2, 3)});
    EXPECT_EQ(home.LocationID, 1); // the fields keep the deleted home
}

TEST_F(cLocationDeletesTest, DeleteLocation_noFloors_savesAllThreeFiles) {
    world.write(FLOORS, recordFile({floorRow(3, 2)}));
    world.write(ROOMS, recordFile({roomRow(4, 2, 3)}));
    load();
    ASSERT_TRUE(home.GetLocation(1));
    for (const QString& name : {LOCATIONS, FLOORS, ROOMS}) {
        world.remove(name);
    }
    EXPECT_TRUE(home.DeleteLocation());
    EXPECT_EQ(stored(LOCATIONS), QByteArrayList{locationRow(2, "Lakeside")});
    EXPECT_EQ(stored(FLOORS), QByteArrayList{floorRow(3, 2)});
    EXPECT_EQ(stored(ROOMS), QByteArrayList{roomRow(4, 2, 3)});
}

TEST_F(cLocationDeletesTest, DeleteLocation_roomOfTheLocationOnNoFloorOfIt_stays) {
    world.write(ROOMS, recordFile({roomRow(1, 1, 1), roomRow(5, 1, 3), roomRow(6, 2, 1)}));
    load();
    ASSERT_TRUE(home.GetLocation(1));
    EXPECT_TRUE(home.DeleteLocation());
    EXPECT_EQ(stored(ROOMS), (QByteArrayList{roomRow(5, 1, 3), roomRow(6, 2, 1)}));
}

TEST_F(cLocationDeletesTest, DeleteLocation_roomThatRefuses_cancelsWithAMessageAndSavesNothing) {
    world.write(ROOMS, recordFileWithRefusing({roomRow(1, 1, 1)}, roomRow(2, 1, 2)));
    load();
    const QList<QByteArray> before = allFiles();
    ASSERT_TRUE(home.GetLocation(1));
    world.prompts.expectError(u"cXMLHandler.Delete"_s, 5);
    world.prompts.expectMessage(
        u"Delete Location"_s,
        u"Unable to delete a room for this location. Delete of Location was canceled."_s,
        MessageIcon::Information);
    EXPECT_FALSE(home.DeleteLocation());
    EXPECT_EQ(allFiles(), before);
    // In memory the first floor and its room are gone until the next load.
    EXPECT_FALSE(home.oXMLFloors->Find(u"FLOORID"_s, 1));
    EXPECT_FALSE(home.oXMLRooms->Find(u"ROOMID"_s, 1));
    EXPECT_TRUE(home.oXMLFloors->Find(u"FLOORID"_s, 2));
    EXPECT_TRUE(home.oXMLLocations->Find(u"LOCATIONID"_s, 1));
    load();
    EXPECT_TRUE(home.oXMLFloors->Find(u"FLOORID"_s, 1));
}

TEST_F(cLocationDeletesTest, DeleteLocation_floorThatRefuses_cancelsWithAMessageAndSavesNothing) {
    world.write(FLOORS, recordFileWithRefusing({floorRow(1, 1)}, floorRow(2, 1)));
    load();
    const QList<QByteArray> before = allFiles();
    ASSERT_TRUE(home.GetLocation(1));
    world.prompts.expectError(u"cXMLHandler.Delete"_s, 5);
    world.prompts.expectMessage(
        u"Delete Location"_s,
        u"Unable to delete a floor for this location. Delete of Location was canceled."_s,
        MessageIcon::Information);
    EXPECT_FALSE(home.DeleteLocation());
    EXPECT_EQ(allFiles(), before);
    EXPECT_TRUE(home.oXMLLocations->Find(u"LOCATIONID"_s, 1));
}

TEST_F(cLocationDeletesTest, DeleteLocation_locationThatRefuses_savesNothing) {
    world.write(LOCATIONS,
                recordFileWithRefusing({locationRow(2, "Lakeside")}, locationRow(1, "Elm Street")));
    load();
    const QList<QByteArray> before = allFiles();
    ASSERT_TRUE(home.GetLocation(1));
    world.prompts.expectError(u"cXMLHandler.Delete"_s, 5);
    EXPECT_FALSE(home.DeleteLocation());
    EXPECT_EQ(allFiles(), before);
}

TEST_F(cLocationDeletesTest, DeleteLocation_manyFloorsAndRooms_leavesNothing) {
    QByteArrayList floors;
    QByteArrayList rooms;
    for (int floor = 1; floor <= 40; ++floor) {
        floors << floorRow(floor, 1);
        for (int room = 1; room <= 25; ++room) {
            rooms << roomRow(100 * floor + room, 1, floor);
        }
    }
    world.write(FLOORS, recordFile(floors));
    world.write(ROOMS, recordFile(rooms));
    load();
    ASSERT_TRUE(home.GetLocation(1));
    EXPECT_TRUE(home.DeleteLocation());
    EXPECT_TRUE(stored(FLOORS).isEmpty());
    EXPECT_TRUE(stored(ROOMS).isEmpty());
    EXPECT_EQ(home.oXMLFloors->RecordCount, 0);
    EXPECT_EQ(home.oXMLRooms->RecordCount, 0);
}

TEST_F(cLocationDeletesTest, DeleteFloor_takesItsRoomsAndSavesRoomsAndFloors) {
    ASSERT_TRUE(home.GetLocation(1));
    const QByteArray locations = world.read(LOCATIONS);
    EXPECT_TRUE(home.DeleteFloor(1));
    EXPECT_EQ(stored(FLOORS), (QByteArrayList{floorRow(3, 2), floorRow(2, 1)}));
    EXPECT_EQ(stored(ROOMS), (QByteArrayList{roomRow(4, 2, 3), roomRow(2, 1, 2)}));
    EXPECT_EQ(world.read(LOCATIONS), locations);
}

TEST_F(cLocationDeletesTest, DeleteFloor_unknownFloor_isFalseAndWritesNothing) {
    const QList<QByteArray> before = allFiles();
    ASSERT_TRUE(home.GetLocation(1));
    EXPECT_FALSE(home.DeleteFloor(9));
    EXPECT_EQ(allFiles(), before);
}

TEST_F(cLocationDeletesTest, DeleteFloor_ofAnotherLocation_leavesItsRooms) {
    // The rooms are searched by the current location, the floor by its id alone.
    ASSERT_TRUE(home.GetLocation(1));
    EXPECT_TRUE(home.DeleteFloor(3));
    EXPECT_EQ(stored(FLOORS), (QByteArrayList{floorRow(1, 1), floorRow(2, 1)}));
    EXPECT_EQ(stored(ROOMS).size(), 4);
}

TEST_F(cLocationDeletesTest, DeleteFloor_roomThatRefuses_cancelsWithAMessageAndSavesNothing) {
    world.write(ROOMS, recordFileWithRefusing({roomRow(1, 1, 1)}, roomRow(3, 1, 1)));
    load();
    const QList<QByteArray> before = allFiles();
    ASSERT_TRUE(home.GetLocation(1));
    world.prompts.expectError(u"cXMLHandler.Delete"_s, 5);
    world.prompts.expectMessage(u"Delete Floor"_s,
                                u"Unable to delete a room for this floor. Delete of Floor was canceled."_s,
                                MessageIcon::Information);
    EXPECT_FALSE(home.DeleteFloor(1));
    EXPECT_EQ(allFiles(), before);
    EXPECT_TRUE(home.oXMLFloors->Find(u"FLOORID"_s, 1));
    EXPECT_FALSE(home.oXMLRooms->Find(u"ROOMID"_s, 1));
}

TEST_F(cLocationDeletesTest, DeleteFloor_floorThatRefuses_isReportedAndSavesNothing) {
    world.write(FLOORS, recordFileWithRefusing({floorRow(1, 1)}, floorRow(2, 1)));
    load();
    const QList<QByteArray> before = allFiles();
    ASSERT_TRUE(home.GetLocation(1));
    world.prompts.expectError(u"cXMLHandler.Delete"_s, 5);
    EXPECT_FALSE(home.DeleteFloor(2));
    EXPECT_EQ(allFiles(), before);
}

TEST_F(cLocationDeletesTest, deletes_missingRooms_areReportedByTheStore) {
    ASSERT_TRUE(home.GetLocation(1));
    world.remove(ROOMS);
    expectObjectNotSet(u"cXMLHandler.Move First"_s);
    ASSERT_TRUE(home.LoadRooms());
    expectObjectNotSet(u"cXMLHandler.Query"_s);
    world.prompts.expectError(u"cXMLHandler.Save Document"_s, 321);
    EXPECT_TRUE(home.DeleteFloor(1)); // the floor goes all the same
    EXPECT_EQ(stored(FLOORS), (QByteArrayList{floorRow(3, 2), floorRow(2, 1)}));
    EXPECT_FALSE(QFile::exists(world.file(ROOMS)));
}

} // namespace
