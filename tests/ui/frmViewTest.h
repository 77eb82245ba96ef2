#pragma once

#include "app/Startup.h"
#include "core/Global.h"
#include "locations/cLocation.h"
#include "profiles/cProfile.h"
#include "support/QtPrinting.h"
#include "support/RecordFiles.h"
#include "support/TestWorld.h"
#include "support/WindowDriver.h"
#include "ui/StatusPanels.h"
#include "ui/frmView.h"
#include "ui/platform/ComboList.h"
#include "ui/widgets/TitleBand.h"

#include <QComboBox>
#include <QMenuBar>
#include <QToolBar>
#include <QToolButton>
#include <gtest/gtest.h>

/// The main window over a household; not yet shown.
class frmViewTest : public testing::Test {
protected:
    TestWorld world_{TestWorld::Records::Sample};
    std::unique_ptr<frmView> view_ = std::make_unique<frmView>();
    const QString startUp_ = Global::settingsSection(QStringLiteral("StartUp"));
    const QString section_ = Global::settingsSection(QStringLiteral("frmView"));

    void SetUp() override {
        Services services = Global::services();
        services.mainWindow = view_.get();
        Global::use(services);
        world_.settings.setText(startUp_, QStringLiteral("LastProfile"), QStringLiteral("1"));
        world_.settings.setText(startUp_, QStringLiteral("LastLocation"), QStringLiteral("1"));
    }
    void TearDown() override {
        view_.reset();
        Global::CurrentProfile.reset();
        Global::CurrentLocation.reset();
    }
    /// Starts the program without any records.
    void startEmpty() {
        for (const char* name : {"Profiles.xml", "Locations.xml", "Floors.xml", "Rooms.xml"}) {
            world_.write(QString::fromLatin1(name), recordFile({}));
        }
        forgetLast();
        Global::Main();
    }
    void forgetLast() {
        for (const char* name : {"LastProfile", "LastLocation"}) {
            world_.settings.removeValue(startUp_, QString::fromLatin1(name));
        }
    }
    void pressToolbar(const char* key) {
        QTest::mouseClick(&WindowDriver::control<QToolButton>(*view_, key), Qt::LeftButton);
    }
    [[nodiscard]] bool pressed(const char* key) const {
        return WindowDriver::control<QToolButton>(*view_, key).isChecked();
    }
    [[nodiscard]] QString panel(const char* key) const {
        return WindowDriver::control<StatusPanels>(*view_, "sbInfo").panel(QString::fromLatin1(key));
    }
    [[nodiscard]] QString band(const char* name) const {
        return WindowDriver::control<TitleBand>(*view_, name).caption();
    }
    [[nodiscard]] bool visible(const char* name) const {
        return WindowDriver::control(*view_, name).isVisible();
    }
    [[nodiscard]] bool menuVisible(const char* name) const {
        return WindowDriver::control<QMenu>(*view_, name).menuAction()->isVisible();
    }
    [[nodiscard]] bool enabled(const char* entry) const {
        return WindowDriver::control<QAction>(*view_, entry).isEnabled();
    }
    [[nodiscard]] QStringList entriesOf(const char* menu) const {
        QStringList found;
        for (const QAction* entry : WindowDriver::control<QMenu>(*view_, menu).actions()) {
            found << (entry->isSeparator() ? entry->objectName()
                                           : entry->objectName() + u'=' + entry->text());
        }
        return found;
    }
    void expectProfilePane() const {
        EXPECT_EQ(view_->CurrentPane, QStringLiteral("PROFILE"));
        EXPECT_TRUE(visible("vsMainProfile"));
        EXPECT_FALSE(visible("vsMainLocation"));
        EXPECT_TRUE(menuVisible("mnuProfiles"));
        EXPECT_FALSE(menuVisible("mnuLocations"));
    }
    void expectLocationPane() const {
        EXPECT_EQ(view_->CurrentPane, QStringLiteral("LOCATION"));
        EXPECT_FALSE(visible("vsMainProfile"));
        EXPECT_TRUE(visible("vsMainLocation"));
        EXPECT_FALSE(menuVisible("mnuProfiles"));
        EXPECT_TRUE(menuVisible("mnuLocations"));
    }
};
