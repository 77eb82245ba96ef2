#include "catalogues/cElement.h"

#include "support/QtPrinting.h"
#include "support/RecordFiles.h"
#include "support/TestWorld.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

TEST(cElementTest, GetElement_storedRow_readsItsColour) {
    const TestWorld world;
    cElement element;
    ASSERT_TRUE(element.GetElement(3));
    EXPECT_EQ(element.ELEMENTNAME, u"Soil");
    EXPECT_EQ(element.COLORID, 5);
    EXPECT_EQ(element.oColor.COLORID, 5);
    EXPECT_EQ(element.oColor.COLORNAME, u"Orange");
}

TEST(cElementTest, GetElement_missingColour_isFalseWithAllItsTextFilled) {
    const TestWorld world;
    world.write(u"Colors.xml"_s, withoutRecords(world.read(u"Colors.xml"_s), "COLORID=\"5\""));
    cElement element;
    EXPECT_FALSE(element.GetElement(3));
    EXPECT_EQ(element.ELEMENTID, 3);
    EXPECT_EQ(element.ELEMENTNAME, u"Soil");
    EXPECT_FALSE(element.DESCRIPTION.isEmpty());
    EXPECT_EQ(element.COLORID, 5);
    EXPECT_EQ(element.oColor.COLORID, 0);
}

TEST(cElementTest, GetElement_missingColourFile_isReportedByTheStore) {
    TestWorld world;
    world.remove(u"Colors.xml"_s);
    cElement element;
    world.prompts.expectError(u"cXMLHandler.Find"_s, 91, u"Object variable or With block variable not set"_s);
    EXPECT_FALSE(element.GetElement(3));
    EXPECT_EQ(element.ELEMENTNAME, u"Soil");
}

TEST(cElementTest, GetElement_damagedColour_isReportedUnderTheColoursLabel) {
    TestWorld world;
    world.write(u"Colors.xml"_s, recordFile({"<z:row COLORID='5' COLORNAME='Orange' COLORVALUE='bright'/>"}));
    cElement element;
    world.prompts.expectError(u"cColor.Get Color"_s, 13, u"Type mismatch"_s);
    EXPECT_FALSE(element.GetElement(3));
    EXPECT_EQ(element.oColor.COLORNAME, u"Orange");
}

TEST(cElementTest, GetElement_unknownId_leavesTheColourToo) {
    const TestWorld world;
    cElement element;
    ASSERT_TRUE(element.GetElement(1));
    EXPECT_FALSE(element.GetElement(6));
    EXPECT_EQ(element.ELEMENTNAME, u"Tree");
    EXPECT_EQ(element.oColor.COLORNAME, u"Green");
}

} // namespace
