#include "catalogues/cTrigram.h"

#include "catalogues/Catalogue.h"
#include "core/Failure.h"
#include "core/Global.h"

using namespace Qt::StringLiterals;

cTrigram::cTrigram() {
    routine(u"cTrigram.Class_Initialize", [this] {
        folder = Global::dataFolder();
        LoadTrigrams();
    });
}

bool cTrigram::LoadTrigrams() {
    return Catalogue::load(u"cTrigram.Load Trigrams", oXMLTrigrams, folder + u"Trigrams.xml"_s);
}

bool cTrigram::GetTrigram(qint32 lTrigramID) {
    return Catalogue::get(u"cTrigram.Get Trigram", oXMLTrigrams, lTrigramID,
                          {
                              {u"TRIGRAMID"_s, &TRIGRAMID},
                              {u"TRIGRAMNAME"_s, &TRIGRAMNAME},
                          });
}
