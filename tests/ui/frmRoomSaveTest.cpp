#include "ui/RoomEditorTest.h"
#include "ui/frmRoom.h"
#include "ui/widgets/TitleBand.h"

#include <ostream>

using namespace Qt::StringLiterals;
using namespace WindowDriver;

using frmRoomSaveTest = RoomEditorTest;

namespace {

constexpr qint32 kitchen = 1;

/// What is entered as a length, what the file then holds, and what the screen shows.
struct Entered {
    const char* feet;
    const char* inches;
    const char* stored;
    const char* shownFeet;
    const char* shownInches;
};

/// So that a case is named by what is entered, not by where its texts lie.
void PrintTo(const Entered& entered, std::ostream* out) {
    *out << entered.feet << " ft " << entered.inches << " in";
}

constexpr Entered enteredLengths[] = {
    {"10", "6", "126", "10", "6"},  {"0", "0", "120", "10", "0"},        {"", "", "120", "10", "0"},
    {"ten", "30", "30", "2", "6"},  {"ten", "six", "120", "10", "0"},    {"-5", "6", "120", "10", "0"},
    {"", "6.5", "6.5", "0", "6"},   {"10", "7.5", "127.5", "10", "8"},   {"1.5", "", "18", "1", "6"},
    {"12", "36", "180", "15", "0"}, {"1,000", "", "12000", "1000", "0"},
};

} // namespace

class frmRoomLengthTest : public RoomEditorTest, public testing::WithParamInterface<Entered> {};

TEST_P(frmRoomLengthTest, lengthAndWidth_areStoredAsEnteredAndShownInWholeInches) {
    const Entered& entered = GetParam();
    // What the save puts on the screen in place of what was entered counts as a change.
    const bool rewritten = QLatin1String(entered.feet) != QLatin1String(entered.shownFeet) ||
                           QLatin1String(entered.inches) != QLatin1String(entered.shownInches);
    open(kitchen, [&](QWidget& window) {
        enter(window, "txtLengthFt", QString::fromLatin1(entered.feet));
        enter(window, "txtLengthIn", QString::fromLatin1(entered.inches));
        enter(window, "txtWidthFt", QString::fromLatin1(entered.feet));
        enter(window, "txtWidthIn", QString::fromLatin1(entered.inches));
        click(window, "cmdOK");
        EXPECT_EQ(text(window, "txtLengthFt"), QString::fromLatin1(entered.shownFeet));
        EXPECT_EQ(text(window, "txtLengthIn"), QString::fromLatin1(entered.shownInches));
        EXPECT_EQ(text(window, "txtWidthFt"), QString::fromLatin1(entered.shownFeet));
        EXPECT_EQ(text(window, "txtWidthIn"), QString::fromLatin1(entered.shownInches));
        EXPECT_EQ(enabled(window, "cmdOK"), rewritten);
        if (rewritten) {
            expectCloseQuestion(MessageAnswer::No);
        }
    });
    EXPECT_EQ(stored(kitchen, "LENGTH"), QString::fromLatin1(entered.stored));
    EXPECT_EQ(stored(kitchen, "WIDTH"), QString::fromLatin1(entered.stored));
}

INSTANTIATE_TEST_SUITE_P(Lengths, frmRoomLengthTest, testing::ValuesIn(enteredLengths));

TEST_F(frmRoomSaveTest, fractionInTheUsersOwnNotation_isUnderstood) {
    world_.setLocale(QLocale(QLocale::German, QLocale::Germany));
    openHome();
    open(kitchen, [this](QWidget& window) {
        enter(window, "txtLengthFt", u"10"_s);
        enter(window, "txtLengthIn", u"6,5"_s);
        click(window, "cmdOK");
        expectCloseQuestion(MessageAnswer::No);
    });
    EXPECT_EQ(stored(kitchen, "LENGTH"), u"126,5"_s);
}

