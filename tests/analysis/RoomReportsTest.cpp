#include "analysis/AnalysisWorld.h"
#include "analysis/modRooms.h"
#include "catalogues/ElementRelations.h"
#include "core/Failure.h"

#include <algorithm>

namespace {

using Texts = std::vector<std::string>;

const QString notSet = QStringLiteral("Object variable or With block variable not set");
const QString mismatch = QStringLiteral("Type mismatch");

/// What the entry points do, told by the calls that frame a document and by each analysis' own words.
class RoomReports : public testing::Test, protected AnalysisWorld {
protected:
    RoomReports() { choosePerson(); }

    /// The current home's report on the rooms of a made-up file.
    void analyzeRooms(const QList<RoomRow>& rows, std::optional<qint32> floor = std::nullopt) {
        putRooms(rows);
        Global::CurrentLocation->LoadRooms();
        Global::CurrentLocation->AnalyzeRooms(report.vp, floor);
    }

    void analyzeRoom(const RoomRow& row) {
        putRooms({row});
        cRoom room;
        room.LoadRooms();
        ASSERT_TRUE(room.GetRoom(row.id.toInt()));
        room.AnalyzeRoom(report.vp);
    }

    [[nodiscard]] std::ptrdiff_t count(const char* op) const {
        return std::ranges::count(report.calls(), QString::fromLatin1(op), &SurfaceCall::op);
    }

    /// The calls that frame the document and its pages, in order.
    [[nodiscard]] Texts frame() const {
        Texts found;
        for (const SurfaceCall& call : report.calls()) {
            for (const char* op : {"StartDoc", "BackColor", "NewPage", "EndDoc"}) {
                if (call.op == QString::fromLatin1(op)) {
                    found.emplace_back(op);
                }
            }
            if (call.op == QStringLiteral("Header") && call.args.at(0) != QString()) {
                found.push_back(call.args.at(0).toString().toStdString());
            }
        }
        return found;
    }
};

/// The words beside the chart, which tell the analyses apart.
struct TypeAndWords {
    int type;
    const char* words;
};

class Dispatch : public testing::TestWithParam<TypeAndWords>, protected AnalysisWorld {
protected:
    [[nodiscard]] std::string besideChart() const {
        const Texts written = report.arguments(QStringLiteral("Write"));
        return written.size() > 4 ? written[4] : std::string();
    }
};

} // namespace

TEST_P(Dispatch, AnalyzeRoom_writesTheAnalysisOfTheType) {
    putRooms({{.id = "7", .type = QByteArray::number(GetParam().type)}});
    cRoom room;
    room.LoadRooms();
    ASSERT_TRUE(room.GetRoom(7));
    room.AnalyzeRoom(report.vp);
    EXPECT_TRUE(besideChart().starts_with(GetParam().words)) << besideChart();
}

TEST_P(Dispatch, AnalyzeRooms_writesTheAnalysisOfTheType) {
    putRooms({{.id = "7", .type = QByteArray::number(GetParam().type)}});
    Global::CurrentLocation->LoadRooms();
    Global::CurrentLocation->AnalyzeRooms(report.vp);
    EXPECT_TRUE(besideChart().starts_with(GetParam().words)) << besideChart();
}

INSTANTIATE_TEST_SUITE_P(RoomReports, Dispatch,
                         testing::Values(TypeAndWords{1, "The best locations for an adult bedroom"},
                                         TypeAndWords{2, "The best locations for an adult bedroom"},
                                         TypeAndWords{3, "The best locations for a bathroom"},
                                         TypeAndWords{4, "The best locations for a family/living room"},
                                         TypeAndWords{5, "The best locations for a dining room"},
                                         TypeAndWords{6, "The best locations for a kitchen"},
                                         TypeAndWords{7, "The best locations for a home office"},
                                         TypeAndWords{8, "The location of hallways"},
                                         TypeAndWords{9, "The location of hallways"},
                                         TypeAndWords{10, "The location of closets"},
                                         TypeAndWords{11, "The best locations for a bathroom"},
                                         TypeAndWords{12, "The best locations for a family/living room"},
                                         TypeAndWords{13, "Gym equipment"}),
                         [](const auto& tested) { return "type" + std::to_string(tested.param.type); });

