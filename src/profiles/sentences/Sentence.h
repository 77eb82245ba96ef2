#pragma once

#include "catalogues/cElement.h"

#include <QString>
#include <QStringView>

#include <optional>

/// The words of the reports on people and elements, apart from the code that writes them: one header a
/// report. Odd spellings, doubled and missing blanks are the text as it is meant to be printed.
namespace reportSentences {

/// What a paragraph speaks of: the record that the report is on and, where it compares, another element.
template<class Record>
struct Subjects {
    const Record& own;
    const std::optional<cElement>& other;
};

inline QString asText(const QString& text) {
    return text;
}

inline QString asText(qint32 number) {
    return QString::number(number);
}

/// The field of the own record that a path of members leads to.
template<auto... path, class Record>
QString own(const Subjects<Record>& subjects) {
    return asText((subjects.own.*....*path));
}

/// A field of the other element.
template<QString cElement::*field, class Record>
QString other(const Subjects<Record>& subjects) {
    return subjects.other.value().*field;
}

/// A piece of a paragraph: words, or a field of its subjects.
template<class Record>
struct Piece {
    constexpr Piece(const char16_t* words)
        : text(words) {}
    constexpr Piece(QString (*fieldOf)(const Subjects<Record>&))
        : field(fieldOf) {}

    QStringView text;
    QString (*field)(const Subjects<Record>&) = nullptr;
};

} // namespace reportSentences
