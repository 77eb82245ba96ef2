#include "analysis/AnalysisWorld.h"
#include "analysis/modRooms.h"
#include "core/Failure.h"

#include <array>
#include <cmath>

namespace {

/// The colours of a made-up table: 100 + id is the normal one, 200 + id the light one.
QByteArray colorsFile() {
    QByteArray text =
        "<xml xmlns:s='a' xmlns:rs='b' xmlns:z='#RowsetSchema'><s:Schema id='RowsetSchema'/><rs:data>";
    for (int id = 1; id <= 9; ++id) {
        text += "<z:row COLORID='" + QByteArray::number(id) + "' COLORNAME='Colour' COLORVALUE='" +
                QByteArray::number(100 + id) + "' LIGHTCOLORVALUE='" + QByteArray::number(200 + id) +
                "' BRIGHTCOLORVALUE='" + QByteArray::number(300 + id) + "'/>";
    }
    return text + "</rs:data></xml>";
}

/// A wedge of the chart as it reaches the page.
struct Wedge {
    qint32 color = 0;
    double radius = 0;
    double from = 0;
    double to = 0;
};

/// Where a sector stands: degrees counter-clockwise from the right of the page.
struct Place {
    qint32 direction;
    double middle;
    double width;
};

// South at the top, West on the right.
constexpr std::array<Place, 8> places{{
    {1, -90, 30},
    {2, 45, 60},
    {3, 180, 30},
    {4, 135, 60},
    {6, -45, 60},
    {7, 0, 30},
    {8, -135, 60},
    {9, 90, 30},
}};

/// The angle within half a turn of 0.
double normalized(double degrees) {
    return std::remainder(degrees, 360);
}

class DrawVPChart : public testing::Test, protected AnalysisWorld {
protected:
    DrawVPChart() { world.write(QStringLiteral("Colors.xml"), colorsFile()); }

    [[nodiscard]] std::vector<Wedge> wedges() const {
        std::vector<Wedge> found;
        Wedge next;
        for (const SurfaceCall& call : report.calls()) {
            if (call.op == QStringLiteral("BrushColor")) {
                next.color = call.args.at(0).toInt();
            } else if (call.op == QStringLiteral("DrawCircle")) {
                EXPECT_EQ(call.args.at(0).toDouble(), 3500);
                EXPECT_EQ(call.args.at(1).toDouble(), 3600);
                constexpr double degreesPerRadian = 180 / 3.14159265359;
                next.radius = call.args.at(2).toDouble();
                next.from = call.args.at(3).toDouble() * degreesPerRadian;
                next.to = call.args.at(4).toDouble() * degreesPerRadian;
                found.push_back(next);
            }
        }
        return found;
    }
};

} // namespace

TEST_F(DrawVPChart, letters_comeFirstEachAtItsPlace) {
    modRooms::DrawVPChart(report.vp, 3500, 3600, 5);
    const std::vector<std::string> calls = report.spelledCalls();
    const std::vector<std::string> expected = {
        "CurrentY(1700)", "CurrentX(3450)", R"(Write("S"))",  "CurrentY(5350)", "CurrentX(3450)",
        R"(Write("N"))",  "CurrentY(3550)", "CurrentX(1600)", R"(Write("E"))",  "CurrentY(3550)",
        "CurrentX(5250)", R"(Write("W"))",  "BrushStyle(0)",
    };
    ASSERT_GE(calls.size(), expected.size());
    EXPECT_EQ(std::vector<std::string>(calls.begin(), calls.begin() + std::ssize(expected)), expected);
}

TEST_F(DrawVPChart, sectors_comeInTheOrderOfTheirIdsEachAfterItsColour) {
    modRooms::DrawVPChart(report.vp, 3500, 3600, 5);
    const std::vector<SurfaceCall>& calls = report.calls();
    ASSERT_EQ(calls.size(), 13U + 16U);
    for (std::size_t i = 0; i < places.size(); ++i) {
        EXPECT_EQ(spelled(calls[13 + 2 * i]),
                  "BrushColor(" + std::to_string(200 + places[i].direction) + ")");
        EXPECT_EQ(calls[14 + 2 * i].op, QStringLiteral("DrawCircle"));
    }
}

