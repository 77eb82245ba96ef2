#include "reports/windows/frmPrintPreview.h"

#include "core/Global.h"
#include "locations/cLocation.h"
#include "profiles/cProfile.h"
#include "reports/windows/PreviewWidget.h"
#include "support/QtPrinting.h"
#include "support/RecordFiles.h"
#include "support/TestWorld.h"
#include "support/WindowDriver.h"
#include "ui/widgets/ColorContrast.h"
#include "ui/widgets/TitleBand.h"

#include <QDir>
#include <QLabel>
#include <QPushButton>
#include <gtest/gtest.h>

using namespace WindowDriver;

namespace {

class frmPrintPreviewTest : public testing::Test {
protected:
    TestWorld world_{TestWorld::Records::Sample};
    const QString section_ = Global::settingsSection(QStringLiteral("frmPrintPreview"));
    const QString defaultFile_ = world_.folder() + QDir::separator() + QStringLiteral("Temp.html");

    void SetUp() override {
        Global::CurrentProfile = std::make_unique<cProfile>();
        Global::CurrentProfile->GetProfile(1);
        openHome();
    }
    void TearDown() override {
        Global::CurrentProfile.reset();
        Global::CurrentLocation.reset();
    }
    static void openHome() {
        Global::CurrentLocation = std::make_unique<cLocation>();
        Global::CurrentLocation->LoadLocations();
        Global::CurrentLocation->LoadFloors();
        Global::CurrentLocation->LoadRooms();
        Global::CurrentLocation->GetLocation(1);
    }
    /// Leaves the home only its first rooms.
    void keepRooms(qsizetype count) {
        world_.write(QStringLiteral("Rooms.xml"),
                     recordFile(recordLines(world_.read(QStringLiteral("Rooms.xml"))).mid(0, count)));
        openHome();
    }
    static void show(const std::function<void(QWidget&)>& inside) {
        frmPrintPreview window;
        whileModal([&] { window.PrintRoomReport(); }, inside);
        EXPECT_FALSE(window.isVisible());
    }
    static qsizetype rooms() {
        Global::CurrentLocation->oXMLRooms->Query(QStringLiteral("//z:row"));
        return Global::CurrentLocation->oXMLRooms->ResultCount;
    }
    static QString pageLabel(QWidget& window) { return control<QLabel>(window, "lblPageCount").text(); }
    void expectSaveBox(const QString& answer) {
        world_.prompts.expectInput(
            QStringLiteral("Save to HTML"),
            QStringLiteral("Please enter a fully qualified html filename to save the report to."),
            defaultFile_, answer);
    }
};

} // namespace

TEST_F(frmPrintPreviewTest, PrintRoomReport_showsEveryRoomOfTheHome) {
    const QString all = QString::number(rooms());
    show([&](QWidget& window) {
        EXPECT_EQ(window.windowTitle(), QStringLiteral("Print Preview"));
        EXPECT_EQ(control<TitleBand>(window, "vsTop").caption(),
                  Global::CurrentLocation->DESCRIPTION + QStringLiteral(" Room Report"));
        EXPECT_TRUE(pageLabel(window).startsWith(QStringLiteral("Page 1 of ")));
        EXPECT_GE(pageLabel(window).section(u' ', -1).toInt(), all.toInt());
        EXPECT_TRUE(control(window, "cmdNext").isEnabled());
        EXPECT_FALSE(control(window, "cmdPrev").isEnabled());
    });
}

TEST_F(frmPrintPreviewTest, band_hasThePersonsOwnLightColourAndALegibleText) {
    show([](QWidget& window) {
        const auto& band = control<TitleBand>(window, "vsTop");
        EXPECT_EQ(band.ground(), ColorContrast::fromStored(Global::CurrentProfile->oColor.LIGHTCOLORVALUE));
        EXPECT_GE(ColorContrast::ratio(band.textColor(), band.ground()), 4.5);
    });
}

