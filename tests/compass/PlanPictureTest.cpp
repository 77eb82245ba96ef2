#include "compass/PlanPicture.h"

#include <gtest/gtest.h>

TEST(PlanPicture, keepsWhatIsDrawnInItsOrder) {
    PlanPicture picture;
    picture.setScale({-10, -20, 30, 40});
    picture.Line(1, 2, 3, 4);
    picture.FillStyle = PlanFill::Solid;
    picture.FillColor = 255;
    picture.Circle(0, 0, 5);
    picture.FillStyle = PlanFill::Transparent;
    picture.Circle(0, 0, 10);
    picture.CurrentX = 7;
    picture.CurrentY = 8;
    picture.FontSize = 24;
    picture.FontBold = true;
    picture.Print(QStringLiteral("Elm Street"));
    picture.Print(QStringLiteral("Kitchen"), {60, 20});
    const std::vector<PlanItem> expected = {
        PlanScale{-10, -20, 30, 40},
        PlanLine{1, 2, 3, 4},
        PlanArc{.x = 0, .y = 0, .radius = 5, .color = 0, .span = {}, .fill = 255},
        PlanArc{.x = 0, .y = 0, .radius = 10, .color = 0, .span = {}, .fill = {}},
        PlanText{7, 8, QStringLiteral("Elm Street"), {}, 24, true},
        PlanText{7, 8, QStringLiteral("Kitchen"), {60, 20}, 24, true},
    };
    EXPECT_EQ(picture.items(), expected);
}

TEST(PlanPicture, Cls_takesAllAwayButTheScale) {
    PlanPicture picture;
    picture.setScale({-10, -20, 30, 40});
    picture.CurrentX = 7;
    picture.Line(1, 2, 3, 4);
    picture.Cls();
    EXPECT_TRUE(picture.items().empty());
    EXPECT_EQ(picture.scale(), (PlanScale{-10, -20, 30, 40}));
    EXPECT_EQ(picture.CurrentX, 0);
}
