#include "catalogues/cElement.h"
#include "locations/cLocation.h"
#include "locations/cRoom.h"
#include "nineki/NineKiReports.h"
#include "profiles/cProfile.h"
#include "reports/surface/ReportRoutines.h"
#include "support/RecordedReport.h"
#include "support/TestWorld.h"
#include "tools/TranscriptRun.h"

#include <QJsonObject>
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace {

class Transcript : public testing::Test {
protected:
    TestWorld world{TestWorld::Records::Sample};

    [[nodiscard]] Outcome run(const QStringList& reportAndArguments) const {
        return runWith(QStringList{world.folder()} + reportAndArguments);
    }

    /// The arguments of every call of one operation.
    [[nodiscard]] static QList<QJsonArray> callsOf(const Outcome& run, const QString& op) {
        QList<QJsonArray> found;
        for (const std::string& line : run.lines()) {
            const QJsonObject call = QJsonDocument::fromJson(QByteArray::fromStdString(line)).object();
            if (call.value(QStringLiteral("op")).toString() == op) {
                found.append(call.value(QStringLiteral("args")).toArray());
            }
        }
        return found;
    }

    /// The lines that the same builder gives in this process.
    template<class Builder>
    [[nodiscard]] static Lines linesOf(Builder&& build) {
        RecordedReport report;
        Global::CurrentProfile = std::make_unique<cProfile>();
        Global::CurrentLocation = std::make_unique<cLocation>();
        EXPECT_TRUE(Global::CurrentProfile->GetProfile(1));
        Global::CurrentLocation->LoadLocations();
        Global::CurrentLocation->LoadRooms();
        EXPECT_TRUE(Global::CurrentLocation->GetLocation(1));
        build(report.vp);
        Global::CurrentLocation.reset();
        Global::CurrentProfile.reset();
        Lines lines;
        for (const SurfaceCall& call : report.calls()) {
            lines.push_back(jsonLine(call).toStdString());
        }
        return lines;
    }
};

} // namespace

TEST_F(Transcript, rooms_everyLineIsAnObjectOfOpAndArgs) {
    const Outcome transcript = run({QStringLiteral("rooms"), QStringLiteral("1"), QStringLiteral("1")});
    EXPECT_EQ(transcript.exitCode, 0) << transcript.complaint.constData();
    ASSERT_GT(transcript.lines().size(), 1000U);
    for (const std::string& line : transcript.lines()) {
        QJsonParseError error;
        const QJsonObject call = QJsonDocument::fromJson(QByteArray::fromStdString(line), &error).object();
        ASSERT_EQ(error.error, QJsonParseError::NoError) << line;
        EXPECT_EQ(call.keys(), (QStringList{QStringLiteral("args"), QStringLiteral("op")}));
        EXPECT_TRUE(line.starts_with("{\"op\":\"")) << line;
        EXPECT_TRUE(call.value(QStringLiteral("args")).isArray());
    }
}

TEST_F(Transcript, rooms_areTheCallsOfTheBuilder) {
    const Outcome transcript = run({QStringLiteral("rooms"), QStringLiteral("1"), QStringLiteral("1")});
    EXPECT_EQ(transcript.lines(),
              linesOf([](ReportSurface& vp) { Global::CurrentLocation->AnalyzeRooms(vp); }));
    EXPECT_EQ(transcript.lines().back(), R"({"op":"EndDoc","args":[]})");
    EXPECT_TRUE(callsOf(transcript, QStringLiteral("MessageBox")).isEmpty());
}

TEST_F(Transcript, rooms_ofAFloor_areThatFloorsAlone) {
    const Outcome transcript =
        run({QStringLiteral("rooms"), QStringLiteral("1"), QStringLiteral("1"), QStringLiteral("2")});
    EXPECT_EQ(transcript.exitCode, 0);
    EXPECT_EQ(transcript.lines(),
              linesOf([](ReportSurface& vp) { Global::CurrentLocation->AnalyzeRooms(vp, 2); }));
}

