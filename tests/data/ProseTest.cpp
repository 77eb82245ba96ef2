#include "DirectionTables.h"
#include "RowsetFile.h"

#include <QRegularExpression>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <iterator>
#include <map>
#include <sstream>
#include <string>
#include <vector>

namespace {

struct Sentence {
    std::string label;
    std::string text;
};

const RowsetFile& elements() {
    static const RowsetFile file("Elements.xml");
    return file;
}

const RowsetFile& directions() {
    static const RowsetFile file("Directions.xml");
    return file;
}

const RowsetRow& related(const RowsetRow& element, const std::string& field) {
    return elements().row("ELEMENTID", element.number(field));
}

/// The colors, patterns and materials as the reports list them after a person's element.
std::string decoration(const RowsetRow& element) {
    return element.text("DECORATINGCOLORS") + ", " + element.text("DECORATINGPATTERNS") +
           " and materials such as " + element.text("DECORATINGMATERIALS") + ".";
}

/// The same list as the element report words it.
std::string colorsAndItems(const RowsetRow& element) {
    return element.text("DECORATINGCOLORS") + " colors, " + element.text("DECORATINGPATTERNS") +
           " and items made from materials like " + element.text("DECORATINGMATERIALS") + ".";
}

std::vector<Sentence> profileReportSentences(const RowsetRow& element) {
    const std::string name = element.text("ELEMENTNAME");
    const RowsetRow& supported = related(element, "SUPPORTSELEMENTID");
    const RowsetRow& supporter = related(element, "SUPPORTEDBYELEMENTID");
    const RowsetRow& destroyed = related(element, "DESTROYSELEMENTID");
    const RowsetRow& destroyer = related(element, "DESTROYEDBYELEMENTID");
    return {
        {"profile, element", "Your Element is " + name + ". " + element.text("DESCRIPTION") + "." +
                                 " It is characterized by the colors " + decoration(element)},
        {"profile, supported",
         name + " supports (and is also drained by) the element " + supported.text("ELEMENTNAME") + "." +
             " You can calm your energy through use of its colors " + decoration(supported)},
        {"profile, supporter", "It is supported by the element " + supporter.text("ELEMENTNAME") + "." +
                                   " You can enhance your energy through use of its colors " +
                                   decoration(supporter)},
        {"profile, destroyed",
         name + " destroys the element " + destroyed.text("ELEMENTNAME") + "." +
             " It may be necessary for you to energize the rooms that are located in the areas of the home "
             "associated with " +
             destroyed.text("ELEMENTNAME") + "."},
        {"profile, destroyer",
         "It is destroyed by the element " + destroyer.text("ELEMENTNAME") + "." +
             " It may be necessary for you to calm the rooms that are located in the areas of the home "
             "associated with " +
             destroyer.text("ELEMENTNAME") + "."},
    };
}

std::vector<Sentence> elementReportSentences(const RowsetRow& element) {
    const std::string name = element.text("ELEMENTNAME");
    const auto otherIs = [](const RowsetRow& other) {
        return other.text("ELEMENTNAME") + " is associated with " + colorsAndItems(other);
    };
    const RowsetRow& supported = related(element, "SUPPORTSELEMENTID");
    const RowsetRow& supporter = related(element, "SUPPORTEDBYELEMENTID");
    const RowsetRow& destroyed = related(element, "DESTROYSELEMENTID");
    const RowsetRow& destroyer = related(element, "DESTROYEDBYELEMENTID");
    const std::string use =
        " Element energy in a room decorate using colors, patterns and materials associated "
        "with the ";
    return {
        {"element, places", "The Element energy " + name + " is associated with rooms located to the " +
                                element.text("DIRECTIONS") + " of the center of your home, and with the " +
                                element.text("DIRECTIONS") + " area of each individual room."},
        {"element, maintain",
         "To maintain " + name + " Element energy in a room decorate using " + colorsAndItems(element)},
        {"element, calm", "To calm the " + name + use + supported.text("ELEMENTNAME") +
                              " Element which is supported by (or drains) the " + name +
                              " Element energy.  " + otherIs(supported)},
        {"element, enhance", "To enhance the " + name + use + supporter.text("ELEMENTNAME") +
                                 " Element which supports (increases) the " + name + " Element energy.  " +
                                 otherIs(supporter)},
        {"element, destroyer", name + " Element energy is destroyed by " + destroyer.text("ELEMENTNAME") +
                                   " Element energy.  Therefore, it is critical that you do not  decorate "
                                   "with colors, patterns and "
                                   "materials associated with the " +
                                   destroyer.text("ELEMENTNAME") +
                                   " Element, as this will severely weaken the energy of the room.  " +
                                   otherIs(destroyer)},
        {"element, destroyed",
         "Likewise, " + name + " Element energy destroys " + destroyed.text("ELEMENTNAME") +
             " Element energy.  Therefore, you should not decorate with colors, patterns and materials "
             "associated with the " +
             destroyed.text("ELEMENTNAME") +
             " Element, as this will cause disharmony and instability in the room.  " + otherIs(destroyed)},
    };
}

std::vector<Sentence> profilePaneSentences(const RowsetRow& element) {
    const std::string name = element.text("ELEMENTNAME");
    return {
        {"pane, places",
         "It is associated with the compass direction(s) " + element.text("DIRECTIONS") + "."},
        {"pane, character", "It is characterized by the colors " + decoration(element)},
        {"pane, supports", name + " supports the element " +
                               related(element, "SUPPORTSELEMENTID").text("ELEMENTNAME") +
                               " and is supported by the element " +
                               related(element, "SUPPORTEDBYELEMENTID").text("ELEMENTNAME") + "."},
        {"pane, destroys", "It destroys the element " +
                               related(element, "DESTROYSELEMENTID").text("ELEMENTNAME") +
                               " and is destroyed by the element " +
                               related(element, "DESTROYEDBYELEMENTID").text("ELEMENTNAME") + "."},
    };
}

std::vector<Sentence> directionSentences(const DirectionFacts& facts) {
    const std::string summary = directions().row("DIRECTIONID", facts.id).text("SUMMARY");
    std::vector<Sentence> sentences{
        {"profile, character",
         "This direction is associated with the color " + facts.color +
             " and is symbolized by the image of the " + facts.symbol +
             ".  Your Birth Year (adjusted for the Lunar Calendar) is 1965 and your birth year's animal sign "
             "is Snake  This Compass Direction is characterized by the energy of the " +
             facts.timeOfDay + " and is represented by the Trigram " + facts.trigram + "."},
        {"profile, summary", summary},
    };
    if (facts.id != 5) {
        sentences.push_back(
            {"pane, summary", "Summary for the Trigram " + facts.trigram + ": \r\n\r\n" + summary});
    }
    return sentences;
}

std::vector<Sentence> allSentences() {
    std::vector<Sentence> all;
    for (const RowsetRow& element : elements().rows()) {
        for (const auto& part : {profileReportSentences(element), elementReportSentences(element),
                                 profilePaneSentences(element)}) {
            for (const Sentence& sentence : part) {
                all.push_back({element.text("ELEMENTNAME") + ", " + sentence.label, sentence.text});
            }
        }
    }
    for (const DirectionFacts& facts : directionFacts()) {
        for (const Sentence& sentence : directionSentences(facts)) {
            all.push_back({facts.name + ", " + sentence.label, sentence.text});
        }
    }
    return all;
}

std::vector<Sentence> allPhrases() {
    std::vector<Sentence> all;
    for (const RowsetRow& element : elements().rows()) {
        for (const char* field :
             {"DESCRIPTION", "DIRECTIONS", "DECORATINGCOLORS", "DECORATINGPATTERNS", "DECORATINGMATERIALS"}) {
            all.push_back({element.text("ELEMENTNAME") + ' ' + field, element.text(field)});
        }
    }
    for (const RowsetRow& row : directions().rows()) {
        all.push_back({row.text("DIRECTIONNAME") + " SUMMARY", row.text("SUMMARY")});
    }
    return all;
}

bool contains(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
}

std::size_t count(const std::string& text, const std::string& part) {
    std::size_t found = 0;
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + part.size())) {
        ++found;
    }
    return found;
}

