#include "app/RoadSteps.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

const QString mainWindow = u"Feng Shui"_s;

/// Eight rooms on three floors; some stand over others.
const QList<EnteredRoom> rooms{
    {u"Front Hall"_s, 8, 0, 3, 12, 6, 10, 0, false, false, true, {40, 300}},
    {u"Kitchen"_s, 5, 0, 3, 14, 0, 12, 6, false, true, false, {300, 60}},
    {u"Living Room"_s, 11, 0, 1, 16, 3, 20, 0, false, true, false, {200, 150}},
    {u"Ann's <Study> & \"Den\""_s, 6, 0, 0, 10, 0, 10, 11, true, false, false, {440, 380}},
    {u"Master Bedroom"_s, 0, 1, 0, 15, 0, 14, 0, false, false, false, {60, 60}},
    {u"Bath"_s, 2, 1, 2, 8, 0, 9, 6, false, false, false, {350, 90}},
    {u"Gym"_s, 12, 2, 1, 20, 0, 18, 0, true, true, false, {120, 200}},
    {u"Store"_s, 9, 2, 1, 7, 1, 6, 1, true, false, false, {400, 420}},
};

} // namespace

class HomesRoadTest : public RoadTest {
protected:
    /// The report on all rooms, and the editor with the report on the room that was entered last.
    void readRooms() {
        readAdvice(u"r"_s, u"Print Preview"_s, {"Front Hall", "&lt;Study", "Master Bedroom", "Store"});
        choose(FromEnd::OpenRoom);
        focusWindow(u"Room"_s);
        EXPECT_TRUE(saveHtml(u"Room"_s, {u"alt+f"_s, u"Down"_s, u"Down"_s, u"Return"_s}).contains("Store"));
        EXPECT_TRUE(printPdf(u"Room"_s).startsWith("%PDF-"));
        press({u"alt+c"_s});
        focusWindow(u"Room Directions"_s);
        picture(u"room-directions"_s);
        EXPECT_TRUE(printPdf(u"Room Directions"_s).startsWith("%PDF-"));
        press({u"Escape"_s});
        leaveWindow(u"Room Directions"_s, u"Room"_s);
        press({u"Escape"_s});
        leaveWindow(u"Room"_s, mainWindow);
        choose(FromEnd::SetDirections);
        focusWindow(u"Set Direction"_s);
        EXPECT_TRUE(printPdf(u"Set Direction"_s).startsWith("%PDF-"));
        press({u"Escape"_s});
        leaveWindow(u"Set Direction"_s, mainWindow);
    }
    /// Moves the room in hand by keys: an inch to the right and a foot down.
    void moveByKeys() {
        const Record before = records(u"Rooms.xml"_s).last();
        const auto moved = [&](const QString& field, double inches) {
            return std::abs(records(u"Rooms.xml"_s).last().value(field).toDouble() -
                            before.value(field).toDouble() - inches) < 0.01;
        };
        press({u"Right"_s, u"shift+Down"_s});
        ASSERT_TRUE(await(u"an inch right, a foot down"_s,
                          [&] { return moved(u"LEFT"_s, 1) && moved(u"TOP"_s, 12); }));
    }
    void changeFloors() {
        choose(FromEnd::NewFloor);
        focusWindow(u"New Floor"_s);
        press({u"Return"_s});
        leaveWindow(u"New Floor"_s, mainWindow);
        awaitRecords(u"Floors.xml"_s, 4);
        EXPECT_EQ(records(u"Floors.xml"_s).last().value(u"DESCRIPTION"_s).toStdString(), "Fourth Floor");
        confirm(u"Delete Floor"_s, u"Floors.xml"_s, [this] { choose(FromEnd::DeleteEmptyFloor); });
        awaitRecords(u"Floors.xml"_s, 3);

        choose(FromEnd::RenameFloor);
        focusWindow(u"Rename Floor"_s);
        send(Input().type(u"Garden & Gate"_s).press({u"Return"_s}));
        ASSERT_TRUE(await(u"the floor's new name"_s, [this] {
            return records(u"Floors.xml"_s).first().value(u"DESCRIPTION"_s) == u"Garden & Gate"_s;
        }));
        leaveWindow(u"Rename Floor"_s, mainWindow);
    }
    /// Each press of a zoom button is stored, and the two take each other back.
    void zoom() {
        const auto pressed = [&](const QStringList& keys, const QString& extent) {
            press(keys);
            EXPECT_TRUE(await(u"plan of "_s + extent, [&] {
                const Record home = records(u"Locations.xml"_s).first();
                return home.value(u"PLANWIDTH"_s) == extent && home.value(u"PLANLENGTH"_s) == extent;
            }));
        };
        chooseFloor(0); // the buttons come next for the keyboard
        pressed({u"Tab"_s, u"space"_s}, u"700"_s);
        pressed({u"Tab"_s, u"space"_s}, u"600"_s);
    }
    void renameHome(const QString& name) {
        constexpr QPoint onTheName(350, 138);
        send(Input()
                 .click(geometry(mainWindow).topLeft() + onTheName)
                 .press({u"ctrl+a"_s})
                 .type(name)
                 .press({u"alt+s"_s}));
        ASSERT_TRUE(await(u"the home's new name"_s, [&] {
            return records(u"Locations.xml"_s).first().value(u"DESCRIPTION"_s) == name;
        }));
    }
    void takeDown() {
        choose(FromEnd::DeleteRoom, false);
        awaitRecords(u"Rooms.xml"_s, rooms.size() - 1);
        changeFloors();
        zoom();
        renameHome(u"Weir <House>"_s);
        chooseFloor(1);
        confirm(u"Delete Floor"_s, u"Floors.xml"_s, [this] { choose(FromEnd::DeleteFloor); });
        awaitRecords(u"Floors.xml"_s, 2);
        awaitRecords(u"Rooms.xml"_s, 5);
        for (const Record& room : records(u"Rooms.xml"_s)) {
            EXPECT_NE(room.value(u"FLOORID"_s).toStdString(), "2");
        }
        confirm(u"Delete Location"_s, u"Locations.xml"_s, [this] { press({u"alt+l"_s, u"d"_s}); });
        awaitRecords(u"Locations.xml"_s, 0);
        awaitRecords(u"Floors.xml"_s, 0);
        awaitRecords(u"Rooms.xml"_s, 0);
        picture(u"taken-down"_s);
        quit();
        // The setting still names the home that is gone; the next start copes.
        EXPECT_EQ(setting(u"StartUp/LastLocation"_s).toStdString(), "1");
        start();
        quit();
    }
};

