#include "catalogues/cDirection.h"

#include "catalogues/Catalogue.h"
#include "core/Failure.h"
#include "core/Global.h"

using namespace Qt::StringLiterals;

cDirection::cDirection() {
    routine(u"cDirection.Initialize Direction", [this] {
        folder = Global::dataFolder();
        LoadDirections();
    });
}

bool cDirection::LoadDirections() {
    return Catalogue::load(u"cDirection.Load Directions", oXMLDirections, folder + u"Directions.xml"_s);
}

bool cDirection::GetDirection(qint32 lDirectionID) {
    return Catalogue::get(u"cDirection.Get Direction", oXMLDirections, lDirectionID,
                          {
                              {u"DIRECTIONID"_s, &DIRECTIONID},
                              {u"DIRECTIONNAME"_s, &DIRECTIONNAME},
                              {u"SUMMARY"_s, &SUMMARY},
                              {u"KUA"_s, &KUA},
                              {u"COLORID"_s, &COLORID},
                              {u"TODID"_s, &TODID},
                              {u"ELEMENTID"_s, &ElementID},
                              {u"SYMBOLID"_s, &SYMBOLID},
                              {u"TRIGRAMID"_s, &TRIGRAMID},
                          });
}