std::size_t wordCount(const std::string& text) {
    std::istringstream words(text);
    return static_cast<std::size_t>(
        std::distance(std::istream_iterator<std::string>(words), std::istream_iterator<std::string>()));
}

bool matches(const std::string& text, const char* pattern) {
    const QRegularExpression expression(QString::fromLatin1(pattern),
                                        QRegularExpression::CaseInsensitiveOption);
    EXPECT_TRUE(expression.isValid()) << pattern;
    return expression.match(QString::fromStdString(text)).hasMatch();
}

TEST(ProseTest, sentences_haveNoMechanicalSlip) {
    const std::vector<Sentence> sentences = allSentences();
    ASSERT_EQ(sentences.size(), 5U * 15U + 9U * 2U + 8U);
    for (const Sentence& sentence : sentences) {
        SCOPED_TRACE(sentence.label + ": " + sentence.text);
        EXPECT_FALSE(matches(sentence.text, R"(\b([a-z]+)\s+\1\b)")) << "a doubled word";
        EXPECT_FALSE(matches(sentence.text, R"([.,;:!?]\s*[.,;:!?])")) << "doubled punctuation";
        EXPECT_FALSE(matches(sentence.text, R"(\s[.,;:!?)])")) << "a blank ahead of punctuation";
        EXPECT_FALSE(matches(sentence.text, R"([.,;:!?][a-z])")) << "no blank behind punctuation";
        EXPECT_FALSE(matches(sentence.text, R"(\(\s)")) << "a blank inside parentheses";
        EXPECT_FALSE(matches(sentence.text, R"(\ba\s+[aeiou])")) << "a for an";
        EXPECT_FALSE(matches(sentence.text, R"(\ban\s+[^aeiou])")) << "an for a";
        EXPECT_FALSE(matches(sentence.text, R"(,\s+and\s+and\b|\band,)")) << "a stray and";
        EXPECT_EQ(count(sentence.text, "("), count(sentence.text, ")"));
        EXPECT_EQ(sentence.text.back(), '.');
        EXPECT_TRUE(std::isupper(static_cast<unsigned char>(sentence.text.front())));
    }
}

