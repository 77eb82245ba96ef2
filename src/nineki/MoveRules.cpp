#include "nineki/MoveRules.h"

#include <algorithm>
#include <array>

namespace {

enum class Modes : quint8 { Both, MoveOnly };

/// A rule: when it holds, in which modes it is tried, whether the sector's number is shown by it, and what is
/// said. Only the last two rules leave something good of a sector.
struct RuleRow {
    MoveRule rule;
    bool (*holds)(NineKiSector&);
    Modes modes;
    bool showsNumber;
    QStringView move;
    QStringView renovation;
};

using namespace NineKiConditions;

bool isNotOppositeAnimal(NineKiSector& sector) {
    return !isOppositeAnimal(sector);
}

// In the order in which they are tried: a sector is described by the first that holds, whatever else is true
// of it. Every sentence stays whole on its line, so that it can be proof-read and searched for.
// clang-format off
constexpr std::array<RuleRow, 8> ruleRows{{
    {MoveRule::CarriesFive, carriesFive, Modes::Both, true,
     u"is towards the most powerful Nine Ki Number 5.  It could result in great benefit if you are really prepared or it could result in great destruction to your health or career if you are not adequately prepared.",
     u"is in the sector of the most powerful Nine Ki Number 5.  This could lead to unstable, erratic energy in this sector which could interfere with the renovation and lead to personal stress and loss of energy.  Avoid renovating or redecorating in this area of your home for this year."},
    {MoveRule::OppositeFive, isOppositeFive, Modes::Both, false,
     u"is away from the most powerful Nine Ki Number 5.  Your energy could be weakened resulting in poor health, accidents, and misfortune.",
     u"is in the sector opposite the most powerful Nine Ki Number 5.  Changes in this area of your home could weaken your energy resulting in poor health, accidents, and misfortune.  Avoid making changes to this sector of your home for this year."},
    {MoveRule::CarriesOwnNumber, carriesOwnNumber, Modes::Both, true,
     u"is towards your Nine Ki Number. Moving towards your number may cause tension and stress which could result in poor health.",
     u"is in the sector of your Nine Ki Number for the year. Since you draw your greatest amount of energy from the sector where your Nine Ki Number is positioned, it is vital that this area be stable and nourishing.  Avoid making major changes to this location in your home for this year."},
    {MoveRule::OppositeOwnNumber, isOppositeOwnNumber, Modes::Both, false,
     u"is away from your Nine Ki Number's position for the year.  Moving away from your primary source of energy for the year could weaken you, resulting in poor health, accidents, and misfortune.",
     u"is in the sector opposite your Nine Ki Number's position for the year.  Changes in this area of your home could upset the energy you draw from your Nine Ki sector leading to stress and uncertainty.  This could eventually lead to poor health and minor accidents."},
    {MoveRule::Incompatible, isIncompatible, Modes::MoveOnly, true,
     u"is towards the Nine Ki Number {number}, that is associated with the element {element} which is incompatible with your {own element} element. ({reason})", {}},
    {MoveRule::OppositeHome, isOppositeHome, Modes::MoveOnly, true,
     u"is towards the Nine Ki Number {number}, that is opposite its normal position in the chart.  This can cause unsettlement and confusion in this direction.", {}},
    {MoveRule::NothingAgainst, isNotOppositeAnimal, Modes::Both, false, {}, {}},
    {MoveRule::OppositeAnimal, isOppositeAnimal, Modes::Both, false,
     u"is in the opposing direction of the position of the year's Animal sign {animal}. Moving away from the energy of the year, you risk the separation of family or business partners.",
     u"is in the opposing sector of the position of the year's Animal sign {animal}. Changes in this area of your home could upset the animal energy of the year.  If you must make changes here, try building up the chi energy by increasing Yang elements or decorating in brighter colors."},
}};
// clang-format on

/// How the sector opposite a sign is divided: the half straight across from the sign is problematic, the
/// other one beneficial.
struct SplitSector {
    QStringView animal;
    QStringView problematic;
    QStringView beneficial;
};

// The signs that are not listed stand on the axes and face a whole sector.
constexpr std::array<SplitSector, 8> splitSectors{{
    {u"Dragon", u"West/North-West", u"North/North-West"},
    {u"Snake", u"North/North-West", u"West/North-West"},
    {u"Dog", u"East/South-East", u"South/South-East"},
    {u"Boar", u"South/South-East", u"East/South-East"},
    {u"Ox", u"South/South-West", u"West/South-West"},
    {u"Tiger", u"West/South-West", u"South/South-West"},
    {u"Sheep", u"North/North-East", u"East/North-East"},
    {u"Monkey", u"East/North-East", u"North/North-East"},
}};

/// Fills in the two sides of the sector opposite the animal sign.
void split(SectorRating& rating, const NineKiSector& sector, const QString& text) {
    const QStringView animal = sector.year.animalName;
    const auto halves = std::ranges::find(splitSectors, animal, &SplitSector::animal);
    if (halves == splitSectors.end()) {
        rating.problematic = NineKiFinding{sector.name, text};
        return;
    }
    rating.problematic = NineKiFinding{halves->problematic.toString(), text};
    rating.beneficial = NineKiFinding{halves->beneficial.toString(), {}};
}

} // namespace

SectorRating rateSector(NineKiSector& sector, bool renovation) {
    const auto row = std::ranges::find_if(ruleRows, [&](const RuleRow& tried) {
        return !(renovation && tried.modes == Modes::MoveOnly) && tried.holds(sector);
    });
    // The last two rules leave no third case, so that there always is a row.
    SectorRating rating;
    rating.rule = row->rule;
    rating.showsNumber = row->showsNumber;
    const QString text = filledIn(renovation ? row->renovation : row->move, sector);
    if (row->rule == MoveRule::NothingAgainst) {
        rating.beneficial = NineKiFinding{sector.name, QString::number(sector.direction)};
    } else if (row->rule == MoveRule::OppositeAnimal) {
        split(rating, sector, text);
    } else {
        rating.problematic = NineKiFinding{sector.name, text};
    }
    return rating;
}
