#include "ui/ProfilePane.h"

#include "core/windows/CalendarButton.h"
#include "ui/ProfileWorld.h"

#include <QTabWidget>

using namespace Qt::StringLiterals;
using namespace WindowDriver;

using ProfilePaneTest = SampleProfiles;
using EmptyProfilePaneTest = NoProfiles;

// What stands there.

TEST_F(ProfilePaneTest, controls_haveTheirCaptionsAndToolTips) {
    ProfileWorld::start();
    const auto expectTip = [&](const char* name, const char* tip) {
        EXPECT_EQ(pane_.at<QWidget>(name).toolTip(), QString::fromLatin1(tip)) << name;
    };
    expectTip("cboProfileName", "Select a Profile from the List");
    expectTip("txtProfileName", "Enter a Name for the Profile");
    expectTip("txtBirthDate", "Enter your birthdate using the Western Calendar Years.");
    expectTip("txt9Ki", "Used to determine your Element and Directions");
    expectTip("optFemale", "Used for KUA number calculations");
    expectTip("optMale", "Used for KUA number calculations");
    expectTip("cmdCalcProfile", "Click Calculate to Calculate your KUA number");
    expectTip("cmdNewProfile", "Click New to create a New Profile");
    expectTip("cmdSaveProfile", "Click Save to Save the changes to this profile");
    expectTip("lblAdjBirthYear", "The Chinese calendar begins in early February");
    expectTip("vsAnimal", "Animal Sign for the Year (adjusted) you were born");
    for (const auto& [name, caption] :
         {std::pair("lblName", "Enter Your Name:"), std::pair("lblBirthdate", "Enter Your Birthdate:"),
          std::pair("lbl9Ki", "9 Ki (KUA) Number:")}) {
        EXPECT_EQ(pane_.at<QLabel>(name).text(), QString::fromLatin1(caption));
    }
    for (const auto& [name, caption] :
         {std::pair("optFemale", "&Female"), std::pair("optMale", "&Male"),
          std::pair("cmdCalcProfile", "C&alculate"), std::pair("cmdNewProfile", "&New"),
          std::pair("cmdSaveProfile", "&Save"), std::pair("cmdDelProfile", "&Delete")}) {
        EXPECT_EQ(pane_.at<QAbstractButton>(name).text(), QString::fromLatin1(caption));
    }
    EXPECT_EQ(pane_.label("lblAuspiciousDirections"), u"Auspicious Directions:"_s);
    EXPECT_EQ(pane_.label("lblInauspiciousDirections"), u"Inauspicious Directions:"_s);
    EXPECT_EQ(
        pane_.label("lblInfo"),
        u"To personalize your feng shui recommendations, calculate your KUA or 9 Ki number.  Enter the date of your birth (using the western calendar), and your gender. Click Calculate when ready.   Or, if you know your 9 Ki number you may enter it in the space provided.  When finished Click Save to save the profile."_s);
}

TEST_F(ProfilePaneTest, panels_areNestedInThePagesAndBands) {
    const auto expectInside = [&](const char* outer, std::initializer_list<const char*> inner) {
        auto& holder = pane_.at<QWidget>(outer);
        for (const char* name : inner) {
            EXPECT_NE(holder.findChild<QWidget*>(QString::fromLatin1(name)), nullptr) << outer << ' ' << name;
        }
    };
    expectInside("vsMainProfile", {"cmdCalcProfile", "cmdNewProfile", "cmdSaveProfile", "cmdDelProfile",
                                   "vsTopProfile", "vsDetailProfile"});
    expectInside("vsTopProfile", {"vsTrigram"});
    expectInside("vsDetailProfile", {"cboProfileName", "txtProfileName", "txtBirthDate", "cmdDate", "txt9Ki",
                                     "optFemale", "optMale", "vsAnimal", "tabProfile", "lblAdjBirthYear",
                                     "lblBirthdate", "lbl9Ki", "lblName", "lblInfo"});
    expectInside("tabProfile", {"vsProfileSummary", "vsAuspicious", "vsInauspicious"});
    expectInside("vsProfileSummary", {"vsTOD", "vsColor", "vsSymbol", "lblSummary"});
    expectInside("vsAuspicious",
                 {"vsPrimaryDirection", "vsSuccessDirection", "vsHealthDirection", "vsRomanceDirection",
                  "vsDevelopmentDirection", "vsBadLuckDirection", "vsObstacleDirection", "vsIllnessDirection",
                  "vsDestructionDirection", "lblAuspiciousDirections", "lblInauspiciousDirections"});
    expectInside("vsInauspicious", {"vsElement", "lblElementDescription"});
    const auto& pages = pane_.at<QTabWidget>("tabProfile");
    ASSERT_EQ(pages.count(), 3);
    EXPECT_EQ(pages.tabText(0), u"Summary"_s);
    EXPECT_EQ(pages.tabText(1), u"Directions"_s);
    EXPECT_EQ(pages.tabText(2), u"Elements"_s);
}

