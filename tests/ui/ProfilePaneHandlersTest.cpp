#include "ui/ProfilePane.h"
#include "ui/ProfileWorld.h"

using namespace Qt::StringLiterals;
using namespace WindowDriver;

using ProfilePaneHandlersTest = SampleProfiles;
using EmptyProfilePaneHandlersTest = NoProfiles;

namespace {

const QString calculateTitle = u"Calculate KUA Number"_s;
const QString noDate =
    u"You must enter a valid date in the Birthdate field before calculating the KUA number."_s;
const QString noGender =
    u"You must select a gender of either Female or Male before calculating the KUA number."_s;
const QString noNumber =
    u"Before you can save your profile, you must have your 9-Ki number entered.  Click Calculate to generate your 9 Ki number based on your birthdate, or, if you know the number type it in the space provided."_s;
const QString badNumber =
    u"Before you can save your profile, you must have a 9-Ki number with a value between 1 and 9 entered.  Click Calculate to generate your 9 Ki number based on your birthdate, or, if you know the number type it in the space provided."_s;
const QString deleteAnn = u"Are you sure that you want to delete profile: Ann Example?"_s;

} // namespace

// Calculate.

TEST_F(EmptyProfilePaneHandlersTest, calculate_blankBirthDate_asksForItWhateverTheGenderButtonsSay) {
    ProfileWorld::start();
    for (const char* gender : {"", "optFemale", "optMale"}) {
        if (*gender != '\0') {
            pane_.click(gender);
        }
        pane_.expectMessage("Calculate KUA Number", noDate);
        pane_.click("cmdCalcProfile");
        EXPECT_EQ(pane_.view->focusWidget()->objectName(), u"txtBirthDate"_s);
    }
}

TEST_F(EmptyProfilePaneHandlersTest, calculate_textThatIsNoDate_staysInTheField) {
    ProfileWorld::start();
    pane_.click("optMale");
    pane_.type("txtBirthDate", u"30 February 1985"_s);
    pane_.expectMessage("Calculate KUA Number", noDate);
    pane_.click("cmdCalcProfile");
    EXPECT_EQ(pane_.text("txtBirthDate"), u"30 February 1985"_s);
    EXPECT_EQ(pane_.text("txt9Ki"), QString());
}

TEST_F(EmptyProfilePaneHandlersTest, calculate_withoutAGender_asksForItAndGoesThere) {
    ProfileWorld::start();
    pane_.type("txtBirthDate", u"2/4/1985"_s);
    pane_.expectMessage("Calculate KUA Number", noGender);
    pane_.click("cmdCalcProfile");
    EXPECT_EQ(pane_.view->focusWidget()->objectName(), u"optFemale"_s);
}

TEST_F(EmptyProfilePaneHandlersTest, calculate_yearOutsideTheTable_warnsWithTheReason) {
    ProfileWorld::start();
    pane_.type("txtBirthDate", u"5/5/1650"_s);
    pane_.click("optMale");
    pane_.world.prompts.expectMessage(
        calculateTitle, u"An Error occured while trying to calculate the KUA number. \r\nInvalid Birthdate"_s,
        MessageIcon::Exclamation);
    pane_.click("cmdCalcProfile");
    EXPECT_EQ(pane_.text("txt9Ki"), QString());
}

TEST_F(EmptyProfilePaneHandlersTest, calculate_fillsTheScreenAndStoresNothing) {
    ProfileWorld::start();
    const QByteArray before = pane_.world.read(u"Profiles.xml"_s);
    pane_.enter(u"Cleo"_s, u"1985-02-03"_s, "optMale");
    EXPECT_EQ(pane_.text("txtProfileName"), u"Cleo"_s);
    EXPECT_EQ(pane_.text("txtBirthDate"), u"2/3/1985"_s);
    EXPECT_EQ(pane_.text("txt9Ki"), u"7"_s);
    EXPECT_EQ(pane_.label("lblAdjBirthYear"), u"Adjusted Birth Year 1984"_s);
    EXPECT_EQ(pane_.band(), u"  Cleo"_s);
    EXPECT_TRUE(ProfileWorld::person().IsDirty);
    pane_.expectNewState();
    EXPECT_EQ(pane_.world.read(u"Profiles.xml"_s), before);
    EXPECT_EQ(pane_.lastProfile(), QString());
}

