#include "nineki/NineKiDrawing.h"
#include "nineki/NineKiWorld.h"

#include <algorithm>

namespace {

using Texts = std::vector<std::string>;

constexpr qint32 blue = 0xFFE3AA;
constexpr qint32 green = 0x97EA6A;

class NineKiCompass : public testing::Test, protected NineKiWorld {
protected:
    NineKiCompass() { choosePerson(9); }

    void expectBox(const char* title, const char* text) {
        world.prompts.expectMessage(QString::fromLatin1(title), QString::fromLatin1(text),
                                    MessageIcon::Exclamation);
    }

    /// The calls of the compass of 2024 as they are told part by part.
    template<class Parts>
    static Texts callsOf(Parts&& parts) {
        RecordedReport told;
        parts(told.vp);
        return told.spelledCalls();
    }

    static void wedge(ReportSurface& vp, const char* name, bool good) {
        NineKiDrawing::DrawDirection(vp, 6000, 6000, good ? 5000 : 4750, QString::fromLatin1(name),
                                     good ? green : blue);
    }
    static void number(ReportSurface& vp, const char* name, qint32 value) {
        NineKiDrawing::DrawNumber(vp, 6000, 6000, 5000, QString::fromLatin1(name), value);
    }
    static void frame(ReportSurface& vp, const char* sign, bool signIsGood, const char* animal) {
        for (const char* name :
             {"South", "South-West", "South-East", "North", "North-East", "East", "West", "North-West"}) {
            NineKiDrawing::DrawLetters(vp, 6000, 6000, 5000, QString::fromLatin1(name));
        }
        wedge(vp, sign, signIsGood);
        NineKiDrawing::DrawAnimal(vp, 6000, 6000, 5000, QString::fromLatin1(animal));
    }
    static void title(ReportSurface& vp, const char* text) {
        vp.BrushStyle(0);
        vp.CurrentY(500);
        vp.CurrentX(1000);
        vp.Write(QString::fromLatin1(text));
    }
};

} // namespace

TEST_F(NineKiCompass, everyCallOfAMove_inOrder) {
    compass(QDate(2024, 7, 1), true, false);
    EXPECT_EQ(report.spelledCalls(), callsOf([](ReportSurface& vp) {
                  title(vp, "Year 2024");
                  wedge(vp, "North", true);
                  wedge(vp, "South-West", false); // the person's own 9
                  number(vp, "South-West", 9);
                  wedge(vp, "East", false); // across from 5
                  wedge(vp, "South-East", true);
                  wedge(vp, "North-West", false); // 4, across from its home
                  number(vp, "North-West", 4);
                  wedge(vp, "West", false);
                  number(vp, "West", 5);
                  wedge(vp, "North-East", false); // across from the person's own
                  wedge(vp, "South", false);      // 7 is Metal
                  number(vp, "South", 7);
                  frame(vp, "East/South-East", true, "Dragon");
              }));
}

TEST_F(NineKiCompass, everyCallOfARenovation_splitsTheSectorAcrossFromTheSign) {
    compass(QDate(2024, 7, 1), true, true);
    EXPECT_EQ(report.spelledCalls(), callsOf([](ReportSurface& vp) {
                  title(vp, "Year 2024");
                  wedge(vp, "North", true);
                  wedge(vp, "South-West", false);
                  number(vp, "South-West", 9);
                  wedge(vp, "East", false);
                  wedge(vp, "South-East", true);
                  wedge(vp, "West/North-West", false);
                  wedge(vp, "North/North-West", true);
                  wedge(vp, "West", false);
                  number(vp, "West", 5);
                  wedge(vp, "North-East", false);
                  wedge(vp, "South", true);
                  frame(vp, "East/South-East", true, "Dragon");
              }));
    EXPECT_EQ(sectors(nineKi.Beneficial), (Texts{"North", "South-East", "North/North-West", "South"}));
    EXPECT_EQ(sectors(nineKi.Problematic),
              (Texts{"South-West", "East", "West/North-West", "West", "North-East"}));
}

TEST_F(NineKiCompass, signInASectorThatIsNotGood_isPaintedAsProblematic) {
    choosePerson(9);
    compass(QDate(2026, 7, 1), true, true); // the Horse in the South, which carries 5
    const Texts calls = report.spelledCalls();
    const Texts end = callsOf([](ReportSurface& vp) { frame(vp, "South", false, "Horse"); });
    ASSERT_GT(calls.size(), end.size());
    EXPECT_TRUE(std::equal(end.rbegin(), end.rend(), calls.rbegin()));
}

TEST_F(NineKiCompass, halfThatIsGood_neverStandsForTheSignsSector) {
    // A half sector has no id, so that no sign's id equals it; a sign without an id finds none either.
    world.write(QStringLiteral("Animals.xml"),
                world.read(QStringLiteral("Animals.xml"))
                    .replace(R"(DIRECTIONID="4" ANIMALDIRECTIONNAME="East/South-East")",
                             R"(DIRECTIONID="0" ANIMALDIRECTIONNAME="East/South-East")"));
    compass(QDate(2024, 7, 1), true, true);
    EXPECT_EQ(about(nineKi.Beneficial, QStringLiteral("North-West")), Texts{"6"}) << "never split";
    const Texts calls = report.spelledCalls();
    const Texts end = callsOf([](ReportSurface& vp) { frame(vp, "East/South-East", false, "Dragon"); });
    EXPECT_TRUE(std::equal(end.rbegin(), end.rend(), calls.rbegin()));
}

