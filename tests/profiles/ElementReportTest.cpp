#include "core/Failure.h"
#include "profiles/ReportWorld.h"

using namespace Qt::StringLiterals;

namespace {

// Every paragraph stays whole on its line.
// clang-format off
const std::vector<std::string> paragraphs = {
    R"([description 1])",
    R"(The Element energy [name 1] is associated with rooms located to the [directions 1] of the center of your home, and with the [directions 1] area of each individual room.)",
    R"(To maintain [name 1] Element energy in a room decorate using [colors 1] colors, [patterns 1] and items made from materials like [materials 1].)",
    R"(To calm the [name 1] Element energy in a room decorate using colors, patterns and materials associated with the [name 2] Element which is supported by (or drains) the [name 1] Element energy.  [name 2] is associated with [colors 2] colors, [patterns 2] and items made from materials like [materials 2].)",
    R"(To enhance the [name 1] Element energy in a room decorate using colors, patterns and materials associated with the [name 5] Element which supports (increases) the [name 1] Element energy.  [name 5] is associated with [colors 5] colors, [patterns 5] and items made from materials like [materials 5].)",
    R"([name 1] Element energy is destroyed by [name 4] Element energy.  Therefore, it is critical that you do not  decorate with colors, patterns and materials associated with the [name 4] Element, as this will severely weaken the energy of the room.  [name 4] is associated with [colors 4] colors, [patterns 4] and items made from materials like [materials 4].)",
    R"(Likewise, [name 1] Element energy destroys [name 3] Element energy.  Therefore, you should not decorate with colors, patterns and materials associated with the [name 3] Element, as this will cause disharmony and instability in the room.  [name 3] is associated with [colors 3] colors, [patterns 3] and items made from materials like [materials 3].)",
};
// clang-format on

class ElementReport : public ReportWorld {
protected:
    ElementReport() { EXPECT_TRUE(element.GetElement(1)); }

    /// The report without band.
    static Calls text() {
        const Calls all = written(paragraphs);
        const auto part = [&](std::ptrdiff_t from, std::ptrdiff_t to) {
            return Calls(all.begin() + from, all.begin() + to);
        };
        return joined({header("[name 1]"), heading("Character"), part(0, 3), heading("Calming Chi Energy"),
                       part(3, 4), heading("Enhancing Chi Energy"), part(4, 5), heading("Things to Avoid"),
                       part(5, 7)});
    }

    cElement element;
};

} // namespace

TEST_F(ElementReport, GenerateReport_onPaper_isThisSequenceOfCalls) {
    element.GenerateReport(report.vp, true);
    EXPECT_EQ(report.spelledCalls(), text());
}

TEST_F(ElementReport, GenerateReport_onScreen_isTheBandAndThenTheSameWordForWord) {
    element.GenerateReport(report.vp, false);
    EXPECT_EQ(report.spelledCalls(), joined({band(211, 311), text()}));
}

TEST_F(ElementReport, GenerateReport_color2OnScreen_hasAWhitePageAndALightBand) {
    element.oColor.GetColor(2);
    element.GenerateReport(report.vp, false);
    EXPECT_EQ(report.spelledCalls(), joined({band(0xFFFFFF, 202), text()}));
}

TEST_F(ElementReport, GenerateReport_color2OnPaper_hasNeither) {
    element.oColor.GetColor(2);
    element.GenerateReport(report.vp, true);
    EXPECT_EQ(report.spelledCalls(), text());
}

TEST_F(ElementReport, GenerateReport_sixthParagraph_keepsItsTwoBlanks) {
    element.GenerateReport(report.vp, true);
    const std::string avoid = report.arguments(u"Write"_s).at(9);
    EXPECT_NE(avoid.find(" that you do not  decorate with colors"), std::string::npos) << avoid;
}

TEST_F(ElementReport, GenerateReport_leavesTheElementAsItStood) {
    element.GenerateReport(report.vp, true);
    EXPECT_EQ(element.ELEMENTNAME, u"[name 1]");
    EXPECT_EQ(element.oColor.COLORID, 11);
}

TEST_F(ElementReport, GenerateReport_unknownNeighbour_isTheOneBefore) {
    element.SUPPORTEDBYELEMENTID = 77;
    element.GenerateReport(report.vp, true);
    EXPECT_NE(report.arguments(u"Write"_s).at(7).find("with the [name 2] Element which supports (increases)"),
              std::string::npos);
}

TEST_F(ElementReport, GenerateReport_missingElements_isReportedByTheStoreForEachNeighbour) {
    world.remove(u"Elements.xml"_s);
    expectObjectNotSet(u"cXMLHandler.Find"_s, 4);
    element.GenerateReport(report.vp, true);
    EXPECT_EQ(report.arguments(u"Write"_s).size(), 4 + paragraphs.size());
}

TEST_F(ElementReport, GenerateReport_missingColors_isReportedForEachNeighbourAndWritesTheSame) {
    world.remove(u"Colors.xml"_s);
    expectObjectNotSet(u"cXMLHandler.Find"_s, 4);
    element.GenerateReport(report.vp, true);
    EXPECT_EQ(report.spelledCalls(), text());
}

TEST_F(ElementReport, GenerateReport_failingSurface_isReportedAndLeavesWhatWasWritten) {
    world.prompts.expectError(u"cElement.Generate Report"_s, 57, u"Device I/O error"_s);
    const Calls calls =
        callsOnSurfaceFailingAt(u"Write"_s, 3, [&](ReportSurface& vp) { element.GenerateReport(vp, true); });
    const Calls whole = text();
    EXPECT_EQ(calls, Calls(whole.begin(), whole.begin() + 8 + 25 + 1));
}
