#include "ui/frmViewTest.h"

using namespace WindowDriver;

// Start.

TEST_F(frmViewTest, start_opensOnTheLastPersonAndHome) {
    Global::Main();
    EXPECT_TRUE(view_->isVisible());
    EXPECT_EQ(view_->windowTitle(), QStringLiteral("Feng Shui"));
    expectProfilePane();
    EXPECT_EQ(panel("Profile"), Global::CurrentProfile->PROFILENAME);
    EXPECT_EQ(panel("Location"), Global::CurrentLocation->DESCRIPTION);
    EXPECT_FALSE(panel("Profile").isEmpty());
    EXPECT_FALSE(panel("Location").isEmpty());
    EXPECT_EQ(band("vsTopProfile"), QStringLiteral("  ") + Global::CurrentProfile->PROFILENAME);
    EXPECT_EQ(band("vsTopLocation"), Global::CurrentLocation->DESCRIPTION);
    EXPECT_EQ(view_->Mode, QStringLiteral("UPDATE"));
    EXPECT_TRUE(pressed("PROFILE"));
    EXPECT_FALSE(pressed("LOCATION"));
}

TEST_F(frmViewTest, start_neverClosed_hasItsDesignedSize) {
    Global::Main();
    // The screen of a headless test is smaller than the design.
    EXPECT_EQ(view_->sizeHint(), QSize(1100, 760));
    EXPECT_EQ(view_->minimumSize(), QSize(900, 640));
}

TEST_F(frmViewTest, start_putsTheFocusWhereTheUserGoesOn) {
    Global::Main();
    ASSERT_NE(view_->focusWidget(), nullptr);
    EXPECT_EQ(view_->focusWidget()->objectName(), QStringLiteral("cboProfileName"));
}

TEST_F(frmViewTest, firstRun_profilePaneIsInFrontInItsNewState) {
    startEmpty();
    expectProfilePane();
    EXPECT_TRUE(pressed("PROFILE"));
    EXPECT_EQ(view_->Mode, QStringLiteral("INSERT"));
    EXPECT_EQ(panel("Profile"), QString());
    EXPECT_EQ(panel("Location"), QString());
    EXPECT_EQ(band("vsTopProfile"), QString());
}

TEST_F(frmViewTest, firstRun_locationPaneReachesItsNewStateAtTheFirstPressOfItsButton) {
    startEmpty();
    EXPECT_TRUE(enabled("mnuAdviceRooms"));
    pressToolbar("LOCATION");
    expectLocationPane();
    EXPECT_EQ(view_->Mode, QStringLiteral("INSERT"));
    EXPECT_FALSE(enabled("mnuAdviceRooms"));
    EXPECT_TRUE(pressed("LOCATION"));
}

TEST_F(frmViewTest, lastProfileNamesNoRecord_profilePaneGoesToItsNewStateAlthoughThereAreOthers) {
    forgetLast();
    Global::Main();
    EXPECT_EQ(view_->Mode, QStringLiteral("INSERT"));
    EXPECT_EQ(band("vsTopProfile"), QString());
    EXPECT_EQ(control<QComboBox>(*view_, "cboProfileName").count(), 2);
}

TEST_F(frmViewTest, lastLocationNamesNoRecord_hiddenPaneStaysBlankUntilItsButtonSelectsTheFirst) {
    forgetLast();
    Global::Main();
    EXPECT_EQ(band("vsTopLocation"), QString());
    EXPECT_TRUE(enabled("mnuAdviceRooms"));
    pressToolbar("LOCATION");
    EXPECT_EQ(Global::CurrentLocation->LocationID, 1);
    EXPECT_EQ(band("vsTopLocation"), Global::CurrentLocation->DESCRIPTION);
    EXPECT_EQ(panel("Location"), Global::CurrentLocation->DESCRIPTION);
    EXPECT_EQ(world_.settings.text(startUp_, QStringLiteral("LastLocation")), QStringLiteral("1"));
}

