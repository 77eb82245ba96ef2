#pragma once

#include "core/Global.h"
#include "locations/cLocation.h"
#include "support/RecordFiles.h"
#include "support/TestWorld.h"

#include <gtest/gtest.h>

#include <memory>

/// A room record; what a test leaves out is a sound value.
struct RoomRow {
    int id = 1;
    QByteArray left = "0";
    QByteArray top = "0";
    QByteArray width = "120";
    QByteArray length = "120";
    QByteArray floor = "1";
    int location = 1;
    QByteArray direction = "5";

    [[nodiscard]] QByteArray line() const {
        return "<z:row ROOMID=\"" + QByteArray::number(id) + "\" LOCATIONID=\"" +
               QByteArray::number(location) + "\" FLOORID=\"" + floor + "\" DESCRIPTION=\"Room " +
               QByteArray::number(id) + "\" TOP=\"" + top + "\" LEFT=\"" + left + "\" LENGTH=\"" + length +
               "\" WIDTH=\"" + width + "\" RELATIVEDIRECTION=\"" + direction + "\" />";
    }
};

/// A home with rooms of a test's own, loaded as the program does.
class CompassWorld {
public:
    TestWorld world;

    CompassWorld() { Global::CurrentFloorID = 1; }
    CompassWorld(const CompassWorld&) = delete;
    CompassWorld& operator=(const CompassWorld&) = delete;
    ~CompassWorld() {
        Global::CurrentLocation.reset();
        Global::CurrentFloorID = 0;
    }

    /// Stores the home and opens it.
    void open(const std::vector<RoomRow>& rows, const QByteArray& north = "0", const QByteArray& labelX = "0",
              const QByteArray& labelY = "0") const {
        QByteArrayList lines;
        for (const RoomRow& row : rows) {
            lines << row.line();
        }
        world.write(QStringLiteral("Rooms.xml"), recordFile(lines));
        world.write(QStringLiteral("Locations.xml"),
                    recordFile({"<z:row LOCATIONID=\"1\" DESCRIPTION=\"Elm &amp; Oak\" NORTHOFFSET=\"" +
                                north + "\" LABLEX=\"" + labelX + "\" LABLEY=\"" + labelY + "\" />"}));
        Global::CurrentLocation = std::make_unique<cLocation>();
        Global::CurrentLocation->LoadLocations();
        Global::CurrentLocation->LoadRooms();
        EXPECT_TRUE(Global::CurrentLocation->GetLocation(1));
    }

    /// The room's direction as it stands in memory.
    [[nodiscard]] static QString direction(int room) {
        cXMLHandler& rooms = *Global::CurrentLocation->oXMLRooms;
        EXPECT_TRUE(rooms.Find(QStringLiteral("ROOMID"), room));
        return rooms.GetAttribute(QStringLiteral("RELATIVEDIRECTION"));
    }

    /// The room's direction as it stands on disk.
    [[nodiscard]] QString storedDirection(int room) const {
        cXMLHandler rooms;
        EXPECT_TRUE(rooms.LoadDocument(world.file(QStringLiteral("Rooms.xml"))));
        EXPECT_TRUE(rooms.Find(QStringLiteral("ROOMID"), room));
        return rooms.GetAttribute(QStringLiteral("RELATIVEDIRECTION"));
    }
};
