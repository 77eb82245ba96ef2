#include "profiles/cProfile.h"

#include "core/Conversion.h"
#include "core/Global.h"
#include "support/QtPrinting.h"
#include "support/RecordFiles.h"
#include "support/TestWorld.h"

#include <QDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QString OBJECT_NOT_SET = u"Object variable or With block variable not set"_s;
const QString FILE_NAME = u"Profiles.xml"_s;

/// The person who is stored first in the sample household.
void expectAnn(const cProfile& profile) {
    EXPECT_EQ(profile.PROFILEID, 1);
    EXPECT_EQ(profile.PROFILENAME, u"Ann Example");
    EXPECT_EQ(profile.BIRTHDATE, QVariant(u"2/4/1985"_s));
    EXPECT_EQ(profile.ADJBIRTHYEAR, 1985);
    EXPECT_EQ(profile.GENDER, u"F");
    EXPECT_EQ(profile.KUANUMBER, 9);
}

class cProfileTest : public testing::Test {
protected:
    /// A file of one person, with the given birth date and numbers.
    void writePerson(const QByteArray& birthDate, const QByteArray& year = "1965",
                     const QByteArray& number = "8") const {
        world.write(FILE_NAME,
                    recordFile({"<z:row PROFILEID='3' PROFILENAME='Pat' BIRTHDATE='" + birthDate +
                                "' ADJBIRTHYEAR='" + year + "' GENDER='M' KUANUMBER='" + number + "'/>"}));
    }

    [[nodiscard]] QByteArrayList stored() const { return recordLines(world.read(FILE_NAME)); }

    void removeRecords(const QString& file, const QByteArray& part) const {
        world.write(file, withoutRecords(world.read(file), part));
    }

    void expectStoreFailure(const QString& label, qint32 number = 91,
                            const QString& description = OBJECT_NOT_SET) {
        world.prompts.expectError(label, number, description);
    }

    TestWorld world{TestWorld::Records::Sample};
};

// Creation.

TEST_F(cProfileTest, creation_loadsTheFilesAndSelectsNobody) {
    const cProfile profile;
    ASSERT_NE(profile.oXMLProfiles, nullptr);
    EXPECT_EQ(profile.oXMLProfiles->ExternalFileName, world.file(FILE_NAME));
    EXPECT_EQ(profile.oXMLProfiles->RecordCount, 2);
    EXPECT_EQ(profile.oKUAYear.oXMLKUAYears->RecordCount, 401);
    EXPECT_EQ(profile.oDirection.oXMLDirections->RecordCount, 9);
    EXPECT_EQ(profile.PROFILEID, 0);
    EXPECT_TRUE(profile.PROFILENAME.isEmpty());
    EXPECT_FALSE(profile.BIRTHDATE.isValid());
    EXPECT_EQ(profile.KUANUMBER, 0);
    EXPECT_EQ(profile.oPersonalDirection.SUCCESSDIRECTIONID, 0);
    EXPECT_FALSE(profile.IsDirty);
}

TEST_F(cProfileTest, creation_noFileAtAll_isSilent) {
    for (const QString& name : QDir(world.folder()).entryList(QDir::Files)) {
        world.remove(name);
    }
    cProfile profile;
    EXPECT_TRUE(profile.LoadProfiles());
}

// CalculateKUA.

TEST_F(cProfileTest, CalculateKUA_onTheStartDate_takesThatYearsRow) {
    cProfile profile;
    QString error = u"before"_s;
    EXPECT_TRUE(profile.CalculateKUA(error, QDate(1965, 2, 4), u"M"_s));
    EXPECT_EQ(profile.ADJBIRTHYEAR, 1965);
    EXPECT_EQ(profile.KUANUMBER, 8);
    EXPECT_EQ(profile.oAnimal.AnimalName, u"Snake");
    EXPECT_EQ(error, u"before");
}

TEST_F(cProfileTest, CalculateKUA_theDayBeforeTheStartDate_takesTheYearBefore) {
    cProfile profile;
    QString error;
    EXPECT_TRUE(profile.CalculateKUA(error, QDate(1965, 2, 3), u"M"_s));
    EXPECT_EQ(profile.ADJBIRTHYEAR, 1964);
    EXPECT_EQ(profile.KUANUMBER, 9);
    EXPECT_EQ(profile.oAnimal.AnimalName, u"Dragon");
}

TEST_F(cProfileTest, CalculateKUA_takesBirthDateAndGenderAsGiven) {
    cProfile profile;
    QString error;
    EXPECT_TRUE(profile.CalculateKUA(error, u"March 1, 95"_s, u"F"_s));
    EXPECT_EQ(profile.BIRTHDATE, QVariant(u"March 1, 95"_s));
    EXPECT_EQ(profile.GENDER, u"F");
    EXPECT_EQ(profile.ADJBIRTHYEAR, 1995);
    EXPECT_TRUE(profile.CalculateKUA(error, QDate(1995, 3, 1), u"M"_s));
    EXPECT_EQ(profile.BIRTHDATE, QVariant(QDate(1995, 3, 1)));
}

