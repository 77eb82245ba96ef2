#include "compass/windows/PlanPainter.h"

#include "compass/CompassGeometry.h"
#include "compass/PlanPicture.h"
#include "compass/windows/PlanWidget.h"

#include <QImage>
#include <QPainter>
#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace {

constexpr int side = 400;

QImage painted(const PlanPicture& picture, QSize size = {side, side}) {
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    paintPlan(painter, picture, QRectF(QPointF(), size), {});
    return image;
}

/// The colour that stands in a direction from the middle, half way out to the edge.
QColor towards(const QImage& image, double compassDegrees) {
    const double angle = compassDegrees * std::numbers::pi / 180;
    return image.pixelColor(qRound(image.width() * (0.5 + 0.25 * std::sin(angle))),
                            qRound(image.height() * (0.5 - 0.25 * std::cos(angle))));
}

bool isWhite(const QImage& image) {
    QImage white(image.size(), image.format());
    white.fill(Qt::white);
    return image == white;
}

void setSquareScale(PlanPicture& picture, float reach) {
    picture.setScale({-reach, -reach, 2 * reach, 2 * reach});
}

} // namespace

TEST(PlanPainter, slicesOfAnyDirection_areFilledWhereTheCompassSays) {
    for (int start = 0; start < 360; start += 15) {
        const int end = (start + 60) % 360;
        PlanPicture picture;
        setSquareScale(picture, 100);
        picture.FillStyle = PlanFill::Solid;
        picture.FillColor = 0x0000FF; // red
        if (start < end) {
            PieSlice(picture, 0, 0, 90, 0x0000FF, static_cast<float>(start), static_cast<float>(end));
        } else {
            PieSlice(picture, 0, 0, 90, 0x0000FF, static_cast<float>(start), 360);
            PieSlice(picture, 0, 0, 90, 0x0000FF, 0.01F, static_cast<float>(end));
        }
        const QImage image = painted(picture);
        for (int angle = 5; angle < 360; angle += 10) {
            const bool inside = (angle - start + 360) % 360 < 60;
            if ((angle - start + 360) % 60 == 0) {
                continue; // on a border
            }
            EXPECT_EQ(towards(image, angle), inside ? QColor(Qt::red) : QColor(Qt::white))
                << "slice from " << start << ", at " << angle;
        }
    }
}

TEST(PlanPainter, inchesAreAsLongAcrossAsDown_andThePictureStandsInTheMiddle) {
    PlanPicture picture;
    setSquareScale(picture, 100);
    picture.FillStyle = PlanFill::Solid;
    picture.Circle(0, 0, 100);
    const QImage image = painted(picture, {600, 200});
    EXPECT_EQ(image.pixelColor(300, 100), QColor(Qt::black));
    EXPECT_EQ(image.pixelColor(210, 100), QColor(Qt::black));
    EXPECT_EQ(image.pixelColor(190, 100), QColor(Qt::white));
}

TEST(PlanPainter, scaleThatHasNoExtent_showsNothing) {
    for (const float reach : {0.0F, -50.0F}) {
        PlanPicture picture;
        setSquareScale(picture, reach);
        picture.Line(-10, 0, 10, 0);
        picture.Circle(0, 0, 30);
        picture.Print(QStringLiteral("Kitchen"));
        EXPECT_TRUE(isWhite(painted(picture)));
    }
}

TEST(PlanPainter, whatLiesFarOutside_isNotSeenAndHarmsNothing) {
    PlanPicture picture;
    setSquareScale(picture, 100);
    picture.CurrentX = 1e13F;
    picture.Print(QStringLiteral("W"));
    picture.Line(-2e9F, 2e9F, 2e9F, 2e9F);
    picture.Circle(0, 0, -5);
    EXPECT_TRUE(isWhite(painted(picture)));
    picture.Line(-2e9F, 0, 2e9F, 0);
    const QImage image = painted(picture);
    EXPECT_NE(image.pixelColor(3, side / 2), QColor(Qt::white));
    EXPECT_NE(image.pixelColor(side - 3, side / 2), QColor(Qt::white));
}

TEST(PlanPainter, textWiderThanItsSpace_goesOnInFurtherLinesAndIsThenCut) {
    /// The part of the picture that a name of three words covers.
    const auto inked = [](const PlanSpace& space) {
        PlanPicture picture;
        setSquareScale(picture, 100);
        picture.CurrentX = -90;
        picture.CurrentY = -90;
        picture.Print(QStringLiteral("Great Summer Hall"), space);
        const QImage image = painted(picture);
        QRect covered;
        for (int x = 0; x < side; ++x) {
            for (int y = 0; y < side; ++y) {
                if (image.pixelColor(x, y).lightness() < 128) {
                    covered |= QRect(x, y, 1, 1);
                }
            }
        }
        return covered;
    };
    constexpr int pixelsPerInch = 2;
    const QRect whole = inked({});
    const int lineHeight = whole.height();
    EXPECT_EQ(inked({.width = 150, .height = 1}), whole);
    const QRect wrapped = inked({.width = 40, .height = 80});
    EXPECT_LE(wrapped.width(), 40 * pixelsPerInch);
    EXPECT_GT(wrapped.height(), 2 * lineHeight);
    const QRect cut = inked({.width = 40, .height = 1});
    EXPECT_LE(cut.width(), 40 * pixelsPerInch);
    EXPECT_LE(cut.height(), lineHeight);
    EXPECT_FALSE(cut.isEmpty());
}

TEST(PlanWidget, toPlan_mapsEdgesAndMiddleAndBack) {
    PlanWidget widget;
    widget.resize(side, side);
    widget.picture().setScale({-160, -160, 321, 321});
    EXPECT_EQ(widget.toPlan({0, 0}), QPointF(-160, -160));
    EXPECT_EQ(widget.toPlan({side, side}), QPointF(161, 161));
    EXPECT_EQ(widget.fromPlan(widget.toPlan({123, 45})), QPointF(123, 45));
}
