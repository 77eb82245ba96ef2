#pragma once

#include "store/cXMLHandler.h"

#include <QString>

#include <memory>

/// The symbols of the directions.
class cSymbol {
public:
    /// The store on `Symbols.xml`. Callers also search and walk it directly.
    std::unique_ptr<cXMLHandler> oXMLSymbols;
    qint32 SYMBOLID = 0;
    QString SYMBOLNAME;

    /// Loads the file.
    cSymbol();

    /// Reads the file anew. Always true: a file that is missing shows itself at the first look-up.
    bool LoadSymbols();

    /// Fills the fields from the first row with this id. False when there is none; the fields then keep
    /// what they held.
    bool GetSymbol(qint32 lSymbolID);

private:
    QString folder;
};
