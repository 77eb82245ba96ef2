#include "locations/cRoom.h"

#include "core/Global.h"
#include "locations/cLocation.h"
#include "support/QtPrinting.h"
#include "support/RecordFiles.h"
#include "support/TestWorld.h"

#include <QDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QString OBJECT_NOT_SET = u"Object variable or With block variable not set"_s;
const QString FILE_NAME = u"Rooms.xml"_s;

/// All fields as texts, in reading order.
QStringList shown(const cRoom& room) {
    const auto flag = [](bool on) { return on ? u"True"_s : u"False"_s; };
    return {QString::number(room.RoomID),
            QString::number(room.LocationID),
            QString::number(room.FLOORID),
            QString::number(room.ROOMTYPEID),
            QString::number(room.FLOORTYPEID),
            room.DESCRIPTION,
            QString::number(static_cast<double>(room.TOP)),
            QString::number(static_cast<double>(room.LEFT)),
            QString::number(static_cast<double>(room.Length)),
            QString::number(static_cast<double>(room.WIDTH)),
            QString::number(room.RelativeDirection),
            flag(room.HasEntrance),
            flag(room.HASEXPOSEDBEAMS),
            flag(room.HASLOWCEILING)};
}

const QStringList ATTRIBUTES = {u"ROOMID"_s,
                                u"LOCATIONID"_s,
                                u"FLOORID"_s,
                                u"ROOMTYPEID"_s,
                                u"FLOORTYPEID"_s,
                                u"DESCRIPTION"_s,
                                u"TOP"_s,
                                u"LEFT"_s,
                                u"LENGTH"_s,
                                u"WIDTH"_s,
                                u"RELATIVEDIRECTION"_s,
                                u"HASENTRANCE"_s,
                                u"HASEXPOSEDBEAMS"_s,
                                u"HASLOWCEILING"_s};

const QStringList FIRST = {u"1"_s,  u"2"_s,    u"3"_s,  u"4"_s, u"1"_s,     u"Den"_s,   u"10"_s,
                           u"20"_s, u"30.5"_s, u"40"_s, u"9"_s, u"False"_s, u"False"_s, u"True"_s};
const QStringList SECOND = {u"2"_s,      u"12"_s,  u"13"_s,  u"6"_s, u"4"_s,    u"Galley"_s, u"110"_s,
                            u"120.25"_s, u"130"_s, u"140"_s, u"1"_s, u"True"_s, u"True"_s,   u"False"_s};

QByteArray row(const QStringList& values) {
    QString text = u"<z:row"_s;
    for (qsizetype i = 0; i < values.size(); ++i) {
        text += u" %1=\"%2\""_s.arg(ATTRIBUTES.at(i), values.at(i));
    }
    return (text + u" />"_s).toUtf8();
}

QStringList with(QStringList values, const QString& attribute, const QString& value) {
    values[ATTRIBUTES.indexOf(attribute)] = value;
    return values;
}

class cRoomTest : public testing::Test {
protected:
    cRoomTest() { store({row(FIRST), row(SECOND)}); }

    void store(const QByteArrayList& rows) const { world.write(FILE_NAME, recordFile(rows)); }
    [[nodiscard]] QByteArrayList stored() const { return recordLines(world.read(FILE_NAME)); }

    /// A room with the fields of row `id`.
    static void open(cRoom& room, qint32 id) {
        ASSERT_TRUE(room.LoadRooms());
        ASSERT_TRUE(room.GetRoom(id));
    }

    TestWorld world;
};

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

// Insert.

TEST_F(cRoomTest, InsertRoom_emptyFile_getsKeyOneAndWritesTheAttributesInOrder) {
    cRoom room;
    open(room, 2);
    store({});
    ASSERT_TRUE(room.LoadRooms());
    EXPECT_TRUE(room.InsertRoom());
    EXPECT_EQ(room.RoomID, 2); // the new key goes into the store only
    EXPECT_EQ(stored(), QByteArrayList{row(with(SECOND, u"ROOMID"_s, u"1"_s))});
}

TEST_F(cRoomTest, InsertRoom_takesTheHighestKeyOfTheWholeFilePlusOne) {
    store({row(with(FIRST, u"ROOMID"_s, u"41"_s)), row(SECOND)});
    cRoom room;
    open(room, 2);
    EXPECT_TRUE(room.InsertRoom());
    EXPECT_EQ(stored().at(2), row(with(SECOND, u"ROOMID"_s, u"42"_s)));
    EXPECT_TRUE(room.GetRoom(42)); // findable at once
}

TEST_F(cRoomTest, InsertRoom_noSelectedLocation_isStoredAtTheCentre) {
    cRoom room;
    ASSERT_TRUE(room.LoadRooms());
    room.RelativeDirection = 5; // what the editor gives when nothing is selected
    EXPECT_TRUE(room.InsertRoom());
    EXPECT_TRUE(stored().at(2).contains("RELATIVEDIRECTION=\"5\""));
}

TEST_F(cRoomTest, InsertRoom_extents_areSevenDigitNumbersOfTheRegion) {
    cRoom room;
    open(room, 1);
    room.TOP = 12.5F;
    room.LEFT = 0.1F;
    room.Length = 1234.5678F;
    room.WIDTH = -3.0F;
    EXPECT_TRUE(room.InsertRoom());
    EXPECT_TRUE(stored().at(2).contains("TOP=\"12.5\" LEFT=\"0.1\" LENGTH=\"1234.568\" WIDTH=\"-3\""))
        << stored().at(2).toStdString();
    EXPECT_TRUE(room.GetRoom(3));
    EXPECT_EQ(room.LEFT, 0.1F);
    EXPECT_EQ(room.Length, 1234.568F);
}

