#include "ui/ProfilePanels.h"

#include "data/RowsetFile.h"
#include "ui/PictureList.h"
#include "ui/ProfilePane.h"
#include "ui/ProfileWorld.h"

#include <QImage>
#include <QSet>

using namespace Qt::StringLiterals;
using namespace WindowDriver;

using ProfilePanelsTest = SampleProfiles;

namespace {

/// A list of pictures and the table whose names are its keys.
struct ListOfTable {
    const char* list;
    const char* file;
    const char* field;
};

constexpr ListOfTable listsOfTables[] = {
    {"ilDirections", "Directions.xml", "DIRECTIONNAME"},
    {"ilAnimals", "Animals.xml", "ANIMALNAME"},
    {"ilColors", "Colors.xml", "COLORNAME"},
    {"ilSymbols", "Symbols.xml", "SYMBOLNAME"},
    {"ilElements", "Elements.xml", "ELEMENTNAME"},
    {"ilTODs", "TimeOfDay.xml", "TODNAME"},
    {"ilTrigrams", "Trigrams.xml", "TRIGRAMNAME"},
};

QImage drawn(const QIcon& icon, double ratio) {
    return icon.pixmap(QSize(60, 60), ratio).toImage();
}

} // namespace

// The lists of pictures.

TEST(PictureList, everyNameInTheTables_hasItsPictureAndEveryPictureAName) {
    for (const ListOfTable& entry : listsOfTables) {
        QSet<QString> names;
        const RowsetFile file(entry.file);
        for (const RowsetRow& row : file.rows()) {
            names << QString::fromStdString(row.text(entry.field));
        }
        const QStringList keys = PictureList(QString::fromLatin1(entry.list)).keys();
        EXPECT_EQ(QSet<QString>(keys.begin(), keys.end()), names) << entry.list;
    }
}

TEST(PictureList, everyPicture_isDrawnSharpAtAnySizeAndUnlikeTheOthersOfItsList) {
    for (const ListOfTable& entry : listsOfTables) {
        const PictureList list(QString::fromLatin1(entry.list));
        QList<QImage> seen;
        for (const QString& key : list.keys()) {
            const QImage image = drawn(list.picture(key), 1);
            EXPECT_EQ(image.size(), QSize(60, 60)) << qPrintable(key);
            EXPECT_EQ(drawn(list.picture(key), 2).size(), QSize(120, 120)) << qPrintable(key);
            EXPECT_FALSE(seen.contains(image)) << qPrintable(key);
            seen << image;
        }
    }
}

TEST(PictureList, unknownKey_fails) {
    const PictureList list(u"ilElements"_s);
    for (const QString& key : {u"Wood"_s, u"tree"_s, QString(), u"../elements/Tree"_s}) {
        try {
            static_cast<void>(list.picture(key));
            ADD_FAILURE() << qPrintable(key);
        } catch (const Failure& failure) {
            EXPECT_EQ(failure.number, 35601);
        }
    }
}

TEST_F(ProfilePanelsTest, paneHoldsTheSevenLists) {
    for (const ListOfTable& entry : listsOfTables) {
        EXPECT_FALSE(pane_.at<PictureList>(entry.list).keys().isEmpty()) << entry.list;
    }
}

// The panels.

TEST_F(ProfilePanelsTest, panels_haveTheirLeadInsAndValues) {
    ProfileWorld::start();
    const std::pair<const char*, const char*> expected[] = {
        {"vsPrimaryDirection", "Your Compass Direction is South"},
        {"vsSuccessDirection", "Your Success Direction is East"},
        {"vsHealthDirection", "Your Health Direction is South-East"},
        {"vsRomanceDirection", "Your Romance Direction is North"},
        {"vsDevelopmentDirection", "Your Development Direction is South"},
        {"vsBadLuckDirection", "Your Bad Luck Direction is North-East"},
        {"vsObstacleDirection", "Your Obstacle Direction is West"},
        {"vsIllnessDirection", "Your Illness Direction is South-West"},
        {"vsDestructionDirection", "Your Destruction Direction is North-West"},
        {"vsAnimal", "Birth Year Sign is Ox"},
        {"vsColor", "Your Color is Purple"},
        {"vsSymbol", "Your Symbol is Fire"},
        {"vsElement", "Your Element is Fire"},
        {"vsTOD", "Your Time of Day is Midday"},
        {"vsTrigram", "LI"},
    };
    ASSERT_EQ(std::size(expected), ProfilePanels::rows.size());
    for (std::size_t i = 0; i < std::size(expected); ++i) {
        EXPECT_EQ(ProfilePanels::rows.at(i).panel.toString(), QString::fromLatin1(expected[i].first));
        EXPECT_EQ(pane_.panel(expected[i].first).caption(), QString::fromLatin1(expected[i].second));
    }
    EXPECT_EQ(drawn(pane_.panel("vsSymbol").picture(), 1),
              drawn(pane_.at<PictureList>("ilSymbols").picture(u"Fire"_s), 1));
}

TEST_F(ProfilePanelsTest, all18KindsOfPeople_fillEveryPanelWithCaptionAndPicture) {
    ProfileWorld::start();
    cProfile& person = ProfileWorld::person();
    for (int number = 1; number <= 9; ++number) {
        for (const char* gender : {"optFemale", "optMale"}) {
            pane_.type("txt9Ki", QString::number(number));
            pane_.click(gender);
            pane_.click("cmdSaveProfile");
            ASSERT_EQ(person.KUANUMBER, number);
            for (const ProfilePanels::Row& row : ProfilePanels::rows) {
                const auto& panel = pane_.panel(row.panel.toLatin1().constData());
                EXPECT_GT(panel.caption().size(), row.leadIn.size()) << number << gender;
                EXPECT_TRUE(panel.caption().startsWith(row.leadIn));
                EXPECT_FALSE(panel.picture().isNull()) << number << gender;
            }
            EXPECT_FALSE(pane_.label("lblSummary").isEmpty());
            EXPECT_FALSE(pane_.label("lblElementDescription").isEmpty());
        }
    }
}

