#include "reports/pages/PageSurfaceFixture.h"

namespace {

class PageSurfaceFlowTest : public PageSurfaceFixture {};

TEST_F(PageSurfaceFlowTest, StartDoc_standsAtTheTopLeftOfTheTextArea) {
    surface.StartDoc();
    EXPECT_EQ(surface.CurrentX(), inch);
    EXPECT_EQ(surface.CurrentY(), inch);
}

TEST_F(PageSurfaceFlowTest, Write_movesCurrentYByTheParagraphsHeightAndSpaceAfter) {
    surface.StartDoc();
    double expected = inch;
    for (const int count : {1, 2, 7}) {
        surface.Write(lines(count));
        expected += count * lineHeight + spaceAfter;
        EXPECT_NEAR(surface.CurrentY(), expected, 0.5 * count) << count;
        EXPECT_EQ(surface.CurrentX(), inch);
    }
}

TEST_F(PageSurfaceFlowTest, Write_linesBreakByTheLettersWidths) {
    // Thirteen words of five digits and the blanks between them fill the line; a fourteenth does not fit.
    const int wordsOfLine = static_cast<int>((pageWidth - 2 * inch + blank) / (5 * digit + blank));
    ASSERT_EQ(wordsOfLine, 13);
    surface.StartDoc();
    surface.Write(words(2 * wordsOfLine + 1));
    surface.EndDoc();
    const QStringList found = textOn(1);
    ASSERT_EQ(found.size(), 3);
    EXPECT_EQ(found.at(0).trimmed(), words(wordsOfLine));
    EXPECT_EQ(found.at(2), words(1));
}

TEST_F(PageSurfaceFlowTest, Write_emptyText_takesALine) {
    surface.StartDoc();
    surface.Write(QString());
    EXPECT_NEAR(surface.CurrentY(), inch + lineHeight + spaceAfter, 0.5);
}

TEST_F(PageSurfaceFlowTest, Write_number_writesItsDigits) {
    surface.StartDoc();
    surface.Write(-42);
    surface.EndDoc();
    EXPECT_EQ(textOn(1), QStringList{QStringLiteral("-42")});
}

TEST_F(PageSurfaceFlowTest, Write_indents_moveBothEdgesAndTheFirstLine) {
    surface.StartDoc();
    surface.IndentLeft(2000);
    surface.IndentFirst(500);
    surface.IndentRight(1000);
    surface.Write(words(30));
    surface.EndDoc();
    const std::vector<TextLine> found = linesOn(1);
    ASSERT_GE(found.size(), 3U);
    const double right = pageWidth - inch - 1000;
    for (const TextLine& line : found) {
        const double indent = line.line == 0 ? 500 : 0;
        const double left = line.topLeft.x() + line.text->lineLeft(line.line);
        EXPECT_NEAR(left, inch + 2000 + indent, 0.1);
        EXPECT_LE(left + line.text->lineWidth(line.line), right + blank + 1);
    }
    EXPECT_LT(textOn(1).at(0).size(), textOn(1).at(1).size());
}

TEST_F(PageSurfaceFlowTest, Write_fontSize_changesTheHeight) {
    surface.StartDoc();
    surface.FontSize(22);
    surface.Write(QStringLiteral("large"));
    EXPECT_NEAR(surface.CurrentY(), inch + 2 * lineHeight + spaceAfter, 1);
}

TEST_F(PageSurfaceFlowTest, Write_afterCurrentY_standsThere) {
    surface.StartDoc();
    surface.CurrentY(5800);
    surface.Write(QStringLiteral("below the chart"));
    surface.EndDoc();
    EXPECT_EQ(linesOn(1).at(0).topLeft, QPointF(inch, 5800));
    EXPECT_FALSE(linesOn(1).at(0).positioned);
}

TEST_F(PageSurfaceFlowTest, Write_afterCurrentX_beginsThereWithoutIndentsAndGoesBackToTheMargin) {
    surface.StartDoc();
    surface.IndentLeft(3000);
    surface.IndentFirst(300);
    surface.CurrentX(3450);
    surface.CurrentY(1600);
    surface.Write(QStringLiteral("S"));
    EXPECT_EQ(surface.CurrentX(), inch);
    surface.Write(QStringLiteral("flow"));
    surface.EndDoc();
    const std::vector<TextLine> found = linesOn(1);
    EXPECT_EQ(found.at(0).topLeft, QPointF(3450, 1600));
    EXPECT_EQ(found.at(0).text->lineLeft(0), 0);
    EXPECT_TRUE(found.at(0).positioned);
    EXPECT_EQ(found.at(1).topLeft.x(), inch + 3000);
    EXPECT_FALSE(found.at(1).positioned);
}

TEST_F(PageSurfaceFlowTest, Write_positionedBeyondTheRightMargin_staysOnOneLine) {
    surface.StartDoc();
    surface.CurrentX(pageWidth - inch - 100);
    surface.CurrentY(7000);
    surface.Write(QStringLiteral("SW")); // begins before the margin: a word is not broken
    for (const double x : {pageWidth - inch, pageWidth - inch + 100, pageWidth + 500}) {
        surface.CurrentX(x);
        surface.CurrentY(7500);
        surface.Write(QStringLiteral("S W")); // neither is a line from the margin on
    }
    surface.EndDoc();
    const QString whole = QStringLiteral("S W");
    EXPECT_EQ(textOn(1), (QStringList{QStringLiteral("SW"), whole, whole, whole}));
}

TEST_F(PageSurfaceFlowTest, Write_marginsChangedMidDocument_holdForWhatFollows) {
    surface.StartDoc();
    surface.Write(QStringLiteral("before"));
    surface.MarginLeft(3000);
    surface.MarginTop(2000);
    EXPECT_EQ(surface.CurrentX(), 3000);
    surface.Write(QStringLiteral("after"));
    surface.NewPage();
    EXPECT_EQ(surface.CurrentY(), 2000);
    surface.EndDoc();
    EXPECT_EQ(linesOn(1).at(0).topLeft.x(), inch);
    EXPECT_EQ(linesOn(1).at(1).topLeft.x(), 3000);
}

TEST_F(PageSurfaceFlowTest, Write_tooLongForThePage_runsOnAndRaisesNewPage) {
    int raised = 0;
    surface.onNewPage = [&raised] { ++raised; };
    surface.StartDoc();
    EXPECT_EQ(raised, 0);
    surface.Write(lines(2 * linesOfPage + 10));
    EXPECT_EQ(raised, 2);
    EXPECT_NEAR(surface.CurrentY(), inch + 10 * lineHeight + spaceAfter, 5);
    surface.EndDoc();
    EXPECT_EQ(raised, 2);
    ASSERT_EQ(surface.PageCount(), 3);
    EXPECT_EQ(textOn(1).size(), linesOfPage);
    EXPECT_EQ(textOn(2).size(), linesOfPage);
    EXPECT_EQ(textOn(3).size(), 10);
    EXPECT_EQ(linesOn(1).front().text, linesOn(3).back().text) << "still one paragraph";
}

TEST_F(PageSurfaceFlowTest, Write_exactlyAPage_needsNoSecond) {
    surface.StartDoc();
    surface.Write(lines(linesOfPage));
    surface.EndDoc();
    EXPECT_EQ(surface.PageCount(), 1);
}

TEST_F(PageSurfaceFlowTest, Write_lineThatEndsOnTheBottomMargin_stands) {
    constexpr double below = 3000;
    surface.StartDoc();
    surface.Write(QStringLiteral("line"));
    surface.EndDoc();
    const double height = linesOn(1).at(0).text->lineHeight();
    for (const auto& [beyond, pages] : {std::pair(0.0, 1), {0.25, 2}}) {
        surface.MarginBottom(pageHeight - below - height + beyond);
        surface.StartDoc();
        surface.CurrentY(below);
        surface.Write(QStringLiteral("line"));
        surface.EndDoc();
        EXPECT_EQ(surface.PageCount(), pages) << beyond;
    }
}

TEST_F(PageSurfaceFlowTest, Write_lineHigherThanThePage_isSetAnyway) {
    surface.StartDoc();
    surface.FontSize(900);
    surface.Write(QStringLiteral("1\r\n2"));
    surface.EndDoc();
    ASSERT_EQ(surface.PageCount(), 2);
    EXPECT_EQ(textOn(1), QStringList{QStringLiteral("1")});
    EXPECT_EQ(textOn(2), QStringList{QStringLiteral("2")});
}

TEST_F(PageSurfaceFlowTest, Write_marginsThatLeaveNoTextArea_setsALineOnEachPage) {
    surface.MarginTop(9000);
    surface.MarginBottom(9000);
    surface.StartDoc();
    surface.Write(lines(5));
    surface.EndDoc();
    EXPECT_EQ(surface.PageCount(), 5);
}

TEST_F(PageSurfaceFlowTest, Write_threeHundredPages_keepsEveryLine) {
    surface.StartDoc();
    for (int room = 0; room < 300; ++room) {
        if (room > 0) {
            surface.NewPage();
        }
        surface.Write(lines(linesOfPage));
    }
    surface.EndDoc();
    ASSERT_EQ(surface.PageCount(), 300);
    for (int number = 1; number <= 300; ++number) {
        ASSERT_EQ(linesOn(number).size(), static_cast<std::size_t>(linesOfPage)) << number;
    }
}

TEST_F(PageSurfaceFlowTest, TextBox_keepsTheFlowWhereItIs) {
    surface.StartDoc();
    surface.Write(QStringLiteral("flow"));
    const double y = surface.CurrentY();
    surface.TextAngle(3150);
    surface.TextBox(QStringLiteral("Bad Luck"), 5000, 6000, 5000, 0);
    EXPECT_EQ(surface.CurrentY(), y);
    EXPECT_EQ(surface.CurrentX(), inch);
    surface.EndDoc();
    const auto& box = firstOn<TurnedText>(1);
    EXPECT_EQ(box.topLeft, QPointF(5000, 6000));
    EXPECT_EQ(box.angle, 315);
    EXPECT_EQ(box.text->lineCount(), 1);
}

TEST_F(PageSurfaceFlowTest, TextBox_longText_wrapsAtItsWidthAndIsShownWhole) {
    surface.StartDoc();
    surface.TextBox(words(20), 1000, 1000, 5000, 0);
    surface.EndDoc();
    // Seven words of five digits with their blanks go into 5000 twips.
    EXPECT_EQ(firstOn<TurnedText>(1).text->lineCount(), 3);
}

TEST_F(PageSurfaceFlowTest, Write_numbersOutOfAllMeasure_neitherCrashNorHang) {
    constexpr double infinity = std::numeric_limits<double>::infinity();
    constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
    surface.StartDoc();
    for (const double odd : {infinity, -infinity, notANumber, 1e300, -1e300, 0.0, -1.0}) {
        surface.CurrentX(odd);
        surface.CurrentY(odd);
        surface.FontSize(odd);
        surface.IndentTab(odd);
        surface.SpaceAfter(odd);
        surface.Write(QStringLiteral("a\tb c"));
        surface.IndentLeft(odd);
        surface.IndentRight(odd);
        surface.IndentFirst(odd);
        surface.Write(QStringLiteral("a\tb c"));
        surface.TextAngle(odd);
        surface.TextBox(QStringLiteral("box"), odd, odd, odd, odd);
        surface.DrawCircle(odd, odd, odd);
        surface.DrawCircle(odd, odd, odd, odd, odd);
        surface.DrawRectangle(odd, odd, odd, odd);
        modRooms::ResetReportFont(surface);
    }
    surface.EndDoc();
    EXPECT_GE(surface.PageCount(), 1);
}

} // namespace
