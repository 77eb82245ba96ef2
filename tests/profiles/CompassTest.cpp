#include "core/Failure.h"
#include "profiles/ReportWorld.h"

#include <algorithm>
#include <cmath>
#include <map>

using namespace Qt::StringLiterals;

namespace {

/// The wedges' angles as the page gets them, worked out apart from the program: 90 degrees less the bearing,
/// in radians, rounded to 32 bits.
const std::map<int, std::string> angles = {
    {1, "-1.832595705986023,-1.3089969158172607"},  {2, "0.2617993950843811,1.3089969158172607"},
    {3, "-3.4033920764923096,-2.879793167114258"},  {4, "-4.450589656829834,-3.4033920764923096"},
    {6, "-1.3089969158172607,-0.2617993950843811"}, {7, "-0.2617993950843811,0.2617993950843811"},
    {8, "-2.879793167114258,-1.832595705986023"},   {9, "1.3089969158172607,-4.450589656829834"},
};

/// The colours of the directions' elements: 10 + the element.
const std::map<int, int> elementColors = {{1, 15}, {2, 13}, {3, 11}, {4, 11},
                                          {6, 14}, {7, 14}, {8, 13}, {9, 12}};

std::string brush(int color) {
    return "BrushColor(" + std::to_string(color) + ')';
}

std::string wedge(int direction, int y, int radius) {
    return "DrawCircle(6000," + std::to_string(y) + ',' + std::to_string(radius) + ',' +
           angles.at(direction) + ')';
}

/// What is written about the centre 6000, 6000; only W has another place on the chart.
Calls letters(const std::string& west) {
    return {
        "CurrentX(5950)",
        "CurrentY(775)",
        R"(Write("S"))",
        "CurrentX(9300)",
        "CurrentY(2700)",
        R"(Write("SW"))",
        "CurrentX(2315)",
        "CurrentY(2590)",
        R"(Write("SE"))",
        "CurrentX(5950)",
        "CurrentY(10785)",
        R"(Write("N"))",
        "CurrentX(2315)",
        "CurrentY(9190)",
        R"(Write("NE"))",
        "CurrentX(885)",
        "CurrentY(5950)",
        R"(Write("E"))",
        west,
        "CurrentY(5950)",
        R"(Write("W"))",
        "CurrentX(9190)",
        "CurrentY(9080)",
        R"(Write("NW"))",
    };
}

class Compass : public ReportWorld {
protected:
    Compass() {
        fill(person);
        EXPECT_TRUE(element.GetElement(3));
    }

    /// The texts of the chart's sectors, by direction.
    [[nodiscard]] std::map<int, std::string> words() const {
        std::map<int, std::string> found;
        const std::map<std::pair<int, int>, int> places = {
            {{6275, 9300}, 1}, {{7925, 4075}, 2}, {{1600, 5835}, 3}, {{3415, 3030}, 4},
            {{8200, 7595}, 6}, {{8750, 5835}, 7}, {{2975, 8750}, 8}, {{5725, 3250}, 9}};
        for (const SurfaceCall& call : report.calls()) {
            if (call.op == u"TextBox") {
                const std::pair place(qRound(call.args.at(1).toDouble()), qRound(call.args.at(2).toDouble()));
                EXPECT_TRUE(places.contains(place)) << spelled(call);
                EXPECT_EQ(call.args.at(3).toDouble(), 5000);
                EXPECT_EQ(call.args.at(4).toDouble(), 0);
                const auto [entry, isNew] =
                    found.emplace(places.at(place), call.args.at(0).toString().toStdString());
                EXPECT_TRUE(isNew) << "two words in sector " << entry->first;
            }
        }
        return found;
    }

    cProfile person;
    cElement element;
};

/// The directions whose outer sector stands out.
std::vector<int> standingOut(const std::vector<DrawnWedge>& wedges) {
    constexpr std::array order{1, 2, 3, 4, 6, 7, 8, 9};
    std::vector<int> found;
    for (std::size_t i = 0; i < order.size(); ++i) {
        EXPECT_TRUE(wedges.at(i).radius == 5335 || wedges.at(i).radius == 5500) << i;
        if (wedges.at(i).radius == 5500) {
            found.push_back(order.at(i));
        }
    }
    return found;
}

} // namespace

// The compass of a person.

