#include "nineki/NineKiReports.h"
#include "nineki/NineKiWorld.h"
#include "reports/pages/PageSurface.h"
#include "reports/surface/ReportRoutines.h"

#include <algorithm>
#include <optional>

namespace {

using Texts = std::vector<std::string>;

const QString moveMode = QStringLiteral("MOVE");
const QString renovationMode = QStringLiteral("RENOVATION");

class MoveYears : public testing::Test, protected NineKiWorld {
protected:
    MoveYears() {
        choosePerson(9);
        world.clock.setToday(QDate(2024, 7, 1));
    }

    RecordedReport pane;

    void years(const QString& direction, const QString& mode) {
        pane.clear();
        report.clear();
        NineKiReports::GetMoveYears(pane.vp, report.vp, direction, mode);
    }

    [[nodiscard]] std::string header() const { return report.arguments(QStringLiteral("Header")).back(); }

    /// All that is written on the page but the letters and numbers of a compass.
    [[nodiscard]] Texts texts() const {
        Texts written;
        for (const std::string& text : report.arguments(QStringLiteral("Write"))) {
            if (text.size() > 2 && !text.starts_with("Year ")) {
                written.push_back(text);
            }
        }
        return written;
    }

    /// The years of the headings in their order, the good ones with a plus.
    [[nodiscard]] Texts headings() const {
        Texts found;
        for (const std::string& text : texts()) {
            const std::size_t at = text.find(" for the year ");
            if (at != std::string::npos && text.size() < 50) {
                found.push_back(text.substr(at + 14, 4) + (text.starts_with("Beneficial") ? "+" : "-"));
            }
        }
        return found;
    }

    [[nodiscard]] bool hasCompass() const { return !report.arguments(QStringLiteral("DrawCircle")).empty(); }

    /// The year that the large compass shows.
    [[nodiscard]] std::string paneYear() const { return pane.arguments(QStringLiteral("Write")).at(0); }

    /// What the engine finds for a group of names in the five years from `first` on.
    Texts expectedHeadings(const QStringList& group, bool renovation, QDate today) {
        struct Found {
            qint32 year;
            bool good;
            bool bad;
        };
        std::vector<Found> found;
        const auto has = [&](const NineKiTable& table) {
            return std::ranges::any_of(
                table, [&](const NineKiFinding& each) { return group.contains(each.sector); });
        };
        for (int ahead = 0; ahead < 5; ++ahead) {
            compass(today.addYears(ahead), false, renovation);
            found.push_back({nineKi.Year, has(nineKi.Beneficial), has(nineKi.Problematic)});
        }
        std::ranges::stable_partition(found, [first = true](const Found& each) mutable {
            const bool best = first && each.good;
            first = first && !each.good;
            return best;
        });
        Texts all;
        for (const Found& each : found) {
            if (each.good) {
                all.push_back(std::to_string(each.year) + '+');
            }
            if (each.bad) {
                all.push_back(std::to_string(each.year) + '-');
            }
        }
        return all;
    }
};

} // namespace

TEST_F(MoveYears, directionChoices_areTheSixteenInTheirOrder) {
    EXPECT_EQ(NineKiReports::directionChoices().join(u' '),
              QStringLiteral("North North/North-East North-East East/North-East East East/South-East "
                             "South-East South/South-East South South/South-West South-West "
                             "West/South-West West West/North-West North-West North/North-West"));
}

TEST_F(MoveYears, everyChoice_listsTheFiveYearsWithTheFirstGoodOneAhead) {
    for (const bool renovation : {false, true}) {
        for (const QString& direction : NineKiReports::directionChoices()) {
            QStringList group{direction};
            const QString corner = direction.section(u'/', -1);
            if (corner.contains(u'-')) {
                group = {corner, corner.section(u'-', 0, 0) + u'/' + corner,
                         corner.section(u'-', 1, 1) + u'/' + corner};
            }
            years(direction, renovation ? renovationMode : moveMode);
            EXPECT_EQ(headings(), expectedHeadings(group, renovation, QDate(2024, 7, 1)))
                << direction.toStdString();
            EXPECT_EQ(header(), (renovation ? "Years to renovate/redecorate in the area "
                                            : "Years to move in the direction ") +
                                    direction.toStdString());
        }
    }
}