TEST_F(HomesRoadTest, homeIsBuiltRoomByRoom_turnedToNorth_readAndTakenDown) {
    start();
    showLocations();
    enterHome(u"Mill & Weir"_s, 3);
    ASSERT_FALSE(HasFatalFailure());
    EXPECT_EQ(records(u"Locations.xml"_s).value(0).value(u"DESCRIPTION"_s).toStdString(), "Mill & Weir");
    awaitSetting(u"StartUp/LastLocation"_s, u"1"_s);
    enterRooms(rooms);
    ASSERT_FALSE(HasFatalFailure());
    moveByKeys();
    picture(u"all-rooms"_s);
    expectRooms(rooms);

    const QByteArray homeBefore = content(folder_ + u"/Locations.xml"_s);
    const QByteArray roomsBefore = content(folder_ + u"/Rooms.xml"_s);
    pointNorth({0.3, 0.4}, u"alt+c"_s);
    EXPECT_EQ(content(folder_ + u"/Locations.xml"_s), homeBefore);
    EXPECT_EQ(content(folder_ + u"/Rooms.xml"_s), roomsBefore);
    pointNorth({0.6, 0.3}, u"alt+o"_s);
    ASSERT_TRUE(await(u"North"_s, [&] { return content(folder_ + u"/Rooms.xml"_s) != roomsBefore; }));
    expectNorthAsClicked();
    expectDirections();
    const QByteArray northFirst = content(folder_ + u"/Locations.xml"_s);
    pointNorth({0.7, 0.6}, u"alt+o"_s);
    ASSERT_TRUE(
        await(u"another North"_s, [&] { return content(folder_ + u"/Locations.xml"_s) != northFirst; }));
    expectNorthAsClicked();
    expectDirections();
    expectRooms(rooms);
    readRooms();
    ASSERT_FALSE(HasFatalFailure());
    takeDown();
}
