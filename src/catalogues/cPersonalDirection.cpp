#include "catalogues/cPersonalDirection.h"

#include "catalogues/Catalogue.h"
#include "core/Failure.h"
#include "core/Global.h"

using namespace Qt::StringLiterals;

cPersonalDirection::cPersonalDirection() {
    routine(u"cPersonalDirection.Class_Initialize", [this] {
        folder = Global::dataFolder();
        LoadPersonalDirections();
    });
}

bool cPersonalDirection::LoadPersonalDirections() {
    return Catalogue::load(u"cPersonalDirection.Load Personal Directions", oXMLPersonalDirections,
                           folder + u"PersonalDirections.xml"_s);
}

bool cPersonalDirection::GetPersonalDirections(qint32 lPersonalDirectionID) {
    return Catalogue::get(u"cPersonalDirection.Get Personal Directions", oXMLPersonalDirections,
                          lPersonalDirectionID,
                          {
                              {u"PERSONALDIRECTIONID"_s, &PERSONALDIRECTIONID},
                              {u"GENDER"_s, &GENDER},
                              {u"GROUP"_s, &GROUP},
                              {u"SUCCESSDIRECTIONID"_s, &SUCCESSDIRECTIONID},
                              {u"SUCCESSDIRECTION"_s, &SUCCESSDIRECTION},
                              {u"HEALTHDIRECTIONID"_s, &HEALTHDIRECTIONID},
                              {u"HEALTHDIRECTION"_s, &HEALTHDIRECTION},
                              {u"ROMANCEDIRECTIONID"_s, &ROMANCEDIRECTIONID},
                              {u"ROMANCEDIRECTION"_s, &ROMANCEDIRECTION},
                              {u"DEVELOPMENTDIRECTIONID"_s, &DEVELOPMENTDIRECTIONID},
                              {u"DEVELOPMENTDIRECTION"_s, &DEVELOPMENTDIRECTION},
                              {u"BADLUCKDIRECTIONID"_s, &BADLUCKDIRECTIONID},
                              {u"BADLUCKDIRECTION"_s, &BADLUCKDIRECTION},
                              {u"OBSTACLEDIRECTIONID"_s, &OBSTACLEDIRECTIONID},
                              {u"OBSTACLEDIRECTION"_s, &OBSTACLEDIRECTION},
                              {u"ILLNESSDIRECTIONID"_s, &ILLNESSDIRECTIONID},
                              {u"ILLNESSDIRECTION"_s, &ILLNESSDIRECTION},
                              {u"DESTRUCTIONDIRECTIONID"_s, &DESTRUCTIONDIRECTIONID},
                              {u"DESTRUCTIONDIRECTION"_s, &DESTRUCTIONDIRECTION},
                          });
}
