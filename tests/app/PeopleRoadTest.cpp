#include "app/RoadSteps.h"

using namespace Qt::StringLiterals;

namespace {

const QString mainWindow = u"Feng Shui"_s;
const EnteredPerson first{u"Quill <b>&\"Ink\"</b>"_s, u"1965-03-02"_s, true};
const EnteredPerson second{u"Second Asker"_s, u"1980-01-20"_s, false};

} // namespace

class PeopleRoadTest : public RoadTest {};

TEST_F(PeopleRoadTest, personIsEntered_foundAgain_joinedByAnother_readAndDeleted) {
    start();
    picture(u"empty"_s);
    enterPerson(first);
    ASSERT_FALSE(HasFatalFailure());
    expectPerson(1, first.name, {1965, "F", 7});
    awaitSetting(u"StartUp/LastProfile"_s, u"1"_s);
    quit();

    start();
    expectCurrentPerson("Quill &lt;b&gt;&amp;&quot;Ink&quot;&lt;/b&gt;");
    picture(u"again"_s);
    ASSERT_FALSE(HasFatalFailure());
    newPerson();
    enterPerson(second);
    ASSERT_FALSE(HasFatalFailure());
    expectPerson(1, first.name, {1965, "F", 7});
    // Born before the lunar year began, and so a child of the year before.
    expectPerson(2, second.name, {1979, "M", 3});
    awaitSetting(u"StartUp/LastProfile"_s, u"2"_s);
    expectCurrentPerson("Second Asker");

    readAdvice(u"p"_s, u"Profiles"_s, {"<h", "Second Asker", "Beneficial Compass Directions"});
    readAdvice(u"e"_s, u"Elements"_s, {"Tree"});
    ASSERT_FALSE(HasFatalFailure());

    press({u"Up"_s}); // in the list of people, where the save has left the keyboard
    awaitSetting(u"StartUp/LastProfile"_s, u"1"_s);
    ASSERT_FALSE(HasFatalFailure());
    send(Input().press({u"ctrl+a"_s}).type(u"Renamed"_s).press({u"alt+s"_s}));
    ASSERT_TRUE(await(u"the new name"_s, [this] {
        return records(u"Profiles.xml"_s).first().value(u"PROFILENAME"_s) == u"Renamed"_s;
    }));
    expectPerson(1, u"Renamed"_s, {1965, "F", 7});
    expectPerson(2, second.name, {1979, "M", 3});

    confirm(u"Delete Profile"_s, u"Profiles.xml"_s, [this] { press({u"alt+d"_s}); });
    awaitRecords(u"Profiles.xml"_s, 1);
    expectPerson(2, second.name, {1979, "M", 3});
    awaitSetting(u"StartUp/LastProfile"_s, u"2"_s); // the next person took the place
    quit();

    start();
    expectCurrentPerson("Second Asker");
    quit();
}

TEST_F(PeopleRoadTest, whatIsMissing_isAskedForAndNothingIsStored) {
    const QByteArray before = content(folder_ + u"/Profiles.xml"_s);
    start();
    send(Input().type(u"Nobody Yet"_s).press({u"alt+s"_s}));
    focusWindow(u"Save Profile"_s);
    picture(u"number-missing"_s);
    press({u"Return"_s});
    leaveWindow(u"Save Profile"_s, mainWindow);
    EXPECT_EQ(content(folder_ + u"/Profiles.xml"_s), before);
    // The name stands, and the road goes on from it: to the button without a date, then with one.
    press({u"Tab"_s, u"Tab"_s, u"Tab"_s, u"Right"_s, u"space"_s, u"Tab"_s, u"Tab"_s, u"space"_s});
    focusWindow(u"Calculate KUA Number"_s);
    press({u"Return"_s});
    leaveWindow(u"Calculate KUA Number"_s, mainWindow);
    send(Input()
             .type(u"1965-03-02"_s) // the message has left the cursor in the date's field
             .press({u"Tab"_s, u"Tab"_s, u"Tab"_s, u"Tab"_s, u"space"_s, u"alt+s"_s}));
    awaitRecords(u"Profiles.xml"_s, 1);
    expectPerson(1, u"Nobody Yet"_s, {1965, "M", 8});
    quit();
}