TEST_F(Compass, personsCompass_isThisSequenceOfCalls) {
    person.DrawCompass(report.vp, 6000, 6000);
    Calls expected = {"BrushStyle(0)"};
    for (int id = 1; id <= 9; ++id) {
        expected.push_back(brush(id == 8 ? 108 : 200 + id));
        if (id != 5) { // whose colour is chosen, but which has no sector
            expected.push_back(wedge(id, 6000, id == 8 ? 5500 : 5335));
        }
    }
    for (const auto& [id, color] : elementColors) {
        expected.push_back(brush(200 + color));
        expected.push_back(wedge(id, 6000, 3850));
    }
    expected.push_back(brush(105));
    expected.push_back("DrawCircle(6000,6000,1650)");
    EXPECT_EQ(report.spelledCalls(), joined({expected, letters("CurrentX(10785)")}));
}

TEST_F(Compass, personsCompass_everyColor_setsOffItsSectorAlone) {
    for (int id = 1; id <= 9; ++id) {
        report.clear();
        person.oColor.GetColor(id);
        person.DrawCompass(report.vp, 6000, 6000);
        EXPECT_EQ(standingOut(wedges()), id == 5 ? std::vector<int>() : std::vector{id});
    }
}

TEST_F(Compass, personsCompass_directionsOfOneColor_allStandOut) {
    QByteArrayList colors;
    for (int id = 1; id <= 15; ++id) {
        colors << colorRow(id, id == 3 || id == 6 ? 108 : 100 + id);
    }
    world.write(u"Colors.xml"_s, recordFile(colors));
    person.DrawCompass(report.vp, 6000, 6000);
    EXPECT_EQ(standingOut(wedges()), (std::vector{3, 6, 8}));
    report.clear();
    person.DrawDirectionChart(report.vp, 6000, 6000);
    EXPECT_EQ(standingOut(wedges()), (std::vector{3, 6, 8}));
}

TEST_F(Compass, personsCompass_missingColors_areReportedAndDrawnBlack) {
    world.remove(u"Colors.xml"_s);
    // Two questions for each direction, one for each element and one for the centre.
    expectObjectNotSet(u"cXMLHandler.Find"_s, 9 * 2 + 8 + 1);
    person.DrawCompass(report.vp, 6000, 6000);
    ASSERT_EQ(wedges().size(), 16U);
    for (const DrawnWedge& drawn : wedges()) {
        EXPECT_EQ(drawn.color, 0);
    }
}

TEST_F(Compass, personsCompass_failingSurface_isReportedAndLeavesWhatWasDrawn) {
    world.prompts.expectError(u"cProfile.Draw Compass"_s, 57, u"Device I/O error"_s);
    const Calls calls = callsOnSurfaceFailingAt(
        u"DrawCircle"_s, 2, [&](ReportSurface& vp) { person.DrawCompass(vp, 6000, 6000); });
    EXPECT_EQ(calls, (Calls{"BrushStyle(0)", brush(201), wedge(1, 6000, 5335), brush(202)}));
}

// The chart of directions.

TEST_F(Compass, chart_isThisSequenceOfCalls) {
    person.DrawDirectionChart(report.vp, 6000, 6000);
    constexpr int green = 9955946;
    constexpr int blue = 16769962;
    const Calls expected = {
        "BrushStyle(0)",
        "PenColor(0)",
        brush(blue),
        wedge(1, 6000, 5335),
        "TextAngle(2700)",
        R"(TextBox("Obstacles",6275,9300,5000,0))",
        "TextAngle(0)",
        brush(green),
        wedge(2, 6000, 5335),
        "TextAngle(470)",
        R"(TextBox("Success",7925,4075,5000,0))",
        "TextAngle(0)",
        brush(blue),
        wedge(3, 6000, 5335),
        "TextAngle(0)",
        R"(TextBox("Illness",1600,5835,5000,0))",
        "TextAngle(0)",
        brush(blue),
        wedge(4, 6000, 5335),
        "TextAngle(3150)",
        R"(TextBox("Total Loss",3415,3030,5000,0))",
        "TextAngle(0)",
        "TextAngle(0)", // the centre
        brush(green),
        wedge(6, 6000, 5335),
        "TextAngle(3150)",
        R"(TextBox("Health",8200,7595,5000,0))",
        "TextAngle(0)",
        brush(green),
        wedge(7, 6000, 5335),
        "TextAngle(0)",
        R"(TextBox("Romance",8750,5835,5000,0))",
        "TextAngle(0)",
        brush(green),
        wedge(8, 6000, 5500),
        "TextAngle(470)",
        R"(TextBox("Development",2974.9999999999995,8750,5000,0))",
        "TextAngle(0)", // 6000 - 0.55 * 5500 in 64 bits
        brush(blue),
        wedge(9, 6000, 5335),
        "TextAngle(900)",
        R"(TextBox("Bad Luck",5725,3250,5000,0))",
        "TextAngle(0)",
        brush(105),
        "DrawCircle(6000,6000,1650)",
    };
    EXPECT_EQ(report.spelledCalls(), joined({expected, letters("CurrentX(10565)")}));
}

