#include "catalogues/cColor.h"

#include "catalogues/Catalogue.h"
#include "core/Failure.h"
#include "core/Global.h"

using namespace Qt::StringLiterals;

cColor::cColor() {
    routine(u"cColor.Initialize Color", [this] {
        folder = Global::dataFolder();
        LoadColors();
    });
}

bool cColor::LoadColors() {
    return Catalogue::load(u"cColor.Load Colors", oXMLColors, folder + u"Colors.xml"_s);
}

bool cColor::GetColor(qint32 lColorID) {
    return Catalogue::get(u"cColor.Get Color", oXMLColors, lColorID,
                          {
                              {u"COLORID"_s, &COLORID},
                              {u"COLORNAME"_s, &COLORNAME},
                              {u"COLORVALUE"_s, &COLORVALUE},
                              {u"LIGHTCOLORVALUE"_s, &LIGHTCOLORVALUE},
                              {u"BRIGHTCOLORVALUE"_s, &BRIGHTCOLORVALUE},
                          });
}
