#include "nineki/MoveRules.h"

#include "nineki/NineKiWorld.h"

#include <algorithm>
#include <map>
#include <set>

// The rules a second time, as statements about numbers, years and elements instead of as a table that is gone
// through.

namespace {

/// The years of the lunar table.
constexpr qint32 firstYear = 1800;
constexpr qint32 lastYear = 2200;

/// Which number stands in a sector.
qint32 numberIn(qint32 sector, qint32 year) {
    return ((sector - 1 - (year - 1995)) % 9 + 9) % 9 + 1;
}

qint32 sectorOf(qint32 number, qint32 year) {
    return ((number - 1 + year - 1995) % 9 + 9) % 9 + 1;
}

char elementOf(qint32 number) {
    constexpr std::array elements{'W', 'S', 'T', 'T', 'S',
                                  'M', 'M', 'S', 'F'}; // Water, Soil, Tree, Metal, Fire
    return elements[static_cast<std::size_t>(number - 1)];
}

/// Water destroys Fire, Fire Metal, Metal Tree, Tree Soil, Soil Water.
bool fight(char one, char other) {
    const std::string cycle = "WFMTSW";
    return cycle.find(std::string{one, other}) != std::string::npos ||
           cycle.find(std::string{other, one}) != std::string::npos;
}

/// The sector across from the year's sign, by the sign's place in the twelve, which begin with the Rat.
qint32 acrossFromSign(qint32 year) {
    constexpr std::array across{9, 2, 2, 7, 6, 6, 1, 8, 8, 3, 4, 4};
    return across[static_cast<std::size_t>((year - 4) % 12)];
}

/// Everything that can be said against a sector, in the order of its weight.
std::set<MoveRule> objections(qint32 sector, qint32 year, qint32 person, bool renovation) {
    const qint32 number = numberIn(sector, year);
    const qint32 opposite = 10 - sector;
    std::set<MoveRule> found;
    const auto note = [&](MoveRule rule, bool holds) {
        if (holds) {
            found.insert(rule);
        }
    };
    note(MoveRule::CarriesFive, number == 5);
    note(MoveRule::OppositeFive, numberIn(opposite, year) == 5);
    note(MoveRule::CarriesOwnNumber, number == person);
    note(MoveRule::OppositeOwnNumber, numberIn(opposite, year) == person);
    note(MoveRule::Incompatible, !renovation && fight(elementOf(person), elementOf(number)));
    note(MoveRule::OppositeHome, !renovation && sectorOf(number, year) + number == 10);
    note(MoveRule::OppositeAnimal, sector == acrossFromSign(year));
    return found;
}

MoveRule expectedRule(qint32 sector, qint32 year, qint32 person, bool renovation) {
    const std::set<MoveRule> against = objections(sector, year, person, renovation);
    return against.empty() ? MoveRule::NothingAgainst : *against.begin();
}

const std::map<qint32, QString> names{
    {1, QStringLiteral("North")},      {2, QStringLiteral("South-West")}, {3, QStringLiteral("East")},
    {4, QStringLiteral("South-East")}, {6, QStringLiteral("North-West")}, {7, QStringLiteral("West")},
    {8, QStringLiteral("North-East")}, {9, QStringLiteral("South")},
};

/// The halves that make up a corner sector, or the sector alone.
std::set<QString> partsOf(const QString& sector) {
    const QStringList words = sector.split(u'-');
    if (words.size() == 1) {
        return {sector};
    }
    return {words[0] + u'/' + sector, words[1] + u'/' + sector};
}

class MoveRules : public testing::TestWithParam<bool>, protected NineKiWorld {
protected:
    [[nodiscard]] SectorRating rated(const NineKiYear& year, qint32 sector, bool renovation) const {
        NineKiSector asked{year, sector, names.at(sector), year.placement.numberIn(sector), {}, {}};
        return rateSector(asked, renovation);
    }
};

} // namespace