TEST_F(cProfileTest, CalculateKUA_gender_onlyMInEitherCaseIsMale) {
    cProfile profile;
    QString error;
    for (const auto& [gender, number] : {std::pair{u"M"_s, 5},
                                         {u"m"_s, 5},
                                         {u"F"_s, 1},
                                         {u"f"_s, 1},
                                         {u"X"_s, 1},
                                         {QString(), 1},
                                         {u" M"_s, 1},
                                         {u"Male"_s, 1}}) {
        EXPECT_TRUE(profile.CalculateKUA(error, QDate(1995, 6, 1), gender));
        EXPECT_EQ(profile.KUANUMBER, number) << qPrintable(gender);
        EXPECT_EQ(profile.GENDER, gender);
    }
}

TEST_F(cProfileTest, CalculateKUA_fillsAllThatFollowsFromTheNumber) {
    cProfile profile;
    QString error;
    ASSERT_TRUE(profile.CalculateKUA(error, QDate(1995, 6, 1), u"F"_s));
    EXPECT_EQ(profile.oDirection.DIRECTIONNAME, u"North");
    EXPECT_EQ(profile.oPersonalDirection.SUCCESSDIRECTION, u"South-East");
    EXPECT_EQ(profile.oElement.ELEMENTNAME, u"Water");
    EXPECT_EQ(profile.oColor.COLORNAME, u"Off White");
    EXPECT_EQ(profile.oSymbol.SYMBOLID, profile.oDirection.SYMBOLID);
    EXPECT_EQ(profile.oTOD.TODID, profile.oDirection.TODID);
    EXPECT_EQ(profile.oTrigram.TRIGRAMID, profile.oDirection.TRIGRAMID);
    EXPECT_EQ(profile.oAnimal.AnimalName, u"Boar");
}

TEST_F(cProfileTest, CalculateKUA_numberFive_isUsedAsItStands) {
    cProfile profile;
    QString error;
    ASSERT_TRUE(profile.CalculateKUA(error, QDate(1995, 6, 1), u"M"_s));
    EXPECT_EQ(profile.KUANUMBER, 5);
    EXPECT_EQ(profile.oDirection.DIRECTIONID, 5);
    EXPECT_EQ(profile.oPersonalDirection.PERSONALDIRECTIONID, 5);
    EXPECT_EQ(profile.oElement.ELEMENTNAME, u"Soil");
    EXPECT_EQ(profile.oColor.COLORNAME, u"Orange");
    EXPECT_FALSE(profile.oTrigram.TRIGRAMNAME.isEmpty());
}

TEST_F(cProfileTest, CalculateKUA_numberComesFromTheTable_notFromArithmetic) {
    world.write(u"KUAYears.xml"_s, recordFile({"<z:row YEARID='1995' STARTDATE='1995-02-04T00:00:00' "
                                               "KUANUMBERMALE='3' KUANUMBERFEMALE='4' ANIMALID='1'/>"}));
    cProfile profile;
    QString error;
    EXPECT_TRUE(profile.CalculateKUA(error, QDate(1995, 6, 1), u"M"_s));
    EXPECT_EQ(profile.KUANUMBER, 3);
    EXPECT_EQ(profile.oAnimal.AnimalName, u"Rat");
}

TEST_F(cProfileTest, CalculateKUA_everyYearOfTheTable_givesAWholePerson) {
    cProfile profile;
    QString error;
    for (qint32 year = 1800; year <= 2200; ++year) {
        for (const QString& gender : {u"M"_s, u"F"_s}) {
            ASSERT_TRUE(profile.CalculateKUA(error, QDate(year, 7, 1), gender)) << year;
            ASSERT_EQ(profile.ADJBIRTHYEAR, year);
            ASSERT_EQ(profile.oDirection.KUA, profile.KUANUMBER) << year;
            ASSERT_EQ(profile.oPersonalDirection.PERSONALDIRECTIONID, profile.KUANUMBER) << year;
            ASSERT_EQ(profile.oAnimal.AnimalID, profile.oKUAYear.AnimalID) << year;
        }
    }
}

TEST_F(cProfileTest, CalculateKUA_noDate_isRefusedAndChangesNothing) {
    cProfile profile;
    ASSERT_TRUE(profile.GetProfile(1));
    for (const QVariant& noDate : {QVariant(), QVariant(QString()), QVariant(u"yesterday"_s)}) {
        QString error;
        EXPECT_FALSE(profile.CalculateKUA(error, noDate, u"M"_s));
        EXPECT_EQ(error, u"Invalid Birthdate");
        expectAnn(profile);
        EXPECT_FALSE(profile.IsDirty);
    }
}

