#include "compass/CompassGeometry.h"
#include "support/RecordFiles.h"
#include "support/TestWorld.h"
#include "tools/TranscriptRun.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

class PlanFigures : public testing::Test {
protected:
    TestWorld world_{TestWorld::Records::Sample};

    [[nodiscard]] Outcome run(const QStringList& words) const {
        return runWith(QStringList{world_.folder()} + words);
    }
    [[nodiscard]] Lines linesOf(const QStringList& words) const {
        const Outcome outcome = run(words);
        EXPECT_EQ(outcome.exitCode, 0) << outcome.complaint.constData();
        return outcome.lines();
    }
};

} // namespace

TEST_F(PlanFigures, sectors_areTheTableInItsOrder) {
    EXPECT_EQ(linesOf({QStringLiteral("sectors"), QStringLiteral("0")}),
              (Lines{R"({"DirectionID":1,"StartAngle":345,"EndAngle":15})",
                     R"({"DirectionID":6,"StartAngle":285,"EndAngle":345})",
                     R"({"DirectionID":7,"StartAngle":255,"EndAngle":285})",
                     R"({"DirectionID":2,"StartAngle":195,"EndAngle":255})",
                     R"({"DirectionID":9,"StartAngle":165,"EndAngle":195})",
                     R"({"DirectionID":4,"StartAngle":105,"EndAngle":165})",
                     R"({"DirectionID":3,"StartAngle":75,"EndAngle":105})",
                     R"({"DirectionID":8,"StartAngle":15,"EndAngle":75})"}));
    EXPECT_EQ(linesOf({QStringLiteral("sectors"), QStringLiteral("15")}).front(),
              R"({"DirectionID":1,"StartAngle":359.99,"EndAngle":30})");
    EXPECT_EQ(linesOf({QStringLiteral("sectors"), QStringLiteral("10.25")}).front(),
              R"({"DirectionID":1,"StartAngle":355.25,"EndAngle":25})");
}

TEST_F(PlanFigures, numbers_haveEveryDigitThatTheyNeed) {
    const Lines lines = linesOf({QStringLiteral("north"), QStringLiteral("1"), QStringLiteral("-3")});
    ASSERT_EQ(lines.size(), 1U);
    const QJsonObject figure = QJsonDocument::fromJson(QByteArray::fromStdString(lines[0])).object();
    EXPECT_EQ(figure.value(QStringLiteral("NORTHOFFSET")).toDouble(), CompassGeometry::pointedAngle(1, -3));
}

TEST_F(PlanFigures, angle_takesTheAxesFirst) {
    const auto angle = [&](const char* X, const char* Y) {
        return linesOf({QStringLiteral("angle"), QLatin1String(X), QLatin1String(Y)});
    };
    EXPECT_EQ(angle("0", "-5"), Lines{R"({"Angle":360})"});
    EXPECT_EQ(angle("5", "0"), Lines{R"({"Angle":90})"});
    EXPECT_EQ(angle("0", "0"), Lines{R"({"Angle":0})"});
}

TEST_F(PlanFigures, north_atTheCentresHeight_isTheReportOfTheWindow) {
    EXPECT_EQ(linesOf({QStringLiteral("north"), QStringLiteral("0"), QStringLiteral("-5")}),
              Lines{R"({"NORTHOFFSET":0})"});
    EXPECT_EQ(linesOf({QStringLiteral("north"), QStringLiteral("5"), QStringLiteral("0")}),
              Lines{R"({"op":"MessageBox","args":["frmSetDirection.picFloorPlan_MouseUp",)"
                    R"("frmSetDirection.picFloorPlan_MouseUp\r\n11-Division by zero",16]})"});
}

TEST_F(PlanFigures, place_tellsEveryRoomOfTheHomeAndSavesNothing) {
    const QByteArray before = world_.read(QStringLiteral("Rooms.xml"));
    const Lines lines = linesOf({QStringLiteral("place"), QStringLiteral("1")});
    EXPECT_EQ(static_cast<qsizetype>(lines.size()), before.count("LOCATIONID=\"1\""));
    EXPECT_EQ(lines.front(), R"({"ROOMID":1,"RELATIVEDIRECTION":4})");
    EXPECT_EQ(world_.read(QStringLiteral("Rooms.xml")), before);
}

TEST_F(PlanFigures, place_damagedRow_isReportedInItsPlace) {
    world_.write(QStringLiteral("Rooms.xml"),
                 recordFile({R"(<z:row ROOMID="1" LOCATIONID="1" FLOORID="1" TOP="0" LEFT="?" LENGTH="1" )"
                             R"(WIDTH="1" RELATIVEDIRECTION="5" />)"}));
    const Lines lines = linesOf({QStringLiteral("place"), QStringLiteral("1")});
    ASSERT_EQ(lines.size(), 4U);
    EXPECT_NE(lines[0].find("frmSetDirection.Set Pic ScaleMode"), std::string::npos);
    EXPECT_NE(lines[2].find("frmSetDirection.Draw Rooms"), std::string::npos);
    EXPECT_EQ(lines[3], R"({"ROOMID":1,"RELATIVEDIRECTION":5})");
}

TEST_F(PlanFigures, badArguments_areRefused) {
    EXPECT_EQ(run({QStringLiteral("sectors"), QStringLiteral("north")}).exitCode, 2);
    EXPECT_EQ(run({QStringLiteral("angle"), QStringLiteral("1")}).exitCode, 2);
    EXPECT_EQ(run({QStringLiteral("place"), QStringLiteral("99")}).exitCode, 1);
}
