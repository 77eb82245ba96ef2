#include "locations/cRoom.h"

#include "core/Conversion.h"
#include "core/Failure.h"
#include "core/Global.h"
#include "locations/LocationFiles.h"
#include "store/RecordStore.h"

using namespace Qt::StringLiterals;

namespace {

const QString KEY = u"ROOMID"_s;

/// A stored flag; one of an unknown spelling reads as false.
bool flag(const QString& text) {
    return Global::NormalizeBoolean(text) == u"True"_s;
}

} // namespace

cRoom::cRoom() {
    routine(u"cRoom.Initialize Room", [this] { folder = Global::dataFolder(); });
}

bool cRoom::GetRoom(qint32 lRoomID) {
    return routine(u"cRoom.Get Room", false, [&](bool& result) {
        cXMLHandler& store = RecordStore::opened(oXMLRooms);
        if (!store.Find(KEY, lRoomID)) {
            return;
        }
        RoomID = Conversion::toLong(store.GetAttribute(KEY));
        LocationID = Conversion::toLong(store.GetAttribute(u"LOCATIONID"_s));
        FLOORID = Conversion::toLong(store.GetAttribute(u"FLOORID"_s));
        ROOMTYPEID = Conversion::toLong(store.GetAttribute(u"ROOMTYPEID"_s));
        FLOORTYPEID = Conversion::toLong(store.GetAttribute(u"FLOORTYPEID"_s));
        DESCRIPTION = store.GetAttribute(u"DESCRIPTION"_s);
        TOP = LocationFiles::distance(store.GetAttribute(u"TOP"_s));
        LEFT = LocationFiles::distance(store.GetAttribute(u"LEFT"_s));
        Length = LocationFiles::distance(store.GetAttribute(u"LENGTH"_s));
        WIDTH = LocationFiles::distance(store.GetAttribute(u"WIDTH"_s));
        RelativeDirection = Conversion::toLong(store.GetAttribute(u"RELATIVEDIRECTION"_s));
        HasEntrance = flag(store.GetAttribute(u"HASENTRANCE"_s));
        HASEXPOSEDBEAMS = flag(store.GetAttribute(u"HASEXPOSEDBEAMS"_s));
        HASLOWCEILING = flag(store.GetAttribute(u"HASLOWCEILING"_s));
        result = true;
    });
}

bool cRoom::InsertRoom() {
    return routine(u"cRoom.Insert Room", false, [this](bool& result) {
        cXMLHandler& store = RecordStore::opened(oXMLRooms);
        const qint32 id = RecordStore::nextKey(store, KEY);
        store.AddNew();
        store.SetAttribute(KEY, id);
        writeFields(store);
        store.SaveDocument();
        result = true;
    });
}

bool cRoom::UpdateRoom() {
    return routine(u"cRoom.Update Room", false, [this](bool& result) {
        cXMLHandler& store = RecordStore::opened(oXMLRooms);
        if (store.Find(KEY, RoomID)) {
            writeFields(store);
            store.SaveDocument();
            result = true;
        }
    });
}

bool cRoom::DeleteRoom() {
    return routine(u"cRoom.Delete Room", false, [this](bool& result) {
        cXMLHandler& store = RecordStore::opened(oXMLRooms);
        if (store.Find(KEY, RoomID) && store.Delete()) {
            store.SaveDocument();
            result = true;
        }
    });
}

bool cRoom::LoadRooms() {
    return routine(u"cRoom.Load Rooms", false, [this](bool& result) {
        oXMLRooms = LocationFiles::loadRooms(folder);
        result = true;
    });
}

bool cRoom::LoadRoomTypes() {
    return routine(u"cRoom.Load Room Types", false, [this](bool& result) {
        oXMLRoomTypes = RecordStore::load(folder + u"RoomTypes.xml"_s);
        result = true;
    });
}

bool cRoom::LoadFlooring() {
    return routine(u"cRoom.Load Flooring", false, [this](bool& result) {
        oXMLFloorTypes = RecordStore::load(folder + u"FloorTypes.xml"_s);
        result = true;
    });
}

void cRoom::writeFields(cXMLHandler& store) const {
    store.SetAttribute(u"LOCATIONID"_s, LocationID);
    store.SetAttribute(u"FLOORID"_s, FLOORID);
    store.SetAttribute(u"ROOMTYPEID"_s, ROOMTYPEID);
    store.SetAttribute(u"FLOORTYPEID"_s, FLOORTYPEID);
    store.SetAttribute(u"DESCRIPTION"_s, DESCRIPTION);
    store.SetAttribute(u"TOP"_s, Conversion::generalNumber(TOP));
    store.SetAttribute(u"LEFT"_s, Conversion::generalNumber(LEFT));
    store.SetAttribute(u"LENGTH"_s, Conversion::generalNumber(Length));
    store.SetAttribute(u"WIDTH"_s, Conversion::generalNumber(WIDTH));
    store.SetAttribute(u"RELATIVEDIRECTION"_s, RelativeDirection);
    store.SetAttribute(u"HASENTRANCE"_s, HasEntrance);
    store.SetAttribute(u"HASEXPOSEDBEAMS"_s, HASEXPOSEDBEAMS);
    store.SetAttribute(u"HASLOWCEILING"_s, HASLOWCEILING);
}
