#pragma once

#include "analysis/sentences/Sentence.h"

/// The advice on a family or living room.
namespace sentences::familyRoom {

// Every sentence stays whole on its line, so that it can be proof-read and searched for.
// clang-format off

/// Beside the chart.
inline constexpr QStringView besideChart = u"The best locations for a family/living room from the center of the home are to the South-East, South, South-West and the West. The location of choice should be determined by the character you wish the room to have. This will be influenced by the Element energy of that location.";

/// The room lies in a beneficial direction of the person.
inline constexpr QStringView beneficial = u"This location is in one of your beneficial directions. It would be a good choice for a room in which you will likely spend much of your time at home.";

/// It lies in none.
inline constexpr QStringView notBeneficial = u"This location is not in one of your beneficial directions. If this is a room where you will spend a great deal of your time at home, you should arrange the furniture so that you are facing one of your most beneficial directions when you sit in this room.";

/// By the room's direction.
inline constexpr std::array<KeyedSentence, 9> directions{{
    {North, u"The location of this room is to the North of the center of your home. The Water Element energy of the North is best for solitary reflection and meditation. As such, it is not a very desirable location for a family/living room. Increasing the amount of Metal Element energy will help boost the chi energy. If you plan to entertain in this room, raise the chi considerably by adding bright colors such as red, purple."},
    {SouthWest, u"The location of this room is to the South-West of the center of your home. The chi energy of this location is stable and provides a nice quite atmosphere for family relaxation.  However, if you plan to entertain in this room, you will need to raise the chi energy level.  Use some small touches of Fire Element colors such as red and purple to boost the energy. "},
    {East, u"The location of this room is to the East of the center of your home. The Tree Element energy of this location is active and creative.  It can be a lively room for entertaining but may be too active for a relaxed family room.  To soften it up, increase the yin aspect of the room by decorating with pastel shades of the Tree Element energy - green and blue, and using bamboo or soft wood furniture."},
    {SouthEast, u"The location of this room is to the South-East of the center of your home. The Tree Element energy of this location is active and creative.  It can be a lively room for entertaining but may be too active for a relaxed family room.  To soften it up, increase the yin aspect of the room by decorating with pastel shades of the Tree Element energy - green and blue, and using bamboo or soft wood furniture."},
    {Center, u"The location of this room is in the center of your home. The center location is the most powerful location in a home.  The energy here is too strong for a relaxed family room.  If you cannot relocate this room, then try keeping the center of the room clear of furniture.  Also, try to arrange the sitting area to the West or South-West of the room. Ideally, the center of your home should be kept as empty and free of clutter as possible."},
    {NorthWest, u"The location of this room is to the North-West of the center of your home. This location is associated with leadership and responsibility, and is a little too formal for a family/living room.  Soil Element energy supports the Metal Element energy of this location, so yellow, orange or other earth colors may be used to boost the chi of this location, making it a warmer, friendlier place to gather."},
    {West, u"The location of this room is to the West of the center of your home. The trigram for the West is called 'The Joyous', and well describes this location.  It is an excellent location for a family/living room.  Decorate using colors and materials that support the Metal Element energy of this location such as rose, silver/grey and gold, rounded furniture and patterns, metal statues or other objects of art."},
    {NorthEast, u"The location of this room is to the North-East of the center of your home. The energy of this location is sometimes harsh and piercing.  Not a good choice for a family/living room. The Soil Element energy of this location supports the Metal Element; by boosting the Metal Element energy of the room you may drain away some of the excess energy from this location.  Use more pastel yin Metal Element colors such as rose, or circular patterns when decorating."},
    {South, u"The location of this room is to the South of the center of your home. The Fire Element energy of this location makes it lively location for entertaining.  If the room is to be used more for relaxing, drain some of the excess chi of this location by increasing the Soil Element energy of the room.  Soil Element energy is associated with yellow, orange and earth colors, checked patterns and square shapes.  Low clay pots, broad leafed plants and terracotta sculptures may also help.  Use a pastel shade of the Fire Element color purple to calm the chi energy here."},
}};

/// By the flooring.
inline constexpr std::array<KeyedSentence, 4> floorings{{
    {Carpet, u"Carpet will tend to increase the yin value of the room, making it cozier and more relaxed. However, it may slow the chi in the room to the point of stagnation. Adding metal furniture or glass table-tops, touches of red or other bright colors may help to keep the chi moving."},
    {Wood, u"Wood floors will tend to increase the yin value of the room, making it cozier and more relaxed. However, it is more yang than a carpeted room.  You can adjust this by using throw rugs to find just the right balance for you."},
    {Stone, u"Stone floors, such as polished marble may be too yang for a family room.  Use this flooring only if you plan very formal entertaining in this room.  Offset the unsettled energy by the use of plush rectangular carpets."},
    {Tile, u"The effect of tile on the room depends on the type of tile.  Highly polished tiles raise the chi energy dramatically, making it to yang for a family/living room.  However, using terracota tiles helps to calm the chi energy.  Still, the chi may be too active for a relaxed family/living room unless rectangular carpets or throw rugs are used to calm it."},
}};

inline constexpr QStringView exposedBeams = u"Beams tend to send cutting energy down into the room. This can drain your vitality and cause unsettled energy in the room. Try to orient the furniture so that it is not directly beneath a beam.  If this is not possible, try covering the beams with a piece of fabric. ";

// clang-format on

} // namespace sentences::familyRoom