TEST_F(cProfileTest, CalculateKUA_yearOutsideTheTable_isRefusedButTakenOver) {
    cProfile profile;
    ASSERT_TRUE(profile.GetProfile(1));
    QString error;
    EXPECT_FALSE(profile.CalculateKUA(error, QDate(1799, 2, 4), u"M"_s));
    EXPECT_EQ(error, u"Invalid Birthdate");
    EXPECT_EQ(profile.BIRTHDATE, QVariant(QDate(1799, 2, 4)));
    EXPECT_EQ(profile.GENDER, u"M");
    EXPECT_EQ(profile.ADJBIRTHYEAR, 1799);
    EXPECT_EQ(profile.KUANUMBER, 9);
    EXPECT_EQ(profile.oKUAYear.YearID, 1985);
    EXPECT_FALSE(profile.IsDirty);
}

TEST_F(cProfileTest, CalculateKUA_yearWithoutARow_usesTheRowOfTheAdjustedYear) {
    cProfile profile;
    QString error;
    EXPECT_TRUE(profile.CalculateKUA(error, QDate(2201, 2, 3), u"M"_s));
    EXPECT_EQ(profile.ADJBIRTHYEAR, 2200);
    EXPECT_EQ(profile.KUANUMBER, 7);
    EXPECT_FALSE(profile.CalculateKUA(error, QDate(2201, 2, 4), u"M"_s));
    EXPECT_EQ(profile.ADJBIRTHYEAR, 2201);
}

TEST_F(cProfileTest, CalculateKUA_everyDateText_inTheUsersOwnOrder) {
    for (const auto& [locale, text] : {std::pair{"en_US", "2/3/1965"},
                                       {"en_GB", "03/02/1965"},
                                       {"de_DE", "03.02.1965"},
                                       {"sv_SE", "1965-02-03"},
                                       {"fr_FR", "03/02/1965"},
                                       {"zh_CN", "1965/2/3"}}) {
        world.setLocale(QLocale(QString::fromLatin1(locale)));
        cProfile profile;
        QString error;
        EXPECT_TRUE(profile.CalculateKUA(error, QString::fromLatin1(text), u"F"_s)) << locale;
        EXPECT_EQ(profile.ADJBIRTHYEAR, 1964) << locale;
    }
}

TEST_F(cProfileTest, CalculateKUA_damagedYear_isReportedAndRefused) {
    world.write(u"KUAYears.xml"_s, recordFile({"<z:row YEARID='1965' STARTDATE='1965-02-04T00:00:00' "
                                               "KUANUMBERMALE='none'/>"}));
    cProfile profile;
    // Once for the adjusted year, which then falls back to 4 February, and once for the row itself.
    expectStoreFailure(u"cKUAYear.Get KUA Year"_s, 13, u"Type mismatch"_s);
    expectStoreFailure(u"cKUAYear.Get KUA Year"_s, 13, u"Type mismatch"_s);
    QString error;
    EXPECT_FALSE(profile.CalculateKUA(error, QDate(1965, 6, 1), u"M"_s));
    EXPECT_EQ(error, u"Invalid Birthdate");
}

TEST_F(cProfileTest, CalculateKUA_setsDirty) {
    cProfile profile;
    QString error;
    ASSERT_TRUE(profile.CalculateKUA(error, QDate(1995, 6, 1), u"F"_s));
    EXPECT_TRUE(profile.IsDirty);
    EXPECT_EQ(stored().size(), 2); // and stores nothing
}

// Where the details stop.

TEST_F(cProfileTest, GetDetails_missingRow_leavesTheObjectsAfterItAsTheyWere) {
    struct Step {
        QString file;
        QByteArray row;
        /// How many of the eight objects are the new person's.
        qsizetype filled;
    };
    // A man of 1995 is of number 5, a woman of number 1. What the woman needs and the man does not goes.
    const QList<Step> steps = {
        {u"Directions.xml"_s, "KUA=\"1\"", 0},
        {u"PersonalDirections.xml"_s, "PERSONALDIRECTIONID=\"1\" GENDER=\"F\"", 1},
        {u"Elements.xml"_s, "ELEMENTNAME=\"Water\"", 2},
        {u"Colors.xml"_s, "COLORID=\"1\"", 3},
        {u"Symbols.xml"_s, "SYMBOLID=\"1\"", 4},
        {u"TimeOfDay.xml"_s, "TODID=\"1\"", 5},
        {u"Trigrams.xml"_s, "TRIGRAMID=\"1\"", 6},
        {u"Animals.xml"_s, "ANIMALNAME=\"Boar\"", 7},
    };
    const auto ids = [](const cProfile& profile) {
        return QList<qint32>{profile.oDirection.DIRECTIONID, profile.oPersonalDirection.PERSONALDIRECTIONID,
                             profile.oElement.ELEMENTID,     profile.oColor.COLORID,
                             profile.oSymbol.SYMBOLID,       profile.oTOD.TODID,
                             profile.oTrigram.TRIGRAMID,     profile.oAnimal.AnimalID};
    };
    for (const Step& step : steps) {
        const QByteArray whole = world.read(step.file);
        removeRecords(step.file, step.row);
        cProfile profile;
        QString error;
        ASSERT_TRUE(profile.CalculateKUA(error, QDate(1994, 6, 1), u"M"_s)); // number 6, a Dog
        const QList<qint32> before = ids(profile);
        EXPECT_TRUE(profile.CalculateKUA(error, QDate(1995, 6, 1), u"F"_s)) << qPrintable(step.file);
        EXPECT_EQ(profile.KUANUMBER, 1);
        const QList<qint32> woman = {1, 1, 5, 1, 1, 1, 1, 12};
        EXPECT_EQ(ids(profile), woman.first(step.filled) + before.sliced(step.filled))
            << qPrintable(step.file);
        world.write(step.file, whole);
    }
}

