#include "locations/LocationFiles.h"

#include "core/Global.h"
#include "support/QtPrinting.h"
#include "support/RecordFiles.h"
#include "support/TestWorld.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QString ROOMS = u"Rooms.xml"_s;
const QString LOCATIONS = u"Locations.xml"_s;

const QLocale GERMAN(QLocale::German, QLocale::Germany);

QByteArray room(const QByteArray& top, const QByteArray& left, const QByteArray& length,
                const QByteArray& width) {
    return "<z:row ROOMID=\"1\" DESCRIPTION=\"1,5 or 1.5\" TOP=\"" + top + "\" LEFT=\"" + left +
           "\" LENGTH=\"" + length + "\" WIDTH=\"" + width + "\" />";
}

QByteArray location(const QByteArray& north, const QByteArray& x, const QByteArray& y) {
    return "<z:row LOCATIONID=\"1\" DESCRIPTION=\"1,5 or 1.5\" PLANLENGTH=\"1,5\" NORTHOFFSET=\"" + north +
           "\" LABLEX=\"" + x + "\" LABLEY=\"" + y + "\" />";
}

TEST(LocationFilesTest, loadRooms_commaWherePointRules_isRewrittenAndSaved) {
    const TestWorld world;
    world.write(ROOMS, recordFile({room("12,5", "1", "0,25", "-3,75"), room("84", "1.5", "2", "")}));
    const auto store = LocationFiles::loadRooms(world.folder() + u'/');
    EXPECT_EQ(store->GetAttribute(u"LEFT"_s), u"1.5"); // the cursor stands on the last row
    EXPECT_EQ(recordLines(world.read(ROOMS)),
              (QByteArrayList{room("12.5", "1", "0.25", "-3.75"), room("84", "1.5", "2", "")}));
}

TEST(LocationFilesTest, loadRooms_pointWhereCommaRules_isRewrittenAndSaved) {
    TestWorld world;
    world.setLocale(GERMAN);
    world.write(ROOMS, recordFile({room("12.5", "1", "0.25", "-3.75")}));
    (void)LocationFiles::loadRooms(world.folder() + u'/');
    EXPECT_EQ(recordLines(world.read(ROOMS)), QByteArrayList{room("12,5", "1", "0,25", "-3,75")});
}

TEST(LocationFilesTest, loadLocations_repairsNorthAndItsPointOnly) {
    TestWorld world;
    world.write(LOCATIONS, recordFile({location("176,5", "11,5", "-2,25")}));
    (void)LocationFiles::loadLocations(world.folder() + u'/');
    EXPECT_EQ(recordLines(world.read(LOCATIONS)), QByteArrayList{location("176.5", "11.5", "-2.25")});
    world.setLocale(GERMAN);
    (void)LocationFiles::loadLocations(world.folder() + u'/');
    EXPECT_EQ(recordLines(world.read(LOCATIONS)), QByteArrayList{location("176,5", "11,5", "-2,25")});
}

TEST(LocationFilesTest, load_everyMarkOfAText_isReplaced) {
    const TestWorld world;
    world.write(ROOMS, recordFile({room("1,2,3", ",", "a,b", "1")}));
    (void)LocationFiles::loadRooms(world.folder() + u'/');
    EXPECT_EQ(recordLines(world.read(ROOMS)), QByteArrayList{room("1.2.3", ".", "a.b", "1")});
}

TEST(LocationFilesTest, load_nothingToRepair_leavesTheFileAlone) {
    const TestWorld world;
    const QByteArray rooms = recordFile({room("12.5", "1", "0.25", "-3.75")});
    world.write(ROOMS, rooms);
    const auto store = LocationFiles::loadRooms(world.folder() + u'/');
    EXPECT_EQ(world.read(ROOMS), rooms); // not even laid out anew
    EXPECT_EQ(store->RecordCount, 1);
}

TEST(LocationFilesTest, load_noRegionalSymbol_countsAsAPoint) {
    const TestWorld world;
    Global::RegionalDecimal = QString(QChar(u'\0')); // what the system answers when it has none
    world.write(ROOMS, recordFile({room("12,5", "1", "1", "1")}));
    (void)LocationFiles::loadRooms(world.folder() + u'/');
    EXPECT_EQ(recordLines(world.read(ROOMS)), QByteArrayList{room("12.5", "1", "1", "1")});
}

TEST(LocationFilesTest, load_emptyFile_isSilent) {
    const TestWorld world;
    EXPECT_EQ(LocationFiles::loadRooms(world.folder() + u'/')->RecordCount, 0);
    EXPECT_EQ(LocationFiles::loadLocations(world.folder() + u'/')->RecordCount, 0);
}

TEST(LocationFilesTest, load_missingAttributes_stayMissing) {
    const TestWorld world;
    const QByteArray rooms = recordFile({"<z:row ROOMID=\"1\" TOP=\"1,5\" />", "<z:row ROOMID=\"2\" />"});
    world.write(ROOMS, rooms);
    (void)LocationFiles::loadRooms(world.folder() + u'/');
    EXPECT_EQ(recordLines(world.read(ROOMS)),
              (QByteArrayList{"<z:row ROOMID=\"1\" TOP=\"1.5\" />", "<z:row ROOMID=\"2\" />"}));
}

TEST(LocationFilesTest, load_missingFile_isReportedByTheWalkOverItsRecords) {
    TestWorld world;
    world.remove(ROOMS);
    world.prompts.expectError(u"cXMLHandler.Move First"_s, 91,
                              u"Object variable or With block variable not set"_s);
    EXPECT_NE(LocationFiles::loadRooms(world.folder() + u'/'), nullptr);
}

} // namespace
