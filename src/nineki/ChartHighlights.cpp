#include "nineki/ChartHighlights.h"

#include <array>

namespace {

/// Which wedge a highlight repaints, and the name that it goes by.
enum class Shows : quint8 {
    /// Nothing but the sentence about the sector.
    Sector,
    /// The animal sign where it stands: its own wedge in a corner sector, the whole sector on an axis.
    AnimalHere,
    /// The animal sign's own wedge across the centre; the sentence is about this sector.
    AnimalAcross,
};

struct HighlightRule {
    bool (*holds)(NineKiSector&);
    QStringView text;
    Shows shows = Shows::Sector;
};

using namespace NineKiConditions;

// Every sentence stays whole on its line, so that it can be proof-read and searched for.
// clang-format off
constexpr std::array<HighlightRule, 8> highlightRules{{
    {carriesFive, u"is the sector of the most powerful Nine Ki Number 5."},
    {isOppositeFive, u"is the sector opposite the most powerful Nine Ki Number 5."},
    {carriesOwnNumber, u"is the sector of your Nine Ki Number.  The character of this direction will determine the prevailing influences on you for the year."},
    {isOppositeOwnNumber, u"is opposite your Nine Ki Number's position for the year."},
    {isIncompatible, u"is the sector of the Nine Ki Number {number}, that is associated with the element {element} which is incompatible with your {own element} element. ({reason})"},
    {isOppositeHome, u"is the sector of the Nine Ki Number {number}, that is opposite its normal position in the chart."},
    {holdsAnimal, u"is the sector of the position of the year's Animal sign {animal}.", Shows::AnimalHere},
    {isOppositeAnimal, u"is opposite the sector of the position of the year's Animal sign {animal}.", Shows::AnimalAcross},
}};
// clang-format on

ChartHighlight highlight(const HighlightRule& rule, const NineKiSector& sector) {
    const QString text = filledIn(rule.text, sector);
    const QString& animalWedge = sector.year.animalWedge;
    if (rule.shows == Shows::AnimalAcross) {
        return {{sector.name, text}, animalWedge};
    }
    if (rule.shows == Shows::AnimalHere) {
        const QString& wedge = isCornerSector(sector.name) ? animalWedge : sector.name;
        return {{wedge, text}, wedge};
    }
    return {{sector.name, text}, std::nullopt};
}

} // namespace

std::vector<ChartHighlight> chartHighlights(NineKiSector& sector) {
    std::vector<ChartHighlight> found;
    for (const HighlightRule& rule : highlightRules) {
        if (rule.holds(sector)) {
            found.push_back(highlight(rule, sector));
        }
    }
    return found;
}