TEST_F(cProfileTest, GetDetails_genderWithoutARow_stopsBehindTheDirection) {
    cProfile profile;
    QString error;
    ASSERT_TRUE(profile.CalculateKUA(error, QDate(1994, 6, 1), u"M"_s));
    const QString element = profile.oElement.ELEMENTNAME;
    // The small letter counts as male for the number, but its row is that of "M" exactly.
    EXPECT_TRUE(profile.CalculateKUA(error, QDate(1995, 6, 1), u"m"_s));
    EXPECT_EQ(profile.KUANUMBER, 5);
    EXPECT_EQ(profile.oDirection.DIRECTIONID, 5);
    EXPECT_EQ(profile.oPersonalDirection.PERSONALDIRECTIONID, 6);
    EXPECT_EQ(profile.oElement.ELEMENTNAME, element);
}

TEST_F(cProfileTest, GetDetails_genderThatBreaksTheExpression_isReportedByTheStore) {
    cProfile profile;
    QString error;
    world.prompts.expectError(u"cXMLHandler.AdvFind"_s, 5);
    EXPECT_TRUE(profile.CalculateKUA(error, QDate(1995, 6, 1), u"it's"_s));
    EXPECT_EQ(profile.oDirection.DIRECTIONID, 1);
    EXPECT_EQ(profile.oElement.ELEMENTID, 0);
}

TEST_F(cProfileTest, GetDetails_directionWithoutAnId_isReportedUnderItsOwnLabel) {
    world.write(u"Directions.xml"_s, recordFile({"<z:row KUA='1' DIRECTIONNAME='North'/>"}));
    cProfile profile;
    expectStoreFailure(u"cProfile.Get Details"_s, 13, u"Type mismatch"_s);
    QString error;
    EXPECT_TRUE(profile.CalculateKUA(error, QDate(1995, 6, 1), u"F"_s));
    EXPECT_TRUE(profile.IsDirty);
}

TEST_F(cProfileTest, GetDetails_twoDirectionsOfOneNumber_takesTheEarlier) {
    world.write(u"Directions.xml"_s,
                recordFile({"<z:row DIRECTIONID='3' DIRECTIONNAME='East' SUMMARY='' KUA='1' COLORID='3' "
                            "TODID='3' ELEMENTID='1' SYMBOLID='3' TRIGRAMID='3'/>",
                            "<z:row DIRECTIONID='1' DIRECTIONNAME='North' SUMMARY='' KUA='1' COLORID='1' "
                            "TODID='1' ELEMENTID='5' SYMBOLID='1' TRIGRAMID='1'/>"}));
    cProfile profile;
    QString error;
    EXPECT_TRUE(profile.CalculateKUA(error, QDate(1995, 6, 1), u"F"_s));
    EXPECT_EQ(profile.oDirection.DIRECTIONNAME, u"East");
    EXPECT_EQ(profile.oPersonalDirection.PERSONALDIRECTIONID, 3);
}

// GetProfile.

TEST_F(cProfileTest, GetProfile_storedId_fillsAllFields) {
    cProfile profile;
    profile.IsDirty = true;
    EXPECT_TRUE(profile.GetProfile(1));
    expectAnn(profile);
    EXPECT_EQ(profile.oKUAYear.YearID, 1985);
    EXPECT_EQ(profile.oDirection.DIRECTIONNAME, u"South");
    EXPECT_EQ(profile.oAnimal.AnimalName, u"Ox");
    EXPECT_FALSE(profile.IsDirty);
    EXPECT_TRUE(profile.GetProfile(u"2"_s)); // an id may be a text
    EXPECT_EQ(profile.PROFILENAME, u"Ben Example");
    EXPECT_EQ(profile.oAnimal.AnimalName, u"Rat");
}

TEST_F(cProfileTest, GetProfile_unknownId_leavesFieldsAsTheyStood) {
    cProfile profile;
    ASSERT_TRUE(profile.GetProfile(1));
    profile.IsDirty = true;
    EXPECT_FALSE(profile.GetProfile(3));
    EXPECT_FALSE(profile.GetProfile(u"0"_s));
    expectAnn(profile);
    EXPECT_TRUE(profile.IsDirty);
}

