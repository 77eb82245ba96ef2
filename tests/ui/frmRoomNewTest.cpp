#include "ui/RoomEditorTest.h"
#include "ui/frmRoom.h"
#include "ui/widgets/TitleBand.h"

using namespace Qt::StringLiterals;
using namespace WindowDriver;

using frmRoomNewTest = RoomEditorTest;

namespace {

constexpr qint32 secondFloor = 2;

} // namespace

TEST_F(frmRoomNewTest, newRoom_showsAnEmptyFormOnTheFloorThatWasGiven) {
    expectCloseQuestion(MessageAnswer::No);
    create(secondFloor, [](QWidget& window) {
        EXPECT_EQ(control<TitleBand>(window, "vsTop").caption(), QString());
        for (const char* name :
             {"txtDescription", "txtLengthFt", "txtLengthIn", "txtWidthFt", "txtWidthIn"}) {
            EXPECT_EQ(text(window, name), QString()) << name;
        }
        for (const char* name : {"cboRoomType", "cboLocation", "cboFlooring"}) {
            EXPECT_EQ(control<QComboBox>(window, name).currentIndex(), -1) << name;
        }
        for (const char* name : {"chkLowCeiling", "chkExposedBeams", "chkEntrance"}) {
            EXPECT_FALSE(checked(window, name)) << name;
        }
        EXPECT_EQ(control<QComboBox>(window, "cboFloors").currentData().toInt(), secondFloor);
        EXPECT_EQ(control<QPushButton>(window, "cmdOK").text(), u"Finish"_s);
        EXPECT_EQ(control<QPushButton>(window, "cmdOK").accessibleName(), u"Finish"_s);
        EXPECT_FALSE(enabled(window, "cmdOK"));
    });
}

TEST_F(frmRoomNewTest, finish_storesEveryFactAsEntered) {
    const qsizetype before = storedRooms().size();
    bool saved = create(secondFloor, [](QWidget& window) {
        type(window, "txtDescription", u"Guest Room"_s);
        pick(window, "cboRoomType", u"Kit"_s);
        pick(window, "cboLocation", u"North-W"_s);
        pick(window, "cboFlooring", u"Wood"_s);
        type(window, "txtLengthFt", u"10"_s);
        type(window, "txtLengthIn", u"6"_s);
        type(window, "txtWidthFt", u"9"_s);
        type(window, "txtWidthIn", u"3"_s);
        check(window, "chkLowCeiling");
        check(window, "chkEntrance");
        EXPECT_TRUE(enabled(window, "cmdOK"));
        click(window, "cmdOK");
        EXPECT_EQ(text(window, "txtLengthFt"), u"10"_s);
        EXPECT_EQ(text(window, "txtLengthIn"), u"6"_s);
    });
    EXPECT_TRUE(saved);
    const QList<Row> rooms = storedRooms();
    ASSERT_EQ(rooms.size(), before + 1);
    const Row expected{{u"ROOMID"_s, QString::number(before + 1)},
                       {u"LOCATIONID"_s, u"1"_s},
                       {u"FLOORID"_s, u"2"_s},
                       {u"ROOMTYPEID"_s, u"6"_s},
                       {u"FLOORTYPEID"_s, u"2"_s},
                       {u"DESCRIPTION"_s, u"Guest Room"_s},
                       {u"TOP"_s, u"0"_s},
                       {u"LEFT"_s, u"0"_s},
                       {u"LENGTH"_s, u"126"_s},
                       {u"WIDTH"_s, u"111"_s},
                       {u"RELATIVEDIRECTION"_s, u"6"_s},
                       {u"HASENTRANCE"_s, u"True"_s},
                       {u"HASEXPOSEDBEAMS"_s, u"False"_s},
                       {u"HASLOWCEILING"_s, u"True"_s}};
    EXPECT_EQ(rooms.last().toStdMap(), expected.toStdMap());
}

