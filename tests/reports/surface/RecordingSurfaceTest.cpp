#include "reports/surface/RecordingSurface.h"

#include "reports/surface/NullSurface.h"
#include "support/RecordedReport.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

using Calls = std::vector<std::string>;

/// A recorder over a recorder: what the inner one notes is what was passed on.
class RecordingSurfaceTest : public testing::Test {
protected:
    RecordedReport passedOn;
    Calls noted;
    RecordingSurface vp{passedOn.vp, [this](const SurfaceCall& call) { noted.push_back(spelled(call)); }};
};

} // namespace

TEST_F(RecordingSurfaceTest, everyCall_isNotedInOrderAndPassedOn) {
    vp.StartDoc();
    vp.Write(QStringLiteral("text"));
    vp.Write(7);
    vp.TextBox(QStringLiteral("turned"), 1, 2.5, 5000, 0);
    vp.DrawCircle(1, 2, 3);
    vp.DrawCircle(3500, 3500, 1600, -1.5, 0.25);
    vp.DrawRectangle(1, 2, 3, 4);
    vp.NewPage();
    vp.EndDoc();
    EXPECT_FALSE(vp.PrintDialog(0));
    vp.PrintDoc();
    const Calls expected = {
        "StartDoc()",
        R"(Write("text"))",
        R"(Write("7"))",
        R"(TextBox("turned",1,2.5,5000,0))",
        "DrawCircle(1,2,3)",
        "DrawCircle(3500,3500,1600,-1.5,0.25)",
        "DrawRectangle(1,2,3,4)",
        "NewPage()",
        "EndDoc()",
        "PrintDialog(0)",
        "PrintDoc()",
    };
    EXPECT_EQ(noted, expected);
    EXPECT_EQ(passedOn.spelledCalls(), expected);
}