TEST_F(Transcript, rooms_ofAFloorWithoutRooms_areNothing) {
    const Outcome transcript =
        run({QStringLiteral("rooms"), QStringLiteral("1"), QStringLiteral("1"), QStringLiteral("99")});
    EXPECT_EQ(transcript.exitCode, 0);
    EXPECT_TRUE(transcript.output.isEmpty());
}

TEST_F(Transcript, room_isTheCallsOfTheBuilder) {
    const Outcome transcript = run({QStringLiteral("room"), QStringLiteral("1"), QStringLiteral("8")});
    EXPECT_EQ(transcript.exitCode, 0) << transcript.complaint.constData();
    EXPECT_EQ(transcript.lines(), linesOf([](ReportSurface& vp) {
                  cRoom room;
                  room.LoadRooms();
                  EXPECT_TRUE(room.GetRoom(8));
                  room.AnalyzeRoom(vp);
              }));
    EXPECT_EQ(callsOf(transcript, QStringLiteral("BackColor")).size(), 1);
}

TEST_F(Transcript, profileAndElement_areTheCallsOfTheirWindows) {
    for (const bool forPaper : {false, true}) {
        const QString medium = forPaper ? QStringLiteral("paper") : QStringLiteral("screen");
        const auto asInAWindow = [&](const auto& record) {
            return [&record, forPaper](ReportSurface& vp) {
                modRooms::InitReport(vp);
                vp.ZoomMode(0);
                vp.Zoom(78);
                vp.StartDoc();
                // The program's page is A4, the recording one has letter height.
                record.GenerateReport(vp, forPaper);
                vp.EndDoc();
            };
        };
        const auto withoutBand = [](Lines lines) {
            std::erase_if(lines, [](const std::string& line) {
                return line.find("DrawRectangle") != std::string::npos;
            });
            return lines;
        };
        cProfile person;
        ASSERT_TRUE(person.GetProfile(1));
        const Outcome profile = run({QStringLiteral("profile"), QStringLiteral("1"), medium});
        EXPECT_EQ(profile.exitCode, 0) << profile.complaint.constData();
        EXPECT_EQ(withoutBand(profile.lines()), withoutBand(linesOf(asInAWindow(person))));
        EXPECT_EQ(callsOf(profile, QStringLiteral("DrawRectangle")).size(), forPaper ? 0 : 1);
        cElement element;
        ASSERT_TRUE(element.GetElement(3));
        const Outcome transcript = run({QStringLiteral("element"), QStringLiteral("3"), medium});
        EXPECT_EQ(transcript.exitCode, 0) << transcript.complaint.constData();
        EXPECT_EQ(withoutBand(transcript.lines()), withoutBand(linesOf(asInAWindow(element))));
        EXPECT_EQ(callsOf(transcript, QStringLiteral("DrawRectangle")).size(), forPaper ? 0 : 1);
    }
}

TEST_F(Transcript, compasses_areTheCallsOfTheirPanes) {
    const auto inAPane = [](const auto& record) {
        return [&record](ReportSurface& vp) {
            modRooms::prepareCompassPane(vp);
            vp.StartDoc();
            record.DrawCompass(vp, 6000, 6000);
            vp.EndDoc();
        };
    };
    cProfile person;
    ASSERT_TRUE(person.GetProfile(2));
    const Outcome profile = run({QStringLiteral("compass-profile"), QStringLiteral("2")});
    EXPECT_EQ(profile.exitCode, 0) << profile.complaint.constData();
    EXPECT_EQ(profile.lines(), linesOf(inAPane(person)));
    cElement element;
    ASSERT_TRUE(element.GetElement(5));
    const Outcome transcript = run({QStringLiteral("compass-element"), QStringLiteral("5")});
    EXPECT_EQ(transcript.exitCode, 0) << transcript.complaint.constData();
    EXPECT_EQ(transcript.lines(), linesOf(inAPane(element)));
}

