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
#include "ui/widgets/CaptionLabel.h"
#include "ui/widgets/PicturePanel.h"
#include "ui/widgets/RecordList.h"
#include "ui/widgets/TitleBand.h"

#include <QAbstractItemView>
#include <QInputMethodEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <gtest/gtest.h>

/// The main window with its profile pane in front, driven as a user does.
class ProfileWorld {
public:
    explicit ProfileWorld(TestWorld::Records records)
        : world(records) {
        Services services = Global::services();
        services.mainWindow = view.get();
        Global::use(services);
        if (records == TestWorld::Records::Sample) {
            remember(QStringLiteral("1"));
        }
    }
    ProfileWorld(const ProfileWorld&) = delete;
    ProfileWorld& operator=(const ProfileWorld&) = delete;
    ~ProfileWorld() {
        view.reset();
        Global::CurrentProfile.reset();
        Global::CurrentLocation.reset();
    }

    TestWorld world;
    std::unique_ptr<frmView> view = std::make_unique<frmView>();

    void remember(const QString& id) { world.settings.setText(startUp(), QStringLiteral("LastProfile"), id); }
    [[nodiscard]] QString lastProfile() const {
        return world.settings.text(startUp(), QStringLiteral("LastProfile"));
    }
    static QString startUp() { return Global::settingsSection(QStringLiteral("StartUp")); }
    static void start() { Global::Main(); }
    /// Ends the program and starts it again on the same files and settings.
    void restart() {
        view = std::make_unique<frmView>();
        Services services = Global::services();
        services.mainWindow = view.get();
        Global::use(services);
        start();
    }
    static cProfile& person() { return *Global::CurrentProfile; }

    template<class Control>
    [[nodiscard]] Control& at(const char* name) const {
        return WindowDriver::control<Control>(*view, name);
    }
    [[nodiscard]] QLineEdit& field(const char* name) const { return at<QLineEdit>(name); }
    [[nodiscard]] QString text(const char* name) const { return field(name).text(); }
    [[nodiscard]] RecordList& list() const { return at<RecordList>("cboProfileName"); }
    [[nodiscard]] PicturePanel& panel(const char* name) const { return at<PicturePanel>(name); }
    [[nodiscard]] QString label(const char* name) const { return at<CaptionLabel>(name).caption(); }
    [[nodiscard]] QString band() const { return at<TitleBand>("vsTopProfile").caption(); }
    [[nodiscard]] QString status() const {
        return at<StatusPanels>("sbInfo").panel(QStringLiteral("Profile"));
    }
    [[nodiscard]] bool visible(const char* name) const { return at<QWidget>(name).isVisible(); }
    [[nodiscard]] bool enabled(const char* name) const { return at<QWidget>(name).isEnabled(); }
    [[nodiscard]] bool entryEnabled(const char* name) const { return at<QAction>(name).isEnabled(); }
    [[nodiscard]] bool checked(const char* name) const { return at<QRadioButton>(name).isChecked(); }

    void click(const char* name) const { WindowDriver::click(*view, name); }
    /// Replaces a field's text by typing.
    void type(const char* name, const QString& typed) const {
        QLineEdit& edit = field(name);
        edit.selectAll();
        QTest::keyClick(&edit, Qt::Key_Delete);
        // As an input method does it: the keys of a test know no letters beyond ASCII.
        QInputMethodEvent input;
        input.setCommitString(typed);
        QCoreApplication::sendEvent(&edit, &input);
    }
    /// Edits the name in the list's field.
    void rename(const QString& typed) const {
        list().lineEdit()->selectAll();
        QTest::keyClicks(&list(), typed);
    }
    /// Opens the list and chooses an entry in it.
    void choose(int entry) const {
        list().showPopup();
        QAbstractItemView* open = list().view();
        open->setCurrentIndex(list().model()->index(entry, 0));
        QTest::keyClick(open, Qt::Key_Return);
    }
    /// Enters a new person up to the calculated number.
    void enter(const QString& name, const QString& birthDate, const char* gender) const {
        type("txtProfileName", name);
        type("txtBirthDate", birthDate);
        click(gender);
        click("cmdCalcProfile");
    }

    void expectMessage(const char* title, const QString& text) {
        world.prompts.expectMessage(QString::fromLatin1(title), text, MessageIcon::Information);
    }
    void expectQuestion(const char* title, const QString& text, MessageAnswer answer) {
        world.prompts.expectMessage(QString::fromLatin1(title), text, MessageIcon::Question, answer);
    }
    void expectSaveQuestion(const char* title, MessageAnswer answer) {
        expectQuestion(
            title, QStringLiteral("Would you like to save the changes to this profile before proceeding?"),
            answer);
    }
    [[nodiscard]] QByteArrayList storedPeople() const {
        return recordLines(world.read(QStringLiteral("Profiles.xml")));
    }

    void expectOpenState(bool saveEnabled = false) const {
        expectState(true, saveEnabled);
        EXPECT_EQ(at<QPushButton>("cmdDelProfile").text(), QStringLiteral("&Delete"));
        EXPECT_EQ(at<QPushButton>("cmdDelProfile").toolTip(),
                  QStringLiteral("Click Delete to delete this Profile"));
    }
    void expectNewState() const {
        expectState(false, true);
        EXPECT_EQ(at<QPushButton>("cmdDelProfile").text(), QStringLiteral("Cancel"));
        EXPECT_EQ(at<QPushButton>("cmdDelProfile").toolTip(),
                  QStringLiteral("Click Cancel to abandon the New Profile"));
    }

private:
    void expectState(bool open, bool saveEnabled) const {
        EXPECT_EQ(visible("cboProfileName"), open);
        EXPECT_EQ(visible("txtProfileName"), !open);
        EXPECT_EQ(enabled("cmdSaveProfile"), saveEnabled);
        EXPECT_EQ(entryEnabled("mnuProfilesSave"), saveEnabled);
        EXPECT_EQ(visible("cmdNewProfile"), open);
        EXPECT_EQ(entryEnabled("mnuProfilesNew"), open);
        EXPECT_EQ(entryEnabled("mnuProfilesDelete"), open);
        EXPECT_TRUE(enabled("cmdDelProfile"));
        EXPECT_TRUE(visible("cmdDelProfile"));
    }
};

/// A test over the sample household.
class SampleProfiles : public testing::Test {
protected:
    ProfileWorld pane_{TestWorld::Records::Sample};
};

/// A test that begins without any person.
class NoProfiles : public testing::Test {
protected:
    ProfileWorld pane_{TestWorld::Records::Empty};
};