INSTANTIATE_TEST_SUITE_P(BothModes, MoveRules, testing::Bool(),
                         [](const auto& tested) { return tested.param ? "Renovation" : "Move"; });

TEST_P(MoveRules, everyYearAndNumber_theFirstObjectionDecides) {
    for (qint32 person = 1; person <= 9; ++person) {
        choosePerson(person);
        for (qint32 year = firstYear; year <= lastYear; ++year) {
            const NineKiYear facts = lookUpNineKiYear(year);
            for (const auto& [sector, name] : names) {
                EXPECT_EQ(rated(facts, sector, GetParam()).rule,
                          expectedRule(sector, year, person, GetParam()))
                    << year << ' ' << person << ' ' << name.toStdString();
            }
        }
    }
}

TEST_P(MoveRules, everyYearAndNumber_aSectorIsRatedOnceApartFromItsHalves) {
    for (qint32 person = 1; person <= 9; ++person) {
        choosePerson(person);
        for (qint32 year = firstYear; year <= lastYear; ++year) {
            rate(year, GetParam());
            std::map<QString, int> ratings;
            for (const NineKiTable* table : {&nineKi.Beneficial, &nineKi.Problematic}) {
                for (const NineKiFinding& finding : *table) {
                    ++ratings[finding.sector];
                }
            }
            for (const auto& [sector, name] : names) {
                if (ratings.contains(name)) {
                    EXPECT_EQ(ratings.at(name), 1);
                    ratings.erase(name);
                    continue;
                }
                for (const QString& half : partsOf(name)) {
                    EXPECT_EQ(ratings[half], 1) << year << ' ' << half.toStdString();
                    ratings.erase(half);
                }
            }
            EXPECT_TRUE(ratings.empty()) << year;
        }
    }
}

TEST_P(MoveRules, everyYearAndNumber_goodSectorsCarryTheirIdAndHalvesNothing) {
    for (qint32 person = 1; person <= 9; ++person) {
        choosePerson(person);
        for (qint32 year = firstYear; year <= lastYear; ++year) {
            rate(year, GetParam());
            for (const NineKiFinding& good : nineKi.Beneficial) {
                const auto whole = std::ranges::find_if(
                    names, [&](const auto& sector) { return sector.second == good.sector; });
                EXPECT_EQ(good.text, whole == names.end() ? QString() : QString::number(whole->first));
            }
            for (const NineKiFinding& bad : nineKi.Problematic) {
                EXPECT_TRUE(bad.text.startsWith(QStringLiteral("is "))) << bad.text.toStdString();
                EXPECT_FALSE(bad.text.contains(u'{')) << bad.text.toStdString();
            }
        }
    }
}

TEST_P(MoveRules, split_theHalfStraightAcrossIsProblematicAndTheOtherGood) {
    struct Split {
        const char* animal;
        qint32 sector;
        const char* problematic;
        const char* beneficial;
    };
    const std::array<Split, 8> splits{{
        {"Dragon", 6, "West/North-West", "North/North-West"},
        {"Snake", 6, "North/North-West", "West/North-West"},
        {"Dog", 4, "East/South-East", "South/South-East"},
        {"Boar", 4, "South/South-East", "East/South-East"},
        {"Ox", 2, "South/South-West", "West/South-West"},
        {"Tiger", 2, "West/South-West", "South/South-West"},
        {"Sheep", 8, "North/North-East", "East/North-East"},
        {"Monkey", 8, "East/North-East", "North/North-East"},
    }};
    for (const Split& split : splits) {
        // A year and person against whom nothing but the sign speaks in that sector.
        NineKiYear year{placeNumbers(1999), QString::fromLatin1(split.animal), 10 - split.sector, {}};
        bool reached = false;
        for (qint32 offset = 0; offset < 9 && !reached; ++offset) {
            for (qint32 person = 1; person <= 9 && !reached; ++person) {
                year.placement = placeNumbers(1999 + offset);
                choosePerson(person);
                const SectorRating rating = rated(year, split.sector, GetParam());
                if (rating.rule != MoveRule::OppositeAnimal) {
                    continue;
                }
                reached = true;
                ASSERT_TRUE(rating.problematic && rating.beneficial) << split.animal;
                EXPECT_EQ(rating.problematic->sector, QString::fromLatin1(split.problematic));
                EXPECT_TRUE(rating.problematic->text.contains(
                    QStringLiteral("Animal sign %1. ").arg(QString::fromLatin1(split.animal))));
                EXPECT_EQ(rating.beneficial->sector, QString::fromLatin1(split.beneficial));
                EXPECT_TRUE(rating.beneficial->text.isEmpty());
                EXPECT_FALSE(rating.showsNumber);
            }
        }
        EXPECT_TRUE(reached) << split.animal;
        EXPECT_EQ(partsOf(names.at(split.sector)),
                  (std::set<QString>{QString::fromLatin1(split.problematic),
                                     QString::fromLatin1(split.beneficial)}));
    }
}

