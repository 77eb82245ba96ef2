#pragma once

#include "profiles/sentences/Sentence.h"

#include <array>

/// The report on an element.
namespace reportSentences::element {

// Every sentence stays whole on its line, so that it can be proof-read and searched for.
// clang-format off

inline constexpr QStringView characterHeading = u"Character";
inline constexpr QStringView calmingHeading = u"Calming Chi Energy";
inline constexpr QStringView enhancingHeading = u"Enhancing Chi Energy";
inline constexpr QStringView avoidHeading = u"Things to Avoid";

inline constexpr std::array<Piece<cElement>, 1> description{{
    own<&cElement::DESCRIPTION>,
}};

inline constexpr std::array<Piece<cElement>, 7> directions{{
    u"The Element energy ",
    own<&cElement::ELEMENTNAME>,
    u" is associated with rooms located to the ",
    own<&cElement::DIRECTIONS>,
    u" of the center of your home, and with the ",
    own<&cElement::DIRECTIONS>,
    u" area of each individual room.",
}};

inline constexpr std::array<Piece<cElement>, 9> maintaining{{
    u"To maintain ",
    own<&cElement::ELEMENTNAME>,
    u" Element energy in a room decorate using ",
    own<&cElement::DECORATINGCOLORS>,
    u" colors, ",
    own<&cElement::DECORATINGPATTERNS>,
    u" and items made from materials like ",
    own<&cElement::DECORATINGMATERIALS>,
    u".",
}};

/// The other element is the one that this one supports.
inline constexpr std::array<Piece<cElement>, 15> calming{{
    u"To calm the ",
    own<&cElement::ELEMENTNAME>,
    u" Element energy in a room decorate using colors, patterns and materials associated with the ",
    other<&cElement::ELEMENTNAME>,
    u" Element which is supported by (or drains) the ",
    own<&cElement::ELEMENTNAME>,
    u" Element energy.  ",
    other<&cElement::ELEMENTNAME>,
    u" is associated with ",
    other<&cElement::DECORATINGCOLORS>,
    u" colors, ",
    other<&cElement::DECORATINGPATTERNS>,
    u" and items made from materials like ",
    other<&cElement::DECORATINGMATERIALS>,
    u".",
}};

/// It supports this one.
inline constexpr std::array<Piece<cElement>, 15> enhancing{{
    u"To enhance the ",
    own<&cElement::ELEMENTNAME>,
    u" Element energy in a room decorate using colors, patterns and materials associated with the ",
    other<&cElement::ELEMENTNAME>,
    u" Element which supports (increases) the ",
    own<&cElement::ELEMENTNAME>,
    u" Element energy.  ",
    other<&cElement::ELEMENTNAME>,
    u" is associated with ",
    other<&cElement::DECORATINGCOLORS>,
    u" colors, ",
    other<&cElement::DECORATINGPATTERNS>,
    u" and items made from materials like ",
    other<&cElement::DECORATINGMATERIALS>,
    u".",
}};

/// It destroys this one.
inline constexpr std::array<Piece<cElement>, 14> destroyedBy{{
    own<&cElement::ELEMENTNAME>,
    u" Element energy is destroyed by ",
    other<&cElement::ELEMENTNAME>,
    u" Element energy.  Therefore, it is critical that you do not  decorate with colors, patterns and materials associated with the ",
    other<&cElement::ELEMENTNAME>,
    u" Element, as this will severely weaken the energy of the room.  ",
    other<&cElement::ELEMENTNAME>,
    u" is associated with ",
    other<&cElement::DECORATINGCOLORS>,
    u" colors, ",
    other<&cElement::DECORATINGPATTERNS>,
    u" and items made from materials like ",
    other<&cElement::DECORATINGMATERIALS>,
    u".",
}};

/// This one destroys it.
inline constexpr std::array<Piece<cElement>, 15> destroys{{
    u"Likewise, ",
    own<&cElement::ELEMENTNAME>,
    u" Element energy destroys ",
    other<&cElement::ELEMENTNAME>,
    u" Element energy.  Therefore, you should not decorate with colors, patterns and materials associated with the ",
    other<&cElement::ELEMENTNAME>,
    u" Element, as this will cause disharmony and instability in the room.  ",
    other<&cElement::ELEMENTNAME>,
    u" is associated with ",
    other<&cElement::DECORATINGCOLORS>,
    u" colors, ",
    other<&cElement::DECORATINGPATTERNS>,
    u" and items made from materials like ",
    other<&cElement::DECORATINGMATERIALS>,
    u".",
}};

// clang-format on

} // namespace reportSentences::element