TEST_F(cProfileTest, GetProfile_emptyIdAndNoLastProfile_opensANewProfileInTheMainWindow) {
    cProfile profile;
    ASSERT_TRUE(profile.GetProfile(1));
    EXPECT_TRUE(profile.GetProfile());
    EXPECT_TRUE(profile.GetProfile(QString()));
    EXPECT_EQ(world.mainWindow.calls(),
              (QStringList{u"Show"_s, u"NewProfile"_s, u"Show"_s, u"NewProfile"_s}));
    expectAnn(profile);
    EXPECT_TRUE(world.settings.isEmpty());
}

TEST_F(cProfileTest, GetProfile_emptyId_takesTheLastProfile) {
    world.settings.setText(u"SOFTWARE\\Orvenel\\Talivane\\StartUp"_s, u"LastProfile"_s, u"2"_s);
    cProfile profile;
    EXPECT_TRUE(profile.GetProfile());
    EXPECT_EQ(profile.PROFILEID, 2);
    world.settings.setText(u"SOFTWARE\\Orvenel\\Talivane\\StartUp"_s, u"LastProfile"_s, u"7"_s);
    EXPECT_FALSE(profile.GetProfile(QString()));
    EXPECT_EQ(profile.PROFILEID, 2);
    EXPECT_TRUE(world.mainWindow.calls().isEmpty());
}

TEST_F(cProfileTest, CreateProfile_noMainWindow_isSilent) {
    Services services = Global::services();
    services.mainWindow = nullptr;
    Global::use(services);
    cProfile profile;
    EXPECT_TRUE(profile.GetProfile());
}

TEST_F(cProfileTest, GetProfile_birthDate_becomesAShortDateOfTheRegion) {
    writePerson("1965-02-04T13:30:00");
    for (const auto& [locale, text] : {std::pair{"en_US", "2/4/1965"},
                                       {"en_GB", "04/02/1965"},
                                       {"de_DE", "04.02.1965"},
                                       {"sv_SE", "1965-02-04"},
                                       {"fr_FR", "04/02/1965"},
                                       {"zh_CN", "1965/2/4"}}) {
        world.setLocale(QLocale(QString::fromLatin1(locale)));
        cProfile profile;
        EXPECT_TRUE(profile.GetProfile(3));
        EXPECT_EQ(profile.BIRTHDATE, QVariant(QString::fromLatin1(text))) << locale;
    }
}

TEST_F(cProfileTest, GetProfile_birthDateStoredAsShortDate_readsAsItself) {
    writePerson("2/4/1965");
    cProfile profile;
    EXPECT_TRUE(profile.GetProfile(3));
    EXPECT_EQ(profile.BIRTHDATE.toString(), u"2/4/1965");
    world.setLocale(QLocale(QLocale::German, QLocale::Germany));
    writePerson("4.2.1965");
    EXPECT_TRUE(profile.LoadProfiles());
    EXPECT_TRUE(profile.GetProfile(3));
    EXPECT_EQ(profile.BIRTHDATE.toString(), u"04.02.1965");
}

TEST_F(cProfileTest, GetProfile_birthDateThatIsNone_staysAText) {
    writePerson("unknown");
    cProfile profile;
    EXPECT_TRUE(profile.GetProfile(3));
    EXPECT_EQ(profile.BIRTHDATE, QVariant(u"unknown"_s));
    writePerson("Tuesday or Thursday, noT later");
    EXPECT_TRUE(profile.LoadProfiles());
    EXPECT_TRUE(profile.GetProfile(3));
    EXPECT_EQ(profile.BIRTHDATE, QVariant(u" uesday or  hursday, no  later"_s)); // every "T" of the form goes
}

TEST_F(cProfileTest, GetProfile_numbersOverTypedByTheUser_survive) {
    writePerson("1965-02-04T00:00:00", "1901", "4");
    cProfile profile;
    EXPECT_TRUE(profile.GetProfile(3));
    EXPECT_EQ(profile.ADJBIRTHYEAR, 1901);
    EXPECT_EQ(profile.KUANUMBER, 4);
    EXPECT_EQ(profile.oDirection.DIRECTIONID, 4);
    EXPECT_EQ(profile.oKUAYear.YearID, 1901);
}

TEST_F(cProfileTest, GetProfile_yearOutsideTheTable_stillLoads) {
    writePerson("1790-05-05T00:00:00", "1790", "4");
    cProfile profile;
    EXPECT_TRUE(profile.GetProfile(3));
    EXPECT_EQ(profile.oDirection.DIRECTIONID, 4);
    EXPECT_EQ(profile.oKUAYear.YearID, 0);
    EXPECT_EQ(profile.oAnimal.AnimalID, 0);
}

