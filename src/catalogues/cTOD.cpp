#include "catalogues/cTOD.h"

#include "catalogues/Catalogue.h"
#include "core/Failure.h"
#include "core/Global.h"

using namespace Qt::StringLiterals;

cTOD::cTOD() {
    routine(u"cTOD.Class_Initialize", [this] {
        folder = Global::dataFolder();
        LoadTimeOfDays();
    });
}

bool cTOD::LoadTimeOfDays() {
    return Catalogue::load(u"cTOD.Load Time Of Days", oXMLTODs, folder + u"TimeOfDay.xml"_s);
}

bool cTOD::GetTOD(qint32 lTODID) {
    return Catalogue::get(u"cTOD.Get TOD", oXMLTODs, lTODID,
                          {
                              {u"TODID"_s, &TODID},
                              {u"TODNAME"_s, &TODNAME},
                          });
}
