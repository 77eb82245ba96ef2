#pragma once

#include "nineki/NineKiYear.h"

#include <QString>
#include <QStringView>

/// An entry of the tables that a calculation publishes.
struct NineKiFinding {
    /// Name of a sector or half sector.
    QString sector;
    /// A sentence that goes on from the name; among what is beneficial the id of a whole sector, or nothing.
    QString text;

    [[nodiscard]] bool operator==(const NineKiFinding&) const = default;
};

/// One of the eight sectors around the centre in a year's chart, as the rules see it.
struct NineKiSector {
    const NineKiYear& year;
    qint32 direction = 0;
    QString name;
    /// The number that stands in it.
    qint32 number = 0;
    /// What `isIncompatible` found: the element of the number, and how it and the person's get on.
    QString elementName;
    QString reason;
};

/// What can be true of a sector for the current person. Chart and compass ask the same things.
namespace NineKiConditions {

[[nodiscard]] bool carriesFive(NineKiSector& sector);
[[nodiscard]] bool isOppositeFive(NineKiSector& sector);
[[nodiscard]] bool carriesOwnNumber(NineKiSector& sector);
[[nodiscard]] bool isOppositeOwnNumber(NineKiSector& sector);
/// Whether the number's element and the person's stand in a destroying relation; fills `elementName` and
/// `reason` if so. Reads reference files.
[[nodiscard]] bool isIncompatible(NineKiSector& sector);
/// Whether the number stands across the centre from its home.
[[nodiscard]] bool isOppositeHome(NineKiSector& sector);
/// Whether the year's animal sign stands in the sector. In a corner sector that goes by the sign's name.
[[nodiscard]] bool holdsAnimal(NineKiSector& sector);
[[nodiscard]] bool isOppositeAnimal(NineKiSector& sector);

} // namespace NineKiConditions

/// Whether a sector name is that of a corner, which two animal signs share.
[[nodiscard]] bool isCornerSector(QStringView name);

/// A sentence with its braces filled in: {number}, {element}, {reason} of the sector, {animal} of the year
/// and {own element} of the current person.
[[nodiscard]] QString filledIn(QStringView sentence, const NineKiSector& sector);