TEST_F(Transcript, boxes_standInTheirPlaceWithTheClassicIconNumber) {
    world.remove(QStringLiteral("Colors.xml"));
    const Outcome transcript = run({QStringLiteral("room"), QStringLiteral("1"), QStringLiteral("8")});
    EXPECT_EQ(transcript.exitCode, 0);
    const QList<QJsonArray> boxes = callsOf(transcript, QStringLiteral("MessageBox"));
    ASSERT_GE(boxes.size(), 9);
    const QJsonArray report = {
        QStringLiteral("cXMLHandler.Find"),
        QStringLiteral("cXMLHandler.Find\r\n91-Object variable or With block variable not set"), 16};
    EXPECT_EQ(boxes.last(), report);
    const Lines lines = transcript.lines();
    const auto box = std::ranges::find(lines, R"({"op":"BackColor","args":[0]})");
    ASSERT_NE(box, lines.end());
    EXPECT_TRUE((box - 1)->starts_with(R"({"op":"MessageBox")")) << *(box - 1);
}

TEST_F(Transcript, unknownRecords_areToldAndEndInOne) {
    const QList<QStringList> unknown = {
        {QStringLiteral("rooms"), QStringLiteral("99"), QStringLiteral("1")},
        {QStringLiteral("rooms"), QStringLiteral("1"), QStringLiteral("99")},
        {QStringLiteral("room"), QStringLiteral("99"), QStringLiteral("1")},
        {QStringLiteral("room"), QStringLiteral("1"), QStringLiteral("99")},
        {QStringLiteral("profile"), QStringLiteral("99"), QStringLiteral("paper")},
        {QStringLiteral("compass-element"), QStringLiteral("6")},
    };
    const QList<QByteArray> complaints = {"There is no profile 99.\n", "There is no location 99.\n",
                                          "There is no profile 99.\n", "There is no room 99.\n",
                                          "There is no profile 99.\n", "There is no element 6.\n"};
    for (qsizetype i = 0; i < unknown.size(); ++i) {
        const Outcome refused = run(unknown.at(i));
        EXPECT_EQ(refused.exitCode, 1) << qPrintable(unknown.at(i).join(u' '));
        EXPECT_TRUE(refused.complaint.endsWith(complaints.at(i))) << refused.complaint.constData();
        EXPECT_TRUE(refused.output.isEmpty());
    }
}

TEST_F(Transcript, badArguments_areToldWithTheUsageAndEndInTwo) {
    const QList<QStringList> bad = {
        {QStringLiteral("rooms")},
        {QStringLiteral("rooms"), QStringLiteral("1")},
        {QStringLiteral("rooms"), QStringLiteral("one"), QStringLiteral("1")},
        {QStringLiteral("rooms"), QStringLiteral("1"), QStringLiteral("1"), QStringLiteral("up")},
        {QStringLiteral("room"), QStringLiteral("1"), QStringLiteral("1"), QStringLiteral("1")},
        {QStringLiteral("profile"), QStringLiteral("1"), QStringLiteral("Paper")},
        {QStringLiteral("element"), QStringLiteral("1")},
        {QStringLiteral("compass-profile"), QStringLiteral("1"), QStringLiteral("screen")},
        {QStringLiteral("unknown"), QStringLiteral("1")},
        {},
    };
    for (const QStringList& arguments : bad) {
        const Outcome refused = run(arguments);
        EXPECT_EQ(refused.exitCode, 2) << qPrintable(arguments.join(u' '));
        EXPECT_TRUE(refused.complaint.contains("usage: talivane_transcript DATA_DIR REPORT"))
            << refused.complaint.constData();
        EXPECT_TRUE(refused.complaint.contains("rooms PROFILEID LOCATIONID [FLOORID]"));
        EXPECT_TRUE(refused.complaint.contains("room PROFILEID ROOMID"));
        EXPECT_TRUE(refused.output.isEmpty());
    }
}

TEST_F(Transcript, unknownFolder_isToldAndEndsInTwo) {
    const Outcome refused = runWith({world.file(QStringLiteral("nowhere")), QStringLiteral("room"),
                                     QStringLiteral("1"), QStringLiteral("1")});
    EXPECT_EQ(refused.exitCode, 2);
    EXPECT_TRUE(refused.complaint.contains("There is no folder")) << refused.complaint.constData();
}

