#include "nineki/NineKiReports.h"

#include "nineki/NineKiWorld.h"
#include "reports/surface/ReportRoutines.h"

#include <algorithm>

namespace {

using Texts = std::vector<std::string>;

const QString moveMode = QStringLiteral("MOVE");
const QString renovationMode = QStringLiteral("RENOVATION");

class NineKiReportsTest : public testing::Test, protected NineKiWorld {
protected:
    NineKiReportsTest() { choosePerson(9); }

    RecordedReport pane;
    int focused = 0;
    const std::function<void()> focus = [this] { ++focused; };

    void chartReport(const char* date) {
        NineKiReports::GetNineKiChart(pane.vp, report.vp, QString::fromLatin1(date), focus);
    }

    void directions(const char* date, const QString& mode) {
        NineKiReports::GetMoveDirections(pane.vp, report.vp, QString::fromLatin1(date), mode, focus);
    }

    /// The next box must be this one, and the focus must be set by then.
    void expectRefusal(const char* boxTitle, const char* text) {
        world.prompts.expectMessage(QString::fromLatin1(boxTitle), QString::fromLatin1(text),
                                    MessageIcon::Information);
        focused = 0;
        world.prompts.whileShown = [this] { EXPECT_EQ(focused, 1); };
    }

    [[nodiscard]] std::string header() const { return report.arguments(QStringLiteral("Header")).back(); }
    [[nodiscard]] std::string footer() const { return report.arguments(QStringLiteral("Footer")).back(); }

    /// What is written on the page after the figure and its header.
    [[nodiscard]] Texts flow() const {
        const std::vector<SurfaceCall>& calls = report.calls();
        const auto header = std::find_if(calls.rbegin(), calls.rend(), [](const SurfaceCall& call) {
            return call.op == QStringLiteral("Header");
        });
        Texts written;
        for (auto call = header.base(); call != calls.end(); ++call) {
            if (QStringList{QStringLiteral("Write"), QStringLiteral("CurrentY"), QStringLiteral("IndentLeft")}
                    .contains(call->op)) {
                written.push_back(spelled(*call));
            }
        }
        return written;
    }

    static Texts preparedPane() {
        RecordedReport told;
        modRooms::prepareCompassPane(told.vp);
        told.vp.StartDoc();
        return told.spelledCalls();
    }

    static Texts preparedPage() {
        RecordedReport told;
        modRooms::InitReport(told.vp);
        told.vp.StartDoc();
        return told.spelledCalls();
    }

    static bool startsWith(const Texts& calls, const Texts& start) {
        return calls.size() >= start.size() && std::equal(start.begin(), start.end(), calls.begin());
    }

    [[nodiscard]] Texts figure(const RecordedReport& drawn, const Texts& preparation) const {
        const Texts calls = drawn.spelledCalls();
        return {calls.begin() + std::ssize(preparation), calls.end()};
    }
};

} // namespace

TEST_F(NineKiReportsTest, preparedPane_hasNoMarginsLargeBoldLettersAndAFixedZoom) {
    const Texts calls = preparedPane();
    for (const char* call : {"MarginLeft(0)", "MarginRight(0)", "MarginTop(0)", "MarginBottom(0)",
                             "MarginHeader(0)", "MarginFooter(0)"}) {
        EXPECT_NE(std::ranges::find(calls, call), calls.end()) << call;
    }
    const Texts end(calls.end() - 5, calls.end());
    EXPECT_EQ(end, (Texts{"FontSize(20)", "FontBold(true)", "ZoomMode(0)", "Zoom(38)", "StartDoc()"}));
}

