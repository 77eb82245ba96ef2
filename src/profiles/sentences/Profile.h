#pragma once

#include "profiles/cProfile.h"
#include "profiles/sentences/Sentence.h"

#include <array>

/// The report on a person.
namespace reportSentences::profile {

// Every sentence stays whole on its line, so that it can be proof-read and searched for.
// clang-format off

/// The first heading, with the name of the person's direction in it.
inline constexpr std::array<Piece<cProfile>, 3> title{{
    u"Profile for a ",
    own<&cProfile::oDirection, &cDirection::DIRECTIONNAME>,
    u" person",
}};
inline constexpr QStringView beneficialHeading = u"Beneficial Compass Directions";
inline constexpr QStringView problematicHeading = u"Problematic Compass Directions";
inline constexpr QStringView elementsHeading = u"Elements";

/// Who the person is. No full stop follows the direction and the animal: the sentences run on.
inline constexpr std::array<Piece<cProfile>, 17> person{{
    u"The KUA/Nine Ki Number for this profile is ",
    own<&cProfile::KUANUMBER>,
    u" which is the compass direction ",
    own<&cProfile::oDirection, &cDirection::DIRECTIONNAME>,
    u"  This direction is associated with the color ",
    own<&cProfile::oColor, &cColor::COLORNAME>,
    u" and is symbolized by the image of the ",
    own<&cProfile::oSymbol, &cSymbol::SYMBOLNAME>,
    u"."
    u"  Your Birth Year (adjusted for the Lunar Calendar) is ",
    own<&cProfile::ADJBIRTHYEAR>,
    u" and your birth year's animal sign is ",
    own<&cProfile::oAnimal, &cAnimal::AnimalName>,
    u"  This Compass Direction is characterized by the energy of the ",
    own<&cProfile::oTOD, &cTOD::TODNAME>,
    u" and is represented by the Trigram ",
    own<&cProfile::oTrigram, &cTrigram::TRIGRAMNAME>,
    u".",
}};

inline constexpr std::array<Piece<cProfile>, 1> summary{{
    own<&cProfile::oDirection, &cDirection::SUMMARY>,
}};

inline constexpr std::array<Piece<cProfile>, 1> beneficial{{
    u"Your Beneficial Compass Directions are the areas of your home that are most compatible with your energy. Energize the rooms in these areas of your home to enhance their beneficial effects, by decorating in the Colors, Patterns, Textures and Shapes associated with each Beneficial Direction and their associated Elements.  You may also decorate using the Colors, Patterns, Textures and Shapes related to the  Element that 'Supports' the Element of the Beneficial Compass Direction.  It is also very important to examine the rooms in these areas of your home for features that may drain  the area's energy.  This can result in losing the benefical effect of the Compass Direction.",
}};

inline constexpr std::array<Piece<cProfile>, 3> success{{
    u"Your Success (Sheng Chi) Direction is ",
    own<&cProfile::oPersonalDirection, &cPersonalDirection::SUCCESSDIRECTION>,
    u". Energize the rooms in this area of your home to ensure success in relationships and business. Check for features that can drain the energy from rooms in this area of your home which can cause problems in your relationships and business.",
}};

inline constexpr std::array<Piece<cProfile>, 3> health{{
    u"Your Health (Tien Yi) Direction is ",
    own<&cProfile::oPersonalDirection, &cPersonalDirection::HEALTHDIRECTION>,
    u". Energize the rooms in this area of your home to help prevent accidents and ensure good health. Check for features that can drain the energy from rooms in this area of your home which can cause problems for your health.",
}};

inline constexpr std::array<Piece<cProfile>, 3> romance{{
    u"Your Romance (Nien Yen) Direction is ",
    own<&cProfile::oPersonalDirection, &cPersonalDirection::ROMANCEDIRECTION>,
    u". Energize the rooms in this area of your home to attract or maintain romantic relationships. Check for features that can drain the energy from rooms in this area of your home which can cause domestic problem, or keep you from meeting new romantic partners.",
}};

inline constexpr std::array<Piece<cProfile>, 3> development{{
    u"Your Personal (Fu Wei) Development Direction is ",
    own<&cProfile::oPersonalDirection, &cPersonalDirection::DEVELOPMENTDIRECTION>,
    u". Energize the rooms in this area of your home to increase personal growth and development. Check for features that can drain the energy from rooms in this area of your home which can cause your personal development to stagnate and increase your frustration and unhappiness.",
}};

inline constexpr std::array<Piece<cProfile>, 1> problematic{{
    u"Your Problematic Compass Directions are the areas of your home that are least compatible with your energy. Try to avoid having a front door that faces one of these directions.  It is important to choose a Compass Direction for your Bedroom, Living Room, or any other room where you will likely spend much of your time at home from your list of  Beneficial Directions, and to avoid locating any of those rooms in one of your Problematic Compass Directions.  If that is not possible, then you should try to position  the head of your bed towards one of your Beneficial directions, or position a couch or your favoite chair towards one of your Beneficial directions to help lessen the Problematic effects.",
}};

/// How to decorate in a problematic direction.
inline constexpr std::array<Piece<cProfile>, 1> decorating{{
    u"When decorating, you may decorate in the Colors, Patterns, Textures and Shapes associated with the Problematic Direction and its Element, but to keep from over energizing the room, decorate in  pastel shades of the color instead of rich, vibrant shades.  You may also decorate in the Colors, Patterns, Textures and Shapes of the Element that is 'supported by' the Element of  the Problematic Compass Direction.  This will have the effect of draining some of the energy from the Problematic Direction.",
}};

inline constexpr std::array<Piece<cProfile>, 3> badLuck{{
    u"Your Bad Luck (Ho Hai) Direction is ",
    own<&cProfile::oPersonalDirection, &cPersonalDirection::BADLUCKDIRECTION>,
    u". Calm the energy of the rooms in this area of your home to help prevent minor bad luck, such as arguments, lost articles or small accidents from occuring.",
}};

inline constexpr std::array<Piece<cProfile>, 3> obstacle{{
    u"Your Obstacle (Wu Kwei) Direction is ",
    own<&cProfile::oPersonalDirection, &cPersonalDirection::OBSTACLEDIRECTION>,
    u". Calm the energy of the rooms in this area of your home to help prevent more serious bad luck, such as law suits, failed businesses and relationships from occuring.",
}};

inline constexpr std::array<Piece<cProfile>, 3> illness{{
    u"Your Illness (Lui Sha) Direction is ",
    own<&cProfile::oPersonalDirection, &cPersonalDirection::ILLNESSDIRECTION>,
    u". Calm the energy of the rooms in this area of your home to help stop threats to your health such as chronic illness, disease and debilitating accidents from occuring.",
}};

inline constexpr std::array<Piece<cProfile>, 3> destruction{{
    u"Your Destruction (Chueh Ming) Direction is ",
    own<&cProfile::oPersonalDirection, &cPersonalDirection::DESTRUCTIONDIRECTION>,
    u". This is your least compatible Compass Direction.  Calm the energy of the rooms in this area of your home to prevent great misfortune and the total loss or destruction of your home, business and relationships. Avoid living in a home where the main entrance faces this direction, and avoid sleeping in a bedroom located in this area of your home at all costs.",
}};

inline constexpr std::array<Piece<cProfile>, 11> ownElement{{
    u"Your Element is ",
    own<&cProfile::oElement, &cElement::ELEMENTNAME>,
    u". ",
    own<&cProfile::oElement, &cElement::DESCRIPTION>,
    u"."
    u" It is characterized by the colors ",
    own<&cProfile::oElement, &cElement::DECORATINGCOLORS>,
    u", ",
    own<&cProfile::oElement, &cElement::DECORATINGPATTERNS>,
    u" and materials such as ",
    own<&cProfile::oElement, &cElement::DECORATINGMATERIALS>,
    u".",
}};

/// The other element is the one that the own one supports.
inline constexpr std::array<Piece<cProfile>, 10> supports{{
    own<&cProfile::oElement, &cElement::ELEMENTNAME>,
    u" supports (and is also drained by) the element ",
    other<&cElement::ELEMENTNAME>,
    u"."
    u" You can calm your energy through use of its colors ",
    other<&cElement::DECORATINGCOLORS>,
    u", ",
    other<&cElement::DECORATINGPATTERNS>,
    u" and materials such as ",
    other<&cElement::DECORATINGMATERIALS>,
    u".",
}};

/// It supports the own one.
inline constexpr std::array<Piece<cProfile>, 9> supportedBy{{
    u"It is supported by the element ",
    other<&cElement::ELEMENTNAME>,
    u"."
    u" You can enhance your energy through use of its colors ",
    other<&cElement::DECORATINGCOLORS>,
    u", ",
    other<&cElement::DECORATINGPATTERNS>,
    u" and materials such as ",
    other<&cElement::DECORATINGMATERIALS>,
    u".",
}};

/// The own one destroys it.
inline constexpr std::array<Piece<cProfile>, 6> destroys{{
    own<&cProfile::oElement, &cElement::ELEMENTNAME>,
    u" destroys the element ",
    other<&cElement::ELEMENTNAME>,
    u"."
    u" It may be necessary for you to energize the rooms that are located in the areas of the home associated with ",
    other<&cElement::ELEMENTNAME>,
    u".",
}};

/// It destroys the own one.
inline constexpr std::array<Piece<cProfile>, 5> destroyedBy{{
    u"It is destroyed by the element ",
    other<&cElement::ELEMENTNAME>,
    u"."
    u" It may be necessary for you to calm the rooms that are located in the areas of the home associated with ",
    other<&cElement::ELEMENTNAME>,
    u".",
}};

// clang-format on

} // namespace reportSentences::profile
