#include "support/TestWorld.h"

#include "core/Global.h"
#include "support/QtPrinting.h"
#include "support/RecordFiles.h"

#include <QDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(TestWorldTest, world_seams_areHandedInAndTakenBack) {
    {
        TestWorld world;
        EXPECT_EQ(Global::services().prompts, &world.prompts);
        EXPECT_EQ(Global::services().settings, &world.settings);
        EXPECT_EQ(Global::services().clock->today(), QDate(2026, 2, 14));
        EXPECT_EQ(Global::services().applicationPath, world.folder());
        EXPECT_EQ(Global::RegionalDecimal, u"."_s);
        Global::CurrentFloorID = 7;
    }
    EXPECT_EQ(Global::services().prompts, nullptr);
    EXPECT_EQ(Global::RegionalDecimal, QString());
    EXPECT_EQ(Global::CurrentFloorID, 0);
}

TEST(TestWorldTest, world_folder_holdsBlanksAndForeignLettersAndGoesAway) {
    QString folder;
    {
        const TestWorld world;
        folder = world.folder();
        EXPECT_TRUE(folder.contains(u' '));
        EXPECT_TRUE(folder.contains(u'家'));
        EXPECT_TRUE(QFile::exists(world.file(u"KUAYears.xml"_s)));
        EXPECT_TRUE(recordLines(world.read(u"Rooms.xml"_s)).isEmpty());
    }
    EXPECT_FALSE(QDir(folder).exists());
}

TEST(TestWorldTest, world_sampleRecords_replaceTheEmptyOnes) {
    const TestWorld world(TestWorld::Records::Sample);
    EXPECT_FALSE(recordLines(world.read(u"Rooms.xml"_s)).isEmpty());
    world.write(u"Rooms.xml"_s, "changed");
    EXPECT_EQ(world.read(u"Rooms.xml"_s), "changed");
    world.remove(u"Rooms.xml"_s);
    EXPECT_FALSE(QFile::exists(world.file(u"Rooms.xml"_s)));
}

TEST(TestWorldTest, setLocale_otherRegion_changesTheDecimalSeparatorToo) {
    TestWorld world;
    world.setLocale(QLocale(u"de_DE"_s));
    EXPECT_EQ(Global::services().locale, QLocale(u"de_DE"_s));
    EXPECT_EQ(Global::RegionalDecimal, u","_s);
    EXPECT_EQ(Global::services().prompts, &world.prompts);
}

TEST(TestWorldTest, seams_calls_areNoted) {
    TestWorld world;
    world.mainWindow.NewProfile();
    world.mainWindow.Show();
    world.mainWindow.NewLocation();
    EXPECT_EQ(world.mainWindow.calls(), (QStringList{u"NewProfile"_s, u"Show"_s, u"NewLocation"_s}));
    world.browser.associated = false;
    EXPECT_FALSE(world.browser.open(u"address"_s));
    EXPECT_EQ(world.browser.opened, QStringList{u"address"_s});
    world.printer.accept = false;
    EXPECT_FALSE(world.printer.choose());
    world.printer.print({3, {}, {}});
    EXPECT_EQ(world.printer.dialogs, 1);
    EXPECT_EQ(world.printer.printedDocuments, 1);
    EXPECT_EQ(world.printer.printedPages, 3);
    world.clock.setToday(QDate(2000, 1, 1));
    EXPECT_EQ(Global::services().clock->today(), QDate(2000, 1, 1));
}

TEST(RecordFilesTest, recordLines_content_areItsRecordsTrimmed) {
    const QByteArray content = "<xml>\n\t<z:row A=\"1\" />\n  <z:row A=\"2\" />\n</xml>";
    EXPECT_EQ(recordLines(content), (QByteArrayList{"<z:row A=\"1\" />", "<z:row A=\"2\" />"}));
    EXPECT_EQ(recordLines(withoutRecords(content, "A=\"1\"")), QByteArrayList{"<z:row A=\"2\" />"});
    EXPECT_EQ(recordLines(recordFile({"<z:row/>", "<z:row />"})), (QByteArrayList{"<z:row/>", "<z:row />"}));
}
