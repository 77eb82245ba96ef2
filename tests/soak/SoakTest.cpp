#include "app/Startup.h"
#include "core/Global.h"
#include "locations/cLocation.h"
#include "profiles/cProfile.h"
#include "soak/Footprint.h"
#include "soak/PdfPrinter.h"
#include "soak/RandomPrompts.h"
#include "soak/RandomUser.h"
#include "soak/RecordWatch.h"
#include "soak/Screen.h"
#include "support/QtPrinting.h"
#include "support/TestWorld.h"
#include "support/WindowDriver.h"
#include "ui/frmView.h"

#include <QClipboard>
#include <QDir>
#include <QListWidget>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QStringList recordFiles{u"Profiles.xml"_s, u"Locations.xml"_s, u"Floors.xml"_s, u"Rooms.xml"_s};

/// How many actions a run does: what the build says, unless the environment says otherwise.
int wantedActions() {
    bool given = false;
    const int actions = qEnvironmentVariableIntValue("TALIVANE_SOAK_ACTIONS", &given);
    return given ? actions : TALIVANE_SOAK_ACTIONS;
}

/// The seed of a run: its own number, unless the environment names another.
quint64 wantedSeed(quint64 run) {
    const QByteArray given = qgetenv("TALIVANE_SOAK_SEED");
    return given.isEmpty() ? run : given.toULongLong();
}

/// What the toolkit complains of is a fault of the program, but for what a screen that is none cannot do.
void listenToComplaints() {
    qInstallMessageHandler([](QtMsgType type, const QMessageLogContext&, const QString& message) {
        if (type != QtDebugMsg && !message.startsWith(u"This plugin does not support"_s)) {
            ADD_FAILURE() << "the toolkit complains: " << qPrintable(message);
        }
    });
}

} // namespace

/// The program in the hands of somebody who does anything.
class Soak : public testing::TestWithParam<quint64> {
protected:
    TestWorld world_{TestWorld::Records::Sample};
    Journal journal_{wantedSeed(GetParam())};
    RandomPrompts prompts_{journal_, world_.folder() + u"/exports"_s};
    PdfPrinter printer_{journal_, world_.folder() + u"/exports/printed.pdf"_s};
    RecordWatch records_{world_.folder()};
    std::unique_ptr<frmView> view_;
    RandomUser user_{journal_, [this](const QString& control) { checkAfter(control); }};
    QMap<QString, QByteArray> sample_;
    Screen::Leftovers leftovers_;
    int sinceLook_ = 0;
    int saves_ = 0;
    int starts_ = 0;

    void SetUp() override {
        listenToComplaints();
        prompts_.onDroppedPerson = [this] { leftovers_.person = true; };
        QDir().mkpath(world_.folder() + u"/exports"_s);
        for (const QString& name : recordFiles) {
            sample_.insert(name, world_.read(name));
        }
        startOnSample();
    }
    void TearDown() override {
        view_.reset();
        Global::CurrentProfile.reset();
        Global::CurrentLocation.reset();
        qInstallMessageHandler(nullptr);
        if (HasFailure()) {
            std::cerr << journal_.story();
        }
    }

    /// Starts the program, again where it was started before, on the records and settings as they are.
    void start() {
        ++starts_;
        view_ = std::make_unique<frmView>();
        Services services = Global::services();
        services.mainWindow = view_.get();
        services.prompts = &prompts_;
        services.printer = &printer_;
        Global::use(services);
        Global::Main();
        QApplication::processEvents();
        records_.changesBy(u"start"_s);
        Screen::expectMainWindowShowsStored(*view_, leftovers_);
    }

    /// Starts the program on the sample household, whatever has become of it.
    void startOnSample() {
        view_.reset();
        for (const QString& name : recordFiles) {
            world_.write(name, sample_.value(name));
        }
        records_.trust();
        world_.settings.removeKey(Global::settingsSection(QString()), u"frmView"_s);
        const QString startUp = Global::settingsSection(u"StartUp"_s);
        world_.settings.setText(startUp, u"LastProfile"_s, u"1"_s);
        world_.settings.setText(startUp, u"LastLocation"_s, u"1"_s);
        leftovers_ = {};
        QApplication::clipboard()->clear();
        start();
    }