TEST_F(cProfileTest, GetProfile_emptyNumber_isReportedWithTheFieldsHalfRead) {
    cProfile profile;
    ASSERT_TRUE(profile.GetProfile(1));
    writePerson("1965-02-04T00:00:00", "1965", "");
    ASSERT_TRUE(profile.LoadProfiles());
    expectStoreFailure(u"cProfile.Get Profile"_s, 13, u"Type mismatch"_s);
    EXPECT_FALSE(profile.GetProfile(3));
    EXPECT_EQ(profile.PROFILEID, 3);
    EXPECT_EQ(profile.GENDER, u"M");
    EXPECT_EQ(profile.KUANUMBER, 9);
    EXPECT_EQ(profile.oDirection.DIRECTIONID, 9);

    writePerson("1965-02-05T00:00:00", "");
    ASSERT_TRUE(profile.LoadProfiles());
    ASSERT_EQ(profile.ADJBIRTHYEAR, 1965);
    expectStoreFailure(u"cProfile.Get Profile"_s, 13, u"Type mismatch"_s);
    EXPECT_FALSE(profile.GetProfile(3));
    EXPECT_EQ(profile.BIRTHDATE.toString(), u"2/5/1965");
    EXPECT_EQ(profile.ADJBIRTHYEAR, 1965);
}

TEST_F(cProfileTest, GetProfile_missingAttributes_readEmptyUpToTheFirstNumber) {
    world.write(FILE_NAME, recordFile({"<z:row PROFILEID='3'/>"}));
    cProfile profile;
    profile.PROFILENAME = u"before"_s;
    expectStoreFailure(u"cProfile.Get Profile"_s, 13, u"Type mismatch"_s);
    EXPECT_FALSE(profile.GetProfile(3));
    EXPECT_EQ(profile.PROFILEID, 3);
    EXPECT_EQ(profile.PROFILENAME, QString());
    EXPECT_EQ(profile.BIRTHDATE.toString(), QString());
}

TEST_F(cProfileTest, GetProfile_missingFile_isReportedByTheStore) {
    world.remove(FILE_NAME);
    cProfile profile;
    expectStoreFailure(u"cXMLHandler.Find"_s);
    EXPECT_FALSE(profile.GetProfile(1));
}

TEST_F(cProfileTest, GetProfile_releasedStore_isReportedUnderItsOwnLabel) {
    cProfile profile;
    profile.oXMLProfiles.reset();
    for (const QString& label : {u"cProfile.Get Profile"_s, u"cProfile.Insert Profile"_s,
                                 u"cProfile.Update Profile"_s, u"cProfile.Delete Profile"_s}) {
        expectStoreFailure(label);
    }
    EXPECT_FALSE(profile.GetProfile(1));
    EXPECT_FALSE(profile.InsertProfile());
    EXPECT_FALSE(profile.UpdateProfile());
    EXPECT_FALSE(profile.DeleteProfile());
}

// Insert.

TEST_F(cProfileTest, InsertProfile_emptyFile_getsIdOneAndWritesTheAttributesInOrder) {
    const TestWorld empty;
    cProfile profile;
    QString error;
    ASSERT_TRUE(profile.CalculateKUA(error, QDate(1965, 2, 4), u"M"_s));
    profile.PROFILENAME = u"Pat"_s;
    profile.PROFILEID = 77; // plays no part
    EXPECT_TRUE(profile.InsertProfile());
    EXPECT_EQ(profile.PROFILEID, 1);
    EXPECT_EQ(profile.BIRTHDATE, QVariant(u"2/4/1965"_s));
    EXPECT_FALSE(profile.IsDirty);
    EXPECT_EQ(recordLines(empty.read(FILE_NAME)),
              QByteArrayList{"<z:row PROFILEID=\"1\" PROFILENAME=\"Pat\" BIRTHDATE=\"1965-02-04T00:00:00\" "
                             "ADJBIRTHYEAR=\"1965\" GENDER=\"M\" KUANUMBER=\"8\" />"});
}

TEST_F(cProfileTest, InsertProfile_birthDateText_isStoredAsTheUserGaveIt) {
    cProfile profile;
    QString error;
    ASSERT_TRUE(profile.CalculateKUA(error, u"Feb 4, 65"_s, u"F"_s));
    EXPECT_TRUE(profile.InsertProfile());
    EXPECT_TRUE(stored().at(2).contains("BIRTHDATE=\"Feb 4, 65\""));
    EXPECT_EQ(profile.BIRTHDATE.toString(), u"2/4/1965");
}

TEST_F(cProfileTest, InsertProfile_takesTheHighestIdPlusOne_andGivesAFreedOneOutAgain) {
    cProfile profile;
    ASSERT_TRUE(profile.GetProfile(2));
    EXPECT_TRUE(profile.InsertProfile());
    EXPECT_EQ(profile.PROFILEID, 3);
    EXPECT_TRUE(profile.DeleteProfile());
    EXPECT_TRUE(profile.InsertProfile());
    EXPECT_EQ(profile.PROFILEID, 3);
    profile.PROFILEID = 1;
    EXPECT_TRUE(profile.DeleteProfile()); // a gap in the middle stays
    EXPECT_TRUE(profile.InsertProfile());
    EXPECT_EQ(profile.PROFILEID, 4);
}

