#include "ui/PlanView.h"

#include "core/Failure.h"
#include "ui/PlanRoom.h"

#include <QImage>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class PlanViewTest : public testing::Test {
protected:
    QWidget desk_;
    PlanView plan_{&desk_};

    void fit(qint32 width, qint32 height) {
        plan_.setScaleWidth(width);
        plan_.setScaleHeight(height);
        plan_.fit({0, 0, 600, 400});
    }
    [[nodiscard]] QImage painted() { return plan_.grab().toImage(); }
};

qint32 failureOf(const std::function<void()>& statement) {
    try {
        statement();
    } catch (const Failure& found) {
        return found.number;
    }
    return 0;
}

} // namespace

TEST_F(PlanViewTest, fit_usesOneScaleAsLargeAsTheSpaceAllows) {
    fit(600, 600);
    EXPECT_EQ(plan_.geometry(), QRect(100, 0, 400, 400));
    EXPECT_DOUBLE_EQ(plan_.pixelsPerInch(), 400.0 / 600);
    fit(1200, 200);
    EXPECT_EQ(plan_.geometry(), QRect(0, 150, 600, 100));
}

TEST_F(PlanViewTest, squareRoom_isSquareOnAnyPlan) {
    for (const auto& [width, height] : {std::pair(600, 600), std::pair(10000, 700), std::pair(100, 9000)}) {
        fit(width, height);
        const QRect pixels = plan_.toPixels(10, 20, 50, 50);
        EXPECT_NEAR(pixels.width(), pixels.height(), 1);
    }
}

TEST_F(PlanViewTest, roomsThatTouch_shareOneLine) {
    fit(600, 600);
    const QRect left = plan_.toPixels(0, 0, 101, 50);
    const QRect right = plan_.toPixels(101, 0, 101, 50);
    EXPECT_EQ(left.right(), right.left());
}

TEST_F(PlanViewTest, smallestRooms_canBeSeenOnTheLargestPlans) {
    fit(10000, 10000);
    EXPECT_EQ(plan_.toPixels(5000, 5000, 1, 1).size(), QSize(3, 3));
    fit(2147483647, 1);
    EXPECT_GE(plan_.height(), 1);
}

TEST_F(PlanViewTest, roomsFarOutside_arePlacedWithoutOverflow) {
    fit(1, 1);
    const QRect pixels = plan_.toPixels(-3e38F, 3e38F, 3e38F, 3e38F);
    EXPECT_LT(pixels.right(), pixels.left() + (1 << 24));
    EXPECT_GT(pixels.top(), 1 << 20);
}

TEST_F(PlanViewTest, extents_mustBePositive) {
    EXPECT_EQ(failureOf([this] { plan_.setScaleWidth(0); }), 380);
    EXPECT_EQ(failureOf([this] { plan_.setScaleHeight(-100); }), 380);
    EXPECT_EQ(failureOf([this] { plan_.setScaleHeight(1); }), 0);
    EXPECT_EQ(plan_.ScaleWidth(), 600);
}

TEST_F(PlanViewTest, paper_isWhiteInDarkThemesToo) {
    QPalette dark;
    dark.setColor(QPalette::Window, Qt::black);
    dark.setColor(QPalette::Base, Qt::black);
    desk_.setPalette(dark);
    fit(600, 600);
    PlanRoom room(0, plan_);
    room.setDescription(u"Hall"_s);
    room.Move(100, 100);
    room.show();
    const QImage picture = painted();
    EXPECT_EQ(picture.pixelColor(plan_.width() - 4, 4), QColor(Qt::white));
    const QRect inside = room.geometry();
    EXPECT_EQ(picture.pixelColor(inside.bottomRight() - QPoint(4, 4)), QColor(Qt::white));
    EXPECT_EQ(picture.pixelColor(inside.topLeft()), QColor(0x1E, 0x1E, 0x1E));
}

TEST_F(PlanViewTest, selectedRoom_isLightBlue) {
    fit(600, 600);
    PlanRoom room(0, plan_);
    room.setSelected(true);
    room.show();
    EXPECT_EQ(painted().pixelColor(room.geometry().center()), QColor(200, 220, 250));
}

TEST_F(PlanViewTest, outlinesOfTheFloorBelow_areThinAndGrey) {
    fit(600, 600);
    plan_.drawLine({0, 300}, {600, 300});
    EXPECT_EQ(painted().pixelColor(5, 200), QColor(0xA8, 0xA8, 0xA8));
    plan_.Clear();
    EXPECT_TRUE(plan_.lines().isEmpty());
}

TEST_F(PlanViewTest, room_tellsItsNameSizeAndPlace) {
    PlanRoom room(0, plan_);
    room.setDescription(u"Guest Room"_s);
    room.Move(40, 122);
    room.setWidth(126);
    room.setHeight(96);
    EXPECT_EQ(room.accessibleName(), u"Guest Room"_s);
    EXPECT_EQ(room.accessibleDescription(),
              u"10 ft 6 in wide, 8 ft 0 in long; 3 ft 4 in from the left, 10 ft 2 in from the top"_s);
}

TEST_F(PlanViewTest, room_refusesANegativeExtent) {
    PlanRoom room(0, plan_);
    EXPECT_EQ(failureOf([&] { room.setWidth(-1); }), 380);
    EXPECT_EQ(failureOf([&] { room.setHeight(-1); }), 380);
    EXPECT_EQ(room.Width(), 120.0F);
}