TEST_F(MoveYears, cornerAndItsHalves_giveTheSameReportApartFromTheHeader) {
    const auto body = [&](const char* direction) {
        years(QString::fromLatin1(direction), renovationMode);
        Texts calls = report.spelledCalls();
        std::erase_if(calls, [](const std::string& call) { return call.starts_with("Header("); });
        const Texts panes = pane.spelledCalls();
        calls.insert(calls.end(), panes.begin(), panes.end());
        return calls;
    };
    for (const auto& names : {std::array{"North-East", "North/North-East", "East/North-East"},
                              {"South-East", "East/South-East", "South/South-East"},
                              {"South-West", "South/South-West", "West/South-West"},
                              {"North-West", "West/North-West", "North/North-West"}}) {
        const Texts whole = body(names[0]);
        EXPECT_EQ(body(names[1]), whole) << names[1];
        EXPECT_EQ(body(names[2]), whole) << names[2];
    }
}

TEST_F(MoveYears, everyCallOfThePage_whenALaterYearIsTheFirstGoodOne) {
    // For a renovation in the North-East 2026 is the first good year, and 2027 splits the sector.
    years(QStringLiteral("North/North-East"), renovationMode);
    RecordedReport told;
    ReportSurface& vp = told.vp;
    const auto textOf = [&](qint32 year, const char* sector) {
        rate(year, true);
        return QString::fromLatin1(sector) + u' ' +
               QString::fromStdString(about(nineKi.Problematic, QString::fromLatin1(sector)).at(0)) +
               QStringLiteral("\r\n");
    };
    modRooms::InitReport(vp);
    vp.StartDoc();
    modRooms::SetReportHeader(vp, QStringLiteral("Years to renovate/redecorate in the area North/North-East"),
                              0);
    nineKi.CalcMoveCompass(vp, 3500, 4000, 2000, QDate(2026, 7, 1), true, true);
    vp.CurrentY(2000);
    vp.IndentLeft(5000);
    modRooms::PrintSubHeading(vp, QStringLiteral("Beneficial Areas for the year 2026"), 0);
    vp.IndentLeft(5000);
    vp.Write(QStringLiteral("\tNorth-East\r\n"));
    vp.IndentLeft(5000); // for what is problematic, of which there is nothing in this direction
    vp.CurrentY(6500);
    vp.IndentLeft(0);
    modRooms::PrintSubHeading(vp, QStringLiteral("Problematic Areas for the year 2024\r\n"), 0);
    vp.Write(textOf(2024, "North-East"));
    modRooms::PrintSubHeading(vp, QStringLiteral("Problematic Areas for the year 2025\r\n"), 0);
    vp.Write(textOf(2025, "North-East"));
    modRooms::PrintSubHeading(vp, QStringLiteral("Beneficial Areas for the year 2027"), 0);
    vp.Write(QStringLiteral("\tEast/North-East\r\n"));
    modRooms::PrintSubHeading(vp, QStringLiteral("Problematic Areas for the year 2027\r\n"), 0);
    vp.Write(textOf(2027, "North/North-East"));
    modRooms::PrintSubHeading(vp, QStringLiteral("Problematic Areas for the year 2028\r\n"), 0);
    vp.Write(textOf(2028, "North-East"));
    vp.EndDoc();
    EXPECT_EQ(report.spelledCalls(), told.spelledCalls());

    RecordedReport large;
    modRooms::prepareCompassPane(large.vp);
    large.vp.StartDoc();
    nineKi.CalcMoveCompass(large.vp, 6000, 6000, 5000, QDate(2026, 7, 1), true, true);
    large.vp.EndDoc();
    EXPECT_EQ(pane.spelledCalls(), large.spelledCalls());
}

TEST_F(MoveYears, thisYearGood_isAheadAndTheFourOthersFollow) {
    years(QStringLiteral("South-East"), moveMode);
    EXPECT_EQ(headings().front(), "2024+");
    EXPECT_EQ(paneYear(), "Year 2024");
    EXPECT_EQ(report.arguments(QStringLiteral("Write")).front(), "Year 2024");
}