TEST_F(EmptyProfilePaneHandlersTest, calculate_enterInTheDateField_isThatButton) {
    ProfileWorld::start();
    pane_.type("txtBirthDate", u"2/4/1985"_s);
    pane_.click("optFemale");
    QTest::keyClick(&pane_.field("txtBirthDate"), Qt::Key_Return);
    EXPECT_EQ(pane_.text("txt9Ki"), u"9"_s);
}

// Save.

TEST_F(ProfilePaneHandlersTest, save_emptyNumber_isRefused) {
    ProfileWorld::start();
    pane_.type("txt9Ki", QString());
    pane_.expectMessage("Save Profile", noNumber);
    pane_.click("cmdSaveProfile");
    pane_.expectOpenState(true);
}

TEST_F(ProfilePaneHandlersTest, save_numbersBeyondOneToNine_areRefused) {
    ProfileWorld::start();
    const QByteArrayList before = pane_.storedPeople();
    for (const char* number : {"0", "10", "-1", "9.1", "0.99", "1e3"}) {
        pane_.type("txt9Ki", QString::fromLatin1(number));
        pane_.expectMessage("Save Profile", badNumber);
        pane_.click("cmdSaveProfile");
        EXPECT_EQ(pane_.text("txt9Ki"), QString::fromLatin1(number));
        EXPECT_TRUE(pane_.enabled("cmdSaveProfile"));
    }
    EXPECT_EQ(pane_.storedPeople(), before);
}

TEST_F(ProfilePaneHandlersTest, save_byItsKey_leavesTheFocusInTheListAndNotOnTheButtonThatDeletes) {
    ProfileWorld::start();
    pane_.type("txt9Ki", u"4"_s);
    ASSERT_TRUE(QTest::qWaitForWindowActive(pane_.view.get()));
    auto& save = pane_.at<QPushButton>("cmdSaveProfile");
    save.setFocus();
    QTest::keyClick(&save, Qt::Key_Space);
    pane_.expectOpenState();
    EXPECT_TRUE(pane_.list().hasFocus());
}

TEST_F(ProfilePaneHandlersTest, save_oneAndNine_pass) {
    ProfileWorld::start();
    for (const char* number : {"1", "9"}) {
        pane_.type("txt9Ki", QString::fromLatin1(number));
        pane_.click("cmdSaveProfile");
        pane_.expectOpenState();
        EXPECT_TRUE(pane_.storedPeople().at(0).contains(QByteArray("KUANUMBER=\"") + number + '"'));
    }
}

TEST_F(ProfilePaneHandlersTest, save_textThatIsNoNumber_isReportedAndTheOldNumberStored) {
    ProfileWorld::start();
    for (const char* number : {"nine", "5x", " "}) {
        pane_.rename(u"Ann "_s + QString::fromLatin1(number));
        pane_.type("txt9Ki", QString::fromLatin1(number));
        pane_.world.prompts.expectError(u"frmView.LoadProfileFromScreen"_s, 13, u"Type mismatch"_s);
        pane_.click("cmdSaveProfile");
        EXPECT_TRUE(pane_.storedPeople().at(0).contains(R"(KUANUMBER="9")"));
        EXPECT_EQ(pane_.text("txt9Ki"), u"9"_s);
        EXPECT_EQ(pane_.status(), u"Ann "_s + QString::fromLatin1(number));
    }
}

TEST_F(ProfilePaneHandlersTest, save_numberTypedOverTheCalculatedOne_survives) {
    ProfileWorld::start();
    pane_.type("txt9Ki", u"3"_s);
    pane_.click("cmdSaveProfile");
    pane_.restart();
    EXPECT_EQ(pane_.text("txt9Ki"), u"3"_s);
    EXPECT_EQ(pane_.panel("vsPrimaryDirection").caption(), u"Your Compass Direction is East"_s);
}

TEST_F(EmptyProfilePaneHandlersTest, save_newPerson_isThereAfterARestart) {
    ProfileWorld::start();
    pane_.enter(u"Cleo"_s, u"2/4/1985"_s, "optFemale");
    pane_.click("cmdSaveProfile");
    pane_.expectOpenState();
    EXPECT_EQ(pane_.view->Mode, u"UPDATE"_s);
    EXPECT_EQ(pane_.list().count(), 1);
    EXPECT_EQ(pane_.lastProfile(), u"1"_s);
    pane_.restart();
    pane_.expectOpenState();
    EXPECT_EQ(pane_.band(), u"  Cleo"_s);
    EXPECT_EQ(pane_.status(), u"Cleo"_s);
    EXPECT_EQ(pane_.text("txtBirthDate"), u"2/4/1985"_s);
    EXPECT_EQ(pane_.text("txt9Ki"), u"9"_s);
}