TEST_F(Compass, chart_distinctDirections_giveEachSectorOneWord) {
    person.DrawDirectionChart(report.vp, 6000, 6000);
    const std::map<int, std::string> expected = {{1, "Obstacles"},   {2, "Success"}, {3, "Illness"},
                                                 {4, "Total Loss"},  {6, "Health"},  {7, "Romance"},
                                                 {8, "Development"}, {9, "Bad Luck"}};
    EXPECT_EQ(words(), expected);
}

TEST_F(Compass, chart_directionOfTwoMeanings_takesTheFirstInTheOrderOfTesting) {
    cPersonalDirection& directions = person.oPersonalDirection;
    directions = cPersonalDirection();
    directions.DESTRUCTIONDIRECTIONID = 1;
    directions.OBSTACLEDIRECTIONID = 1;
    const std::vector<std::pair<qint32 cPersonalDirection::*, std::string>> earlierAndEarlier = {
        {&cPersonalDirection::ILLNESSDIRECTIONID, "Illness"},
        {&cPersonalDirection::BADLUCKDIRECTIONID, "Bad Luck"},
        {&cPersonalDirection::SUCCESSDIRECTIONID, "Success"},
        {&cPersonalDirection::ROMANCEDIRECTIONID, "Romance"},
        {&cPersonalDirection::HEALTHDIRECTIONID, "Health"},
        {&cPersonalDirection::DEVELOPMENTDIRECTIONID, "Development"},
    };
    person.DrawDirectionChart(report.vp, 6000, 6000);
    EXPECT_EQ(words().at(1), "Obstacles");
    for (const auto& [field, word] : earlierAndEarlier) {
        directions.*field = 1;
        report.clear();
        person.DrawDirectionChart(report.vp, 6000, 6000);
        EXPECT_EQ(words().at(1), word);
    }
}

TEST_F(Compass, chart_directionWithoutMeaning_isDrawnAsTheOneBefore) {
    person.oPersonalDirection.SUCCESSDIRECTIONID = 0;
    person.DrawDirectionChart(report.vp, 6000, 6000);
    EXPECT_EQ(words().at(2), "Obstacles");
    EXPECT_EQ(wedges().at(1).color, wedges().at(0).color);
}

TEST_F(Compass, chart_nobodysDirections_haveNoWordsAndTheBrushThatStood) {
    const cProfile nobody;
    report.vp.BrushColor(77);
    nobody.DrawDirectionChart(report.vp, 6000, 6000);
    for (const auto& [direction, word] : words()) {
        EXPECT_EQ(word, "") << direction;
    }
    for (const DrawnWedge& drawn : wedges()) {
        EXPECT_EQ(drawn.color, 77);
    }
}

TEST_F(Compass, chart_centreWithAMeaning_drawsAndWritesNothingThere) {
    person.oPersonalDirection.HEALTHDIRECTIONID = 5;
    person.DrawDirectionChart(report.vp, 6000, 6000);
    EXPECT_EQ(wedges().size(), 8U);
    const std::map<int, std::string> found = words();
    EXPECT_EQ(found.size(), 8U);
    EXPECT_EQ(found.at(6), "Health"); // the word of the pass before
}

TEST_F(Compass, chart_textAngle_isZeroAfterEveryWord) {
    person.DrawDirectionChart(report.vp, 6000, 6000);
    int words = 0;
    for (std::size_t i = 0; i < report.calls().size(); ++i) {
        if (report.calls()[i].op == u"TextBox") {
            ++words;
            EXPECT_EQ(spelled(report.calls().at(i + 1)), "TextAngle(0)");
        }
    }
    EXPECT_EQ(words, 8);
    EXPECT_EQ(report.vp.property(SurfaceProperty::TextAngle).toDouble(), 0);
}

