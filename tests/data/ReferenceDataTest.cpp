#include "DirectionTables.h"
#include "RowsetFile.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <cmath>
#include <map>
#include <ostream>
#include <set>
#include <string>
#include <vector>

namespace {

struct TableCase {
    std::string file;
    std::vector<std::string> fields;
    /// Records that the table must hold; a record file of the user starts with none.
    std::size_t rowCount;
};

// Names the case in test lists, where its bytes would stand otherwise.
void PrintTo(const TableCase& tested, std::ostream* out) {
    *out << tested.file;
}

std::vector<std::string> personalDirectionFields() {
    std::vector<std::string> fields{"PERSONALDIRECTIONID", "GENDER", "GROUP"};
    for (const char* kind :
         {"SUCCESS", "HEALTH", "ROMANCE", "DEVELOPMENT", "BADLUCK", "OBSTACLE", "ILLNESS", "DESTRUCTION"}) {
        fields.push_back(std::string(kind) + "DIRECTIONID");
        fields.push_back(std::string(kind) + "DIRECTION");
    }
    return fields;
}

std::vector<TableCase> tableCases() {
    const std::vector<std::string> profiles{"PROFILEID",    "PROFILENAME", "BIRTHDATE",
                                            "ADJBIRTHYEAR", "GENDER",      "KUANUMBER"};
    const std::vector<std::string> locations{"LOCATIONID",  "DESCRIPTION", "PLANLENGTH", "PLANWIDTH",
                                             "NORTHOFFSET", "LABLEX",      "LABLEY"};
    const std::vector<std::string> floors{"FLOORID", "LOCATIONID", "DESCRIPTION"};
    const std::vector<std::string> rooms{"ROOMID",
                                         "LOCATIONID",
                                         "FLOORID",
                                         "ROOMTYPEID",
                                         "FLOORTYPEID",
                                         "DESCRIPTION",
                                         "TOP",
                                         "LEFT",
                                         "LENGTH",
                                         "WIDTH",
                                         "RELATIVEDIRECTION",
                                         "HASENTRANCE",
                                         "HASEXPOSEDBEAMS",
                                         "HASLOWCEILING"};
    return {
        {"Profiles.xml", profiles, 0},
        {"Locations.xml", locations, 0},
        {"Floors.xml", floors, 0},
        {"Rooms.xml", rooms, 0},
        {"sample/Profiles.xml", profiles, 2},
        {"sample/Locations.xml", locations, 1},
        {"sample/Floors.xml", floors, 2},
        {"sample/Rooms.xml", rooms, 17},
        {"KUAYears.xml", {"YEARID", "STARTDATE", "KUANUMBERMALE", "KUANUMBERFEMALE", "ANIMALID"}, 401},
        {"Directions.xml",
         {"DIRECTIONID", "DIRECTIONNAME", "SUMMARY", "KUA", "COLORID", "TODID", "ELEMENTID", "SYMBOLID",
          "TRIGRAMID"},
         9},
        {"PersonalDirections.xml", personalDirectionFields(), 18},
        {"Elements.xml",
         {"ELEMENTID", "ELEMENTNAME", "DESCRIPTION", "DIRECTIONS", "DECORATINGCOLORS", "DECORATINGPATTERNS",
          "DECORATINGMATERIALS", "SUPPORTSELEMENTID", "SUPPORTEDBYELEMENTID", "DESTROYSELEMENTID",
          "DESTROYEDBYELEMENTID", "COLORID"},
         5},
        {"Colors.xml", {"COLORID", "COLORNAME", "COLORVALUE", "LIGHTCOLORVALUE", "BRIGHTCOLORVALUE"}, 9},
        {"Animals.xml", {"ANIMALID", "ANIMALNAME", "ELEMENTID", "DIRECTIONID", "ANIMALDIRECTIONNAME"}, 12},
        {"Symbols.xml", {"SYMBOLID", "SYMBOLNAME"}, 8},
        {"TimeOfDay.xml", {"TODID", "TODNAME"}, 8},
        {"Trigrams.xml", {"TRIGRAMID", "TRIGRAMNAME"}, 8},
        {"RoomTypes.xml", {"ROOMTYPEID", "ROOMTYPENAME"}, 13},
        {"FloorTypes.xml", {"FLOORTYPEID", "FLOORTYPENAME"}, 4},
    };
}

class RowsetShapeTest : public testing::TestWithParam<TableCase> {};

TEST_P(RowsetShapeTest, schema_namesEveryFieldInReadingOrder) {
    const RowsetFile file(GetParam().file);
    EXPECT_STREQ(file.root().name(), "xml");
    EXPECT_STREQ(file.schema().name(), "s:Schema");
    EXPECT_STREQ(file.schema().attribute("id").value(), "RowsetSchema");
    EXPECT_STREQ(file.schema().first_child().name(), "s:ElementType");
    EXPECT_STREQ(file.data().name(), "rs:data");
    EXPECT_TRUE(file.data().next_sibling().empty());
    EXPECT_EQ(file.schemaFields(), GetParam().fields);
    const auto described =
        file.schema().select_nodes(".//s:AttributeType[@rs:number and s:datatype/@dt:type]");
    EXPECT_EQ(described.size(), GetParam().fields.size());
}

TEST_P(RowsetShapeTest, rows_carryEveryFieldInSchemaOrder) {
    const RowsetFile file(GetParam().file);
    EXPECT_EQ(file.rows().size(), GetParam().rowCount);
    for (const RowsetRow& row : file.rows()) {
        EXPECT_EQ(row.fields(), GetParam().fields);
        for (const std::string& field : GetParam().fields) {
            EXPECT_FALSE(row.text(field).empty()) << field;
        }
    }
    for (const pugi::xml_node& row : file.data().children()) {
        EXPECT_STREQ(row.name(), "z:row");
        EXPECT_TRUE(row.first_child().empty());
    }
}

// A person's directions are keyed by gender as well; every other table by its first field alone.
TEST_P(RowsetShapeTest, keys_areUniqueNumbersFromOneUpwards) {
    const RowsetFile table(GetParam().file);
    const bool keyedByGender = GetParam().file == "PersonalDirections.xml";
    std::set<std::string> keys;
    for (const RowsetRow& row : table.rows()) {
        const std::string& keyField = GetParam().fields.front();
        EXPECT_GE(row.number(keyField), 1);
        EXPECT_TRUE(keys.insert(row.text(keyField) + (keyedByGender ? row.text("GENDER") : "")).second);
    }
}

TEST_P(RowsetShapeTest, savingUnchanged_leavesTheSameBytes) {
    EXPECT_EQ(RowsetFile(GetParam().file).savedText(), dataText(GetParam().file));
}

TEST_P(RowsetShapeTest, namespaces_areThoseOfAPersistedRowset) {
    const RowsetFile file(GetParam().file);
    const std::map<std::string, std::string> namespaces{
        {"xmlns:s", "uuid:BDC6E3F0-6DA3-11d1-A2A3-00AA00C14882"},
        {"xmlns:dt", "uuid:C2F41010-65B3-11d1-A29F-00AA00C14882"},
        {"xmlns:rs", "urn:schemas-microsoft-com:rowset"},
        {"xmlns:z", "#RowsetSchema"},
    };
    for (const auto& [prefix, address] : namespaces) {
        EXPECT_EQ(file.root().attribute(prefix.c_str()).value(), address);
    }
}

INSTANTIATE_TEST_SUITE_P(DataFiles, RowsetShapeTest, testing::ValuesIn(tableCases()), [](const auto& tested) {
    std::string name = tested.param.file.substr(0, tested.param.file.find('.'));
    std::replace_if(
        name.begin(), name.end(), [](unsigned char letter) { return !std::isalnum(letter); }, '_');
    return name;
});

TEST(DirectionsTableTest, rows_pointAtWhatTheTraditionGivesEachDirection) {
    const RowsetFile directions("Directions.xml");
    const RowsetFile colors("Colors.xml");
    const RowsetFile times("TimeOfDay.xml");
    const RowsetFile elements("Elements.xml");
    const RowsetFile symbols("Symbols.xml");
    const RowsetFile trigrams("Trigrams.xml");
    for (const DirectionFacts& facts : directionFacts()) {
        const RowsetRow& row = directions.row("DIRECTIONID", facts.id);
        SCOPED_TRACE(facts.name);
        EXPECT_EQ(row.text("DIRECTIONNAME"), facts.name);
        EXPECT_EQ(row.number("KUA"), facts.id);
        EXPECT_EQ(row.number("COLORID"), facts.id);
        EXPECT_EQ(colors.row("COLORID", row.number("COLORID")).text("COLORNAME"), facts.color);
        EXPECT_EQ(times.row("TODID", row.number("TODID")).text("TODNAME"), facts.timeOfDay);
        EXPECT_EQ(elements.row("ELEMENTID", row.number("ELEMENTID")).text("ELEMENTNAME"), facts.element);
        EXPECT_EQ(symbols.row("SYMBOLID", row.number("SYMBOLID")).text("SYMBOLNAME"), facts.symbol);
        EXPECT_EQ(trigrams.row("TRIGRAMID", row.number("TRIGRAMID")).text("TRIGRAMNAME"), facts.trigram);
    }
}

std::vector<std::string> names(const std::string& file, const std::string& field) {
    std::vector<std::string> result;
    const RowsetFile table(file);
    for (const RowsetRow& row : table.rows()) {
        result.push_back(row.text(field));
    }
    std::sort(result.begin(), result.end());
    return result;
}

std::vector<std::string> sorted(std::vector<std::string> list) {
    std::sort(list.begin(), list.end());
    return list;
}

// The main window finds each picture by these very words.
TEST(CatalogueNamesTest, names_areTheKeysOfThePictureLists) {
    EXPECT_EQ(names("Directions.xml", "DIRECTIONNAME"),
              sorted({"North", "South-West", "East", "South-East", "Center", "North-West", "West",
                      "North-East", "South"}));
    EXPECT_EQ(names("Animals.xml", "ANIMALNAME"),
              sorted({"Rabbit", "Dragon", "Snake", "Horse", "Sheep", "Monkey", "Rooster", "Dog", "Boar",
                      "Rat", "Tiger", "Ox"}));
    EXPECT_EQ(names("Colors.xml", "COLORNAME"),
              sorted({"Off White", "Black", "Green", "Blue", "Orange", "Grey", "Red", "White", "Purple"}));
    EXPECT_EQ(names("Symbols.xml", "SYMBOLNAME"),
              sorted({"Water", "Earth", "Thunder", "Wind", "Heaven", "Lake", "Mountain", "Fire"}));
    EXPECT_EQ(names("Elements.xml", "ELEMENTNAME"), sorted({"Tree", "Fire", "Soil", "Metal", "Water"}));
    EXPECT_EQ(names("TimeOfDay.xml", "TODNAME"),
              sorted({"Night", "Afternoon", "Morning-Sunrise", "Mid-Morning", "Late Evening - Dusk",
                      "Early Evening - Sunset", "Early Morning", "Midday"}));
    EXPECT_EQ(names("Trigrams.xml", "TRIGRAMNAME"),
              sorted({"KAN", "KUN", "CHEN", "SUN", "CHIEN", "TUI", "KEN", "LI"}));
}

// The eight directions of a person follow from the lines of the person's own trigram: each kind
// changes some of them, and the trigram that results stands in the direction of that kind.
TEST(PersonalDirectionsTableTest, directions_followFromTheLinesThatEachKindChanges) {
    struct Kind {
        std::string field;
        /// '1' where the line changes, from the bottom up.
        std::string changes;
    };
    const std::array<Kind, 8> kinds{{
        {"SUCCESS", "001"},
        {"HEALTH", "110"},
        {"ROMANCE", "111"},
        {"DEVELOPMENT", "000"},
        {"BADLUCK", "100"},
        {"OBSTACLE", "011"},
        {"ILLNESS", "101"},
        {"DESTRUCTION", "010"},
    }};
    const RowsetFile table("PersonalDirections.xml");
    std::set<std::pair<int, std::string>> seen;
    for (const RowsetRow& row : table.rows()) {
        const int id = row.number("PERSONALDIRECTIONID");
        SCOPED_TRACE(std::to_string(id) + row.text("GENDER"));
        EXPECT_TRUE(seen.emplace(id, row.text("GENDER")).second);
        // The Center has no trigram of its own and takes that of number 2.
        const std::string own = factsOf(id == 5 ? 2 : id).lines;
        for (const Kind& kind : kinds) {
            std::string lines = own;
            for (std::size_t line = 0; line < lines.size(); ++line) {
                if (kind.changes[line] == '1') {
                    lines[line] = lines[line] == '1' ? '0' : '1';
                }
            }
            const auto target =
                std::find_if(directionFacts().begin(), directionFacts().end(),
                             [&](const DirectionFacts& facts) { return facts.lines == lines; });
            ASSERT_NE(target, directionFacts().end());
            EXPECT_EQ(row.number(kind.field + "DIRECTIONID"), target->id) << kind.field;
            EXPECT_EQ(row.text(kind.field + "DIRECTION"), target->name) << kind.field;
        }
        const std::string group = std::set<int>{1, 3, 4, 9}.contains(id) ? "East Group" : "West Group";
        EXPECT_EQ(row.text("GROUP"), group);
    }
    EXPECT_EQ(seen.size(), 18U);
    for (const auto& [id, gender] : seen) {
        EXPECT_TRUE(id >= 1 && id <= 9);
        EXPECT_TRUE(gender == "M" || gender == "F");
    }
}

TEST(ElementsTableTest, cycles_runThroughAllFiveElements) {
    const RowsetFile elements("Elements.xml");
    const auto nameOf = [&](int id) { return elements.row("ELEMENTID", id).text("ELEMENTNAME"); };
    const std::map<std::string, std::string> supports{
        {"Tree", "Fire"}, {"Fire", "Soil"}, {"Soil", "Metal"}, {"Metal", "Water"}, {"Water", "Tree"}};
    const std::map<std::string, std::string> destroys{
        {"Tree", "Soil"}, {"Soil", "Water"}, {"Water", "Fire"}, {"Fire", "Metal"}, {"Metal", "Tree"}};
    for (const RowsetRow& row : elements.rows()) {
        const std::string name = row.text("ELEMENTNAME");
        SCOPED_TRACE(name);
        EXPECT_EQ(nameOf(row.number("SUPPORTSELEMENTID")), supports.at(name));
        EXPECT_EQ(supports.at(nameOf(row.number("SUPPORTEDBYELEMENTID"))), name);
        EXPECT_EQ(nameOf(row.number("DESTROYSELEMENTID")), destroys.at(name));
        EXPECT_EQ(destroys.at(nameOf(row.number("DESTROYEDBYELEMENTID"))), name);
    }
}

TEST(ElementsTableTest, colors_areThoseOfTheElements) {
    const std::map<std::string, int> colors{
        {"Tree", 3}, {"Fire", 9}, {"Soil", 5}, {"Metal", 6}, {"Water", 2}};
    const RowsetFile table("Elements.xml");
    for (const RowsetRow& row : table.rows()) {
        EXPECT_EQ(row.number("COLORID"), colors.at(row.text("ELEMENTNAME")));
    }
}

// The twelve signs stand round the compass in steps of 30 degrees from the Rat in the North. A sign on a
// cardinal point has that direction whole; the other two of each quarter share the diagonal direction,
// each with the half next to its cardinal neighbor.
TEST(AnimalsTableTest, signs_standInTheirThirtyDegreeWedges) {
    const std::array<std::string, 12> signs{"Rat",   "Ox",    "Tiger",  "Rabbit",  "Dragon", "Snake",
                                            "Horse", "Sheep", "Monkey", "Rooster", "Dog",    "Boar"};
    const std::array<int, 4> cardinals{1, 3, 9, 7};
    const std::array<int, 4> diagonals{8, 4, 2, 6};
    const RowsetFile animals("Animals.xml");
    for (std::size_t position = 0; position < signs.size(); ++position) {
        const RowsetRow& row = animals.row("ANIMALID", static_cast<int>(position) + 1);
        SCOPED_TRACE(signs[position]);
        EXPECT_EQ(row.text("ANIMALNAME"), signs[position]);
        const std::size_t quarter = position / 3;
        const std::size_t step = position % 3;
        if (step == 0) {
            EXPECT_EQ(row.number("DIRECTIONID"), cardinals[quarter]);
            EXPECT_EQ(row.text("ANIMALDIRECTIONNAME"), factsOf(cardinals[quarter]).name);
        } else {
            const int neighbor = cardinals[step == 1 ? quarter : (quarter + 1) % 4];
            EXPECT_EQ(row.number("DIRECTIONID"), diagonals[quarter]);
            EXPECT_EQ(row.text("ANIMALDIRECTIONNAME"),
                      factsOf(neighbor).name + "/" + factsOf(diagonals[quarter]).name);
        }
    }
}

// Each season opens with two signs of its own element and closes with one of Soil.
TEST(AnimalsTableTest, elements_areTheFixedElementsOfTheSigns) {
    const RowsetFile elements("Elements.xml");
    const std::array<std::string, 4> seasons{"Tree", "Fire", "Metal", "Water"};
    const RowsetFile table("Animals.xml");
    for (const RowsetRow& row : table.rows()) {
        const int fromTiger = (row.number("ANIMALID") + 9) % 12;
        const std::string expected =
            fromTiger % 3 == 2 ? "Soil" : seasons.at(static_cast<std::size_t>(fromTiger / 3));
        EXPECT_EQ(elements.row("ELEMENTID", row.number("ELEMENTID")).text("ELEMENTNAME"), expected)
            << row.text("ANIMALNAME");
    }
}

TEST(RoomListsTest, names_fitTheAdviceThatEachIdDraws) {
    const std::map<int, std::string> wordOfType{
        {1, "Bedroom"},  {2, "Bedroom"},      {3, "Bathroom"}, {4, "Family"},       {5, "Dining"},
        {6, "Kitchen"},  {7, "Office"},       {8, "Hallway"},  {9, "Entrance Way"}, {10, "Closet"},
        {11, "Laundry"}, {12, "Living Room"}, {13, "Gym"}};
    const RowsetFile types("RoomTypes.xml");
    std::set<std::string> distinct;
    for (const auto& [id, word] : wordOfType) {
        const std::string name = types.row("ROOMTYPEID", id).text("ROOMTYPENAME");
        EXPECT_NE(name.find(word), std::string::npos) << id;
        EXPECT_TRUE(distinct.insert(name).second) << name;
    }
    const std::map<int, std::string> floorings{{1, "Carpet"}, {2, "Wood"}, {3, "Stone"}, {4, "Tile"}};
    const RowsetFile floors("FloorTypes.xml");
    for (const auto& [id, name] : floorings) {
        EXPECT_EQ(floors.row("FLOORTYPEID", id).text("FLOORTYPENAME"), name);
    }
}

} // namespace