TEST_F(cProfileTest, InsertProfile_noIdLeft_isReportedAndAddsNothing) {
    world.write(FILE_NAME, recordFile({"<z:row PROFILEID='2147483647'/>"}));
    const QByteArray before = world.read(FILE_NAME);
    cProfile profile;
    expectStoreFailure(u"cProfile.Insert Profile"_s, 6, u"Overflow"_s);
    EXPECT_FALSE(profile.InsertProfile());
    EXPECT_EQ(world.read(FILE_NAME), before);
}

TEST_F(cProfileTest, InsertProfile_firstIdIsNoNumber_isReportedAndStartsAtOne) {
    world.write(FILE_NAME, recordFile({"<z:row PROFILEID='first'/>"}));
    cProfile profile;
    profile.BIRTHDATE = QDate(1965, 2, 4);
    expectStoreFailure(u"cXMLHandler.Get Max"_s, 13, u"Type mismatch"_s);
    EXPECT_TRUE(profile.InsertProfile());
    EXPECT_EQ(profile.PROFILEID, 1);
}

TEST_F(cProfileTest, InsertProfile_missingFile_isReportedByEachStep) {
    world.remove(FILE_NAME);
    cProfile profile;
    expectStoreFailure(u"cXMLHandler.Get Max"_s);
    expectStoreFailure(u"cXMLHandler.Add New"_s);
    world.prompts.expectError(u"cXMLHandler.Save Document"_s, 321);
    expectStoreFailure(u"cXMLHandler.Find"_s);
    EXPECT_TRUE(profile.InsertProfile()); // no step's result is asked for
    EXPECT_FALSE(QFile::exists(world.file(FILE_NAME)));
}

TEST_F(cProfileTest, InsertProfile_nameOfAnyScript_survivesTheFile) {
    const QStringList names = {u"O'Hara & \"Sons\" <Ltd>"_s,
                               u"王小明 家"_s,
                               u"מרים בת־שבע"_s,
                               u"محمد العربي"_s,
                               u"two\r\nlines\tand a tab"_s,
                               u"\U0001F3E0 house"_s,
                               u" blanks around "_s,
                               u"&amp; ]]> <!-- %1 --> z:row"_s,
                               QString()};
    for (const QString& name : names) {
        cProfile profile;
        ASSERT_TRUE(profile.GetProfile(1));
        profile.PROFILENAME = name;
        EXPECT_TRUE(profile.InsertProfile());
        EXPECT_EQ(profile.PROFILENAME, name);
        cProfile fresh;
        EXPECT_TRUE(fresh.GetProfile(profile.PROFILEID));
        EXPECT_EQ(fresh.PROFILENAME, name);
        EXPECT_EQ(fresh.KUANUMBER, 9);
    }
    EXPECT_EQ(stored().size(), 2 + names.size());
}

TEST_F(cProfileTest, InsertProfile_everyLocale_birthDateComesBackAsTheSameDay) {
    for (const char* name : {"en_US", "en_GB", "de_DE", "sv_SE", "fr_FR", "zh_CN", "C"}) {
        world.setLocale(QLocale(QString::fromLatin1(name)));
        for (const QDate date : {QDate(2005, 3, 4), QDate(1905, 12, 11), QDate(1829, 7, 1)}) {
            cProfile profile;
            QString error;
            ASSERT_TRUE(profile.CalculateKUA(error, Conversion::shortDate(date), u"F"_s)) << name;
            ASSERT_TRUE(profile.InsertProfile());
            cProfile fresh;
            EXPECT_TRUE(fresh.GetProfile(profile.PROFILEID));
            EXPECT_EQ(Conversion::toDate(fresh.BIRTHDATE), date) << name;
        }
    }
}

TEST_F(cProfileTest, InsertProfile_leavesTheOtherRecordsAndTheSchema) {
    const QByteArray before = world.read(FILE_NAME);
    cProfile profile;
    ASSERT_TRUE(profile.GetProfile(2));
    ASSERT_TRUE(profile.InsertProfile());
    EXPECT_EQ(withoutRecords(world.read(FILE_NAME), "PROFILEID=\"3\"").trimmed(), before.trimmed());
}

// Update.

