#include "ui/frmRoom.h"

#include "ui/RoomEditorTest.h"
#include "ui/widgets/ColorContrast.h"
#include "ui/widgets/TitleBand.h"

#include <QMenu>

using namespace Qt::StringLiterals;
using namespace WindowDriver;

using frmRoomTest = RoomEditorTest;

namespace {

constexpr qint32 kitchen = 1;

struct Labelled {
    const char* label;
    QString caption;
    const char* field;
    QString toolTip;
};

const QString lengthTip = u"Enter the Length of the room in Feet and Inches"_s;
const QString widthTip = u"Enter the Width of the room in Feet and Inches"_s;

QList<Labelled> labelledFields() {
    return {
        {"lblDescription", u"Description:"_s, "txtDescription", u"Enter a short name for this Room"_s},
        {"lblRoomType", u"What kind of room is this?:"_s, "cboRoomType",
         u"Select a type of room from the List"_s},
        {"lblFloors", u"Select a floor:"_s, "cboFloors", u"Select the floor the room is on"_s},
        {"lblLocation", u"Location:"_s, "cboLocation",
         u"Select the approximate direction the room lies from the center of your home"_s},
        {"lblFlooring", u"Flooring:"_s, "cboFlooring", u"Select the type of floor the room has"_s},
        {"lblLengthFt", u"Feet:"_s, "txtLengthFt", lengthTip},
        {"lblLengthIn", u"Inches:"_s, "txtLengthIn", lengthTip},
        {"lblWidthFt", u"Feet:"_s, "txtWidthFt", widthTip},
        {"lblWidthIn", u"Inches:"_s, "txtWidthIn", widthTip},
    };
}

} // namespace

TEST_F(frmRoomTest, fields_haveTheirLabelsAndToolTips) {
    open(kitchen, [](QWidget& window) {
        for (const Labelled& expected : labelledFields()) {
            const auto& label = control<QLabel>(window, expected.label);
            QWidget& field = control(window, expected.field);
            EXPECT_EQ(label.text(), expected.caption);
            EXPECT_EQ(label.buddy(), &field) << expected.label;
            EXPECT_EQ(field.toolTip(), expected.toolTip);
        }
        EXPECT_EQ(control<QLabel>(window, "lblLength").text(), u"Length:"_s);
        EXPECT_EQ(control<QLabel>(window, "lblWidth").text(), u"Width:"_s);
        EXPECT_EQ(control<QLabel>(window, "lblCheckAll").text(), u"Check All That Apply:"_s);
    });
}

TEST_F(frmRoomTest, checkBoxesAndButtons_haveTheirCaptionsAndToolTips) {
    open(kitchen, [](QWidget& window) {
        const auto expect = [&](const char* name, const QString& caption, const QString& toolTip) {
            const auto& button = control<QAbstractButton>(window, name);
            EXPECT_EQ(button.text(), caption);
            EXPECT_EQ(button.toolTip(), toolTip);
        };
        expect("chkLowCeiling", u"Has a Low Ceiling"_s,
               u"Check here if there is a low ceiling in the room"_s);
        expect("chkExposedBeams", u"Has Exposed Beams"_s,
               u"Check here if the room has any exposed beams or duct work"_s);
        expect("chkEntrance", u"Has Main Entrance"_s,
               u"Check here if the Front or Back door opens into this room"_s);
        expect("cmdOK", u"&Save"_s, u"Click Save to save changes to this room"_s);
        expect("cmdCancel", u"C&lose"_s, u"Click Close to return to the Floorplan"_s);
        expect("cmdPrint", u"&Print"_s, u"Click Print to print a copy of the Feng Shui Analysis"_s);
        expect("cmdCompass", u"&Compass"_s,
               u"Click Compass to see how the room is divided into the compass locations"_s);
    });
}

