#pragma once

#include "analysis/sentences/Sentence.h"

/// The advice on a kitchen; the person plays no part in it.
namespace sentences::kitchen {

// Every sentence stays whole on its line, so that it can be proof-read and searched for.
// clang-format off

/// Beside the chart.
inline constexpr QStringView besideChart = u"The best locations for a kitchen from the center of the home are to the East or South-East. The East and South-East are associated with activitiy, growth and creativity and will produce nourishing, healthy meals.  These are also the best directions to face while you are preparing your meals. ";

/// By the room's direction.
inline constexpr std::array<KeyedSentence, 9> directions{{
    {North, u"The location of this room is to the North of the center of your home. The energy of this location is quiet and still and will therefore not produce nourishing meals. Increasing the Metal Element energy which supports the Water Element will help to boost the chi here. Try mounting a rack with stainless steel or copper pots and pans hanging from it. The Water Element energy of the North will harmonize with the water energy of the sink but may tend to overpower the fire energy of the stove, as water destroys fire. Support the fire energy of the stove by placing Tree Element energy items, such as wooden cooking utensils, tall wooden salt and pepper shakers, or pot holders with vertical stripes in green or blue near the stove."},
    {SouthWest, u"The location of this room is to the South-West of the center of your home. The chi energy of this location too stagnant to provide for nourishing meals. The Soil Element energy of the South-West is supported by the Fire Element energy of the South. Boost the Fire Element energy by adding red or purple pot holders or curtains, and patterns with star or triangle shapes. "},
    {East, u"The location of this room is to the East of the center of your home. The Tree Element energy of this location is active and will fill your meals with vitality. It is also in balance with both the Fire Element energy of the stove and the Water Element energy of the sink. Support the Tree Element energy here by decorating in green and blue, and using vertically striped patterns."},
    {SouthEast, u"The location of this room is to the South-East of the center of your home. The Tree Element energy of this location is youthful and creative and produce imaginative recipies. It is also in balance with both the Fire Element energy of the stove and the Water Element energy of the sink. Support the Tree Element energy here by decorating in green and blue, and using vertically striped patterns."},
    {Center, u"The location of this room is in the center of your home. The center location is the most powerful location in a home and may be too intense a location for preparing meals. Boost the yin character of the chi with items such as wooden cooking utensils, tall wooden salt and pepper shakers, or pot holders with vertical stripes in pastel greens or blues. Make sure to keep a centrally located kitchen clean at all times; wash and store all dirty dishes immediately. Never leave them unwashed in the sink. Ideally, the center of your home should be kept as empty and free of clutter as possible."},
    {NorthWest, u"The location of this room is to the North-West of the center of your home. The Metal Element energy of the West is destroyed by the fire energy of the stove, and is drained by the water energy of the sink.  Support the Metal Element energy by boosting the Soil Element energy of the room with yellow and orange colors, checked patterns. Energize the water element of the sink by placing a metal object, such as a flower pot with white or grey blooming flowers nearby."},
    {West, u"The location of this room is to the West of the center of your home. The Metal Element energy of the West is destroyed by the fire energy of the stove, and is drained by the water energy of the sink. Support the Metal Element energy by boosting the Soil Element energy of the room with yellow and orange colors, checked patterns. Energize the water element of the sink by placing a metal object, such as a flower pot with white or grey blooming flowers nearby."},
    {NorthEast, u"The location of this room is to the North-East of the center of your home. The energy of this location is unstable and unpredictable and is a poor choice for locating a kitchen. Calm the cold harsh chi with yin items such as wooden cooking utensils, tall wooden salt and pepper shakers, or pot holders with vertical stripes in pastel greens or blues. "},
    {South, u"The location of this room is to the South of the center of your home. The Fire Element energy of this location combines with the fire energy of the stove creating an imbalance. Soil Element energy will drain Fire Element energy, so boost the soil energy with terracotta tiles and fixtures, yellow and orange colors, and checked patterns. "},
}};

/// By the flooring.
inline constexpr std::array<KeyedSentence, 4> floorings{{
    {Carpet, u"Carpet or rugs will stagnate the flow of chi in this room, which will hinder the flow of chi throughout the house. Replace the carpeting with ceramic tile.  If your kitchen is in the South, use terracotta tiles or wooden floors."},
    {Wood, u"Wood floors will tend to increase the yin value of the room, bringing more Tree Element energy in. It is a good choice for a kitchen in the South, but may be too yin for other locations. "},
    {Stone, u"Stone floors, such as polished marble, keep the chi active and circulating. If your kitchen is to the South, you may need to switch to terracotta tiles, slate or wooden floors to calm the chi in that volatile direction."},
    {Tile, u"The effect of tile on the room depends on the type of tile.  Highly polished tiles raise the chi energy dramatically, which is desirable for most locations. Using terracota tiles helps to calm the chi energy, which would be a better choice for a kitchen located to the South."},
}};

/// Closes the advice.
inline constexpr QStringView stoveAndSink = u"Ideally, the stove and the sink or other water feature such as a dishwasher or refridgerator should not be placed next to each other in the room. The fire energy of the stove and the water energy of the sink will clash creating a great imbalance of energy. ";

// clang-format on

} // namespace sentences::kitchen
