#include "faults/FaultTable.h"

using namespace Boxes;

namespace {

/// What keeps a file from being read. That is never reported by itself, but by each use of what it should
/// have held.
const std::vector<Fault> unread = {Fault::Missing, Fault::Empty, Fault::Truncated, Fault::Directory,
                                   Fault::NotReadable};
/// The rows of what does not concern somebody who reads. Settings change where the disk has room for it.
void addHarmless(FaultTable& rows, const Operation& operation, const QStringList& changed = {}) {
    for (const char* file :
         {"Profiles.xml", "Locations.xml", "Floors.xml", "Rooms.xml", "KUAYears.xml", "Directions.xml",
          "PersonalDirections.xml", "Elements.xml", "Colors.xml", "Symbols.xml", "TimeOfDay.xml",
          "Trigrams.xml", "Animals.xml", "RoomTypes.xml", "FloorTypes.xml"}) {
        rows.push_back({file, {Fault::NotWritable, Fault::LockedUp}, operation, {}, changed});
        rows.push_back({file, {Fault::FullDisk}, operation, {}, {}});
    }
}

/// The rows of the files that advice needs no more, as they are in memory or have no part in it.
void addUninvolved(FaultTable& rows, const std::vector<Operation>& advice, const QStringList& changed) {
    for (const char* file :
         {"Profiles.xml", "Locations.xml", "Floors.xml", "PersonalDirections.xml", "Symbols.xml",
          "TimeOfDay.xml", "Trigrams.xml", "RoomTypes.xml", "FloorTypes.xml"}) {
        for (const Operation& operation : advice) {
            rows.push_back({file, {Fault::Missing}, operation, {}, changed});
        }
    }
}

} // namespace

FaultTable readingRows() {
    const Operation start = Operations::start;
    const Operation choose = Operations::choosePerson;
    const Operation open = Operations::openRoom;
    const QStringList settings = {QStringLiteral("settings/Talivane.ini")};
    FaultTable rows = {
        // The start: `Main` looks the last home and person up, the window lists all and looks both up again.
        {"Profiles.xml", unread, start, {find, moveFirst, find}, {}},
        {"Locations.xml", unread, start, {moveFirst, find, moveFirst, moveFirst, find}, {}},
        {"Floors.xml", unread, start, {query}, {}},
        {"Rooms.xml", unread, start, {moveFirst, moveFirst, query}, {}},
        // The person is looked up twice; each look-up ends at the table that is not there.
        {"KUAYears.xml", unread, start, {find, find}, {}},
        {"Directions.xml", unread, start, {find, find}, {}},
        {"PersonalDirections.xml", unread, start, {advFind, advFind}, {}},
        {"Elements.xml", unread, start, {find, find}, {}},
        // The element has its name, and so its four relations are looked up for the pane, colours and all.
        {"Colors.xml", unread, start, times(6, {find}), {}},
        {"Symbols.xml", unread, start, {find, find}, {}},
        {"TimeOfDay.xml", unread, start, {find, find}, {}},
        {"Trigrams.xml", unread, start, {find, find}, {}},
        {"Animals.xml", unread, start, {find, find}, {}},
        {"RoomTypes.xml", unread, start, {}, {}},
        {"FloorTypes.xml", unread, start, {}, {}},

        // What a person needs is in memory but for the element's relations, which are looked up anew.
        {"Profiles.xml", unread, choose, {}, settings},
        {"KUAYears.xml", unread, choose, {}, settings},
        {"Directions.xml", unread, choose, {}, settings},
        {"PersonalDirections.xml", unread, choose, {}, settings},
        {"Elements.xml", unread, choose, times(4, {find}), settings},
        {"Colors.xml", unread, choose, times(4, {find}), settings},
        {"Symbols.xml", unread, choose, {}, settings},
        {"TimeOfDay.xml", unread, choose, {}, settings},
        {"Trigrams.xml", unread, choose, {}, settings},
        {"Animals.xml", unread, choose, {}, settings},

        // Homes and floors are in memory; the rooms are read anew for each floor on show.
        {"Locations.xml", unread, Operations::showHomes, {}, {}},
        {"Floors.xml", unread, Operations::showHomes, {}, {}},
        {"Rooms.xml", unread, Operations::showHomes, {moveFirst, query}, {}},

        // The editor reads the rooms and its lists anew; the chart asks for eight colours, the page for one.
        {"Rooms.xml", unread, open, {moveFirst, find}, settings},
        {"RoomTypes.xml", unread, open, {moveFirst}, settings},
        {"FloorTypes.xml", unread, open, {moveFirst}, settings},
        {"Directions.xml", unread, open, {moveFirst}, settings},
        {"Colors.xml", unread, open, times(9, {find}), settings},

        // The compasses draw what is in memory; Cancel has the home and its rooms read the file anew.
        {"Rooms.xml", unread, Operations::lookAtHome, {moveFirst, moveFirst}, settings},
        {"Rooms.xml", unread, Operations::lookAtRoom, {}, settings},
    };
    addHarmless(rows, start);
    addHarmless(rows, Operations::lookAtHome, settings);
    return rows;
}

