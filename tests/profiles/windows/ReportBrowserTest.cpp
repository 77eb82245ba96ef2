#include "profiles/windows/BrowserWorld.h"

using namespace WindowDriver;

// What both browsers have in common, shown on the browser of people.

namespace {

class ReportBrowserTest : public BrowserWorld {
protected:
    const QString section_ = Global::settingsSection(QStringLiteral("frmProfiles"));
};

} // namespace

TEST_F(ReportBrowserTest, controls_haveTheirCaptions) {
    showProfiles([](QWidget& window) {
        EXPECT_EQ(control<QPushButton>(window, "cmdPrint").text(), QStringLiteral("&Print"));
        EXPECT_EQ(control<QPushButton>(window, "cmdClose").text(), QStringLiteral("&Close"));
        EXPECT_EQ(control<QLabel>(window, "lblZoom").text(), QStringLiteral("Zoom:"));
        EXPECT_TRUE(control(window, "vsZoom").isVisible());
        QStringList entries;
        for (const QAction* entry : control<QMenu>(window, "mnuFile").actions()) {
            entries << entry->objectName() + u'=' + entry->text();
        }
        EXPECT_EQ(
            entries,
            (QStringList{QStringLiteral("mnuFilePrint=&Print"), QStringLiteral("mnuFileSaveAs=&Save as HTML"),
                         QStringLiteral("mnuFileSep1="), QStringLiteral("mnuFileClose=&Close")}));
    });
}

TEST_F(ReportBrowserTest, tab_goesFromTopLeftToBottomRightThroughNamedControls) {
    showProfiles([](QWidget& window) {
        click(window, "cmdNext"); // so that both paging buttons take part
        expectReadingOrder(window);
        expectNamedControls(window);
        EXPECT_EQ(tabOrder(window).size(), 9U);
    });
}

TEST_F(ReportBrowserTest, compass_isSeenWholeInTheSmallestWindow) {
    showProfiles([](QWidget& window) {
        window.resize(window.minimumSize());
        QApplication::processEvents();
        const QRect page = compass(window).pageArea(0);
        EXPECT_GE(page.left(), 0);
        EXPECT_LE(page.right(), compass(window).viewport()->width());
    });
}

TEST_F(ReportBrowserTest, compass_hasTwoFifthsOfTheWidth) {
    showProfiles([](QWidget& window) {
        window.resize(1184, 800);
        QApplication::processEvents();
        const double share = double(compass(window).width()) / window.width();
        EXPECT_NEAR(share, 0.4, 0.02);
        EXPECT_LT(compass(window).mapTo(&window, QPoint()).x(), report(window).mapTo(&window, QPoint()).x());
    });
}

TEST_F(ReportBrowserTest, cmdClose_closes) {
    showProfiles([](QWidget& window) {
        click(window, "cmdClose");
        EXPECT_FALSE(window.isVisible());
    });
}

TEST_F(ReportBrowserTest, mnuFileClose_closes) {
    showProfiles([](QWidget& window) {
        choose(window, "mnuFile", "mnuFileClose");
        EXPECT_FALSE(window.isVisible());
    });
}

TEST_F(ReportBrowserTest, enterAndEscape_closeWhereverTheFocusStandsAndPrintNothing) {
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape}) {
        for (const char* focus : {"cboProfiles", "vpCompass", "vpReport", "cmdPlus", "cmdNext"}) {
            showProfiles([&](QWidget& window) {
                control(window, focus).setFocus();
                QTest::keyClick(&control(window, focus), key);
                EXPECT_FALSE(window.isVisible()) << focus;
                EXPECT_TRUE(printer_.pages.empty());
            });
        }
    }
}

TEST_F(ReportBrowserTest, pageTurnedOnThePreview_isSeenInLabelAndButtons) {
    showProfiles([](QWidget& window) {
        auto& pane = control<PreviewWidget>(window, "vpReport");
        QTest::keyClick(&pane, Qt::Key_End);
        EXPECT_EQ(pageLabel(window), QStringLiteral("Page 3 of 3"));
        EXPECT_FALSE(control(window, "cmdNext").isEnabled());
        EXPECT_TRUE(control(window, "cmdPrev").isEnabled());
    });
}

TEST_F(ReportBrowserTest, placement_isStoredAtTheEndAndRestoredAtTheNextStart) {
    showProfiles([](QWidget& window) {
        window.move(40, 30);
        window.resize(780, 560);
    });
    EXPECT_EQ(world_.settings.text(section_, QStringLiteral("WindowState")), QStringLiteral("NORMAL"));
    EXPECT_EQ(world_.settings.text(section_, QStringLiteral("Width")), QStringLiteral("11700"));
    showProfiles([](QWidget& window) {
        EXPECT_EQ(window.pos(), QPoint(40, 30));
        EXPECT_EQ(window.size(), QSize(780, 560));
    });
}

TEST_F(ReportBrowserTest, longName_neitherClipsNorWidensTheWindow) {
    world_.write(QStringLiteral("Profiles.xml"),
                 world_.read(QStringLiteral("Profiles.xml"))
                     .replace("Ben Example", QByteArray("The longest of names ").repeated(20)));
    int width = 0;
    showElements([&](QWidget& window) { width = window.width(); });
    showProfiles([&](QWidget& window) {
        EXPECT_EQ(window.width(), width);
        EXPECT_TRUE(control<TitleBand>(window, "vsTop").shownText().endsWith(QChar(0x2026)));
    });
}