TEST_F(MoveYears, noYearGood_startsAtTheTopLeftAndShowsTodaysCompass) {
    // Some person and direction without a good year among five.
    std::optional<QString> hopeless;
    for (qint32 person = 1; person <= 9 && !hopeless; ++person) {
        choosePerson(person);
        for (const QString& direction : NineKiReports::directionChoices()) {
            years(direction, moveMode);
            if (!hasCompass()) {
                hopeless = direction;
                break;
            }
        }
    }
    ASSERT_TRUE(hopeless);
    for (const std::string& heading : headings()) {
        EXPECT_TRUE(heading.ends_with('-'));
    }
    const Texts calls = report.spelledCalls();
    const auto top = std::ranges::find(calls, "CurrentY(2000)");
    ASSERT_NE(top, calls.end());
    EXPECT_TRUE((top - 1)->starts_with("Header("));
    EXPECT_EQ(*(top + 1), "IndentLeft(0)");
    EXPECT_EQ(paneYear(), "Year 2024");
}

TEST_F(MoveYears, yearWithBothHalves_countsAsGoodAndListsBoth) {
    world.clock.setToday(QDate(2027, 7, 1));
    years(QStringLiteral("North-East"), renovationMode);
    const Texts all = headings();
    ASSERT_GE(all.size(), 2U);
    EXPECT_EQ(all[0], "2027+");
    EXPECT_EQ(all[1], "2027-");
    const Texts written = texts();
    EXPECT_EQ(written.at(1), "\tEast/North-East\r\n");
    EXPECT_TRUE(written.at(3).starts_with("North/North-East is in the opposing sector"));
    // Both stand beside the compass.
    const Texts indents = report.arguments(QStringLiteral("IndentLeft"));
    EXPECT_GE(std::ranges::count(indents, "5000"), 4);
}

TEST_F(MoveYears, longText_dropsTheIndentAndIsNotMovedUp) {
    // A surface on which the good part reaches past the compass.
    class LongSurface final : public ReportSurface {
    public:
        Texts calls;
        double y = 0;
        void StartDoc() override {}
        void EndDoc() override {}
        void NewPage() override {}
        [[nodiscard]] qint16 PageCount() const override { return 1; }
        [[nodiscard]] double PageHeight() const override { return 15840; }
        bool PrintDialog(qint32) override { return false; }
        void PrintDoc() override {}
        using ReportSurface::Write;
        void Write(const QString& text) override {
            calls.push_back("Write " + text.left(12).toStdString());
            y += text.size() > 2 ? 3000 : 0;
        }
        void TextBox(const QString&, double, double, double, double) override {}
        void DrawCircle(double, double, double) override {}
        void DrawCircle(double, double, double, double, double) override {}
        void DrawRectangle(double, double, double, double) override {}
        void setProperty(SurfaceProperty property, const QVariant& value) override {
            if (property == SurfaceProperty::CurrentY) {
                y = value.toDouble();
                calls.push_back("CurrentY " + std::to_string(value.toInt()));
            } else if (property == SurfaceProperty::IndentLeft) {
                calls.push_back("IndentLeft " + std::to_string(value.toInt()));
            }
        }
        [[nodiscard]] QVariant property(SurfaceProperty property) const override {
            return property == SurfaceProperty::CurrentY ? QVariant(y) : QVariant();
        }
        [[nodiscard]] QString FontFace() const override { return {}; }
    };
    world.clock.setToday(QDate(2027, 7, 1));
    LongSurface vp;
    NineKiReports::GetMoveYears(pane.vp, vp, QStringLiteral("North-East"), renovationMode);
    const auto good = std::ranges::find(vp.calls, "Write \tEast/North-");
    ASSERT_NE(good, vp.calls.end());
    const Texts after(good + 1, good + 6);
    EXPECT_EQ(after, (Texts{"IndentLeft 0", "Write Problematic ", "IndentLeft 0", "IndentLeft 0",
                            "Write North/North-"}));
    EXPECT_EQ(std::ranges::count(vp.calls, "CurrentY 6500"), 0);
}

