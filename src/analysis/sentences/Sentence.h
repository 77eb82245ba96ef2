#pragma once

#include "catalogues/cPersonalDirection.h"

#include <QString>
#include <QStringView>

#include <array>

/// The words of the room advice, apart from the rules that choose among them: one header a kind of room, for
/// modRooms.cpp alone. Odd spellings, doubled and missing blanks are the text as it is meant to be printed.
namespace sentences {

// The direction ids by which sentences are keyed.
inline constexpr qint32 North = 1;
inline constexpr qint32 SouthWest = 2;
inline constexpr qint32 East = 3;
inline constexpr qint32 SouthEast = 4;
inline constexpr qint32 Center = 5;
inline constexpr qint32 NorthWest = 6;
inline constexpr qint32 West = 7;
inline constexpr qint32 NorthEast = 8;
inline constexpr qint32 South = 9;

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
