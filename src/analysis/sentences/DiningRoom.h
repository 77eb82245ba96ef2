#pragma once

#include "analysis/sentences/Sentence.h"

/// The advice on a dining room.
namespace sentences::diningRoom {

// Every sentence stays whole on its line, so that it can be proof-read and searched for.
// clang-format off

/// Beside the chart.
inline constexpr QStringView besideChart = u"The best locations for a dining room from the center of the home are to the West, North-West, East or South-East. The East and South-East are associated with Sunrise and the Morning time of day and would be best suited for meals early in the day. The West and North-West are associated with Sunset and Dusk and would be best suited for evening meals.";

/// Closes the paragraph about the person.
inline constexpr QStringView faceOne = u"Try to arrange the dining room table so that your chair faces one of these directions.";

/// By the room's direction.
inline constexpr std::array<KeyedSentence, 9> directions{{
    {North, u"The location of this room is to the North of the center of your home. The Water Element energy of the North is best for solitary reflection and meditation and is not an ideal location for a dining room.  Boost the yang character of the chi here by decorating in warm colors such as red, pink, and pastel purple."},
    {SouthWest, u"The location of this room is to the South-West of the center of your home. The chi energy of this location too stagnant to provide for nourishing meals. The Soil Element energy of the South-West is supported by the Fire Element energy of the South. Boost the Fire Element energy by adding candles to the table, as well as red or purple table cloths, place mats or napkins.  Use a glass or stone table top and metal furniture to increase the yang character of the chi."},
    {East, u"The location of this room is to the East of the center of your home. The Tree Element energy of this location is active and supports spirited gatherings. For more relaxed meals, boost the yin character of the chi by using a wooden table, place mats made from natural plant fibers - wicker, bamboo or rush - and cutlery with wooden handles. "},
    {SouthEast, u"The location of this room is to the South-East of the center of your home. The Tree Element energy of this location is active and supports spirited gatherings. For more relaxed meals, boost the yin character of the chi by using a wooden table, place mats made from natural plant fibers - wicker, bamboo or rush - and cutlery with wooden handles. "},
    {Center, u"The location of this room is in the center of your home. The center location is the most powerful location in a home and may be too intense a location for meals. Boost the yin character of the chi by using a wooden table and chairs, place mats made from natural plant fibers - wicker, bamboo or rush - and cutlery with wooden handles. Ideally, the center of your home should be kept as empty and free of clutter as possible."},
    {NorthWest, u"The location of this room is to the North-West of the center of your home. This location has a very formal energy and is best suited for a formal dining room. If you wish to enhance the formal energy of the room, boost the Metal Element energy of the North-West by using grey/silver table cloths, place mats or napkins.  Polished metal cutlery and metal or reflective tables and chairs will also help.  If you wish to give the room a warmer, friendlier atmosphere, paint the walls either rose or rusty red color and use touches of red or purple in the place settings."},
    {West, u"The location of this room is to the West of the center of your home. The energy of the West supports romance and entertainment and is a good location for a family dining room. Decorate with warm rusty or rose colors.  A round table, candles and touches of red in the place settings will help to enhance the romantic character of this room. "},
    {NorthEast, u"The location of this room is to the North-East of the center of your home. The energy of this location is unstable and unpredictable and is probably the worst location for a dining room. Calm the cold harsh chi by using a wooden table and chairs, place mats made from natural plant fibers - wicker, bamboo or rush - and cutlery with wooden handles. "},
    {South, u"The location of this room is to the South of the center of your home. The Fire Element energy of this location is too passionate for a relaxing meal. Calm the fiery chi here by using a wooden table and chairs, place mats made from natural plant fibers - wicker, bamboo or rush - and cutlery with wooden handles. Boost the Soil Element energy which will drain some of the Fire Element energy by decorating in yellow and brown colors, checked patterns and terracotta fixtures."},
}};

/// By the flooring.
inline constexpr std::array<KeyedSentence, 4> floorings{{
    {Carpet, u"Carpet or rugs will slow the flow of chi in the room, and may tend to dull the lively character of the dining room. Try not to have a fully carpeted dining room.  If you must have a rug here, place it over a polished tile or stone floor to help balance the chi."},
    {Wood, u"Wood floors will tend to increase the yin value of the room, bringing more Tree Element energy in. It is a good choice for a dining room, as it neither stagnates nor agitates the chi here. "},
    {Stone, u"Stone floors, such as polished marble, may cause the chi to be too active for a relaxing meal. You may balance this by using a rug under the table and seating area of the room. "},
    {Tile, u"The effect of tile on the room depends on the type of tile.  Highly polished tiles raise the chi energy dramatically, which may be too intense for a dining room.  Using terracota tiles help to calm the chi energy, which would be a better choice for this type of room."},
}};

// clang-format on

} // namespace sentences::diningRoom
