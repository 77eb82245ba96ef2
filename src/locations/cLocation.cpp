#include "locations/cLocation.h"

#include "core/Conversion.h"
#include "core/Failure.h"
#include "core/Global.h"
#include "core/MainWindow.h"
#include "core/Prompts.h"
#include "core/clsRegistry.h"
#include "locations/LocationFiles.h"
#include "store/RecordStore.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

const QString LOCATION_KEY = u"LOCATIONID"_s;
const QString FLOOR_KEY = u"FLOORID"_s;
const QString DESCRIPTION_FIELD = u"DESCRIPTION"_s;

/// The plan extent, in inches, of a location that stores none: 50 feet.
constexpr qint32 DEFAULT_EXTENT = 600;

constexpr std::array<QStringView, 10> FLOOR_NAMES = {
    u"First Floor", u"Second Floor",  u"Third Floor",  u"Fourth Floor", u"Fifth Floor",
    u"Sixth Floor", u"Seventh Floor", u"Eighth Floor", u"Ninth Floor",  u"Tenth Floor",
};

/// The name of the floor at `index`, counted from 0; `further` past the tenth.
QString floorName(qint32 index, const QString& further) {
    const auto place = static_cast<std::size_t>(index);
    return place < FLOOR_NAMES.size() ? FLOOR_NAMES[place].toString() : further;
}

QString floorsOf(qint32 locationId) {
    return u"//z:row[@LOCATIONID = '%1']"_s.arg(locationId);
}

qint32 wholeNumber(const QString& text, qint32 otherwise) {
    return Conversion::isNumeric(text) ? Conversion::toLong(text) : otherwise;
}

/// A stored number as it comes back from its form "General Number"; 0 for a text that is no number.
double decimalNumber(const QString& text) {
    if (!Conversion::isNumeric(text)) {
        return 0;
    }
    return Conversion::toDouble(Conversion::generalNumber(Conversion::toDouble(text)));
}

void refuse(const QString& title, const QString& text) {
    Prompts& prompts = Global::service(&Services::prompts);
    prompts.messageBox(title, text, MessageIcon::Information, MessageButtons::Ok);
}

} // namespace

std::unique_ptr<cLocation> Global::CurrentLocation;

cLocation::cLocation() {
    routine(u"cLocation.Initialize Location", [this] { folder = Global::dataFolder(); });
}

bool cLocation::GetLocation(const QVariant& vLocation) {
    return routine(u"cLocation.Get Location", false, [&](bool& result) {
        QString id = vLocation.toString();
        if (id.isEmpty()) {
            id = clsRegistry().GetSetting(clsRegistry::CurrentUser, Global::settingsSection(u"StartUp"_s),
                                          u"LastLocation"_s, QString());
        }
        if (id.isEmpty()) {
            CreateLocation();
            result = true;
            return;
        }
        cXMLHandler& store = RecordStore::opened(oXMLLocations);
        if (!store.Find(LOCATION_KEY, id)) {
            return;
        }
        LocationID = wholeNumber(store.GetAttribute(LOCATION_KEY), 0);
        DESCRIPTION = store.GetAttribute(DESCRIPTION_FIELD);
        PLANLENGTH = wholeNumber(store.GetAttribute(u"PLANLENGTH"_s), DEFAULT_EXTENT);
        PLANWIDTH = wholeNumber(store.GetAttribute(u"PLANWIDTH"_s), DEFAULT_EXTENT);
        NORTHOFFSET = decimalNumber(store.GetAttribute(u"NORTHOFFSET"_s));
        LABLEX = decimalNumber(store.GetAttribute(u"LABLEX"_s));
        LABLEY = decimalNumber(store.GetAttribute(u"LABLEY"_s));
        IsDirty = false;
        result = true;
    });
}

void cLocation::CreateLocation() {
    routine(u"cLocation.Create Location", [] { Global::service(&Services::mainWindow).NewLocation(); });
}

bool cLocation::InsertLocation(qint32 lNumFloors) {
    return routine(u"cLocation.Insert Location", false, [&](bool& result) {
        cXMLHandler& store = RecordStore::opened(oXMLLocations);
        const qint32 id = RecordStore::nextKey(store, LOCATION_KEY);
        store.AddNew();
        store.SetAttribute(LOCATION_KEY, id);
        store.SetAttribute(DESCRIPTION_FIELD, DESCRIPTION);
        store.SaveDocument();
        GetLocation(id);
        for (qint32 index = 0; index < lNumFloors; ++index) {
            addFloor(id, floorName(index, u"Other Floor"_s));
        }
        RecordStore::opened(oXMLFloors).SaveDocument();
        result = true;
    });
}

bool cLocation::UpdateLocation() {
    return routine(u"cLocation.Update Location", false, [this](bool& result) {
        cXMLHandler& store = RecordStore::opened(oXMLLocations);
        if (!store.Find(LOCATION_KEY, LocationID)) {
            return;
        }
        store.SetAttribute(DESCRIPTION_FIELD, DESCRIPTION);
        store.SetAttribute(u"PLANLENGTH"_s, PLANLENGTH);
        store.SetAttribute(u"PLANWIDTH"_s, PLANWIDTH);
        store.SaveDocument();
        IsDirty = false;
        result = true;
    });
}

