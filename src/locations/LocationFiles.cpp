#include "locations/LocationFiles.h"

#include "core/Conversion.h"
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
    // Nearly every number is sound, and every room's advice reads the whole file: look before copying,
    // without a step of the cursor a record.
    pugi::xml_node record = store->MoveFirst() ? store->CurrentNode.node : pugi::xml_node();
    for (; record; record = record.next_sibling()) {
        pugi::xml_attribute place; // where the search for the next attribute starts: they stand together
        for (const QByteArray& attribute : attributes) {
            const char* const stored = record.attribute(attribute.constData(), place).value();
            if (std::strchr(stored, foreign.toLatin1()) != nullptr) {
                store->CurrentNode.node = record;
                const QString name = QString::fromLatin1(attribute);
                store->SetAttribute(name, store->GetAttribute(name).replace(foreign, regional));
                changed = true;
            }
        }
    }
    if (store->CurrentNode) {
        store->MoveLast();
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

float LocationFiles::distance(const QString& text) {
    return Conversion::toSingle(Conversion::generalNumber(Conversion::toDouble(text)));
}
