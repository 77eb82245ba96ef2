#include "core/Failure.h"
#include "profiles/ReportWorld.h"

using namespace Qt::StringLiterals;

namespace {

// Every paragraph stays whole on its line.
// clang-format off
const std::vector<std::string> paragraphs = {
    R"(The KUA/Nine Ki Number for this profile is 8 which is the compass direction [direction]  This direction is associated with the color [color] and is symbolized by the image of the [symbol].  Your Birth Year (adjusted for the Lunar Calendar) is 1965 and your birth year's animal sign is [animal]  This Compass Direction is characterized by the energy of the [time] and is represented by the Trigram [trigram].)",
    R"([summary])",
    R"(Your Beneficial Compass Directions are the areas of your home that are most compatible with your energy. Energize the rooms in these areas of your home to enhance their beneficial effects, by decorating in the Colors, Patterns, Textures and Shapes associated with each Beneficial Direction and their associated Elements.  You may also decorate using the Colors, Patterns, Textures and Shapes related to the  Element that 'Supports' the Element of the Beneficial Compass Direction.  It is also very important to examine the rooms in these areas of your home for features that may drain  the area's energy.  This can result in losing the benefical effect of the Compass Direction.)",
    R"(Your Success (Sheng Chi) Direction is [success]. Energize the rooms in this area of your home to ensure success in relationships and business. Check for features that can drain the energy from rooms in this area of your home which can cause problems in your relationships and business.)",
    R"(Your Health (Tien Yi) Direction is [health]. Energize the rooms in this area of your home to help prevent accidents and ensure good health. Check for features that can drain the energy from rooms in this area of your home which can cause problems for your health.)",
    R"(Your Romance (Nien Yen) Direction is [romance]. Energize the rooms in this area of your home to attract or maintain romantic relationships. Check for features that can drain the energy from rooms in this area of your home which can cause domestic problem, or keep you from meeting new romantic partners.)",
    R"(Your Personal (Fu Wei) Development Direction is [development]. Energize the rooms in this area of your home to increase personal growth and development. Check for features that can drain the energy from rooms in this area of your home which can cause your personal development to stagnate and increase your frustration and unhappiness.)",
    R"(Your Problematic Compass Directions are the areas of your home that are least compatible with your energy. Try to avoid having a front door that faces one of these directions.  It is important to choose a Compass Direction for your Bedroom, Living Room, or any other room where you will likely spend much of your time at home from your list of  Beneficial Directions, and to avoid locating any of those rooms in one of your Problematic Compass Directions.  If that is not possible, then you should try to position  the head of your bed towards one of your Beneficial directions, or position a couch or your favoite chair towards one of your Beneficial directions to help lessen the Problematic effects.)",
    R"(When decorating, you may decorate in the Colors, Patterns, Textures and Shapes associated with the Problematic Direction and its Element, but to keep from over energizing the room, decorate in  pastel shades of the color instead of rich, vibrant shades.  You may also decorate in the Colors, Patterns, Textures and Shapes of the Element that is 'supported by' the Element of  the Problematic Compass Direction.  This will have the effect of draining some of the energy from the Problematic Direction.)",
    R"(Your Bad Luck (Ho Hai) Direction is [badluck]. Calm the energy of the rooms in this area of your home to help prevent minor bad luck, such as arguments, lost articles or small accidents from occuring.)",
    R"(Your Obstacle (Wu Kwei) Direction is [obstacle]. Calm the energy of the rooms in this area of your home to help prevent more serious bad luck, such as law suits, failed businesses and relationships from occuring.)",
    R"(Your Illness (Lui Sha) Direction is [illness]. Calm the energy of the rooms in this area of your home to help stop threats to your health such as chronic illness, disease and debilitating accidents from occuring.)",
    R"(Your Destruction (Chueh Ming) Direction is [destruction]. This is your least compatible Compass Direction.  Calm the energy of the rooms in this area of your home to prevent great misfortune and the total loss or destruction of your home, business and relationships. Avoid living in a home where the main entrance faces this direction, and avoid sleeping in a bedroom located in this area of your home at all costs.)",
    R"(Your Element is [name 1]. [description 1]. It is characterized by the colors [colors 1], [patterns 1] and materials such as [materials 1].)",
    R"([name 1] supports (and is also drained by) the element [name 2]. You can calm your energy through use of its colors [colors 2], [patterns 2] and materials such as [materials 2].)",
    R"(It is supported by the element [name 5]. You can enhance your energy through use of its colors [colors 5], [patterns 5] and materials such as [materials 5].)",
    R"([name 1] destroys the element [name 3]. It may be necessary for you to energize the rooms that are located in the areas of the home associated with [name 3].)",
    R"(It is destroyed by the element [name 4]. It may be necessary for you to calm the rooms that are located in the areas of the home associated with [name 4].)",
};
// clang-format on

class ProfileReport : public ReportWorld {
protected:
    ProfileReport() { fill(person); }