TEST_F(frmPrintPreviewTest, band_withoutAPerson_isPaperGrey) {
    Global::CurrentProfile = std::make_unique<cProfile>();
    show([](QWidget& window) {
        EXPECT_EQ(control<TitleBand>(window, "vsTop").ground(), ColorContrast::paperGrey(window.palette()));
    });
}

TEST_F(frmPrintPreviewTest, band_homeWithAnAmpersand_hasItDoubledInTheCaption) {
    Global::CurrentLocation->DESCRIPTION = QStringLiteral("Smith & Sons");
    show([](QWidget& window) {
        EXPECT_EQ(control<TitleBand>(window, "vsTop").caption(), QStringLiteral("Smith && Sons Room Report"));
        EXPECT_EQ(control<TitleBand>(window, "vsTop").text(), QStringLiteral("Smith & Sons Room Report"));
    });
}

TEST_F(frmPrintPreviewTest, longNameOfAHome_neitherClipsNorWidensTheWindow) {
    Global::CurrentLocation->DESCRIPTION =
        QStringLiteral("The house at the far end of the lane ").repeated(20);
    show([](QWidget& window) {
        const auto& band = control<TitleBand>(window, "vsTop");
        EXPECT_LE(window.width(), 900);
        EXPECT_TRUE(band.shownText().endsWith(QChar(0x2026)));
    });
}

TEST_F(frmPrintPreviewTest, locationWithoutRooms_showsWhatTheEmptySurfaceReports) {
    keepRooms(0);
    show([](QWidget& window) {
        EXPECT_EQ(pageLabel(window), QStringLiteral("Page 0 of 0"));
        EXPECT_FALSE(control(window, "cmdNext").isEnabled());
        EXPECT_FALSE(control(window, "cmdPrev").isEnabled());
    });
}

TEST_F(frmPrintPreviewTest, oneRoom_leavesBothPageButtonsDisabled) {
    keepRooms(1);
    show([](QWidget& window) {
        EXPECT_EQ(pageLabel(window), QStringLiteral("Page 1 of 1"));
        EXPECT_FALSE(control(window, "cmdNext").isEnabled());
        EXPECT_FALSE(control(window, "cmdPrev").isEnabled());
    });
}

TEST_F(frmPrintPreviewTest, lastPage_disablesCmdNextAndOneCmdPrevEnablesItAgain) {
    keepRooms(2);
    show([](QWidget& window) {
        click(window, "cmdNext");
        EXPECT_EQ(pageLabel(window), QStringLiteral("Page 2 of 2"));
        EXPECT_FALSE(control(window, "cmdNext").isEnabled());
        EXPECT_TRUE(control(window, "cmdPrev").isEnabled());
        click(window, "cmdPrev");
        EXPECT_TRUE(control(window, "cmdNext").isEnabled());
        EXPECT_FALSE(control(window, "cmdPrev").isEnabled());
    });
}

TEST_F(frmPrintPreviewTest, cmdPlus_fromTheOpeningState_passesThePercentageAndThenTheOtherModes) {
    keepRooms(3);
    show([](QWidget& window) {
        const auto& preview = control<PreviewWidget>(window, "vpPrintPreview");
        const auto pagesShown = [&] { return preview.plan().pages.size(); };
        const QSize whole = preview.pageArea(0).size();
        click(window, "cmdPlus"); // 100 percent
        EXPECT_EQ(preview.pageArea(0).width(),
                  qRound(preview.logicalDpiX() * PageSurface::systemPageSize().width() / 1440));
        click(window, "cmdPlus"); // width
        EXPECT_NEAR(preview.pageArea(0).width(), preview.viewport()->width(), 64);
        click(window, "cmdPlus"); // thumbnails
        EXPECT_EQ(pagesShown(), 3U);
        click(window, "cmdPlus"); // two pages
        EXPECT_EQ(pagesShown(), 2U);
        click(window, "cmdPlus"); // whole page
        EXPECT_EQ(pagesShown(), 1U);
        EXPECT_EQ(preview.pageArea(0).size(), whole);
    });
}

