#pragma once

#include <array>
#include <string>

/// What the tradition says of the nine directions, by direction id: the yardstick for the tables.
struct DirectionFacts {
    int id;
    std::string name;
    /// Trigram's lines from the bottom up, '1' whole and '0' broken. The Center has none.
    std::string lines;
    std::string trigram;
    std::string symbol;
    std::string element;
    std::string timeOfDay;
    std::string color;
};

inline const std::array<DirectionFacts, 9>& directionFacts() {
    static const std::array<DirectionFacts, 9> facts{{
        {1, "North", "010", "KAN", "Water", "Water", "Night", "Off White"},
        {2, "South-West", "000", "KUN", "Earth", "Soil", "Afternoon", "Black"},
        {3, "East", "100", "CHEN", "Thunder", "Tree", "Morning-Sunrise", "Green"},
        {4, "South-East", "011", "SUN", "Wind", "Tree", "Mid-Morning", "Blue"},
        {5, "Center", "", "KUN", "Earth", "Soil", "Afternoon", "Orange"},
        {6, "North-West", "111", "CHIEN", "Heaven", "Metal", "Late Evening - Dusk", "Grey"},
        {7, "West", "110", "TUI", "Lake", "Metal", "Early Evening - Sunset", "Red"},
        {8, "North-East", "001", "KEN", "Mountain", "Soil", "Early Morning", "White"},
        {9, "South", "101", "LI", "Fire", "Fire", "Midday", "Purple"},
    }};
    return facts;
}

inline const DirectionFacts& factsOf(int directionId) {
    return directionFacts().at(static_cast<std::size_t>(directionId - 1));
}
