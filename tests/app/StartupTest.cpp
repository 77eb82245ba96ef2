#include "app/Startup.h"

#include "core/Global.h"
#include "locations/cLocation.h"
#include "profiles/cProfile.h"
#include "support/QtPrinting.h"
#include "support/TestWorld.h"

#include <gtest/gtest.h>

#include <functional>

namespace {

class WatchedMainWindow final : public MainWindow {
public:
    std::function<void()> onShow = [] {};
    qint32 shown = 0;

    void Show() override {
        ++shown;
        onShow();
    }
    void NewProfile() override { ADD_FAILURE() << "NewProfile was called"; }
    void NewLocation() override { ADD_FAILURE() << "NewLocation was called"; }
};

class StartupTest : public testing::Test {
protected:
    TestWorld world_{TestWorld::Records::Sample};
    WatchedMainWindow window_;
    const QString startUp_ = Global::settingsSection(QStringLiteral("StartUp"));

    void SetUp() override {
        Services services = Global::services();
        services.mainWindow = &window_;
        Global::use(services);
    }
    void TearDown() override {
        Global::CurrentProfile.reset();
        Global::CurrentLocation.reset();
    }
    void remember(const char* profile, const char* location) {
        world_.settings.setText(startUp_, QStringLiteral("LastProfile"), QString::fromLatin1(profile));
        world_.settings.setText(startUp_, QStringLiteral("LastLocation"), QString::fromLatin1(location));
    }
};

} // namespace

TEST_F(StartupTest, Main_restoresTheLastPersonAndHomeBeforeTheWindowShows) {
    remember("2", "1");
    Global::RegionalDecimal.clear();
    window_.onShow = [] {
        EXPECT_EQ(Global::RegionalDecimal, QStringLiteral("."));
        ASSERT_NE(Global::CurrentLocation, nullptr);
        ASSERT_NE(Global::CurrentProfile, nullptr);
        EXPECT_EQ(Global::CurrentLocation->LocationID, 1);
        EXPECT_EQ(Global::CurrentProfile->PROFILEID, 2);
        EXPECT_NE(Global::CurrentLocation->oXMLLocations, nullptr);
        EXPECT_NE(Global::CurrentLocation->oXMLFloors, nullptr);
        EXPECT_NE(Global::CurrentLocation->oXMLRooms, nullptr);
    };
    Global::Main();
    EXPECT_EQ(window_.shown, 1);
}

TEST_F(StartupTest, Main_withoutSettings_opensTheWindowWithNoCurrentRecord) {
    Global::Main();
    EXPECT_EQ(window_.shown, 1);
    EXPECT_EQ(Global::CurrentLocation->LocationID, 0);
    EXPECT_EQ(Global::CurrentProfile->PROFILEID, 0);
    EXPECT_TRUE(world_.settings.isEmpty());
}

TEST_F(StartupTest, Main_emptySettings_skipTheLookUps) {
    // A look-up without an id would ask the window for a new record.
    remember("", "");
    Global::Main();
    EXPECT_EQ(window_.shown, 1);
    EXPECT_EQ(Global::CurrentLocation->LocationID, 0);
    EXPECT_EQ(Global::CurrentProfile->PROFILEID, 0);
}

TEST_F(StartupTest, Main_recordsThatAreGone_leaveTheObjectsEmpty) {
    remember("99", "99");
    Global::Main();
    EXPECT_EQ(window_.shown, 1);
    EXPECT_EQ(Global::CurrentLocation->LocationID, 0);
    EXPECT_EQ(Global::CurrentProfile->PROFILENAME, QString());
}

TEST_F(StartupTest, Main_regionalDecimal_isTheMonetaryOne) {
    world_.setLocale(QLocale(QLocale::German, QLocale::Germany));
    Services services = Global::services();
    services.mainWindow = &window_;
    Global::use(services);
    Global::RegionalDecimal.clear();
    Global::Main();
    EXPECT_EQ(Global::RegionalDecimal, QStringLiteral(","));
}

TEST_F(StartupTest, Main_settingsThatCannotBeReached_areReportedAndNoWindowShows) {
    Services services = Global::services();
    services.mainWindow = nullptr;
    Global::use(services);
    world_.prompts.expectError(QStringLiteral("Global.Main"), 91,
                               QStringLiteral("Object variable or With block variable not set"));
    Global::Main();
    EXPECT_EQ(window_.shown, 0);
}

TEST_F(StartupTest, Main_damagedRecordFiles_areNoFailure) {
    remember("0", "0");
    for (const char* name : {"Profiles.xml", "Locations.xml", "Floors.xml", "Rooms.xml"}) {
        world_.write(QString::fromLatin1(name), "<xml><not closed");
    }
    // The first use of a file that did not load is reported, here by the repair of decimal separators and by
    // the look-ups, and the window shows all the same.
    for (const char* label :
         {"cXMLHandler.Move First", "cXMLHandler.Move First", "cXMLHandler.Find", "cXMLHandler.Find"}) {
        world_.prompts.expectError(QString::fromLatin1(label), 91);
    }
    Global::Main();
    EXPECT_EQ(window_.shown, 1);
}
