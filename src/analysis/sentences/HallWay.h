#pragma once

#include "analysis/sentences/Sentence.h"

/// The advice on a hall way.
namespace sentences::hallWay {

// Every sentence stays whole on its line, so that it can be proof-read and searched for.
// clang-format off

/// Beside the chart.
inline constexpr QStringView besideChart = u"The location of hallways, in general, is not too critical.  However, if the hallway is part of the entrance to the home, the location of the room and the entrance will bring the type of energy from that location into the home.  ";

/// Closes the advice.
inline constexpr QStringView longHallWay = u"A long hallway or entrance way will have a tendency to channel chi quickly through the house. This is particularly bad if the hall runs from the front door to the back door.  This will cause all of the energy entering the house to flow straight through and out the other side of the house. If this is true for your hallway, place a screen between the front door and back doors to interrupt the flow of chi and encourage it to circulate around the house.  ";

// clang-format on

} // namespace sentences::hallWay
