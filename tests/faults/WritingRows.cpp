#include "faults/FaultTable.h"

using namespace Boxes;

namespace {

/// What does not keep a file from being written: the document is in memory, and is written whole.
const std::vector<Fault> healed = {Fault::None, Fault::Missing, Fault::Empty, Fault::Truncated};
/// What keeps a file from being read.
const std::vector<Fault> unread = {Fault::Missing, Fault::Empty, Fault::Truncated, Fault::Directory,
                                   Fault::NotReadable};

const QString settings = QStringLiteral("settings/Talivane.ini");
const QString profiles = QStringLiteral("Profiles.xml");
const QString locations = QStringLiteral("Locations.xml");
const QString floors = QStringLiteral("Floors.xml");
const QString rooms = QStringLiteral("Rooms.xml");

/// What follows when the rooms of the floor on show are read anew and cannot be.
const QStringList noRooms = {moveFirst, query};

/// One operation that writes a file which stays in memory. A save that fails is reported once, and the file
/// stands as it stood.
struct Writing {
    const char* file;
    Operation operation;
    /// Whether the file needs more room on the disk afterwards.
    bool grows = false;
    /// What else is written, whatever becomes of the file.
    QStringList others = {};
    /// The boxes that come last in any case.
    QStringList last = {};
    /// The boxes after the save when the file cannot be read any more.
    QStringList whenUnreadable = {};
};

void add(FaultTable& rows, const Writing& writing) {
    QStringList written = QStringList{QString::fromLatin1(writing.file)} + writing.others;
    written.sort();
    const auto row = [&](const std::vector<Fault>& faults, const QStringList& boxes,
                         const QStringList& changed) {
        rows.push_back({writing.file, faults, writing.operation, boxes + writing.last, changed});
    };
    row(healed, {}, written);
    row({Fault::NotReadable}, writing.whenUnreadable, written);
    row({Fault::NotWritable, Fault::LockedUp}, {save(denied)}, writing.others);
    row({Fault::Directory}, QStringList{save(noFile)} + writing.whenUnreadable, writing.others);
    // The settings find no room either, which is never reported.
    written.removeAll(settings);
    QStringList others = writing.others;
    others.removeAll(settings);
    row({Fault::FullDisk}, writing.grows ? QStringList{save(diskFull)} : QStringList(),
        writing.grows ? others : written);
    if (writing.grows) {
        row({Fault::NearlyFull}, {save(diskFull)}, writing.others);
    }
}

/// What follows where the editor's advice and the plan behind it read the rooms anew.
const QStringList noAdvice = QStringList{moveFirst, find} + noRooms;

/// Operations that write one file.
void addSingleFiles(FaultTable& rows) {
    add(rows, {.file = "Profiles.xml", .operation = Operations::renamePerson, .grows = true});
    add(rows,
        {.file = "Profiles.xml", .operation = Operations::addPerson, .grows = true, .others = {settings}});
    add(rows, {.file = "Profiles.xml", .operation = Operations::deletePerson, .others = {settings}});
    add(rows, {.file = "Locations.xml", .operation = Operations::renameHome, .grows = true});
    add(rows, {.file = "Locations.xml",
               .operation = Operations::addHome,
               .grows = true,
               .others = {floors, settings}});
    add(rows, {.file = "Floors.xml",
               .operation = Operations::addFloor,
               .last = {QStringLiteral("New Floor: A Floor Named Third Floor has been added.")}});
    add(rows, {.file = "Rooms.xml", .operation = Operations::moveRoom});
    add(rows, {.file = "Rooms.xml", .operation = Operations::removeRoom, .whenUnreadable = noRooms});
    for (const Operation& operation : {Operations::addRoom, Operations::changeRoom}) {
        add(rows, {.file = "Rooms.xml",
                   .operation = operation,
                   .grows = true,
                   .others = {settings},
                   .whenUnreadable = noAdvice});
    }
}

/// Operations that write several files.
void addSeveralFiles(FaultTable& rows) {
    // A new home takes up two files, the end of a home three; each is saved whatever became of the others.
    const std::vector<Fault> locked = {Fault::NotWritable, Fault::LockedUp};
    rows.push_back({"Floors.xml", locked, Operations::addHome, {save(denied)}, {locations, settings}});
    rows.push_back(
        {"Floors.xml", {Fault::Directory}, Operations::addHome, {save(noFile)}, {locations, settings}});
    const Operation end = Operations::deleteHome;
    rows.push_back({"Locations.xml", healed, end, {}, {floors, locations, ::rooms}});
    rows.push_back({"Locations.xml", locked, end, {save(denied)}, {floors, ::rooms}});
    rows.push_back({"Floors.xml", locked, end, {save(denied)}, {locations, ::rooms}});
    rows.push_back({"Rooms.xml", locked, end, {save(denied)}, {floors, locations}});

    // North is saved with the home, the directions that follow from it with the rooms, which are read anew
    // twice behind that.
    const Operation north = Operations::setNorth;
    rows.push_back({"Locations.xml", healed, north, {}, {locations, ::rooms, settings}});
    rows.push_back({"Locations.xml", locked, north, {save(denied)}, {::rooms, settings}});
    rows.push_back({"Locations.xml", {Fault::Directory}, north, {save(noFile)}, {::rooms, settings}});
    rows.push_back({"Rooms.xml", locked, north, {save(denied)}, {locations, settings}});
    rows.push_back(
        {"Rooms.xml", {Fault::Directory}, north, {save(noFile), moveFirst}, {locations, settings}});

    // Decimal separators of another country are put right at each load: the rooms are loaded by the start and
    // by the plan. No room is needed for that.
    const Operation elsewhere = Operations::startElsewhere;
    const std::vector<Fault> harmless = {Fault::None, Fault::FullDisk};
    rows.push_back({"Locations.xml", harmless, elsewhere, {}, {locations}});
    rows.push_back({"Locations.xml", locked, elsewhere, {save(denied)}, {}});
    rows.push_back({"Rooms.xml", harmless, elsewhere, {}, {::rooms}});
    rows.push_back({"Rooms.xml", locked, elsewhere, {save(denied), save(denied)}, {}});
}

/// The folder has gone, with all its files.
void addLostFolder(FaultTable& rows) {
    const std::vector<Fault> gone = {Fault::NoFolder};
    const QStringList lost = {save(noPath)};
    // A person's year is looked up before the save, the relations of the element whenever a person is shown.
    rows.push_back(
        {"Profiles.xml", gone, Operations::renamePerson, QStringList{find} + lost + times(4, {find}), {}});
    rows.push_back({"Profiles.xml",
                    gone,
                    Operations::addPerson,
                    QStringList{find} + lost + times(2 * 4, {find}),
                    {settings}});
    rows.push_back({"Locations.xml", gone, Operations::renameHome, lost + noRooms, {}});
    rows.push_back({"Rooms.xml", gone, Operations::moveRoom, lost, {}});
    rows.push_back({"Rooms.xml", gone, Operations::removeRoom, lost + noRooms, {}});
    // The report's page has the colour of a direction.
    rows.push_back({"Rooms.xml", gone, Operations::addRoom, lost + QStringList{find} + noAdvice, {settings}});
}

} // namespace

