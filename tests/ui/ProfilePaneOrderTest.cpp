#include "core/Global.h"
#include "profiles/cProfile.h"
#include "support/QtPrinting.h"
#include "support/RecordFiles.h"
#include "support/TestWorld.h"
#include "support/WindowDriver.h"
#include "ui/PaneJournal.h"
#include "ui/ProfilePane.h"
#include "ui/widgets/RecordList.h"

#include <QLineEdit>
#include <QRadioButton>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace WindowDriver;

namespace {

class ProfilePaneOrderTest : public testing::Test {
protected:
    TestWorld world_{TestWorld::Records::Sample};
    Journal journal_{world_, u"Profiles.xml"_s};
    NotedSettings settings_{world_.settings, journal_};
    NotedFrame frame_{journal_, {u"mnuProfilesSave"_s, u"mnuAdviceProfile"_s}};
    std::unique_ptr<ProfilePane> pane_ = std::make_unique<ProfilePane>(frame_);
    const QStringList newState_{u"mnuProfilesSave on"_s, u"mnuAdviceProfile off"_s};
    const QStringList openState_{u"mnuProfilesSave off"_s, u"mnuAdviceProfile on"_s};

    void SetUp() override {
        Services services = Global::services();
        services.settings = &settings_;
        Global::use(services);
        Global::CurrentProfile = std::make_unique<cProfile>();
        auto& list = control<RecordList>(*pane_, "cboProfileName");
        QObject::connect(list.model(), &QAbstractItemModel::rowsRemoved, pane_.get(),
                         [this] { journal_.note(u"list emptied"_s); });
        QObject::connect(list.model(), &QAbstractItemModel::rowsInserted, pane_.get(),
                         [this](const QModelIndex& /*parent*/, int row) {
                             journal_.note(u"listed "_s + QString::number(row));
                         });
        QObject::connect(&control<QLineEdit>(*pane_, "txt9Ki"), &QLineEdit::textChanged, pane_.get(),
                         [this](const QString& text) { journal_.note(u"number "_s + text); });
        world_.prompts.whileShown = [this] { journal_.note(u"box"_s); };
        journal_.mode = &frame_.Mode;
        pane_->FillProfiles();
        pane_->OpenProfile(1);
        pane_->show();
        journal_.take();
    }
    void TearDown() override {
        pane_.reset();
        Global::CurrentProfile.reset();
    }
    void press(const char* button) { click(*pane_, button); }
    void type(const char* name, const QString& text) {
        auto& field = control<QLineEdit>(*pane_, name);
        field.selectAll();
        QTest::keyClick(&field, Qt::Key_Delete);
        QTest::keyClicks(&field, text);
    }
    void rename(const QString& name) {
        auto& list = control<RecordList>(*pane_, "cboProfileName");
        list.lineEdit()->selectAll();
        QTest::keyClicks(&list, name);
        journal_.take();
    }
    void expectQuestion(const QString& title, MessageAnswer answer) {
        world_.prompts.expectMessage(
            title, u"Would you like to save the changes to this profile before proceeding?"_s,
            MessageIcon::Question, answer);
    }
};

} // namespace

TEST_F(ProfilePaneOrderTest, New_modeButtonStateThenABlankScreen) {
    press("cmdNewProfile");
    EXPECT_EQ(journal_.take(), QStringList({u"mode INSERT"_s, u"button PROFILE"_s}) + newState_ +
                                   QStringList({u"panel "_s, u"number "_s}));
}

TEST_F(ProfilePaneOrderTest, New_withUnsavedChanges_asksAndSavesFirst) {
    rename(u"A"_s);
    expectQuestion(u"New Profile"_s, MessageAnswer::Yes);
    press("cmdNewProfile");
    EXPECT_EQ(journal_.take(), QStringList({u"box"_s, u"file saved"_s, u"list emptied"_s, u"listed 0"_s,
                                            u"listed 1"_s, u"panel A"_s}) +
                                   openState_ + QStringList({u"mode INSERT"_s, u"button PROFILE"_s}) +
                                   newState_ + QStringList({u"panel "_s, u"number "_s}));
}

TEST_F(ProfilePaneOrderTest, Calculate_enablesSaveThenLoadsTheScreenAndStoresNothing) {
    type("txtBirthDate", u"1985-02-03"_s);
    journal_.take();
    press("cmdCalcProfile");
    EXPECT_EQ(journal_.take(), QStringList({u"mnuProfilesSave on"_s, u"number 8"_s}));
}

TEST_F(ProfilePaneOrderTest, Save_newPerson_insertsLoadsRemembersFillsAndOpens) {
    press("cmdNewProfile");
    type("txtProfileName", u"Cleo"_s);
    type("txtBirthDate", u"2/4/1985"_s);
    click(*pane_, "optFemale");
    press("cmdCalcProfile");
    journal_.take();
    press("cmdSaveProfile");
    EXPECT_EQ(journal_.take(),
              QStringList({u"file saved"_s, u"LastProfile=3"_s, u"panel Cleo"_s, u"list emptied"_s,
                           u"listed 0"_s, u"listed 1"_s, u"listed 2"_s, u"mode UPDATE"_s}) +
                  openState_ + QStringList({u"panel "_s, u"number "_s, u"number 9"_s}) + openState_);
}