    void checkAfter(const QString& control) {
        const QStringList changed = records_.changesBy(control);
        leftovers_.homeName = leftovers_.homeName || control == u"frmView/mnuLocationsDirections";
        saves_ += changed.isEmpty() ? 0 : 1;
        if (QWidget* modal = user_.inside(); modal != nullptr) {
            if (modal->objectName() == u"frmRoom" && changed.contains(u"Rooms.xml"_s)) {
                ASSERT_EQ(records_.touched(u"Rooms.xml"_s).size(), 1);
                Screen::expectEditorShowsStored(*modal, records_.touched(u"Rooms.xml"_s).constFirst());
            }
            return;
        }
        if (view_->isVisible() && (!changed.isEmpty() || ++sinceLook_ % 10 == 0)) {
            Screen::expectMainWindowShowsStored(*view_, leftovers_);
        }
        if (!changed.isEmpty()) {
            records_.expectOthersUntouched();
        }
    }

    /// Opens each window that a menu or a button opens, and closes it by its close box.
    void openAndCloseEveryWindow() {
        using WindowDriver::whileModal;
        const auto closed = [](QWidget& /*opened*/) {};
        const auto chosen = [&](const char* menu, const char* entry) {
            whileModal([&] { WindowDriver::choose(*view_, menu, entry); }, closed);
        };
        WindowDriver::click(*view_, "PROFILE");
        whileModal([&] { WindowDriver::click(*view_, "cmdDate"); }, closed);
        for (const char* entry : {"mnuAdviceMoving", "mnuAdviceRenovations", "mnuAdviceNineKi",
                                  "mnuAdviceRooms", "mnuAdviceElement", "mnuAdviceProfile"}) {
            chosen("mnuAdvice", entry);
        }
        chosen("mnuHelp", "mnuAbout");
        WindowDriver::click(*view_, "LOCATION");
        for (const char* entry : {"mnuLocationsDirections", "mnuLocationsNewRoom"}) {
            chosen("mnuLocations", entry);
        }
        auto& rooms = WindowDriver::control<QListWidget>(*view_, "lstRooms");
        QTest::keyClick(&rooms, Qt::Key_Down);
        whileModal([&] { QTest::keyClick(&rooms, Qt::Key_Return); }, closed);
    }

    /// What the process holds, without what the test itself has noted.
    Footprint footprint() {
        world_.settings.forgetWrites();
        return Footprint::now();
    }

    static void expectNoGrowth(const Footprint& before, const Footprint& after) {
        constexpr qsizetype noise = 1024 * 1024; // what is loaded when it is first needed, and kept
        std::cout << "windows " << after.topLevels << ", widgets " << after.widgets << ", objects "
                  << after.objects << ", heap " << before.bytes / 1024 << " kB, then " << after.bytes / 1024
                  << " kB\n";
        EXPECT_EQ(after.topLevels, before.topLevels);
        EXPECT_EQ(after.widgets, before.widgets);
        EXPECT_EQ(after.objects, before.objects);
        EXPECT_LT(after.bytes - before.bytes, noise);
    }

    void act(int actions) {
        const int end = journal_.actions() + actions;
        while (journal_.actions() < end && !HasFailure()) {
            user_.act(*view_);
            if (!view_->isVisible()) {
                journal_.remark(u"the program is started again"_s);
                start();
            }
        }
    }
};

TEST_P(Soak, SurvivesAnythingAndSavesWhatTheScreenShows) {
    constexpr int warmUp = 200; // fixed, so that a seed does the same however long it runs
    act(warmUp);
    startOnSample();
    const Footprint before = footprint();
    act(wantedActions() - warmUp);
    records_.expectOthersUntouched();
    startOnSample();
    expectNoGrowth(before, footprint());
    std::cout << journal_.actions() << " actions, " << saves_ << " saves, " << starts_ << " starts, "
              << printer_.printed << " prints; reports that came:\n";
    for (const QString& report : prompts_.reports()) {
        std::cout << "    " << report.toStdString() << '\n';
    }
    EXPECT_GT(saves_, 0);
}

TEST_P(Soak, WindowsThatAreOpenedAndClosedLeaveNothingBehind) {
    constexpr int rounds = 10;
    openAndCloseEveryWindow(); // what is made once and kept is there now
    openAndCloseEveryWindow();
    const Footprint before = footprint();
    for (int round = 0; round < rounds; ++round) {
        openAndCloseEveryWindow();
    }
    expectNoGrowth(before, footprint());
}

INSTANTIATE_TEST_SUITE_P(Runs, Soak, testing::Range<quint64>(1, TALIVANE_SOAK_RUNS + 1));
