#pragma once

#include "store/cXMLHandler.h"

#include <QString>

#include <memory>

/// The times of day of the directions.
class cTOD {
public:
    /// The store on `TimeOfDay.xml`. Callers also search and walk it directly.
    std::unique_ptr<cXMLHandler> oXMLTODs;
    qint32 TODID = 0;
    QString TODNAME;

    /// Loads the file.
    cTOD();

    /// Reads the file anew. Always true: a file that is missing shows itself at the first look-up.
    bool LoadTimeOfDays();

    /// Fills the fields from the first row with this id. False when there is none; the fields then keep
    /// what they held.
    bool GetTOD(qint32 lTODID);

private:
    QString folder;
};