    /// The report without band and chart.
    static Calls text() {
        const Calls all = written(paragraphs);
        const auto part = [&](std::ptrdiff_t from, std::ptrdiff_t to) {
            return Calls(all.begin() + from, all.begin() + to);
        };
        return joined({header("[person]"), heading("Profile for a [direction] person"), part(0, 2),
                       heading("Beneficial Compass Directions"), part(2, 7),
                       heading("Problematic Compass Directions"), part(7, 13), heading("Elements"),
                       part(13, 18)});
    }

    [[nodiscard]] Calls chart() const {
        RecordedReport alone;
        person.DrawDirectionChart(alone.vp, 6000, 7500);
        return alone.spelledCalls();
    }

    /// The paragraphs that were written, without headings and letters of the chart.
    [[nodiscard]] std::vector<std::string> writtenTexts() const { return report.arguments(u"Write"_s); }

    cProfile person;
};

} // namespace

TEST_F(ProfileReport, GenerateReport_onPaper_isThisSequenceOfCalls) {
    person.GenerateReport(report.vp, true);
    EXPECT_EQ(report.spelledCalls(), joined({text(), {"NewPage()"}, chart()}));
}

TEST_F(ProfileReport, GenerateReport_onScreen_isTheBandAndThenTheSameWordForWord) {
    person.GenerateReport(report.vp, false);
    EXPECT_EQ(report.spelledCalls(), joined({band(208, 308), text(), {"NewPage()"}, chart()}));
}

TEST_F(ProfileReport, GenerateReport_color2OnScreen_hasAWhitePageAndALightBand) {
    person.oColor.GetColor(2);
    person.oColor.COLORNAME = u"[color]"_s;
    person.GenerateReport(report.vp, false);
    EXPECT_EQ(report.spelledCalls(), joined({band(0xFFFFFF, 202), text(), {"NewPage()"}, chart()}));
}

TEST_F(ProfileReport, GenerateReport_everyOtherColorOnScreen_hasALightPageAndABrightBand) {
    for (const int id : {1, 3, 4, 5, 6, 7, 8, 9}) {
        report.clear();
        person.oColor.GetColor(id);
        person.GenerateReport(report.vp, false);
        const Calls all = report.spelledCalls();
        EXPECT_EQ(Calls(all.begin(), all.begin() + 4), band(200 + id, 300 + id)) << id;
    }
}

TEST_F(ProfileReport, GenerateReport_anyColorOnPaper_hasNoBackgroundAndNoBand) {
    for (int id = 1; id <= 9; ++id) {
        report.clear();
        person.oColor.GetColor(id);
        person.GenerateReport(report.vp, true);
        EXPECT_TRUE(report.arguments(u"BackColor"_s).empty()) << id;
        EXPECT_TRUE(report.arguments(u"DrawRectangle"_s).empty()) << id;
    }
}

TEST_F(ProfileReport, GenerateReport_hasNoCompass) {
    person.GenerateReport(report.vp, true);
    EXPECT_EQ(wedges().size(), 8U); // the chart's alone
}

