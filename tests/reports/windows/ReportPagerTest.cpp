#include "reports/windows/ReportPager.h"

#include "core/Failure.h"
#include "reports/surface/ReportSurface.h"
#include "reports/windows/ReportStrip.h"
#include "support/QtPrinting.h"
#include "support/TestWorld.h"
#include "support/WindowDriver.h"

#include <QDir>
#include <QLabel>
#include <QPushButton>
#include <gtest/gtest.h>

namespace {

/// A surface with as many pages as told, which fails where told.
class CountingSurface final : public ReportSurface {
public:
    qint16 pages = 0;
    bool accept = true;
    qint32 printed = 0;
    bool broken = false;

    void StartDoc() override {}
    void EndDoc() override {}
    void NewPage() override {}
    [[nodiscard]] qint16 PageCount() const override { return pages; }
    [[nodiscard]] double PageHeight() const override { return 15840; }
    bool PrintDialog(qint32 /*mode*/) override { return accept; }
    void PrintDoc() override { ++printed; }
    using ReportSurface::Write;
    void Write(const QString& /*text*/) override {}
    void TextBox(const QString& /*text*/, double /*x*/, double /*y*/, double /*width*/,
                 double /*height*/) override {}
    void DrawCircle(double /*x*/, double /*y*/, double /*radius*/) override {}
    void DrawCircle(double /*x*/, double /*y*/, double /*radius*/, double /*angle1*/,
                    double /*angle2*/) override {}
    void DrawRectangle(double /*left*/, double /*top*/, double /*right*/, double /*bottom*/) override {}
    void setProperty(SurfaceProperty property, const QVariant& value) override {
        state_.insert(property, value);
    }
    [[nodiscard]] QVariant property(SurfaceProperty property) const override {
        if (broken) {
            throw failure(ErrorNumber::ObjectNotSet);
        }
        return state_.value(property);
    }
    [[nodiscard]] QString FontFace() const override { return QStringLiteral("Arial"); }

private:
    QHash<SurfaceProperty, QVariant> state_;
};

class ReportPagerTest : public testing::Test {
protected:
    TestWorld world_;
    CountingSurface surface_;
    ReportStrip strip_{QStringLiteral("Page 0 of 0")};
    const ReportLabels labels_{.plus = QStringLiteral("frm.cmdPlus_Click"),
                               .minus = QStringLiteral("frm.cmdMinus_Click"),
                               .next = QStringLiteral("frm.cmdNext_Click"),
                               .previous = QStringLiteral("frm.cmdPrev_Click"),
                               .print = QStringLiteral("frm.mnuFilePrint_Click"),
                               .saveAs = QStringLiteral("frm.mnuFileSaveAs_Click")};
    ReportPager pager_{surface_, strip_, ZoomSteps::throughModes(), labels_};
    const QString saveTitle_ = QStringLiteral("Save to HTML");
    const QString savePrompt_ =
        QStringLiteral("Please enter a fully qualified html filename to save the report to.");

    void SetUp() override { strip_.show(); }
    void open(qint16 pages) {
        surface_.pages = pages;
        surface_.PreviewPage(1);
        pager_.showFirstPage();
    }
    [[nodiscard]] QString label() const { return strip_.lblPageCount->text(); }
    void click(const char* name) { WindowDriver::click(strip_, name); }
};

} // namespace

TEST_F(ReportPagerTest, stripAtDesignTime_showsItsTextAndNoWayToTurn) {
    EXPECT_EQ(label(), QStringLiteral("Page 0 of 0"));
    EXPECT_FALSE(strip_.cmdNext->isEnabled());
    EXPECT_FALSE(strip_.cmdPrev->isEnabled());
}

TEST_F(ReportPagerTest, onePage_disablesBothButtons) {
    open(1);
    EXPECT_EQ(label(), QStringLiteral("Page 1 of 1"));
    EXPECT_FALSE(strip_.cmdNext->isEnabled());
    EXPECT_FALSE(strip_.cmdPrev->isEnabled());
}