TEST_F(ProfilePaneOrderTest, Save_storedPerson_updatesFillsLoadsAndNames) {
    rename(u"Anna"_s);
    type("txt9Ki", u"8.6"_s);
    journal_.take();
    press("cmdSaveProfile");
    // The screen shows the number that was stored only when it is loaded, after the list.
    EXPECT_EQ(journal_.take(), QStringList({u"file saved"_s, u"list emptied"_s, u"listed 0"_s, u"listed 1"_s,
                                            u"number 9"_s, u"panel Anna"_s}) +
                                   openState_);
}

TEST_F(ProfilePaneOrderTest, Save_refused_doesNothingElse) {
    type("txt9Ki", u"10"_s);
    journal_.take();
    world_.prompts.expectMessage(
        u"Save Profile"_s,
        u"Before you can save your profile, you must have a 9-Ki number with a value between 1 and 9 entered.  Click Calculate to generate your 9 Ki number based on your birthdate, or, if you know the number type it in the space provided."_s,
        MessageIcon::Information);
    press("cmdSaveProfile");
    EXPECT_EQ(journal_.take(), QStringList({u"box"_s}));
}

TEST_F(ProfilePaneOrderTest, Cancel_opensTheStateThenSelectsTheFormerPerson) {
    press("cmdNewProfile");
    journal_.take();
    press("cmdDelProfile");
    EXPECT_EQ(journal_.take(), openState_ + QStringList({u"number 9"_s, u"LastProfile=1"_s,
                                                         u"panel Ann Example"_s, u"mnuProfilesSave off"_s}));
    EXPECT_EQ(frame_.Mode, u"INSERT"_s);
}

TEST_F(ProfilePaneOrderTest, Delete_asksDeletesForgetsFillsAndOpensTheFirst) {
    world_.prompts.expectMessage(u"Delete Profile"_s,
                                 u"Are you sure that you want to delete profile: Ann Example?"_s,
                                 MessageIcon::Question, MessageAnswer::Yes);
    press("cmdDelProfile");
    EXPECT_EQ(journal_.take(), QStringList({u"box"_s, u"file saved"_s, u"LastProfile="_s, u"panel "_s,
                                            u"list emptied"_s, u"listed 0"_s}) +
                                   openState_ +
                                   QStringList({u"panel "_s, u"number "_s, u"number 7"_s, u"LastProfile=2"_s,
                                                u"panel Ben Example"_s, u"mnuProfilesSave off"_s}));
}

TEST_F(ProfilePaneOrderTest, Delete_fails_tellsSoAndForgetsNothing) {
    Global::CurrentProfile->PROFILEID = 9;
    frame_.Mode = u"INSERT"_s;
    journal_.take();
    world_.prompts.expectMessage(u"Delete Profile"_s,
                                 u"Are you sure that you want to delete profile: Ann Example?"_s,
                                 MessageIcon::Question, MessageAnswer::Yes);
    world_.prompts.expectMessage(
        u"Delete Profile"_s,
        u"There was an error while attempting to delete this profile, profile was not deleted."_s,
        MessageIcon::Information);
    press("cmdDelProfile");
    EXPECT_EQ(journal_.take(), QStringList({u"box"_s, u"box"_s, u"mode UPDATE"_s, u"list emptied"_s,
                                            u"listed 0"_s, u"listed 1"_s}) +
                                   openState_ +
                                   QStringList({u"panel "_s, u"number "_s, u"number 9"_s, u"LastProfile=1"_s,
                                                u"panel Ann Example"_s, u"mnuProfilesSave off"_s}));
}

TEST_F(ProfilePaneOrderTest, choice_loadsRemembersNamesAndDisablesSave) {
    control<RecordList>(*pane_, "cboProfileName").setCurrentIndex(1);
    EXPECT_EQ(journal_.take(), QStringList({u"number 7"_s, u"LastProfile=2"_s, u"panel Ben Example"_s,
                                            u"mnuProfilesSave off"_s}));
}

TEST_F(ProfilePaneOrderTest, choice_whileTheListIsFilledOrNothingIsSelected_doesNothing) {
    auto& list = control<RecordList>(*pane_, "cboProfileName");
    frame_.Filling = true;
    list.setCurrentIndex(1);
    frame_.Filling = false;
    list.setCurrentIndex(-1);
    EXPECT_EQ(journal_.take(), QStringList());
    EXPECT_EQ(Global::CurrentProfile->PROFILEID, 1);
}

TEST_F(ProfilePaneOrderTest, dropDown_withUnsavedChanges_yes_savesAsTheMenuDoes) {
    rename(u"Anna"_s);
    expectQuestion(u"Select Profile"_s, MessageAnswer::Yes);
    control<RecordList>(*pane_, "cboProfileName").showPopup();
    EXPECT_EQ(journal_.take(), QStringList({u"box"_s, u"file saved"_s, u"list emptied"_s, u"listed 0"_s,
                                            u"listed 1"_s, u"panel Anna"_s}) +
                                   openState_);
}

TEST_F(ProfilePaneOrderTest, dropDown_withUnsavedChanges_no_loadsTheScreenThenDisablesSave) {
    type("txt9Ki", u"4"_s);
    journal_.take();
    expectQuestion(u"Select Profile"_s, MessageAnswer::No);
    control<RecordList>(*pane_, "cboProfileName").showPopup();
    EXPECT_EQ(journal_.take(), QStringList({u"box"_s, u"number 9"_s, u"mnuProfilesSave off"_s}));
}
