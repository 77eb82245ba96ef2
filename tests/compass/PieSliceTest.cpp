#include "compass/PlanPicture.h"
#include "core/Global.h"

#include <gtest/gtest.h>

namespace {

constexpr qint32 color = 0x97EA6A;
constexpr qint32 inside = 0x123456;
constexpr float tiny = 1 / 100.0F;

float radians(float compassDegrees) {
    return Global::CompassToRadians(compassDegrees);
}

float turned(float angle) {
    return static_cast<float>(2 * 3.14159265359 + static_cast<double>(angle));
}

std::vector<PlanItem> slice(float start, float end) {
    PlanPicture picture;
    picture.FillStyle = PlanFill::Solid;
    picture.FillColor = inside;
    PieSlice(picture, 1, 2, 60, color, start, end);
    return picture.items();
}

PlanItem arc(qint32 line, float start, float end) {
    const bool closed = start < 0 && end < 0;
    return PlanArc{.x = 1,
                   .y = 2,
                   .radius = 60,
                   .color = line,
                   .span = PlanArc::Span{start, end},
                   .fill = closed ? std::optional(inside) : std::nullopt};
}

} // namespace

TEST(PieSlice, leftOfTheAxis_isOneClosedArc) {
    EXPECT_EQ(slice(285, 345), (std::vector{arc(color, -turned(radians(345)), -turned(radians(285)))}));
    EXPECT_EQ(slice(195, 255), (std::vector{arc(color, -turned(radians(255)), -turned(radians(195)))}));
}

TEST(PieSlice, upperRight_needsNoTurn) {
    EXPECT_EQ(slice(15, 75), (std::vector{arc(color, -radians(75), -radians(15))}));
}

TEST(PieSlice, endsThatStandTheWrongWayRound_changePlaces) {
    EXPECT_EQ(slice(75, 15), slice(15, 75));
}

TEST(PieSlice, endOnTheAxis_getsTheStandInForZero) {
    EXPECT_EQ(slice(30, 90), (std::vector{arc(color, -tiny, -radians(30))}));
    EXPECT_EQ(slice(90, 80), (std::vector{arc(color, -tiny, -radians(80))}));
}

TEST(PieSlice, startOnTheAxis_isDrawnAcrossIt) {
    const float below = turned(radians(150));
    EXPECT_EQ(slice(90, 150), (std::vector{arc(inside, -below, -tiny), arc(inside, -tiny, -tiny),
                                           arc(color, -below, tiny), arc(color, tiny, -tiny)}));
}

TEST(PieSlice, acrossTheAxis_isFilledInTwoPartsAndOutlinedInTwo) {
    const float below = turned(radians(105));
    const float above = radians(75);
    EXPECT_EQ(slice(75, 105), (std::vector{arc(inside, -below, -tiny), arc(inside, -tiny, -above),
                                           arc(color, -below, tiny), arc(color, tiny, -above)}));
}

TEST(PieSlice, transparent_isOutlinedOnly) {
    PlanPicture picture;
    PieSlice(picture, 0, 0, 60, 0, 15, 75);
    ASSERT_EQ(picture.items().size(), 1U);
    EXPECT_EQ(std::get<PlanArc>(picture.items()[0]).fill, std::nullopt);
}