TEST_F(ReportPagerTest, cmdNext_walksToTheLastPageAndDisablesItselfThere) {
    open(3);
    EXPECT_TRUE(strip_.cmdNext->isEnabled());
    click("cmdNext");
    EXPECT_EQ(label(), QStringLiteral("Page 2 of 3"));
    EXPECT_TRUE(strip_.cmdNext->isEnabled());
    EXPECT_TRUE(strip_.cmdPrev->isEnabled());
    click("cmdNext");
    EXPECT_EQ(label(), QStringLiteral("Page 3 of 3"));
    EXPECT_FALSE(strip_.cmdNext->isEnabled());
}

TEST_F(ReportPagerTest, cmdPrev_onTheLastPage_enablesCmdNextAgain) {
    open(3);
    click("cmdNext");
    click("cmdNext");
    click("cmdPrev");
    EXPECT_EQ(label(), QStringLiteral("Page 2 of 3"));
    EXPECT_TRUE(strip_.cmdNext->isEnabled());
    click("cmdPrev");
    EXPECT_EQ(label(), QStringLiteral("Page 1 of 3"));
    EXPECT_FALSE(strip_.cmdPrev->isEnabled());
}

TEST_F(ReportPagerTest, keyboardOnThePagingButton_staysOnAPagingButtonAtTheEnd) {
    open(2);
    strip_.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&strip_));
    strip_.cmdNext->setFocus();
    QTest::keyClick(strip_.cmdNext, Qt::Key_Space);
    EXPECT_EQ(surface_.PreviewPage(), 2);
    EXPECT_TRUE(strip_.cmdPrev->hasFocus());
}

TEST_F(ReportPagerTest, showChosenPage_enablesBothButtonsInTheMiddle) {
    open(3);
    surface_.PreviewPage(2);
    pager_.showChosenPage();
    EXPECT_EQ(label(), QStringLiteral("Page 2 of 3"));
    EXPECT_TRUE(strip_.cmdNext->isEnabled());
    EXPECT_TRUE(strip_.cmdPrev->isEnabled());
}

TEST_F(ReportPagerTest, throughModes_plus_goesRoundTheFiveModes) {
    surface_.ZoomMode(4);
    surface_.Zoom(38);
    for (const qint32 mode : {0, 1, 2, 3, 4, 0}) {
        click("cmdPlus");
        EXPECT_EQ(surface_.ZoomMode(), mode);
        EXPECT_EQ(surface_.Zoom(), 100);
    }
}

TEST_F(ReportPagerTest, throughModes_minus_skipsTheWholePageAndIsNoInverse) {
    surface_.ZoomMode(4);
    surface_.Zoom(38);
    for (const qint32 mode : {3, 2, 1, 0, 3, 2}) {
        click("cmdMinus");
        EXPECT_EQ(surface_.ZoomMode(), mode);
        EXPECT_EQ(surface_.Zoom(), mode == 3 && surface_.Zoom() == 38 ? 38 : surface_.Zoom());
    }
    EXPECT_EQ(surface_.Zoom(), 100);
}

TEST_F(ReportPagerTest, throughModes_onlyTheStepToThePercentageSetsTheZoom) {
    surface_.Zoom(38);
    surface_.ZoomMode(0);
    click("cmdMinus");
    click("cmdMinus");
    click("cmdMinus");
    EXPECT_EQ(surface_.Zoom(), 38);
    click("cmdMinus");
    EXPECT_EQ(surface_.Zoom(), 100);
}

TEST_F(ReportPagerTest, throughModes_anyOtherMode_staysAsItIs) {
    for (const qint32 mode : {-1, 5, 99}) {
        surface_.ZoomMode(mode);
        click("cmdPlus");
        click("cmdMinus");
        EXPECT_EQ(surface_.ZoomMode(), mode);
    }
}

