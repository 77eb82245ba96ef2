#include "catalogues/ElementRelations.h"

#include "catalogues/cColor.h"
#include "catalogues/cDirection.h"
#include "catalogues/cElement.h"
#include "support/QtPrinting.h"
#include "support/RecordFiles.h"
#include "support/TestWorld.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QString OBJECT_NOT_SET = u"Object variable or With block variable not set"_s;

/// What a call of `IsCompatible` gave; the texts start as "before".
struct Answer {
    bool compatible = false;
    QString elementName = u"before"_s;
    QString reason = u"before"_s;
};

Answer compare(qint32 direction1, qint32 direction2) {
    Answer answer;
    answer.compatible = Global::IsCompatible(direction1, direction2, answer.elementName, answer.reason);
    return answer;
}

/// Two directions whose elements, called First and Second, hold these relation fields: the element that each
/// destroys and that each is destroyed by.
void writeTwoElements(const TestWorld& world, const QByteArray& firstDestroys, const QByteArray& firstBy,
                      const QByteArray& secondDestroys, const QByteArray& secondBy) {
    const auto direction = [](const QByteArray& id) {
        return "<z:row DIRECTIONID='" + id + "' KUA='1' COLORID='1' TODID='1' ELEMENTID='" + id +
               "' SYMBOLID='1' TRIGRAMID='1'/>";
    };
    const auto element = [](const QByteArray& id, const QByteArray& name, const QByteArray& destroys,
                            const QByteArray& by) {
        return "<z:row ELEMENTID='" + id + "' ELEMENTNAME='" + name +
               "' SUPPORTSELEMENTID='1' SUPPORTEDBYELEMENTID='2' DESTROYSELEMENTID='" + destroys +
               "' DESTROYEDBYELEMENTID='" + by + "' COLORID='1'/>";
    };
    world.write(u"Directions.xml"_s, recordFile({direction("1"), direction("2")}));
    world.write(u"Elements.xml"_s, recordFile({element("1", "First", firstDestroys, firstBy),
                                               element("2", "Second", secondDestroys, secondBy)}));
}

TEST(IsCompatibleTest, directionsOfOneElement_areCompatible) {
    const TestWorld world;
    for (const auto& [direction1, direction2] : {std::pair{3, 4}, {4, 3}, {6, 7}, {2, 8}, {5, 2}, {1, 1}}) {
        const Answer answer = compare(direction1, direction2);
        EXPECT_TRUE(answer.compatible) << direction1 << " and " << direction2;
        EXPECT_EQ(answer.elementName, u"before");
        EXPECT_EQ(answer.reason, u"before");
    }
}

TEST(IsCompatibleTest, destroyingElements_areIncompatibleInEitherOrder) {
    const TestWorld world;
    // North is Water, South is Fire.
    const Answer answer = compare(1, 9);
    EXPECT_FALSE(answer.compatible);
    EXPECT_EQ(answer.elementName, u"Fire");
    EXPECT_EQ(answer.reason, u"Fire is Destroyed By Water");
    const Answer reverse = compare(9, 1);
    EXPECT_FALSE(reverse.compatible);
    EXPECT_EQ(reverse.elementName, u"Water");
    EXPECT_EQ(reverse.reason, u"Water Destroys Fire");
}

TEST(IsCompatibleTest, wholeTable_agreesWithTheElementsOwnFields) {
    const TestWorld world;
    for (qint32 direction1 = 1; direction1 <= 9; ++direction1) {
        for (qint32 direction2 = 1; direction2 <= 9; ++direction2) {
            cDirection direction;
            cElement first;
            cElement second;
            ASSERT_TRUE(direction.GetDirection(direction1) && first.GetElement(direction.ElementID));
            ASSERT_TRUE(direction.GetDirection(direction2) && second.GetElement(direction.ElementID));
            const bool destroying =
                first.DESTROYSELEMENTID == second.ELEMENTID || second.DESTROYSELEMENTID == first.ELEMENTID;
            const Answer answer = compare(direction1, direction2);
            EXPECT_EQ(answer.compatible, !destroying) << direction1 << " and " << direction2;
            EXPECT_EQ(answer.elementName, destroying ? second.ELEMENTNAME : u"before"_s);
        }
    }
}

TEST(IsCompatibleTest, eachTestAlone_givesItsReason) {
    const TestWorld world;
    struct Case {
        QByteArray firstDestroys, firstBy, secondDestroys, secondBy;
        QString reason;
    };
    const QList<Case> cases = {
        {"0", "0", "1", "0", u"Second Destroys First"_s},
        {"0", "0", "0", "1", u"Second is Destroyed By First"_s},
        {"2", "0", "0", "0", u"First Destroys Second"_s},
        {"0", "2", "0", "0", u"First is Destroyed By Second"_s},
    };
    for (const Case& each : cases) {
        writeTwoElements(world, each.firstDestroys, each.firstBy, each.secondDestroys, each.secondBy);
        const Answer answer = compare(1, 2);
        EXPECT_FALSE(answer.compatible);
        EXPECT_EQ(answer.reason, each.reason);
        EXPECT_EQ(answer.elementName, u"Second");
    }
}

TEST(IsCompatibleTest, severalTestsHold_theFirstGivesTheReason) {
    const TestWorld world;
    writeTwoElements(world, "2", "2", "1", "1");
    EXPECT_EQ(compare(1, 2).reason, u"Second Destroys First");
    writeTwoElements(world, "2", "2", "0", "1");
    EXPECT_EQ(compare(1, 2).reason, u"Second is Destroyed By First");
    writeTwoElements(world, "2", "2", "0", "0");
    EXPECT_EQ(compare(1, 2).reason, u"First Destroys Second");
}

