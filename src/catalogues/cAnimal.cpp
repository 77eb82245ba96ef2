#include "catalogues/cAnimal.h"

#include "catalogues/Catalogue.h"
#include "core/Failure.h"
#include "core/Global.h"

using namespace Qt::StringLiterals;

cAnimal::cAnimal() {
    routine(u"cAnimal.Initialize Animal", [this] {
        folder = Global::dataFolder();
        LoadAnimals();
    });
}

bool cAnimal::LoadAnimals() {
    return Catalogue::load(u"cAnimal.Load Animals", oXMLAnimals, folder + u"Animals.xml"_s);
}

bool cAnimal::GetAnimal(qint32 lAnimalID) {
    return Catalogue::get(u"cAnimal.Get Animal", oXMLAnimals, lAnimalID,
                          {
                              {u"ANIMALID"_s, &AnimalID},
                              {u"ANIMALNAME"_s, &AnimalName},
                              {u"ELEMENTID"_s, &ElementID},
                              {u"DIRECTIONID"_s, &DIRECTIONID},
                              {u"ANIMALDIRECTIONNAME"_s, &AnimalDirectionName},
                          });
}
