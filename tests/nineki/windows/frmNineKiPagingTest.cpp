#include "nineki/windows/AdviceWorld.h"

#include <QFile>

using namespace WindowDriver;

namespace {

/// Zoom, paging, print and save of the advice window.
class frmNineKiPagingTest : public AdviceWorld {
protected:
    const QString section_ = Global::settingsSection(QStringLiteral("frmNineKi"));

    /// Makes every element's name so long that a report of reasons fills several pages.
    void makeReportsLong() {
        world_.write(QStringLiteral("Elements.xml"),
                     world_.read(QStringLiteral("Elements.xml"))
                         .replace(R"(ELEMENTNAME="Metal")",
                                  "ELEMENTNAME=\"" + QByteArray("Metal ").repeated(400) + '"'));
    }
    /// A date's report in one press.
    static void advise(QWidget& window, const QString& text) {
        typeDate(window, text);
        click(window, "cmdAdvise0");
    }
};

const QString manyPages = QStringLiteral("3/15/2027");

} // namespace

TEST_F(frmNineKiPagingTest, firstReportOfSeveralPages_leavesCmdNextEnabledAndTheLabelAtItsDesignText) {
    makeReportsLong();
    showMove([](QWidget& window) {
        EXPECT_EQ(pageLabel(window), QStringLiteral("Page 1 of 1"));
        advise(window, manyPages);
        EXPECT_EQ(pageLabel(window), QStringLiteral("Page 1 of 1"));
        EXPECT_TRUE(isEnabled(window, "cmdNext"));
        EXPECT_FALSE(isEnabled(window, "cmdPrev"));
        click(window, "cmdNext");
        EXPECT_TRUE(pageLabel(window).startsWith(QStringLiteral("Page 2 of ")))
            << qPrintable(pageLabel(window));
        EXPECT_NE(pageLabel(window), QStringLiteral("Page 2 of 1"));
        EXPECT_TRUE(isEnabled(window, "cmdPrev"));
    });
}

TEST_F(frmNineKiPagingTest, afterAReportOfOnePage_cmdNextStaysDisabledThroughLaterReports) {
    const QByteArray elements = world_.read(QStringLiteral("Elements.xml"));
    showMove([&](QWidget& window) {
        advise(window, manyPages);
        EXPECT_FALSE(isEnabled(window, "cmdNext"));
        EXPECT_FALSE(isEnabled(window, "cmdPrev"));
        makeReportsLong();
        advise(window, manyPages);
        EXPECT_FALSE(isEnabled(window, "cmdNext"));
        // The pages can be turned on the preview itself.
        QTest::keyClick(&pane(window, "vpReport"), Qt::Key_End);
        EXPECT_TRUE(isEnabled(window, "cmdPrev"));
        click(window, "cmdPrev");
        EXPECT_TRUE(isEnabled(window, "cmdNext"));
        EXPECT_TRUE(pageLabel(window).startsWith(QStringLiteral("Page ")));
    });
}

TEST_F(frmNineKiPagingTest, zoom_stepsByTensFromWhatTheEyeSees) {
    showMove([](QWidget& window) {
        advise(window, manyPages);
        PreviewWidget& shown = pane(window, "vpReport");
        const auto percent = [&] { return shown.plan().scale * 1440 / shown.logicalDpiX() * 100; };
        const double whole = percent();
        click(window, "cmdPlus");
        EXPECT_NEAR(percent(), whole + 10, 0.1);
        click(window, "cmdMinus");
        click(window, "cmdMinus");
        EXPECT_NEAR(percent(), whole - 10, 0.1);
        for (int i = 0; i < 12; ++i) {
            click(window, "cmdPlus");
        }
        EXPECT_NEAR(percent(), 100, 0.1);
    });
}

TEST_F(frmNineKiPagingTest, print_confirmed_printsTheReportAsItStands) {
    showMove([this](QWidget& window) {
        advise(window, manyPages);
        click(window, "cmdPrint");
        EXPECT_EQ(world_.printer.printedDocuments, 1);
        EXPECT_EQ(world_.printer.printedPages, 1);
        world_.printer.accept = false;
        choose(window, "mnuFile", "mnuFilePrint");
        EXPECT_EQ(world_.printer.dialogs, 2);
        EXPECT_EQ(world_.printer.printedDocuments, 1);
        EXPECT_TRUE(report(window).startsWith(QStringLiteral("Directions to move")));
    });
}