TEST_F(NineKiCompass, withoutDraw_theSurfaceIsNotTouched) {
    for (const bool renovation : {false, true}) {
        compass(QDate(2024, 7, 1), true, renovation);
        const NineKiTable beneficial = nineKi.Beneficial;
        const NineKiTable problematic = nineKi.Problematic;
        report.clear();
        compass(QDate(2024, 7, 1), false, renovation);
        EXPECT_TRUE(report.calls().empty());
        EXPECT_EQ(nineKi.Beneficial, beneficial);
        EXPECT_EQ(nineKi.Problematic, problematic);
    }
}

TEST_F(NineKiCompass, innerRadius_isRoundedHalfToEven) {
    for (const auto& [radius, inner] : {std::pair(5000, 4750), {2000, 1900}, {10, 10}, {30, 28}}) {
        report.clear();
        nineKi.CalcMoveCompass(report.vp, 0, 0, radius, QDate(2024, 7, 1), true, false);
        double least = radius;
        for (const SurfaceCall& call : report.calls()) {
            if (call.op == QStringLiteral("DrawCircle")) {
                least = std::min(least, call.args.at(2).toDouble());
            }
        }
        EXPECT_EQ(least, inner) << radius;
    }
}

TEST_F(NineKiCompass, yearBeforeItsStart_isThatBefore) {
    compass(QDate(2024, 2, 3), false, false);
    EXPECT_EQ(nineKi.Year, 2023);
    EXPECT_EQ(nineKi.NumberSector[5], 6);
    compass(QDate(2024, 2, 4), false, false);
    EXPECT_EQ(nineKi.Year, 2024);
    EXPECT_EQ(nineKi.NumberSector[5], 7);
}

TEST_F(NineKiCompass, noDate_saysSoAndPublishesTheTablesOfBefore) {
    compass(QDate(2024, 7, 1), false, false);
    const NineKiTable before = nineKi.Beneficial;
    nineKi.Beneficial.clear();
    constexpr const char* text = "The date you entered is not a valid date.  Please re-enter this value.";
    expectBox("Directions to Move", text);
    compass(QStringLiteral("whenever"), true, false);
    expectBox("Areas to Renovate", text);
    compass(QStringLiteral("31.02.2024"), true, true);
    EXPECT_EQ(nineKi.Beneficial, before);
    EXPECT_EQ(nineKi.Year, 2024);
    EXPECT_TRUE(report.calls().empty());
}

TEST_F(NineKiCompass, noDirections_saySoAndPublishEmptyTables) {
    for (const bool renovation : {false, true}) {
        TestWorld intact(TestWorld::Records::Sample);
        compass(QDate(2024, 7, 1), false, renovation);
        EXPECT_FALSE(nineKi.Problematic.empty());
        intact.write(QStringLiteral("Directions.xml"), recordFile({}));
        intact.prompts.expectMessage(
            renovation ? QStringLiteral("Areas to Renovate") : QStringLiteral("Directions to Move"),
            renovation ? QStringLiteral(
                             "Error Reading Directions.  Could not calculate areas to renovate/redecorate.")
                       : QStringLiteral("Error Reading Directions.  Could not calculate directions to Move."),
            MessageIcon::Exclamation);
        compass(QDate(2025, 7, 1), false, renovation);
        EXPECT_EQ(nineKi.Year, 2025);
        EXPECT_TRUE(nineKi.Problematic.empty());
        EXPECT_TRUE(nineKi.Beneficial.empty());
    }
}

TEST_F(NineKiCompass, personWhoWasNeverCalculated_isReportedAndTheTablesKeepWhatTheyHeld) {
    compass(QDate(2024, 7, 1), false, false);
    const NineKiTable before = nineKi.Problematic;
    Global::CurrentProfile = std::make_unique<cProfile>();
    world.prompts.expectError(QStringLiteral("cNineKi.Calc Move Compass"), 9,
                              QStringLiteral("Subscript out of range"));
    compass(QDate(2025, 7, 1), true, false);
    EXPECT_EQ(nineKi.Problematic, before);
}

TEST_F(NineKiCompass, damagedDirection_isReportedUnderTheCalculationsLabel) {
    world.write(
        QStringLiteral("Directions.xml"),
        world.read(QStringLiteral("Directions.xml")).replace(R"(DIRECTIONID="3")", R"(DIRECTIONID="E")"));
    world.prompts.expectError(QStringLiteral("cNineKi.Calc Move Compass"), 13,
                              QStringLiteral("Type mismatch"));
    compass(QDate(2024, 7, 1), true, true);
    EXPECT_TRUE(nineKi.Problematic.empty());
    EXPECT_FALSE(report.calls().empty()) << "what was drawn before stays";
}
