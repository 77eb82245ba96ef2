#pragma once

#include "catalogues/DirectionIds.h"
#include "catalogues/cPersonalDirection.h"

#include <QString>
#include <QStringView>

#include <array>

/// The words of the room advice, apart from the rules that choose among them: one header a kind of room, for
/// modRooms.cpp alone. Odd spellings, doubled and missing blanks are the text as it is meant to be printed.
namespace sentences {

// The direction ids by which sentences are keyed.
using directionIds::Center;
using directionIds::East;
using directionIds::North;
using directionIds::NorthEast;
using directionIds::NorthWest;
using directionIds::South;
using directionIds::SouthEast;
using directionIds::SouthWest;
using directionIds::West;

// The flooring ids by which sentences are keyed.
inline constexpr qint32 Carpet = 1;
inline constexpr qint32 Wood = 2;
inline constexpr qint32 Stone = 3;
inline constexpr qint32 Tile = 4;

/// A paragraph for one direction or flooring.
struct KeyedSentence {
    qint32 id;
    QStringView text;
};

/// What is said when the room lies in one of the person's eight directions.
struct PersonalSentence {
    qint32 cPersonalDirection::*directionId;
    QStringView text;
};

/// A piece of a paragraph that names directions of the person: words, or the name of one of the directions.
struct Piece {
    constexpr Piece(const char16_t* words)
        : text(words) {}
    constexpr Piece(QString cPersonalDirection::*directionName)
        : name(directionName) {}

    QStringView text;
    QString cPersonalDirection::*name = nullptr;
};

} // namespace sentences
