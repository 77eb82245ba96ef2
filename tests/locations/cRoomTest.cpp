#include "RoomFixture.h"
#include "locations/cLocation.h"

using namespace Qt::StringLiterals;

namespace {

class cRoomTest : public RoomFixture {};

TEST_F(cRoomTest, creation_touchesNoFileAndHasNoFeatures) {
    for (const QString& name : QDir(world.folder()).entryList(QDir::Files)) {
        world.remove(name);
    }
    const cRoom room;
    EXPECT_EQ(room.oXMLRooms, nullptr);
    EXPECT_EQ(shown(room), (QStringList{u"0"_s, u"0"_s, u"0"_s, u"0"_s, u"0"_s, QString(), u"0"_s, u"0"_s,
                                        u"0"_s, u"0"_s, u"0"_s, u"False"_s, u"False"_s, u"False"_s}));
}

// GetRoom.

TEST_F(cRoomTest, GetRoom_storedId_fillsAllFields) {
    cRoom room;
    ASSERT_TRUE(room.LoadRooms());
    EXPECT_TRUE(room.GetRoom(2));
    EXPECT_EQ(shown(room), SECOND);
    EXPECT_TRUE(room.GetRoom(1));
    EXPECT_EQ(shown(room), FIRST);
}

TEST_F(cRoomTest, GetRoom_unknownId_isFalseAndLeavesTheFields) {
    cRoom room;
    open(room, 1);
    EXPECT_FALSE(room.GetRoom(3));
    EXPECT_FALSE(room.GetRoom(0));
    EXPECT_EQ(shown(room), FIRST);
}

TEST_F(cRoomTest, GetRoom_emptyFile_isFalse) {
    store({});
    cRoom room;
    ASSERT_TRUE(room.LoadRooms());
    EXPECT_FALSE(room.GetRoom(1));
    EXPECT_FALSE(room.UpdateRoom());
    EXPECT_FALSE(room.DeleteRoom());
}

TEST_F(cRoomTest, GetRoom_noNumberInANumberField_isReportedAndStopsThere) {
    for (const QString& attribute : ATTRIBUTES.sliced(1, 10)) {
        if (attribute == u"DESCRIPTION") {
            continue;
        }
        for (const QString& value : {QString(), u"many"_s}) {
            store({row(FIRST), row(with(SECOND, attribute, value))});
            cRoom room;
            open(room, 1);
            world.prompts.expectError(u"cRoom.Get Room"_s, 13, u"Type mismatch"_s);
            EXPECT_FALSE(room.GetRoom(2)) << qPrintable(attribute);
            const qsizetype stop = ATTRIBUTES.indexOf(attribute);
            EXPECT_EQ(shown(room), SECOND.first(stop) + FIRST.sliced(stop)) << qPrintable(attribute);
        }
    }
}

TEST_F(cRoomTest, GetRoom_wholeNumberOutOfRange_isReportedAsOverflow) {
    store({row(with(FIRST, u"FLOORID"_s, u"2147483648"_s))});
    cRoom room;
    ASSERT_TRUE(room.LoadRooms());
    world.prompts.expectError(u"cRoom.Get Room"_s, 6, u"Overflow"_s);
    EXPECT_FALSE(room.GetRoom(1));
    EXPECT_EQ(room.LocationID, 2);
    EXPECT_EQ(room.FLOORID, 0);
}

TEST_F(cRoomTest, GetRoom_missingNumber_hasNoDefault) {
    store({"<z:row ROOMID='1' LOCATIONID='2' FLOORID='3' ROOMTYPEID='4' FLOORTYPEID='1'/>"});
    cRoom room;
    ASSERT_TRUE(room.LoadRooms());
    room.DESCRIPTION = u"before"_s;
    world.prompts.expectError(u"cRoom.Get Room"_s, 13, u"Type mismatch"_s);
    EXPECT_FALSE(room.GetRoom(1));
    EXPECT_EQ(room.FLOORTYPEID, 1);
    EXPECT_EQ(room.DESCRIPTION, QString()); // a missing text is an empty one
}

TEST_F(cRoomTest, GetRoom_halfNumbers_roundToEven) {
    store({row(with(with(FIRST, u"ROOMTYPEID"_s, u"2.5"_s), u"FLOORTYPEID"_s, u"3.5"_s))});
    cRoom room;
    open(room, 1);
    EXPECT_EQ(room.ROOMTYPEID, 2);
    EXPECT_EQ(room.FLOORTYPEID, 4);
}

TEST_F(cRoomTest, GetRoom_flags_readInEverySpelling) {
    for (const auto& [text, on] : {std::pair{u"True"_s, true},
                                   {u"TRUE"_s, true},
                                   {u"true"_s, true},
                                   {u"Y"_s, true},
                                   {u"y"_s, true},
                                   {u"yes"_s, true},
                                   {u"1"_s, true},
                                   {u"False"_s, false},
                                   {u"false"_s, false},
                                   {u"N"_s, false},
                                   {u"no"_s, false},
                                   {u"0"_s, false}}) {
        store({row(with(FIRST, u"HASENTRANCE"_s, text)), row(with(SECOND, u"HASEXPOSEDBEAMS"_s, text)),
               row(with(with(FIRST, u"ROOMID"_s, u"3"_s), u"HASLOWCEILING"_s, text))});
        cRoom room;
        open(room, 1);
        EXPECT_EQ(room.HasEntrance, on) << qPrintable(text);
        open(room, 2);
        EXPECT_EQ(room.HASEXPOSEDBEAMS, on) << qPrintable(text);
        open(room, 3);
        EXPECT_EQ(room.HASLOWCEILING, on) << qPrintable(text);
    }
}

TEST_F(cRoomTest, GetRoom_flagOfUnknownSpelling_isFalseWithoutAReport) {
    for (const QString& text : {u"maybe"_s, QString(), u"2"_s, u"Wahr"_s, u" True"_s}) {
        store({row(with(with(SECOND, u"HASENTRANCE"_s, text), u"HASEXPOSEDBEAMS"_s, text))});
        cRoom room;
        room.HasEntrance = true;
        open(room, 2);
        EXPECT_FALSE(room.HasEntrance) << qPrintable(text);
        EXPECT_FALSE(room.HASEXPOSEDBEAMS) << qPrintable(text);
    }
}

TEST_F(cRoomTest, GetRoom_missingFile_isReportedByTheStore) {
    world.remove(FILE_NAME);
    cRoom room;
    world.prompts.expectError(u"cXMLHandler.Move First"_s, 91, OBJECT_NOT_SET); // the repair's walk
    EXPECT_TRUE(room.LoadRooms());
    world.prompts.expectError(u"cXMLHandler.Find"_s, 91, OBJECT_NOT_SET);
    EXPECT_FALSE(room.GetRoom(1));
}

TEST_F(cRoomTest, operations_beforeALoad_areReportedUnderTheirOwnLabels) {
    cRoom room;
    for (const QString& label :
         {u"cRoom.Get Room"_s, u"cRoom.Insert Room"_s, u"cRoom.Update Room"_s, u"cRoom.Delete Room"_s}) {
        world.prompts.expectError(label, 91, OBJECT_NOT_SET);
    }
    EXPECT_FALSE(room.GetRoom(1));
    EXPECT_FALSE(room.InsertRoom());
    EXPECT_FALSE(room.UpdateRoom());
    EXPECT_FALSE(room.DeleteRoom());
}

TEST_F(cRoomTest, GetRoom_changeOfAnotherStoreInMemory_isNotSeenBeforeItsSave) {
    cLocation home;
    ASSERT_TRUE(home.LoadRooms());
    ASSERT_TRUE(home.oXMLRooms->Find(u"ROOMID"_s, 1));
    ASSERT_TRUE(home.oXMLRooms->SetAttribute(u"RELATIVEDIRECTION"_s, 4));
    cRoom room;
    open(room, 1);
    EXPECT_EQ(room.RelativeDirection, 9);
    ASSERT_TRUE(home.oXMLRooms->SaveDocument());
    open(room, 1);
    EXPECT_EQ(room.RelativeDirection, 4);
}

TEST_F(cRoomTest, LoadRoomTypes_andLoadFlooring_openTheirFiles) {
    cRoom room;
    EXPECT_TRUE(room.LoadRoomTypes());
    EXPECT_TRUE(room.LoadFlooring());
    EXPECT_EQ(room.oXMLRoomTypes->RecordCount, 13);
    EXPECT_EQ(room.oXMLFloorTypes->RecordCount, 4);
    EXPECT_EQ(room.oXMLRooms, nullptr);
}

TEST_F(cRoomTest, LoadRoomTypes_missingFiles_areSilent) {
    world.remove(u"RoomTypes.xml"_s);
    world.remove(u"FloorTypes.xml"_s);
    cRoom room;
    EXPECT_TRUE(room.LoadRoomTypes());
    EXPECT_TRUE(room.LoadFlooring());
    world.prompts.expectError(u"cXMLHandler.Move First"_s, 91, OBJECT_NOT_SET);
    EXPECT_FALSE(room.oXMLRoomTypes->MoveFirst());
}

} // namespace
