#pragma once

#include "catalogues/cAnimal.h"
#include "catalogues/cColor.h"
#include "catalogues/cDirection.h"
#include "catalogues/cElement.h"
#include "catalogues/cPersonalDirection.h"
#include "catalogues/cSymbol.h"
#include "catalogues/cTOD.h"
#include "catalogues/cTrigram.h"
#include "profiles/cKUAYear.h"
#include "store/cXMLHandler.h"

#include <QString>
#include <QVariant>

#include <memory>
#include <optional>

class ReportSurface;

/// A person: one record of `Profiles.xml` together with all that the person's KUA number selects from the
/// reference tables. Each change of the stored record is on disk when its routine returns.
class cProfile {
public:
    /// The store on `Profiles.xml`.
    std::unique_ptr<cXMLHandler> oXMLProfiles;
    qint32 PROFILEID = 0;
    QString PROFILENAME;
    /// A date, or a text as the user gave it; after `GetProfile` a text in the form "Short Date".
    QVariant BIRTHDATE;
    /// The year of birth on the lunar calendar.
    qint32 ADJBIRTHYEAR = 0;
    /// "M" is male, in `CalculateKUA` also "m"; any other text counts as female. The program writes "M" and
    /// "F".
    QString GENDER;
    /// 1 to 9, also called the 9 Ki number.
    qint32 KUANUMBER = 0;
    /// The person's own direction, the one whose `KUA` is the person's number.
    cDirection oDirection;
    cPersonalDirection oPersonalDirection;
    /// The colour of the person's direction.
    cColor oColor;
    /// The animal sign of the lunar year of birth.
    cAnimal oAnimal;
    /// The element of the person's direction, and so on.
    cElement oElement;
    /// The lunar year of birth.
    cKUAYear oKUAYear;
    cSymbol oSymbol;
    cTOD oTOD;
    cTrigram oTrigram;
    /// True from `CalculateKUA` to the next load or save.
    bool IsDirty = false;

    /// Loads `Profiles.xml` and all reference tables; no person is selected.
    cProfile();

    /// Finds the lunar year and the KUA number of a birth date and gender, and all that follows from them;
    /// stores nothing. For a date that is none, or whose lunar year is not in the table, the result is false
    /// and `sErrorString` "Invalid Birthdate"; in the second case birth date, gender and year are taken over
    /// all the same.
    bool CalculateKUA(QString& sErrorString, const QVariant& vBDay, const QString& sGender);

    /// Reads a person by id, as it is stored: nothing is calculated anew. Without an id the last one used is
    /// taken; when there is none either, the main window starts a new profile. False for an unknown id; the
    /// fields then keep what they held.
    bool GetProfile(const QVariant& vProfile = {});

    /// Shows the main window and starts a new profile in it.
    void CreateProfile();

    /// Stores the fields as a new person, whose id is one above the highest, and reads it back.
    bool InsertProfile();

    /// Stores the fields of the person `PROFILEID`. False when it is not in the file.
    bool UpdateProfile();

    /// Deletes the person `PROFILEID`. The fields keep the deleted person.
    bool DeleteProfile();

    /// Reads the file anew. Always true: a file that is missing shows itself at the first look-up.
    bool LoadProfiles();

    /// Writes the report on this person into an open document: on the screen with a band in the person's
    /// colour on the first page, for the printer (`ToPrint`) without. The chart of directions has a page of
    /// its own.
    void GenerateReport(ReportSurface& vp, bool ToPrint) const;

    /// Draws the compass of the directions and their elements about a centre in twips, South at the top; the
    /// person's own direction stands out.
    void DrawCompass(ReportSurface& vp, qint32 lX, qint32 lY) const;

    /// Draws what each direction means to the person, the beneficial ones green, the problematic ones blue.
    void DrawDirectionChart(ReportSurface& vp, qint32 lX, qint32 lY) const;

private:
    static void DrawDirectionName(ReportSurface& vp, qint32 lX, qint32 lY, qint32 lRadius,
                                  const QString& label, qint32 id);
    void GetDetails();
    /// Writes all fields but the key to the record at the store's cursor.
    void writeFields(cXMLHandler& store) const;

    QString folder;
};

namespace Global {

/// The one person that the whole user interface shares.
extern std::unique_ptr<cProfile> CurrentProfile;

/// The light colour of the shared person, as it is stored: the accent of the windows. Nothing where nobody is
/// chosen.
[[nodiscard]] std::optional<qint32> accentColor();

} // namespace Global