TEST_F(Transcript, run_leavesTheRecordsAsTheyStood) {
    const QByteArray before = world.read(QStringLiteral("Rooms.xml"));
    EXPECT_EQ(run({QStringLiteral("rooms"), QStringLiteral("2"), QStringLiteral("1")}).exitCode, 0);
    EXPECT_EQ(world.read(QStringLiteral("Rooms.xml")), before);
}

TEST_F(Transcript, nineKiReports_areTheCallsOnTheTextOrOnThePane) {
    const QString date = QStringLiteral("2024-01-15");
    const QString renovation = NineKiReports::RENOVATION.toString();
    using Build = std::function<void(ReportSurface & pane, ReportSurface & text)>;
    const QList<std::pair<QString, Build>> reports = {
        {QStringLiteral("chart"),
         [&](auto& pane, auto& text) { NineKiReports::GetNineKiChart(pane, text, date); }},
        {QStringLiteral("move"),
         [&](auto& pane, auto& text) {
             NineKiReports::GetMoveDirections(pane, text, date, NineKiReports::MOVE.toString());
         }},
        {QStringLiteral("renovation"),
         [&](auto& pane, auto& text) { NineKiReports::GetMoveDirections(pane, text, date, renovation); }},
    };
    for (const auto& [name, build] : reports) {
        NullSurface unseen;
        EXPECT_EQ(run({name, QStringLiteral("1"), date}).lines(),
                  linesOf([&, &write = build](ReportSurface& vp) { write(unseen, vp); }))
            << name.toStdString();
        EXPECT_EQ(run({name, QStringLiteral("1"), date, QStringLiteral("--compass")}).lines(),
                  linesOf([&, &write = build](ReportSurface& vp) { write(vp, unseen); }))
            << name.toStdString();
    }
}

TEST_F(Transcript, years_countFromTheDayThatIsGiven) {
    world.clock.setToday(QDate(2024, 2, 29));
    const QStringList arguments = {QStringLiteral("years"), QStringLiteral("1"),
                                   QStringLiteral("North/North-East"), QStringLiteral("renovation"),
                                   QStringLiteral("2024-02-29")};
    EXPECT_EQ(callsOf(run(arguments), QStringLiteral("Header")).last().first().toString(),
              QStringLiteral("Years to renovate/redecorate in the area North/North-East"));
    const auto build = [](ReportSurface& pane, ReportSurface& text) {
        NineKiReports::GetMoveYears(pane, text, QStringLiteral("North/North-East"),
                                    NineKiReports::RENOVATION.toString());
    };
    NullSurface unseen;
    EXPECT_EQ(run(arguments + QStringList{QStringLiteral("--compass")}).lines(),
              linesOf([&](ReportSurface& vp) { build(vp, unseen); }));
}

TEST_F(Transcript, nineKiReports_badDatesAreTheReportsAffairAndBadWordsTheUsages) {
    const QList<QJsonArray> boxes =
        callsOf(run({QStringLiteral("chart"), QStringLiteral("1"), QStringLiteral("soon")}),
                QStringLiteral("MessageBox"));
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(boxes.first().first().toString(), QStringLiteral("Advise on Nine Ki Chart"));
    const QStringList years = {QStringLiteral("years"), QStringLiteral("1")};
    const QList<QStringList> bad = {
        {QStringLiteral("chart"), QStringLiteral("1"), QStringLiteral("2024-01-15"), QStringLiteral("pane")},
        {QStringLiteral("move"), QStringLiteral("1"), QStringLiteral("--compass")},
        years + QStringList{QStringLiteral("Up"), QStringLiteral("move"), QStringLiteral("2024-01-15")},
        years + QStringList{QStringLiteral("North"), QStringLiteral("rest"), QStringLiteral("2024-01-15")},
        years + QStringList{QStringLiteral("North"), QStringLiteral("move"), QStringLiteral("today")},
    };
    for (const QStringList& arguments : bad) {
        EXPECT_EQ(run(arguments).exitCode, 2) << arguments.join(u' ').toStdString();
    }
}