TEST(IsCompatibleTest, supportingElements_areCompatible) {
    const TestWorld world;
    writeTwoElements(world, "0", "0", "0", "0"); // each supports, or is supported by, the other
    EXPECT_TRUE(compare(1, 2).compatible);
}

TEST(IsCompatibleTest, elementThatDestroysItself_isIncompatibleWithItself) {
    const TestWorld world;
    writeTwoElements(world, "1", "0", "0", "0");
    const Answer answer = compare(1, 1);
    EXPECT_FALSE(answer.compatible);
    EXPECT_EQ(answer.reason, u"First Destroys First");
}

TEST(IsCompatibleTest, unknownSecondDirection_comparesTheFirstWithItself) {
    const TestWorld world;
    EXPECT_TRUE(compare(1, 99).compatible);
    writeTwoElements(world, "1", "0", "0", "0");
    EXPECT_EQ(compare(1, 99).reason, u"First Destroys First");
}

TEST(IsCompatibleTest, missingDirections_areReportedByTheStore) {
    TestWorld world;
    world.remove(u"Directions.xml"_s);
    world.prompts.expectError(u"cXMLHandler.Find"_s, 91, OBJECT_NOT_SET);
    world.prompts.expectError(u"cXMLHandler.Find"_s, 91, OBJECT_NOT_SET);
    // Two elements of no row: all their ids are 0 and so destroy each other.
    const Answer answer = compare(1, 2);
    EXPECT_FALSE(answer.compatible);
    EXPECT_EQ(answer.reason, u" Destroys ");
}

TEST(GetDirectionColorTest, five_isTheColourOfTheCentre) {
    const TestWorld world;
    cColor color;
    ASSERT_TRUE(color.GetColor(5));
    EXPECT_EQ(Global::GetDirectionColor(5, 2), color.COLORVALUE);
    EXPECT_NE(color.COLORVALUE, 0);
}

TEST(GetDirectionColorTest, shades_pickTheirValue) {
    const TestWorld world;
    world.write(u"Colors.xml"_s, recordFile({"<z:row COLORID='7' COLORNAME='Red' COLORVALUE='22' "
                                             "LIGHTCOLORVALUE='33' BRIGHTCOLORVALUE='11'/>"}));
    EXPECT_EQ(Global::GetDirectionColor(7, 1), 11);
    EXPECT_EQ(Global::GetDirectionColor(7, 2), 22);
    EXPECT_EQ(Global::GetDirectionColor(7, 3), 33);
}

TEST(GetDirectionColorTest, unknownShade_isBlackForBothRoutines) {
    const TestWorld world;
    for (const qint32 shade : {4, 0, -1}) {
        EXPECT_EQ(Global::GetDirectionColor(5, shade), 0);
        EXPECT_EQ(Global::GetDirectionElementColor(5, shade), 0);
    }
}

TEST(GetDirectionColorTest, unknownColour_isBlack) {
    const TestWorld world;
    EXPECT_EQ(Global::GetDirectionColor(0, 2), 0);
    EXPECT_EQ(Global::GetDirectionColor(10, 2), 0);
}

TEST(GetDirectionColorTest, damagedColour_isReportedAndBlack) {
    TestWorld world;
    world.write(u"Colors.xml"_s, recordFile({"<z:row COLORID='7' COLORNAME='Red' COLORVALUE='22'/>"}));
    world.prompts.expectError(u"cColor.Get Color"_s, 13, u"Type mismatch"_s);
    EXPECT_EQ(Global::GetDirectionColor(7, 2), 0);
}

TEST(GetDirectionElementColorTest, everyDirection_hasTheColourOfItsElement) {
    const TestWorld world;
    // Tree is green, Fire purple, Soil orange, Metal grey, Water the deep grey of colour 2.
    const QList<qint32> colorOfDirection = {2, 5, 3, 3, 5, 6, 6, 5, 9};
    for (qint32 direction = 1; direction <= 9; ++direction) {
        cColor color;
        ASSERT_TRUE(color.GetColor(colorOfDirection.at(direction - 1)));
        EXPECT_EQ(Global::GetDirectionElementColor(direction, 1), color.BRIGHTCOLORVALUE) << direction;
        EXPECT_EQ(Global::GetDirectionElementColor(direction, 2), color.COLORVALUE) << direction;
        EXPECT_EQ(Global::GetDirectionElementColor(direction, 3), color.LIGHTCOLORVALUE) << direction;
    }
}

TEST(GetDirectionElementColorTest, missingLinkOfTheChain_isBlack) {
    const TestWorld world;
    EXPECT_EQ(Global::GetDirectionElementColor(0, 2), 0);
    const QByteArray colors = world.read(u"Colors.xml"_s);
    world.write(u"Colors.xml"_s, withoutRecords(colors, "COLORID=\"2\""));
    EXPECT_EQ(Global::GetDirectionElementColor(1, 2), 0);
    world.write(u"Colors.xml"_s, colors);
    EXPECT_NE(Global::GetDirectionElementColor(1, 2), 0);
    world.write(u"Elements.xml"_s, withoutRecords(world.read(u"Elements.xml"_s), "ELEMENTNAME=\"Water\""));
    EXPECT_EQ(Global::GetDirectionElementColor(1, 2), 0);
}

TEST(GetDirectionElementColorTest, missingFile_isReportedByTheStoreAndBlack) {
    TestWorld world;
    world.remove(u"Directions.xml"_s);
    world.prompts.expectError(u"cXMLHandler.Find"_s, 91, OBJECT_NOT_SET);
    EXPECT_EQ(Global::GetDirectionElementColor(1, 2), 0);
}

} // namespace
