#pragma once

#include "nineki/NineKiSector.h"

#include <optional>

/// The rules that rate a sector for a move or a renovation, in the order in which they are tried.
enum class MoveRule : quint8 {
    CarriesFive,
    OppositeFive,
    CarriesOwnNumber,
    OppositeOwnNumber,
    Incompatible,
    OppositeHome,
    NothingAgainst,
    OppositeAnimal,
};

/// A sector's rating: what is published about it and what the compass shows of it.
struct SectorRating {
    /// The first rule that holds, which alone decides.
    MoveRule rule = MoveRule::NothingAgainst;
    /// What speaks against the sector or half of it.
    std::optional<NineKiFinding> problematic;
    /// What is good of it: the whole sector with its id, or half of it with nothing.
    std::optional<NineKiFinding> beneficial;
    /// Whether the number that stands in the sector is shown there.
    bool showsNumber = false;
};

/// Rates a sector for the current person: for a renovation there, or else for a move towards it.
[[nodiscard]] SectorRating rateSector(NineKiSector& sector, bool renovation);
