#pragma once

#include "analysis/sentences/Sentence.h"

/// What several analyses say in the same words.
namespace sentences::shared {

// Every sentence stays whole on its line, so that it can be proof-read and searched for.
// clang-format off

/// The opening of the paragraph about the person.
inline constexpr std::array<Piece, 9> mostBeneficial{{
    u"Your most beneficial directions are ",
    &cPersonalDirection::SUCCESSDIRECTION,
    u", ",
    &cPersonalDirection::HEALTHDIRECTION,
    u", ",
    &cPersonalDirection::ROMANCEDIRECTION,
    u" and ",
    &cPersonalDirection::DEVELOPMENTDIRECTION,
    u". ",
}};

inline constexpr QStringView lowCeiling = u"A low ceiling will tend to concentrate energy and direct it downward. This can cause unsettled energy in the room. To offset this, try to 'raise' the ceiling by  boosting the Tree Element energy of the room. Do this with tall plants, curtains with vertical stripes and light fixtures that project light upwards.";

// clang-format on

} // namespace sentences::shared
