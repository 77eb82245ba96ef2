#include "reports/pages/PageFonts.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QFontMetricsF>
#include <gtest/gtest.h>

namespace {

class PageFontsTest : public testing::Test {
protected:
    PageFonts fonts;
};

TEST_F(PageFontsTest, resolve_theDefaultFaceAndUnknownFaces_giveTheDefaultFace) {
    for (const char* face : {"", "Arial", "arial", "Ariel", "No Such Face At All"}) {
        EXPECT_EQ(fonts.resolve(QString::fromLatin1(face)), QString()) << face;
    }
}

TEST_F(PageFontsTest, resolve_anInstalledFace_givesThatFace) {
    int faces = 0;
    const QStringList families = QFontDatabase::families();
    for (const QString& family : families) {
        // A machine also lists names that only stand for another face.
        if (QFontInfo(QFont(family)).family() == family && family != PageFonts::defaultFace()) {
            EXPECT_EQ(fonts.resolve(family), family);
            EXPECT_EQ(QFontInfo(fonts.font({.face = family}).font).family(), family);
            ++faces;
        }
    }
    EXPECT_GT(faces, 0);
}

// Lines break where they would with Arial itself: these widths are Arial's own, in 2048ths of the em.
TEST_F(PageFontsTest, font_defaultFace_hasTheMeasuresOfArial) {
    const PageFont& font = fonts.font({.face = {}, .points = 100});
    const QFontMetricsF metrics(font.font);
    constexpr double em = 2000;
    const std::pair<const char*, int> widths[]{{"0", 1139}, {" ", 569}, {"W", 1933}, {"i", 455}, {"m", 1706}};
    for (const auto& [letter, width] : widths) {
        EXPECT_NEAR(metrics.horizontalAdvance(QString::fromLatin1(letter)), em * width / 2048, 1) << letter;
    }
    EXPECT_NEAR(font.ascent, em * 1854 / 2048, 2);
    EXPECT_NEAR(font.lineHeight, em * 2355 / 2048, 3);
}

TEST_F(PageFontsTest, font_carriesTheStyle) {
    const QFont font = fonts.font({.face = {}, .points = 12.5, .bold = true, .italic = true}).font;
    EXPECT_EQ(font.pixelSize(), 250);
    EXPECT_TRUE(font.bold());
    EXPECT_TRUE(font.italic());
    EXPECT_FALSE(font.strikeOut());
    EXPECT_TRUE(fonts.font({.face = {}, .strikethrough = true}).font.strikeOut());
}

TEST_F(PageFontsTest, font_twoStyles_areKeptApart) {
    EXPECT_FALSE(fonts.font({}).font.bold());
    EXPECT_TRUE(fonts.font({.face = {}, .bold = true}).font.bold());
    EXPECT_FALSE(fonts.font({}).font.bold());
}

} // namespace
