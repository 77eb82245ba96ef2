#include "nineki/NineKiDrawing.h"

#include "catalogues/ElementRelations.h"
#include "core/Global.h"
#include "nineki/NineKiWorld.h"

#include <cmath>

namespace {

using Texts = std::vector<std::string>;

/// The middle of a wedge and its width, in degrees counter-clockwise from the right of the page.
struct WedgeAngles {
    const char* name;
    double middle;
    double width;
};

// South at the top, West on the right; a corner is two divisions of 30 degrees.
constexpr std::array<WedgeAngles, 16> wedges{{
    {"South", 90, 30},
    {"South/South-West", 60, 30},
    {"West/South-West", 30, 30},
    {"South-West", 45, 60},
    {"West", 0, 30},
    {"West/North-West", -30, 30},
    {"North/North-West", -60, 30},
    {"North-West", -45, 60},
    {"North", -90, 30},
    {"North/North-East", -120, 30},
    {"East/North-East", -150, 30},
    {"North-East", -135, 60},
    {"East", 180, 30},
    {"East/South-East", 150, 30},
    {"South/South-East", 120, 30},
    {"South-East", 135, 60},
}};

constexpr double degreesPerRadian = 180 / 3.14159265359;

struct Place {
    const char* name;
    const char* text;
    double x;
    double y;
    double angle = 0;
};

class NineKiDrawingTest : public testing::Test, protected NineKiWorld {
protected:
    Texts drawn(void (*draw)(ReportSurface&, qint32, qint32, qint32, const QString&), const char* name,
                qint32 x, qint32 y, qint32 radius) {
        report.clear();
        draw(report.vp, x, y, radius, QString::fromLatin1(name));
        return report.spelledCalls();
    }

    /// Checks that the calls set a position, within a hundredth of a twip, and then write a text.
    void expectWrittenAt(double x, double y, const std::string& text) const {
        ASSERT_EQ(report.calls().size(), 3U);
        EXPECT_EQ(report.calls()[0].op, QStringLiteral("CurrentX"));
        EXPECT_NEAR(report.calls()[0].args.at(0).toDouble(), x, 0.01);
        EXPECT_EQ(report.calls()[1].op, QStringLiteral("CurrentY"));
        EXPECT_NEAR(report.calls()[1].args.at(0).toDouble(), y, 0.01);
        EXPECT_EQ(spelled(report.calls()[2]), "Write(\"" + text + "\")");
    }
};

} // namespace

TEST_F(NineKiDrawingTest, DrawDirection_everyNameHasItsWedgeBetweenItsBearings) {
    for (const WedgeAngles& wedge : wedges) {
        report.clear();
        NineKiDrawing::DrawDirection(report.vp, 6000, 5000, 4750, QString::fromLatin1(wedge.name), 0x123456);
        ASSERT_EQ(report.calls().size(), 2U) << wedge.name;
        EXPECT_EQ(spelled(report.calls()[0]), "BrushColor(" + std::to_string(0x123456) + ")");
        const SurfaceCall& circle = report.calls()[1];
        EXPECT_EQ(circle.op, QStringLiteral("DrawCircle"));
        EXPECT_EQ(circle.args.mid(0, 3), (QVariantList{6000.0, 5000.0, 4750.0}));
        const double from = circle.args.at(3).toDouble() * degreesPerRadian;
        const double to = circle.args.at(4).toDouble() * degreesPerRadian;
        EXPECT_NEAR(std::remainder(from - (wedge.middle - wedge.width / 2), 360), 0, 1e-4) << wedge.name;
        EXPECT_NEAR(std::remainder(to - (wedge.middle + wedge.width / 2), 360), 0, 1e-4) << wedge.name;
    }
}

TEST_F(NineKiDrawingTest, DrawDirection_SouthRunsFrom75To105ByWayOfNumbersThatWrapRound) {
    NineKiDrawing::DrawDirection(report.vp, 0, 0, 100, QStringLiteral("South"), 0);
    const QVariantList args = report.calls().at(1).args;
    EXPECT_EQ(args.at(3).toDouble(), static_cast<double>(Global::CompassToRadians(15)));
    EXPECT_EQ(args.at(4).toDouble(), static_cast<double>(Global::CompassToRadians(345)));
    EXPECT_NEAR(args.at(3).toDouble() * degreesPerRadian, 75, 1e-4);
    EXPECT_NEAR(args.at(4).toDouble() * degreesPerRadian, -255, 1e-4);
    for (const WedgeAngles& other : wedges) {
        if (std::string(other.name) == "South") {
            continue;
        }
        report.clear();
        NineKiDrawing::DrawDirection(report.vp, 0, 0, 100, QString::fromLatin1(other.name), 0);
        EXPECT_LT(report.calls().at(1).args.at(3).toDouble(), report.calls().at(1).args.at(4).toDouble());
    }
}