TEST_F(frmViewTest, withoutSharedObjects_makesThemInTheirNewState) {
    view_->Show();
    ASSERT_NE(Global::CurrentLocation, nullptr);
    ASSERT_NE(Global::CurrentProfile, nullptr);
    EXPECT_NE(Global::CurrentLocation->oXMLRooms, nullptr);
    EXPECT_EQ(panel("Location"), QString());
    EXPECT_EQ(panel("Profile"), QString());
    EXPECT_EQ(view_->Mode, QStringLiteral("INSERT"));
    EXPECT_TRUE(pressed("PROFILE"));
    EXPECT_FALSE(enabled("mnuAdviceRooms"));
    expectProfilePane();
}

TEST_F(frmViewTest, negativeIds_selectTheFirstEntriesAndRememberThem) {
    Global::CurrentLocation = std::make_unique<cLocation>();
    Global::CurrentLocation->LoadLocations();
    Global::CurrentLocation->LoadFloors();
    Global::CurrentLocation->LocationID = -1;
    Global::CurrentProfile = std::make_unique<cProfile>();
    Global::CurrentProfile->PROFILEID = -1;
    forgetLast();
    view_->Show();
    EXPECT_EQ(Global::CurrentLocation->LocationID, 1);
    EXPECT_EQ(Global::CurrentProfile->PROFILEID, 1);
    EXPECT_EQ(world_.settings.text(startUp_, QStringLiteral("LastLocation")), QStringLiteral("1"));
    EXPECT_EQ(world_.settings.text(startUp_, QStringLiteral("LastProfile")), QStringLiteral("1"));
    EXPECT_EQ(panel("Profile"), Global::CurrentProfile->PROFILENAME);
}

TEST_F(frmViewTest, negativeIdsAndNoRecords_enterTheNewStates) {
    for (const char* name : {"Profiles.xml", "Locations.xml"}) {
        world_.write(QString::fromLatin1(name), recordFile({}));
    }
    Global::CurrentLocation = std::make_unique<cLocation>();
    Global::CurrentLocation->LoadLocations();
    Global::CurrentLocation->LocationID = -1;
    Global::CurrentProfile = std::make_unique<cProfile>();
    Global::CurrentProfile->PROFILEID = -1;
    view_->Show();
    EXPECT_EQ(view_->Mode, QStringLiteral("INSERT"));
    EXPECT_FALSE(enabled("mnuAdviceRooms"));
    EXPECT_TRUE(pressed("PROFILE"));
}

TEST_F(frmViewTest, Form_Load_placesThenOpensTheHomeThenThePerson) {
    // Each step is made to fail, so that the reports tell the order.
    world_.settings.setText(section_, QStringLiteral("Top"), QStringLiteral("high"));
    Global::CurrentLocation = std::make_unique<cLocation>();
    Global::CurrentProfile = std::make_unique<cProfile>();
    Global::CurrentProfile->oXMLProfiles.reset();
    const QString notSet = QStringLiteral("Object variable or With block variable not set");
    world_.prompts.expectError(QStringLiteral("Global.GetFormSettings"), 13, QStringLiteral("Type mismatch"));
    world_.prompts.expectError(QStringLiteral("frmView.FillLocations"), 91, notSet);
    world_.prompts.expectError(QStringLiteral("frmView.FillLocations"), 91, notSet);
    world_.prompts.expectError(QStringLiteral("cLocation.Get Location"), 91, notSet);
    world_.prompts.expectError(QStringLiteral("frmView.FillProfiles"), 91, notSet);
    world_.prompts.expectError(QStringLiteral("cProfile.Get Profile"), 91, notSet);
    view_->Show();
    EXPECT_TRUE(world_.prompts.isSatisfied());
    expectProfilePane();
}

TEST_F(frmViewTest, Show_again_loadsNothingAnew) {
    Global::Main();
    Global::CurrentProfile->PROFILENAME = QStringLiteral("changed");
    view_->Show();
    EXPECT_EQ(Global::CurrentProfile->PROFILENAME, QStringLiteral("changed"));
}

// The toolbar.

TEST_F(frmViewTest, toolbar_switchesPanesAndMenus) {
    Global::Main();
    pressToolbar("LOCATION");
    expectLocationPane();
    EXPECT_TRUE(pressed("LOCATION"));
    EXPECT_FALSE(pressed("PROFILE"));
    pressToolbar("PROFILE");
    expectProfilePane();
    EXPECT_TRUE(pressed("PROFILE"));
}