TEST_F(ProfilePaneTest, directions_standUnderLinesInTheChartsColors) {
    ProfileWorld::start();
    pane_.at<QTabWidget>("tabProfile").setCurrentIndex(1);
    QStringList colors;
    for (QFrame* line : pane_.at<QWidget>("vsAuspicious").findChildren<QFrame*>()) {
        if (qobject_cast<QLabel*>(line) == nullptr) {
            colors << line->grab().toImage().pixelColor(line->rect().center()).name();
        }
    }
    EXPECT_EQ(colors, QStringList({u"#6aea97"_s, u"#aae3ff"_s}));
}

TEST_F(ProfilePaneTest, tab_goesFromTheNameToTheButtonsThatStore) {
    ProfileWorld::start();
    QStringList names;
    for (const QWidget* stop : tabOrder(*pane_.view)) {
        names << stop->objectName();
    }
    EXPECT_EQ(names.mid(2).join(u' '),
              u"cboProfileName txtBirthDate cmdDate optFemale optMale txt9Ki cmdCalcProfile tabProfilePages "
              "vsProfileSummaryArea cmdNewProfile cmdSaveProfile cmdDelProfile"_s);
    pane_.type("txt9Ki", u"3"_s);
    expectNamedControls(*pane_.view);
}

// Opening.

TEST_F(EmptyProfilePaneTest, withNoProfileAtAll_thePaneStartsInTheNewStateWithTheCursorInTheName) {
    ProfileWorld::start();
    EXPECT_EQ(pane_.view->Mode, u"INSERT"_s);
    pane_.expectNewState();
    EXPECT_EQ(pane_.view->focusWidget()->objectName(), u"txtProfileName"_s);
    EXPECT_EQ(pane_.list().count(), 0);
    EXPECT_FALSE(pane_.checked("optFemale"));
    EXPECT_FALSE(pane_.checked("optMale"));
}

TEST_F(ProfilePaneTest, start_showsAllOfTheLastPerson) {
    ProfileWorld::start();
    pane_.expectOpenState();
    EXPECT_EQ(pane_.band(), u"  Ann Example"_s);
    EXPECT_EQ(pane_.list().currentText(), u"Ann Example"_s);
    EXPECT_EQ(pane_.text("txtProfileName"), u"Ann Example"_s);
    EXPECT_EQ(pane_.text("txtBirthDate"), u"2/4/1985"_s);
    EXPECT_EQ(pane_.text("txt9Ki"), u"9"_s);
    EXPECT_EQ(pane_.label("lblAdjBirthYear"), u"Adjusted Birth Year 1985"_s);
    EXPECT_TRUE(pane_.checked("optFemale"));
    EXPECT_FALSE(pane_.checked("optMale"));
    EXPECT_EQ(pane_.panel("vsAnimal").caption(), u"Birth Year Sign is Ox"_s);
    EXPECT_EQ(pane_.panel("vsTrigram").caption(), u"LI"_s);
    EXPECT_FALSE(ProfileWorld::person().IsDirty);
}

TEST_F(ProfilePaneTest, OpenProfile_emptyText_leavesThePaneBlankInItsOpenState) {
    ProfileWorld::start();
    pane_.at<ProfilePane>("vsMainProfile").OpenProfile(QVariant(QString()));
    pane_.expectOpenState();
    EXPECT_EQ(pane_.band(), QString());
    EXPECT_EQ(pane_.list().currentText(), QString());
}

TEST_F(ProfilePaneTest, ClearScreenProfile_blanksSevenPanelsAndKeepsTheOthers) {
    ProfileWorld::start();
    const QString health = pane_.panel("vsHealthDirection").caption();
    const QString element = pane_.label("lblElementDescription");
    pane_.click("cmdNewProfile");
    for (const char* name :
         {"vsSuccessDirection", "vsAnimal", "vsColor", "vsSymbol", "vsElement", "vsTOD", "vsTrigram"}) {
        EXPECT_EQ(pane_.panel(name).caption(), QString()) << name;
        EXPECT_TRUE(pane_.panel(name).picture().isNull()) << name;
    }
    for (const char* name :
         {"vsPrimaryDirection", "vsHealthDirection", "vsRomanceDirection", "vsDevelopmentDirection",
          "vsBadLuckDirection", "vsObstacleDirection", "vsIllnessDirection", "vsDestructionDirection"}) {
        EXPECT_FALSE(pane_.panel(name).caption().isEmpty()) << name;
        EXPECT_FALSE(pane_.panel(name).picture().isNull()) << name;
    }
    EXPECT_EQ(pane_.panel("vsHealthDirection").caption(), health);
    EXPECT_EQ(pane_.label("lblElementDescription"), element);
    EXPECT_FALSE(element.isEmpty());
    EXPECT_EQ(pane_.label("lblSummary"), QString());
    EXPECT_EQ(pane_.label("lblAdjBirthYear"), QString());
    EXPECT_EQ(pane_.status(), QString());
    EXPECT_FALSE(pane_.checked("optFemale"));
    EXPECT_FALSE(pane_.checked("optMale"));
}

