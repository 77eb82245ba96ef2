#include "support/RecordedReport.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(RecordedReportTest, calls_onTheSurface_areSpelledInOrder) {
    RecordedReport report;
    report.vp.StartDoc();
    report.vp.FontSize(14);
    report.vp.Write(u"a \"text\""_s);
    EXPECT_EQ(report.spelledCalls(),
              (std::vector<std::string>{"StartDoc()", "FontSize(14)", R"(Write("a \"text\""))"}));
    EXPECT_EQ(report.arguments(u"Write"_s), std::vector<std::string>{"a \"text\""});
    EXPECT_EQ(report.arguments(u"StartDoc"_s), std::vector<std::string>{""});
    report.clear();
    EXPECT_TRUE(report.calls().empty());
}
