#include "catalogues/ElementRelations.h"
#include "nineki/NineKiDrawing.h"
#include "nineki/NineKiWorld.h"
#include "reports/surface/NullSurface.h"

#include <functional>

namespace {

using Texts = std::vector<std::string>;

class NineKiChart : public testing::Test, protected NineKiWorld {
protected:
    NineKiChart() { choosePerson(9); }

    void expectNoDirections() {
        world.prompts.expectMessage(
            QStringLiteral("Nine Ki Chart"),
            QStringLiteral("Error Reading Directions.  Could not calculate Nine Ki Chart."),
            MessageIcon::Exclamation);
    }

    [[nodiscard]] Texts highlights(const char* sector) const {
        return about(nineKi.Problematic, QString::fromLatin1(sector));
    }

    [[nodiscard]] bool isHighlighted(const QString& part) const {
        return std::ranges::any_of(nineKi.Problematic,
                                   [&](const NineKiFinding& each) { return each.text.contains(part); });
    }
};

const QString ofFive = QStringLiteral("the most powerful Nine Ki Number 5.");

/// The calls of parts that are drawn one after the other.
Texts callsOf(const std::function<void(ReportSurface&)>& draw) {
    RecordedReport report;
    draw(report.vp);
    return report.spelledCalls();
}

} // namespace

TEST_F(NineKiChart, Year_isTheLunarYearToTheDay) {
    for (const auto& [day, year] : {std::pair("2024-02-03", 2023),
                                    {"2024-02-04", 2024},
                                    {"2025-02-02", 2024},
                                    {"2025-02-03", 2025}, // a start one day earlier than usual
                                    {"2025-12-31", 2025},
                                    {"1799-02-03", 1798}, // outside the table: 4 February
                                    {"1799-02-04", 1799},
                                    {"2201-02-03", 2200},
                                    {"2201-02-04", 2201}}) {
        chart(QString::fromLatin1(day));
        EXPECT_EQ(nineKi.Year, year) << day;
        EXPECT_EQ(nineKi.NumberSector, placeNumbers(year).numberSector);
        EXPECT_EQ(nineKi.OppositeHome, placeNumbers(year).oppositeHome);
    }
}

TEST_F(NineKiChart, Year_thatCannotBeAdjustedIsTheDatesOwn) {
    world.write(QStringLiteral("KUAYears.xml"),
                recordFile({R"(<z:row YEARID="2024" STARTDATE="soon" KUANUMBERMALE="1" KUANUMBERFEMALE="1")"
                            R"( ANIMALID="1"/>)"}));
    world.prompts.expectError(QStringLiteral("Global.Calculate Adjusted Year"), 13,
                              QStringLiteral("Type mismatch"));
    chart(QDate(2024, 1, 10));
    EXPECT_EQ(nineKi.Year, 2024);
}

TEST_F(NineKiChart, everyCall_inOrder) {
    // 2023: 4 in the centre, the Rabbit in the East; the West repaints the sign's wedge in its own colour.
    chart(QDate(2023, 7, 1));
    const auto color = [](qint32 id) { return Global::GetDirectionColor(id, 3); };
    const Texts expected = callsOf([&](ReportSurface& vp) {
        vp.BrushStyle(0);
        vp.CurrentY(500);
        vp.CurrentX(1000);
        vp.Write(QStringLiteral("Year 2023"));
        struct Sector {
            qint32 id;
            const char* name;
            qint32 number;
        };
        for (const Sector& sector : {Sector{1, "North", 9},
                                     {2, "South-West", 1},
                                     {3, "East", 2},
                                     {4, "South-East", 3},
                                     {5, "Center", 3},
                                     {6, "North-West", 5},
                                     {7, "West", 6},
                                     {8, "North-East", 7},
                                     {9, "South", 8}}) {
            const QString name = QString::fromLatin1(sector.name);
            if (sector.id != 5) {
                NineKiDrawing::DrawDirection(vp, 6000, 6000, 5000, name, color(sector.id));
            }
            if (sector.id == 3 || sector.id == 7) {
                NineKiDrawing::DrawDirection(vp, 6000, 6000, 5000, QStringLiteral("East"), color(sector.id));
            }
            NineKiDrawing::DrawNumber(vp, 6000, 6000, 5000, name, sector.number);
        }
        for (const char* name :
             {"South", "South-West", "South-East", "North", "North-East", "East", "West", "North-West"}) {
            NineKiDrawing::DrawLetters(vp, 6000, 6000, 5000, QString::fromLatin1(name));
        }
        vp.BrushColor(color(4));
        vp.DrawCircle(6000, 6000, 1500);
        NineKiDrawing::DrawNumber(vp, 6000, 6000, 5000, QStringLiteral("Center"), 4);
        NineKiDrawing::DrawAnimal(vp, 6000, 6000, 5000, QStringLiteral("Rabbit"));
    });
    EXPECT_EQ(report.spelledCalls(), expected);
}

