// The main window's menus, its end and its reach by keyboard.

#include "ui/frmViewTest.h"

using namespace WindowDriver;

namespace {

QStringList names(std::initializer_list<const char*> texts) {
    QStringList list;
    for (const char* text : texts) {
        list << QString::fromLatin1(text);
    }
    return list;
}

} // namespace

// The menus.

TEST_F(frmViewTest, menus_haveTheirCaptionsAndOrder) {
    QStringList titles;
    for (const QAction* menu : view_->menuBar()->actions()) {
        titles << menu->menu()->objectName() + u'=' + menu->text();
    }
    EXPECT_EQ(titles, names({"mnuFile=&File", "mnuProfiles=&Profiles", "mnuLocations=&Locations",
                             "mnuAdvice=&Advice", "mnuHelp=&Help"}));
    EXPECT_EQ(entriesOf("mnuFile"), names({"mnuFileExit=E&xit"}));
    EXPECT_EQ(entriesOf("mnuProfiles"), names({"mnuProfilesNew=&New Profile", "mnuProfilesSave=&Save Profile",
                                               "mnuProfilesDelete=&Delete Profile", "mnuProfilesSep1",
                                               "mnuProfilesCalcKUA=&Calculate KUA"}));
    EXPECT_EQ(entriesOf("mnuLocations"),
              names({"mnuLocationsNew=&New Location", "mnuLocationsSave=&Save Location",
                     "mnuLocationsDelete=&Delete Location", "mnuLocationsSep1",
                     "mnuLocationsDirections=Set Directions...", "mnuLocationsSep2",
                     "mnuLocationsNewFloor=New Floor", "mnuLocationsRenameFloor=Rename Floor...",
                     "mnuLocationsDeleteFloor=Delete Floor", "mnuLocationsSep3",
                     "mnuLocationsOpenRoom=Open Room...", "mnuLocationsNewRoom=New Room...",
                     "mnuLocationsDeleteRoom=Delete Room"}));
    EXPECT_EQ(entriesOf("mnuAdvice"),
              names({"mnuAdviceMoving=On &Moving...", "mnuAdviceRenovations=On Re&novations...",
                     "mnuAdviceNineKi=On Nine &Ki Chart...", "mnuAdviceRooms=On &Rooms...",
                     "mnuAdviceElement=On &Elements...", "mnuAdviceProfile=On &Profiles..."}));
    EXPECT_EQ(entriesOf("mnuHelp"),
              names({"mnuHelpFaqs=&FAQs", "mnuHelpSupport=&Support", "mnuAbout=&About..."}));
}

TEST_F(frmViewTest, everyEntry_hasSomethingToRun) {
    for (const QAction* entry : view_->findChildren<QAction*>(QRegularExpression(QStringLiteral("^mnu")))) {
        EXPECT_TRUE(entry->isSeparator() || entry->menu() != nullptr || entry->property("connected").toBool())
            << qPrintable(entry->objectName());
    }
}

TEST_F(frmViewTest, mnuProfilesCalcKUA_doesNothing) {
    Global::Main();
    const qint32 number = Global::CurrentProfile->KUANUMBER;
    choose(*view_, "mnuProfiles", "mnuProfilesCalcKUA");
    EXPECT_EQ(Global::CurrentProfile->KUANUMBER, number);
    EXPECT_FALSE(Global::CurrentProfile->IsDirty);
}

TEST_F(frmViewTest, mnuAdviceRooms_opensTheReportOfTheWholeHome) {
    Global::Main();
    whileModal([&] { choose(*view_, "mnuAdvice", "mnuAdviceRooms"); },
               [](QWidget& window) {
                   EXPECT_EQ(window.objectName(), QStringLiteral("frmPrintPreview"));
                   EXPECT_EQ(window.parentWidget()->objectName(), QStringLiteral("frmView"));
               });
    EXPECT_TRUE(view_->isVisible());
}

TEST_F(frmViewTest, adviceEntries_openTheirWindowsForTheCurrentPerson) {
    Global::Main();
    const auto opens = [&](const char* entry, const char* name, const char* caption) {
        whileModal([&] { choose(*view_, "mnuAdvice", entry); },
                   [&](QWidget& window) {
                       EXPECT_EQ(window.objectName(), QString::fromLatin1(name));
                       EXPECT_EQ(window.windowTitle(), QString::fromLatin1(caption));
                       EXPECT_EQ(window.parentWidget(), view_.get());
                       EXPECT_TRUE(window.isModal());
                   });
    };
    opens("mnuAdviceMoving", "frmNineKi", "Moving Advice");
    opens("mnuAdviceRenovations", "frmNineKi", "Renovation/Redecoration Advice");
    opens("mnuAdviceNineKi", "frmNineKi", "Nine Ki Year Charts");
    opens("mnuAdviceElement", "frmElements", "Elements");
    opens("mnuAdviceProfile", "frmProfiles", "Profiles");
}

