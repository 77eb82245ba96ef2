#include "RowsetFile.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <set>
#include <string>

namespace {

struct Rgb {
    double red;
    double green;
    double blue;
};

Rgb channels(int value) {
    return {(value & 0xFF) / 255.0, ((value >> 8) & 0xFF) / 255.0, ((value >> 16) & 0xFF) / 255.0};
}

double linear(double channel) {
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

/// Relative luminance as the Web Content Accessibility Guidelines define it.
double luminance(int value) {
    const Rgb color = channels(value);
    return 0.2126 * linear(color.red) + 0.7152 * linear(color.green) + 0.0722 * linear(color.blue);
}

double contrastWithBlack(int value) {
    return (luminance(value) + 0.05) / 0.05;
}

/// CIE 1976 L*a*b* under the D65 white point: distances in it are differences as the eye sees them.
std::array<double, 3> lab(int value) {
    const Rgb color = channels(value);
    const double red = linear(color.red);
    const double green = linear(color.green);
    const double blue = linear(color.blue);
    const auto response = [](double part) {
        return part > 216.0 / 24389.0 ? std::cbrt(part) : (24389.0 / 27.0 * part + 16.0) / 116.0;
    };
    const double x = response((0.4124 * red + 0.3576 * green + 0.1805 * blue) / 0.95047);
    const double y = response(0.2126 * red + 0.7152 * green + 0.0722 * blue);
    const double z = response((0.0193 * red + 0.1192 * green + 0.9505 * blue) / 1.08883);
    return {116.0 * y - 16.0, 500.0 * (x - y), 200.0 * (y - z)};
}

double difference(int first, int second) {
    const auto one = lab(first);
    const auto other = lab(second);
    return std::hypot(one[0] - other[0], one[1] - other[1], one[2] - other[2]);
}

constexpr std::array<const char*, 3> shades{"LIGHTCOLORVALUE", "COLORVALUE", "BRIGHTCOLORVALUE"};

TEST(ColorsTableTest, values_areWholeRgbColors) {
    const RowsetFile table("Colors.xml");
    for (const RowsetRow& row : table.rows()) {
        for (const char* shade : shades) {
            EXPECT_GE(row.number(shade), 0);
            EXPECT_LE(row.number(shade), 0xFFFFFF);
        }
    }
}

TEST(ColorsTableTest, names_standInTheirOrderUnderIdsOneToNine) {
    const std::array<std::string, 9> inOrder{"Off White", "Black", "Green", "Blue",  "Orange",
                                             "Grey",      "Red",   "White", "Purple"};
    const RowsetFile colors("Colors.xml");
    for (std::size_t index = 0; index < inOrder.size(); ++index) {
        EXPECT_EQ(colors.row("COLORID", static_cast<int>(index) + 1).text("COLORNAME"), inOrder[index]);
    }
}

// The compass over a floor plan fills its sectors with these values; the reports must show the same.
TEST(ColorsTableTest, lightValues_areTheFillsOfTheCompassSectors) {
    const std::map<int, int> fills{{1, 0xD5F5FF}, {6, 0xE2E2E2}, {7, 0xAAAAFF}, {2, 0x9A9A9A},
                                   {9, 0xC8A5DA}, {4, 0xFFE3AA}, {3, 0x97EA6A}, {8, 0xFFFFFF}};
    const RowsetFile colors("Colors.xml");
    for (const auto& [direction, fill] : fills) {
        EXPECT_EQ(colors.row("COLORID", direction).number("LIGHTCOLORVALUE"), fill) << direction;
    }
    // The Center has no sector; its light orange leans from white toward red, then green, least blue.
    const Rgb center = channels(colors.row("COLORID", 5).number("LIGHTCOLORVALUE"));
    EXPECT_GT(center.red, center.green);
    EXPECT_GT(center.green, center.blue);
    EXPECT_GT(center.blue, 0.6);
}

TEST(ColorsTableTest, blackText_isLegibleOnEveryShade) {
    const RowsetFile table("Colors.xml");
    for (const RowsetRow& row : table.rows()) {
        for (const char* shade : shades) {
            EXPECT_GE(contrastWithBlack(row.number(shade)), 4.5) << row.text("COLORNAME") << ' ' << shade;
        }
    }
}

// An element's compass tells its sectors by their value alone, so that no two colors may share one.
TEST(ColorsTableTest, values_differInEveryShade) {
    for (const char* shade : shades) {
        const RowsetFile colors("Colors.xml");
        for (const RowsetRow& one : colors.rows()) {
            for (const RowsetRow& other : colors.rows()) {
                if (one.number("COLORID") < other.number("COLORID")) {
                    EXPECT_GT(difference(one.number(shade), other.number(shade)), 10.0)
                        << one.text("COLORNAME") << " and " << other.text("COLORNAME") << ' ' << shade;
                }
            }
        }
    }
}

TEST(ColorsTableTest, shades_growStrongerFromLightToBright) {
    const RowsetFile table("Colors.xml");
    for (const RowsetRow& row : table.rows()) {
        SCOPED_TRACE(row.text("COLORNAME"));
        const int light = row.number("LIGHTCOLORVALUE");
        const int normal = row.number("COLORVALUE");
        const int bright = row.number("BRIGHTCOLORVALUE");
        EXPECT_GT(luminance(light), luminance(normal));
        EXPECT_GT(luminance(normal), luminance(bright));
        EXPECT_GE(difference(light, bright), 14.0);
        EXPECT_GE(difference(light, normal), 6.0);
        EXPECT_GE(difference(normal, bright), 6.0);
    }
}

// A color keeps to its name in each shade: the greys have no hue, the others that of their name.
TEST(ColorsTableTest, hues_fitTheNames) {
    struct HueRange {
        double from;
        double to;
    };
    // Hue angles of L*a*b*, in degrees.
    const std::map<std::string, HueRange> hues{{"Off White", {70.0, 110.0}}, {"Green", {130.0, 170.0}},
                                               {"Blue", {215.0, 290.0}},     {"Orange", {55.0, 85.0}},
                                               {"Red", {15.0, 45.0}},        {"Purple", {310.0, 345.0}}};
    const RowsetFile table("Colors.xml");
    for (const RowsetRow& row : table.rows()) {
        const std::string name = row.text("COLORNAME");
        for (const char* shade : shades) {
            SCOPED_TRACE(name + ' ' + shade);
            const auto color = lab(row.number(shade));
            const double chroma = std::hypot(color[1], color[2]);
            const auto range = hues.find(name);
            if (range != hues.end()) {
                const double hue = std::fmod(std::atan2(color[2], color[1]) * 180.0 / M_PI + 360.0, 360.0);
                EXPECT_GE(hue, range->second.from);
                EXPECT_LE(hue, range->second.to);
            } else {
                EXPECT_LT(chroma, name == "White" ? 12.0 : 1.0);
            }
        }
    }
}

} // namespace
