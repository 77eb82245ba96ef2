#include "reports/windows/PreviewWidget.h"

#include "reports/pages/PageSurface.h"
#include "support/QtPrinting.h"
#include "support/TestWorld.h"
#include "support/WindowDriver.h"

#include <QScrollBar>
#include <QSignalSpy>
#include <QWheelEvent>
#include <gtest/gtest.h>

namespace {

class PreviewWidgetTest : public testing::Test {
protected:
    TestWorld world_;
    PageSurface surface_{QSizeF(12240, 15840)};
    std::unique_ptr<PreviewWidget> preview_ = std::make_unique<PreviewWidget>(surface_);
    QSignalSpy chosen_{preview_.get(), &PreviewWidget::pageChosen};

    void SetUp() override {
        preview_->resize(800, 600);
        preview_->show();
        preview_->setFocus();
    }
    void writePages(int count) {
        surface_.StartDoc();
        for (int page = 1; page <= count; ++page) {
            if (page > 1) {
                surface_.NewPage();
            }
            surface_.Header(QStringLiteral("Header %1").arg(page));
            surface_.Write(QStringLiteral("Words of page %1").arg(page));
        }
        surface_.EndDoc();
    }
    void press(Qt::Key key) { QTest::keyClick(preview_.get(), key); }
    void clickPage(qint32 page) {
        QTest::mouseClick(preview_->viewport(), Qt::LeftButton, Qt::NoModifier,
                          preview_->pageArea(page).center());
    }
    void turnWheel(int notches, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        const QPointF middle(preview_->viewport()->rect().center());
        QWheelEvent event(middle, preview_->viewport()->mapToGlobal(middle), {}, {0, notches * 120},
                          Qt::NoButton, modifiers, Qt::NoScrollPhase, false);
        QApplication::sendEvent(preview_->viewport(), &event);
    }
    QScrollBar& bar() { return *preview_->verticalScrollBar(); }
    QColor colorAt(QPoint place) {
        return preview_->viewport()->grab().toImage().pixelColor(place * preview_->devicePixelRatio());
    }
};

} // namespace

TEST_F(PreviewWidgetTest, paper_isWhiteOnTheDesksTone) {
    writePages(1);
    EXPECT_EQ(colorAt(preview_->pageArea(0).topLeft() + QPoint(10, 10)), QColor(Qt::white));
    EXPECT_EQ(colorAt(QPoint(3, 3)).rgb(), preview_->palette().color(QPalette::Mid).rgb());
}

TEST_F(PreviewWidgetTest, paper_staysWhiteInADarkTheme) {
    QPalette dark(QColor(40, 40, 40));
    preview_->setPalette(dark);
    writePages(1);
    EXPECT_EQ(colorAt(preview_->pageArea(0).topLeft() + QPoint(10, 10)), QColor(Qt::white));
}

TEST_F(PreviewWidgetTest, backColor_isShown) {
    surface_.BackColor(0xAA8866);
    writePages(1);
    EXPECT_EQ(colorAt(preview_->pageArea(0).topLeft() + QPoint(10, 10)), QColor(0x66, 0x88, 0xAA));
}

TEST_F(PreviewWidgetTest, noDocument_showsAnEmptyDesk) {
    EXPECT_TRUE(preview_->plan().pages.empty());
    EXPECT_EQ(colorAt(QPoint(30, 30)).rgb(), preview_->palette().color(QPalette::Mid).rgb());
}

TEST_F(PreviewWidgetTest, newDocument_isShownAtOnce) {
    writePages(2);
    EXPECT_EQ(preview_->plan().pages.size(), 1U);
    writePages(1);
    surface_.ZoomMode(2);
    EXPECT_EQ(preview_->plan().pages.size(), 1U);
}

TEST_F(PreviewWidgetTest, zoomWhileAFitModeIsOn_takesEffect) {
    writePages(1);
    const int before = preview_->pageArea(0).width();
    surface_.Zoom(200);
    EXPECT_GT(preview_->pageArea(0).width(), before);
}

TEST_F(PreviewWidgetTest, zoomReadInAFitMode_isWhatTheEyeSees) {
    writePages(1);
    surface_.Zoom(100);
    const double fullWidth = preview_->pageArea(0).width();
    surface_.ZoomMode(4);
    EXPECT_NEAR(surface_.Zoom(), preview_->pageArea(0).width() / fullWidth * 100, 0.5);
    const int before = preview_->pageArea(0).width();
    surface_.Zoom(surface_.Zoom() - 10);
    EXPECT_LT(preview_->pageArea(0).width(), before);
}