TEST_F(ProfileReport, GenerateReport_detailsThatStoppedEarly_leaveNothingBetweenTheWords) {
    cProfile nobody;
    nobody.PROFILENAME = u"Pat"_s;
    nobody.KUANUMBER = 99;
    nobody.GenerateReport(report.vp, true);
    const std::vector<std::string> texts = writtenTexts();
    ASSERT_GT(texts.size(), paragraphs.size());
    EXPECT_EQ(texts.at(0), "Profile for a  person");
    EXPECT_EQ(texts.at(1),
              "The KUA/Nine Ki Number for this profile is 99 which is the compass direction   This "
              "direction is associated with the color  and is symbolized by the image of the .  Your "
              "Birth Year (adjusted for the Lunar Calendar) is 0 and your birth year's animal sign "
              "is   This Compass Direction is characterized by the energy of the  and is "
              "represented by the Trigram .");
    EXPECT_EQ(texts.at(2), "");
    EXPECT_EQ(texts.at(22 - 1),
              "It is destroyed by the element . It may be necessary for you to calm the rooms "
              "that are located in the areas of the home associated with .");
}

TEST_F(ProfileReport, GenerateReport_unknownNeighbour_isTheOneBefore) {
    person.oElement.DESTROYSELEMENTID = 77;
    person.GenerateReport(report.vp, true);
    EXPECT_EQ(writtenTexts().at(20).substr(0, 40), "[name 1] destroys the element [name 5]. ");
}

TEST_F(ProfileReport, GenerateReport_namesOfAnyLetters_areWhole) {
    for (const QString& name :
         {u"Ann \"O'Neil\" & <b>"_s, u"\u05d0\u05d1 \U0001F409"_s, QString(5000, u'x')}) {
        report.clear();
        person.PROFILENAME = name;
        person.GenerateReport(report.vp, true);
        EXPECT_EQ(report.arguments(u"Header"_s), std::vector{name.toStdString()});
    }
}

TEST_F(ProfileReport, GenerateReport_missingElements_isReportedByTheStoreForEachNeighbour) {
    world.remove(u"Elements.xml"_s);
    expectObjectNotSet(u"cXMLHandler.Find"_s, 4);
    person.GenerateReport(report.vp, true);
    EXPECT_EQ(writtenTexts().at(19),
              "It is supported by the element . You can enhance your energy through use of "
              "its colors ,  and materials such as .");
    EXPECT_EQ(wedges().size(), 8U);
}

TEST_F(ProfileReport, GenerateReport_damagedNeighbour_isReportedAndPrintsWhatWasRead) {
    world.write(u"Elements.xml"_s, recordFile({elementRow(2, "much", 1, 4, 5)}));
    world.prompts.expectError(u"cElement.Get Element"_s, 13, u"Type mismatch"_s);
    person.GenerateReport(report.vp, true);
    EXPECT_EQ(writtenTexts().at(18), paragraphs.at(14));
}

TEST_F(ProfileReport, GenerateReport_missingColors_isReportedForTheChartAlone) {
    world.remove(u"Colors.xml"_s);
    // Each neighbour asks for its colour, each direction and the centre of the chart for theirs.
    expectObjectNotSet(u"cXMLHandler.Find"_s, 4 + 9 + 1);
    person.GenerateReport(report.vp, true);
    const Calls all = report.spelledCalls();
    EXPECT_EQ(Calls(all.begin(), all.begin() + std::ssize(text())), text());
}

TEST_F(ProfileReport, GenerateReport_failingSurface_isReportedAndLeavesWhatWasWritten) {
    world.prompts.expectError(u"cProfile.Generate Report"_s, 57, u"Device I/O error"_s);
    // The third text is the summary: heading and first paragraph stand.
    const Calls calls =
        callsOnSurfaceFailingAt(u"Write"_s, 3, [&](ReportSurface& vp) { person.GenerateReport(vp, true); });
    const Calls whole = text();
    EXPECT_EQ(calls, Calls(whole.begin(), whole.begin() + 8 + 25 + 1));
}