FaultTable adviceRows() {
    constexpr int rooms = 17;   // of the sample household
    constexpr int sectors = 8;  // of a compass
    constexpr int drawings = 2; // of a chart: the large one and the one in the report
    const QStringList settings = {QStringLiteral("settings/Talivane.ini")};
    const Operation report = Operations::reportRooms;
    const Operation chart = Operations::chartYear;
    const Operation move = Operations::adviseMove;
    const Operation renovation = Operations::adviseRenovation;
    const Operation years = Operations::adviseYears;
    const QString noChart =
        QStringLiteral("Nine Ki Chart: Error Reading Directions.  Could not calculate Nine Ki Chart.");
    const QString noMove = QStringLiteral(
        "Directions to Move: Error Reading Directions.  Could not calculate directions to Move.");
    const QString noAreas = QStringLiteral(
        "Areas to Renovate: Error Reading Directions.  Could not calculate areas to renovate/redecorate.");
    constexpr int rated = 5;          // years of the advice on years
    constexpr int comparedInAll = 24; // sectors of these years that nothing decides before the elements
    constexpr int compared = 4;       // such sectors of the year that is drawn
    FaultTable rows = {
        {"Rooms.xml", unread, report, times(rooms, {moveFirst, find}), settings},
        {"Colors.xml", unread, report, times(rooms * sectors, {find}), settings},

        // The year is looked up for its start and for its sign.
        {"KUAYears.xml", unread, chart, times(drawings * 2, {find}), settings},
        {"Animals.xml", unread, chart, times(drawings, {find}), settings},
        {"Directions.xml", unread, chart, times(drawings, {moveFirst, noChart}), settings},
        // Two elements are compared in each sector.
        {"Elements.xml", unread, chart, times(drawings * sectors * 2, {find}), settings},
        // Each sector asks for its own colour and for those of two elements, the centre for its own.
        {"Colors.xml", unread, chart, times(drawings * (sectors * 3 + 1), {find}), settings},

        // Of the eight sectors four are decided before any elements are compared.
        {"KUAYears.xml", unread, move, times(drawings * 2, {find}), settings},
        {"Animals.xml", unread, move, times(drawings, {find}), settings},
        {"Directions.xml", unread, move, times(drawings, {moveFirst, noMove}), settings},
        {"Elements.xml", unread, move, times(drawings * 4 * 2, {find}), settings},
        {"Colors.xml", unread, move, times(drawings * 4 * 2, {find}), settings},

        // Elements have no part in a renovation.
        {"KUAYears.xml", unread, renovation, times(drawings * 2, {find}), settings},
        {"Animals.xml", unread, renovation, times(drawings, {find}), settings},
        {"Directions.xml", unread, renovation, times(drawings, {moveFirst, noAreas}), settings},

        // Each year is rated; then the first good one is drawn. Where none is, the compass shows the first.
        {"KUAYears.xml", unread, years, times((rated + drawings) * 2, {find}), settings},
        {"Animals.xml", unread, years, times(rated + drawings, {find}), settings},
        {"Directions.xml", unread, years, times(rated + 1, {moveFirst, noMove}), settings},
        {"Elements.xml", unread, years, times((comparedInAll + compared) * 2, {find}), settings},
        {"Colors.xml", unread, years, times((comparedInAll + drawings * compared) * 2, {find}), settings},
    };
    addUninvolved(rows, {report, chart, move, renovation, years}, settings);
    return rows;
}

FaultTable browsingRows() {
    constexpr int read = 2;       // the one on show first, and the next
    constexpr int sectors = 8;    // of a compass
    constexpr int withCentre = 9; // its sectors and its centre
    constexpr int relations = 4;  // elements that an element's report names
    const QStringList settings = {QStringLiteral("settings/Talivane.ini")};
    const Operation people = Operations::browsePeople;
    const Operation elements = Operations::browseElements;
    FaultTable rows = {
        // Each person is looked up as at the start. A look-up that fails ends there; what is drawn then has
        // the colours of nobody.
        {"Profiles.xml", unread, people, {moveFirst}, settings},
        {"KUAYears.xml", unread, people, times(read, {find}), settings},
        {"PersonalDirections.xml", unread, people, times(read, {advFind}), settings},
        {"Symbols.xml", unread, people, times(read, {find}), settings},
        {"TimeOfDay.xml", unread, people, times(read, {find}), settings},
        {"Trigrams.xml", unread, people, times(read, {find}), settings},
        {"Animals.xml", unread, people, times(read, {find}), settings},
        // The person's own, and those of the ring of the compass.
        {"Directions.xml", unread, people, times(read * (1 + sectors), {find}), settings},
        {"Elements.xml", unread, people, times(read * (1 + sectors + relations), {find}), settings},
        // The person's own; the compass, its ring and the middle; the chart and its middle; the relations.
        {"Colors.xml", unread, people,
         times(read * (1 + withCentre * 2 + withCentre + 1 + relations), {find}), settings},

        {"Elements.xml", unread, elements, {moveFirst}, settings},
        // Those of the ring of the compass and of the middle.
        {"Directions.xml", unread, elements, times(read * withCentre, {find}), settings},
        // The element's own; the compass; its ring and the middle; the relations.
        {"Colors.xml", unread, elements, times(read * (1 + sectors + withCentre + relations), {find}),
         settings},
    };
    for (const char* file : {"Locations.xml", "Floors.xml", "Rooms.xml", "RoomTypes.xml", "FloorTypes.xml"}) {
        rows.push_back({file, {Fault::Missing}, people, {}, settings});
    }
    for (const char* file : {"Profiles.xml", "KUAYears.xml", "PersonalDirections.xml", "Symbols.xml",
                             "TimeOfDay.xml", "Trigrams.xml", "Animals.xml"}) {
        rows.push_back({file, {Fault::Missing}, elements, {}, settings});
    }
    addHarmless(rows, people, settings);
    addHarmless(rows, elements, settings);
    return rows;
}