TEST_F(NineKiReportsTest, GetNineKiChart_drawsTheLargeChartAndTheSmallOne) {
    chartReport("2024-07-01");
    ASSERT_TRUE(startsWith(pane.spelledCalls(), preparedPane()));
    ASSERT_TRUE(startsWith(report.spelledCalls(), preparedPage()));
    RecordedReport large;
    nineKi.CalcNineKiChart(large.vp, 6000, 6000, 5000, QDate(2024, 7, 1));
    large.vp.EndDoc();
    EXPECT_EQ(figure(pane, preparedPane()), large.spelledCalls());
    RecordedReport small;
    nineKi.CalcNineKiChart(small.vp, 6000, 5000, 3000, QDate(2024, 7, 1));
    EXPECT_TRUE(startsWith(figure(report, preparedPage()), small.spelledCalls()));
}

TEST_F(NineKiReportsTest, GetNineKiChart_highlightsStandBelowTheChartALineEach) {
    chartReport("2023-07-01");
    chart(QDate(2023, 7, 1));
    QString lines;
    for (const NineKiFinding& finding : nineKi.Problematic) {
        lines += finding.sector + u' ' + finding.text + QStringLiteral("\r\n");
    }
    RecordedReport told;
    told.vp.CurrentY(8500);
    told.vp.IndentLeft(0);
    told.vp.Write(QStringLiteral("Chart highlights for the year 2023\r\n"));
    told.vp.IndentLeft(0); // by the heading
    told.vp.Write(lines);
    EXPECT_GT(lines.size(), 500);
    NineKiReports::GetNineKiChart(pane.vp, report.vp, QStringLiteral("2023-07-01"));
    EXPECT_EQ(flow(), told.spelledCalls());
    EXPECT_EQ(report.spelledCalls().back(), "EndDoc()");
    EXPECT_EQ(pane.spelledCalls().back(), "EndDoc()");
}

TEST_F(NineKiReportsTest, GetNineKiChart_dateBeforeTheLunarYear_isNoted) {
    chartReport("2024-01-15");
    EXPECT_EQ(header(), "Nine Ki Chart for year 2023*");
    EXPECT_EQ(footer(), "* note: The date provided falls before the beginning of the year 2024 in the Feng "
                        "Shui calendar system.  Therefore it has been adjusted to the chart of the prior "
                        "year.");
    chartReport("2024-02-04");
    EXPECT_EQ(header(), "Nine Ki Chart for year 2024");
    EXPECT_EQ(footer(), "");
}

TEST_F(NineKiReportsTest, GetNineKiChart_noDate_asksAndChangesNothing) {
    for (const char* text : {"", "soon", "2024-13-01"}) {
        expectRefusal("Advise on Nine Ki Chart", "You must enter a valid date in the Chart Date field before "
                                                 "the Nine Ki Chart can be provided.");
        chartReport(text);
        EXPECT_EQ(focused, 1);
    }
    EXPECT_TRUE(pane.calls().empty());
    EXPECT_TRUE(report.calls().empty());
}

TEST_F(NineKiReportsTest, GetNineKiChart_noDirections_leavesHeaderAndTitleAlone) {
    world.write(QStringLiteral("Directions.xml"), recordFile({}));
    for (int surface = 0; surface < 2; ++surface) {
        world.prompts.expectMessage(
            QStringLiteral("Nine Ki Chart"),
            QStringLiteral("Error Reading Directions.  Could not calculate Nine Ki Chart."),
            MessageIcon::Exclamation);
    }
    chartReport("2024-07-01");
    EXPECT_EQ(report.arguments(QStringLiteral("Write")), Texts{"Year 2024"});
    EXPECT_EQ(header(), "Nine Ki Chart for year 2024");
    EXPECT_EQ(report.spelledCalls().back(), "EndDoc()");
    EXPECT_EQ(pane.spelledCalls().back(), "EndDoc()");
}

TEST_F(NineKiReportsTest, personWhoWasNeverCalculated_getsAReportWithItsHeaderAfterTheErrors) {
    Global::CurrentProfile = std::make_unique<cProfile>();
    for (int surface = 0; surface < 2; ++surface) {
        world.prompts.expectError(QStringLiteral("cNineKi.Calc Nine Ki Chart"), 9,
                                  QStringLiteral("Subscript out of range"));
    }
    chartReport("2024-07-01");
    EXPECT_EQ(header(), "Nine Ki Chart for year 2024");
    EXPECT_EQ(report.spelledCalls().back(), "EndDoc()");
    EXPECT_EQ(pane.spelledCalls().back(), "EndDoc()");
}

