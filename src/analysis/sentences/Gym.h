#pragma once

#include "analysis/sentences/Sentence.h"

/// The advice on a room for gym equipment.
namespace sentences::gym {

// Every sentence stays whole on its line, so that it can be proof-read and searched for.
// clang-format off

/// Beside the chart.
inline constexpr QStringView besideChart = u"Gym equipment is often set up in rooms in the house with other functions, such as the bedroom.  If you have a room set aside for gym equipment, the Center of the house is a good location for this room.  The Center of the house has the most intense chi energy, and could help energize your workouts.";

inline constexpr QStringView equipment = u"Keep workout equipment orderly and clean.  Place dumbbells and weights in a rack if possible.  ";

// clang-format on

} // namespace sentences::gym
