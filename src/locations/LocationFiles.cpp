#include "locations/LocationFiles.h"

#include "core/Global.h"
#include "store/RecordStore.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace {

std::unique_ptr<cXMLHandler> loadWithDecimalRepair(const QString& path, const QStringList& attributes) {
    std::unique_ptr<cXMLHandler> store = RecordStore::load(path);
    const bool comma = Global::RegionalDecimal == u",";
    const QChar foreign = comma ? u'.' : u',';
    const QChar regional = comma ? u',' : u'.';
    bool changed = false;
    for (bool stands = store->MoveFirst(); stands; stands = store->MoveNext()) {
        for (const QString& attribute : attributes) {
            QString text = store->GetAttribute(attribute);
            if (text.contains(foreign)) {
                store->SetAttribute(attribute, text.replace(foreign, regional));
                changed = true;
            }
        }
    }
    if (changed) {
        store->SaveDocument();
    }
    return store;
}

} // namespace

std::unique_ptr<cXMLHandler> LocationFiles::loadRooms(const QString& folder) {
    return loadWithDecimalRepair(folder + u"Rooms.xml"_s, {u"TOP"_s, u"LEFT"_s, u"LENGTH"_s, u"WIDTH"_s});
}

std::unique_ptr<cXMLHandler> LocationFiles::loadLocations(const QString& folder) {
    return loadWithDecimalRepair(folder + u"Locations.xml"_s, {u"NORTHOFFSET"_s, u"LABLEX"_s, u"LABLEY"_s});
}
