#pragma once

#include "store/cXMLHandler.h"

#include <QString>

#include <memory>

/// The trigrams of the directions.
class cTrigram {
public:
    /// The store on `Trigrams.xml`. Callers also search and walk it directly.
    std::unique_ptr<cXMLHandler> oXMLTrigrams;
    qint32 TRIGRAMID = 0;
    QString TRIGRAMNAME;

    /// Loads the file.
    cTrigram();

    /// Reads the file anew. Always true: a file that is missing shows itself at the first look-up.
    bool LoadTrigrams();

    /// Fills the fields from the first row with this id. False when there is none; the fields then keep
    /// what they held.
    bool GetTrigram(qint32 lTrigramID);

private:
    QString folder;
};