TEST_F(NineKiChart, signInACorner_paintsItsOwnHalfAndIsToldByIt) {
    chart(QDate(2024, 7, 1)); // the Dragon
    const qint32 southEast = Global::GetDirectionColor(4, 3);
    const Texts wedge = callsOf([&](ReportSurface& vp) {
        NineKiDrawing::DrawDirection(vp, 6000, 6000, 5000, QStringLiteral("South-East"), southEast);
        NineKiDrawing::DrawDirection(vp, 6000, 6000, 5000, QStringLiteral("East/South-East"), southEast);
    });
    const Texts calls = report.spelledCalls();
    EXPECT_NE(std::search(calls.begin(), calls.end(), wedge.begin(), wedge.end()), calls.end());
    EXPECT_EQ(highlights("East/South-East"),
              Texts{"is the sector of the position of the year's Animal sign Dragon."});
    const Texts northWest = highlights("North-West");
    EXPECT_EQ(northWest.back(), "is opposite the sector of the position of the year's Animal sign Dragon.");
}

TEST_F(NineKiChart, signOnAnAxis_isToldByTheSector) {
    chart(QDate(2023, 7, 1));
    EXPECT_EQ(highlights("East"), Texts{"is the sector of the position of the year's Animal sign Rabbit."});
    EXPECT_EQ(highlights("West").back(),
              "is opposite the sector of the position of the year's Animal sign Rabbit.");
}

TEST_F(NineKiChart, highlights_standInTheOrderOfTheTableAndOfTheQuestions) {
    chart(QDate(2023, 7, 1));
    EXPECT_EQ(sectors(nineKi.Problematic), (Texts{"North", "North", "South-West", "East", "South-East",
                                                  "North-West", "West", "West", "North-East", "South"}));
    EXPECT_EQ(highlights("North"),
              (Texts{"is the sector of your Nine Ki Number.  The character of this direction will determine "
                     "the prevailing influences on you for the year.",
                     "is the sector of the Nine Ki Number 9, that is opposite its normal position in the "
                     "chart."}));
    EXPECT_EQ(highlights("South-West"),
              Texts{"is the sector of the Nine Ki Number 1, that is associated with the element Water which "
                    "is incompatible with your Fire element. (Water Destroys Fire)"});
    EXPECT_EQ(highlights("North-West"), Texts{"is the sector of " + ofFive.toStdString()});
    EXPECT_EQ(highlights("South-East"), Texts{"is the sector opposite " + ofFive.toStdString()});
    EXPECT_EQ(highlights("South"), Texts{"is opposite your Nine Ki Number's position for the year."});
    EXPECT_TRUE(nineKi.Beneficial.empty());
}

TEST_F(NineKiChart, personOfNumberFive_bothOfEachPairAreListed) {
    choosePerson(5);
    chart(QDate(2023, 7, 1));
    const Texts own = highlights("North-West");
    ASSERT_GE(own.size(), 2U);
    EXPECT_EQ(own[0], "is the sector of the most powerful Nine Ki Number 5.");
    EXPECT_TRUE(own[1].starts_with("is the sector of your Nine Ki Number.  "));
    const Texts opposite = highlights("South-East");
    ASSERT_GE(opposite.size(), 2U);
    EXPECT_EQ(opposite[0], "is the sector opposite the most powerful Nine Ki Number 5.");
    EXPECT_EQ(opposite[1], "is opposite your Nine Ki Number's position for the year.");
}

