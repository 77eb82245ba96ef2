#include "core/Global.h"
#include "faults/FaultStage.h"
#include "faults/FaultTable.h"
#include "locations/cRoom.h"
#include "profiles/cProfile.h"
#include "store/RecordStore.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace Boxes;

namespace {

/// The lengths at which a file is cut: each hundredth byte up to where its document ends.
std::vector<qsizetype> cutsOf(const QByteArray& whole) {
    constexpr qsizetype step = 100;
    std::vector<qsizetype> cuts;
    for (qsizetype length = 0; length <= whole.lastIndexOf('>'); length += step) {
        cuts.push_back(length);
    }
    EXPECT_GT(cuts.size(), 5U);
    return cuts;
}

/// Runs the rows that tell of files cut short once for each length, and asks for the same as of any other
/// cut.
void expectAtEachCut(const FaultTable& rows) {
    for (const FaultRow& row : rows) {
        if (std::find(row.faults.begin(), row.faults.end(), Fault::Truncated) == row.faults.end()) {
            continue;
        }
        const QString place = QString::fromLatin1(row.place);
        for (const qsizetype length : cutsOf(FaultStage(place, Fault::None).content())) {
            SCOPED_TRACE(std::string(row.place) + ", first " + std::to_string(length) +
                         " bytes: " + row.operation.name);
            FaultStage stage(place, Fault::None);
            stage.put(stage.content().left(length));
            row.operation.run(stage);
            stage.finish();
            EXPECT_EQ(stage.boxes.noted().join(u'\n').toStdString(), row.boxes.join(u'\n').toStdString());
            EXPECT_EQ(stage.changed().join(u'\n').toStdString(), row.changed.join(u'\n').toStdString());
        }
    }
}

/// The rows of the four record files for one operation.
FaultTable recordFileRows(const FaultTable& rows, const Operation& operation) {
    FaultTable found;
    for (const FaultRow& row : rows) {
        const std::string file = row.place;
        const bool records =
            file == "Profiles.xml" || file == "Locations.xml" || file == "Floors.xml" || file == "Rooms.xml";
        if (records && row.operation.run == operation.run) {
            found.push_back(row);
        }
    }
    return found;
}

/// A reference table cut short, and the reports of whoever reads it.
struct CutTable {
    const char* file;
    QString report;
};

/// Reads all that the tables hold on a person, and the names that the room editor lists.
void readTables() {
    cProfile person;
    person.GetProfile(1);
    cRoom room;
    room.LoadRoomTypes();
    room.LoadFlooring();
    room.oXMLRoomTypes->MoveFirst();
    room.oXMLFloorTypes->MoveFirst();
}

} // namespace

TEST(TruncationTest, recordFilesAtTheStart) {
    const FaultTable rows = recordFileRows(readingRows(), Operations::start);
    ASSERT_GE(rows.size(), 4U);
    expectAtEachCut(rows);
}

TEST(TruncationTest, recordFilesBeforeAnEntry_areNeverWrittenOver) {
    expectAtEachCut(enteringRows());
}

TEST(TruncationTest, referenceTables) {
    const CutTable tables[] = {
        {"KUAYears.xml", find},       {"Directions.xml", find},      {"PersonalDirections.xml", advFind},
        {"Elements.xml", find},       {"Colors.xml", find},          {"Symbols.xml", find},
        {"TimeOfDay.xml", find},      {"Trigrams.xml", find},        {"Animals.xml", find},
        {"RoomTypes.xml", moveFirst}, {"FloorTypes.xml", moveFirst},
    };
    const SmallDisk disk;
    const TestWorld world(TestWorld::Records::Sample);
    for (const CutTable& table : tables) {
        const QString file = QString::fromLatin1(table.file);
        const QByteArray whole = world.read(file);
        for (const qsizetype length : cutsOf(whole)) {
            SCOPED_TRACE(std::string(table.file) + ", first " + std::to_string(length) + " bytes");
            NotedBoxes boxes;
            Services services = Global::services();
            services.prompts = &boxes;
            Global::use(services);
            world.write(file, whole.left(length));
            const FolderSnapshot before(world.folder());
            readTables();
            EXPECT_EQ(boxes.noted().join(u'\n').toStdString(), table.report.toStdString());
            EXPECT_TRUE(FolderSnapshot(world.folder()).changedSince(before).isEmpty());
        }
        world.write(file, whole);
    }
}

TEST(TruncationTest, settings_areReadAsFarAsTheyGoAndNeverReported) {
    const qsizetype whole = FaultStage(FaultStage::settingsFile, Fault::None).content().size();
    constexpr qsizetype step = 10;
    ASSERT_GT(whole, 5 * step);
    for (qsizetype length = 0; length < whole; length += step) {
        SCOPED_TRACE(length);
        FaultStage stage(FaultStage::settingsFile, Fault::None);
        stage.put(stage.content().left(length));
        Operations::startChooseAndEnd.run(stage);
        stage.finish();
        EXPECT_EQ(stage.boxes.noted().join(u'\n').toStdString(), "");
        EXPECT_EQ(stage.changed(), QStringList{FaultStage::settingsFile});
        EXPECT_EQ(stage.setting("LastProfile"), QStringLiteral("2"));
    }
}