// A list ends with one "and": what stands ahead of the sentence's own brings none along.
TEST(ProseTest, lists_haveOneAndEach) {
    for (const RowsetRow& element : elements().rows()) {
        SCOPED_TRACE(element.text("ELEMENTNAME"));
        EXPECT_EQ(count(element.text("DECORATINGPATTERNS"), "and"), 0U);
        for (const char* field : {"DECORATINGCOLORS", "DECORATINGMATERIALS"}) {
            const std::string list = element.text(field);
            EXPECT_EQ(count(list, " and "), 1U) << list;
            EXPECT_FALSE(contains(list.substr(list.find(" and ")), ",")) << list;
        }
        EXPECT_LE(count(element.text("DIRECTIONS"), " and "), 1U);
        // The sentences say "colors" and "materials" themselves.
        EXPECT_FALSE(contains(element.text("DECORATINGCOLORS"), "color"));
        EXPECT_FALSE(contains(element.text("DECORATINGMATERIALS"), "material"));
    }
}

TEST(ProseTest, phrases_areCleanTextWithoutBlanksAtTheEnds) {
    for (const Sentence& phrase : allPhrases()) {
        SCOPED_TRACE(phrase.label);
        EXPECT_FALSE(contains(phrase.text, "  "));
        EXPECT_FALSE(std::isspace(static_cast<unsigned char>(phrase.text.front())));
        EXPECT_FALSE(std::isspace(static_cast<unsigned char>(phrase.text.back())));
        EXPECT_TRUE(std::all_of(phrase.text.begin(), phrase.text.end(),
                                [](unsigned char letter) { return letter >= ' ' && letter <= '~'; }));
        EXPECT_FALSE(contains(phrase.text, "\"")) << "quotes would be escaped in the file";
        EXPECT_FALSE(matches(
            phrase.text,
            R"(\b(colour|centre|favour|honour|neighbour|organis|realis|recognis|judgement|towards)\w*)"))
            << "British spelling in a product that writes American";
    }
}

// Some sentences put a full stop behind these phrases, others stand them alone: so they end in none, and
// a description closes with a list after a colon, which reads complete either way.
TEST(ProseTest, insertedPhrases_endWithoutStop) {
    for (const RowsetRow& element : elements().rows()) {
        for (const char* field :
             {"DESCRIPTION", "DIRECTIONS", "DECORATINGCOLORS", "DECORATINGPATTERNS", "DECORATINGMATERIALS"}) {
            EXPECT_FALSE(contains(".,;:!?", element.text(field).substr(element.text(field).size() - 1)))
                << element.text("ELEMENTNAME") << ' ' << field;
        }
        const std::string description = element.text("DESCRIPTION");
        const std::string lastSentence = description.substr(description.rfind(". ") + 2);
        EXPECT_EQ(lastSentence.rfind("Its gifts: ", 0), 0U) << lastSentence;
    }
}

TEST(ProseTest, summaries_haveNinetyToOneHundredFiftyWords) {
    for (const RowsetRow& row : directions().rows()) {
        const std::size_t words = wordCount(row.text("SUMMARY"));
        EXPECT_GE(words, 90U) << row.text("DIRECTIONNAME");
        EXPECT_LE(words, 150U) << row.text("DIRECTIONNAME");
        EXPECT_EQ(row.text("SUMMARY").back(), '.');
    }
}

