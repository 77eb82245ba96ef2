#pragma once

#include "analysis/sentences/Sentence.h"

/// The advice on a bathroom or laundry room. Here a beneficial direction is a warning, because the room
/// drains the place where it lies.
namespace sentences::bathroom {

// Every sentence stays whole on its line, so that it can be proof-read and searched for.
// clang-format off

/// Beside the chart.
inline constexpr QStringView besideChart = u"The best locations for a bathroom or laundry room from the center of the home are to the East or South-East. These locations have the Tree Element energy which is compatible with water nature of these types of rooms. ";

/// Opens the paragraph about the person.
inline constexpr QStringView drains = u"Because water drains from bathrooms and laundry rooms they have a tendency to drain energy away from that location in the home. ";

/// Stands in the middle of it, if any.
inline constexpr std::array<PersonalSentence, 4> warnings{{
    {&cPersonalDirection::SUCCESSDIRECTIONID, u"This room is located in your Success Direction. So, it may be necessary to strengthen the chi in other rooms in this same area of your home.  Otherwise, you may find that you have difficulty achieving success. "},
    {&cPersonalDirection::HEALTHDIRECTIONID, u"This room is located in your Health Direction. So, it may be necessary to strengthen the chi in other rooms in this same area of your home.  Otherwise, you may find that you lack vitality and suffer from frequent illness. "},
    {&cPersonalDirection::ROMANCEDIRECTIONID, u"This room is located in your Romance Direction. So, it may be necessary to strengthen the chi in other rooms in this same area of your home.  Otherwise, you may find that you have difficulty forming or maintaining romantic relationships. "},
    {&cPersonalDirection::DEVELOPMENTDIRECTIONID, u"This room is located in your Development Direction. So, it may be necessary to strengthen the chi in other rooms in this same area of your home.  Otherwise, you may find that you have difficulty achieving personal and spiritual development. "},
}};

/// Closes it.
inline constexpr QStringView keepClean = u"You can help to minimize the draining effects of a bathroom or laundry room by keeping the door closed and the toilet and washing machine lids down.  Chi tends to stagnate in these rooms, so it is important to keep the room spotlessly clean and completely free of clutter.  Store all personal hygine items in cabinets or drawers, out of sight. If the room has a window, allow as much light as possible to enter the room by pulling the curtains back, and hanging a translucent shower curtain if necessary.";

/// By the room's direction.
inline constexpr std::array<KeyedSentence, 9> directions{{
    {North, u"The location of this room is to the North of the center of your home. The Water Element energy of the North combines with the water energy of this room resulting in too much stillness for this location of your home.  The Water Element supports (and is drained by) the Tree Element, so growing tall plants and decorating in bright green colors can help balance the energy of this room."},
    {SouthWest, u"The location of this room is to the South-West of the center of your home. The Soil Element energy of the South-West is destructive to the water energy of this room. You can balance this destruction by increasing the Metal Element energy which supports the water energy here, while draining some of the Soil Element energy.  Add metal fixtures, white silver and gold colors, round patterns and shapes."},
    {East, u"The location of this room is to the East of the center of your home. The Tree Element energy of this location is in balance with the water energy of this room. Keep the chi from stagnating by keeping the room clean, and decorating with Tree Element items such as tall plants, bamboo fixtures, and green and blue colors."},
    {SouthEast, u"The location of this room is to the South-East of the center of your home. The Tree Element energy of this location is in balance with the water energy of this room. Keep the chi from stagnating by keeping the room clean, and decorating with Tree Element items such as tall plants, bamboo fixtures, and green and blue colors."},
    {Center, u"The location of this room is in the center of your home. The center location is the most powerful location in a home.  Locating a bathroom here can have disastrous results, as the energy of the home will drain out through the toilet, shower or washing machine drains. If you have a bathroom in this location, try not to use it.  Or, if that is not possible, try hanging a mirror on the outside of the (closed) door to make the room 'disappear'.Ideally, the center of your home should be kept as empty and free of clutter as possible."},
    {NorthWest, u"The location of this room is to the North-West of the center of your home. This location is associated with leadership and responsibility, and its Metal Element energy is drained by the water energy of this room.  Boost the Metal energy by including flowering plants in silver or gold pots, and decorate with round patterns and fixture shapes."},
    {West, u"The location of this room is to the West of the center of your home. The Metal Element energy of the West is drained by the water energy of this room.  This can have a negative affect on business or social relationships. Boost the Metal energy by including flowering plants in silver or gold pots, and decorate with round patterns and fixture shapes."},
    {NorthEast, u"The location of this room is to the North-East of the center of your home. The energy of this location is unstable and unpredictable.  The water element of this room is destroyed by the Soil Element energy of this location which increases the instability of the energy here.  Except for the center of your home, this is the worst place for locating a bathroom or laundry room. Metal Element energy supports Soil Element energy. Boost the Metal energy by including flowering plants in silver or gold pots, and decorate with round patterns and fixture shapes."},
    {South, u"The location of this room is to the South of the center of your home. The Fire Element energy of this location is destroyed by the water energy of this room.  This can effectively douse the fire of your passion.  Boost the Fire Element energy by adding Tree Element energy which supports Fire. Grow tall plants and decorate in bright green colors to help balance the energy of this room."},
}};

/// By the flooring.
inline constexpr std::array<KeyedSentence, 4> floorings{{
    {Carpet, u"Carpet will tend to slow the chi energy of a room that already has a tendency to stagnate the flow of chi. Therefore, carpet is not recommended for this room.  If the room has windows and good exposure to sunlight, then throw rugs or mats made from natural plant fibers over a tile floor are preferable. "},
    {Wood, u"Wood floors will tend to increase the yin value of the room, bringing more Tree Element energy in. However, this can slow the movement of the chi energy and should only be used in rooms that get a lot of sunlight.  Rooms without windows should have a polished tile or stone floor to help keep the energy from stagnating."},
    {Stone, u"Stone floors, such as polished marble, are a good choice for bathrooms, particularly those that do not get a lot of light. They help to keep the energy circulating, and careful use of throw rugs and mats can balance the energy nicely."},
    {Tile, u"The effect of tile on the room depends on the type of tile.  Highly polished tiles raise the chi energy dramatically, which is good for rooms that get very little light.  Using terracota tiles helps to calm the chi energy, which would be better for rooms that do get a lot of light.  In both cases, it's a good idea to use mats to help balance the energy in the room."},
}};

// clang-format on

} // namespace sentences::bathroom
