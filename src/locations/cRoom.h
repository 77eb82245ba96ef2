#pragma once

#include "store/cXMLHandler.h"

#include <QString>

#include <memory>

class ReportSurface;

/// One room of a home: its place on the floor plan and what the advice depends on. Every object works on
/// its own copy of `Rooms.xml`, as the file was last saved; call `LoadRooms` before anything else.
///
/// Plan distances are inches.
class cRoom {
public:
    std::unique_ptr<cXMLHandler> oXMLRooms;
    std::unique_ptr<cXMLHandler> oXMLRoomTypes;
    std::unique_ptr<cXMLHandler> oXMLFloorTypes;
    qint32 RoomID = 0;
    qint32 LocationID = 0;
    qint32 FLOORID = 0;
    /// 1 and 2 are bedrooms, 3 and 11 bathroom and laundry, 4 and 12 family and living room, 5 dining room,
    /// 6 kitchen, 7 home office, 8 and 9 hallways, 10 closet, 13 gym.
    qint32 ROOMTYPEID = 0;
    /// 1 carpet, 2 wood, 3 stone, 4 tile.
    qint32 FLOORTYPEID = 0;
    /// The room's name.
    QString DESCRIPTION;
    /// Distance of the upper edge from the top of the plan.
    float TOP = 0;
    /// Distance of the left edge from the left of the plan.
    float LEFT = 0;
    /// Vertical extent on the plan.
    float Length = 0;
    /// Horizontal extent on the plan.
    float WIDTH = 0;
    /// The direction id of the room as seen from the centre of the home; 5 is the centre itself.
    qint32 RelativeDirection = 0;
    /// The room holds the home's main entrance.
    bool HasEntrance = false;
    bool HASEXPOSEDBEAMS = false;
    bool HASLOWCEILING = false;

    /// Touches no file.
    cRoom();

    /// Writes the advice on this room. Defined in the analysis layer.
    void AnalyzeRoom(ReportSurface& vp);

    /// Reads a room by id. False for an unknown one; the fields then keep what they held. There are no
    /// defaults: a number that does not convert is reported, and the fields before it stay filled.
    bool GetRoom(qint32 lRoomID);

    /// Stores the fields as a new room, whose id is one above the highest. `RoomID` stays as it was.
    bool InsertRoom();

    /// Stores the fields of the room `RoomID`. False when it is not in the file.
    bool UpdateRoom();

    /// Deletes the room `RoomID`. False when it is not in the file.
    bool DeleteRoom();

    /// Reads `Rooms.xml` anew and repairs its decimal separators. Always true.
    bool LoadRooms();

    /// Reads `RoomTypes.xml` anew. Always true.
    bool LoadRoomTypes();

    /// Reads `FloorTypes.xml` anew. Always true.
    bool LoadFlooring();

private:
    /// Writes all fields but the key to the record at the store's cursor.
    void writeFields(cXMLHandler& store) const;

    QString folder;
};
