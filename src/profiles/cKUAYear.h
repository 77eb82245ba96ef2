#pragma once

#include "store/cXMLHandler.h"

#include <QString>
#include <QVariant>

#include <memory>

/// The lunar year table: for each Western year the day on which its lunar year starts, the KUA numbers of
/// the people born in it, and its animal sign. KUA numbers come from here and are never calculated.
class cKUAYear {
public:
    /// The store on `KUAYears.xml`.
    std::unique_ptr<cXMLHandler> oXMLKUAYears;
    /// The Western year, which is the key.
    qint32 YearID = 0;
    /// A date text, as the date conversions read it.
    QVariant StartDate;
    qint32 KUANumberMale = 0;
    qint32 KUANumberFemale = 0;
    qint32 AnimalID = 0;

    /// Loads the file.
    cKUAYear();

    /// Reads the file anew. Always true: a file that is missing shows itself at the first look-up.
    bool LoadKUAYears();

    /// Fills the fields from the year's row. False when there is none; the fields then keep what they held.
    bool GetKUAYear(qint32 lYearID);

private:
    QString folder;
};

namespace Global {

/// The year of the lunar calendar in which a date lies: its Western year, less 1 before the day on which
/// that year's lunar year starts. For a year outside the table that day is taken to be 4 February. 0 for a
/// value that is no date.
qint32 CalculateAdjustedYear(const QVariant& date);

} // namespace Global