TEST_F(NineKiDrawingTest, DrawDirection_withoutAColour_aCornerAndItsHalvesShareTheLightOne) {
    const std::array<std::pair<qint32, std::array<const char*, 3>>, 4> corners{{
        {2, {"South-West", "South/South-West", "West/South-West"}},
        {4, {"South-East", "South/South-East", "East/South-East"}},
        {6, {"North-West", "North/North-West", "West/North-West"}},
        {8, {"North-East", "North/North-East", "East/North-East"}},
    }};
    for (const auto& [direction, names] : corners) {
        for (const char* name : names) {
            report.clear();
            NineKiDrawing::DrawDirection(report.vp, 0, 0, 100, QString::fromLatin1(name));
            EXPECT_EQ(spelled(report.calls().at(0)),
                      "BrushColor(" + std::to_string(Global::GetDirectionColor(direction, 3)) + ")")
                << name;
        }
    }
    for (const auto& [name, direction] : {std::pair("North", 1), {"East", 3}, {"West", 7}, {"South", 9}}) {
        report.clear();
        NineKiDrawing::DrawDirection(report.vp, 0, 0, 100, QString::fromLatin1(name));
        EXPECT_EQ(spelled(report.calls().at(0)),
                  "BrushColor(" + std::to_string(Global::GetDirectionColor(direction, 3)) + ")")
            << name;
    }
}

TEST_F(NineKiDrawingTest, DrawDirection_unknownNameDrawsNothing) {
    NineKiDrawing::DrawDirection(report.vp, 0, 0, 100, QStringLiteral("Center"), 7);
    NineKiDrawing::DrawDirection(report.vp, 0, 0, 100, QString());
    EXPECT_EQ(report.spelledCalls(), (Texts{"BrushColor(7)", "BrushColor(0)"}));
}

TEST_F(NineKiDrawingTest, DrawNumber_everySectorHasItsPlaceAtEveryRadius) {
    // At a radius of 1000 about (0, 0).
    const std::array<Place, 9> places{{
        {"South", "", -50, -900},
        {"South-West", "", 600, -600},
        {"South-East", "", -670, -620},
        {"North", "", -50, 800},
        {"North-East", "", -650, 550},
        {"East", "", -900, -50},
        {"West", "", 870, -50},
        {"North-West", "", 600, 500},
        {"Center", "", -25, -25},
    }};
    for (const Place& place : places) {
        for (const qint32 thousands : {1, 2, 3, 5}) {
            report.clear();
            NineKiDrawing::DrawNumber(report.vp, 6000, 5000, thousands * 1000,
                                      QString::fromLatin1(place.name), 8);
            const auto scaled = [&](double offset) {
                return offset == -50 ? offset : offset * thousands; // half a digit does not grow
            };
            expectWrittenAt(6000 + scaled(place.x), 5000 + scaled(place.y), "8");
        }
    }
}

TEST_F(NineKiDrawingTest, DrawNumber_unknownNameIsWrittenWhereTheSurfaceStands) {
    NineKiDrawing::DrawNumber(report.vp, 6000, 5000, 1000, QStringLiteral("Middle"), 10);
    EXPECT_EQ(report.spelledCalls(), (Texts{R"(Write("10"))"}));
}

TEST_F(NineKiDrawingTest, DrawLetters_everyDirectionHasItsLettersAndPlace) {
    const std::array<Place, 8> places{{
        {"South", "S", -50, -1150},
        {"South-West", "SW", 800, -800},
        {"South-East", "SE", -850, -850},
        {"North", "N", -50, 1050},
        {"North-East", "NE", -850, 800},
        {"East", "E", -1100, -50},
        {"West", "W", 1050, -50},
        {"North-West", "NW", 800, 800},
    }};
    for (const Place& place : places) {
        drawn(NineKiDrawing::DrawLetters, place.name, 3500, 4000, 2000);
        const auto scaled = [](double offset) { return offset == -50 ? offset : offset * 2; };
        expectWrittenAt(3500 + scaled(place.x), 4000 + scaled(place.y), place.text);
    }
}