TEST_F(frmRoomSaveTest, openRoom_showsTheStoredFacts) {
    open(kitchen, [](QWidget& window) {
        EXPECT_EQ(control<TitleBand>(window, "vsTop").text(), u"Kitchen"_s);
        EXPECT_EQ(text(window, "txtDescription"), u"Kitchen"_s);
        EXPECT_EQ(chosen(window, "cboRoomType"), u"Kitchen"_s);
        EXPECT_EQ(chosen(window, "cboFloors"), u"First Floor"_s);
        EXPECT_EQ(chosen(window, "cboLocation"), u"South-East"_s);
        EXPECT_EQ(chosen(window, "cboFlooring"), u"Tile"_s);
        EXPECT_EQ(text(window, "txtLengthFt"), u"13"_s);
        EXPECT_EQ(text(window, "txtLengthIn"), u"0"_s);
        EXPECT_EQ(text(window, "txtWidthFt"), u"14"_s);
        EXPECT_EQ(text(window, "txtWidthIn"), u"0"_s);
        EXPECT_FALSE(checked(window, "chkLowCeiling"));
    });
}

TEST_F(frmRoomSaveTest, openRoom_enablesSaveAndStillClosesWithoutAQuestion) {
    const QByteArray before = world_.read(u"Rooms.xml"_s);
    EXPECT_FALSE(open(kitchen, [](QWidget& window) {
        EXPECT_EQ(control<QPushButton>(window, "cmdOK").text(), u"&Save"_s);
        EXPECT_TRUE(enabled(window, "cmdOK"));
        click(window, "cmdCancel");
    }));
    EXPECT_EQ(world_.read(u"Rooms.xml"_s), before);
}

TEST_F(frmRoomSaveTest, everyControl_enablesSaveAndSetsTheQuestion) {
    const std::pair<const char*, QString> texts[] = {
        {"txtDescription", u"Galley"_s}, {"txtLengthFt", u"11"_s},
        {"txtLengthIn", u"1"_s},         {"txtWidthFt", u"12"_s},
        {"txtWidthIn", u"2"_s},          {"cboRoomType", u"Closet"_s},
        {"cboFloors", u"Second"_s},      {"cboLocation", u"West"_s},
        {"cboFlooring", u"Wood"_s},      {"chkEntrance", {}},
        {"chkExposedBeams", {}},         {"chkLowCeiling", {}}};
    for (const auto& [name, value] : texts) {
        open(kitchen, [&](QWidget& window) {
            click(window, "cmdOK");
            EXPECT_FALSE(enabled(window, "cmdOK")) << name;
            if (name[0] == 't') {
                type(window, name, value);
            } else if (value.isEmpty()) {
                check(window, name);
            } else {
                pick(window, name, value);
            }
            EXPECT_TRUE(enabled(window, "cmdOK")) << name;
            expectCloseQuestion(MessageAnswer::No);
            click(window, "cmdCancel");
            EXPECT_TRUE(world_.prompts.isSatisfied()) << name;
        });
    }
}

TEST_F(frmRoomSaveTest, save_changesThisRoomOnly) {
    const QList<Row> before = storedRooms();
    EXPECT_TRUE(open(kitchen, [](QWidget& window) {
        type(window, "txtDescription", u"Galley"_s);
        pick(window, "cboFlooring", u"Stone"_s);
        check(window, "chkExposedBeams");
        click(window, "cmdOK");
        EXPECT_EQ(control<TitleBand>(window, "vsTop").text(), u"Galley"_s);
    }));
    QList<Row> expected = before;
    expected[0][u"DESCRIPTION"_s] = u"Galley"_s;
    expected[0][u"FLOORTYPEID"_s] = u"3"_s;
    expected[0][u"HASEXPOSEDBEAMS"_s] = u"True"_s;
    EXPECT_TRUE(storedRooms() == expected);
}

TEST_F(frmRoomSaveTest, saveByItsKey_leavesTheFocusOnCloseAndNotOnTheButtonThatPrints) {
    EXPECT_TRUE(open(kitchen, [](QWidget& window) {
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        type(window, "txtDescription", u"Galley"_s);
        control(window, "cmdOK").setFocus();
        QTest::keyClick(&control(window, "cmdOK"), Qt::Key_Space);
        EXPECT_FALSE(enabled(window, "cmdOK"));
        EXPECT_TRUE(control(window, "cmdCancel").hasFocus());
    }));
}

