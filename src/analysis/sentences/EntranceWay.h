#pragma once

#include "analysis/sentences/Sentence.h"

/// The section on the main entrance, which the advice on its room takes in.
namespace sentences::entranceWay {

// Every sentence stays whole on its line, so that it can be proof-read and searched for.
// clang-format off

/// By the first of the person's directions that is the room's, in this order.
inline constexpr std::array<PersonalSentence, 8> judgements{{
    {&cPersonalDirection::SUCCESSDIRECTIONID, u"This entrance is located in your success direction.  An entrance located in this direction will ensure great success in all of your business and personal endeavors."},
    {&cPersonalDirection::HEALTHDIRECTIONID, u"This entrance is located in your good health direction.  An entrance located in this direction will ensure vitality and good health for you."},
    {&cPersonalDirection::ROMANCEDIRECTIONID, u"This entrance is located in your romance direction.  An entrance located in this direction will bring romance into your home.  This can either be in the form of a new romance or a rekindling of an existing romance."},
    {&cPersonalDirection::DEVELOPMENTDIRECTIONID, u"This entrance is located in your personal and professional development direction.  An entrance located in this direction ensures healthy growth and development in your life."},
    {&cPersonalDirection::BADLUCKDIRECTIONID, u"This entrance is located in your unlucky direction.  An entrance located in this direction will bring minor bad luck into your home such as accidents, irritations and arguments."},
    {&cPersonalDirection::OBSTACLEDIRECTIONID, u"This entrance is located in your obstacle direction.  An entrance located in this direction will bring a host of obstacles to business and personal development into your home."},
    {&cPersonalDirection::ILLNESSDIRECTIONID, u"This entrance is located in your illness or killing direction.  An entrance located in this direction will bring energy into your home that will drain your vitality and threaten your health."},
    {&cPersonalDirection::DESTRUCTIONDIRECTIONID, u"This entrance is located in your destructive or total loss direction.  An entrance located in this direction will have the most negative impact on you.  It may help bring about the failure of business or personal relationships or even an untimely death."},
}};

/// By the room's direction. The Center has no text.
inline constexpr std::array<KeyedSentence, 8> directions{{
    {North, u"The location of this entrance is to the North of the center of your home. The energy of the North is associated with spirituality, contemplation and sex. An entrance in this direction will give the home a still, cool, yin quality and is too quiet for a comfortable home. Boost the chi with a bright red door and shiny brass fittings."},
    {SouthWest, u"The location of this entrance is to the South-West of the center of your home. The chi energy of this location is slow and sometimes stagnant or unstable.  A door in a West Group color, black, dull red or grey, and polished metal fittings will help balance the chi here."},
    {East, u"The location of this entrance is to the East of the center of your home. The Tree Element energy of this location is active and focused and is good for young people who are starting a career or family. Support the Tree Element energy with a door in an East Group color of light green or a cream color. Wood fittings would be better than metal fittings, as Metal Element energy destroys the Tree Element energy."},
    {SouthEast, u"The location of this entrance is to the South-East of the center of your home. The Tree Element energy of this location is calm and creative and is good for young people who are growing and attending school. Support the Tree Element energy with a door in an East Group color of dark green, blue, or a cream color. Wood fittings would be better than metal fittings, as Metal Element energy destroys the Tree Element energy."},
    {NorthWest, u"The location of this entrance is to the North-West of the center of your home. This location is associated with leadership and responsibility, and will bring order and control into your life.A door in a West Group color, black, dull red or grey, and polished metal fittings will help balance the chi here."},
    {West, u"The location of this entrance is to the West of the center of your home. An entrance in this location will invite financial gain, romance and joy into the home but it can also lead to a lack of motivation. A door in a West Group color, black, dull red or grey, and polished metal fittings will help balance the chi here."},
    {NorthEast, u"The location of this entrance is to the North-East of the center of your home. The energy of this location is sometimes harsh and piercing. An entrance here will bring this unstable quickly changing energy into the house. A Bright white door will help to deflect this energy away from the home. You may also want to hang a pa kua mirror outside and above the door pointing North-East."},
    {South, u"The location of this entrance is to the South of the center of your home. The Fire Element energy of this location makes it lively location good for gaining notoriety. However, it may be a little too active for a happy home, leading to disharmony in the family. A door in an East Group color of green or blue, or a in the South's color of purple will be best here. Wood fittings would be better than metal fittings, as Metal Element energy is destroyed by the Fire Element energy of the South."},
}};

/// Closes the section.
inline constexpr QStringView backdoor = u"An entrance way that leads directly towards the backdoor or into a bathroom can cause all of the energy that enters the home to be immediately drained away. If this is true for your entrance way, place a screen between the front door and backdoor or bathroom to interrupt the flow of chi and to make it circulate around the house. ";

// clang-format on

} // namespace sentences::entranceWay