TEST_F(frmRoomNewTest, newRoomWithADescriptionOnly_isStoredWithTheDefaults) {
    create(1, [this](QWidget& window) {
        type(window, "txtDescription", u"Nook"_s);
        click(window, "cmdOK");
        const Row room = storedRooms().last();
        EXPECT_EQ(room.value(u"DESCRIPTION"_s), u"Nook"_s);
        EXPECT_EQ(room.value(u"ROOMTYPEID"_s), u"1"_s);
        EXPECT_EQ(room.value(u"FLOORID"_s), u"1"_s);
        EXPECT_EQ(room.value(u"RELATIVEDIRECTION"_s), u"5"_s);
        EXPECT_EQ(room.value(u"FLOORTYPEID"_s), u"1"_s);
        EXPECT_EQ(room.value(u"LENGTH"_s), u"120"_s);
        EXPECT_EQ(room.value(u"WIDTH"_s), u"120"_s);
        // The first save puts the defaults on the screen, which counts as a change.
        EXPECT_EQ(chosen(window, "cboLocation"), u"Center"_s);
        EXPECT_EQ(text(window, "txtWidthFt"), u"10"_s);
        expectCloseQuestion(MessageAnswer::No);
    });
}

TEST_F(frmRoomNewTest, newRoomWithoutADescription_cannotBeSaved) {
    const QByteArray before = world_.read(u"Rooms.xml"_s);
    const bool saved = create(1, [this](QWidget& window) {
        pick(window, "cboRoomType", u"Kit"_s);
        expectMissingDescription();
        click(window, "cmdOK");
        EXPECT_TRUE(world_.prompts.isSatisfied());
        EXPECT_EQ(window.focusWidget(), &control(window, "txtDescription"));
        EXPECT_EQ(control<QPushButton>(window, "cmdOK").text(), u"Finish"_s);
        EXPECT_TRUE(enabled(window, "cmdOK"));
        EXPECT_TRUE(window.isVisible());
        expectCloseQuestion(MessageAnswer::No);
        click(window, "cmdCancel");
    });
    EXPECT_FALSE(saved);
    EXPECT_EQ(world_.read(u"Rooms.xml"_s), before);
}

TEST_F(frmRoomNewTest, savingANewRoomTwice_insertsOnceAndUpdatesOnce) {
    const qsizetype before = storedRooms().size();
    create(1, [&](QWidget& window) {
        enter(window, "txtDescription", u"Den"_s);
        for (const char* name : {"txtLengthFt", "txtWidthFt"}) {
            type(window, name, u"8"_s);
        }
        click(window, "cmdOK");
        ASSERT_EQ(storedRooms().size(), before + 1);
        EXPECT_EQ(control<QPushButton>(window, "cmdOK").text(), u"&Save"_s);
        EXPECT_EQ(control<TitleBand>(window, "vsTop").text(), u"Den"_s);
        enter(window, "txtDescription", u"Snug"_s);
        click(window, "cmdOK");
        ASSERT_EQ(storedRooms().size(), before + 1);
        EXPECT_EQ(storedRooms().last().value(u"DESCRIPTION"_s), u"Snug"_s);
        EXPECT_EQ(control<TitleBand>(window, "vsTop").text(), u"Snug"_s);
        EXPECT_FALSE(enabled(window, "cmdOK"));
    });
}

TEST_F(frmRoomNewTest, firstSave_showsTheAdvice) {
    create(1, [](QWidget& window) {
        auto& preview = control(window, "vpPrint");
        const QImage empty = preview.grab().toImage();
        enter(window, "txtDescription", u"Den"_s);
        pick(window, "cboRoomType", u"Kit"_s);
        pick(window, "cboLocation", u"South"_s);
        pick(window, "cboFlooring", u"Wood"_s);
        for (const char* name : {"txtLengthFt", "txtLengthIn", "txtWidthFt", "txtWidthIn"}) {
            type(window, name, u"9"_s);
        }
        EXPECT_EQ(preview.grab().toImage(), empty);
        click(window, "cmdOK");
        EXPECT_NE(preview.grab().toImage(), empty);
    });
}

TEST_F(frmRoomNewTest, closingANewRoomWithoutAnyChange_stillAsks) {
    expectCloseQuestion(MessageAnswer::No);
    EXPECT_FALSE(create(1, [this](QWidget& window) {
        click(window, "cmdCancel");
        EXPECT_FALSE(window.isVisible());
        EXPECT_TRUE(world_.prompts.isSatisfied());
    }));
}