TEST_F(frmPrintPreviewTest, cmdMinus_fromTheOpeningState_givesTwoPages) {
    keepRooms(3);
    show([](QWidget& window) {
        click(window, "cmdMinus");
        EXPECT_EQ(control<PreviewWidget>(window, "vpPrintPreview").plan().pages.size(), 2U);
    });
}

TEST_F(frmPrintPreviewTest, thumbnailClicked_updatesLabelAndButtons) {
    keepRooms(3);
    show([](QWidget& window) {
        click(window, "cmdMinus");
        click(window, "cmdMinus");
        auto& preview = control<PreviewWidget>(window, "vpPrintPreview");
        QTest::mouseClick(preview.viewport(), Qt::LeftButton, Qt::NoModifier, preview.pageArea(2).center());
        EXPECT_EQ(pageLabel(window), QStringLiteral("Page 3 of 3"));
        EXPECT_FALSE(control(window, "cmdNext").isEnabled());
        EXPECT_TRUE(control(window, "cmdPrev").isEnabled());
    });
}

TEST_F(frmPrintPreviewTest, cmdPrint_confirmed_printsTheDocumentAsItStands) {
    keepRooms(3);
    show([this](QWidget& window) {
        click(window, "cmdNext");
        click(window, "cmdPrint");
        EXPECT_EQ(world_.printer.dialogs, 1);
        EXPECT_EQ(world_.printer.printedDocuments, 1);
        EXPECT_EQ(world_.printer.printedPages, 3);
        EXPECT_EQ(pageLabel(window), QStringLiteral("Page 2 of 3"));
    });
}

TEST_F(frmPrintPreviewTest, mnuFilePrint_refused_printsNothing) {
    world_.printer.accept = false;
    show([this](QWidget& window) {
        choose(window, "mnuFile", "mnuFilePrint");
        EXPECT_EQ(world_.printer.dialogs, 1);
        EXPECT_EQ(world_.printer.printedDocuments, 0);
    });
}

TEST_F(frmPrintPreviewTest, print_thatFails_isReportedUnderItsLabel) {
    Services services = Global::services();
    services.printer = nullptr;
    Global::use(services);
    world_.prompts.expectError(QStringLiteral("frmPrintPreview.cmdFilePrint_Click"), 91,
                               QStringLiteral("Object variable or With block variable not set"));
    show([](QWidget& window) { click(window, "cmdPrint"); });
}

TEST_F(frmPrintPreviewTest, mnuFileSaveAs_writesTheReportAndLeavesThePreviewOnPageOne) {
    keepRooms(3);
    const QString file = world_.file(QStringLiteral("My report.html"));
    expectSaveBox(file);
    show([&](QWidget& window) {
        click(window, "cmdNext");
        choose(window, "mnuFile", "mnuFileSaveAs");
        EXPECT_EQ(pageLabel(window), QStringLiteral("Page 1 of 3"));
        EXPECT_TRUE(control(window, "cmdNext").isEnabled());
        EXPECT_FALSE(control(window, "cmdPrev").isEnabled());
    });
    const QByteArray html = world_.read(QStringLiteral("My report.html"));
    EXPECT_TRUE(html.startsWith("<!DOCTYPE html>"));
    EXPECT_TRUE(html.contains("<title>Elm Street Room Report</title>"));
}

