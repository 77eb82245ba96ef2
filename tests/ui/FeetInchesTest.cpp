#include "ui/FeetInches.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(FeetInchesTest, distances_areToldToTheNearestInch) {
    EXPECT_EQ(feetAndInches(126), u"10 ft 6 in"_s);
    EXPECT_EQ(feetAndInches(0), u"0 ft 0 in"_s);
    EXPECT_EQ(feetAndInches(11.6F), u"1 ft 0 in"_s);
    EXPECT_EQ(feetAndInches(5.4F), u"0 ft 5 in"_s);
}

TEST(FeetInchesTest, negativeDistances_haveOneSign) {
    EXPECT_EQ(feetAndInches(-14), u"-1 ft 2 in"_s);
    EXPECT_EQ(feetAndInches(-6), u"-0 ft 6 in"_s);
    EXPECT_EQ(feetAndInches(-0.3F), u"0 ft 0 in"_s);
}