TEST(ProseTest, descriptions_haveSeveralSentencesOfTheirOwn) {
    std::map<std::string, int> openings;
    for (const RowsetRow& row : elements().rows()) {
        const std::string description = row.text("DESCRIPTION");
        EXPECT_GE(count(description, ". "), 4U);
        EXPECT_GE(wordCount(description), 60U);
        EXPECT_EQ(description.rfind(row.text("ELEMENTNAME") + " energy ", 0), 0U);
        EXPECT_EQ(++openings[description.substr(0, 30)], 1);
    }
}

/// The member of the family that a trigram stands for: the line that differs from the other two gives the
/// child's sex by its kind and the child's rank by its place, counted from below.
std::string familyMember(const std::string& lines) {
    const auto whole = std::count(lines.begin(), lines.end(), '1');
    if (whole == 3) {
        return "the father";
    }
    if (whole == 0) {
        return "the mother";
    }
    const char odd = whole == 1 ? '1' : '0';
    static const std::array<std::string, 3> ranks{"eldest", "middle", "youngest"};
    return "the " + ranks.at(lines.find(odd)) + (odd == '1' ? " son" : " daughter");
}

TEST(ProseTest, summaries_tellTheTruthOfTheirTradition) {
    const std::map<int, std::string> seasons{{1, "the heart of winter"},
                                             {2, "the turn from summer to autumn"},
                                             {3, "the spring"},
                                             {4, "the passage from spring to summer"},
                                             {6, "the end of autumn"},
                                             {7, "the autumn"},
                                             {8, "the turn from winter to spring"},
                                             {9, "the height of summer"}};
    for (const DirectionFacts& facts : directionFacts()) {
        const std::string summary = directions().row("DIRECTIONID", facts.id).text("SUMMARY");
        SCOPED_TRACE(facts.name);
        EXPECT_TRUE(contains(summary, facts.element + " energy"));
        if (facts.id == 5) {
            EXPECT_TRUE(contains(summary, "stands at the Center"));
            EXPECT_TRUE(contains(summary, "no trigram of its own"));
            EXPECT_TRUE(contains(summary, "KUN"));
            continue;
        }
        EXPECT_EQ(summary.rfind(facts.trigram + " is the trigram of ", 0), 0U);
        EXPECT_TRUE(contains(summary.substr(0, 45), facts.symbol));
        EXPECT_TRUE(contains(summary, "Its place is the " + facts.name + ","));
        EXPECT_TRUE(contains(summary, "its season " + seasons.at(facts.id)));
        EXPECT_TRUE(contains(summary, "In the family it stands for " + familyMember(facts.lines) + "."));
    }
}

// What the room advice says of an element when it names its colors, patterns and materials.
TEST(ProseTest, decoration_agreesWithTheRoomAdvice) {
    const std::map<std::string, std::vector<std::string>> words{
        {"Tree", {"green", "blue", "vertical stripes", "bamboo", "soft wood"}},
        {"Fire", {"red", "purple", "star", "triang", "pointed"}},
        {"Soil", {"yellow", "orange", "earth", "checked patterns", "square", "terracotta"}},
        {"Metal", {"white", "silver", "grey", "gold", "rose", "circular patterns", "rounded"}},
        {"Water", {"black", "navy blue", "wavy", "irregular", "crystal", "glass"}}};
    for (const RowsetRow& element : elements().rows()) {
        const std::string said = decoration(element);
        for (const std::string& word : words.at(element.text("ELEMENTNAME"))) {
            EXPECT_TRUE(contains(said, word)) << element.text("ELEMENTNAME") << ": " << word;
        }
    }
}

TEST(ProseTest, elementDirections_nameExactlyTheDirectionsOfTheElement) {
    for (const RowsetRow& element : elements().rows()) {
        std::string said = element.text("DIRECTIONS");
        for (const std::string name : {"North-East", "North-West", "South-East", "South-West", "North",
                                       "South", "East", "West", "Center"}) {
            const std::string::size_type at = said.find(name);
            const auto facts =
                std::find_if(directionFacts().begin(), directionFacts().end(),
                             [&](const DirectionFacts& candidate) { return candidate.name == name; });
            ASSERT_NE(facts, directionFacts().end());
            EXPECT_EQ(at != std::string::npos, facts->element == element.text("ELEMENTNAME"))
                << element.text("ELEMENTNAME") << ' ' << name;
            if (at != std::string::npos) {
                said.erase(at, name.size());
            }
        }
    }
}

} // namespace
