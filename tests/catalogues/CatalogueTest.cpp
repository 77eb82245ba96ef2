#include "CatalogueDescriptions.h"
#include "support/QtPrinting.h"
#include "support/RecordFiles.h"
#include "support/TestWorld.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QString OBJECT_NOT_SET = u"Object variable or With block variable not set"_s;

/// What every catalogue does, tried on a file of two rows with the keys 1 and 2. Every other field of row r
/// holds a number or text of its own: 10 times r plus the field's place, with "text " before it in a text.
template<class Record>
class CatalogueTest : public testing::Test {
protected:
    CatalogueTest() {
        world.write(about.file, recordFile({row(1), row(2)}));
        // The colours that the elements of the test rows point at.
        if constexpr (std::is_same_v<Record, cElement>) {
            world.write(u"Colors.xml"_s, recordFile({colorRow(21), colorRow(31)}));
        }
    }

    static QByteArray colorRow(int id) {
        return "<z:row COLORID='" + QByteArray::number(id) +
               "' COLORNAME='' COLORVALUE='1' LIGHTCOLORVALUE='2' BRIGHTCOLORVALUE='3'/>";
    }

    QString value(qsizetype r, qsizetype place) const {
        if (place == 0) {
            return QString::number(r);
        }
        const QString number = QString::number(10 * r + place);
        return about.fields.at(place).isNumber() ? number : u"text "_s + number;
    }

    /// Row `r`, with another value for one field where `replaced` is its place.
    QByteArray row(qsizetype r, qsizetype replaced = -1, const QString& replacement = {}) const {
        QString text = u"<z:row"_s;
        for (qsizetype place = 0; place < about.fields.size(); ++place) {
            text += u" %1='%2'"_s.arg(about.fields.at(place).attribute,
                                      place == replaced ? replacement : value(r, place));
        }
        return (text + u"/>"_s).toUtf8();
    }

    QStringList values(qsizetype r) const {
        QStringList all;
        for (qsizetype place = 0; place < about.fields.size(); ++place) {
            all << value(r, place);
        }
        return all;
    }

    QStringList shown(const Record& record) const {
        QStringList all;
        for (const FieldOf<Record>& field : about.fields) {
            all << field.shown(record);
        }
        return all;
    }

    bool get(Record& record, qint32 id) const { return (record.*about.get)(id); }
    cXMLHandler& storeOf(Record& record) const { return *(record.*about.store); }

    TestWorld world;
    const Description<Record> about = description<Record>();
};

using AllCatalogues =
    testing::Types<cDirection, cColor, cAnimal, cPersonalDirection, cSymbol, cTOD, cTrigram, cElement>;

struct ClassNames {
    template<class Record>
    static std::string GetName(int) {
        return description<Record>().getLabel.section(u'.', 0, 0).toStdString();
    }
};
TYPED_TEST_SUITE(CatalogueTest, AllCatalogues, ClassNames);

TYPED_TEST(CatalogueTest, Get_storedRow_fillsEveryField) {
    TypeParam record;
    EXPECT_TRUE(this->get(record, 2));
    EXPECT_EQ(this->shown(record), this->values(2));
    EXPECT_TRUE(this->get(record, 1));
    EXPECT_EQ(this->shown(record), this->values(1));
}

TYPED_TEST(CatalogueTest, Get_beforeAnyRow_fieldsAreEmpty) {
    const TypeParam record;
    for (const auto& field : this->about.fields) {
        EXPECT_EQ(field.shown(record), field.isNumber() ? u"0"_s : QString()) << qPrintable(field.attribute);
    }
}

TYPED_TEST(CatalogueTest, Get_unknownId_leavesFieldsAsTheyStood) {
    TypeParam record;
    ASSERT_TRUE(this->get(record, 1));
    for (const qint32 unknown : {0, 3, -1, 2147483647}) {
        EXPECT_FALSE(this->get(record, unknown)) << unknown;
        EXPECT_EQ(this->shown(record), this->values(1)) << unknown;
    }
}

TYPED_TEST(CatalogueTest, Get_twoRowsOfOneId_takesTheEarlier) {
    this->world.write(this->about.file, recordFile({this->row(1), this->row(2, 0, u"1"_s), this->row(2)}));
    TypeParam record;
    EXPECT_TRUE(this->get(record, 1));
    EXPECT_EQ(this->shown(record), this->values(1));
}