TEST_F(EmptyProfilePaneHandlersTest, save_withoutAGender_storesMale) {
    ProfileWorld::start();
    pane_.type("txtProfileName", u"Cleo"_s);
    pane_.type("txtBirthDate", u"2/4/1985"_s);
    pane_.type("txt9Ki", u"4"_s);
    pane_.click("cmdSaveProfile");
    EXPECT_TRUE(pane_.storedPeople().at(0).contains(R"(GENDER="M")"));
    EXPECT_TRUE(pane_.checked("optMale"));
}

// New and Cancel.

TEST_F(ProfilePaneHandlersTest, newAndCancel_comesBackToThePersonWithModeStillInsert) {
    pane_.remember(u"2"_s);
    ProfileWorld::start();
    pane_.click("cmdNewProfile");
    pane_.expectNewState();
    pane_.type("txtProfileName", u"Cleo"_s);
    pane_.click("cmdDelProfile");
    pane_.expectOpenState();
    EXPECT_EQ(pane_.view->Mode, u"INSERT"_s);
    EXPECT_EQ(pane_.list().currentText(), u"Ben Example"_s);
    EXPECT_EQ(pane_.status(), u"Ben Example"_s);
    EXPECT_FALSE(ProfileWorld::person().IsDirty);
}

TEST_F(ProfilePaneHandlersTest, afterNewAndCancel_saveInsertsACopyOfTheShownProfile) {
    ProfileWorld::start();
    pane_.click("cmdNewProfile");
    pane_.click("cmdDelProfile");
    pane_.type("txt9Ki", u"2"_s);
    pane_.click("cmdSaveProfile");
    ASSERT_EQ(pane_.storedPeople().size(), 3);
    EXPECT_TRUE(pane_.storedPeople().at(0).contains(R"(KUANUMBER="9")"));
    EXPECT_TRUE(pane_.storedPeople().at(2).contains(R"(PROFILEID="3" PROFILENAME="Ann Example")"));
    EXPECT_EQ(pane_.lastProfile(), u"3"_s);
    EXPECT_EQ(pane_.view->Mode, u"UPDATE"_s);
}

TEST_F(EmptyProfilePaneHandlersTest, cancel_withNobodyStored_isABlankOpenState) {
    ProfileWorld::start();
    pane_.type("txtProfileName", u"Cleo"_s);
    pane_.click("cmdDelProfile");
    pane_.expectOpenState();
    EXPECT_EQ(pane_.list().currentText(), QString());
}

TEST_F(ProfilePaneHandlersTest, new_withUnsavedChanges_asksAndYesSaves) {
    ProfileWorld::start();
    pane_.rename(u"Anna"_s);
    pane_.expectSaveQuestion("New Profile", MessageAnswer::Yes);
    choose(*pane_.view, "mnuProfiles", "mnuProfilesNew");
    pane_.expectNewState();
    EXPECT_TRUE(pane_.storedPeople().at(0).contains(R"(PROFILENAME="Anna")"));
}

TEST_F(ProfilePaneHandlersTest, new_withUnsavedChanges_noDropsThem) {
    ProfileWorld::start();
    pane_.rename(u"Anna"_s);
    pane_.expectSaveQuestion("New Profile", MessageAnswer::No);
    pane_.click("cmdNewProfile");
    pane_.expectNewState();
    EXPECT_TRUE(pane_.storedPeople().at(0).contains(R"(PROFILENAME="Ann Example")"));
}

TEST_F(ProfilePaneHandlersTest, new_withARefusedSave_followsAllTheSame) {
    ProfileWorld::start();
    pane_.type("txt9Ki", u"12"_s);
    pane_.expectSaveQuestion("New Profile", MessageAnswer::Yes);
    pane_.expectMessage("Save Profile", badNumber);
    pane_.click("cmdNewProfile");
    pane_.expectNewState();
}

// The list.

TEST_F(ProfilePaneHandlersTest, dropDown_withoutChanges_asksNothing) {
    ProfileWorld::start();
    pane_.choose(1);
    EXPECT_EQ(ProfileWorld::person().PROFILEID, 2);
    pane_.expectOpenState();
}