TEST_P(MoveRules, split_aSignOnAnAxisTakesTheWholeSectorAcross) {
    for (const auto& [animal, sector] : {std::pair("Rat", 9), {"Rabbit", 7}, {"Horse", 1}, {"Rooster", 3}}) {
        choosePerson(2);
        NineKiYear year{{}, QString::fromLatin1(animal), 10 - sector, {}};
        bool reached = false;
        for (qint32 offset = 0; offset < 9; ++offset) {
            year.placement = placeNumbers(1995 + offset);
            const SectorRating rating = rated(year, sector, GetParam());
            if (rating.rule == MoveRule::OppositeAnimal) {
                reached = true;
                ASSERT_TRUE(rating.problematic) << animal;
                EXPECT_EQ(rating.problematic->sector, names.at(sector));
                EXPECT_FALSE(rating.beneficial);
            }
        }
        EXPECT_TRUE(reached) << animal;
    }
}

TEST_P(MoveRules, numberFiveInTheCentre_speaksAgainstNoSector) {
    const NineKiYear year = lookUpNineKiYear(2022);
    for (qint32 person = 1; person <= 9; ++person) {
        choosePerson(person);
        for (const auto& [sector, name] : names) {
            EXPECT_GT(rated(year, sector, GetParam()).rule, MoveRule::OppositeFive) << name.toStdString();
        }
    }
}

TEST_P(MoveRules, personOfNumberFive_isToldOfTheFiveAndNotOfTheirOwn) {
    choosePerson(5);
    for (qint32 year = 2023; year < 2031; ++year) { // the years between two with 5 in the centre
        const NineKiYear facts = lookUpNineKiYear(year);
        std::multiset<MoveRule> rules;
        for (const auto& [sector, name] : names) {
            rules.insert(rated(facts, sector, GetParam()).rule);
        }
        EXPECT_EQ(rules.count(MoveRule::CarriesFive), 1U);
        EXPECT_EQ(rules.count(MoveRule::OppositeFive), 1U);
        EXPECT_EQ(rules.count(MoveRule::CarriesOwnNumber), 0U);
        EXPECT_EQ(rules.count(MoveRule::OppositeOwnNumber), 0U);
    }
}

TEST_P(MoveRules, ownNumberInTheCentre_speaksAgainstNoSector) {
    for (qint32 year = firstYear; year < firstYear + 9; ++year) {
        const NineKiYear facts = lookUpNineKiYear(year);
        choosePerson(facts.placement.numberIn(5));
        for (const auto& [sector, name] : names) {
            const MoveRule rule = rated(facts, sector, GetParam()).rule;
            EXPECT_NE(rule, MoveRule::CarriesOwnNumber) << year;
            EXPECT_NE(rule, MoveRule::OppositeOwnNumber) << year;
        }
    }
}