TEST_F(frmViewTest, toolbar_awayAndBack_reloadsTheStoredValuesWithoutAQuestion) {
    Global::Main();
    const QString stored = Global::CurrentProfile->PROFILENAME;
    Global::CurrentProfile->PROFILENAME = QStringLiteral("typed over");
    Global::CurrentProfile->IsDirty = true;
    pressToolbar("LOCATION");
    pressToolbar("PROFILE");
    EXPECT_EQ(Global::CurrentProfile->PROFILENAME, stored);
    EXPECT_FALSE(Global::CurrentProfile->IsDirty);
    EXPECT_EQ(panel("Profile"), stored);
}

TEST_F(frmViewTest, oneModeServesBothPanes_newLocationThenProfilePane_endsInUpdate) {
    Global::Main();
    pressToolbar("LOCATION");
    view_->NewLocation();
    EXPECT_EQ(view_->Mode, QStringLiteral("INSERT"));
    pressToolbar("PROFILE");
    EXPECT_EQ(view_->Mode, QStringLiteral("UPDATE"));
}

TEST_F(frmViewTest, profileButton_withoutAPerson_selectsTheFirstOfTheList) {
    forgetLast();
    Global::Main();
    EXPECT_EQ(view_->Mode, QStringLiteral("INSERT"));
    pressToolbar("PROFILE");
    EXPECT_EQ(Global::CurrentProfile->PROFILEID, 1);
    EXPECT_EQ(panel("Profile"), Global::CurrentProfile->PROFILENAME);
    EXPECT_EQ(band("vsTopProfile"), QStringLiteral("  ") + Global::CurrentProfile->PROFILENAME);
    EXPECT_EQ(world_.settings.text(startUp_, QStringLiteral("LastProfile")), QStringLiteral("1"));
}

TEST_F(frmViewTest, profileButton_withoutAPersonInTheStore_entersTheNewStateAgain) {
    startEmpty();
    pressToolbar("LOCATION");
    view_->Mode = QStringLiteral("UPDATE");
    pressToolbar("PROFILE");
    EXPECT_EQ(view_->Mode, QStringLiteral("INSERT"));
    EXPECT_TRUE(pressed("PROFILE"));
    expectProfilePane();
}

TEST_F(frmViewTest, buttons_withoutSharedObjects_makeThemAnew) {
    Global::Main();
    Global::CurrentLocation.reset();
    Global::CurrentProfile.reset();
    pressToolbar("LOCATION");
    ASSERT_NE(Global::CurrentLocation, nullptr);
    EXPECT_EQ(view_->Mode, QStringLiteral("INSERT"));
    expectLocationPane();
    pressToolbar("PROFILE");
    ASSERT_NE(Global::CurrentProfile, nullptr);
    expectProfilePane();
}

TEST_F(frmViewTest, toolbar_worksFromTheKeyboard) {
    Global::Main();
    auto& button = control<QToolButton>(*view_, "LOCATION");
    button.setFocus();
    QTest::keyClick(&button, Qt::Key_Space);
    expectLocationPane();
}

TEST_F(frmViewTest, toolbar_buttonsHaveTheirTextsAndPictures) {
    const auto expectButton = [&](const char* key, const char* caption, const char* description,
                                  const char* tip) {
        const auto& button = control<QToolButton>(*view_, key);
        EXPECT_EQ(button.text(), QString::fromLatin1(caption));
        EXPECT_EQ(button.toolTip(), QString::fromLatin1(tip));
        EXPECT_EQ(button.whatsThis(), QString::fromLatin1(description));
        EXPECT_EQ(button.iconSize(), QSize(32, 32));
        EXPECT_FALSE(button.icon().pixmap(32).isNull());
    };
    expectButton("PROFILE", "Profiles", "Choose a profile!", "Click to choose or edit a profile");
    expectButton("LOCATION", "Locations", "Choose or edit locations", "Click to choose or edit a location");
    EXPECT_EQ(control<QToolBar>(*view_, "tlbNavigation").parentWidget()->objectName(),
              QStringLiteral("cbrNavigation"));
}

TEST_F(frmViewTest, NewProfile_pressesItsButtonWithoutSwitchingThePane) {
    Global::Main();
    pressToolbar("LOCATION");
    view_->NewProfile();
    EXPECT_TRUE(pressed("PROFILE"));
    EXPECT_FALSE(pressed("LOCATION"));
    expectLocationPane();
}

