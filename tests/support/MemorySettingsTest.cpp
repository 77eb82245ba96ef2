#include "support/MemorySettings.h"

#include "support/QtPrinting.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(MemorySettingsTest, setText_value_readsBackAndIsNoted) {
    MemorySettings settings;
    EXPECT_TRUE(settings.isEmpty());
    EXPECT_TRUE(settings.text(u"A"_s, u"x"_s).isNull());
    settings.setText(u"A"_s, u"x"_s, u"1"_s);
    settings.setText(u"A"_s, u"x"_s, u"2"_s);
    EXPECT_EQ(settings.text(u"A"_s, u"x"_s), u"2"_s);
    EXPECT_EQ(settings.value(u"A"_s, u"x"_s)->data, QByteArray("2\0", 2));
    EXPECT_EQ(settings.values(u"A"_s).size(), 1);
    EXPECT_EQ(settings.writes(), (QList<QString>{u"A|x=1"_s, u"A|x=2"_s}));
}

TEST(MemorySettingsTest, keys_pathsBelow_areTheirFirstPartsOnce) {
    MemorySettings settings;
    settings.setText(u"A\\B\\C"_s, u"x"_s, u"1"_s);
    settings.setText(u"A\\B"_s, u"x"_s, u"1"_s);
    settings.setText(u"A\\D"_s, u"x"_s, u"1"_s);
    settings.setText(u"AB"_s, u"x"_s, u"1"_s);
    EXPECT_EQ(settings.keys(u"A"_s), (QList<QString>{u"B"_s, u"D"_s}));
    EXPECT_EQ(settings.keys(u"A\\B"_s), QList<QString>{u"C"_s});
    EXPECT_TRUE(settings.keys(u"AB"_s).isEmpty());
}

TEST(MemorySettingsTest, remove_valueOrKey_takesThatAndNoMore) {
    MemorySettings settings;
    settings.setText(u"A\\B"_s, u"x"_s, u"1"_s);
    settings.setText(u"A\\B\\C"_s, u"x"_s, u"1"_s);
    settings.setText(u"A\\BC"_s, u"x"_s, u"1"_s);
    EXPECT_FALSE(settings.removeValue(u"A\\B"_s, u"y"_s));
    EXPECT_TRUE(settings.removeKey(u"A"_s, u"B"_s));
    EXPECT_FALSE(settings.removeKey(u"A"_s, u"B"_s));
    EXPECT_EQ(settings.keys(u"A"_s), QList<QString>{u"BC"_s});
    EXPECT_TRUE(settings.removeValue(u"A\\BC"_s, u"x"_s));
    EXPECT_TRUE(settings.isEmpty());
}

TEST(MemorySettingsTest, refuseWrites_on_changesNothing) {
    MemorySettings settings;
    settings.refuseWrites(true);
    EXPECT_FALSE(settings.setValue(u"A"_s, u"x"_s, {}));
    EXPECT_TRUE(settings.isEmpty());
    EXPECT_TRUE(settings.writes().isEmpty());
    settings.refuseWrites(false);
    EXPECT_TRUE(settings.setValue(u"A"_s, u"x"_s, {}));
}