TEST_F(PreviewWidgetTest, thumbnails_aClickChoosesThePage) {
    writePages(5);
    surface_.ZoomMode(2);
    clickPage(3);
    EXPECT_EQ(surface_.PreviewPage(), 4);
    EXPECT_EQ(chosen_.count(), 1);
}

TEST_F(PreviewWidgetTest, thumbnails_aClickOnTheDeskOrTheChosenPage_choosesNothing) {
    writePages(5);
    surface_.ZoomMode(2);
    clickPage(0);
    QTest::mouseClick(preview_->viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(2, 2));
    EXPECT_EQ(surface_.PreviewPage(), 1);
    EXPECT_EQ(chosen_.count(), 0);
}

TEST_F(PreviewWidgetTest, thumbnails_arrowsWalkFromPageToPage) {
    writePages(9);
    surface_.ZoomMode(2);
    press(Qt::Key_Right);
    EXPECT_EQ(surface_.PreviewPage(), 2);
    press(Qt::Key_Down);
    EXPECT_EQ(surface_.PreviewPage(), 2 + preview_->plan().columns);
    press(Qt::Key_Up);
    press(Qt::Key_Left);
    EXPECT_EQ(surface_.PreviewPage(), 1);
    press(Qt::Key_Left);
    EXPECT_EQ(surface_.PreviewPage(), 1);
}

TEST_F(PreviewWidgetTest, thumbnails_theChosenPageComesIntoSight) {
    writePages(60);
    surface_.ZoomMode(2);
    surface_.PreviewPage(55);
    EXPECT_TRUE(preview_->viewport()->rect().contains(preview_->pageArea(54)));
    surface_.PreviewPage(1);
    EXPECT_TRUE(preview_->viewport()->rect().contains(preview_->pageArea(0)));
}

TEST_F(PreviewWidgetTest, pageDown_scrollsToThePagesEndAndThenTurns) {
    writePages(2);
    surface_.Zoom(100);
    ASSERT_GT(bar().maximum(), 0);
    press(Qt::Key_PageDown);
    EXPECT_EQ(surface_.PreviewPage(), 1);
    EXPECT_GT(bar().value(), 0);
    for (int presses = 0; presses < 20 && bar().value() < bar().maximum(); ++presses) {
        press(Qt::Key_PageDown);
    }
    press(Qt::Key_PageDown);
    EXPECT_EQ(surface_.PreviewPage(), 2);
    EXPECT_EQ(bar().value(), 0);
}

TEST_F(PreviewWidgetTest, pageUp_fromThePagesTop_turnsToTheEndOfThePageBefore) {
    writePages(2);
    surface_.Zoom(100);
    surface_.PreviewPage(2);
    press(Qt::Key_PageUp);
    EXPECT_EQ(surface_.PreviewPage(), 1);
    EXPECT_EQ(bar().value(), bar().maximum());
}

TEST_F(PreviewWidgetTest, pageKeys_atTheDocumentsEnds_stay) {
    writePages(1);
    press(Qt::Key_PageUp);
    press(Qt::Key_PageDown);
    EXPECT_EQ(surface_.PreviewPage(), 1);
    EXPECT_EQ(chosen_.count(), 0);
}

TEST_F(PreviewWidgetTest, arrows_scroll) {
    writePages(1);
    surface_.Zoom(100);
    press(Qt::Key_Down);
    const int down = bar().value();
    EXPECT_GT(down, 0);
    press(Qt::Key_Up);
    EXPECT_LT(bar().value(), down);
}

TEST_F(PreviewWidgetTest, homeAndEnd_goToTheFirstAndLastPage) {
    writePages(3);
    press(Qt::Key_End);
    EXPECT_EQ(surface_.PreviewPage(), 3);
    press(Qt::Key_Home);
    EXPECT_EQ(surface_.PreviewPage(), 1);
}

TEST_F(PreviewWidgetTest, wheel_turnsWherePagesAreWhole) {
    writePages(3);
    turnWheel(-1);
    EXPECT_EQ(surface_.PreviewPage(), 2);
    turnWheel(1);
    EXPECT_EQ(surface_.PreviewPage(), 1);
    turnWheel(1);
    EXPECT_EQ(surface_.PreviewPage(), 1);
}

