#include "reports/pages/PageSurfaceFixture.h"

namespace {

class PageSurfaceEventsTest : public PageSurfaceFixture {
protected:
    [[nodiscard]] QString headerOn(int number) const { return page(number).header.text->text(); }
};

TEST_F(PageSurfaceEventsTest, NewPage_raisesTheEventOnceForEachNewPageButNotForTheFirst) {
    int raised = 0;
    surface.onNewPage = [&raised] { ++raised; };
    surface.StartDoc();
    EXPECT_EQ(raised, 0);
    surface.NewPage();
    surface.NewPage();
    EXPECT_EQ(raised, 2);
    surface.EndDoc();
    EXPECT_EQ(surface.PageCount(), 3);
}

TEST_F(PageSurfaceEventsTest, onNewPage_drawsUnderTheTextThatRunsOn) {
    surface.onNewPage = [this] { surface.DrawRectangle(700, 500, 4600, surface.PageHeight() - 500); };
    surface.StartDoc();
    surface.Write(lines(linesOfPage + 1));
    surface.EndDoc();
    ASSERT_EQ(page(2).items.size(), 2U);
    EXPECT_TRUE(std::holds_alternative<Rectangle>(page(2).items.at(0)));
    EXPECT_TRUE(std::holds_alternative<TextLine>(page(2).items.at(1)));
    EXPECT_EQ(firstOn<Rectangle>(2).area, QRectF(QPointF(700, 500), QPointF(4600, pageHeight - 500)));
}

TEST_F(PageSurfaceEventsTest, onNewPage_thatWritesMoreThanAPage_doesNotCallItself) {
    int raised = 0;
    surface.onNewPage = [&] {
        ++raised;
        surface.Write(lines(linesOfPage + 5));
    };
    surface.StartDoc();
    surface.NewPage();
    surface.Write(QStringLiteral("after"));
    surface.EndDoc();
    EXPECT_EQ(raised, 1);
    ASSERT_EQ(surface.PageCount(), 3);
    EXPECT_EQ(textOn(3).back(), QStringLiteral("after"));
}

TEST_F(PageSurfaceEventsTest, events_thatBeginOrEndDocuments_arePassedOver) {
    surface.onNewPage = [this] {
        surface.StartDoc();
        surface.EndDoc();
    };
    surface.onFooter = [this] {
        surface.NewPage();
        surface.StartDoc();
        surface.EndDoc();
    };
    surface.StartDoc();
    surface.Write(lines(linesOfPage + 1));
    surface.EndDoc();
    EXPECT_EQ(surface.PageCount(), 2);
}

TEST_F(PageSurfaceEventsTest, event_thatFails_leavesTheSurfaceUsable) {
    surface.onNewPage = [] { throw std::runtime_error("handler"); };
    surface.StartDoc();
    EXPECT_THROW(surface.NewPage(), std::runtime_error);
    surface.onNewPage = nullptr;
    surface.Write(QStringLiteral("goes on"));
    surface.EndDoc();
    EXPECT_EQ(surface.PageCount(), 2);
    EXPECT_EQ(textOn(2), QStringList{QStringLiteral("goes on")});
}

TEST_F(PageSurfaceEventsTest, header_isTheOneInForceWhenThePageEnds) {
    surface.StartDoc();
    modRooms::SetReportHeader(surface, QStringLiteral("Bedroom"), 0x0000FF);
    surface.Write(lines(linesOfPage + 1));
    surface.NewPage();
    modRooms::SetReportHeader(surface, QStringLiteral("Kitchen"), 0);
    surface.EndDoc();
    ASSERT_EQ(surface.PageCount(), 3);
    EXPECT_EQ(headerOn(1), QStringLiteral("Bedroom"));
    EXPECT_EQ(headerOn(2), QStringLiteral("Bedroom"));
    EXPECT_EQ(headerOn(3), QStringLiteral("Kitchen"));
    const TextStyle& style = page(1).header.text->style();
    EXPECT_TRUE(style.bold);
    EXPECT_EQ(style.points, 14);
    EXPECT_EQ(style.color, QColor(255, 0, 0));
    EXPECT_EQ(style.face, QString()) << "a face that no machine has falls back to the default one";
}

TEST_F(PageSurfaceEventsTest, noHeaderAndFooter_leaveNone) {
    surface.StartDoc();
    surface.EndDoc();
    EXPECT_EQ(page(1).header.text, nullptr);
    EXPECT_EQ(page(1).footer.text, nullptr);
}

TEST_F(PageSurfaceEventsTest, onFooter_setsTheFootersFontOnly) {
    surface.onFooter = [this] {
        surface.HdrFontBold(false);
        surface.HdrFontSize(10);
    };
    surface.StartDoc();
    modRooms::SetReportHeader(surface, QStringLiteral("Nine Ki Chart for year 2024*"), 0);
    modRooms::SetReportFooter(surface, QStringLiteral("* note"));
    surface.Write(lines(linesOfPage + 1));
    surface.EndDoc();
    for (const int number : {1, 2}) {
        EXPECT_TRUE(page(number).header.text->style().bold) << number;
        EXPECT_EQ(page(number).header.text->style().points, 14) << number;
        EXPECT_FALSE(page(number).footer.text->style().bold) << number;
        EXPECT_EQ(page(number).footer.text->style().points, 10) << number;
    }
}

TEST_F(PageSurfaceEventsTest, onFooter_everyPartOfTheFontIsTheFootersAlone) {
    const QString face = anotherFace();
    surface.onFooter = [&] {
        surface.HdrFontName(face);
        surface.HdrFontItalic(true);
        surface.HdrFontUnderline(true);
        surface.HdrFontStrikethru(true);
        surface.HdrColor(0x0000FF);
    };
    surface.StartDoc();
    modRooms::SetReportHeader(surface, QStringLiteral("Bedroom"), 0);
    modRooms::SetReportFooter(surface, QStringLiteral("* note"));
    surface.Write(lines(linesOfPage + 1));
    surface.EndDoc();
    const TextStyle& header = page(2).header.text->style();
    EXPECT_EQ(header.face, QString());
    EXPECT_FALSE(header.italic || header.underline || header.strikethrough);
    EXPECT_EQ(header.color, QColor(0, 0, 0));
    const TextStyle& footer = page(2).footer.text->style();
    EXPECT_EQ(footer.face, face);
    EXPECT_TRUE(footer.italic && footer.underline && footer.strikethrough);
    EXPECT_EQ(footer.color, QColor(255, 0, 0));
}

TEST_F(PageSurfaceEventsTest, onFooter_isRaisedOnceForEachPageAndMaySetTheFooter) {
    int raised = 0;
    surface.onFooter = [&] { surface.Footer(QString::number(++raised)); };
    surface.StartDoc();
    surface.NewPage();
    EXPECT_EQ(raised, 1);
    surface.EndDoc();
    EXPECT_EQ(raised, 2);
    EXPECT_EQ(page(1).footer.text->text(), QStringLiteral("1"));
    EXPECT_EQ(page(2).footer.text->text(), QStringLiteral("2"));
}

TEST_F(PageSurfaceEventsTest, header_standsBetweenThePapersEdgeAndTheRule) {
    surface.StartDoc();
    modRooms::SetReportHeader(surface, QStringLiteral("Bedroom"), 0);
    modRooms::SetReportFooter(surface, QStringLiteral("note"));
    surface.EndDoc();
    ASSERT_EQ(page(1).rules.size(), 2U);
    const RunningText& header = page(1).header;
    const RunningText& footer = page(1).footer;
    const double ruleAbove = page(1).rules.at(0).y1();
    const double ruleBelow = page(1).rules.at(1).y1();
    EXPECT_EQ(header.topLeft.x(), inch);
    EXPECT_GT(header.topLeft.y(), 720) << "not at the paper's edge";
    EXPECT_LT(header.topLeft.y() + header.text->lineHeight(), ruleAbove);
    EXPECT_LT(ruleAbove, inch);
    EXPECT_GT(ruleBelow, pageHeight - inch);
    EXPECT_GT(footer.topLeft.y(), ruleBelow);
    EXPECT_LT(footer.topLeft.y() + footer.text->lineHeight(), pageHeight - 720);
    EXPECT_EQ(page(1).rules.at(0).x1(), inch);
    EXPECT_EQ(page(1).rules.at(0).x2(), pageWidth - inch);
}

TEST_F(PageSurfaceEventsTest, header_ownMargins_areDistancesFromThePapersEdge) {
    surface.MarginHeader(400);
    surface.MarginFooter(500);
    surface.StartDoc();
    surface.Header(QStringLiteral("top"));
    surface.Footer(QStringLiteral("bottom"));
    surface.EndDoc();
    EXPECT_EQ(page(1).header.topLeft.y(), 400);
    EXPECT_NEAR(page(1).footer.topLeft.y() + page(1).footer.text->lineHeight(), pageHeight - 500, 0.1);
}

TEST_F(PageSurfaceEventsTest, header_longerThanItsMargin_showsTheLinesThatHaveRoom) {
    surface.StartDoc();
    modRooms::SetReportHeader(surface, words(500), 0);
    surface.EndDoc();
    const RunningText& header = page(1).header;
    EXPECT_LT(header.shownLines, header.text->lineCount());
    EXPECT_GE(header.shownLines, 3);
    EXPECT_GE(header.topLeft.y(), 0);
    EXPECT_LT(header.topLeft.y() + header.shownLines * header.text->lineHeight(), inch);
}

TEST_F(PageSurfaceEventsTest, rules_areLeftOutWhereThereIsNoMarginOrNoBorder) {
    surface.MarginTop(0);
    surface.StartDoc();
    surface.NewPage();
    surface.MarginBottom(0);
    surface.NewPage();
    surface.MarginTop(inch);
    surface.MarginBottom(inch);
    surface.PageBorder(0);
    surface.EndDoc();
    EXPECT_EQ(page(1).rules.size(), 1U);
    EXPECT_EQ(page(2).rules.size(), 0U);
    EXPECT_EQ(page(3).rules.size(), 0U);
}

} // namespace