TEST_F(ProfilePaneHandlersTest, dropDown_withChanges_yesSavesBeforeTheListOpens) {
    ProfileWorld::start();
    pane_.rename(u"Anna"_s);
    pane_.expectSaveQuestion("Select Profile", MessageAnswer::Yes);
    pane_.world.prompts.whileShown = [&] { EXPECT_FALSE(pane_.list().view()->isVisible()); };
    pane_.list().showPopup();
    EXPECT_TRUE(pane_.list().view()->isVisible());
    pane_.list().hidePopup();
    EXPECT_EQ(pane_.list().itemText(0), u"Anna"_s);
    EXPECT_EQ(pane_.list().currentText(), u"Anna"_s);
}

TEST_F(ProfilePaneHandlersTest, dropDown_withChanges_noTakesThemBackAndTheListOpens) {
    ProfileWorld::start();
    pane_.rename(u"Anna"_s);
    pane_.expectSaveQuestion("Select Profile", MessageAnswer::No);
    pane_.list().showPopup();
    EXPECT_TRUE(pane_.list().view()->isVisible());
    pane_.list().hidePopup();
    EXPECT_EQ(pane_.list().currentText(), u"Ann Example"_s);
    pane_.expectOpenState();
    EXPECT_FALSE(ProfileWorld::person().IsDirty);
}

TEST_F(ProfilePaneHandlersTest, samePersonChosenAgain_isReadAnewFromTheFile) {
    ProfileWorld::start();
    pane_.choose(0);
    pane_.type("txtBirthDate", u"2/3/1985"_s);
    pane_.click("cmdCalcProfile");
    EXPECT_EQ(pane_.label("lblAdjBirthYear"), u"Adjusted Birth Year 1984"_s);
    pane_.expectSaveQuestion("Select Profile", MessageAnswer::No);
    pane_.choose(0);
    EXPECT_EQ(pane_.label("lblAdjBirthYear"), u"Adjusted Birth Year 1985"_s);
}

// Delete.

TEST_F(ProfilePaneHandlersTest, delete_anythingButYes_changesNothing) {
    ProfileWorld::start();
    pane_.expectQuestion("Delete Profile", deleteAnn, MessageAnswer::No);
    pane_.click("cmdDelProfile");
    EXPECT_EQ(pane_.storedPeople().size(), 2);
    EXPECT_EQ(pane_.band(), u"  Ann Example"_s);
}

TEST_F(ProfilePaneHandlersTest, delete_yes_showsTheFirstOfTheOthers) {
    ProfileWorld::start();
    pane_.expectQuestion("Delete Profile", deleteAnn, MessageAnswer::Yes);
    choose(*pane_.view, "mnuProfiles", "mnuProfilesDelete");
    EXPECT_EQ(pane_.storedPeople().size(), 1);
    EXPECT_EQ(pane_.band(), u"  Ben Example"_s);
    EXPECT_EQ(pane_.status(), u"Ben Example"_s);
    EXPECT_EQ(pane_.lastProfile(), u"2"_s);
    pane_.expectOpenState();
}

TEST_F(ProfilePaneHandlersTest, delete_thatFails_saysSoAndShowsTheFirst) {
    ProfileWorld::start();
    ProfileWorld::person().PROFILEID = 77;
    pane_.expectQuestion("Delete Profile", deleteAnn, MessageAnswer::Yes);
    pane_.expectMessage(
        "Delete Profile",
        u"There was an error while attempting to delete this profile, profile was not deleted."_s);
    pane_.click("cmdDelProfile");
    EXPECT_EQ(pane_.storedPeople().size(), 2);
    EXPECT_EQ(pane_.band(), u"  Ann Example"_s);
}

TEST_F(ProfilePaneHandlersTest, delete_theLastProfile_endsInTheNewState) {
    ProfileWorld::start();
    pane_.expectQuestion("Delete Profile", deleteAnn, MessageAnswer::Yes);
    pane_.click("cmdDelProfile");
    pane_.expectQuestion("Delete Profile", u"Are you sure that you want to delete profile: Ben Example?"_s,
                         MessageAnswer::Yes);
    pane_.click("cmdDelProfile");
    pane_.expectNewState();
    EXPECT_EQ(pane_.view->Mode, u"INSERT"_s);
    EXPECT_EQ(pane_.lastProfile(), QString());
    EXPECT_TRUE(pane_.storedPeople().isEmpty());
}