TEST_F(Compass, chart_letters_differFromTheCompassInWAlone) {
    const auto lettersOf = [this] {
        const Calls all = report.spelledCalls();
        return Calls(all.end() - 24, all.end());
    };
    person.DrawCompass(report.vp, 6000, 6000);
    const Calls compass = lettersOf();
    report.clear();
    person.DrawDirectionChart(report.vp, 6000, 6000);
    const Calls chart = lettersOf();
    for (std::size_t i = 0; i < chart.size(); ++i) {
        EXPECT_EQ(chart[i] == compass[i], i != 18) << chart[i];
    }
}

TEST_F(Compass, chart_failingWord_isReportedUnderItsOwnLabelAndTheChartGoesOn) {
    for (int i = 0; i < 8; ++i) {
        world.prompts.expectError(u"cProfile.DrawDirectionName"_s, 57, u"Device I/O error"_s);
    }
    const Calls calls = callsOnSurfaceFailingAt(
        u"TextBox"_s, 1, [&](ReportSurface& vp) { person.DrawDirectionChart(vp, 6000, 6000); });
    EXPECT_EQ(calls.back(), R"(Write("NW"))");
}

TEST_F(Compass, chart_failingSurface_isReported) {
    world.prompts.expectError(u"cProfile.Draw Direction Chart"_s, 57, u"Device I/O error"_s);
    const Calls calls = callsOnSurfaceFailingAt(
        u"DrawCircle"_s, 1, [&](ReportSurface& vp) { person.DrawDirectionChart(vp, 6000, 6000); });
    EXPECT_EQ(calls, (Calls{"BrushStyle(0)", "PenColor(0)", brush(16769962)}));
}

TEST_F(Compass, chart_missingColors_areReported) {
    world.remove(u"Colors.xml"_s);
    expectObjectNotSet(u"cXMLHandler.Find"_s, 9 + 1);
    person.DrawDirectionChart(report.vp, 6000, 6000);
    EXPECT_EQ(words().size(), 8U);
}

// The compass of an element.

TEST_F(Compass, elementsCompass_isThisSequenceOfCalls) {
    element.DrawCompass(report.vp, 6000, 6000);
    Calls expected = {"BrushStyle(0)"};
    for (const int id : {1, 2, 3, 4, 6, 7, 8, 9}) {
        expected.push_back(brush(200 + id));
        expected.push_back(wedge(id, 6000, 5500));
    }
    for (const auto& [id, color] : elementColors) {
        expected.push_back(brush(100 + color));
        expected.push_back(wedge(id, 6000, id == 2 || id == 8 ? 4125 : 3850));
    }
    expected.push_back(brush(113)); // the centre is Soil's
    expected.push_back("DrawCircle(6000,6000,1650)");
    EXPECT_EQ(report.spelledCalls(), joined({expected, letters("CurrentX(10785)")}));
}

TEST_F(Compass, elementsCompass_everyElement_setsOffItsDirections) {
    constexpr std::array order{1, 2, 3, 4, 6, 7, 8, 9};
    for (int id = 1; id <= 5; ++id) {
        report.clear();
        ASSERT_TRUE(element.GetElement(id));
        element.DrawCompass(report.vp, 6000, 6000);
        const std::vector<DrawnWedge> drawn = wedges();
        ASSERT_EQ(drawn.size(), 16U);
        for (std::size_t i = 0; i < 8; ++i) {
            EXPECT_EQ(drawn[8 + i].radius, elementColors.at(order.at(i)) == 10 + id ? 4125 : 3850) << id;
        }
    }
}

TEST_F(Compass, elementsCompass_missingColors_areReported) {
    world.remove(u"Colors.xml"_s);
    expectObjectNotSet(u"cXMLHandler.Find"_s, 8 + 8 + 1);
    element.DrawCompass(report.vp, 6000, 6000);
    EXPECT_EQ(wedges().size(), 16U);
}

TEST_F(Compass, elementsCompass_failingSurface_isReportedAndLeavesWhatWasDrawn) {
    world.prompts.expectError(u"cElement.Draw Compass"_s, 57, u"Device I/O error"_s);
    const Calls calls = callsOnSurfaceFailingAt(
        u"DrawCircle"_s, 2, [&](ReportSurface& vp) { element.DrawCompass(vp, 6000, 6000); });
    EXPECT_EQ(calls, (Calls{"BrushStyle(0)", brush(201), wedge(1, 6000, 5500), brush(202)}));
}