TYPED_TEST(CatalogueTest, Get_found_leavesTheCursorOnTheRow) {
    TypeParam record;
    ASSERT_TRUE(this->get(record, 1));
    cXMLHandler& store = this->storeOf(record);
    const QString key = this->about.fields.first().attribute;
    EXPECT_EQ(store.GetAttribute(key), u"1");
    EXPECT_TRUE(store.MoveNext());
    EXPECT_EQ(store.GetAttribute(key), u"2");
    EXPECT_FALSE(store.MoveNext());
}

TYPED_TEST(CatalogueTest, Get_noNumberInANumberField_isReportedAndStopsThere) {
    for (qsizetype bad = 1; bad < this->about.fields.size(); ++bad) {
        if (!this->about.fields.at(bad).isNumber()) {
            continue;
        }
        for (const QString& text : {QString(), u"many"_s}) {
            this->world.write(this->about.file, recordFile({this->row(1), this->row(2, bad, text)}));
            TypeParam record;
            ASSERT_TRUE(this->get(record, 1));
            this->world.prompts.expectError(this->about.getLabel, 13, u"Type mismatch"_s);
            EXPECT_FALSE(this->get(record, 2));
            const QStringList expected = this->values(2).first(bad) + this->values(1).sliced(bad);
            EXPECT_EQ(this->shown(record), expected) << qPrintable(this->about.fields.at(bad).attribute);
        }
    }
}

TYPED_TEST(CatalogueTest, Get_missingAttributes_readAsEmptyTextAndFailAsNumbers) {
    const QString key = this->about.fields.first().attribute;
    this->world.write(this->about.file, recordFile({u"<z:row %1='1'/>"_s.arg(key).toUtf8()}));
    TypeParam record;
    bool anyNumber = false;
    for (qsizetype place = 1; place < this->about.fields.size(); ++place) {
        anyNumber = anyNumber || this->about.fields.at(place).isNumber();
    }
    if (anyNumber) {
        this->world.prompts.expectError(this->about.getLabel, 13, u"Type mismatch"_s);
    }
    EXPECT_EQ(this->get(record, 1), !anyNumber);
}

TYPED_TEST(CatalogueTest, Get_numberOutOfRange_isReportedAsOverflow) {
    for (qsizetype bad = 1; bad < this->about.fields.size(); ++bad) {
        if (this->about.fields.at(bad).isNumber()) {
            this->world.write(this->about.file, recordFile({this->row(2, bad, u"2147483648"_s)}));
            TypeParam record;
            this->world.prompts.expectError(this->about.getLabel, 6, u"Overflow"_s);
            EXPECT_FALSE(this->get(record, 2)) << qPrintable(this->about.fields.at(bad).attribute);
        }
    }
}

TYPED_TEST(CatalogueTest, Get_textOfAnyScript_isReadWhole) {
    const QString text = u"O&apos;Hara &amp; &lt;家&gt; &quot;בית&quot;&#10;second line"_s;
    for (qsizetype place = 1; place < this->about.fields.size(); ++place) {
        if (!this->about.fields.at(place).isNumber()) {
            this->world.write(this->about.file, recordFile({this->row(1, place, text)}));
            TypeParam record;
            EXPECT_TRUE(this->get(record, 1));
            EXPECT_EQ(this->about.fields.at(place).shown(record), u"O'Hara & <家> \"בית\"\nsecond line");
        }
    }
}

TYPED_TEST(CatalogueTest, Get_missingFile_isReportedAtEachUseByTheStore) {
    this->world.remove(this->about.file);
    TypeParam record; // the load itself is silent
    this->world.prompts.expectError(u"cXMLHandler.Find"_s, 91, OBJECT_NOT_SET);
    EXPECT_FALSE(this->get(record, 1));
    this->world.prompts.expectError(u"cXMLHandler.Find"_s, 91, OBJECT_NOT_SET);
    EXPECT_FALSE(this->get(record, 1));
}

TYPED_TEST(CatalogueTest, Get_damagedFile_isReportedAsAMissingOne) {
    this->world.write(this->about.file, recordFile({this->row(1)}).chopped(9));
    TypeParam record;
    this->world.prompts.expectError(u"cXMLHandler.Find"_s, 91, OBJECT_NOT_SET);
    EXPECT_FALSE(this->get(record, 1));
}