TEST_F(frmPrintPreviewTest, mnuFileSaveAs_textsOfTheRecordsAreEscaped) {
    world_.write(QStringLiteral("Rooms.xml"),
                 world_.read(QStringLiteral("Rooms.xml"))
                     .replace("\"Kitchen\"", "\"&lt;script&gt;alert(1)&lt;/script&gt; &amp; &quot;\""));
    openHome();
    expectSaveBox(world_.file(QStringLiteral("escaped.html")));
    show([](QWidget& window) { choose(window, "mnuFile", "mnuFileSaveAs"); });
    const QByteArray html = world_.read(QStringLiteral("escaped.html"));
    EXPECT_FALSE(html.contains("<script"));
    EXPECT_TRUE(html.contains("&lt;script&gt;alert(1)&lt;/script&gt; &amp;"));
}

TEST_F(frmPrintPreviewTest, mnuFileSaveAs_cancelled_regeneratesWithoutAFile) {
    keepRooms(2);
    const QStringList before = QDir(world_.folder()).entryList(QDir::Files);
    expectSaveBox(QString());
    show([](QWidget& window) {
        click(window, "cmdNext");
        choose(window, "mnuFile", "mnuFileSaveAs");
        EXPECT_EQ(pageLabel(window), QStringLiteral("Page 1 of 2"));
    });
    EXPECT_EQ(QDir(world_.folder()).entryList(QDir::Files), before);
}

TEST_F(frmPrintPreviewTest, mnuFileSaveAs_unwritableFile_isReportedOnceAndThePreviewStays) {
    keepRooms(2);
    expectSaveBox(world_.file(QStringLiteral("missing folder/report.html")));
    world_.prompts.expectError(QStringLiteral("cLocation.Analyze Rooms"), 76);
    show([](QWidget& window) {
        choose(window, "mnuFile", "mnuFileSaveAs");
        EXPECT_EQ(pageLabel(window), QStringLiteral("Page 1 of 2"));
        EXPECT_EQ(control<PreviewWidget>(window, "vpPrintPreview").plan().pages.size(), 1U);
    });
}

TEST_F(frmPrintPreviewTest, mnuFileSaveAs_isNotRepeatedByTheNextReport) {
    keepRooms(1);
    const QString file = world_.file(QStringLiteral("once.html"));
    expectSaveBox(file);
    expectSaveBox(QString());
    show([&](QWidget& window) {
        choose(window, "mnuFile", "mnuFileSaveAs");
        ASSERT_TRUE(QFile::remove(file));
        choose(window, "mnuFile", "mnuFileSaveAs");
    });
    EXPECT_FALSE(QFile::exists(file));
}

TEST_F(frmPrintPreviewTest, cmdOK_closes) {
    show([](QWidget& window) {
        click(window, "cmdOK");
        EXPECT_FALSE(window.isVisible());
    });
}

TEST_F(frmPrintPreviewTest, mnuFileExit_closes) {
    show([](QWidget& window) {
        choose(window, "mnuFile", "mnuFileExit");
        EXPECT_FALSE(window.isVisible());
    });
}

TEST_F(frmPrintPreviewTest, enterAndEscape_closeWhereverTheFocusStands) {
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape}) {
        for (const char* focus : {"vpPrintPreview", "cmdPlus", "cmdNext"}) {
            show([&](QWidget& window) {
                control(window, focus).setFocus();
                QTest::keyClick(&control(window, focus), key);
                EXPECT_FALSE(window.isVisible()) << focus;
                EXPECT_EQ(world_.printer.dialogs, 0);
            });
        }
    }
}

TEST_F(frmPrintPreviewTest, mnemonics_workFromTheKeyboard) {
    show([this](QWidget& window) {
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        // A mnemonic shows its button pressed for a moment before it acts.
        QTest::keyClick(&window, Qt::Key_P, Qt::AltModifier);
        EXPECT_TRUE(QTest::qWaitFor([this] { return world_.printer.dialogs == 1; }));
        QTest::keyClick(&window, Qt::Key_O, Qt::AltModifier);
        EXPECT_TRUE(QTest::qWaitFor([&] { return !window.isVisible(); }));
    });
}