TEST_F(frmNineKiPagingTest, mnuFileSaveAs_writesTheReportOfTheTab) {
    expectSaveBox(world_.file(QStringLiteral("directions.html")));
    expectSaveBox(world_.file(QStringLiteral("years.html")));
    showMove([](QWidget& window) {
        typeDate(window, manyPages);
        choose(window, "mnuFile", "mnuFileSaveAs");
        EXPECT_TRUE(report(window).startsWith(QStringLiteral("Directions to move for year 2027")));
        turnTo(window, 1);
        EXPECT_TRUE(report(window).startsWith(QStringLiteral("Directions to move for year 2027")));
        choose(window, "mnuFile", "mnuFileSaveAs");
        EXPECT_TRUE(report(window).startsWith(QStringLiteral("Years to move in the direction North")));
        EXPECT_FALSE(compass(window).isEmpty());
    });
    const QByteArray first = world_.read(QStringLiteral("directions.html"));
    EXPECT_TRUE(first.contains("Directions to move for year 2027"));
    EXPECT_TRUE(first.contains("<svg"));
    EXPECT_TRUE(world_.read(QStringLiteral("years.html")).contains("Years to move in the direction North"));
}

TEST_F(frmNineKiPagingTest, mnuFileSaveAs_inChartMode_writesTheChart) {
    expectSaveBox(world_.file(QStringLiteral("chart.html")));
    showChart([](QWidget& window) {
        typeDate(window, manyPages);
        choose(window, "mnuFile", "mnuFileSaveAs");
        EXPECT_TRUE(report(window).startsWith(QStringLiteral("Nine Ki Chart for year 2027")));
    });
    EXPECT_TRUE(world_.read(QStringLiteral("chart.html")).contains("Nine Ki Chart for year 2027"));
}

TEST_F(frmNineKiPagingTest, mnuFileSaveAs_cancelled_writesTheReportWithoutAFile) {
    const QStringList before = QDir(world_.folder()).entryList(QDir::Files);
    expectSaveBox(QString());
    showMove([](QWidget& window) {
        typeDate(window, manyPages);
        choose(window, "mnuFile", "mnuFileSaveAs");
        EXPECT_TRUE(report(window).startsWith(QStringLiteral("Directions to move for year 2027")));
    });
    EXPECT_EQ(QDir(world_.folder()).entryList(QDir::Files), before);
}

TEST_F(frmNineKiPagingTest, mnuFileSaveAs_withoutADate_asksAndTheNextReportWritesNoFile) {
    const QString file = world_.file(QStringLiteral("never.html"));
    expectSaveBox(file);
    expectDateBox("Advise on Move Directions", "You must enter a valid date in the Move Date field before "
                                               "advice on move directions can be provided.");
    showMove([](QWidget& window) {
        choose(window, "mnuFile", "mnuFileSaveAs");
        advise(window, manyPages);
    });
    EXPECT_FALSE(QFile::exists(file));
}

TEST_F(frmNineKiPagingTest, mnuFileSaveAs_unwritableFile_isReportedOnceAndTheNextReportIsWhole) {
    expectSaveBox(world_.file(QStringLiteral("missing folder/report.html")));
    world_.prompts.expectError(QStringLiteral("frmNineKi.GetMoveDirections"), 76);
    showMove([](QWidget& window) {
        typeDate(window, manyPages);
        choose(window, "mnuFile", "mnuFileSaveAs");
        EXPECT_TRUE(report(window).startsWith(QStringLiteral("Directions to move for year 2027")));
        click(window, "cmdAdvise0");
        EXPECT_FALSE(compass(window).isEmpty());
    });
}

TEST_F(frmNineKiPagingTest, failures_haveTheWindowsLabels) {
    Services services = Global::services();
    services.printer = nullptr;
    Global::use(services);
    const QString notSet = QStringLiteral("Object variable or With block variable not set");
    world_.prompts.expectError(QStringLiteral("frmNineKi.mnuFilePrint_Click"), 91, notSet);
    world_.prompts.expectError(QStringLiteral("frmNineKi.mnuFilePrint_Click"), 91, notSet);
    world_.prompts.expectError(QStringLiteral("frmNineKi.cmdDate_Click"), 91, notSet);
    showMove([](QWidget& window) {
        click(window, "cmdPrint");
        choose(window, "mnuFile", "mnuFilePrint");
        Services none = Global::services();
        Clock* clock = none.clock;
        none.clock = nullptr;
        Global::use(none);
        click(window, "cmdDate");
        none.clock = clock;
        Global::use(none);
    });
}

TEST_F(frmNineKiPagingTest, placementIsKept_dateAndDirectionAreForgotten) {
    showMove([](QWidget& window) {
        window.move(40, 30);
        window.resize(780, 580);
        typeDate(window, manyPages);
        turnTo(window, 1);
        pickDirection(window, QStringLiteral("East"));
    });
    EXPECT_EQ(world_.settings.text(section_, QStringLiteral("Width")), QStringLiteral("11700"));
    show(&frmNineKi::AdviseRenovation, [](QWidget& window) {
        EXPECT_EQ(window.pos(), QPoint(40, 30));
        EXPECT_EQ(window.size(), QSize(780, 580));
        EXPECT_EQ(date(window).text(), QString());
        EXPECT_EQ(directions(window).currentText(), QStringLiteral("North"));
    });
}