TEST_F(NineKiChart, numberFiveInTheCentre_isNoHighlight) {
    chart(QDate(2022, 7, 1));
    EXPECT_FALSE(isHighlighted(ofFive));
    chart(QDate(2023, 7, 1));
    EXPECT_TRUE(isHighlighted(ofFive));
}

TEST_F(NineKiChart, yearWithoutASign_hasNoneAnywhere) {
    chart(QDate(2205, 7, 1));
    EXPECT_EQ(nineKi.Year, 2205);
    EXPECT_FALSE(isHighlighted(QStringLiteral("Animal sign")));
    EXPECT_TRUE(report.arguments(QStringLiteral("TextBox")).empty());
    EXPECT_EQ(report.spelledCalls().back(), "TextAngle(0)");
}

TEST_F(NineKiChart, centreFirstInTheTable_writesTheNumberTenBeneathTheDisc) {
    const QByteArray file = world.read(QStringLiteral("Directions.xml"));
    QByteArrayList rows = recordLines(file);
    rows.move(4, 0);
    world.write(QStringLiteral("Directions.xml"), recordFile(rows));
    chart(QDate(2023, 7, 1));
    EXPECT_EQ(report.arguments(QStringLiteral("Write")).at(1), "10");
    EXPECT_EQ(sectors(nineKi.Problematic).front(), "North");
}

TEST_F(NineKiChart, missingColour_leavesThatOfTheRowBefore) {
    takeOut(QStringLiteral("Colors.xml"), R"(COLORID="4")");
    chart(QDate(2023, 7, 1));
    const Texts brushes = report.arguments(QStringLiteral("BrushColor"));
    const std::string east = std::to_string(Global::GetDirectionColor(3, 3));
    ASSERT_GE(brushes.size(), 5U);
    EXPECT_EQ(brushes[2], east);
    EXPECT_EQ(brushes[3], east);                                                // the East's sign
    EXPECT_EQ(brushes[4], east);                                                // the South-East
    EXPECT_EQ(brushes.back(), std::to_string(Global::GetDirectionColor(9, 3))); // the disc, after the South
}

TEST_F(NineKiChart, missingElements_leaveEmptyNamesInTheSentence) {
    world.write(QStringLiteral("Elements.xml"), recordFile({}));
    chart(QDate(2023, 7, 1));
    EXPECT_EQ(highlights("South-West"),
              Texts{"is the sector of the Nine Ki Number 1, that is associated with the element  which is "
                    "incompatible with your Fire element. ( Destroys )"});
}

TEST_F(NineKiChart, noDate_saysSoAndKeepsWhatWasFound) {
    chart(QDate(2023, 7, 1));
    const NineKiTable before = nineKi.Problematic;
    nineKi.Problematic.clear(); // published again below
    report.clear();
    for (const QVariant& value : {QVariant(QStringLiteral("soon")), QVariant(QString()), QVariant()}) {
        world.prompts.expectMessage(
            QStringLiteral("Nine Ki Chart"),
            QStringLiteral("The date you entered is not a valid date.  Please re-enter this value."),
            MessageIcon::Exclamation);
        chart(value);
        EXPECT_TRUE(world.prompts.isSatisfied());
        EXPECT_EQ(nineKi.Year, 2023);
        EXPECT_EQ(nineKi.Problematic, before);
        EXPECT_TRUE(report.calls().empty());
    }
}

TEST_F(NineKiChart, noDirections_saySoAfterTheTitle) {
    chart(QDate(2022, 7, 1));
    report.clear();
    world.write(QStringLiteral("Directions.xml"), recordFile({}));
    expectNoDirections();
    chart(QDate(2023, 7, 1));
    EXPECT_EQ(report.arguments(QStringLiteral("Write")), Texts{"Year 2023"});
    EXPECT_EQ(nineKi.Year, 2023);
    EXPECT_EQ(nineKi.NumberSector[5], 6);
    EXPECT_TRUE(nineKi.Problematic.empty());
}