TEST_F(ProfilePanelsTest, emptyValue_emptiesTheCaptionAndThePicture) {
    ProfileWorld::start();
    ProfileWorld::person().oAnimal.AnimalName = u"  "_s;
    ProfileWorld::person().oElement.ELEMENTNAME.clear();
    pane_.at<ProfilePane>("vsMainProfile").LoadScreenfromProfile();
    EXPECT_EQ(pane_.panel("vsAnimal").caption(), QString());
    EXPECT_TRUE(pane_.panel("vsAnimal").picture().isNull());
    EXPECT_EQ(pane_.label("lblElementDescription"), QString());
}

TEST_F(ProfilePanelsTest, nameWithoutAPicture_isReportedAndTheChangeHandlersWorkAgain) {
    ProfileWorld::start();
    ProfileWorld::person().oColor.COLORNAME = u"Mauve"_s;
    ProfileWorld::person().oSymbol.SYMBOLNAME = u"Lake"_s;
    pane_.world.prompts.expectError(u"frmView.LoadScreenfromProfile"_s, 35601, u"Element not found"_s);
    pane_.at<ProfilePane>("vsMainProfile").LoadScreenfromProfile();
    EXPECT_EQ(pane_.panel("vsColor").caption(), u"Your Color is Mauve"_s);
    EXPECT_EQ(pane_.panel("vsSymbol").caption(), u"Your Symbol is Fire"_s); // as far as it got
    EXPECT_FALSE(pane_.view->Loading);
    pane_.type("txt9Ki", u"4"_s);
    EXPECT_TRUE(pane_.enabled("cmdSaveProfile"));
}

// The texts.

TEST_F(ProfilePanelsTest, elementDescription_tellsTheElementAndItsFourRelations) {
    ProfileWorld::start();
    const cElement& fire = ProfileWorld::person().oElement;
    EXPECT_EQ(pane_.label("lblElementDescription"),
              fire.DESCRIPTION + u"\r\n\r\nIt is associated with the compass direction(s) "_s +
                  fire.DIRECTIONS + u".\r\n\r\nIt is characterized by the colors "_s + fire.DECORATINGCOLORS +
                  u", "_s + fire.DECORATINGPATTERNS + u" and materials such as "_s +
                  fire.DECORATINGMATERIALS +
                  u".\r\n\r\nFire supports the element Soil and is supported by the element Tree."
                  "\r\n\r\nIt destroys the element Metal and is destroyed by the element Water.\r\n\r\n"_s);
    EXPECT_TRUE(pane_.at<CaptionLabel>("lblElementDescription").text().endsWith(u"element Water."));
}

TEST_F(ProfilePanelsTest, summary_standsUnderTheTrigramButForNumberFive) {
    ProfileWorld::start();
    const cProfile& person = ProfileWorld::person();
    EXPECT_EQ(pane_.label("lblSummary"),
              u"Summary for the Trigram LI: \r\n\r\n"_s + person.oDirection.SUMMARY);
    pane_.type("txt9Ki", u"5"_s);
    pane_.click("cmdSaveProfile");
    EXPECT_EQ(pane_.label("lblSummary"), person.oDirection.SUMMARY);
    EXPECT_TRUE(person.oDirection.SUMMARY.startsWith(u"Number 5"));
    EXPECT_EQ(pane_.panel("vsTrigram").caption(), u"KUN"_s);
}

TEST_F(ProfilePanelsTest, gender_anythingButAnF_isMale) {
    ProfileWorld::start();
    for (const QString& gender : {u"f"_s, u"X"_s, QString(), u"M"_s}) {
        ProfileWorld::person().GENDER = gender;
        pane_.at<ProfilePane>("vsMainProfile").LoadScreenfromProfile();
        EXPECT_FALSE(pane_.checked("optFemale"));
        EXPECT_TRUE(pane_.checked("optMale"));
    }
}

// Nothing moves.

TEST_F(ProfilePanelsTest, blankAndFilledPanels_takeTheSameRoom) {
    ProfileWorld::start();
    const auto places = [this] {
        QList<QRect> found;
        for (const char* name : {"vsTrigram", "vsAnimal", "vsTOD", "vsColor", "vsSymbol", "txt9Ki", "lblInfo",
                                 "cmdSaveProfile", "cmdDelProfile", "txtBirthDate", "vsTopProfile"}) {
            const auto& part = pane_.at<QWidget>(name);
            found << QRect(part.mapTo(pane_.view.get(), QPoint()), part.size());
        }
        return found;
    };
    const QList<QRect> filled = places();
    pane_.click("cmdNewProfile");
    QCoreApplication::processEvents();
    EXPECT_EQ(places(), filled);
}

TEST_F(ProfilePanelsTest, longNameInTheBand_stopsBeforeTheTrigram) {
    ProfileWorld::start();
    pane_.rename(QString(500, u'n'));
    pane_.click("cmdSaveProfile");
    const auto& band = pane_.at<TitleBand>("vsTopProfile");
    EXPECT_TRUE(band.shownText().endsWith(QChar(0x2026)));
    EXPECT_LT(24 + band.fontMetrics().horizontalAdvance(band.shownText()), pane_.panel("vsTrigram").x());
}