TEST_F(frmRoomNewTest, closeAnsweredWithYes_savesTheRoom) {
    const qsizetype before = storedRooms().size();
    expectCloseQuestion(MessageAnswer::Yes);
    EXPECT_TRUE(create(1, [](QWidget& window) {
        type(window, "txtDescription", u"Loft"_s);
        pick(window, "cboRoomType", u"Kit"_s);
        pick(window, "cboLocation", u"East"_s);
        pick(window, "cboFlooring", u"Wood"_s);
        for (const char* name : {"txtLengthFt", "txtLengthIn", "txtWidthFt", "txtWidthIn"}) {
            type(window, name, u"7"_s);
        }
        click(window, "cmdCancel");
    }));
    ASSERT_EQ(storedRooms().size(), before + 1);
    EXPECT_EQ(storedRooms().last().value(u"LENGTH"_s), u"91"_s);
}

TEST_F(frmRoomNewTest, refusedSaveDuringClose_asksASecondTime) {
    const qsizetype before = storedRooms().size();
    expectCloseQuestion(MessageAnswer::Yes);
    expectMissingDescription();
    expectCloseQuestion(MessageAnswer::Yes);
    expectMissingDescription();
    EXPECT_FALSE(create(1, [](QWidget& window) { click(window, "cmdCancel"); }));
    EXPECT_EQ(storedRooms().size(), before);
}

TEST_F(frmRoomNewTest, ownCloseBox_asksOnceAndClosesAlsoAfterARefusedSave) {
    expectCloseQuestion(MessageAnswer::Yes);
    expectMissingDescription();
    EXPECT_FALSE(create(1, [this](QWidget& window) {
        window.close();
        EXPECT_FALSE(window.isVisible());
        EXPECT_TRUE(world_.prompts.isSatisfied());
    }));
}

TEST_F(frmRoomNewTest, ownCloseBoxAnsweredWithYes_savesTheRoom) {
    expectCloseQuestion(MessageAnswer::Yes);
    EXPECT_TRUE(create(1, [](QWidget& window) {
        type(window, "txtDescription", u"Pantry"_s);
        window.close();
    }));
    EXPECT_EQ(storedRooms().last().value(u"DESCRIPTION"_s), u"Pantry"_s);
}

TEST_F(frmRoomNewTest, enterPressesFinishAndEscapeCloses) {
    create(1, [this](QWidget& window) {
        type(window, "txtDescription", u"Studio"_s);
        press(window, Qt::Key_Return);
        EXPECT_EQ(storedRooms().last().value(u"DESCRIPTION"_s), u"Studio"_s);
        EXPECT_TRUE(window.isVisible());
        expectCloseQuestion(MessageAnswer::No);
        press(window, Qt::Key_Escape);
        EXPECT_FALSE(window.isVisible());
    });
}

TEST_F(frmRoomNewTest, failedInsert_keepsTheChangesAndTheNextSaveUpdatesNothing) {
    damageKitchen("ROOMID=\"1\"", "ROOMID=\"2147483647\"");
    const QByteArray before = world_.read(u"Rooms.xml"_s);
    EXPECT_FALSE(create(1, [&](QWidget& window) {
        type(window, "txtDescription", u"Annexe"_s);
        world_.prompts.expectError(u"cRoom.Insert Room"_s, 6, u"Overflow"_s);
        click(window, "cmdOK");
        EXPECT_EQ(control<QPushButton>(window, "cmdOK").text(), u"&Save"_s);
        EXPECT_TRUE(enabled(window, "cmdOK"));
        click(window, "cmdOK");
        EXPECT_TRUE(enabled(window, "cmdOK"));
        EXPECT_EQ(text(window, "txtDescription"), u"Annexe"_s);
        expectCloseQuestion(MessageAnswer::No);
        click(window, "cmdCancel");
    }));
    EXPECT_EQ(world_.read(u"Rooms.xml"_s), before);
}

TEST_F(frmRoomNewTest, floorThatIsNotOfThisHome_isKeptForTheRoom) {
    create(77, [this](QWidget& window) {
        EXPECT_EQ(control<QComboBox>(window, "cboFloors").currentIndex(), -1);
        type(window, "txtDescription", u"Cellar"_s);
        click(window, "cmdOK");
        EXPECT_EQ(storedRooms().last().value(u"FLOORID"_s), u"77"_s);
        expectCloseQuestion(MessageAnswer::No);
    });
}