TEST_F(ReportPagerTest, byTens_stepsBetween10And100) {
    const ZoomSteps steps = ZoomSteps::byTens();
    const auto after = [&](double zoom, void (*step)(ReportSurface&)) {
        surface_.Zoom(zoom);
        step(surface_);
        return surface_.Zoom();
    };
    EXPECT_EQ(after(78, steps.plus), 88);
    EXPECT_EQ(after(88, steps.plus), 98);
    EXPECT_EQ(after(89.5, steps.plus), 99.5);
    EXPECT_EQ(after(90, steps.plus), 100);
    EXPECT_EQ(after(95, steps.plus), 100);
    EXPECT_EQ(after(100, steps.plus), 100);
    EXPECT_EQ(after(78, steps.minus), 68);
    EXPECT_EQ(after(10.5, steps.minus), 0.5);
    EXPECT_EQ(after(10, steps.minus), 10);
    EXPECT_EQ(after(3, steps.minus), 10);
}

TEST_F(ReportPagerTest, print_confirmed_printsTheDocument) {
    pager_.print();
    EXPECT_EQ(surface_.printed, 1);
}

TEST_F(ReportPagerTest, print_refused_printsNothing) {
    surface_.accept = false;
    pager_.print();
    EXPECT_EQ(surface_.printed, 0);
}

TEST_F(ReportPagerTest, saveAsHtml_writesWhileTheFileIsSetAndClearsItAfterwards) {
    world_.prompts.expectInput(saveTitle_, savePrompt_,
                               world_.folder() + QDir::separator() + QStringLiteral("Temp.html"),
                               QStringLiteral("/somewhere/report.html"));
    QString during;
    pager_.saveAsHtml([&] { during = surface_.property(SurfaceProperty::ExportFile).toString(); });
    EXPECT_EQ(during, QStringLiteral("/somewhere/report.html"));
    EXPECT_EQ(surface_.property(SurfaceProperty::ExportFile).toString(), QString());
}

TEST_F(ReportPagerTest, saveAsHtml_cancelled_writesAnewWithoutAFile) {
    world_.prompts.expectInput(saveTitle_, savePrompt_,
                               world_.folder() + QDir::separator() + QStringLiteral("Temp.html"), QString());
    int written = 0;
    pager_.saveAsHtml([&] {
        ++written;
        EXPECT_EQ(surface_.property(SurfaceProperty::ExportFile).toString(), QString());
    });
    EXPECT_EQ(written, 1);
}

TEST_F(ReportPagerTest, saveAsHtml_thatFails_isReportedAndKeepsNoFileForTheNextDocument) {
    world_.prompts.expectInput(saveTitle_, savePrompt_,
                               world_.folder() + QDir::separator() + QStringLiteral("Temp.html"),
                               QStringLiteral("/somewhere/report.html"));
    world_.prompts.expectError(labels_.saveAs, 76, QStringLiteral("Path not found"));
    pager_.saveAsHtml([] { throw failure(ErrorNumber::PathNotFound); });
    EXPECT_EQ(surface_.property(SurfaceProperty::ExportFile).toString(), QString());
}

TEST_F(ReportPagerTest, failures_areReportedUnderTheWindowsLabels) {
    const QString description = QStringLiteral("Object variable or With block variable not set");
    strip_.cmdNext->setEnabled(true);
    strip_.cmdPrev->setEnabled(true);
    surface_.broken = true;
    for (const QString& label : {labels_.plus, labels_.minus, labels_.next, labels_.previous}) {
        world_.prompts.expectError(label, 91, description);
    }
    click("cmdPlus");
    click("cmdMinus");
    click("cmdNext");
    click("cmdPrev");
    EXPECT_TRUE(world_.prompts.isSatisfied());
}

TEST_F(ReportPagerTest, routineWithoutALabel_passesItsFailureOver) {
    ReportStrip strip{QStringLiteral("Page 1 of 1")};
    const ReportPager pager(surface_, strip, ZoomSteps::byTens(), {});
    surface_.broken = true;
    strip.cmdPlus->click();
    SUCCEED();
}

TEST_F(ReportPagerTest, strip_controlsHaveNamesInReadingOrder) {
    open(3);
    click("cmdNext");
    WindowDriver::expectNamedControls(strip_);
    WindowDriver::expectReadingOrder(strip_);
}