// Each sets a property and expects its note.
#define NUMBER(name)                                                                                         \
    expected.emplace_back(#name "(12)");                                                                     \
    vp.name(12)
#define FLAG(name)                                                                                           \
    expected.emplace_back(#name "(true)");                                                                   \
    vp.name(true)
#define TEXT(name)                                                                                           \
    expected.emplace_back(#name "(\"a\")");                                                                  \
    vp.name(QStringLiteral("a"))

TEST_F(RecordingSurfaceTest, everyProperty_isNotedByTheNameOfItsSetterAndPassedOn) {
    Calls expected;
    NUMBER(BackColor);
    NUMBER(BrushColor);
    NUMBER(BrushStyle);
    NUMBER(Columns);
    NUMBER(CurrentX);
    NUMBER(CurrentY);
    TEXT(ExportFile);
    FLAG(FontBold);
    FLAG(FontItalic);
    TEXT(FontName);
    NUMBER(FontSize);
    FLAG(FontUnderline);
    TEXT(Footer);
    NUMBER(HdrColor);
    FLAG(HdrFontBold);
    FLAG(HdrFontItalic);
    TEXT(HdrFontName);
    NUMBER(HdrFontSize);
    FLAG(HdrFontStrikethru);
    FLAG(HdrFontUnderline);
    TEXT(Header);
    NUMBER(IndentFirst);
    NUMBER(IndentLeft);
    NUMBER(IndentRight);
    NUMBER(IndentTab);
    NUMBER(MarginBottom);
    NUMBER(MarginFooter);
    NUMBER(MarginHeader);
    NUMBER(MarginLeft);
    NUMBER(MarginRight);
    NUMBER(MarginTop);
    NUMBER(PageBorder);
    NUMBER(PenColor);
    NUMBER(PenStyle);
    NUMBER(PenWidth);
    NUMBER(PreviewPage);
    NUMBER(SpaceAfter);
    NUMBER(TableBorder);
    NUMBER(TextAlign);
    NUMBER(TextAngle);
    NUMBER(TextColor);
    TEXT(ToolTipText);
    NUMBER(X1);
    NUMBER(X2);
    NUMBER(Y1);
    NUMBER(Y2);
    NUMBER(Zoom);
    NUMBER(ZoomMode);
    EXPECT_EQ(noted, expected);
    EXPECT_EQ(passedOn.spelledCalls(), expected);
}

#undef NUMBER
#undef FLAG
#undef TEXT

TEST_F(RecordingSurfaceTest, reads_areTheTargetsAnswersAndAreNotNoted) {
    passedOn.vp.CurrentY(4321.5);
    passedOn.vp.Zoom(38);
    EXPECT_EQ(vp.CurrentY(), 4321.5);
    EXPECT_EQ(vp.Zoom(), 38);
    EXPECT_EQ(vp.PageCount(), passedOn.vp.PageCount());
    EXPECT_EQ(vp.PageHeight(), passedOn.vp.PageHeight());
    EXPECT_EQ(vp.FontFace(), QStringLiteral("Arial"));
    EXPECT_TRUE(noted.empty());
}

TEST(RecordingSurfaceEvents, events_reachTheEarlierHandlersThenTheRecorders) {
    NullSurface target;
    Calls order;
    target.onNewPage = [&] { order.emplace_back("earlier new page"); };
    target.onFooter = [&] { order.emplace_back("earlier footer"); };
    {
        RecordingSurface vp(target, [](const SurfaceCall&) {});
        vp.onNewPage = [&] { order.emplace_back("new page"); };
        vp.onFooter = [&] { order.emplace_back("footer"); };
        target.onNewPage();
        target.onFooter();
    }
    EXPECT_EQ(order, (Calls{"earlier new page", "new page", "earlier footer", "footer"}));
    order.clear();
    target.onNewPage();
    target.onFooter();
    EXPECT_EQ(order, (Calls{"earlier new page", "earlier footer"}));
}

TEST(RecordingSurfaceEvents, eventWithoutAnyHandler_isPassedOver) {
    NullSurface target;
    const RecordingSurface vp(target, [](const SurfaceCall&) {});
    target.onNewPage();
    target.onFooter();
    EXPECT_FALSE(vp.onNewPage);
}

TEST_F(RecordingSurfaceTest, whatAHandlerDoes_isNotedAfterTheCallThatRaisedIt) {
    vp.onNewPage = [this] { vp.FontSize(9); };
    vp.NewPage();
    passedOn.vp.onNewPage();
    EXPECT_EQ(noted, (Calls{"NewPage()", "FontSize(9)"}));
}

TEST(JsonLine, keys_standInTheOrderOpArgs) {
    EXPECT_EQ(jsonLine({QStringLiteral("FontSize"), {14}}), QByteArray(R"({"op":"FontSize","args":[14]})"));
    EXPECT_EQ(jsonLine({QStringLiteral("StartDoc"), {}}), QByteArray(R"({"op":"StartDoc","args":[]})"));
}

TEST(JsonLine, flagsAreFlagsAndNumbersNumbers) {
    const SurfaceCall call{QStringLiteral("Op"), {true, false, 14.0, -0.5, 8421631}};
    EXPECT_EQ(jsonLine(call), QByteArray(R"({"op":"Op","args":[true,false,14,-0.5,8421631]})"));
}

TEST(JsonLine, fractions_comeBackTheSame) {
    const double angle = std::nextafter(-1.83, 0.0);
    const QByteArray line = jsonLine({QStringLiteral("DrawCircle"), {angle}});
    const qsizetype start = line.indexOf('[') + 1;
    EXPECT_EQ(line.mid(start, line.indexOf(']') - start).toDouble(), angle) << line.constData();
}

TEST(JsonLine, texts_areUtf8WithTheirLineBreaksAndQuotesEscaped) {
    const SurfaceCall call{QStringLiteral("Write"), {QStringLiteral("家 \"ö\"\r\n\ta\\b")}};
    EXPECT_EQ(jsonLine(call), QByteArray("{\"op\":\"Write\",\"args\":[\"家 \\\"ö\\\"\\r\\n\\ta\\\\b\"]}"));
}

TEST(JsonLine, nullText_isTheEmptyText) {
    EXPECT_EQ(jsonLine({QStringLiteral("Write"), {QString()}}), QByteArray(R"({"op":"Write","args":[""]})"));
}
