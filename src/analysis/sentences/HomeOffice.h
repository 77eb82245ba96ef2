#pragma once

#include "analysis/sentences/Sentence.h"

/// The advice on a home office.
namespace sentences::homeOffice {

// Every sentence stays whole on its line, so that it can be proof-read and searched for.
// clang-format off

/// Beside the chart.
inline constexpr QStringView besideChart = u"The best locations for a home office from the center of the home are to the North-West, East, South-East or South. ";

/// Closes the paragraph about the person.
inline constexpr std::array<Piece, 5> desk{{
    u"Try to arrange the your desk so that your chair faces either your Success Direction - ",
    &cPersonalDirection::SUCCESSDIRECTION,
    u", or your Development Direction - ",
    &cPersonalDirection::DEVELOPMENTDIRECTION,
    u". ",
}};

/// By the room's direction.
inline constexpr std::array<KeyedSentence, 9> directions{{
    {North, u"The location of this room is to the North of the center of your home. The Water Element energy of the North is best for solitary reflection and meditation and is not an ideal location for a home office. Computers and other electronic office equipment adds Fire Element Energy to the room which destroys the Water Element Energy here. Boosting the Metal Element Energy which supports the Water Element will help to boost the chi. Use a metalic/glass desk and metal based chairs.  Decorate in silver/grey, gold or white colors."},
    {SouthWest, u"The location of this room is to the South-West of the center of your home. The chi energy of this location is too stagnant for a home office. It is better suited to family gatherings and would distract too much from work. Boosting the Fire Element energy will help to raise the chi here. Try using angular or pointed office furniture, bright desk lights and pointed leafed plants placed well away from the desk and chair. "},
    {East, u"The location of this room is to the East of the center of your home. The Tree Element energy of this location is active and good for people starting a new career or business. Decorate with Tree Element energy colors of blue and green, and patterns of long vertical stripes. A wooden desk and chair would also add to the Tree Element energy here."},
    {SouthEast, u"The location of this room is to the South-East of the center of your home. The Tree Element energy of this location is creative and good for the development or growth of a young business. Decorate with Tree Element energy colors of blue and green, and patterns of long vertical stripes. A wooden desk and chair would also add to the Tree Element energy here."},
    {Center, u"The location of this room is in the center of your home. The center location is the most powerful location in a home and may be too intense a location for a home office. Try to keep the center of the room free from any furniture. Place the desk in either the East -- if you are starting a new business, South-East -- if you are expanding or growing a young business, or North-West -- if you are in a leadership role in your company. Try to position your desk to face your Success or Development directions as listed above. Ideally, the center of your home should be kept as empty and free of clutter as possible."},
    {NorthWest, u"The location of this room is to the North-West of the center of your home. This location supports wisdom and responsibility and is a good location for the home office of someone who is in a leadership role in their company. Enhance the Metal Element energy of the North-West by using a metalic desk and chair, and decorating in silver/grey, gold or white."},
    {West, u"The location of this room is to the West of the center of your home. The energy of the West supports finance, but it also supports pleasure and contentment and may not be focused enough for a home office. If your office is here, try positioning the desk so that the chair faces to the East. This will help to focus your thoughts and to implement your ideas for increasing your finances."},
    {NorthEast, u"The location of this room is to the North-East of the center of your home. The energy of this location is unstable and unpredictable and is a poor location for a home office. Calm the sharp harsh chi by using a wooden desk and chair. Decorate with yin pastel colors. Arrange the desk so that the chair faces East so that the focused energy of the East can moderate the unstable energy of the North-East."},
    {South, u"The location of this room is to the South of the center of your home. The Fire Element energy of this location will help attract recognition for your work. Support the fiery chi here by decorating in the Fire Element color purple. Try using angular or pointed office furniture, bright desk lights and pointed leafed plants placed well away from the desk and chair. "},
}};

/// By the flooring.
inline constexpr std::array<KeyedSentence, 4> floorings{{
    {Carpet, u"Carpet or rugs will slow the flow of chi in the room, and may tend to dull the active character of the home office. If you must have a rug here, place it over a polished wood, tile or stone floor to help balance the chi."},
    {Wood, u"Wood floors will tend to increase the yin value of the room, bringing more Tree Element energy in. It is a good choice for a home office, as it neither stagnates nor agitates the chi here. "},
    {Stone, u"Stone floors, such as polished marble, may cause the chi to be too active for good concentration. You may balance this by using a rug under the desk and chair in the room. "},
    {Tile, u"The effect of tile on the room depends on the type of tile.  Highly polished tiles raise the chi energy dramatically, which may be too intense for a home office.  Using terracota tiles help to calm the chi energy, which would be a better choice for this type of room."},
}};

inline constexpr QStringView exposedBeams = u"Exposed beams in a home office may cause problems.  Beams tend to send cutting energy down into the room. This can drain your vitality and cause a lack of concentration and focus. If the beam crosses the desk it can cause separation in business relationships. Try to orient the desk so that it is not directly beneath a beam. If this is not possible, try to cover the beam with a tapestry or piece of fabric. ";

// clang-format on

} // namespace sentences::homeOffice
