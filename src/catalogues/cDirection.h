#pragma once

#include "store/cXMLHandler.h"

#include <QString>

#include <memory>

/// The nine directions, by the Lo Shu numbering: 1 North, 2 South-West, 3 East, 4 South-East, 5 the centre,
/// 6 North-West, 7 West, 8 North-East, 9 South.
class cDirection {
public:
    /// The store on `Directions.xml`. Callers also search and walk it directly.
    std::unique_ptr<cXMLHandler> oXMLDirections;
    qint32 DIRECTIONID = 0;
    /// The name by which charts compare directions, for example "South-West".
    QString DIRECTIONNAME;
    QString SUMMARY;
    /// The KUA number of the people whose own direction this is.
    qint32 KUA = 0;
    qint32 COLORID = 0;
    qint32 TODID = 0;
    qint32 ElementID = 0;
    qint32 SYMBOLID = 0;
    qint32 TRIGRAMID = 0;

    /// Loads the file.
    cDirection();

    /// Reads the file anew. Always true: a file that is missing shows itself at the first look-up.
    bool LoadDirections();

    /// Fills the fields from the first row with this id. False when there is none; the fields then keep
    /// what they held.
    bool GetDirection(qint32 lDirectionID);

private:
    QString folder;
};
