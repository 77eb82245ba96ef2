#include "reports/windows/PreviewLayout.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

class PreviewLayoutTest : public testing::Test {
protected:
    PreviewView view_{.mode = PreviewMode::WholePage,
                      .zoom = 100,
                      .page = 1,
                      .pageCount = 5,
                      .pageSize = QSizeF(12240, 15840)};
    PreviewSpace space_{
        .viewport = QSize(800, 600), .scrollBarExtent = 16, .dotsPerInch = 96, .captionHeight = 20};

    PreviewPlan planned(PreviewMode mode) {
        view_.mode = mode;
        return planPreview(view_, space_);
    }
    static double ratioOf(const QRect& area) { return static_cast<double>(area.width()) / area.height(); }
};

} // namespace

TEST_F(PreviewLayoutTest, percentage_100_isTheScreensOwnInch) {
    const PreviewPlan plan = planned(PreviewMode::Percentage);
    ASSERT_EQ(plan.pages.size(), 1U);
    EXPECT_EQ(plan.pages[0].area.size(), QSize(816, 1056)); // 8.5 by 11 inches of 96 dots
}

TEST_F(PreviewLayoutTest, percentage_followsTheScreensDensity) {
    space_.dotsPerInch = 120;
    EXPECT_EQ(planned(PreviewMode::Percentage).pages[0].area.size(), QSize(1020, 1320));
}

TEST_F(PreviewLayoutTest, percentage_50_isHalfAsLargeAndStandsInTheMiddle) {
    view_.zoom = 50;
    const PreviewPlan plan = planned(PreviewMode::Percentage);
    EXPECT_EQ(plan.pages[0].area.size(), QSize(408, 528));
    EXPECT_EQ(plan.desk, QSize(800, 600));
    EXPECT_LE(std::abs(plan.pages[0].area.center().x() - 400), 1);
    EXPECT_LE(std::abs(plan.pages[0].area.center().y() - 300), 1);
}

TEST_F(PreviewLayoutTest, percentage_pageLargerThanTheRoom_givesADeskToScroll) {
    const PreviewPlan plan = planned(PreviewMode::Percentage);
    EXPECT_EQ(plan.desk.height(), 1056 + 48);
    EXPECT_EQ(plan.desk.width(), 816 + 48);
    EXPECT_TRUE(QRect(QPoint(), plan.desk).contains(plan.pages[0].area));
}

TEST_F(PreviewLayoutTest, fitWidth_fillsTheWidthBesideTheScrollBar) {
    const PreviewPlan plan = planned(PreviewMode::FitWidth);
    EXPECT_EQ(plan.pages[0].area.width(), 800 - 16 - 48);
    EXPECT_EQ(plan.desk.width(), 800 - 16);
    EXPECT_GT(plan.desk.height(), 600);
}

TEST_F(PreviewLayoutTest, wholePage_fitsTheRoomAtItsOwnProportion) {
    const PreviewPlan plan = planned(PreviewMode::WholePage);
    EXPECT_EQ(plan.desk, space_.viewport);
    EXPECT_EQ(plan.pages[0].area.height(), 600 - 48);
    EXPECT_NEAR(ratioOf(plan.pages[0].area), 8.5 / 11, 0.002);
}

TEST_F(PreviewLayoutTest, singlePageModes_showTheChosenPage) {
    view_.page = 4;
    for (const PreviewMode mode : {PreviewMode::Percentage, PreviewMode::FitWidth, PreviewMode::WholePage}) {
        const PreviewPlan plan = planned(mode);
        ASSERT_EQ(plan.pages.size(), 1U);
        EXPECT_EQ(plan.pages[0].page, 3);
    }
}

TEST_F(PreviewLayoutTest, twoPages_showThePairThatBeginsWithAnOddPage) {
    for (const qint32 page : {3, 4}) {
        view_.page = page;
        const PreviewPlan plan = planned(PreviewMode::TwoPages);
        ASSERT_EQ(plan.pages.size(), 2U);
        EXPECT_EQ(plan.pages[0].page, 2);
        EXPECT_EQ(plan.pages[1].page, 3);
        EXPECT_LT(plan.pages[0].area.right(), plan.pages[1].area.left());
        EXPECT_EQ(plan.desk, space_.viewport);
    }
}

TEST_F(PreviewLayoutTest, twoPages_lastOddPage_standsAloneOnTheLeft) {
    view_.page = 5;
    const PreviewPlan plan = planned(PreviewMode::TwoPages);
    ASSERT_EQ(plan.pages.size(), 1U);
    EXPECT_EQ(plan.pages[0].page, 4);
    EXPECT_LT(plan.pages[0].area.right(), 400);
}

TEST_F(PreviewLayoutTest, thumbnails_showAllPagesInRowsWithoutOverlap) {
    view_.pageCount = 40;
    const PreviewPlan plan = planned(PreviewMode::Thumbnails);
    ASSERT_EQ(plan.pages.size(), 40U);
    EXPECT_EQ(plan.columns, 4);
    EXPECT_GT(plan.desk.height(), 600);
    EXPECT_LE(plan.desk.width(), 800);
    for (std::size_t i = 0; i < plan.pages.size(); ++i) {
        EXPECT_EQ(plan.pages[i].page, static_cast<qint32>(i));
        for (std::size_t j = i + 1; j < plan.pages.size(); ++j) {
            EXPECT_FALSE(plan.pages[i].area.adjusted(0, 0, 0, 20).intersects(plan.pages[j].area));
        }
    }
}

TEST_F(PreviewLayoutTest, thumbnails_fewerThanAColumn_standInTheMiddle) {
    view_.pageCount = 1;
    const PreviewPlan plan = planned(PreviewMode::Thumbnails);
    EXPECT_EQ(plan.columns, 1);
    EXPECT_LE(std::abs(plan.pages[0].area.center().x() - 400), 1);
}

TEST_F(PreviewLayoutTest, noPages_isAnEmptyDesk) {
    view_.pageCount = 0;
    for (qint32 mode = 0; mode <= 4; ++mode) {
        const PreviewPlan plan = planned(static_cast<PreviewMode>(mode));
        EXPECT_TRUE(plan.pages.empty());
        EXPECT_EQ(plan.desk, space_.viewport);
    }
}

TEST_F(PreviewLayoutTest, tinyRoom_stillGivesAPageOfSomeSize) {
    space_.viewport = QSize(10, 10);
    for (qint32 mode = 0; mode <= 4; ++mode) {
        for (const PagePlace& place : planned(static_cast<PreviewMode>(mode)).pages) {
            EXPECT_GE(place.area.width(), 1);
            EXPECT_GE(place.area.height(), 1);
        }
    }
}