TEST_F(frmRoomSaveTest, save_leavesTheCurrentHomesOwnRoomsAlone) {
    open(kitchen, [](QWidget& window) {
        type(window, "txtDescription", u"Galley"_s);
        click(window, "cmdOK");
    });
    cXMLHandler& rooms = *Global::CurrentLocation->oXMLRooms;
    ASSERT_TRUE(rooms.Find(u"ROOMID"_s, kitchen));
    EXPECT_EQ(rooms.GetAttribute(u"DESCRIPTION"_s), u"Kitchen"_s);
}

TEST_F(frmRoomSaveTest, savedRoomThatLosesItsDescription_becomesUnknown) {
    open(kitchen, [this](QWidget& window) {
        enter(window, "txtDescription", {});
        choose(window, "mnuFile", "mnuFileSave");
        EXPECT_EQ(text(window, "txtDescription"), u"Unknown"_s);
        expectCloseQuestion(MessageAnswer::No); // the word on the screen counts as a change
    });
    EXPECT_EQ(stored(kitchen, "DESCRIPTION"), u"Unknown"_s);
}

TEST_F(frmRoomSaveTest, hostileDescriptions_areStoredWholeAndShownAsText) {
    const QString hostile[] = {
        u"<script>alert(1)</script> & \"q\" 'a' ]]> &amp; <b>x</b>"_s,
        u"\u5bb6 \u00fc\u00f1\u00ef \U0001F3E0 e\u0301 \u202e"_s,
        u"//z:row[@ROOMID = '1'] %1 %n \\ \\n"_s,
        QString(40000, u'w'),
        u"   "_s,
    };
    for (const QString& description : hostile) {
        open(kitchen, [&](QWidget& window) {
            enter(window, "txtDescription", description);
            click(window, "cmdOK");
            EXPECT_EQ(text(window, "txtDescription"), description);
            EXPECT_EQ(control<TitleBand>(window, "vsTop").text(), description);
            EXPECT_LE(window.width(), 1100);
        });
        EXPECT_EQ(stored(kitchen, "DESCRIPTION"), description);
    }
}

TEST_F(frmRoomSaveTest, closeAnsweredWithYes_savesAndWithNo_doesNot) {
    for (const MessageAnswer answer : {MessageAnswer::No, MessageAnswer::Yes}) {
        expectCloseQuestion(answer);
        const bool saved = open(kitchen, [](QWidget& window) {
            type(window, "txtDescription", u"Galley"_s);
            choose(window, "mnuFile", "mnuFileClose");
            EXPECT_FALSE(window.isVisible());
        });
        EXPECT_EQ(saved, answer == MessageAnswer::Yes);
        EXPECT_EQ(stored(kitchen, "DESCRIPTION"), saved ? u"Galley"_s : u"Kitchen"_s);
    }
}

TEST_F(frmRoomSaveTest, closeAndSave_ofNumbersThatTheSaveRewrites_asksOnce) {
    EXPECT_TRUE(open(kitchen, [this](QWidget& window) {
        enter(window, "txtLengthIn", u"30"_s);
        expectCloseQuestion(MessageAnswer::Yes);
        click(window, "cmdCancel");
    }));
    EXPECT_EQ(stored(kitchen, "LENGTH"), u"186"_s);
}

TEST_F(frmRoomSaveTest, roomThatIsGone_keepsTheChangesAndAsksTwice) {
    const QByteArray before = world_.read(u"Rooms.xml"_s);
    EXPECT_FALSE(open(999, [this](QWidget& window) {
        EXPECT_EQ(text(window, "txtDescription"), QString());
        type(window, "txtDescription", u"Ghost"_s);
        click(window, "cmdOK"); // a refused update shows nothing
        EXPECT_TRUE(enabled(window, "cmdOK"));
        expectCloseQuestion(MessageAnswer::Yes);
        expectCloseQuestion(MessageAnswer::No);
        click(window, "cmdCancel");
    }));
    EXPECT_EQ(world_.read(u"Rooms.xml"_s), before);
}

TEST_F(frmRoomSaveTest, secondYesAfterARefusedSave_comesTooLateForTheRoom) {
    open(999, [this](QWidget& window) {
        type(window, "txtDescription", u"Ghost"_s);
        expectCloseQuestion(MessageAnswer::Yes);
        expectCloseQuestion(MessageAnswer::Yes);
        const QString missing = u"Object variable or With block variable not set"_s;
        world_.prompts.expectError(u"frmRoom.LoadRoomFromScreen"_s, 91, missing);
        world_.prompts.expectError(u"frmRoom.mnuFileSave_Click"_s, 91, missing);
        click(window, "cmdCancel");
    });
    EXPECT_TRUE(world_.prompts.isSatisfied());
}