TEST_F(frmPrintPreviewTest, menu_hasItsEntriesInOrder) {
    show([](QWidget& window) {
        const auto& menu = control<QMenu>(window, "mnuFile");
        EXPECT_EQ(menu.title(), QStringLiteral("&File"));
        QStringList found;
        for (const QAction* entry : menu.actions()) {
            found << entry->objectName() + u'=' + entry->text();
        }
        EXPECT_EQ(found, (QStringList{QStringLiteral("mnuFilePrint=&Print"),
                                      QStringLiteral("mnuFileSaveAs=&Save as HTML"),
                                      QStringLiteral("mnuFileSep1="), QStringLiteral("mnuFileExit=&Close")}));
    });
}

TEST_F(frmPrintPreviewTest, controls_haveTheirCaptions) {
    show([](QWidget& window) {
        EXPECT_EQ(control<QPushButton>(window, "cmdPrint").text(), QStringLiteral("&Print"));
        EXPECT_EQ(control<QPushButton>(window, "cmdOK").text(), QStringLiteral("&OK"));
        EXPECT_EQ(control<QPushButton>(window, "cmdPrev").text(), QStringLiteral("<"));
        EXPECT_EQ(control<QPushButton>(window, "cmdNext").text(), QStringLiteral(">"));
        EXPECT_EQ(control<QPushButton>(window, "cmdMinus").text(), QStringLiteral("-"));
        EXPECT_EQ(control<QPushButton>(window, "cmdPlus").text(), QStringLiteral("+"));
        EXPECT_EQ(control<QLabel>(window, "lblZoom").text(), QStringLiteral("Zoom:"));
        EXPECT_TRUE(control(window, "vsZoom").isVisible());
    });
}

TEST_F(frmPrintPreviewTest, tab_goesFromTopLeftToBottomRightThroughNamedControls) {
    show([](QWidget& window) {
        click(window, "cmdNext"); // so that both paging buttons take part
        expectReadingOrder(window);
        expectNamedControls(window);
        EXPECT_EQ(tabOrder(window).size(), 7U);
    });
}

TEST_F(frmPrintPreviewTest, placement_isStoredAtTheEndAndRestoredAtTheNextStart) {
    show([](QWidget& window) {
        window.move(40, 30);
        window.resize(700, 500);
    });
    EXPECT_EQ(world_.settings.text(section_, QStringLiteral("WindowState")), QStringLiteral("NORMAL"));
    EXPECT_EQ(world_.settings.text(section_, QStringLiteral("Width")), QStringLiteral("10500"));
    show([](QWidget& window) {
        EXPECT_EQ(window.pos(), QPoint(40, 30));
        EXPECT_EQ(window.size(), QSize(700, 500));
    });
}

TEST_F(frmPrintPreviewTest, closedMaximized_opensMaximized) {
    world_.settings.setText(section_, QStringLiteral("WindowState"), QStringLiteral("MAXIMIZED"));
    show([](QWidget& window) { EXPECT_TRUE(window.isMaximized()); });
    EXPECT_EQ(world_.settings.text(section_, QStringLiteral("WindowState")), QStringLiteral("MAXIMIZED"));
}

TEST_F(frmPrintPreviewTest, withoutAHome_reportsAndShowsNoWindow) {
    Global::CurrentLocation.reset();
    world_.prompts.expectError(QStringLiteral("frmPrintPreview.PrintRoomReport"), 91,
                               QStringLiteral("Object variable or With block variable not set"));
    frmPrintPreview window;
    window.PrintRoomReport();
    EXPECT_FALSE(window.isVisible());
}

TEST_F(frmPrintPreviewTest, waiting_showsTheHourglassAndPutsThePointerBack) {
    show([this](QWidget& /*window*/) {
        EXPECT_TRUE(world_.prompts.pointerHistory().contains(PointerShape::Hourglass));
        EXPECT_EQ(world_.prompts.pointer(), PointerShape::Default);
    });
}