TEST_F(NineKiDrawingTest, DrawLetters_unknownNameWritesNothing) {
    EXPECT_TRUE(drawn(NineKiDrawing::DrawLetters, "Center", 0, 0, 1000).empty());
}

TEST_F(NineKiDrawingTest, DrawAnimal_everySignIsTurnedAtItsPlaceAndTheAngleGoesBackTo0) {
    const std::array<Place, 12> places{{
        {"Rabbit", "", -800, -30, 0},
        {"Dragon", "", -650, -420, 3300},
        {"Snake", "", -300, -650, 3000},
        {"Horse", "", -50, -500, 900},
        {"Sheep", "", 150, -350, 600},
        {"Monkey", "", 350, -250, 350},
        {"Rooster", "", 500, -30, 0},
        {"Dog", "", 500, 200, 3300},
        {"Boar", "", 300, 380, 3000},
        {"Rat", "", 50, 600, 2700},
        {"Ox", "", -400, 650, 600},
        {"Tiger", "", -700, 350, 350},
    }};
    report.vp.TextAngle(450);
    for (const Place& place : places) {
        drawn(NineKiDrawing::DrawAnimal, place.name, 6000, 5000, 3000);
        ASSERT_EQ(report.calls().size(), 3U) << place.name;
        EXPECT_EQ(report.calls()[0], (SurfaceCall{QStringLiteral("TextAngle"), {place.angle}}));
        const SurfaceCall& box = report.calls()[1];
        EXPECT_EQ(box.op, QStringLiteral("TextBox"));
        EXPECT_EQ(box.args.at(0).toString(), QString::fromLatin1(place.name));
        EXPECT_NEAR(box.args.at(1).toDouble(), 6000 + 3 * place.x, 0.01) << place.name;
        EXPECT_NEAR(box.args.at(2).toDouble(), 5000 + 3 * place.y, 0.01) << place.name;
        EXPECT_EQ(box.args.mid(3), (QVariantList{5000.0, 0.0}));
        EXPECT_EQ(spelled(report.calls()[2]), "TextAngle(0)");
    }
}

TEST_F(NineKiDrawingTest, DrawAnimal_unknownNameOnlyPutsTheAngleTo0) {
    report.vp.TextAngle(450);
    EXPECT_EQ(drawn(NineKiDrawing::DrawAnimal, "Cat", 0, 0, 1000), (Texts{"TextAngle(0)"}));
    EXPECT_EQ(drawn(NineKiDrawing::DrawAnimal, "", 0, 0, 1000), (Texts{"TextAngle(0)"}));
}

TEST_F(NineKiDrawingTest, routinesBesidesDrawAnimal_leaveFontAndAngleAsTheyWere) {
    for (const WedgeAngles& wedge : wedges) {
        NineKiDrawing::DrawDirection(report.vp, 0, 0, 100, QString::fromLatin1(wedge.name), 1);
        NineKiDrawing::DrawNumber(report.vp, 0, 0, 100, QString::fromLatin1(wedge.name), 1);
        NineKiDrawing::DrawLetters(report.vp, 0, 0, 100, QString::fromLatin1(wedge.name));
    }
    for (const SurfaceCall& call : report.calls()) {
        EXPECT_FALSE(call.op.startsWith(QStringLiteral("Font"))) << spelled(call);
        EXPECT_NE(call.op, QStringLiteral("TextAngle"));
        EXPECT_NE(call.op, QStringLiteral("TextColor"));
    }
}

TEST_F(NineKiDrawingTest, failingSurface_isReportedUnderTheRoutinesLabel) {
    NullSurface target;
    RecordingSurface vp(target, [](const SurfaceCall&) { throw failure(ErrorNumber::DeviceError); });
    for (const char* label :
         {"cNineKi.Draw Direction", "cNineKi.Draw Number", "cNineKi.Draw Letters", "cNineKi.Draw Animal"}) {
        world.prompts.expectError(QString::fromLatin1(label), 57, QStringLiteral("Device I/O error"));
    }
    NineKiDrawing::DrawDirection(vp, 0, 0, 100, QStringLiteral("North"), 1);
    NineKiDrawing::DrawNumber(vp, 0, 0, 100, QStringLiteral("North"), 1);
    NineKiDrawing::DrawLetters(vp, 0, 0, 100, QStringLiteral("North"));
    NineKiDrawing::DrawAnimal(vp, 0, 0, 100, QStringLiteral("Rat"));
}