TEST_F(cRoomTest, InsertRoom_everyLocale_comesBackTheSame) {
    for (const auto& [locale, text] : {std::pair{"en_US", "12.5"},
                                       {"en_GB", "12.5"},
                                       {"de_DE", "12,5"},
                                       {"sv_SE", "12,5"},
                                       {"fr_FR", "12,5"},
                                       {"zh_CN", "12.5"},
                                       {"C", "12.5"}}) {
        world.setLocale(QLocale(QString::fromLatin1(locale)));
        store({});
        cRoom room;
        ASSERT_TRUE(room.LoadRooms());
        room.TOP = 12.5F;
        room.LEFT = -1200.25F;
        EXPECT_TRUE(room.InsertRoom()) << locale;
        EXPECT_TRUE(stored().first().contains("TOP=\"" + QByteArray(text) + "\"")) << locale;
        cRoom fresh;
        open(fresh, 1);
        EXPECT_EQ(fresh.TOP, 12.5F) << locale;
        EXPECT_EQ(fresh.LEFT, -1200.25F) << locale;
    }
}

TEST_F(cRoomTest, LoadRooms_fileOfTheOtherDecimalSymbol_readsTheSameThereAndBack) {
    cRoom room;
    open(room, 1);
    ASSERT_EQ(room.Length, 30.5F);
    const QByteArrayList before = stored();
    for (const char* name : {"de_DE", "fr_FR", "sv_SE"}) {
        world.setLocale(QLocale(QString::fromLatin1(name)));
        open(room, 1);
        EXPECT_EQ(room.Length, 30.5F) << name;
        EXPECT_TRUE(stored().first().contains("LENGTH=\"30,5\"")) << name;
    }
    world.setLocale(QLocale(QLocale::English, QLocale::UnitedStates));
    open(room, 2);
    EXPECT_EQ(room.LEFT, 120.25F);
    EXPECT_EQ(stored(), before);
}

TEST_F(cRoomTest, InsertRoom_nameOfAnyScript_survivesTheFile) {
    const QStringList names = {
        u"Mum & Dad's \"den\" <upstairs>"_s, u"厨房"_s,           u"חדר שינה"_s, u"غرفة النوم"_s,
        u"two\r\nlines\n\tand a tab"_s,      u"\U0001F6CF bed"_s, u" blanks "_s, QString()};
    for (const QString& name : names) {
        cRoom room;
        open(room, 1);
        room.DESCRIPTION = name;
        ASSERT_TRUE(room.InsertRoom());
        const qint32 id = *room.oXMLRooms->GetMax(u"ROOMID"_s);
        cRoom fresh;
        open(fresh, id);
        EXPECT_EQ(fresh.DESCRIPTION, name);
    }
    EXPECT_EQ(stored().size(), 2 + names.size());
}

// Update and delete.

TEST_F(cRoomTest, UpdateRoom_storedRoom_rewritesItInPlace) {
    cRoom room;
    open(room, 2);
    room.RoomID = 1;
    EXPECT_TRUE(room.UpdateRoom());
    EXPECT_EQ(stored(), (QByteArrayList{row(with(SECOND, u"ROOMID"_s, u"1"_s)), row(SECOND)}));
}

TEST_F(cRoomTest, UpdateRoom_recordWithoutFields_getsThemInTheOrderOfWriting) {
    cRoom room;
    open(room, 2);
    store({"<z:row ROOMID='2'/>"});
    ASSERT_TRUE(room.LoadRooms());
    EXPECT_TRUE(room.UpdateRoom());
    EXPECT_EQ(stored(), QByteArrayList{row(SECOND)});
}

TEST_F(cRoomTest, UpdateRoom_unknownRoom_isFalseAndWritesNothing) {
    const QByteArray before = world.read(FILE_NAME);
    cRoom room;
    open(room, 2);
    room.RoomID = 3;
    EXPECT_FALSE(room.UpdateRoom());
    EXPECT_EQ(world.read(FILE_NAME), before);
}

TEST_F(cRoomTest, UpdateRoom_fileThatCannotBeWritten_isReportedAndKeptInMemory) {
    cRoom room;
    open(room, 2);
    world.remove(FILE_NAME);
    ASSERT_TRUE(QDir().mkdir(world.file(FILE_NAME)));
    room.DESCRIPTION = u"Pantry"_s;
    world.prompts.expectError(u"cXMLHandler.Save Document"_s, 75, u"Path/File access error"_s);
    EXPECT_TRUE(room.UpdateRoom());
    EXPECT_EQ(room.oXMLRooms->GetAttribute(u"DESCRIPTION"_s), u"Pantry");
}

TEST_F(cRoomTest, DeleteRoom_storedRoom_goesFromTheFile) {
    cRoom room;
    open(room, 1);
    EXPECT_TRUE(room.DeleteRoom());
    EXPECT_EQ(stored(), QByteArrayList{row(SECOND)});
    EXPECT_FALSE(room.DeleteRoom());
    room.RoomID = 2;
    EXPECT_TRUE(room.DeleteRoom());
    EXPECT_TRUE(stored().isEmpty());
}

TEST_F(cRoomTest, DeleteRoom_rowThatRefuses_isReportedAndSavesNothing) {
    QByteArray content = recordFile({row(FIRST)});
    content.replace("</xml>", "<rs:more>" + row(SECOND) + "</rs:more></xml>");
    world.write(FILE_NAME, content);
    cRoom room;
    open(room, 2);
    world.prompts.expectError(u"cXMLHandler.Delete"_s, 5);
    EXPECT_FALSE(room.DeleteRoom());
    EXPECT_EQ(world.read(FILE_NAME), content);
}

// The lists of the editor.

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