FaultTable writingRows() {
    FaultTable rows;
    addSingleFiles(rows);
    addSeveralFiles(rows);
    addLostFolder(rows);
    return rows;
}

FaultTable enteringRows() {
    FaultTable rows;
    // Where the file could not be read, what is in memory is no record file: it never takes the place of what
    // may yet be mended, and a file that is missing is not made from nothing.
    rows.push_back({"Profiles.xml",
                    unread,
                    Operations::startAndAddPerson,
                    QStringList{find, moveFirst, find} +                                   // the start
                        QStringList{getMax, addNew, nothingToSave, find, moveFirst, find}, // the save
                    {settings}});
    rows.push_back({"Locations.xml",
                    unread,
                    Operations::startAndAddHome,
                    QStringList{moveFirst, find, moveFirst, moveFirst, find} +
                        QStringList{getMax, addNew, nothingToSave, find, moveFirst, find},
                    {floors, settings}});
    rows.push_back({"Floors.xml",
                    unread,
                    Operations::startAndAddHome,
                    QStringList{query, query} + QStringList{getMax, addNew, nothingToSave, query},
                    {locations, settings}});
    rows.push_back({"Rooms.xml",
                    unread,
                    Operations::startAndAddRoom,
                    QStringList{moveFirst} + noRooms + noRooms +
                        QStringList{moveFirst, getMax, addNew, nothingToSave, moveFirst, find},
                    {settings}});
    return rows;
}
