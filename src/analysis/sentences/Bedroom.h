#pragma once

#include "analysis/sentences/Sentence.h"

/// The advice on a bedroom.
namespace sentences::bedroom {

// Every sentence stays whole on its line, so that it can be proof-read and searched for.
// clang-format off

/// Beside the chart.
inline constexpr QStringView besideChart = u"The best locations for an adult bedroom from the center of the home are to the North, North-West and the West.  Good locations for children, students and young adults are to the South-East and East.";

/// The room lies in a beneficial direction of the person. Illness stands ahead of Obstacle on purpose.
inline constexpr std::array<Piece, 9> beneficial{{
    u"This location is in one of your beneficial directions.  "
    u"You should not place your bedroom in a room located ",
    &cPersonalDirection::BADLUCKDIRECTION,
    u", ",
    &cPersonalDirection::ILLNESSDIRECTION,
    u", ",
    &cPersonalDirection::OBSTACLEDIRECTION,
    u" or ",
    &cPersonalDirection::DESTRUCTIONDIRECTION,
    u" "
    u"from the center of your home. "
    u"It is very important that the bedroom you sleep in is located in a direction "
    u"which is beneficial to you.  You should also try to position the head of your bed in ",
}};

/// It lies in none.
inline constexpr std::array<Piece, 9> notBeneficial{{
    u"This location is not in one of your beneficial directions. "
    u"Ideally, you should place your bedroom in a room located ",
    &cPersonalDirection::SUCCESSDIRECTION,
    u", ",
    &cPersonalDirection::HEALTHDIRECTION,
    u", ",
    &cPersonalDirection::ROMANCEDIRECTION,
    u" or ",
    &cPersonalDirection::DEVELOPMENTDIRECTION,
    u" "
    u"from the center of your home. "
    u"It is very important that the bedroom you sleep in is located in a direction "
    u"which is beneficial to you.  If you cannot choose a bedroom in one of your "
    u"beneficial directions, then you should try to position the head of your bed in ",
}};

/// Closes either of the two.
inline constexpr QStringView oneOfThose = u"one of those directions.";

/// By the room's direction.
inline constexpr std::array<KeyedSentence, 9> directions{{
    {North, u"The location of this room is to the North of the center of your home. This location has a still, spiritual chi energy which is particularly good for those who need deep rest and relaxation.  Young people may benefit from rasing the chi energy of this room by adding warm colors such as red, pink and purple."},
    {SouthWest, u"The location of this room is to the South-West of the center of your home. The chi energy of this location may be too stagnant and unbalanced to provide good rest. Increase the chi energy of this location by the use of bright colors associated with the Soil Element of the South-West.  Use bright yellow, orange or other earth colors. You may also use some small touches of Fire Element colors such as red and purple. "},
    {East, u"The location of this room is to the East of the center of your home. The Tree Element energy of this location is ideal for young people who are beginning their careers or family. Support the Tree Element energy by decorating in green and blue colors, vertical stripes, tall plants, bamboo or soft wood furniture."},
    {SouthEast, u"The location of this room is to the South-East of the center of your home. The Tree Element energy of this location supports creativity and learning and is ideal for young children and students.  Support the Tree Element energy by decorating in green and blue colors, vertical stripes, tall plants, bamboo or soft wood furniture."},
    {Center, u"The location of this room is in the center of your home. The center location is the most powerful location in a home.  The energy here is too strong to provide for restfull sleep.  If a bedroom is located here, it is best to convert it to another function, such as a home gym.  If that is not possible, make it a guest bedroom that is seldom used. The center of your home should be kept as empty and free of clutter as possible."},
    {NorthWest, u"The location of this room is to the North-West of the center of your home. This location is associated with leadership and responsibility, and is therefore the perfect location for the Master Bedroom.  To support the Metal Element energy of this location, decorate in Metal Element colors of white, silver/grey or gold.  Soil Element energy supports Metal Element energy, so yellow, orange or other earth colors may also be used."},
    {West, u"The location of this room is to the West of the center of your home. This location is associated with romance and activity.  It is particularly good for couples wishing to enhance romantic and sexual activity.  To calm the active energy, you may want to decorate in more pastel shades ofMetal Element colors such as white, silver/grey and gold. You may also drain away some of the excess chi of this location by decorating in Water Element attributes such as black or navy blue colors, wavy or irregular patterns, and items made from crystal or glass materials."},
    {NorthEast, u"The location of this room is to the North-East of the center of your home. The energy of this location is unbalanced, and quickly shifting.  It may be too harsh of an energy to provide for sufficient rest.  The Soil Element energy of this location supports the Metal Element; by boosting the Metal Element energy of the room you may drain away some of the excess energy from this location.  Use more pastel yin Metal Element colors such as rose, or circular patterns when decorating."},
    {South, u"The location of this room is to the South of the center of your home. The Fire Element energy of this location makes it a poor choice for a sleep, but a good choice for sexual activity. Drain some of the excess chi of this location by increasing the Soil Element energy of the room.  Soil Element energy is associated with yellow, orange and earth colors, checked patterns and square shapes.  Low clay pots, broad leafed plants and terracotta sculptures may also help.  Use a pastel shade of the Fire Element color purple to calm the chi energy here."},
}};

/// By the flooring.
inline constexpr std::array<KeyedSentence, 4> floorings{{
    {Carpet, u"Carpet will tend to increase the yin value of the room, making it cozier and more relaxed. However, it may slow the chi in the room to the point of stagnation. Adding shiny metal furniture or glass table-tops, touches of red or other bright colors may help to keep the chi moving."},
    {Wood, u"Wood floors will tend to increase the yin value of the room, making it cozier and more relaxed. However, it is more yang than a carpeted room.  You can adjust this by using throw rugs to find just the right balance for you."},
    {Stone, u"Stone floors, such as polished marble may be too yang for a bedroom. Offset the unsettled energy by the use of plush rectangular carpets and throw rugs."},
    {Tile, u"The effect of tile on the room depends on the type of tile.  Highly polished tiles raise the chi energy dramatically, making it to yang for a bedroom.  However, using terracota tiles helps to calm the chi energy.  Still, the chi may be too active for a relaxed bedroom unless rectangular carpets or throw rugs are used to calm it."},
}};

inline constexpr QStringView exposedBeams = u"Exposed beams in a bedroom may cause problems.  Beams tend to send cutting energy down into the room. This can drain your vitality and cause unsettled sleep.  If the beam crosses the bed from head to foot, it can effectively separate couples sleeping there, causing problems in the relationship. Try to orient the bed so that it is not directly beneath a beam.  If this is not possible, try hanging a canopy over the bed, or cover the beam with a piece of fabric. ";

/// Not the words that other rooms share: a sleeper's own.
inline constexpr QStringView lowCeiling = u"A low ceiling will tend to concentrate energy and direct it downward. This can cause unsettled sleep and active dreams.  To offset this, try to 'raise' the ceiling by  boosting the Tree Element energy of the room.  Do this with tall plants, curtains with vertical stripes and light fixtures that project light upwards.";

// clang-format on

} // namespace sentences::bedroom
