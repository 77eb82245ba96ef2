#include "nineki/NineKiSector.h"

#include "catalogues/ElementRelations.h"
#include "core/Global.h"
#include "profiles/cProfile.h"

#include <algorithm>
#include <array>

namespace {

const cProfile& person() {
    if (Global::CurrentProfile == nullptr) {
        throw failure(ErrorNumber::ObjectNotSet);
    }
    return *Global::CurrentProfile;
}

/// The two animal signs that share a corner sector.
struct CornerSigns {
    QStringView sector;
    std::array<QStringView, 2> animals;
};

constexpr std::array<CornerSigns, 4> cornerSigns{{
    {u"South-East", {u"Dragon", u"Snake"}},
    {u"South-West", {u"Sheep", u"Monkey"}},
    {u"North-West", {u"Dog", u"Boar"}},
    {u"North-East", {u"Ox", u"Tiger"}},
}};

/// What stands for a word in braces.
QString valueOf(QStringView word, const NineKiSector& sector) {
    if (word == u"number") {
        return QString::number(sector.number);
    }
    if (word == u"element") {
        return sector.elementName;
    }
    if (word == u"reason") {
        return sector.reason;
    }
    if (word == u"animal") {
        return sector.year.animalName;
    }
    return person().oElement.ELEMENTNAME; // "own element"
}

} // namespace

bool NineKiConditions::carriesFive(NineKiSector& sector) {
    return sector.number == nineKiCenter;
}

bool NineKiConditions::isOppositeFive(NineKiSector& sector) {
    return Global::OppositeDirection(sector.direction) == sector.year.placement.numberSector[nineKiCenter];
}

bool NineKiConditions::carriesOwnNumber(NineKiSector& sector) {
    return sector.number == person().KUANUMBER;
}

bool NineKiConditions::isOppositeOwnNumber(NineKiSector& sector) {
    return Global::OppositeDirection(sector.direction) ==
           sector.year.placement.numberSector[person().KUANUMBER];
}

bool NineKiConditions::isIncompatible(NineKiSector& sector) {
    // A number has the element of the direction that is its home, so that it passes for a direction here.
    return !Global::IsCompatible(person().oDirection.DIRECTIONID, sector.number, sector.elementName,
                                 sector.reason);
}

bool NineKiConditions::isOppositeHome(NineKiSector& sector) {
    return sector.year.placement.oppositeHome[sector.number];
}

bool NineKiConditions::holdsAnimal(NineKiSector& sector) {
    const auto corner = std::ranges::find(cornerSigns, QStringView(sector.name), &CornerSigns::sector);
    if (corner == cornerSigns.end()) {
        return sector.direction == sector.year.animalDirection;
    }
    return std::ranges::find(corner->animals, QStringView(sector.year.animalName)) != corner->animals.end();
}

bool NineKiConditions::isOppositeAnimal(NineKiSector& sector) {
    return Global::OppositeDirection(sector.direction) == sector.year.animalDirection;
}

bool isCornerSector(QStringView name) {
    return std::ranges::find(cornerSigns, name, &CornerSigns::sector) != cornerSigns.end();
}

QString filledIn(QStringView sentence, const NineKiSector& sector) {
    QString text;
    while (!sentence.isEmpty()) {
        const qsizetype open = sentence.indexOf(u'{');
        if (open < 0) {
            text += sentence;
            break;
        }
        const qsizetype close = sentence.indexOf(u'}', open);
        text += sentence.first(open);
        text += valueOf(sentence.sliced(open + 1, close - open - 1), sector);
        sentence = sentence.sliced(close + 1);
    }
    return text;
}