TEST_F(frmRoomTest, menu_hasItsEntriesInOrder) {
    open(kitchen, [](QWidget& window) {
        const auto& menu = control<QMenu>(window, "mnuFile");
        EXPECT_EQ(menu.title(), u"&File"_s);
        QStringList found;
        for (const QAction* entry : menu.actions()) {
            found << entry->objectName() + u'=' + entry->text();
        }
        EXPECT_EQ(found, (QStringList{u"mnuFileSave=&Save"_s, u"mnuFilePrint=&Print"_s,
                                      u"mnuFileSaveAs=Save as HTML"_s, u"mnuFileSep1="_s,
                                      u"mnuFileClose=&Close"_s}));
    });
}

TEST_F(frmRoomTest, tab_goesDownTheFactsAndThenToTheReport) {
    open(kitchen, [](QWidget& window) {
        QStringList visited;
        for (const QWidget* next : tabOrder(window)) {
            visited << next->objectName();
        }
        EXPECT_EQ(visited.join(u' '), u"txtDescription cboRoomType cboFloors cboLocation cboFlooring "
                                      "txtLengthFt txtLengthIn txtWidthFt txtWidthIn chkLowCeiling "
                                      "chkExposedBeams chkEntrance cmdOK cmdPrint cmdCompass cmdCancel "
                                      "vpPrint cmdMinus cmdPlus cmdPrev cmdNext"_s);
        expectNamedControls(window);
        EXPECT_EQ(window.focusWidget(), &control(window, "txtDescription"));
    });
}

TEST_F(frmRoomTest, buttons_standInOneRowUnderTheFactsAndShareTheirWidth) {
    open(kitchen, [](QWidget& window) {
        const QRect save = control(window, "cmdOK").geometry();
        for (const char* name : {"cmdPrint", "cmdCompass", "cmdCancel"}) {
            const QRect button = control(window, name).geometry();
            EXPECT_EQ(button.top(), save.top()) << name;
            EXPECT_NEAR(button.width(), save.width(), 1) << name;
        }
        const auto bottomOf = [&](const char* name) {
            return control(window, name).mapTo(&window, QPoint(0, control(window, name).height())).y();
        };
        EXPECT_LT(bottomOf("chkEntrance"), bottomOf("cmdOK"));
        EXPECT_EQ(control(window, "txtLengthFt").y(), control(window, "txtLengthIn").y());
    });
}

TEST_F(frmRoomTest, facts_keepTheirWidthWhenTheWindowGrows) {
    open(kitchen, [](QWidget& window) {
        const int facts = control(window, "txtDescription").width();
        const int report = control(window, "vpPrint").width();
        window.resize(window.width() + 200, window.height());
        QCoreApplication::sendPostedEvents();
        EXPECT_EQ(control(window, "txtDescription").width(), facts);
        EXPECT_EQ(control(window, "vpPrint").width(), report + 200);
    });
}

TEST_F(frmRoomTest, lists_showWhatTheFilesHoldInTheirOrder) {
    open(kitchen, [](QWidget& window) {
        const auto entries = [&](const char* name) {
            const auto& list = control<QComboBox>(window, name);
            QStringList all;
            for (int i = 0; i < list.count(); ++i) {
                all << list.itemText(i) + u'=' + list.itemData(i).toString();
            }
            return all;
        };
        EXPECT_EQ(entries("cboRoomType").size(), 13);
        EXPECT_TRUE(entries("cboRoomType").contains(u"Kitchen=6"_s));
        EXPECT_EQ(entries("cboFlooring").size(), 4);
        EXPECT_TRUE(entries("cboFlooring").contains(u"Tile=4"_s));
        EXPECT_EQ(entries("cboLocation").size(), 9);
        EXPECT_TRUE(entries("cboLocation").contains(u"Center=5"_s));
        EXPECT_EQ(entries("cboFloors").at(0), u"First Floor=1"_s);
    });
}

TEST_F(frmRoomTest, cboFloors_offersOnlyTheFloorsOfTheCurrentHome) {
    world_.write(u"Floors.xml"_s, recordFile({R"(<z:row FLOORID="1" LOCATIONID="1" DESCRIPTION="Mine"/>)",
                                              R"(<z:row FLOORID="2" LOCATIONID="2" DESCRIPTION="Theirs"/>)",
                                              R"(<z:row FLOORID="3" LOCATIONID="1" DESCRIPTION="Loft"/>)"}));
    openHome();
    open(kitchen, [](QWidget& window) {
        const auto& floors = control<QComboBox>(window, "cboFloors");
        ASSERT_EQ(floors.count(), 2);
        EXPECT_EQ(floors.itemText(0), u"Mine"_s);
        EXPECT_EQ(floors.itemText(1), u"Loft"_s);
    });
}

