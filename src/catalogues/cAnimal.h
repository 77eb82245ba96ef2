#pragma once

#include "store/cXMLHandler.h"

#include <QString>

#include <memory>

/// The twelve animal signs.
class cAnimal {
public:
    /// The store on `Animals.xml`. Callers also search and walk it directly.
    std::unique_ptr<cXMLHandler> oXMLAnimals;
    qint32 AnimalID = 0;
    QString AnimalName;
    qint32 ElementID = 0;
    /// The sector that the sign lies in.
    qint32 DIRECTIONID = 0;
    /// The name of the wedge of the sign itself, which may be half a sector.
    QString AnimalDirectionName;

    /// Loads the file.
    cAnimal();

    /// Reads the file anew. Always true: a file that is missing shows itself at the first look-up.
    bool LoadAnimals();

    /// Fills the fields from the first row with this id. False when there is none; the fields then keep
    /// what they held.
    bool GetAnimal(qint32 lAnimalID);

private:
    QString folder;
};
