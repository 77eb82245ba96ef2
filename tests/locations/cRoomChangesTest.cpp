#include "RoomFixture.h"

using namespace Qt::StringLiterals;

namespace {

class cRoomChangesTest : public RoomFixture {};

// Insert.

TEST_F(cRoomChangesTest, InsertRoom_emptyFile_getsKeyOneAndWritesTheAttributesInOrder) {
    cRoom room;
    open(room, 2);
    store({});
    ASSERT_TRUE(room.LoadRooms());
    EXPECT_TRUE(room.InsertRoom());
    EXPECT_EQ(room.RoomID, 2); // the new key goes into the store only
    EXPECT_EQ(stored(), QByteArrayList{row(with(SECOND, u"ROOMID"_s, u"1"_s))});
}

TEST_F(cRoomChangesTest, InsertRoom_takesTheHighestKeyOfTheWholeFilePlusOne) {
    store({row(with(FIRST, u"ROOMID"_s, u"41"_s)), row(SECOND)});
    cRoom room;
    open(room, 2);
    EXPECT_TRUE(room.InsertRoom());
    EXPECT_EQ(stored().at(2), row(with(SECOND, u"ROOMID"_s, u"42"_s)));
    EXPECT_TRUE(room.GetRoom(42)); // findable at once
}

TEST_F(cRoomChangesTest, InsertRoom_noSelectedLocation_isStoredAtTheCentre) {
    cRoom room;
    ASSERT_TRUE(room.LoadRooms());
    room.RelativeDirection = 5; // what the editor gives when nothing is selected
    EXPECT_TRUE(room.InsertRoom());
    EXPECT_TRUE(stored().at(2).contains("RELATIVEDIRECTION=\"5\""));
}

TEST_F(cRoomChangesTest, InsertRoom_extents_areSevenDigitNumbersOfTheRegion) {
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

TEST_F(cRoomChangesTest, InsertRoom_everyLocale_comesBackTheSame) {
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

TEST_F(cRoomChangesTest, LoadRooms_fileOfTheOtherDecimalSymbol_readsTheSameThereAndBack) {
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

TEST_F(cRoomChangesTest, InsertRoom_nameOfAnyScript_survivesTheFile) {
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

TEST_F(cRoomChangesTest, UpdateRoom_storedRoom_rewritesItInPlace) {
    cRoom room;
    open(room, 2);
    room.RoomID = 1;
    EXPECT_TRUE(room.UpdateRoom());
    EXPECT_EQ(stored(), (QByteArrayList{row(with(SECOND, u"ROOMID"_s, u"1"_s)), row(SECOND)}));
}

TEST_F(cRoomChangesTest, UpdateRoom_recordWithoutFields_getsThemInTheOrderOfWriting) {
    cRoom room;
    open(room, 2);
    store({"<z:row ROOMID='2'/>"});
    ASSERT_TRUE(room.LoadRooms());
    EXPECT_TRUE(room.UpdateRoom());
    EXPECT_EQ(stored(), QByteArrayList{row(SECOND)});
}

TEST_F(cRoomChangesTest, UpdateRoom_unknownRoom_isFalseAndWritesNothing) {
    const QByteArray before = world.read(FILE_NAME);
    cRoom room;
    open(room, 2);
    room.RoomID = 3;
    EXPECT_FALSE(room.UpdateRoom());
    EXPECT_EQ(world.read(FILE_NAME), before);
}

TEST_F(cRoomChangesTest, UpdateRoom_fileThatCannotBeWritten_isReportedAndKeptInMemory) {
    cRoom room;
    open(room, 2);
    world.remove(FILE_NAME);
    ASSERT_TRUE(QDir().mkdir(world.file(FILE_NAME)));
    room.DESCRIPTION = u"Pantry"_s;
    world.prompts.expectError(u"cXMLHandler.Save Document"_s, 75, u"Path/File access error"_s);
    EXPECT_TRUE(room.UpdateRoom());
    EXPECT_EQ(room.oXMLRooms->GetAttribute(u"DESCRIPTION"_s), u"Pantry");
}

TEST_F(cRoomChangesTest, DeleteRoom_storedRoom_goesFromTheFile) {
    cRoom room;
    open(room, 1);
    EXPECT_TRUE(room.DeleteRoom());
    EXPECT_EQ(stored(), QByteArrayList{row(SECOND)});
    EXPECT_FALSE(room.DeleteRoom());
    room.RoomID = 2;
    EXPECT_TRUE(room.DeleteRoom());
    EXPECT_TRUE(stored().isEmpty());
}

TEST_F(cRoomChangesTest, DeleteRoom_rowThatRefuses_isReportedAndSavesNothing) {
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

} // namespace