TEST_F(frmRoomTest, band_hasThePersonsOwnLightColour) {
    open(kitchen, [](QWidget& window) {
        EXPECT_EQ(control<TitleBand>(window, "vsTop").ground(),
                  ColorContrast::fromStored(Global::CurrentProfile->oColor.LIGHTCOLORVALUE));
    });
}

TEST_F(frmRoomTest, descriptionWithAnAmpersand_showsOneInTheBand) {
    damageKitchen("\"Kitchen\"", "\"Salt &amp; Pepper\"");
    open(kitchen, [](QWidget& window) {
        EXPECT_EQ(control<TitleBand>(window, "vsTop").caption(), u"Salt && Pepper"_s);
        EXPECT_EQ(control<TitleBand>(window, "vsTop").text(), u"Salt & Pepper"_s);
        EXPECT_EQ(text(window, "txtDescription"), u"Salt & Pepper"_s);
    });
}

TEST_F(frmRoomTest, placement_isStoredAtTheEndAndRestoredAtTheNextStart) {
    QRect left;
    open(kitchen, [&](QWidget& window) {
        window.move(0, 30);
        window.resize(window.minimumSizeHint().width(), 590);
        left = window.geometry();
    });
    EXPECT_EQ(world_.settings.text(Global::settingsSection(u"frmRoom"_s), u"Height"_s), u"8850"_s);
    expectCloseQuestion(MessageAnswer::No);
    create(1, [&](QWidget& window) { EXPECT_EQ(window.geometry(), left); });
}

TEST_F(frmRoomTest, fitsAScreenOf1024By700) {
    open(kitchen, [](QWidget& window) {
        EXPECT_LE(window.minimumSizeHint().width(), 1024);
        EXPECT_LE(window.minimumSizeHint().height(), 640);
        window.resize(1024, 660);
        QCoreApplication::sendPostedEvents();
        EXPECT_GE(control(window, "vpPrint").width(), 500);
    });
}

TEST_F(frmRoomTest, withoutAHome_reportsTheFloorsAndShowsTheRest) {
    Global::CurrentLocation.reset();
    world_.prompts.expectError(u"frmRoom.Fill Floors"_s, 91,
                               u"Object variable or With block variable not set"_s);
    open(kitchen, [](QWidget& window) {
        EXPECT_EQ(control<QComboBox>(window, "cboFloors").count(), 0);
        EXPECT_EQ(chosen(window, "cboRoomType"), u"Kitchen"_s);
    });
}

TEST_F(frmRoomTest, listsWithADamagedRow_areReportedUnderTheirOwnLabels) {
    world_.write(u"RoomTypes.xml"_s, recordFile({R"(<z:row ROOMTYPEID="1" ROOMTYPENAME="Bedroom"/>)",
                                                 R"(<z:row ROOMTYPEID="?" ROOMTYPENAME="Attic"/>)"}));
    world_.write(u"FloorTypes.xml"_s, recordFile({R"(<z:row FLOORTYPEID="" FLOORTYPENAME="Sand"/>)"}));
    world_.write(u"Directions.xml"_s, recordFile({R"(<z:row DIRECTIONNAME="North"/>)"}));
    world_.prompts.expectError(u"frmRoom.Fill Room Types"_s, 13, u"Type mismatch"_s);
    world_.prompts.expectError(u"frmRoom.Fill Floor Types"_s, 13, u"Type mismatch"_s);
    world_.prompts.expectError(u"frmRoom.Fill Locations"_s, 13, u"Type mismatch"_s);
    open(kitchen, [](QWidget& window) {
        EXPECT_EQ(control<QComboBox>(window, "cboRoomType").count(), 1);
        EXPECT_EQ(chosen(window, "cboRoomType"), QString());
        EXPECT_EQ(text(window, "txtDescription"), u"Kitchen"_s);
    });
}