// Changes.

TEST_F(ProfilePaneTest, everyChangeByTheUser_enablesSave) {
    ProfileWorld::start();
    const std::pair<const char*, std::function<void()>> changes[] = {
        {"the name", [&] { pane_.rename(u"A"_s); }},
        {"the date", [&] { pane_.type("txtBirthDate", u"x"_s); }},
        {"the number", [&] { pane_.type("txt9Ki", u"3"_s); }},
        {"the gender", [&] { pane_.click("optMale"); }},
    };
    for (const auto& [what, change] : changes) {
        pane_.at<ProfilePane>("vsMainProfile").OpenProfile(1);
        EXPECT_FALSE(pane_.enabled("cmdSaveProfile")) << what;
        change();
        EXPECT_TRUE(pane_.enabled("cmdSaveProfile")) << what;
        EXPECT_TRUE(pane_.entryEnabled("mnuProfilesSave")) << what;
        EXPECT_TRUE(ProfileWorld::person().IsDirty) << what;
    }
}

TEST_F(ProfilePaneTest, changesByTheProgram_doNotCount) {
    ProfileWorld::start();
    pane_.choose(1);
    EXPECT_FALSE(ProfileWorld::person().IsDirty);
    EXPECT_FALSE(pane_.enabled("cmdSaveProfile"));
    pane_.click("cmdNewProfile");
    EXPECT_FALSE(ProfileWorld::person().IsDirty);
}

TEST_F(ProfilePaneTest, cmdDate_isTheCalendarButtonOfAllDateFields) {
    const auto& button = pane_.at<CalendarButton>("cmdDate");
    EXPECT_EQ(button.text(), QString());
    EXPECT_EQ(button.toolTip(), QString());
    EXPECT_EQ(button.accessibleName(), u"Choose your birthdate from a calendar"_s);
}

TEST_F(ProfilePaneTest, cmdDate_writesTheChosenDateWhichCountsAsAChange) {
    ProfileWorld::start();
    whileModal([&] { pane_.click("cmdDate"); },
               [](QWidget& calendar) {
                   click(calendar, "lblDay15"); // February 1985 begins on a Friday
                   click(calendar, "cmdOK");
               });
    EXPECT_EQ(pane_.text("txtBirthDate"), u"2/11/1985"_s);
    EXPECT_TRUE(ProfileWorld::person().IsDirty);
    EXPECT_TRUE(pane_.enabled("cmdSaveProfile"));
}

TEST_F(ProfilePaneTest, cmdDate_cancelled_writesTheSameDateWhichCountsAsAChangeToo) {
    ProfileWorld::start();
    whileModal([&] { pane_.click("cmdDate"); }, [](QWidget& calendar) { click(calendar, "cmdCancel"); });
    EXPECT_EQ(pane_.text("txtBirthDate"), u"2/4/1985"_s);
    EXPECT_TRUE(ProfileWorld::person().IsDirty);
}

// Names with an ampersand.

TEST_F(ProfilePaneTest, ampersand_isDoubledInTheBandsCaptionAndStandsSingleElsewhere) {
    ProfileWorld::start();
    pane_.rename(u"Ann & Co"_s);
    pane_.click("cmdSaveProfile");
    EXPECT_EQ(pane_.band(), u"  Ann && Co"_s);
    EXPECT_EQ(pane_.at<TitleBand>("vsTopProfile").text(), u"  Ann & Co"_s);
    EXPECT_EQ(pane_.status(), u"Ann & Co"_s);
    EXPECT_EQ(pane_.list().itemText(0), u"Ann & Co"_s);
}

// Renaming.

TEST_F(ProfilePaneTest, renamedLikeSomebodyElse_staysTheSamePerson) {
    ProfileWorld::start();
    pane_.rename(u"Ben Example"_s);
    pane_.field("txtBirthDate").setFocus();
    EXPECT_EQ(ProfileWorld::person().PROFILEID, 1);
    pane_.click("cmdSaveProfile");
    ASSERT_EQ(pane_.storedPeople().size(), 2);
    EXPECT_TRUE(pane_.storedPeople().at(0).contains(R"(PROFILEID="1" PROFILENAME="Ben Example")"));
    EXPECT_TRUE(pane_.storedPeople().at(1).contains(R"(PROFILEID="2" PROFILENAME="Ben Example")"));
}

// Exit.

TEST_F(ProfilePaneTest, exit_withUnsavedChanges_asksNothingAndStoresNothing) {
    ProfileWorld::start();
    const QByteArrayList before = pane_.storedPeople();
    pane_.type("txt9Ki", u"3"_s);
    pane_.view->close();
    EXPECT_FALSE(pane_.view->isVisible());
    EXPECT_EQ(pane_.storedPeople(), before);
}
