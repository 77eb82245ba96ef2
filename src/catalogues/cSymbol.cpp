#include "catalogues/cSymbol.h"

#include "catalogues/Catalogue.h"
#include "core/Failure.h"
#include "core/Global.h"

using namespace Qt::StringLiterals;

cSymbol::cSymbol() {
    routine(u"cSymbol.Class_Initialize", [this] {
        folder = Global::dataFolder();
        LoadSymbols();
    });
}

bool cSymbol::LoadSymbols() {
    return Catalogue::load(u"cSymbol.Load Symbols", oXMLSymbols, folder + u"Symbols.xml"_s);
}

bool cSymbol::GetSymbol(qint32 lSymbolID) {
    return Catalogue::get(u"cSymbol.Get Symbol", oXMLSymbols, lSymbolID,
                          {
                              {u"SYMBOLID"_s, &SYMBOLID},
                              {u"SYMBOLNAME"_s, &SYMBOLNAME},
                          });
}
