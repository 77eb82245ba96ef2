#include "profiles/cKUAYear.h"

#include "catalogues/Catalogue.h"
#include "core/Conversion.h"
#include "core/Failure.h"
#include "core/Global.h"

using namespace Qt::StringLiterals;

cKUAYear::cKUAYear() {
    routine(u"cKUAYear.Initialize KUAYear", [this] {
        folder = Global::dataFolder();
        LoadKUAYears();
    });
}

bool cKUAYear::LoadKUAYears() {
    return Catalogue::load(u"cKUAYear.Load KUA Years", oXMLKUAYears, folder + u"KUAYears.xml"_s);
}

bool cKUAYear::GetKUAYear(qint32 lYearID) {
    return Catalogue::get(u"cKUAYear.Get KUA Year", oXMLKUAYears, lYearID,
                          {
                              {u"YEARID"_s, &YearID},
                              {u"STARTDATE"_s, &StartDate},
                              {u"KUANUMBERMALE"_s, &KUANumberMale},
                              {u"KUANUMBERFEMALE"_s, &KUANumberFemale},
                              {u"ANIMALID"_s, &AnimalID},
                          });
}

qint32 Global::CalculateAdjustedYear(const QVariant& date) {
    return routine(u"Global.Calculate Adjusted Year", qint32{0}, [&](qint32& result) {
        if (!Conversion::isDate(date)) {
            return;
        }
        const QDate day = Conversion::toDate(date);
        const qint32 year = day.year();
        cKUAYear lunarYear;
        const QDate start = lunarYear.GetKUAYear(year) ? Conversion::toDate(lunarYear.StartDate)
                                                       : QDate(year, 2, 4); // its usual day
        result = day < start ? year - 1 : year;
    });
}
