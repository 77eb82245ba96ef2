#include "PersonFixture.h"

using namespace Qt::StringLiterals;

namespace {

class cProfileTest : public PersonFixture {};

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

// The accent.

TEST_F(cProfileTest, accentColor_isTheSharedPersonsOwnAndNothingForNobody) {
    Global::CurrentProfile.reset();
    EXPECT_EQ(Global::accentColor(), std::nullopt);
    Global::CurrentProfile = std::make_unique<cProfile>();
    EXPECT_EQ(Global::accentColor(), std::nullopt);
    ASSERT_TRUE(Global::CurrentProfile->GetProfile(1));
    EXPECT_EQ(Global::accentColor(), Global::CurrentProfile->oColor.LIGHTCOLORVALUE);
    Global::CurrentProfile.reset();
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

} // namespace
