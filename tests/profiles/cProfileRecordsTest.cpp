#include "PersonFixture.h"

using namespace Qt::StringLiterals;

namespace {

class cProfileRecordsTest : public PersonFixture {};

// GetProfile.

TEST_F(cProfileRecordsTest, GetProfile_storedId_fillsAllFields) {
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

TEST_F(cProfileRecordsTest, GetProfile_unknownId_leavesFieldsAsTheyStood) {
    cProfile profile;
    ASSERT_TRUE(profile.GetProfile(1));
    profile.IsDirty = true;
    EXPECT_FALSE(profile.GetProfile(3));
    EXPECT_FALSE(profile.GetProfile(u"0"_s));
    expectAnn(profile);
    EXPECT_TRUE(profile.IsDirty);
}

TEST_F(cProfileRecordsTest, GetProfile_emptyIdAndNoLastProfile_opensANewProfileInTheMainWindow) {
    cProfile profile;
    ASSERT_TRUE(profile.GetProfile(1));
    EXPECT_TRUE(profile.GetProfile());
    EXPECT_TRUE(profile.GetProfile(QString()));
    EXPECT_EQ(world.mainWindow.calls(),
              (QStringList{u"Show"_s, u"NewProfile"_s, u"Show"_s, u"NewProfile"_s}));
    expectAnn(profile);
    EXPECT_TRUE(world.settings.isEmpty());
}

TEST_F(cProfileRecordsTest, GetProfile_emptyId_takesTheLastProfile) {
    world.settings.setText(u"SOFTWARE\\Orvenel\\Talivane\\StartUp"_s, u"LastProfile"_s, u"2"_s);
    cProfile profile;
    EXPECT_TRUE(profile.GetProfile());
    EXPECT_EQ(profile.PROFILEID, 2);
    world.settings.setText(u"SOFTWARE\\Orvenel\\Talivane\\StartUp"_s, u"LastProfile"_s, u"7"_s);
    EXPECT_FALSE(profile.GetProfile(QString()));
    EXPECT_EQ(profile.PROFILEID, 2);
    EXPECT_TRUE(world.mainWindow.calls().isEmpty());
}

TEST_F(cProfileRecordsTest, CreateProfile_noMainWindow_isSilent) {
    Services services = Global::services();
    services.mainWindow = nullptr;
    Global::use(services);
    cProfile profile;
    EXPECT_TRUE(profile.GetProfile());
}

TEST_F(cProfileRecordsTest, GetProfile_birthDate_becomesAShortDateOfTheRegion) {
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

TEST_F(cProfileRecordsTest, GetProfile_birthDateStoredAsShortDate_readsAsItself) {
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

TEST_F(cProfileRecordsTest, GetProfile_birthDateThatIsNone_staysAText) {
    writePerson("unknown");
    cProfile profile;
    EXPECT_TRUE(profile.GetProfile(3));
    EXPECT_EQ(profile.BIRTHDATE, QVariant(u"unknown"_s));
    writePerson("Tuesday or Thursday, noT later");
    EXPECT_TRUE(profile.LoadProfiles());
    EXPECT_TRUE(profile.GetProfile(3));
    EXPECT_EQ(profile.BIRTHDATE, QVariant(u" uesday or  hursday, no  later"_s)); // every "T" of the form goes
}

TEST_F(cProfileRecordsTest, GetProfile_numbersOverTypedByTheUser_survive) {
    writePerson("1965-02-04T00:00:00", "1901", "4");
    cProfile profile;
    EXPECT_TRUE(profile.GetProfile(3));
    EXPECT_EQ(profile.ADJBIRTHYEAR, 1901);
    EXPECT_EQ(profile.KUANUMBER, 4);
    EXPECT_EQ(profile.oDirection.DIRECTIONID, 4);
    EXPECT_EQ(profile.oKUAYear.YearID, 1901);
}

TEST_F(cProfileRecordsTest, GetProfile_yearOutsideTheTable_stillLoads) {
    writePerson("1790-05-05T00:00:00", "1790", "4");
    cProfile profile;
    EXPECT_TRUE(profile.GetProfile(3));
    EXPECT_EQ(profile.oDirection.DIRECTIONID, 4);
    EXPECT_EQ(profile.oKUAYear.YearID, 0);
    EXPECT_EQ(profile.oAnimal.AnimalID, 0);
}

TEST_F(cProfileRecordsTest, GetProfile_emptyNumber_isReportedWithTheFieldsHalfRead) {
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

TEST_F(cProfileRecordsTest, GetProfile_missingAttributes_readEmptyUpToTheFirstNumber) {
    world.write(FILE_NAME, recordFile({"<z:row PROFILEID='3'/>"}));
    cProfile profile;
    profile.PROFILENAME = u"before"_s;
    expectStoreFailure(u"cProfile.Get Profile"_s, 13, u"Type mismatch"_s);
    EXPECT_FALSE(profile.GetProfile(3));
    EXPECT_EQ(profile.PROFILEID, 3);
    EXPECT_EQ(profile.PROFILENAME, QString());
    EXPECT_EQ(profile.BIRTHDATE.toString(), QString());
}

TEST_F(cProfileRecordsTest, GetProfile_missingFile_isReportedByTheStore) {
    world.remove(FILE_NAME);
    cProfile profile;
    expectStoreFailure(u"cXMLHandler.Find"_s);
    EXPECT_FALSE(profile.GetProfile(1));
}

TEST_F(cProfileRecordsTest, GetProfile_releasedStore_isReportedUnderItsOwnLabel) {
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

TEST_F(cProfileRecordsTest, InsertProfile_emptyFile_getsIdOneAndWritesTheAttributesInOrder) {
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

TEST_F(cProfileRecordsTest, InsertProfile_birthDateText_isStoredAsTheUserGaveIt) {
    cProfile profile;
    QString error;
    ASSERT_TRUE(profile.CalculateKUA(error, u"Feb 4, 65"_s, u"F"_s));
    EXPECT_TRUE(profile.InsertProfile());
    EXPECT_TRUE(stored().at(2).contains("BIRTHDATE=\"Feb 4, 65\""));
    EXPECT_EQ(profile.BIRTHDATE.toString(), u"2/4/1965");
}

TEST_F(cProfileRecordsTest, InsertProfile_takesTheHighestIdPlusOne_andGivesAFreedOneOutAgain) {
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

TEST_F(cProfileRecordsTest, InsertProfile_noIdLeft_isReportedAndAddsNothing) {
    world.write(FILE_NAME, recordFile({"<z:row PROFILEID='2147483647'/>"}));
    const QByteArray before = world.read(FILE_NAME);
    cProfile profile;
    expectStoreFailure(u"cProfile.Insert Profile"_s, 6, u"Overflow"_s);
    EXPECT_FALSE(profile.InsertProfile());
    EXPECT_EQ(world.read(FILE_NAME), before);
}

TEST_F(cProfileRecordsTest, InsertProfile_firstIdIsNoNumber_isReportedAndStartsAtOne) {
    world.write(FILE_NAME, recordFile({"<z:row PROFILEID='first'/>"}));
    cProfile profile;
    profile.BIRTHDATE = QDate(1965, 2, 4);
    expectStoreFailure(u"cXMLHandler.Get Max"_s, 13, u"Type mismatch"_s);
    EXPECT_TRUE(profile.InsertProfile());
    EXPECT_EQ(profile.PROFILEID, 1);
}

TEST_F(cProfileRecordsTest, InsertProfile_missingFile_isReportedByEachStep) {
    world.remove(FILE_NAME);
    cProfile profile;
    expectStoreFailure(u"cXMLHandler.Get Max"_s);
    expectStoreFailure(u"cXMLHandler.Add New"_s);
    world.prompts.expectError(u"cXMLHandler.Save Document"_s, 321);
    expectStoreFailure(u"cXMLHandler.Find"_s);
    EXPECT_TRUE(profile.InsertProfile()); // no step's result is asked for
    EXPECT_FALSE(QFile::exists(world.file(FILE_NAME)));
}

TEST_F(cProfileRecordsTest, InsertProfile_nameOfAnyScript_survivesTheFile) {
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

TEST_F(cProfileRecordsTest, InsertProfile_everyLocale_birthDateComesBackAsTheSameDay) {
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

TEST_F(cProfileRecordsTest, InsertProfile_leavesTheOtherRecordsAndTheSchema) {
    const QByteArray before = world.read(FILE_NAME);
    cProfile profile;
    ASSERT_TRUE(profile.GetProfile(2));
    ASSERT_TRUE(profile.InsertProfile());
    EXPECT_EQ(withoutRecords(world.read(FILE_NAME), "PROFILEID=\"3\"").trimmed(), before.trimmed());
}

// Update.

TEST_F(cProfileRecordsTest, UpdateProfile_storedPerson_writesTheFieldsAndClearsDirty) {
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

TEST_F(cProfileRecordsTest, UpdateProfile_recordWithoutFields_getsThemInTheOrderOfWriting) {
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

TEST_F(cProfileRecordsTest, UpdateProfile_unknownPerson_isFalseAndWritesNothing) {
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

TEST_F(cProfileRecordsTest, UpdateProfile_fileThatCannotBeWritten_isReportedAndKeptInMemory) {
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

TEST_F(cProfileRecordsTest, DeleteProfile_storedPerson_leavesTheFieldsStanding) {
    cProfile profile;
    ASSERT_TRUE(profile.GetProfile(1));
    EXPECT_TRUE(profile.DeleteProfile());
    expectAnn(profile);
    ASSERT_EQ(stored().size(), 1);
    EXPECT_TRUE(stored().first().contains("PROFILEID=\"2\""));
    EXPECT_FALSE(profile.DeleteProfile()); // a second time there is nothing to delete
    EXPECT_EQ(stored().size(), 1);
}

TEST_F(cProfileRecordsTest, DeleteProfile_lastPerson_leavesAFileThatTakesIdOneAgain) {
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

TEST_F(cProfileRecordsTest, DeleteProfile_rowThatRefuses_isReportedAndSavesNothing) {
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