TEST_F(NineKiReportsTest, GetMoveDirections_drawsTheLargeCompassAndTheSmallOne) {
    for (const bool renovation : {false, true}) {
        pane.clear();
        report.clear();
        directions("2024-07-01", renovation ? renovationMode : moveMode);
        ASSERT_TRUE(startsWith(pane.spelledCalls(), preparedPane()));
        RecordedReport large;
        nineKi.CalcMoveCompass(large.vp, 6000, 6000, 5000, QDate(2024, 7, 1), true, renovation);
        large.vp.EndDoc();
        EXPECT_EQ(figure(pane, preparedPane()), large.spelledCalls());
        RecordedReport small;
        nineKi.CalcMoveCompass(small.vp, 3500, 4000, 2000, QDate(2024, 7, 1), true, renovation);
        EXPECT_TRUE(startsWith(figure(report, preparedPage()), small.spelledCalls()));
    }
}

TEST_F(NineKiReportsTest, GetMoveDirections_goodBesideTheCompassAndTheRestBelow) {
    for (const bool renovation : {false, true}) {
        report.clear();
        directions("2024-07-01", renovation ? renovationMode : moveMode);
        rate(2024, renovation);
        QString lines;
        for (const NineKiFinding& finding : nineKi.Problematic) {
            lines += finding.sector + u' ' + finding.text + QStringLiteral("\r\n");
        }
        RecordedReport told;
        told.vp.CurrentY(2000);
        told.vp.IndentLeft(5000);
        told.vp.Write(renovation ? QStringLiteral("Beneficial Areas for the year 2024")
                                 : QStringLiteral("Beneficial Directions for the year 2024"));
        told.vp.IndentLeft(0);
        told.vp.IndentLeft(5000);
        told.vp.Write(renovation
                          ? QStringLiteral("\tNorth\r\n\tSouth-East\r\n\tNorth/North-West\r\n\tSouth\r\n")
                          : QStringLiteral("\tNorth\r\n\tSouth-East\r\n"));
        told.vp.CurrentY(6500);
        told.vp.IndentLeft(0);
        told.vp.Write(renovation ? QStringLiteral("Problematic Areas for the year 2024\r\n")
                                 : QStringLiteral("Problematic Directions for the year 2024\r\n"));
        told.vp.IndentLeft(0);
        told.vp.Write(lines);
        EXPECT_EQ(flow(), told.spelledCalls());
    }
}

TEST_F(NineKiReportsTest, GetMoveDirections_splitSector_eachHalfInItsOwnList) {
    directions("2024-07-01", renovationMode);
    const Texts texts = report.arguments(QStringLiteral("Write"));
    EXPECT_TRUE(texts[texts.size() - 3].find("\tNorth/North-West\r\n") != std::string::npos);
    EXPECT_TRUE(texts.back().find("West/North-West is in the opposing sector") != std::string::npos);
    EXPECT_EQ(texts.back().find("North/North-West"), std::string::npos);
}

TEST_F(NineKiReportsTest, GetMoveDirections_nothingGood_leavesThePlaceBesideTheCompassEmpty) {
    // A year in which nothing is good for the person, whoever that is.
    qint32 year = 2000;
    for (; year < 2036; ++year) {
        const qint32 person = (year * 7) % 9 + 1;
        choosePerson(person);
        rate(year, false);
        if (nineKi.Beneficial.empty()) {
            break;
        }
    }
    for (qint32 person = 1; person <= 9 && !nineKi.Beneficial.empty(); ++person) {
        choosePerson(person);
        for (year = 2000; year < 2036; ++year) {
            rate(year, false);
            if (nineKi.Beneficial.empty()) {
                break;
            }
        }
    }
    ASSERT_TRUE(nineKi.Beneficial.empty());
    NineKiReports::GetMoveDirections(pane.vp, report.vp, QStringLiteral("%1-07-01").arg(year), moveMode);
    EXPECT_EQ(flow().front(), "CurrentY(6500)");
}