bool cLocation::UpdateNorthOffset() {
    return routine(u"cLocation.Update North Offset", false, [this](bool& result) {
        cXMLHandler& store = RecordStore::opened(oXMLLocations);
        if (!store.Find(LOCATION_KEY, LocationID)) {
            return;
        }
        store.SetAttribute(u"NORTHOFFSET"_s, Conversion::generalNumber(NORTHOFFSET));
        store.SetAttribute(u"LABLEX"_s, Conversion::generalNumber(LABLEX));
        store.SetAttribute(u"LABLEY"_s, Conversion::generalNumber(LABLEY));
        store.SaveDocument();
        result = true;
        IsDirty = false;
    });
}

bool cLocation::DeleteLocation() {
    return routine(u"cLocation.Delete Location", false, [this](bool& result) {
        cXMLHandler& locations = RecordStore::opened(oXMLLocations);
        if (!locations.Find(LOCATION_KEY, LocationID)) {
            return;
        }
        const QString title = u"Delete Location"_s;
        cXMLHandler& floors = RecordStore::opened(oXMLFloors);
        const qint32 count = floors.Query(floorsOf(LocationID)) ? floors.ResultCount : 0;
        for (qint32 index = 0; index < count; ++index) {
            floors.GetResult(index);
            const QString floorId = floors.GetAttribute(FLOOR_KEY, true);
            if (!deleteRooms(
                    floorId, title,
                    u"Unable to delete a room for this location. Delete of Location was canceled."_s)) {
                return;
            }
            if (!floors.Delete(true)) {
                refuse(title,
                       u"Unable to delete a floor for this location. Delete of Location was canceled."_s);
                return;
            }
        }
        if (!locations.Delete()) {
            return;
        }
        RecordStore::opened(oXMLRooms).SaveDocument();
        floors.SaveDocument();
        locations.SaveDocument();
        result = true;
    });
}

bool cLocation::DeleteFloor(qint32 lFloorID) {
    return routine(u"cLocation.Delete Floor", false, [&](bool& result) {
        cXMLHandler& floors = RecordStore::opened(oXMLFloors);
        if (!floors.Find(FLOOR_KEY, lFloorID)) {
            return;
        }
        if (!deleteRooms(QString::number(lFloorID), u"Delete Floor"_s,
                         u"Unable to delete a room for this floor. Delete of Floor was canceled."_s)) {
            return;
        }
        if (floors.Delete()) {
            RecordStore::opened(oXMLRooms).SaveDocument();
            floors.SaveDocument();
            result = true;
        }
    });
}

bool cLocation::InsertFloor() {
    return routine(u"cLocation.Insert Floor", false, [this](bool& result) {
        cXMLHandler& floors = RecordStore::opened(oXMLFloors);
        // Named by the count alone: after a floor in the middle was deleted, a name can come twice.
        const qint32 count = floors.Query(floorsOf(LocationID)) ? floors.ResultCount : 0;
        addFloor(LocationID, floorName(count, u"Floor %1"_s.arg(count + 1)));
        floors.SaveDocument();
        result = true;
    });
}

bool cLocation::RenameFloor(qint32 lFloorID, const QString& sDescription) {
    return routine(u"cLocation.Rename Floor", false, [&](bool& result) {
        cXMLHandler& floors = RecordStore::opened(oXMLFloors);
        if (floors.Find(FLOOR_KEY, lFloorID)) {
            floors.SetAttribute(DESCRIPTION_FIELD, sDescription);
            floors.SaveDocument();
            result = true;
        }
    });
}

bool cLocation::LoadRooms() {
    return routine(u"cLocation.Load Rooms", false, [this](bool& result) {
        oXMLRooms = LocationFiles::loadRooms(folder);
        result = true;
    });
}

bool cLocation::LoadFloors() {
    return routine(u"cLocation.Load Floors", false, [this](bool& result) {
        oXMLFloors = RecordStore::load(folder + u"Floors.xml"_s);
        result = true;
    });
}

bool cLocation::LoadLocations() {
    return routine(u"cLocation.Load Locations", false, [this](bool& result) {
        oXMLLocations = LocationFiles::loadLocations(folder);
        result = true;
    });
}

/// Appends a floor record in memory.
void cLocation::addFloor(qint32 locationId, const QString& description) {
    cXMLHandler& floors = RecordStore::opened(oXMLFloors);
    const qint32 id = RecordStore::nextKey(floors, FLOOR_KEY);
    floors.AddNew();
    floors.SetAttribute(FLOOR_KEY, id);
    floors.SetAttribute(LOCATION_KEY, locationId);
    floors.SetAttribute(DESCRIPTION_FIELD, description);
}

/// Deletes the rooms of a floor of this location in memory. At the first one that refuses it shows the
/// refusal and returns false.
bool cLocation::deleteRooms(const QString& floorId, const QString& title, const QString& refusal) {
    cXMLHandler& rooms = RecordStore::opened(oXMLRooms);
    const QString expression =
        u"//z:row[(@LOCATIONID = '%1') and (@FLOORID = '%2')]"_s.arg(QString::number(LocationID), floorId);
    const qint32 count = rooms.Query(expression) ? rooms.ResultCount : 0;
    for (qint32 index = 0; index < count; ++index) {
        if (rooms.GetResult(index) && !rooms.Delete(true)) {
            refuse(title, refusal);
            return false;
        }
    }
    return true;
}