TEST_F(MoveYears, todayOn29February_countsByThe28thElsewhere) {
    // Two lunar years are made to begin so late that the day is seen in the result.
    world.clock.setToday(QDate(2024, 2, 29));
    world.write(QStringLiteral("KUAYears.xml"), world.read(QStringLiteral("KUAYears.xml"))
                                                    .replace("2025-02-03T", "2025-02-28T")
                                                    .replace("2026-02-04T", "2026-03-01T"));
    years(QStringLiteral("North"), renovationMode);
    Texts seen;
    for (const std::string& heading : headings()) {
        seen.push_back(heading.substr(0, 4));
    }
    std::ranges::sort(seen);
    seen.erase(std::unique(seen.begin(), seen.end()), seen.end());
    EXPECT_EQ(seen, (Texts{"2024", "2025", "2027", "2028"})) << "28 February 2026 lies before its start";
}

TEST_F(MoveYears, todayBeforeTheLunarYear_startsWithTheYearBefore) {
    world.clock.setToday(QDate(2024, 2, 3));
    years(QStringLiteral("South-West"), moveMode);
    Texts all = headings();
    std::ranges::sort(all);
    ASSERT_FALSE(all.empty());
    EXPECT_EQ(all.front().substr(0, 4), "2023");
    EXPECT_EQ(all.back().substr(0, 4), "2027");
}

TEST_F(MoveYears, noSelection_asksAndChangesNothing) {
    bool focused = false;
    const auto ask = [&](const QString& mode) {
        focused = false;
        NineKiReports::GetMoveYears(pane.vp, report.vp, QString(), mode, [&] { focused = true; });
        EXPECT_TRUE(focused);
    };
    world.prompts.whileShown = [&] {
        EXPECT_TRUE(focused);
        EXPECT_EQ(world.prompts.pointer(), PointerShape::Default);
    };
    world.prompts.expectMessage(
        QStringLiteral("Advice on Move Years"),
        QStringLiteral("You must select a direction before advice on move years can be provided."),
        MessageIcon::Information);
    ask(moveMode);
    world.prompts.expectMessage(
        QStringLiteral("Advice on Renovation Years"),
        QStringLiteral("You must select an area before advice on renovation years can be provided."),
        MessageIcon::Information);
    ask(renovationMode);
    EXPECT_TRUE(report.calls().empty());
    EXPECT_TRUE(pane.calls().empty());
}

TEST_F(MoveYears, hourglass_standsThroughTheRunAndGoesAfterwards) {
    RecordingSurface watched(report.vp, [this](const SurfaceCall& call) {
        EXPECT_EQ(world.prompts.pointer(), PointerShape::Hourglass) << spelled(call);
    });
    NineKiReports::GetMoveYears(pane.vp, watched, QStringLiteral("North"), moveMode);
    EXPECT_EQ(world.prompts.pointerHistory(),
              (QList<PointerShape>{PointerShape::Hourglass, PointerShape::Default}));
}

TEST_F(MoveYears, noDirections_isReportedForEveryYearAndBothCompasses) {
    world.write(QStringLiteral("Directions.xml"), recordFile({}));
    for (int run = 0; run < 6; ++run) { // five years, and today's for the pane
        world.prompts.expectMessage(
            QStringLiteral("Directions to Move"),
            QStringLiteral("Error Reading Directions.  Could not calculate directions to Move."),
            MessageIcon::Exclamation);
    }
    years(QStringLiteral("North"), moveMode);
    EXPECT_TRUE(texts().empty());
    EXPECT_EQ(report.spelledCalls().back(), "EndDoc()");
    EXPECT_EQ(pane.spelledCalls().back(), "EndDoc()");
}

TEST_F(MoveYears, realPages_areAtMostTwoBesideTheOneCompass) {
    for (qint32 person = 1; person <= 9; person += 4) {
        choosePerson(person);
        for (const QString& direction : NineKiReports::directionChoices()) {
            PageSurface page;
            PageSurface compassPage;
            NineKiReports::GetMoveYears(compassPage, page, direction, moveMode);
            EXPECT_EQ(compassPage.PageCount(), 1);
            EXPECT_LE(page.PageCount(), 2);
        }
    }
}