TEST_F(PreviewWidgetTest, wheel_scrollsWhereThereIsMoreToSee) {
    writePages(3);
    surface_.Zoom(100);
    turnWheel(-1);
    EXPECT_EQ(surface_.PreviewPage(), 1);
    EXPECT_GT(bar().value(), 0);
}

TEST_F(PreviewWidgetTest, wheelWithCtrl_zoomsByTenPercent) {
    writePages(1);
    surface_.Zoom(100);
    turnWheel(1, Qt::ControlModifier);
    EXPECT_EQ(surface_.ZoomMode(), 0);
    EXPECT_NEAR(surface_.Zoom(), 110, 1e-6);
    turnWheel(-20, Qt::ControlModifier);
    EXPECT_NEAR(surface_.Zoom(), 10, 1e-6);
}

TEST_F(PreviewWidgetTest, anotherPage_beginsAtItsTop) {
    writePages(2);
    surface_.Zoom(100);
    bar().setValue(bar().maximum());
    surface_.PreviewPage(2);
    EXPECT_EQ(bar().value(), 0);
}

TEST_F(PreviewWidgetTest, accessibleDescription_isTheTextOfTheChosenPage) {
    writePages(2);
    surface_.PreviewPage(2);
    EXPECT_EQ(preview_->accessibleDescription(), QStringLiteral("Header 2\nWords of page 2"));
    EXPECT_FALSE(preview_->accessibleName().isEmpty());
}

TEST_F(PreviewWidgetTest, toolTipText_isTheToolTip) {
    surface_.ToolTipText(QStringLiteral("A tip"));
    EXPECT_EQ(preview_->viewport()->toolTip(), QStringLiteral("A tip"));
}

TEST_F(PreviewWidgetTest, resizing_keepsTheWholePageInSight) {
    writePages(1);
    for (const QSize& size : {QSize(300, 900), QSize(900, 300), QSize(120, 120)}) {
        preview_->resize(size);
        QApplication::processEvents();
        EXPECT_TRUE(preview_->viewport()->rect().contains(preview_->pageArea(0)));
        EXPECT_EQ(bar().maximum(), 0);
    }
}

TEST_F(PreviewWidgetTest, thumbnails_theChosenPageIsMarkedAndEachHasItsNumberBelow) {
    for (const QColor& ground : {QColor(240, 240, 240), QColor(40, 40, 40)}) {
        preview_->setPalette(QPalette(ground));
        writePages(4);
        surface_.ZoomMode(2);
        surface_.PreviewPage(3);
        preview_->clearFocus();
        const QColor mark = preview_->palette().color(QPalette::Highlight);
        const QColor desk = preview_->palette().color(QPalette::Mid);
        const QColor ink = desk.lightnessF() < 0.5F ? Qt::white : Qt::black;
        const QImage image = preview_->viewport()->grab().toImage();
        for (int page = 0; page < 4; ++page) {
            const QRect area = preview_->pageArea(page);
            const QColor beside = image.pixelColor(area.left() - 2, area.center().y());
            EXPECT_EQ(beside.rgb() == mark.rgb(), page == 2) << page;
            bool numbered = false;
            for (int y = area.bottom() + 4; y < area.bottom() + 8 + preview_->fontMetrics().height(); ++y) {
                for (int x = area.left(); x < area.right() && y < image.height(); ++x) {
                    numbered = numbered || image.pixelColor(x, y).rgb() == ink.rgb();
                }
            }
            EXPECT_TRUE(numbered) << page;
        }
    }
}

TEST_F(PreviewWidgetTest, thumbnails_largerLettersMakeRoomForTheNumbers) {
    writePages(30);
    surface_.ZoomMode(2);
    const int columns = preview_->plan().columns;
    const int between = preview_->pageArea(columns).top() - preview_->pageArea(0).bottom();
    QFont large = preview_->font();
    large.setPointSizeF(3 * large.pointSizeF());
    preview_->setFont(large);
    EXPECT_GT(preview_->pageArea(preview_->plan().columns).top() - preview_->pageArea(0).bottom(), between);
}

TEST_F(PreviewWidgetTest, wheelWithCtrl_overAnEmptyDesk_keepsTheZoomAndItsMode) {
    const auto mode = surface_.ZoomMode();
    const double zoom = surface_.Zoom();
    turnWheel(1, Qt::ControlModifier);
    EXPECT_EQ(surface_.ZoomMode(), mode);
    EXPECT_EQ(surface_.Zoom(), zoom);
}
