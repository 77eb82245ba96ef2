#include "reports/pages/LaidText.h"

#include <QStringList>
#include <gtest/gtest.h>

#include <memory>

namespace {

class LaidTextTest : public testing::Test {
protected:
    static constexpr double digit = 220.0 * 1139 / 2048;
    static constexpr double blank = 220.0 * 569 / 2048;

    std::unique_ptr<LaidText> lay(const QString& text, const LineLimits& limits) {
        const TextStyle style;
        return std::make_unique<LaidText>(text, style, fonts.font(style), limits);
    }

    static QStringList linesOf(const LaidText& laid) {
        QStringList lines;
        for (qint32 line = 0; line < laid.lineCount(); ++line) {
            lines += laid.lineText(line);
        }
        return lines;
    }

    PageFonts fonts;
};

TEST_F(LaidTextTest, wordsBreakWhereTheNextOneDoesNotFit) {
    const double threeWords = 9 * digit + 2 * blank;
    EXPECT_EQ(linesOf(*lay(QStringLiteral("000 000 000 000"), {.width = threeWords + 2, .tabDistance = 720})),
              (QStringList{QStringLiteral("000 000 000 "), QStringLiteral("000")}));
    EXPECT_EQ(linesOf(*lay(QStringLiteral("000 000 000 000"), {.width = threeWords - 2, .tabDistance = 720})),
              (QStringList{QStringLiteral("000 000 "), QStringLiteral("000 000")}));
}

TEST_F(LaidTextTest, emptyText_takesALine) {
    EXPECT_EQ(lay(QString(), {.width = 1000, .tabDistance = 720})->lineCount(), 1);
}

TEST_F(LaidTextTest, everyKindOfLineEnd_endsALine) {
    const QString text = QStringLiteral("a\r\nb\nc\rd\u2028e\u2029f");
    EXPECT_EQ(linesOf(*lay(text, {.width = 5000, .tabDistance = 720})),
              (QStringList{QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c"), QStringLiteral("d"),
                           QStringLiteral("e"), QStringLiteral("f")}));
}

TEST_F(LaidTextTest, lineEndAtTheEnd_leavesAnEmptyLine) {
    EXPECT_EQ(lay(QStringLiteral("a\r\n"), {.width = 5000, .tabDistance = 720})->lineCount(), 2);
}

TEST_F(LaidTextTest, tab_goesToTheNextMultipleFromTheLeftEdge) {
    const LineLimits limits{.width = 9000, .tabDistance = 720};
    EXPECT_NEAR(lay(QStringLiteral("\t0"), limits)->lineWidth(0), 720 + digit, 1);
    EXPECT_NEAR(lay(QStringLiteral("00\t0"), limits)->lineWidth(0), 720 + digit, 1);
    EXPECT_NEAR(lay(QStringLiteral("000000\t0"), limits)->lineWidth(0), 1440 + digit, 1); // 734 is past 720
}

TEST_F(LaidTextTest, tabOfAnIndentedFirstLine_countsFromTheSameEdge) {
    const auto laid = lay(QStringLiteral("0\t0"), {.width = 9000, .firstIndent = 700, .tabDistance = 720});
    EXPECT_NEAR(laid->lineLeft(0), 700, 0.1);
    EXPECT_NEAR(laid->lineLeft(0) + laid->lineWidth(0), 1440 + digit, 1);
}

TEST_F(LaidTextTest, firstIndent_narrowsTheFirstLineOnly) {
    const double threeWords = 9 * digit + 2 * blank + 2;
    const auto laid = lay(QStringLiteral("000 000 000 000 000"),
                          {.width = threeWords, .firstIndent = 2 * digit, .tabDistance = 720});
    EXPECT_EQ(linesOf(*laid), (QStringList{QStringLiteral("000 000 "), QStringLiteral("000 000 000")}));
    EXPECT_NEAR(laid->lineLeft(0), 2 * digit, 0.1);
    EXPECT_NEAR(laid->lineLeft(1), 0, 0.1);
}

TEST_F(LaidTextTest, wordLongerThanTheLine_breaksUnlessWordsAreKeptWhole) {
    const QString word(10, u'0');
    const LineLimits narrow{.width = 4 * digit + 2, .tabDistance = 720};
    EXPECT_EQ(lay(word, narrow)->lineCount(), 3);
    EXPECT_EQ(lay(word, {.width = narrow.width, .tabDistance = 720, .wholeWords = true})->lineCount(), 1);
}

TEST_F(LaidTextTest, noRoomAtAll_stillSetsEveryLetter) {
    for (const double width : {0.0, -5000.0}) {
        EXPECT_EQ(linesOf(*lay(QStringLiteral("000"), {.width = width, .tabDistance = 720})).join(QString()),
                  QStringLiteral("000"));
    }
}

TEST_F(LaidTextTest, lettersOfAnotherScript_leaveTheLineHeightAsItIs) {
    const LineLimits limits{.width = 9000, .tabDistance = 720};
    EXPECT_EQ(lay(QStringLiteral("\u98CE\u6C34"), limits)->lineHeight(),
              lay(QStringLiteral("fs"), limits)->lineHeight());
}

TEST_F(LaidTextTest, text_isKeptAsItWasWritten) {
    const QString text = QStringLiteral("a  b\r\n\tc");
    EXPECT_EQ(lay(text, {.width = 9000, .tabDistance = 720})->text(), text);
}

} // namespace