TEST_F(RoomReports, AnalyzeRoom_everyCallOfASimpleRoomInOrder) {
    analyzeRoom({.type = "13", .direction = "5", .name = "Gym & more"});
    const Texts calls = report.spelledCalls();
    constexpr std::ptrdiff_t initReport = 36;
    constexpr std::ptrdiff_t resetReportFont = 18;
    constexpr std::ptrdiff_t chart = 29;
    // After the preparation, whose own order the page conventions' tests know.
    const Texts opening(calls.begin() + initReport, calls.begin() + initReport + 10);
    const Texts expectedOpening = {
        "StartDoc()",
        "BackColor(" + std::to_string(Global::GetDirectionColor(5, 3)) + ")",
        "HdrColor(0)",
        R"(HdrFontName("Ariel"))",
        "HdrFontBold(true)",
        "HdrFontItalic(false)",
        "HdrFontStrikethru(false)",
        "HdrFontUnderline(false)",
        "HdrFontSize(14)",
        R"(Header("Gym & more"))",
    };
    EXPECT_EQ(opening, expectedOpening);
    const auto chartStart = calls.begin() + initReport + std::ssize(expectedOpening);
    EXPECT_EQ(*chartStart, "CurrentY(1600)");
    EXPECT_TRUE((chartStart + chart - 1)->starts_with("DrawCircle(3500,3500,1440,"))
        << *(chartStart + chart - 1);
    const Texts beside(chartStart + chart, chartStart + chart + 7);
    const Texts expectedBeside = {
        "CurrentY(2500)",       R"(FontName("Arial"))", "IndentLeft(5000)", "FontBold(false)",
        "FontUnderline(false)", "FontSize(12)",         "TextColor(0)",
    };
    EXPECT_EQ(beside, expectedBeside);
    const auto summary = chartStart + chart + std::ssize(expectedBeside);
    EXPECT_TRUE(summary->starts_with(R"(Write("Gym equipment is often set up)"));
    const Texts rest(summary + 1 + resetReportFont, calls.end());
    const Texts expectedRest = {
        "CurrentY(5800)",
        R"(Write("Keep workout equipment orderly and clean.  Place dumbbells and weights in a rack if possible.  "))",
        "EndDoc()",
    };
    EXPECT_EQ(rest, expectedRest);
}

TEST_F(RoomReports, AnalyzeRoom_backsTheReportWithTheLightColourOfItsDirection) {
    analyzeRoom({.direction = "9"});
    EXPECT_EQ(frame(), (Texts{"StartDoc", "BackColor", "Room", "EndDoc"}));
    EXPECT_EQ(report.arguments(QStringLiteral("BackColor")),
              Texts{std::to_string(Global::GetDirectionColor(9, 3))});
}

TEST_F(RoomReports, AnalyzeRoom_type99_isADocumentWithOnlyTheHeader) {
    analyzeRoom({.type = "99", .name = "Attic"});
    EXPECT_EQ(frame(), (Texts{"StartDoc", "BackColor", "Attic", "EndDoc"}));
    EXPECT_EQ(count("Write"), 0);
    EXPECT_EQ(count("DrawCircle"), 0);
}

TEST_F(RoomReports, AnalyzeRoom_unsavedRoom_isAPageWithTheHeaderOnly) {
    putRooms({{.id = "1"}});
    cRoom room;
    room.RoomID = 2;
    room.ROOMTYPEID = 1;
    room.RelativeDirection = 4;
    room.DESCRIPTION = QStringLiteral("Unsaved");
    room.AnalyzeRoom(report.vp);
    EXPECT_EQ(frame(), (Texts{"StartDoc", "BackColor", "Unsaved", "EndDoc"}));
    EXPECT_EQ(count("Write"), 0);
}

TEST_F(RoomReports, AnalyzeRoom_bodyComesFromTheStoredRecordNotFromTheFields) {
    putRooms({{.id = "1", .type = "1", .direction = "2"}});
    cRoom room;
    room.LoadRooms();
    ASSERT_TRUE(room.GetRoom(1));
    room.RelativeDirection = 9;
    room.ROOMTYPEID = 6;
    room.AnalyzeRoom(report.vp);
    EXPECT_EQ(report.arguments(QStringLiteral("BackColor")),
              Texts{std::to_string(Global::GetDirectionColor(9, 3))});
    const Texts written = report.arguments(QStringLiteral("Write"));
    ASSERT_EQ(written.size(), 8U);
    EXPECT_TRUE(written[4].starts_with("The best locations for a kitchen"));
    EXPECT_TRUE(written[5].starts_with("The location of this room is to the South-West"));
}

TEST_F(RoomReports, AnalyzeRooms_threeRooms_areTwoNewPages) {
    analyzeRooms({{.id = "3", .name = "One"}, {.id = "1", .name = "Two"}, {.id = "2", .name = "Three"}});
    EXPECT_EQ(frame(), (Texts{"StartDoc", "One", "NewPage", "Two", "NewPage", "Three", "EndDoc"}));
}

TEST_F(RoomReports, AnalyzeRooms_doesNotBackTheReport) {
    analyzeRooms({{}});
    EXPECT_EQ(count("BackColor"), 0);
}

TEST_F(RoomReports, AnalyzeRooms_oneRoom_needsNoNewPage) {
    analyzeRooms({{.name = "Only"}});
    EXPECT_EQ(frame(), (Texts{"StartDoc", "Only", "EndDoc"}));
}

TEST_F(RoomReports, AnalyzeRooms_takesTheRoomsOfTheLocationAlone) {
    analyzeRooms({{.id = "1", .location = "2", .name = "Elsewhere"},
                  {.id = "2", .location = "1", .floor = "1", .name = "Down"},
                  {.id = "3", .location = "1", .floor = "2", .name = "Up"}});
    EXPECT_EQ(frame(), (Texts{"StartDoc", "Down", "NewPage", "Up", "EndDoc"}));
}

TEST_F(RoomReports, AnalyzeRooms_ofAFloor_takesItsRoomsAlone) {
    analyzeRooms({{.id = "1", .location = "2", .floor = "2", .name = "Elsewhere"},
                  {.id = "2", .location = "1", .floor = "1", .name = "Down"},
                  {.id = "3", .location = "1", .floor = "2", .name = "Up"}},
                 2);
    EXPECT_EQ(frame(), (Texts{"StartDoc", "Up", "EndDoc"}));
}

TEST_F(RoomReports, AnalyzeRooms_floorWithoutRooms_leavesThePreviewAsItWas) {
    analyzeRooms({{.floor = "1"}}, 2);
    EXPECT_TRUE(report.calls().empty());
}

TEST_F(RoomReports, AnalyzeRooms_locationWithoutRooms_leavesThePreviewAsItWas) {
    analyzeRooms({{.location = "2"}});
    EXPECT_TRUE(report.calls().empty());
}

TEST_F(RoomReports, AnalyzeRooms_unknownType_takesAPageWithItsHeader) {
    analyzeRooms({{.id = "1", .type = "99", .name = "Attic"}, {.id = "2", .type = "13", .name = "Gym"}});
    EXPECT_EQ(frame(), (Texts{"StartDoc", "Attic", "NewPage", "Gym", "EndDoc"}));
    EXPECT_EQ(report.arguments(QStringLiteral("Write")).size(), 6U);
}

TEST_F(RoomReports, AnalyzeRooms_comparesTypesAsTexts) {
    // The very spellings that a conversion would take for 1.
    for (const char* type : {"01", " 1", "1.0", "+1", "1 ", ""}) {
        report.clear();
        analyzeRooms({{.type = type}});
        EXPECT_EQ(frame(), (Texts{"StartDoc", "Room", "EndDoc"})) << type;
        EXPECT_EQ(count("Write"), 0) << type;
    }
}

TEST_F(RoomReports, AnalyzeRooms_unknownTypesNeedNoRoomId) {
    analyzeRooms({{.id = "none", .type = "99"}});
    EXPECT_EQ(frame(), (Texts{"StartDoc", "Room", "EndDoc"}));
}

TEST_F(RoomReports, AnalyzeRooms_roomIdThatIsNoNumber_isReportedAndLeavesTheDocumentOpen) {
    world.prompts.expectError(QStringLiteral("cLocation.Analyze Rooms"), 13, mismatch);
    analyzeRooms({{.id = "none"}, {.id = "2", .name = "Later"}});
    EXPECT_EQ(frame(), (Texts{"StartDoc", "Room"}));
}

TEST_F(RoomReports, AnalyzeRooms_roomDeletedFromTheFile_isAPageWithTheHeaderOnly) {
    putRooms({{.id = "1", .name = "Gone"}, {.id = "2", .type = "13", .name = "Gym"}});
    Global::CurrentLocation->LoadRooms();
    putRooms({{.id = "2", .type = "13", .name = "Gym"}});
    Global::CurrentLocation->AnalyzeRooms(report.vp);
    EXPECT_EQ(frame(), (Texts{"StartDoc", "Gone", "NewPage", "Gym", "EndDoc"}));
    EXPECT_EQ(report.arguments(QStringLiteral("Write")).size(), 6U);
}

TEST_F(RoomReports, AnalyzeRooms_beforeTheRoomsAreLoaded_isReported) {
    world.prompts.expectError(QStringLiteral("cLocation.Analyze Rooms"), 91, notSet);
    Global::CurrentLocation->AnalyzeRooms(report.vp);
    EXPECT_TRUE(report.calls().empty());
}

TEST_F(RoomReports, AnalyzeRooms_missingFile_isReportedAtItsFirstUses) {
    world.remove(QStringLiteral("Rooms.xml"));
    world.prompts.expectError(QStringLiteral("cXMLHandler.Move First"), 91, notSet);
    Global::CurrentLocation->LoadRooms();
    world.prompts.expectError(QStringLiteral("cXMLHandler.Query"), 91, notSet);
    Global::CurrentLocation->AnalyzeRooms(report.vp);
    EXPECT_TRUE(report.calls().empty());
}

TEST_F(RoomReports, analysis_missingOrDamagedFile_isReportedAndWritesNothing) {
    for (const bool damaged : {false, true}) {
        if (damaged) {
            world.write(QStringLiteral("Rooms.xml"), "<xml><s:Schema");
        } else {
            world.remove(QStringLiteral("Rooms.xml"));
        }
        world.prompts.expectError(QStringLiteral("cXMLHandler.Move First"), 91, notSet);
        world.prompts.expectError(QStringLiteral("cXMLHandler.Find"), 91, notSet);
        modRooms::AnalyzeBedroom(1, report.vp);
        EXPECT_TRUE(report.calls().empty());
    }
}

TEST_F(RoomReports, analysis_damagedRecord_isReportedAndWritesNothing) {
    putRooms({{.direction = "north"}});
    world.prompts.expectError(QStringLiteral("cRoom.Get Room"), 13, mismatch);
    modRooms::AnalyzeKitchen(1, report.vp);
    EXPECT_TRUE(report.calls().empty());
}

TEST_F(RoomReports, AnalyzeKitchen_failingEntrance_isReportedAndTheKitchenGoesOn) {
    putRooms({{.entrance = "True"}});
    Global::CurrentProfile.reset();
    world.prompts.expectError(QStringLiteral("modRooms.Analyze Entrance Way"), 91, notSet);
    modRooms::AnalyzeKitchen(1, report.vp);
    EXPECT_TRUE(
        report.arguments(QStringLiteral("Write")).back().starts_with("Ideally, the stove and the sink"));
}

// A routine whose surface fails reports it under its own label, and no other.

struct LabelledAnalysis {
    const char* label;
    void (*analyze)(qint32, ReportSurface&);
};

class AnalysisLabel : public testing::TestWithParam<LabelledAnalysis>, protected AnalysisWorld {};

TEST_P(AnalysisLabel, failure_isReportedOnceUnderTheLabel) {
    putRooms({{}});
    NullSurface target;
    int writes = 0;
    // The letters of the chart and the paragraph beside it go well, or the text of an entrance fails.
    const bool entrance = GetParam().analyze == modRooms::AnalyzeEntranceWay;
    RecordingSurface vp(target, [&](const SurfaceCall& call) {
        if (call.op == QStringLiteral("Write") && ++writes > (entrance ? 0 : 5)) {
            throw failure(ErrorNumber::DiskFull);
        }
    });
    world.prompts.expectError(QString::fromLatin1(GetParam().label), 61, QStringLiteral("Disk full"));
    GetParam().analyze(1, vp);
    EXPECT_EQ(writes, entrance ? 1 : 6);
}

TEST_P(AnalysisLabel, unknownRoom_writesNothing) {
    putRooms({{}});
    RecordedReport nothing;
    GetParam().analyze(2, nothing.vp);
    EXPECT_TRUE(nothing.calls().empty());
}

INSTANTIATE_TEST_SUITE_P(
    RoomReports, AnalysisLabel,
    testing::Values(LabelledAnalysis{"modRooms.Analyze Bedroom", modRooms::AnalyzeBedroom},
                    LabelledAnalysis{"modRooms.Analyze Family Room", modRooms::AnalyzeFamilyRoom},
                    LabelledAnalysis{"modRooms.Analyze Bathroom", modRooms::AnalyzeBathroom},
                    LabelledAnalysis{"modRooms.Analyze Dining Room", modRooms::AnalyzeDiningRoom},
                    LabelledAnalysis{"modRooms.Analyze Kitchen", modRooms::AnalyzeKitchen},
                    LabelledAnalysis{"modRooms.Analyze Home Office", modRooms::AnalyzeHomeOffice},
                    LabelledAnalysis{"modRooms.Analyze Hall Way", modRooms::AnalyzeHallWay},
                    LabelledAnalysis{"modRooms.Analyze Closet", modRooms::AnalyzeCloset},
                    LabelledAnalysis{"modRooms.Analyze Gym", modRooms::AnalyzeGym},
                    LabelledAnalysis{"modRooms.Analyze Entrance Way", modRooms::AnalyzeEntranceWay}));

TEST_F(RoomReports, AnalyzeRoom_failingSurface_isReportedUnderItsLabel) {
    NullSurface target;
    RecordingSurface vp(target, [](const SurfaceCall& call) {
        if (call.op == QStringLiteral("EndDoc")) {
            throw failure(ErrorNumber::PathFileAccess);
        }
    });
    putRooms({{.type = "99"}});
    world.prompts.expectError(QStringLiteral("cRoom.Analyze Room"), 75,
                              QStringLiteral("Path/File access error"));
    cRoom room;
    room.LoadRooms();
    ASSERT_TRUE(room.GetRoom(1));
    room.AnalyzeRoom(vp);
}