TEST_F(frmViewTest, adviceEntries_withoutAStoredPerson_onlyElementsOpen) {
    startEmpty();
    EXPECT_FALSE(enabled("mnuAdviceMoving"));
    EXPECT_FALSE(enabled("mnuAdviceRenovations"));
    EXPECT_FALSE(enabled("mnuAdviceNineKi"));
    EXPECT_FALSE(enabled("mnuAdviceProfile"));
    whileModal([&] { choose(*view_, "mnuAdvice", "mnuAdviceElement"); },
               [](QWidget& window) { EXPECT_EQ(window.objectName(), QStringLiteral("frmElements")); });
}

TEST_F(frmViewTest, mnuAdviceRooms_withoutAnyHome_showsAnEmptyReport) {
    startEmpty();
    whileModal([&] { choose(*view_, "mnuAdvice", "mnuAdviceRooms"); },
               [](QWidget& window) { EXPECT_EQ(window.objectName(), QStringLiteral("frmPrintPreview")); });
}

// The end.

TEST_F(frmViewTest, mnuFileExit_closesAndStoresThePlacementAndNothingElse) {
    Global::Main();
    view_->move(20, 10);
    const qsizetype before = world_.settings.writes().size();
    choose(*view_, "mnuFile", "mnuFileExit");
    EXPECT_FALSE(view_->isVisible());
    const QStringList written = world_.settings.writes().mid(before);
    ASSERT_EQ(written.size(), 5);
    const QStringList order = names({"WindowState", "Top", "Left", "Height", "Width"});
    for (qsizetype i = 0; i < order.size(); ++i) {
        EXPECT_TRUE(written.at(i).startsWith(section_ + u'|' + order.at(i) + u'='))
            << qPrintable(written.at(i));
    }
}

TEST_F(frmViewTest, closingWithUnsavedChanges_asksNothing) {
    Global::Main();
    Global::CurrentProfile->IsDirty = true;
    Global::CurrentLocation->IsDirty = true;
    view_->close();
    EXPECT_FALSE(view_->isVisible());
}

TEST_F(frmViewTest, placement_comesBackAtTheNextStart) {
    Global::Main();
    view_->move(0, 20); // the tests' screen is narrower than the window, which is kept on it
    view_->close();
    frmView again;
    Services services = Global::services();
    services.mainWindow = &again;
    Global::use(services);
    Global::Main();
    EXPECT_EQ(again.pos(), QPoint(0, 20));
}

TEST_F(frmViewTest, closedMaximized_opensMaximized) {
    world_.settings.setText(section_, QStringLiteral("WindowState"), QStringLiteral("MAXIMIZED"));
    Global::Main();
    EXPECT_TRUE(view_->isMaximized());
}

TEST_F(frmViewTest, unknownWindowState_opensMinimized) {
    world_.settings.setText(section_, QStringLiteral("WindowState"), QStringLiteral("upside down"));
    Global::Main();
    EXPECT_TRUE(view_->isMinimized());
}

// Reach.

TEST_F(frmViewTest, tab_goesThroughNamedControlsAndThroughTheToolbarFirst) {
    Global::Main();
    expectNamedControls(*view_);
    ASSERT_GE(tabOrder(*view_).size(), 3U);
    EXPECT_EQ(tabOrder(*view_).at(0)->objectName(), QStringLiteral("PROFILE"));
    EXPECT_EQ(tabOrder(*view_).at(1)->objectName(), QStringLiteral("LOCATION"));
    EXPECT_EQ(tabOrder(*view_).at(2)->objectName(), QStringLiteral("cboProfileName"));
}

TEST_F(frmViewTest, everyNamedPanel_isThere) {
    for (const char* name : {"cbrNavigation", "tlbNavigation", "vsMain", "vsMainProfile", "vsMainLocation",
                             "sbInfo", "vsTopProfile", "vsTopLocation", "cboProfileName", "cboLocation"}) {
        EXPECT_FALSE(control(*view_, name).objectName().isEmpty());
    }
    for (const char* name :
         {"cbrNavigation", "tlbNavigation", "vsMain", "vsMainProfile", "vsMainLocation", "sbInfo"}) {
        EXPECT_FALSE(control(*view_, name).accessibleName().isEmpty()) << name;
    }
}