TEST_F(frmRoomSaveTest, sizeBeyondAllBounds_isReportedAndTheSizeStays) {
    open(kitchen, [this](QWidget& window) {
        enter(window, "txtLengthFt", u"1e39"_s);
        world_.prompts.expectError(u"frmRoom.LoadRoomFromScreen"_s, 6, u"Overflow"_s);
        click(window, "cmdOK");
        EXPECT_EQ(text(window, "txtLengthFt"), u"13"_s);
        expectCloseQuestion(MessageAnswer::No);
    });
    EXPECT_EQ(stored(kitchen, "LENGTH"), u"156"_s);
}

TEST_F(frmRoomSaveTest, damagedRow_isReportedAndCanBeMendedByASave) {
    damageKitchen("WIDTH=\"168\"", "WIDTH=\"wide\"");
    world_.prompts.expectError(u"cRoom.Get Room"_s, 13, u"Type mismatch"_s);
    world_.prompts.expectError(u"cRoom.Get Room"_s, 13, u"Type mismatch"_s); // once more for the advice
    open(kitchen, [this](QWidget& window) {
        EXPECT_EQ(text(window, "txtDescription"), u"Kitchen"_s);
        EXPECT_EQ(text(window, "txtLengthFt"), u"13"_s);
        EXPECT_EQ(text(window, "txtWidthFt"), u"0"_s);
        EXPECT_EQ(control<QComboBox>(window, "cboLocation").currentIndex(), -1);
        type(window, "txtWidthFt", u"14"_s);
        pick(window, "cboLocation", u"South-E"_s);
        click(window, "cmdOK");
        EXPECT_TRUE(world_.prompts.isSatisfied());
    });
    EXPECT_EQ(stored(kitchen, "WIDTH"), u"168"_s);
    EXPECT_EQ(stored(kitchen, "RELATIVEDIRECTION"), u"4"_s);
}

TEST_F(frmRoomSaveTest, unwritableFile_isReportedByTheStore) {
    open(kitchen, [this](QWidget& window) {
        type(window, "txtDescription", u"Galley"_s);
        world_.remove(u"Rooms.xml"_s);
        ASSERT_TRUE(QDir(world_.folder()).mkdir(u"Rooms.xml"_s));
        world_.prompts.expectError(u"cXMLHandler.Save Document"_s, 75);
        // The advice reads the file anew.
        world_.prompts.expectError(u"cXMLHandler.Move First"_s, 91);
        world_.prompts.expectError(u"cXMLHandler.Find"_s, 91);
        click(window, "cmdOK");
    });
}

TEST_F(frmRoomSaveTest, newRoom_whereTheRoomsCouldNotBeRead_staysUnsavedAndLeavesTheFileAlone) {
    const QByteArray damaged = world_.read(u"Rooms.xml"_s).chopped(40);
    world_.write(u"Rooms.xml"_s, damaged);
    for (const auto& report : {u"Move First"_s, u"Get Max"_s, u"Add New"_s, u"Save Document"_s,
                               u"Move First"_s, u"Find"_s}) { // the last two by the advice
        world_.prompts.expectError(u"cXMLHandler."_s + report, report == u"Save Document"_s ? 321 : 91);
    }
    expectCloseQuestion(MessageAnswer::No);
    EXPECT_FALSE(create(1, [this](QWidget& window) {
        type(window, "txtDescription", u"Nook"_s);
        for (const char* size : {"txtLengthFt", "txtLengthIn", "txtWidthFt", "txtWidthIn"}) {
            type(window, size, u"9"_s); // or the sizes that a room gets by default would count as a change
        }
        click(window, "cmdOK");
        EXPECT_TRUE(enabled(window, "cmdOK"));
        EXPECT_EQ(text(window, "txtDescription"), u"Nook"_s);
    }));
    EXPECT_EQ(world_.read(u"Rooms.xml"_s), damaged);
}
