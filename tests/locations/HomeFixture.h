#pragma once

#include "core/Global.h"
#include "locations/cLocation.h"
#include "support/QtPrinting.h"
#include "support/RecordFiles.h"
#include "support/TestWorld.h"

#include <QDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

inline const QString OBJECT_NOT_SET = u"Object variable or With block variable not set"_s;
inline const QString LOCATIONS = u"Locations.xml"_s;
inline const QString FLOORS = u"Floors.xml"_s;
inline const QString ROOMS = u"Rooms.xml"_s;
inline const QString START_UP = u"SOFTWARE\\Orvenel\\Talivane\\StartUp"_s;

inline QByteArray floorRow(int id, int location, const QByteArray& name = "Floor") {
    return "<z:row FLOORID=\"" + QByteArray::number(id) + "\" LOCATIONID=\"" + QByteArray::number(location) +
           "\" DESCRIPTION=\"" + name + "\" />";
}

inline QByteArray roomRow(int id, int location, int floor) {
    return "<z:row ROOMID=\"" + QByteArray::number(id) + "\" LOCATIONID=\"" + QByteArray::number(location) +
           "\" FLOORID=\"" + QByteArray::number(floor) + "\" />";
}

inline QByteArray locationRow(int id, const QByteArray& name) {
    return "<z:row LOCATIONID=\"" + QByteArray::number(id) + "\" DESCRIPTION=\"" + name + "\" />";
}

/// A record file with one more record outside its data element: it is found, but cannot be deleted.
inline QByteArray recordFileWithRefusing(const QByteArrayList& rows, const QByteArray& refusing) {
    return recordFile(rows).replace("</xml>", "<rs:more>" + refusing + "</rs:more></xml>");
}

class HomeFixture : public testing::Test {
protected:
    /// Two homes: number 1 with the floors 1 and 2 and the rooms 1 to 3, number 2 with a floor and a room.
    HomeFixture() {
        world.write(LOCATIONS, recordFile({locationRow(1, "Elm Street"), locationRow(2, "Lakeside")}));
        world.write(FLOORS, recordFile({floorRow(1, 1), floorRow(3, 2), floorRow(2, 1)}));
        world.write(ROOMS,
                    recordFile({roomRow(1, 1, 1), roomRow(4, 2, 3), roomRow(2, 1, 2), roomRow(3, 1, 1)}));
        load();
    }

    void load() {
        ASSERT_TRUE(home.LoadLocations());
        ASSERT_TRUE(home.LoadFloors());
        ASSERT_TRUE(home.LoadRooms());
    }

    [[nodiscard]] QByteArrayList stored(const QString& file) const { return recordLines(world.read(file)); }
    [[nodiscard]] QList<QByteArray> allFiles() const {
        return {world.read(LOCATIONS), world.read(FLOORS), world.read(ROOMS)};
    }

    /// The names of a location's floors in the order of the file.
    [[nodiscard]] QStringList floorNames(qint32 locationId) {
        QStringList names;
        cLocation fresh;
        fresh.LoadFloors();
        fresh.oXMLFloors->Query(u"//z:row[@LOCATIONID = '%1']"_s.arg(locationId));
        for (qint32 index = 0; index < fresh.oXMLFloors->ResultCount; ++index) {
            fresh.oXMLFloors->GetResult(index);
            names << fresh.oXMLFloors->GetAttribute(u"DESCRIPTION"_s, true);
        }
        return names;
    }

    void expectObjectNotSet(const QString& label) { world.prompts.expectError(label, 91, OBJECT_NOT_SET); }

    TestWorld world;
    cLocation home;
};
