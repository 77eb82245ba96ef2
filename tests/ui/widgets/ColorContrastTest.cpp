#include "ui/widgets/ColorContrast.h"

#include <QPalette>
#include <gtest/gtest.h>

TEST(ColorContrast, ratio_ofBlackAndWhite_is21) {
    EXPECT_NEAR(ColorContrast::ratio(Qt::black, Qt::white), 21, 1e-9);
    EXPECT_NEAR(ColorContrast::ratio(Qt::white, Qt::white), 1, 1e-9);
}

TEST(ColorContrast, textOn_everyGround_isLegible) {
    constexpr int step = 15;
    for (int red = 0; red <= 255; red += step) {
        for (int green = 0; green <= 255; green += step) {
            for (int blue = 0; blue <= 255; blue += step) {
                const QColor ground(red, green, blue);
                ASSERT_GE(ColorContrast::ratio(ColorContrast::textOn(ground), ground), 4.5)
                    << qPrintable(ground.name());
            }
        }
    }
}

TEST(ColorContrast, between_goesFromTheOneToTheOther) {
    const QColor one(10, 200, 0);
    const QColor other(20, 100, 255);
    EXPECT_EQ(ColorContrast::between(one, other, 0), one);
    EXPECT_EQ(ColorContrast::between(one, other, 1), other);
    EXPECT_EQ(ColorContrast::between(one, other, 0.5), QColor(15, 150, 128));
}

TEST(ColorContrast, legibleSelection_ofAnyColourUnderEitherText_isLegible) {
    constexpr int step = 51;
    for (const QColor& text : {QColor(Qt::white), QColor(Qt::black)}) {
        for (int hue = 0; hue < 360; hue += step) {
            for (int value = 0; value <= 255; value += step) {
                QPalette palette;
                palette.setColor(QPalette::Highlight, QColor::fromHsv(hue, 200, value));
                palette.setColor(QPalette::HighlightedText, text);
                const QPalette legible = ColorContrast::legibleSelection(palette);
                ASSERT_GE(ColorContrast::ratio(legible.color(QPalette::Highlight),
                                               legible.color(QPalette::HighlightedText)),
                          4.5)
                    << hue << ' ' << value;
            }
        }
    }
}

TEST(ColorContrast, legibleSelection_changesNothingThatIsLegibleAndNothingElse) {
    QPalette palette;
    palette.setColor(QPalette::Highlight, Qt::darkBlue);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Window, Qt::red);
    const QPalette legible = ColorContrast::legibleSelection(palette);
    EXPECT_EQ(legible.color(QPalette::Highlight), QColor(Qt::darkBlue));
    EXPECT_EQ(legible.color(QPalette::HighlightedText), QColor(Qt::white));
    EXPECT_FALSE(legible.isBrushSet(QPalette::Active, QPalette::Window));
}

TEST(ColorContrast, paperGrey_followsTheDesktopsTheme) {
    QPalette light;
    light.setColor(QPalette::Window, Qt::white);
    light.setColor(QPalette::WindowText, Qt::black);
    QPalette dark;
    dark.setColor(QPalette::Window, Qt::black);
    dark.setColor(QPalette::WindowText, Qt::white);
    EXPECT_EQ(ColorContrast::paperGrey(light), QColor(0xE9, 0xE3, 0xD6));
    EXPECT_EQ(ColorContrast::paperGrey(dark), QColor(0x3A, 0x36, 0x2F));
}

TEST(ColorContrast, fromStored_hasRedInTheLowestByte) {
    EXPECT_EQ(ColorContrast::fromStored(0x030201), QColor(1, 2, 3));
}

TEST(ColorContrast, fromStored_noColour_isNone) {
    EXPECT_EQ(ColorContrast::fromStored(std::optional<qint32>()), std::nullopt);
    EXPECT_EQ(ColorContrast::fromStored(std::optional(0x030201)), QColor(1, 2, 3));
}