TYPED_TEST(CatalogueTest, Get_releasedStore_isReportedUnderItsOwnLabel) {
    TypeParam record;
    (record.*this->about.store).reset();
    this->world.prompts.expectError(this->about.getLabel, 91, OBJECT_NOT_SET);
    EXPECT_FALSE(this->get(record, 1));
}

TYPED_TEST(CatalogueTest, Load_isTrueWhateverBecameOfTheFile) {
    TypeParam record;
    EXPECT_TRUE((record.*this->about.load)());
    this->world.remove(this->about.file);
    EXPECT_TRUE((record.*this->about.load)());
    EXPECT_FALSE(this->storeOf(record).Dom->document_element());
}

TYPED_TEST(CatalogueTest, Load_again_replacesTheStoreAndKeepsTheFields) {
    TypeParam record;
    ASSERT_TRUE(this->get(record, 1));
    this->world.write(this->about.file, recordFile({this->row(2)}));
    EXPECT_TRUE((record.*this->about.load)());
    EXPECT_EQ(this->shown(record), this->values(1));
    EXPECT_FALSE(this->get(record, 1));
    EXPECT_TRUE(this->get(record, 2));
}

TYPED_TEST(CatalogueTest, creation_loadsTheFileOfTheDataFolder) {
    TypeParam record;
    EXPECT_EQ(this->storeOf(record).ExternalFileName, this->world.file(this->about.file));
    EXPECT_EQ(this->storeOf(record).RecordCount, 2);
}

// The tables that are installed with the program.

TEST(cDirectionTest, GetDirection_five_isTheCentreRow) {
    const TestWorld world;
    cDirection direction;
    EXPECT_TRUE(direction.GetDirection(5));
    EXPECT_EQ(direction.DIRECTIONID, 5);
    EXPECT_EQ(direction.DIRECTIONNAME, u"Center");
}

TEST(cDirectionTest, GetDirection_zeroAndTen_areFalseAndLeaveTheFields) {
    const TestWorld world;
    cDirection direction;
    ASSERT_TRUE(direction.GetDirection(4));
    EXPECT_FALSE(direction.GetDirection(0));
    EXPECT_FALSE(direction.GetDirection(10));
    EXPECT_EQ(direction.DIRECTIONID, 4);
    EXPECT_EQ(direction.DIRECTIONNAME, u"South-East");
}

TEST(cDirectionTest, store_walk_meetsAllDirectionsInOrder) {
    const TestWorld world;
    cDirection direction;
    QStringList names;
    for (bool stands = direction.oXMLDirections->MoveFirst(); stands;
         stands = direction.oXMLDirections->MoveNext()) {
        names << direction.oXMLDirections->GetAttribute(u"DIRECTIONNAME"_s);
    }
    EXPECT_EQ(names, (QStringList{u"North"_s, u"South-West"_s, u"East"_s, u"South-East"_s, u"Center"_s,
                                  u"North-West"_s, u"West"_s, u"North-East"_s, u"South"_s}));
}

TEST(cColorTest, GetColor_unknownId_leavesAllColourValues) {
    const TestWorld world;
    cColor color;
    ASSERT_TRUE(color.GetColor(9));
    const QList<qint32> before = {color.COLORVALUE, color.LIGHTCOLORVALUE, color.BRIGHTCOLORVALUE};
    EXPECT_FALSE(color.GetColor(99));
    EXPECT_EQ((QList<qint32>{color.COLORVALUE, color.LIGHTCOLORVALUE, color.BRIGHTCOLORVALUE}), before);
    EXPECT_EQ(color.COLORNAME, u"Purple");
}

TEST(cPersonalDirectionTest, GetPersonalDirections_rowForEachGender_fillsFromTheEarlier) {
    const TestWorld world;
    cPersonalDirection directions;
    ASSERT_TRUE(directions.oXMLPersonalDirections->AdvFind(
        u"//z:row[@PERSONALDIRECTIONID = '6' and @GENDER = 'F']"_s));
    EXPECT_TRUE(directions.GetPersonalDirections(6));
    EXPECT_EQ(directions.GENDER, u"M");
    EXPECT_EQ(directions.SUCCESSDIRECTIONID, 7);
    EXPECT_EQ(directions.SUCCESSDIRECTION, u"West");
}

} // namespace
