#include "nineki/NineKiYear.h"

#include "catalogues/cAnimal.h"
#include "core/Global.h"
#include "profiles/cKUAYear.h"

namespace {

/// A year in which every number stands at home.
constexpr qint32 homeYear = 1995;
constexpr qint32 numbers = 9;

} // namespace

qint32 NineKiPlacement::numberIn(qint32 direction) const {
    qint32 number = 1;
    while (number <= numbers && numberSector[number] != direction) {
        ++number;
    }
    return number;
}

NineKiPlacement placeNumbers(qint32 year) {
    const qint32 remainder = (year - homeYear) % numbers;
    const qint32 steps = remainder < 0 ? remainder + numbers : remainder;
    NineKiPlacement placement;
    for (qint32 number = 1; number <= numbers; ++number) {
        const qint32 sector = (number - 1 + steps) % numbers + 1;
        placement.numberSector[number] = sector;
        placement.oppositeHome[number] = sector == Global::OppositeDirection(number);
    }
    return placement;
}

NineKiYear lookUpNineKiYear(qint32 year) {
    // The results go untested: without a row the sign stays empty and is found nowhere.
    cKUAYear lunarYear;
    lunarYear.GetKUAYear(year);
    cAnimal animal;
    animal.GetAnimal(lunarYear.AnimalID);
    return {placeNumbers(year), animal.AnimalName, animal.DIRECTIONID, animal.AnimalDirectionName};
}
