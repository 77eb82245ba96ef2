#include "reports/surface/ReportRoutines.h"

#include "support/RecordedReport.h"

#include <gtest/gtest.h>

namespace {

using Calls = std::vector<std::string>;

const Calls baseFont = {
    R"(FontName("Arial"))", "FontBold(false)", "FontItalic(false)", "FontUnderline(false)",
    "FontSize(11)",         "TextColor(0)",    "TextAngle(0)",      "TextAlign(6)",
    "IndentLeft(0)",        "IndentFirst(0)",  "IndentRight(0)",    "IndentTab(720)",
    "SpaceAfter(130)",      "PenColor(0)",     "PenStyle(0)",       "PenWidth(1)",
    "BrushColor(8421631)",  "BrushStyle(0)",
};

Calls followedBy(Calls first, const Calls& second) {
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

} // namespace

TEST(ReportRoutines, ResetReportFont_setsTheBaseStateInOrder) {
    RecordedReport report;
    modRooms::ResetReportFont(report.vp);
    EXPECT_EQ(report.spelledCalls(), baseFont);
}

TEST(ReportRoutines, InitReport_setsThePageInOrder) {
    RecordedReport report;
    modRooms::InitReport(report.vp);
    const Calls page = {
        "MarginBottom(1440)",
        "MarginFooter(0)",
        "MarginLeft(1440)",
        "MarginHeader(0)",
        "MarginRight(1440)",
        "MarginTop(1440)",
        "PageBorder(3)",
        R"(Header(""))",
        "HdrColor(0)",
        R"(Footer(""))",
        "Columns(1)",
        "TableBorder(7)",
        "ZoomMode(4)",
        "X1(0)",
        "Y1(0)",
        "X2(0)",
        "Y2(0)",
    };
    EXPECT_EQ(report.spelledCalls(), followedBy(followedBy({R"(ToolTipText(""))"}, baseFont), page));
}

TEST(ReportRoutines, prepareCompassPane_isInitReportWithoutMarginsInLargeLetters) {
    RecordedReport report;
    modRooms::InitReport(report.vp);
    const Calls page = report.spelledCalls();
    report.clear();
    modRooms::prepareCompassPane(report.vp);
    const Calls pane = {"MarginLeft(0)",   "MarginRight(0)",  "MarginTop(0)", "MarginBottom(0)",
                        "MarginHeader(0)", "MarginFooter(0)", "FontSize(20)", "FontBold(true)",
                        "ZoomMode(0)",     "Zoom(38)"};
    EXPECT_EQ(report.spelledCalls(), followedBy(page, pane));
}

TEST(ReportRoutines, prepareReportPane_isInitReportAtAFixedZoom) {
    RecordedReport report;
    modRooms::InitReport(report.vp);
    const Calls page = report.spelledCalls();
    report.clear();
    modRooms::prepareReportPane(report.vp);
    EXPECT_EQ(report.spelledCalls(), followedBy(page, {"ZoomMode(0)", "Zoom(78)"}));
}

TEST(ReportRoutines, PrintHeading_writesAtTheLeftMarginAndResets) {
    RecordedReport report;
    modRooms::PrintHeading(report.vp, QStringLiteral("Heading"), 255);
    const Calls heading = {
        R"(FontName("Arial"))", "IndentLeft(0)",  "FontBold(true)",      "FontUnderline(true)",
        "FontSize(14)",         "TextColor(255)", R"(Write("Heading"))",
    };
    EXPECT_EQ(report.spelledCalls(), followedBy(heading, baseFont));
}

TEST(ReportRoutines, PrintSubHeading_leavesTheIndentAloneUntilTheReset) {
    RecordedReport report;
    modRooms::PrintSubHeading(report.vp, QStringLiteral("Sub"), 255);
    const Calls heading = {
        R"(FontName("Arial"))", "FontBold(true)", "FontUnderline(true)",
        "FontSize(12)",         "TextColor(255)", R"(Write("Sub"))",
    };
    EXPECT_EQ(report.spelledCalls(), followedBy(heading, baseFont));
}

TEST(ReportRoutines, PrintBesideChart_writesAPlainIndentedParagraph) {
    RecordedReport report;
    modRooms::PrintBesideChart(report.vp, QStringLiteral("Beside"), 128);
    const Calls paragraph = {
        R"(FontName("Arial"))", "IndentLeft(5000)", "FontBold(false)",    "FontUnderline(false)",
        "FontSize(12)",         "TextColor(128)",   R"(Write("Beside"))",
    };
    EXPECT_EQ(report.spelledCalls(), followedBy(paragraph, baseFont));
}

TEST(ReportRoutines, SetReportHeader_setsColourFontAndTextInOrder) {
    RecordedReport report;
    modRooms::SetReportHeader(report.vp, QStringLiteral("Kitchen"), 42);
    const Calls expected = {
        "HdrColor(42)",         R"(HdrFontName("Ariel"))",  "HdrFontBold(true)",
        "HdrFontItalic(false)", "HdrFontStrikethru(false)", "HdrFontUnderline(false)",
        "HdrFontSize(14)",      R"(Header("Kitchen"))",
    };
    EXPECT_EQ(report.spelledCalls(), expected);
}

TEST(ReportRoutines, SetReportFooter_setsTheTextAndNothingElse) {
    RecordedReport report;
    modRooms::SetReportFooter(report.vp, QStringLiteral("Footer"));
    EXPECT_EQ(report.spelledCalls(), Calls{R"(Footer("Footer"))"});
}