TEST_F(cProfileTest, UpdateProfile_storedPerson_writesTheFieldsAndClearsDirty) {
    cProfile profile;
    ASSERT_TRUE(profile.GetProfile(1));
    QString error;
    ASSERT_TRUE(profile.CalculateKUA(error, QDate(1965, 2, 3), u"M"_s));
    profile.PROFILENAME = u"Andy Example"_s;
    profile.KUANUMBER = 3; // typed over the calculated one
    EXPECT_TRUE(profile.UpdateProfile());
    EXPECT_FALSE(profile.IsDirty);
    EXPECT_EQ(profile.oDirection.DIRECTIONID, 3);
    EXPECT_EQ(stored().at(0),
              "<z:row PROFILEID=\"1\" PROFILENAME=\"Andy Example\" BIRTHDATE=\"1965-02-03T00:00:00\" "
              "ADJBIRTHYEAR=\"1964\" GENDER=\"M\" KUANUMBER=\"3\" />");
    cProfile fresh;
    EXPECT_TRUE(fresh.GetProfile(1));
    EXPECT_EQ(fresh.KUANUMBER, 3);
}

TEST_F(cProfileTest, UpdateProfile_recordWithoutFields_getsThemInTheOrderOfWriting) {
    world.write(FILE_NAME, recordFile({"<z:row KUANUMBER='1' PROFILEID='5'/>"}));
    cProfile profile;
    profile.PROFILEID = 5;
    profile.PROFILENAME = u"Pat"_s;
    profile.BIRTHDATE = u"2/4/1965"_s;
    profile.ADJBIRTHYEAR = 1965;
    profile.GENDER = u"F"_s;
    profile.KUANUMBER = 7;
    EXPECT_TRUE(profile.UpdateProfile());
    EXPECT_EQ(stored(), QByteArrayList{"<z:row KUANUMBER=\"7\" PROFILEID=\"5\" PROFILENAME=\"Pat\" "
                                       "BIRTHDATE=\"2/4/1965\" ADJBIRTHYEAR=\"1965\" GENDER=\"F\" />"});
}

TEST_F(cProfileTest, UpdateProfile_unknownPerson_isFalseAndWritesNothing) {
    const QByteArray before = world.read(FILE_NAME);
    cProfile profile;
    ASSERT_TRUE(profile.GetProfile(1));
    profile.PROFILEID = 9;
    profile.PROFILENAME = u"nobody"_s;
    profile.IsDirty = true;
    EXPECT_FALSE(profile.UpdateProfile());
    EXPECT_TRUE(profile.IsDirty);
    EXPECT_EQ(world.read(FILE_NAME), before);
}

TEST_F(cProfileTest, UpdateProfile_fileThatCannotBeWritten_isReportedAndKeptInMemory) {
    cProfile profile;
    ASSERT_TRUE(profile.GetProfile(1));
    world.remove(FILE_NAME);
    ASSERT_TRUE(QDir().mkdir(world.file(FILE_NAME)));
    profile.PROFILENAME = u"Andy"_s;
    expectStoreFailure(u"cXMLHandler.Save Document"_s, 75, u"Path/File access error"_s);
    EXPECT_TRUE(profile.UpdateProfile());
    EXPECT_TRUE(profile.GetProfile(1));
    EXPECT_EQ(profile.PROFILENAME, u"Andy");
}

// Delete.

TEST_F(cProfileTest, DeleteProfile_storedPerson_leavesTheFieldsStanding) {
    cProfile profile;
    ASSERT_TRUE(profile.GetProfile(1));
    EXPECT_TRUE(profile.DeleteProfile());
    expectAnn(profile);
    ASSERT_EQ(stored().size(), 1);
    EXPECT_TRUE(stored().first().contains("PROFILEID=\"2\""));
    EXPECT_FALSE(profile.DeleteProfile()); // a second time there is nothing to delete
    EXPECT_EQ(stored().size(), 1);
}

TEST_F(cProfileTest, DeleteProfile_lastPerson_leavesAFileThatTakesIdOneAgain) {
    cProfile profile;
    ASSERT_TRUE(profile.GetProfile(2));
    ASSERT_TRUE(profile.DeleteProfile());
    ASSERT_TRUE(profile.GetProfile(1));
    ASSERT_TRUE(profile.DeleteProfile());
    EXPECT_TRUE(stored().isEmpty());
    EXPECT_TRUE(profile.InsertProfile());
    EXPECT_EQ(profile.PROFILEID, 1);
    cProfile fresh;
    EXPECT_TRUE(fresh.GetProfile(1));
}

TEST_F(cProfileTest, DeleteProfile_rowThatRefuses_isReportedAndSavesNothing) {
    // A record outside the data element is found, but cannot be taken out of it.
    QByteArray content = recordFile({"<z:row PROFILEID='1'/>"});
    content.replace("</xml>", "<rs:more><z:row PROFILEID='2'/></rs:more></xml>");
    world.write(FILE_NAME, content);
    cProfile profile;
    profile.PROFILEID = 2;
    world.prompts.expectError(u"cXMLHandler.Delete"_s, 5);
    EXPECT_FALSE(profile.DeleteProfile());
    EXPECT_EQ(world.read(FILE_NAME), content);
}

} // namespace
