#include "locations/LocationFiles.h"

#include "core/Global.h"
#include "store/RecordStore.h"

#include <QByteArray>
#include <QList>

#include <cstring>

using namespace Qt::StringLiterals;

namespace {

std::unique_ptr<cXMLHandler> loadWithDecimalRepair(const QString& path, const QList<QByteArray>& attributes) {
    std::unique_ptr<cXMLHandler> store = RecordStore::load(path);
    const bool comma = Global::RegionalDecimal == u",";
    const QChar foreign = comma ? u'.' : u',';
    const QChar regional = comma ? u',' : u'.';
    bool changed = false;
    for (bool stands = store->MoveFirst(); stands; stands = store->MoveNext()) {
        for (const QByteArray& attribute : attributes) {
            // Nearly every number is sound, and every room's advice reads the whole file: look before
            // copying.
            const char* const stored = store->CurrentNode.node.attribute(attribute.constData()).value();
            if (std::strchr(stored, foreign.toLatin1()) != nullptr) {
                const QString name = QString::fromLatin1(attribute);
                store->SetAttribute(name, store->GetAttribute(name).replace(foreign, regional));
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
    return loadWithDecimalRepair(folder + u"Rooms.xml"_s, {"TOP", "LEFT", "LENGTH", "WIDTH"});
}

std::unique_ptr<cXMLHandler> LocationFiles::loadLocations(const QString& folder) {
    return loadWithDecimalRepair(folder + u"Locations.xml"_s, {"NORTHOFFSET", "LABLEX", "LABLEY"});
}
