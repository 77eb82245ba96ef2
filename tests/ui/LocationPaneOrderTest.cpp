// The order of what the pane does: files, settings, boxes, panels, menu entries.

#include "core/Global.h"
#include "locations/cLocation.h"
#include "profiles/cProfile.h"
#include "support/RecordFiles.h"
#include "support/WindowDriver.h"
#include "ui/LocationPane.h"
#include "ui/PaneJournal.h"
#include "ui/widgets/RecordList.h"

#include <QLineEdit>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace WindowDriver;

namespace {

class LocationPaneOrderTest : public testing::Test {
protected:
    TestWorld world_{TestWorld::Records::Sample};
    Journal journal_{world_, u"Locations.xml"_s};
    NotedSettings settings_{world_.settings, journal_};
    NotedFrame frame_{journal_, {u"mnuLocationsSave"_s, u"mnuLocationsDirections"_s}};
    std::unique_ptr<LocationPane> pane_ = std::make_unique<LocationPane>(frame_);

    const QStringList openState_{u"mnuLocationsSave off"_s, u"mnuLocationsDirections on"_s};
    const QStringList newState_{u"mnuLocationsSave on"_s, u"mnuLocationsDirections off"_s};
    const QStringList listFilled_{u"list emptied"_s, u"listed 0"_s};

    void SetUp() override {
        Services services = Global::services();
        services.settings = &settings_;
        Global::use(services);
        Global::CurrentProfile = std::make_unique<cProfile>();
        Global::CurrentLocation = std::make_unique<cLocation>();
        Global::CurrentLocation->LoadLocations();
        Global::CurrentLocation->LoadFloors();
        Global::CurrentLocation->LoadRooms();
        auto& list = control<RecordList>(*pane_, "cboLocation");
        QObject::connect(list.model(), &QAbstractItemModel::rowsRemoved, pane_.get(),
                         [this] { journal_.note(u"list emptied"_s); });
        QObject::connect(list.model(), &QAbstractItemModel::rowsInserted, pane_.get(),
                         [this](const QModelIndex& /*parent*/, int row) {
                             journal_.note(u"listed "_s + QString::number(row));
                         });
        auto& floors = control<QComboBox>(*pane_, "cboFloors");
        floors.disconnect(pane_.get()); // the choice of a floor is what counts here, not its rooms
        QObject::connect(&floors, &QComboBox::currentIndexChanged, pane_.get(), [this](int index) {
            if (index >= 0) {
                journal_.note(u"floor "_s + QString::number(index));
            }
        });
        world_.prompts.whileShown = [this] { journal_.note(u"box"_s); };
        journal_.mode = &frame_.Mode;
        pane_->OpenLocation(1);
        pane_->show();
        journal_.take();
    }
    void TearDown() override {
        pane_.reset();
        Global::CurrentProfile.reset();
        Global::CurrentLocation.reset();
    }
    void press(const char* button) { click(*pane_, button); }
    void rename(const QString& name) {
        auto& list = control<RecordList>(*pane_, "cboLocation");
        list.lineEdit()->selectAll();
        QTest::keyClicks(list.lineEdit(), name);
        journal_.take();
    }
};

} // namespace

TEST_F(LocationPaneOrderTest, New_modeButtonThenState) {
    press("cmdNewLocation");
    EXPECT_EQ(journal_.take(), QStringList({u"mode INSERT"_s, u"button LOCATION"_s}) + newState_);
}

TEST_F(LocationPaneOrderTest, Save_ofAnOpenHome_storesThenOpensItAnew) {
    rename(u"A"_s);
    press("cmdSaveLocation");
    EXPECT_EQ(journal_.take(), QStringList({u"file saved"_s, u"panel A"_s}) + listFilled_ + openState_ +
                                   QStringList(u"floor 0"_s));
}

TEST_F(LocationPaneOrderTest, Save_ofANewHome_storesRemembersShowsAndOpensIt) {
    press("cmdNewLocation");
    QTest::keyClicks(&control<QLineEdit>(*pane_, "txtLocation"), u"B"_s);
    journal_.take();
    press("cmdSaveLocation");
    EXPECT_EQ(journal_.take(),
              QStringList({u"file saved"_s, u"LastLocation=2"_s, u"panel B"_s, u"mode UPDATE"_s}) +
                  QStringList({u"list emptied"_s, u"listed 0"_s, u"listed 1"_s}) + openState_ +
                  QStringList(u"floor 0"_s));
}

TEST_F(LocationPaneOrderTest, Cancel_opensTheStateThenShowsTheHomeThatWas) {
    press("cmdNewLocation");
    journal_.take();
    press("cmdNewLocation");
    EXPECT_EQ(journal_.take(), openState_ + QStringList({u"floor 0"_s, u"LastLocation=1"_s,
                                                         u"panel Elm Street"_s, u"mnuLocationsSave off"_s}));
}

TEST_F(LocationPaneOrderTest, New_withUnsavedChanges_asksAndSavesFirst) {
    rename(u"A"_s);
    world_.prompts.expectMessage(u"New Location"_s,
                                 u"Would you like to save the changes to this location before proceeding?"_s,
                                 MessageIcon::Question, MessageAnswer::Yes);
    press("cmdNewLocation");
    EXPECT_EQ(journal_.take(), QStringList({u"box"_s, u"file saved"_s, u"panel A"_s}) + listFilled_ +
                                   openState_ + QStringList(u"floor 0"_s) +
                                   QStringList({u"mode INSERT"_s, u"button LOCATION"_s}) + newState_);
}
