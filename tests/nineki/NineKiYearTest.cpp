#include "nineki/NineKiYear.h"

#include "nineki/NineKiWorld.h"

#include <set>

namespace {

/// The placement counted out: back in steps of nine years, then forwards, with 9 years as good as none.
std::array<qint32, 10> countedPlacement(qint32 year) {
    qint32 base = 1995;
    while (year < base) {
        base -= 9;
    }
    qint32 offset = year - base;
    if (offset > 9) {
        offset %= 9;
    }
    std::array<qint32, 10> sectors{};
    for (qint32 number = 1; number <= 9; ++number) {
        sectors[static_cast<std::size_t>(number)] =
            offset <= 9 - number ? offset + number : offset - (9 - number);
    }
    return sectors;
}

qint32 inCentre(qint32 year) {
    return placeNumbers(year).numberIn(5);
}

std::vector<qint32> sectorsOf(qint32 year) {
    std::vector<qint32> sectors;
    for (qint32 number = 1; number <= 9; ++number) {
        sectors.push_back(placeNumbers(year).numberSector[number]);
    }
    return sectors;
}

const std::vector<qint32> home{1, 2, 3, 4, 5, 6, 7, 8, 9};

class NineKiYears : public testing::Test, protected NineKiWorld {};

} // namespace

TEST(NineKiPlacement, everyYear_isAPermutationAndAsCountedOut) {
    for (qint32 year = 1800; year <= 2200; ++year) {
        const std::vector<qint32> sectors = sectorsOf(year);
        EXPECT_EQ(std::set<qint32>(sectors.begin(), sectors.end()),
                  std::set<qint32>(home.begin(), home.end()))
            << year;
        const auto counted = countedPlacement(year);
        EXPECT_EQ(sectors, std::vector<qint32>(counted.begin() + 1, counted.end())) << year;
    }
}

TEST(NineKiPlacement, eachYear_everyNumberMovesOnAndTheCentreFallsByOne) {
    for (qint32 year = 1800; year < 2200; ++year) {
        for (qint32 number = 1; number <= 9; ++number) {
            EXPECT_EQ(placeNumbers(year + 1).numberSector[number],
                      placeNumbers(year).numberSector[number] % 9 + 1);
        }
        EXPECT_EQ(inCentre(year + 1), (inCentre(year) + 7) % 9 + 1) << year;
    }
}

TEST(NineKiPlacement, samples_standAsTheyAreKnown) {
    EXPECT_EQ(inCentre(1995), 5);
    EXPECT_EQ(inCentre(1996), 4);
    EXPECT_EQ(placeNumbers(1996).numberSector[5], 6);
    EXPECT_EQ(sectorsOf(2002), (std::vector<qint32>{8, 9, 1, 2, 3, 4, 5, 6, 7}));
    EXPECT_EQ(inCentre(2002), 7);
    EXPECT_EQ(placeNumbers(2002).numberSector[5], 3);
}

TEST(NineKiPlacement, yearsBefore1995_followTheSameRule) {
    EXPECT_EQ(sectorsOf(1994), (std::vector<qint32>{9, 1, 2, 3, 4, 5, 6, 7, 8}));
    EXPECT_EQ(sectorsOf(1986), home);
    EXPECT_EQ(sectorsOf(1), sectorsOf(1 + 9 * 200));
}

TEST(NineKiPlacement, multiplesOfNineYearsOn_placeEveryNumberAtHome) {
    for (const qint32 year : {1995, 2004, 2013, 2022}) {
        EXPECT_EQ(sectorsOf(year), home) << year;
    }
}

TEST(NineKiPlacement, oppositeHome_isAcrossTheCentre) {
    for (qint32 year = 1800; year <= 2200; ++year) {
        const NineKiPlacement placement = placeNumbers(year);
        for (qint32 number = 1; number <= 9; ++number) {
            EXPECT_EQ(placement.oppositeHome[number], placement.numberSector[number] + number == 10);
            if (placement.numberSector[number] == 5) {
                EXPECT_EQ(placement.oppositeHome[number], number == 5) << year << ' ' << number;
            }
        }
    }
}

TEST(NineKiPlacement, numberIn_isTheInverseAndTenForNoSector) {
    const NineKiPlacement placement = placeNumbers(2002);
    for (qint32 number = 1; number <= 9; ++number) {
        EXPECT_EQ(placement.numberIn(placement.numberSector[number]), number);
    }
    EXPECT_EQ(placement.numberIn(0), 10);
    EXPECT_EQ(placement.numberIn(10), 10);
}

TEST(ByNineKiNumber, anyOtherIndex_failsWithError9) {
    const ByNineKiNumber<qint32> values;
    for (const qint32 index : {-1, 0, 10}) {
        try {
            EXPECT_EQ(values[index], 0);
            ADD_FAILURE() << index;
        } catch (const Failure& thrown) {
            EXPECT_EQ(thrown.number, 9);
            EXPECT_EQ(thrown.description, QStringLiteral("Subscript out of range"));
        }
    }
}

TEST_F(NineKiYears, lookUp_everyYearOfTheTableHasTheSignOfItsTwelve) {
    struct Sign {
        const char* name;
        qint32 direction;
        const char* wedge;
    };
    // From the year 4, which was a Rat's.
    const std::array<Sign, 12> signs{{{"Rat", 1, "North"},
                                      {"Ox", 8, "North/North-East"},
                                      {"Tiger", 8, "East/North-East"},
                                      {"Rabbit", 3, "East"},
                                      {"Dragon", 4, "East/South-East"},
                                      {"Snake", 4, "South/South-East"},
                                      {"Horse", 9, "South"},
                                      {"Sheep", 2, "South/South-West"},
                                      {"Monkey", 2, "West/South-West"},
                                      {"Rooster", 7, "West"},
                                      {"Dog", 6, "West/North-West"},
                                      {"Boar", 6, "North/North-West"}}};
    for (qint32 year = 1800; year <= 2200; ++year) {
        const NineKiYear found = lookUpNineKiYear(year);
        const Sign& sign = signs[static_cast<std::size_t>((year - 4) % 12)];
        EXPECT_EQ(found.animalName, QString::fromLatin1(sign.name)) << year;
        EXPECT_EQ(found.animalDirection, sign.direction) << year;
        EXPECT_EQ(found.animalWedge, QString::fromLatin1(sign.wedge)) << year;
        EXPECT_EQ(found.placement.numberSector, placeNumbers(year).numberSector) << year;
    }
}

TEST_F(NineKiYears, lookUp_aYearOutsideTheTableHasNoSign) {
    for (const qint32 year : {1799, 2201}) {
        const NineKiYear found = lookUpNineKiYear(year);
        EXPECT_TRUE(found.animalName.isEmpty());
        EXPECT_EQ(found.animalDirection, 0);
        EXPECT_TRUE(found.animalWedge.isEmpty());
    }
}
