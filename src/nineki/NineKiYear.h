#pragma once

#include "core/Failure.h"

#include <QString>

#include <array>

/// The id of the centre and the most powerful of the nine numbers.
inline constexpr qint32 nineKiCenter = 5;

/// One value for each of the Nine Ki numbers 1 to 9. Any other index fails with error 9 (Subscript out of
/// range), which is what a person whose number was never calculated comes to.
template<class Value>
class ByNineKiNumber {
public:
    [[nodiscard]] Value& operator[](qint32 number) { return values_[index(number)]; }
    [[nodiscard]] const Value& operator[](qint32 number) const { return values_[index(number)]; }
    [[nodiscard]] bool operator==(const ByNineKiNumber&) const = default;

private:
    [[nodiscard]] static std::size_t index(qint32 number) {
        if (number < 1 || number > 9) {
            throw failure(ErrorNumber::SubscriptOutOfRange);
        }
        return static_cast<std::size_t>(number - 1);
    }

    std::array<Value, 9> values_{};
};

/// Where the nine numbers stand in a year.
struct NineKiPlacement {
    /// The direction id of the sector in which a number stands: the index is the number, the value the
    /// sector.
    ByNineKiNumber<qint32> numberSector;
    /// Whether a number stands across the centre from its home, the sector whose id it is.
    ByNineKiNumber<bool> oppositeHome;

    /// The lowest number that stands in a sector; 10 for a sector that none stands in.
    [[nodiscard]] qint32 numberIn(qint32 direction) const;
};

/// Places the numbers. In 1995 each stands at home; each year each moves on by one sector.
[[nodiscard]] NineKiPlacement placeNumbers(qint32 year);

/// What the rules ask about a year.
struct NineKiYear {
    NineKiPlacement placement;
    /// The year's animal sign: its name, its sector and its own wedge. Empty for a year outside the table.
    QString animalName;
    qint32 animalDirection = 0;
    QString animalWedge;
};

/// Places the numbers of a year and looks its animal sign up.
[[nodiscard]] NineKiYear lookUpNineKiYear(qint32 year);
