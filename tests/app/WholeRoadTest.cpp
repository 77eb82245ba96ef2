#include "app/RoadSteps.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace {

const QString mainWindow = u"Feng Shui"_s;
const EnteredPerson woman{u"Asker One"_s, u"1971-08-15"_s, true};
const EnteredPerson man{u"Asker Two"_s, u"1968-11-05"_s, false};

/// Ten rooms on two floors, beside each other and one over another.
const QList<EnteredRoom> rooms{
    {u"Porch"_s, 8, 0, 3, 6, 0, 8, 0, false, false, true, {250, 480}},
    {u"Hall"_s, 7, 0, 1, 20, 0, 6, 6, false, false, false, {260, 230}},
    {u"Living Room"_s, 11, 0, 0, 18, 9, 15, 0, false, true, false, {60, 240}},
    {u"Dining Room"_s, 4, 0, 1, 12, 0, 12, 0, false, false, false, {60, 80}},
    {u"Kitchen"_s, 5, 0, 3, 11, 6, 14, 3, true, false, false, {230, 70}},
    {u"Laundry"_s, 10, 0, 2, 7, 0, 7, 0, true, true, false, {420, 90}},
    {u"Master Bedroom"_s, 0, 1, 0, 16, 0, 14, 0, false, false, false, {70, 80}},
    {u"Child's Room"_s, 1, 1, 0, 12, 0, 11, 0, false, true, false, {270, 80}},
    {u"Bath"_s, 2, 1, 3, 9, 0, 8, 0, false, false, false, {420, 100}},
    {u"Office & Library"_s, 6, 1, 1, 14, 0, 13, 0, true, false, false, {90, 320}},
};

} // namespace

class WholeRoadTest : public RoadTest {
protected:
    QByteArray stored() const {
        QByteArray all;
        for (const auto& file : {u"Profiles.xml"_s, u"Locations.xml"_s, u"Floors.xml"_s, u"Rooms.xml"_s}) {
            all += content(folder_ + u'/' + file);
        }
        return all;
    }
    void enterHousehold() {
        enterPerson(woman);
        newPerson();
        enterPerson(man);
        showLocations();
        enterHome(u"Lock Cottage"_s, 2);
        enterRooms(rooms);
        pointNorth({0.45, 0.2}, u"alt+o"_s);
        picture(u"household"_s);
    }
    void readEverything() {
        const QByteArray name = man.name.toLatin1();
        Input date;
        date.type(u"2027-05-01"_s).press({u"Tab"_s, u"Tab"_s, u"space"_s});
        readAdvice(u"m"_s, u"Moving Advice"_s, {"Directions to move for year 2027"}, date);
        readAdvice(u"n"_s, u"Renovation/Redecoration Advice"_s,
                   {"Areas to renovate/redecorate for year 2027"}, date);
        Input years;
        years.press({u"ctrl+Tab"_s}); // the page that has North chosen already
        readAdvice(u"m"_s, u"Moving Advice"_s, {"Years to move in the direction North"}, years);
        readAdvice(u"n"_s, u"Renovation/Redecoration Advice"_s,
                   {"Years to renovate/redecorate in the area North"}, years);
        readAdvice(u"k"_s, u"Nine Ki Year Charts"_s, {"Nine Ki Chart for year 2027"}, date);
        readAdvice(u"p"_s, u"Profiles"_s, {name, "Beneficial Compass Directions"});
        readAdvice(u"e"_s, u"Elements"_s, {"Calming Chi Energy"});
        readAdvice(u"r"_s, u"Print Preview"_s, {"Porch", "Kitchen", "Office &amp; Library"});
    }
    /// The records as they were entered.
    void expectHousehold() {
        ASSERT_EQ(records(u"Profiles.xml"_s).size(), 2);
        expectPerson(1, woman.name, {1971, "F", 4});
        expectPerson(2, man.name, {1968, "M", 5});
        EXPECT_EQ(records(u"Profiles.xml"_s).last().value(u"BIRTHDATE"_s).toStdString(), "5 Nov 1968");
        ASSERT_EQ(records(u"Locations.xml"_s).size(), 1);
        EXPECT_EQ(records(u"Locations.xml"_s).first().value(u"DESCRIPTION"_s).toStdString(), "Lock Cottage");
        const QList<Record> floors = records(u"Floors.xml"_s);
        ASSERT_EQ(floors.size(), 2);
        EXPECT_EQ(floors.first().value(u"DESCRIPTION"_s).toStdString(), "First Floor");
        EXPECT_EQ(floors.last().value(u"DESCRIPTION"_s).toStdString(), "Second Floor");
        expectRooms(rooms);
        expectNorthAsClicked();
        expectDirections();
    }
    /// The plan of the first floor, as the screen shows it.
    QImage plan() {
        const QRect window = geometry(mainWindow);
        constexpr QMargins around(300, 200, 20, 90);
        return display_->screen().copy(window.marginsRemoved(around));
    }

    /// The plan when it has stopped changing: what was chosen last is painted when the program gets to it.
    QImage planAtRest() {
        constexpr int looks = 20;
        QImage seen;
        int same = 0;
        EXPECT_TRUE(await(u"a plan at rest"_s, [&] {
            const QImage now = plan();
            same = now == seen ? same + 1 : 0;
            seen = now;
            return same == looks;
        }));
        return seen;
    }
};

TEST_F(WholeRoadTest, householdIsEntered_readInEveryWindow_andStandsThereAfterARestart) {
    const QStringList filesAtFirst = QDir(folder_).entryList(QDir::Files);
    start();
    enterHousehold();
    ASSERT_FALSE(HasFatalFailure());
    expectHousehold();
    const QByteArray asEntered = stored();
    readEverything();
    ASSERT_FALSE(HasFatalFailure());
    EXPECT_EQ(stored(), asEntered) << "reading has written";
    chooseFloor(0);
    picture(u"before"_s);
    const QImage planBefore = planAtRest();
    press({u"alt+a"_s, u"r"_s});
    focusWindow(u"Print Preview"_s);
    const QByteArray adviceBefore = saveHtml(u"Print Preview"_s);
    press({u"Escape"_s});
    leaveWindow(u"Print Preview"_s, mainWindow);
    quit();

    start();
    expectCurrentPerson(man.name.toLatin1());
    showLocations();
    press({u"alt+a"_s, u"r"_s});
    focusWindow(u"Print Preview"_s);
    EXPECT_EQ(saveHtml(u"Print Preview"_s), adviceBefore);
    press({u"Escape"_s});
    leaveWindow(u"Print Preview"_s, mainWindow);
    EXPECT_TRUE(await(u"the plan as it was"_s, [&] { return plan() == planBefore; }));
    picture(u"after"_s);
    quit();
    EXPECT_EQ(stored(), asEntered);
    expectHousehold();
    EXPECT_EQ(QDir(folder_).entryList(QDir::Files), filesAtFirst);
}