TEST_P(MoveRules, sectorAcrossFromTheSignThatCarriesFive_isDescribedOnlyAsSuch) {
    choosePerson(1);
    int seen = 0;
    for (qint32 year = firstYear; year <= lastYear; ++year) {
        const qint32 sector = acrossFromSign(year);
        if (numberIn(sector, year) == 5) {
            ++seen;
            rate(year, GetParam());
            EXPECT_EQ(about(nineKi.Problematic, names.at(sector)).size(), 1U);
            for (const QString& half : partsOf(names.at(sector))) {
                if (half != names.at(sector)) {
                    EXPECT_TRUE(about(nineKi.Problematic, half).empty());
                    EXPECT_TRUE(about(nineKi.Beneficial, half).empty());
                }
            }
        }
    }
    EXPECT_GT(seen, 0);
}

TEST_P(MoveRules, signWithoutASectorInTheTable_leavesEverySectorBeyondTheRulesGood) {
    choosePerson(1);
    NineKiYear year = lookUpNineKiYear(2024);
    year.animalDirection = 0;
    for (const auto& [sector, name] : names) {
        EXPECT_NE(rated(year, sector, GetParam()).rule, MoveRule::OppositeAnimal);
    }
}

TEST_P(MoveRules, showsNumber_whereANumberIsTheReason) {
    for (qint32 year = firstYear; year < firstYear + 12; ++year) {
        choosePerson(year % 9 + 1);
        const NineKiYear facts = lookUpNineKiYear(year);
        for (const auto& [sector, name] : names) {
            const SectorRating rating = rated(facts, sector, GetParam());
            const bool isReason =
                rating.rule == MoveRule::CarriesFive || rating.rule == MoveRule::CarriesOwnNumber ||
                rating.rule == MoveRule::Incompatible || rating.rule == MoveRule::OppositeHome;
            EXPECT_EQ(rating.showsNumber, isReason);
        }
    }
}

class MoveSentences : public testing::Test, protected NineKiWorld {};

TEST_F(MoveSentences, incompatibleNumber_isToldWithBothElementsAndTheReason) {
    choosePerson(9);
    rate(2023, false);
    EXPECT_EQ(about(nineKi.Problematic, QStringLiteral("West")),
              std::vector<std::string>{
                  "is towards the Nine Ki Number 6, that is associated with the element Metal which is "
                  "incompatible with your Fire element. (Metal is Destroyed By Fire)"});
}

TEST_F(MoveSentences, numberOppositeItsHome_isToldForAMoveAndPassesForARenovation) {
    choosePerson(3);
    rate(2023, false); // 9 stands in the North
    EXPECT_EQ(about(nineKi.Problematic, QStringLiteral("North")),
              std::vector<std::string>{
                  "is towards the Nine Ki Number 9, that is opposite its normal position in the chart.  This "
                  "can cause unsettlement and confusion in this direction."});
    rate(2023, true);
    EXPECT_EQ(about(nineKi.Beneficial, QStringLiteral("North")), std::vector<std::string>{"1"});
}

TEST_F(MoveSentences, missingElements_leaveEmptyNamesInTheSentence) {
    choosePerson(9);
    world.write(QStringLiteral("Elements.xml"), recordFile({}));
    rate(2023, false);
    EXPECT_EQ(about(nineKi.Problematic, QStringLiteral("West")),
              std::vector<std::string>{
                  "is towards the Nine Ki Number 6, that is associated with the element  which is "
                  "incompatible with your Fire element. ( Destroys )"});
}

TEST_F(MoveSentences, modes_differInTheirWords) {
    choosePerson(1);
    const QString west = QStringLiteral("West");
    rate(2024, false); // 5 in the West
    EXPECT_TRUE(about(nineKi.Problematic, west).at(0).starts_with("is towards the most powerful Nine Ki "));
    rate(2024, true);
    EXPECT_TRUE(about(nineKi.Problematic, west).at(0).starts_with("is in the sector of the most powerful "));
}