TEST_F(NineKiChart, missingDirectionFile_isReportedFirst) {
    world.remove(QStringLiteral("Directions.xml"));
    world.prompts.expectError(QStringLiteral("cXMLHandler.Move First"), 91,
                              QStringLiteral("Object variable or With block variable not set"));
    expectNoDirections();
    chart(QDate(2023, 7, 1));
    EXPECT_EQ(report.calls().size(), 4U);
}

TEST_F(NineKiChart, personWhoWasNeverCalculated_isReportedAsASubscript) {
    Global::CurrentProfile = std::make_unique<cProfile>();
    world.prompts.expectError(QStringLiteral("cNineKi.Calc Nine Ki Chart"), 9,
                              QStringLiteral("Subscript out of range"));
    chart(QDate(2023, 7, 1));
    EXPECT_EQ(nineKi.Year, 2023);
    EXPECT_TRUE(nineKi.Problematic.empty());
}

TEST_F(NineKiChart, noPersonAtAll_isReportedAsAMissingObject) {
    Global::CurrentProfile.reset();
    world.prompts.expectError(QStringLiteral("cNineKi.Calc Nine Ki Chart"), 91,
                              QStringLiteral("Object variable or With block variable not set"));
    chart(QDate(2023, 7, 1));
}

TEST_F(NineKiChart, discRadius_isRoundedHalfToEven) {
    for (const auto& [radius, disc] : {std::pair(5000, 1500), {3000, 900}, {5, 2}, {15, 4}, {25, 8}}) {
        report.clear();
        nineKi.CalcNineKiChart(report.vp, 0, 0, radius, QDate(2023, 7, 1));
        const auto call = std::ranges::find_if(report.calls(), [](const SurfaceCall& each) {
            return each.op == QStringLiteral("DrawCircle") && each.args.size() == 3;
        });
        ASSERT_NE(call, report.calls().end());
        EXPECT_EQ(call->args.at(2).toDouble(), disc) << radius;
    }
}

TEST_F(NineKiChart, everyYearAndNumber_theSameQuestionsAreAnswered) {
    NullSurface unseen;
    for (qint32 person = 1; person <= 9; ++person) {
        choosePerson(person);
        for (qint32 year = 1800; year <= 2200; ++year) {
            nineKi.CalcNineKiChart(unseen, 0, 0, 5000, QDate(year, 7, 1));
            const NineKiPlacement placement = placeNumbers(year);
            const auto count = [&](const char* part) {
                return std::ranges::count_if(nineKi.Problematic, [&](const NineKiFinding& each) {
                    return each.text.startsWith(QString::fromLatin1(part));
                });
            };
            const bool fiveOut = placement.numberSector[5] != 5;
            const bool ownOut = placement.numberSector[person] != 5;
            EXPECT_EQ(count("is the sector of the most powerful"), fiveOut ? 1 : 0);
            EXPECT_EQ(count("is the sector opposite the most powerful"), fiveOut ? 1 : 0);
            EXPECT_EQ(count("is the sector of your"), ownOut ? 1 : 0);
            EXPECT_EQ(count("is opposite your"), ownOut ? 1 : 0);
            EXPECT_EQ(count("is the sector of the position"), 1) << year;
            EXPECT_EQ(count("is opposite the sector of the position"), 1) << year;
            qint32 opposite = 0;
            for (qint32 number = 1; number <= 9; ++number) {
                opposite += placement.oppositeHome[number] && placement.numberSector[number] != 5 ? 1 : 0;
            }
            EXPECT_EQ(std::ranges::count_if(nineKi.Problematic,
                                            [](const NineKiFinding& each) {
                                                return each.text.contains(QStringLiteral("normal position"));
                                            }),
                      opposite);
        }
    }
}