// The panes.

TEST_F(frmViewTest, lists_holdTheRecordsInFileOrderUpToTheFirstWithoutAName) {
    world_.write(QStringLiteral("Profiles.xml"), recordFile({R"(<z:row PROFILEID="7" PROFILENAME="Zoe"/>)",
                                                             R"(<z:row PROFILEID="3" PROFILENAME="Al"/>)",
                                                             R"(<z:row PROFILEID="4" PROFILENAME=""/>)",
                                                             R"(<z:row PROFILEID="5" PROFILENAME="Di"/>)"}));
    forgetLast();
    Global::Main();
    auto& combo = control<QComboBox>(*view_, "cboProfileName");
    const ComboList list(combo);
    ASSERT_EQ(list.ListCount(), 2);
    EXPECT_EQ(combo.itemText(0), QStringLiteral("Zoe"));
    EXPECT_EQ(list.ItemData(0), 7);
    EXPECT_EQ(list.ItemData(1), 3);
    EXPECT_EQ(list.ListIndex(), -1);
}

TEST_F(frmViewTest, choosingAPerson_showsItAndRemembersIt) {
    Global::Main();
    control<QComboBox>(*view_, "cboProfileName").setCurrentIndex(1);
    EXPECT_EQ(Global::CurrentProfile->PROFILEID, 2);
    EXPECT_EQ(panel("Profile"), Global::CurrentProfile->PROFILENAME);
    EXPECT_EQ(band("vsTopProfile"), QStringLiteral("  ") + Global::CurrentProfile->PROFILENAME);
    EXPECT_EQ(world_.settings.text(startUp_, QStringLiteral("LastProfile")), QStringLiteral("2"));
}

TEST_F(frmViewTest, names_haveTheirAmpersandsDoubledInTheBandsAndSingleInTheStatusBar) {
    world_.write(QStringLiteral("Profiles.xml"),
                 world_.read(QStringLiteral("Profiles.xml")).replace("Ann Example", "Ann &amp; Co"));
    world_.write(QStringLiteral("Locations.xml"),
                 world_.read(QStringLiteral("Locations.xml")).replace("Elm Street", "Elm &amp; Oak"));
    Global::Main();
    EXPECT_EQ(band("vsTopProfile"), QStringLiteral("  Ann && Co"));
    EXPECT_EQ(panel("Profile"), QStringLiteral("Ann & Co"));
    EXPECT_EQ(band("vsTopLocation"), QStringLiteral("Elm && Oak"));
    EXPECT_EQ(panel("Location"), QStringLiteral("Elm & Oak"));
    EXPECT_EQ(control<TitleBand>(*view_, "vsTopProfile").text(), QStringLiteral("  Ann & Co"));
}

TEST_F(frmViewTest, longNames_neitherClipNorWidenTheWindow) {
    const QByteArray longName = QByteArray("Anastasia Bartholomew ").repeated(30);
    world_.write(QStringLiteral("Profiles.xml"),
                 world_.read(QStringLiteral("Profiles.xml")).replace("Ann Example", longName));
    Global::Main();
    view_->resize(900, 640);
    EXPECT_EQ(view_->width(), 900);
    EXPECT_TRUE(control<TitleBand>(*view_, "vsTopProfile").shownText().endsWith(QChar(0x2026)));
    EXPECT_TRUE(control<ElidedLabel>(*view_, "Profile").shownText().endsWith(QChar(0x2026)));
}

TEST_F(frmViewTest, OpenLocation_enablesTheRoomReportAndNewLocationDisablesIt) {
    Global::Main();
    EXPECT_TRUE(enabled("mnuAdviceRooms"));
    view_->NewLocation();
    EXPECT_FALSE(enabled("mnuAdviceRooms"));
    pressToolbar("LOCATION");
    EXPECT_TRUE(enabled("mnuAdviceRooms"));
}

TEST_F(frmViewTest, newProfile_leavesTheRoomReportAsItStands) {
    Global::Main();
    view_->NewProfile();
    EXPECT_TRUE(enabled("mnuAdviceRooms"));
}
