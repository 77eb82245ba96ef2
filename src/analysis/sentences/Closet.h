#pragma once

#include "analysis/sentences/Sentence.h"

/// The advice on a closet or store room.
namespace sentences::closet {

// Every sentence stays whole on its line, so that it can be proof-read and searched for.
// clang-format off

/// Beside the chart.
inline constexpr QStringView besideChart = u"The location of closets or store rooms are not too critical, because you will not spend too much of your time in these rooms.  Since the North-East is unfavorable for most other types of rooms, it is a good place to locate storage space or closets. ";

inline constexpr QStringView stagnation = u"The greatest danger for closets and storage rooms is that the energy will tend to stagnate here.  This is particularly true if there is any clutter.  Stack boxes in uniform sizes, leaving space between one stack of boxes and the next.  Hang all hangable clothes, and organize any shoes that are present.  Try to keep the floor as clear as possible by using a hanging shoe tree if available.";

inline constexpr QStringView cleaning = u"Be sure to clean and vacuum this room as often as you do your other rooms.  And at least once a year, you should go through the items here and discard any item that you do not need, or that you do not absolutely love. ";

// clang-format on

} // namespace sentences::closet