TEST_F(NineKiReportsTest, GetMoveDirections_dateBeforeTheLunarYear_isNotedInTheWordsOfTheMode) {
    constexpr const char* rest = " falls before the beginning of the year 2024 in the Feng Shui calendar "
                                 "system.  Therefore it has been adjusted to the chart of the prior year.";
    directions("2024-01-15", moveMode);
    EXPECT_EQ(header(), "Directions to move for year 2023*");
    EXPECT_EQ(footer(), std::string("* note: The estimated move date") + rest);
    directions("2024-01-15", renovationMode);
    EXPECT_EQ(header(), "Areas to renovate/redecorate for year 2023*");
    EXPECT_EQ(footer(), std::string("* note: The estimated renovation date") + rest);
    directions("2024-07-01", moveMode);
    EXPECT_EQ(header(), "Directions to move for year 2024");
    EXPECT_EQ(footer(), "");
}

TEST_F(NineKiReportsTest, GetMoveDirections_anyModeButMove_isRenovation) {
    for (const char* mode : {"RENOVATION", "CHART", "move", ""}) {
        directions("2024-07-01", QString::fromLatin1(mode));
        EXPECT_EQ(header(), "Areas to renovate/redecorate for year 2024") << mode;
    }
}

TEST_F(NineKiReportsTest, GetMoveDirections_noDate_asksInTheWordsOfTheModeAndChangesNothing) {
    expectRefusal("Advise on Move Directions", "You must enter a valid date in the Move Date field before "
                                               "advice on move directions can be provided.");
    directions("someday", moveMode);
    expectRefusal("Advise on Renovation Areas", "You must enter a valid date in the Renovation Date field "
                                                "before advice on renovation areas can be provided.");
    directions("", renovationMode);
    EXPECT_TRUE(pane.calls().empty());
    EXPECT_TRUE(report.calls().empty());
}

TEST_F(NineKiReportsTest, dates_areReadInTheUsersOwnForm) {
    world.setLocale(QLocale(QLocale::German, QLocale::Germany));
    chartReport("15.01.2024");
    EXPECT_EQ(header(), "Nine Ki Chart for year 2023*");
}

TEST_F(NineKiReportsTest, reportWithoutAFocusToSet_stillAsks) {
    world.prompts.expectMessage(
        QStringLiteral("Advise on Nine Ki Chart"),
        QStringLiteral("You must enter a valid date in the Chart Date field before the Nine Ki Chart can be "
                       "provided."),
        MessageIcon::Information);
    NineKiReports::GetNineKiChart(pane.vp, report.vp, QString());
}

TEST_F(NineKiReportsTest, failingSurface_isReportedUnderTheWindowsLabels) {
    NullSurface target;
    RecordingSurface broken(target, [](const SurfaceCall& call) {
        if (call.op == QStringLiteral("StartDoc")) {
            throw failure(ErrorNumber::DeviceError);
        }
    });
    for (const char* label :
         {"frmNineKi.GetNineKiChart", "frmNineKi.GetMoveDirections", "frmNineKi.GetMoveYears"}) {
        world.prompts.expectError(QString::fromLatin1(label), 57, QStringLiteral("Device I/O error"));
    }
    const QString date = QStringLiteral("2024-07-01");
    NineKiReports::GetNineKiChart(pane.vp, broken, date);
    NineKiReports::GetMoveDirections(pane.vp, broken, date, moveMode);
    NineKiReports::GetMoveYears(pane.vp, broken, QStringLiteral("North"), moveMode);
    EXPECT_EQ(world.prompts.pointer(), PointerShape::Default);
}
