// Makes data/KUAYears.xml: for each Western year the civil date on which the lunar year starts,
// the number that a man and a woman born in that lunar year carry, and the year's animal sign.
//
//   kua_years_generator                 prints the file
//   kua_years_generator --check FILE    compares FILE with what it would print
//   kua_years_generator --instants      prints the instants behind the dates
//
// The lunar year starts on the day of Li Chun, when the Sun's apparent geocentric longitude is
// 315 degrees, counted in China Standard Time (UTC+8) for every year. The astronomy is ERFA's.

#include <erfa.h>
#include <erfam.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <fstream>
#include <iomanip>
#include <iostream>
#include <numbers>
#include <sstream>
#include <string>
#include <string_view>

namespace {

constexpr int firstYear = 1800;
constexpr int lastYear = 2200;

constexpr double secondsPerDay = ERFA_DAYSEC;
constexpr double degreesPerRadian = 180.0 / std::numbers::pi;

/// Longitude of the Sun at Li Chun, in degrees.
constexpr double startLongitude = 315.0;

/// China Standard Time is ahead of universal time by this part of a day.
constexpr double chinaStandardOffsetDays = 8.0 / 24.0;

/// The Sun's mean motion in longitude, degrees a day. It only steers the iteration.
constexpr double meanSolarMotion = 360.0 / 365.2422;

/// An instant as a pair of Julian date parts whose sum is the date: the split keeps the
/// microseconds that one double would lose.
struct JulianDate {
    double day;
    double fraction;
};

/// Sum of coefficients[i] * x^i.
template<std::size_t Size>
double polynomial(const std::array<double, Size>& coefficients, double x) {
    double sum = 0.0;
    for (auto coefficient = coefficients.rbegin(); coefficient != coefficients.rend(); ++coefficient) {
        sum = sum * x + *coefficient;
    }
    return sum;
}

/// TT - UT in seconds at the start of February of a year, by the polynomial expressions that
/// F. Espenak and J. Meeus give for the Five Millennium Canon of Solar Eclipses (NASA/TP-2006-214141).
double deltaT(int westernYear) {
    const double year = westernYear + (2.0 - 0.5) / 12.0;
    if (year < 1860.0) {
        return polynomial(std::array{13.72, -0.332447, 0.0068612, 0.0041116, -0.00037436, 0.0000121272,
                                     -0.0000001699, 0.000000000875},
                          year - 1800.0);
    }
    if (year < 1900.0) {
        return polynomial(std::array{7.62, 0.5737, -0.251754, 0.01680668, -0.0004473624, 1.0 / 233174.0},
                          year - 1860.0);
    }
    if (year < 1920.0) {
        return polynomial(std::array{-2.79, 1.494119, -0.0598939, 0.0061966, -0.000197}, year - 1900.0);
    }
    if (year < 1941.0) {
        return polynomial(std::array{21.20, 0.84493, -0.076100, 0.0020936}, year - 1920.0);
    }
    if (year < 1961.0) {
        return polynomial(std::array{29.07, 0.407, -1.0 / 233.0, 1.0 / 2547.0}, year - 1950.0);
    }
    if (year < 1986.0) {
        return polynomial(std::array{45.45, 1.067, -1.0 / 260.0, -1.0 / 718.0}, year - 1975.0);
    }
    if (year < 2005.0) {
        return polynomial(std::array{63.86, 0.3345, -0.060374, 0.0017275, 0.000651814, 0.00002373599},
                          year - 2000.0);
    }
    if (year < 2050.0) {
        return polynomial(std::array{62.92, 0.32217, 0.005589}, year - 2000.0);
    }
    const double centuries = (year - 1820.0) / 100.0;
    const double longTerm = -20.0 + 32.0 * centuries * centuries;
    return year < 2150.0 ? longTerm - 0.5628 * (2150.0 - year) : longTerm;
}

/// Apparent geocentric longitude of the Sun in degrees, referred to the true equinox and ecliptic
/// of date. Terrestrial Time serves as the ephemeris' own time scale: they differ by milliseconds.
double apparentSolarLongitude(const JulianDate& terrestrialTime) {
    double heliocentric[2][3] = {};
    double barycentric[2][3] = {};
    // The status only warns of dates outside 1900 to 2100, where the error stays far below a second
    // of time.
    static_cast<void>(eraEpv00(terrestrialTime.day, terrestrialTime.fraction, heliocentric, barycentric));

    // Where the Sun was when the light left it, seen from where the Earth is now.
    const double distance = eraPm(heliocentric[0]);
    const double lightDays = distance * ERFA_AULT / secondsPerDay;
    double direction[3] = {};
    double velocity[3] = {};
    for (int axis = 0; axis < 3; ++axis) {
        const double sunVelocity = barycentric[1][axis] - heliocentric[1][axis];
        direction[axis] = -heliocentric[0][axis] - sunVelocity * lightDays;
        // The Earth's velocity in units of the speed of light, for the aberration.
        velocity[axis] = barycentric[1][axis] * ERFA_AULT / secondsPerDay;
    }
    double length = 0.0;
    double natural[3] = {};
    eraPn(direction, &length, natural);
    const double lorentz = std::sqrt(1.0 - eraPdp(velocity, velocity));
    double proper[3] = {};
    eraAb(natural, velocity, distance, lorentz, proper);

    // Precession and nutation to the true equator, then the true obliquity to the ecliptic.
    double toTrueEquator[3][3] = {};
    eraPnm06a(terrestrialTime.day, terrestrialTime.fraction, toTrueEquator);
    double nutationInLongitude = 0.0;
    double nutationInObliquity = 0.0;
    eraNut06a(terrestrialTime.day, terrestrialTime.fraction, &nutationInLongitude, &nutationInObliquity);
    const double obliquity = eraObl06(terrestrialTime.day, terrestrialTime.fraction) + nutationInObliquity;
    double equatorial[3] = {};
    eraRxp(toTrueEquator, proper, equatorial);
    const double northward = equatorial[1] * std::cos(obliquity) + equatorial[2] * std::sin(obliquity);
    return eraAnp(std::atan2(northward, equatorial[0])) * degreesPerRadian;
}

/// Li Chun of a Western year in China Standard Time: the Julian date of the midnight before it and
/// the part of the day that had passed.
JulianDate lunarYearStart(int westernYear) {
    double modifiedJulianZero = 0.0;
    double modifiedJulianDay = 0.0;
    eraCal2jd(westernYear, 2, 4, &modifiedJulianZero, &modifiedJulianDay);
    JulianDate terrestrialTime{modifiedJulianZero + modifiedJulianDay, 0.0};
    double correction = 1.0;
    while (std::abs(correction) > 1e-9) {
        const double difference = startLongitude - apparentSolarLongitude(terrestrialTime);
        correction = std::remainder(difference, 360.0) / meanSolarMotion;
        terrestrialTime.fraction += correction;
    }
    const double chinaTime =
        terrestrialTime.fraction - deltaT(westernYear) / secondsPerDay + chinaStandardOffsetDays;
    return {terrestrialTime.day + std::floor(chinaTime), chinaTime - std::floor(chinaTime)};
}

struct CivilDate {
    int year;
    int month;
    int day;
};

CivilDate civilDate(const JulianDate& instant) {
    CivilDate date{};
    double fraction = 0.0;
    eraJd2cal(instant.day, 0.0, &date.year, &date.month, &date.day, &fraction);
    return date;
}

std::string isoText(const CivilDate& date) {
    std::ostringstream text;
    text << std::setfill('0') << std::setw(4) << date.year << '-' << std::setw(2) << date.month << '-'
         << std::setw(2) << date.day;
    return text.str();
}

/// Remainder that is never negative, so that the cycles run on before their year of reference.
int cycle(int value, int length) {
    return ((value % length) + length) % length;
}

/// In 1995 a man's number is 5 and a woman's 1; his falls and hers rises by one each year.
int numberMale(int year) {
    return cycle(5 - 1 - (year - 1995), 9) + 1;
}

int numberFemale(int year) {
    return cycle(1 - 1 + (year - 1995), 9) + 1;
}

/// The signs are numbered from Rat, 1, to Boar, 12; 1995 is a year of the Boar.
int animal(int year) {
    return cycle(year - 1996, 12) + 1;
}

std::string rowset() {
    std::ostringstream out;
    out << "<xml xmlns:s=\"uuid:BDC6E3F0-6DA3-11d1-A2A3-00AA00C14882\""
           " xmlns:dt=\"uuid:C2F41010-65B3-11d1-A29F-00AA00C14882\""
           " xmlns:rs=\"urn:schemas-microsoft-com:rowset\" xmlns:z=\"#RowsetSchema\">\n"
           "\t<s:Schema id=\"RowsetSchema\">\n"
           "\t\t<s:ElementType name=\"row\" content=\"eltOnly\">\n";
    constexpr std::array<std::string_view, 5> fields{"YEARID", "STARTDATE", "KUANUMBERMALE",
                                                     "KUANUMBERFEMALE", "ANIMALID"};
    for (std::size_t index = 0; index < fields.size(); ++index) {
        out << "\t\t\t<s:AttributeType name=\"" << fields[index] << "\" rs:number=\"" << index + 1 << "\">\n";
        if (fields[index] == "STARTDATE") {
            out << "\t\t\t\t<s:datatype dt:type=\"dateTime\" rs:dbtype=\"timestamp\" dt:maxLength=\"16\""
                   " rs:scale=\"0\" rs:precision=\"19\" rs:fixedlength=\"true\" />\n";
        } else {
            out << "\t\t\t\t<s:datatype dt:type=\"int\" dt:maxLength=\"4\" rs:precision=\"10\""
                   " rs:fixedlength=\"true\" />\n";
        }
        out << "\t\t\t</s:AttributeType>\n";
    }
    out << "\t\t\t<s:extends type=\"rs:rowbase\" />\n"
           "\t\t</s:ElementType>\n"
           "\t</s:Schema>\n"
           "\t<rs:data>\n";
    for (int year = firstYear; year <= lastYear; ++year) {
        const CivilDate date = civilDate(lunarYearStart(year));
        out << "\t\t<z:row YEARID=\"" << year << "\" STARTDATE=\"" << isoText(date)
            << "T00:00:00\" KUANUMBERMALE=\"" << numberMale(year) << "\" KUANUMBERFEMALE=\""
            << numberFemale(year) << "\" ANIMALID=\"" << animal(year) << "\" />\n";
    }
    out << "\t</rs:data>\n"
           "</xml>\n";
    return out.str();
}

/// One line a year: the instant in China Standard Time and how far from midnight it lies.
void printInstants() {
    for (int year = firstYear; year <= lastYear; ++year) {
        const JulianDate start = lunarYearStart(year);
        const CivilDate date = civilDate(start);
        const double seconds = start.fraction * secondsPerDay;
        const double minutesToMidnight = std::min(seconds, secondsPerDay - seconds) / 60.0;
        const int whole = static_cast<int>(seconds);
        std::printf("%s %02d:%02d:%02d  delta T %7.1f s  midnight %6.1f min\n", isoText(date).c_str(),
                    whole / 3600, whole / 60 % 60, whole % 60, deltaT(year), minutesToMidnight);
    }
}

/// True when the file holds exactly what this program prints. Names the first line that differs.
bool check(const char* fileName) {
    std::ifstream file(fileName, std::ios::binary);
    if (!file) {
        std::cerr << "Cannot read " << fileName << '\n';
        return false;
    }
    std::ostringstream content;
    content << file.rdbuf();
    const std::string stored = content.str();
    const std::string computed = rowset();
    if (stored == computed) {
        return true;
    }
    std::istringstream storedLines(stored);
    std::istringstream computedLines(computed);
    std::string storedLine;
    std::string computedLine;
    for (int number = 1;; ++number) {
        const bool hasStored = static_cast<bool>(std::getline(storedLines, storedLine));
        const bool hasComputed = static_cast<bool>(std::getline(computedLines, computedLine));
        if (hasStored != hasComputed || storedLine != computedLine) {
            std::cerr << fileName << ':' << number << ": stored   " << (hasStored ? storedLine : "(end)")
                      << '\n'
                      << fileName << ':' << number << ": computed " << (hasComputed ? computedLine : "(end)")
                      << '\n';
            return false;
        }
        if (!hasStored) {
            std::cerr << fileName << ": line ends differ\n";
            return false;
        }
    }
}

} // namespace

int main(int argumentCount, char* arguments[]) {
    const std::string_view verb = argumentCount > 1 ? arguments[1] : "";
    if (verb == "--check" && argumentCount == 3) {
        return check(arguments[2]) ? 0 : 1;
    }
    if (verb == "--instants" && argumentCount == 2) {
        printInstants();
        return 0;
    }
    if (argumentCount > 1) {
        std::cerr << "Usage: kua_years_generator [--instants | --check FILE]\n";
        return 2;
    }
    std::cout << rowset();
    return std::cout.good() ? 0 : 1;
}
