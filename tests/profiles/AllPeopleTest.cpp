#include "profiles/cProfile.h"
#include "support/RecordFiles.h"
#include "support/RecordedReport.h"
#include "support/TestWorld.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>

// Every number of a person with either gender, and every element, over the reference tables that are
// installed: nothing may fail (a box that was not expected fails the test) or come out empty.

using namespace Qt::StringLiterals;

namespace {

/// What a sentence with an empty field would show.
void expectNoGaps(const std::vector<std::string>& texts) {
    for (const std::string& text : texts) {
        EXPECT_FALSE(text.empty());
        for (const char* gap : {" .", " ,", ",,", "the element  ", "Direction is ."}) {
            EXPECT_EQ(text.find(gap), std::string::npos) << text;
        }
    }
}

class AllPeople : public testing::TestWithParam<std::tuple<int, QByteArray>> {
protected:
    AllPeople() {
        const auto& [number, gender] = GetParam();
        world.write(u"Profiles.xml"_s,
                    recordFile({"<z:row PROFILEID='1' PROFILENAME='Person' BIRTHDATE='1985-02-04T00:00:00' "
                                "ADJBIRTHYEAR='1985' GENDER='" +
                                gender + "' KUANUMBER='" + QByteArray::number(number) + "'/>"}));
        person.LoadProfiles();
        EXPECT_TRUE(person.GetProfile(1));
    }

    TestWorld world;
    RecordedReport report;
    cProfile person;
};

class AllElements : public testing::TestWithParam<int> {
protected:
    AllElements() { EXPECT_TRUE(element.GetElement(GetParam())); }

    TestWorld world;
    RecordedReport report;
    cElement element;
};

constexpr std::size_t letters = 8;

} // namespace

TEST_P(AllPeople, report_isWholeOnScreenAndPaper) {
    for (const bool toPrint : {false, true}) {
        report.clear();
        person.GenerateReport(report.vp, toPrint);
        const std::vector<std::string> texts = report.arguments(u"Write"_s);
        EXPECT_EQ(texts.size(), 4U + 18U + letters);
        expectNoGaps(texts);
        EXPECT_EQ(report.arguments(u"NewPage"_s).size(), 1U);
        EXPECT_EQ(report.arguments(u"DrawRectangle"_s).size(), toPrint ? 0U : 1U);
    }
}

TEST_P(AllPeople, chart_hasEachWordOnceAndTheOwnDirectionStandsOut) {
    person.DrawDirectionChart(report.vp, 6000, 7500);
    std::vector<std::string> words = report.arguments(u"TextBox"_s);
    std::ranges::sort(words);
    const std::vector<std::string> eight = {"Bad Luck",  "Development", "Health",  "Illness",
                                            "Obstacles", "Romance",     "Success", "Total Loss"};
    EXPECT_EQ(words, eight);
    const auto isLarge = [](const SurfaceCall& call) {
        return call.op == u"DrawCircle" && call.args.at(2).toDouble() == 5500;
    };
    EXPECT_EQ(std::ranges::count_if(report.calls(), isLarge), person.KUANUMBER == 5 ? 0 : 1);
}

TEST_P(AllPeople, compass_isWhole) {
    person.DrawCompass(report.vp, 6000, 6000);
    EXPECT_EQ(report.arguments(u"DrawCircle"_s).size(), 17U);
    EXPECT_EQ(report.arguments(u"Write"_s).size(), letters);
}

INSTANTIATE_TEST_SUITE_P(EveryNumberAndGender, AllPeople,
                         testing::Combine(testing::Range(1, 10),
                                          testing::Values(QByteArray("M"), QByteArray("F"))),
                         [](const auto& kind) {
                             return "number" + std::to_string(std::get<0>(kind.param)) +
                                    std::get<1>(kind.param).toStdString();
                         });

TEST_P(AllElements, report_isWholeOnScreenAndPaper) {
    for (const bool toPrint : {false, true}) {
        report.clear();
        element.GenerateReport(report.vp, toPrint);
        const std::vector<std::string> texts = report.arguments(u"Write"_s);
        EXPECT_EQ(texts.size(), 4U + 7U);
        expectNoGaps(texts);
        EXPECT_EQ(report.arguments(u"DrawRectangle"_s).size(), toPrint ? 0U : 1U);
    }
}

TEST_P(AllElements, compass_isWholeAndSetsOffItsDirections) {
    constexpr std::array directionsOf{2, 1, 2, 2, 1};
    element.DrawCompass(report.vp, 6000, 6000);
    EXPECT_EQ(report.arguments(u"DrawCircle"_s).size(), 17U);
    const auto standsOut = [](const SurfaceCall& call) {
        return call.op == u"DrawCircle" && call.args.at(2).toDouble() == 4125;
    };
    EXPECT_EQ(std::ranges::count_if(report.calls(), standsOut),
              directionsOf.at(static_cast<std::size_t>(GetParam() - 1)));
}

INSTANTIATE_TEST_SUITE_P(EveryElement, AllElements, testing::Range(1, 6));