TEST_F(DrawVPChart, sectors_coverTheTurnWithSouthAtTheTop) {
    modRooms::DrawVPChart(report.vp, 3500, 3600, 5);
    const std::vector<Wedge> found = wedges();
    ASSERT_EQ(found.size(), places.size());
    for (std::size_t i = 0; i < places.size(); ++i) {
        const Place& place = places[i];
        EXPECT_NEAR(normalized(found[i].from - (place.middle - place.width / 2)), 0, 1e-4) << place.direction;
        EXPECT_NEAR(normalized(found[i].to - (place.middle + place.width / 2)), 0, 1e-4) << place.direction;
    }
}

TEST_F(DrawVPChart, angles_areTheBearingsAsTheyStandInTheTable) {
    // Not brought into one turn: 90 - 195 = -105 and 90 - 165 = -75 degrees for North, and so on.
    modRooms::DrawVPChart(report.vp, 3500, 3600, 5);
    const std::vector<Wedge> found = wedges();
    ASSERT_EQ(found.size(), 8U);
    const std::array<std::pair<double, double>, 8> expected{
        {{-105, -75}, {15, 75}, {-195, -165}, {-255, -195}, {-75, -15}, {-15, 15}, {-165, -105}, {75, -255}}};
    for (std::size_t i = 0; i < expected.size(); ++i) {
        EXPECT_NEAR(found[i].from, expected[i].first, 1e-4) << i;
        EXPECT_NEAR(found[i].to, expected[i].second, 1e-4) << i;
    }
}

TEST_F(DrawVPChart, Direction5_drawsEightSectorsAtRadius1440) {
    modRooms::DrawVPChart(report.vp, 3500, 3600, 5);
    const std::vector<Wedge> found = wedges();
    ASSERT_EQ(found.size(), 8U);
    for (const Wedge& wedge : found) {
        EXPECT_EQ(wedge.radius, 1440);
        EXPECT_GT(wedge.color, 200);
    }
}

TEST_F(DrawVPChart, eachDirection_standsOutByRadiusAndShade) {
    for (const Place& own : places) {
        report.clear();
        modRooms::DrawVPChart(report.vp, 3500, 3600, own.direction);
        const std::vector<Wedge> found = wedges();
        ASSERT_EQ(found.size(), places.size());
        for (std::size_t i = 0; i < places.size(); ++i) {
            const bool isOwn = places[i].direction == own.direction;
            EXPECT_EQ(found[i].radius, isOwn ? 1600 : 1440) << own.direction << ' ' << i;
            EXPECT_EQ(found[i].color, (isOwn ? 100 : 200) + places[i].direction) << own.direction << ' ' << i;
        }
    }
}

TEST_F(DrawVPChart, missingColours_areReportedAndDrawnBlack) {
    world.remove(QStringLiteral("Colors.xml"));
    for (int sector = 0; sector < 8; ++sector) {
        world.prompts.expectError(QStringLiteral("cXMLHandler.Find"), 91,
                                  QStringLiteral("Object variable or With block variable not set"));
    }
    modRooms::DrawVPChart(report.vp, 3500, 3600, 1);
    const std::vector<Wedge> found = wedges();
    ASSERT_EQ(found.size(), 8U);
    for (const Wedge& wedge : found) {
        EXPECT_EQ(wedge.color, 0);
    }
}

TEST_F(DrawVPChart, failingSurface_isReportedUnderItsLabel) {
    NullSurface target;
    RecordingSurface vp(target, [](const SurfaceCall& call) {
        if (call.op == QStringLiteral("DrawCircle")) {
            throw failure(ErrorNumber::DeviceError);
        }
    });
    world.prompts.expectError(QStringLiteral("modRooms.Draw VP Chart"), 57,
                              QStringLiteral("Device I/O error"));
    modRooms::DrawVPChart(vp, 3500, 3600, 1);
}
