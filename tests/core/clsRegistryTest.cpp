#include "core/clsRegistry.h"

#include "core/Global.h"
#include "support/QtPrinting.h"
#include "support/TestWorld.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

constexpr quint32 USER = clsRegistry::CurrentUser;
constexpr quint32 LOCAL_MACHINE = 0x80000002;
const QString START_UP = u"SOFTWARE\\Orvenel\\Talivane\\StartUp"_s;

/// Notes the rows of an outline as "level: cells".
class NotedGrid final : public OutlineGrid {
public:
    QStringList shown;
    QList<bool> subtotals;

    void AddItem(const QString& cells) override {
        shown << cells;
        subtotals << false;
    }
    void IsSubtotal(qint32 row, bool on) override { subtotals[row] = on; }
    void RowOutlineLevel(qint32 row, qint32 level) override { shown[row].prepend(u"%1: "_s.arg(level)); }
    [[nodiscard]] qint32 Rows() const override { return static_cast<qint32>(shown.size()); }
};

} // namespace

class clsRegistryTest : public testing::Test {
protected:
    TestWorld world_;
    clsRegistry registry_;
};

TEST_F(clsRegistryTest, GetSetting_absentKey_givesTheDefaultAndCreatesNothing) {
    EXPECT_EQ(registry_.GetSetting(USER, START_UP, u"LastProfile"_s, u"0"_s), u"0"_s);
    EXPECT_EQ(registry_.GetSetting(USER, START_UP, u"LastProfile"_s, QString()), QString());
    EXPECT_TRUE(world_.settings.isEmpty());
}

TEST_F(clsRegistryTest, GetSetting_absentValueOfAPresentKey_givesTheDefault) {
    world_.settings.setText(START_UP, u"LastLocation"_s, u"3"_s);
    EXPECT_EQ(registry_.GetSetting(USER, START_UP, u"LastProfile"_s, u"0"_s), u"0"_s);
}

TEST_F(clsRegistryTest, SaveSetting_absentKey_createsTheWholePath) {
    EXPECT_TRUE(registry_.SaveSetting(USER, START_UP, u"LastProfile"_s, 12));
    EXPECT_EQ(registry_.GetSetting(USER, START_UP, u"LastProfile"_s, u"0"_s), u"12"_s);
    EXPECT_EQ(world_.settings.keys(u"SOFTWARE\\Orvenel"_s), QList<QString>{u"Talivane"_s});
    EXPECT_EQ(world_.settings.value(START_UP, u"LastProfile"_s)->type, 1);
    EXPECT_EQ(world_.settings.value(START_UP, u"LastProfile"_s)->data, QByteArray("12\0", 3));
}

TEST_F(clsRegistryTest, SaveSetting_keyTypeGiven_isKept) {
    EXPECT_TRUE(registry_.SaveSetting(USER, START_UP, u"Path"_s, u"%HOME%"_s, 2));
    EXPECT_EQ(world_.settings.value(START_UP, u"Path"_s)->type, 2);
}

TEST_F(clsRegistryTest, GetSetting_starAsName_isTheUnnamedValue) {
    EXPECT_TRUE(registry_.SaveSetting(USER, START_UP, u"*"_s, u"unnamed"_s));
    EXPECT_TRUE(world_.settings.value(START_UP, QString()).has_value());
    EXPECT_EQ(registry_.GetSetting(USER, START_UP, u"*"_s, QString()), u"unnamed"_s);
    EXPECT_TRUE(registry_.DeleteSetting(USER, START_UP, u"*"_s));
    EXPECT_FALSE(world_.settings.value(START_UP, QString()).has_value());
}

TEST_F(clsRegistryTest, GetSetting_sizeOneHoldingOnlyTheNul_isTheEmptyText) {
    world_.settings.setValue(START_UP, u"LastProfile"_s, {1, QByteArray(1, '\0')});
    EXPECT_EQ(registry_.GetSetting(USER, START_UP, u"LastProfile"_s, u"0"_s), QString());
}

TEST_F(clsRegistryTest, GetSetting_sizeZero_givesTheDefault) {
    world_.settings.setValue(START_UP, u"LastProfile"_s, {1, QByteArray()});
    EXPECT_EQ(registry_.GetSetting(USER, START_UP, u"LastProfile"_s, u"0"_s), u"0"_s);
}

TEST_F(clsRegistryTest, SaveSetting_textOfEveryScript_comesBack) {
    const QString text = u"Größe 家 \"&\" עברית 😀"_s;
    EXPECT_TRUE(registry_.SaveSetting(USER, START_UP, u"Name"_s, text));
    EXPECT_EQ(registry_.GetSetting(USER, START_UP, u"Name"_s, QString()), text);
}

TEST_F(clsRegistryTest, SaveSetting_storeThatRefuses_isFalseWithoutAReport) {
    world_.settings.refuseWrites(true);
    EXPECT_FALSE(registry_.SaveSetting(USER, START_UP, u"LastProfile"_s, 1));
}

TEST_F(clsRegistryTest, SaveSetting_otherRootKey_isFalseAndWritesNothing) {
    EXPECT_FALSE(registry_.SaveSetting(LOCAL_MACHINE, START_UP, u"LastProfile"_s, 1));
    EXPECT_TRUE(world_.settings.isEmpty());
    EXPECT_EQ(registry_.GetSetting(LOCAL_MACHINE, START_UP, u"LastProfile"_s, u"d"_s), u"d"_s);
    EXPECT_FALSE(registry_.DeleteSetting(LOCAL_MACHINE, START_UP, u"LastProfile"_s));
    EXPECT_EQ(registry_.GetAllKeys(LOCAL_MACHINE, START_UP), std::nullopt);
    EXPECT_FALSE(registry_.GetAllSettings(LOCAL_MACHINE, START_UP).has_value());
}

TEST_F(clsRegistryTest, GetSetting_noStoreAtAll_isReportedAndGivesTheDefault) {
    Services services = Global::services();
    services.settings = nullptr;
    Global::use(services);
    const QString notSet = u"Object variable or With block variable not set"_s;
    world_.prompts.expectError(u"clsRegistry.GetSetting"_s, 91, notSet);
    EXPECT_EQ(registry_.GetSetting(USER, START_UP, u"LastProfile"_s, u"0"_s), u"0"_s);
    world_.prompts.expectError(u"clsRegistry.SaveSetting"_s, 91, notSet);
    EXPECT_FALSE(registry_.SaveSetting(USER, START_UP, u"LastProfile"_s, u"0"_s));
    world_.prompts.expectError(u"clsRegistry.DeleteSetting"_s, 91, notSet);
    EXPECT_FALSE(registry_.DeleteSetting(USER, START_UP, u"LastProfile"_s));
    world_.prompts.expectError(u"clsRegistry.GetAllKeys"_s, 91, notSet);
    EXPECT_EQ(registry_.GetAllKeys(USER, START_UP), std::nullopt);
    world_.prompts.expectError(u"clsRegistry.GetAllSettings"_s, 91, notSet);
    EXPECT_FALSE(registry_.GetAllSettings(USER, START_UP).has_value());
}

TEST_F(clsRegistryTest, DeleteSetting_valueOrKey_saysWhetherItWorked) {
    registry_.SaveSetting(USER, START_UP, u"A"_s, 1);
    registry_.SaveSetting(USER, START_UP + u"\\Deep"_s, u"B"_s, 2);
    EXPECT_TRUE(registry_.DeleteSetting(USER, START_UP, u"A"_s));
    EXPECT_FALSE(registry_.DeleteSetting(USER, START_UP, u"A"_s));
    EXPECT_TRUE(registry_.DeleteSetting(USER, START_UP, QString()));
    EXPECT_TRUE(world_.settings.isEmpty());
    EXPECT_FALSE(registry_.DeleteSetting(USER, START_UP, QString()));
}

TEST_F(clsRegistryTest, GetAllKeys_keysAndValues_areListedOrNothing) {
    EXPECT_EQ(registry_.GetAllKeys(USER, START_UP), std::nullopt);
    EXPECT_FALSE(registry_.GetAllSettings(USER, START_UP).has_value());
    registry_.SaveSetting(USER, START_UP + u"\\One"_s, u"B"_s, 2);
    registry_.SaveSetting(USER, START_UP + u"\\Two\\Deeper"_s, u"C"_s, 3);
    registry_.SaveSetting(USER, START_UP, u"A"_s, 1);
    EXPECT_EQ(registry_.GetAllKeys(USER, START_UP), (QStringList{u"One"_s, u"Two"_s}));
    const auto settings = registry_.GetAllSettings(USER, START_UP);
    ASSERT_TRUE(settings.has_value());
    ASSERT_EQ(settings->size(), 1);
    EXPECT_EQ(settings->first().name, u"A"_s);
    EXPECT_EQ(settings->first().value.type, 1);
    EXPECT_EQ(settings->first().value.data, QByteArray("1\0", 2));
}

TEST_F(clsRegistryTest, CopyTree_keyWithKeysBelow_copiesAllOfThem) {
    registry_.SaveSetting(USER, u"S"_s, u"*"_s, u"unnamed"_s);
    registry_.SaveSetting(USER, u"S"_s, u"A"_s, 1, 2);
    registry_.SaveSetting(USER, u"S\\Deep\\Deeper"_s, u"B"_s, 2);
    registry_.SaveSetting(USER, u"S\\Deep"_s, u"C"_s, 3);
    registry_.CopyTree(USER, u"S"_s, u"D\\New"_s);
    EXPECT_EQ(registry_.GetSetting(USER, u"D\\New"_s, u"*"_s, QString()), u"unnamed"_s);
    EXPECT_EQ(registry_.GetSetting(USER, u"D\\New"_s, u"A"_s, QString()), u"1"_s);
    EXPECT_EQ(world_.settings.value(u"D\\New"_s, u"A"_s)->type, 2);
    EXPECT_EQ(registry_.GetSetting(USER, u"D\\New\\Deep"_s, u"C"_s, QString()), u"3"_s);
    EXPECT_EQ(registry_.GetSetting(USER, u"D\\New\\Deep\\Deeper"_s, u"B"_s, QString()), u"2"_s);
}

TEST_F(clsRegistryTest, CopyTree_intoItself_ends) {
    registry_.SaveSetting(USER, u"S"_s, u"A"_s, 1);
    registry_.SaveSetting(USER, u"S\\Deep"_s, u"B"_s, 2);
    registry_.CopyTree(USER, u"S"_s, u"S\\Copy"_s);
    EXPECT_EQ(registry_.GetSetting(USER, u"S\\Copy"_s, u"A"_s, QString()), u"1"_s);
    EXPECT_EQ(registry_.GetSetting(USER, u"S\\Copy\\Deep"_s, u"B"_s, QString()), u"2"_s);
    EXPECT_EQ(registry_.GetAllKeys(USER, u"S\\Copy"_s), QStringList{u"Deep"_s});
}

TEST_F(clsRegistryTest, DisplayTree_valuesAndKeys_standInAnOutline) {
    registry_.SaveSetting(USER, u"S"_s, u"Name"_s, u"text"_s);
    world_.settings.setValue(u"S"_s, u"Number"_s, {4, QByteArray("\x2A\0\0\0", 4)});
    world_.settings.setValue(u"S\\Deep"_s, u"Odd"_s, {77, QByteArray("\x01\xFF", 2)});
    NotedGrid grid;
    registry_.DisplayTree(USER, u"S"_s, grid, 0);
    EXPECT_EQ(grid.shown, (QStringList{u"0: Name\tREG_SZ\ttext"_s, u"0: Number\tREG_DWORD\t0x02a (42)"_s,
                                       u"0: Deep"_s, u"1: Odd\t77\t0x01 ff"_s}));
    EXPECT_EQ(grid.subtotals, QList<bool>(4, true));
}

TEST_F(clsRegistryTest, FormatValues_everyType_isShownInItsForm) {
    EXPECT_EQ(registry_.FormatValues(QByteArray("text\0", 5), 1), u"text"_s);
    EXPECT_EQ(registry_.FormatValues(QByteArray("%HOME%\0", 7), 2), u"%HOME%"_s);
    EXPECT_EQ(registry_.FormatValues(QByteArray("\x00\x0A\xFF", 3), 3), u"0x00 0a ff"_s);
    EXPECT_EQ(registry_.FormatValues(QByteArray(), 3), QString());
    EXPECT_EQ(registry_.FormatValues(QByteArray("\x01\x02\x03\x04", 4), 4), u"0x04030201 (67305985)"_s);
    EXPECT_EQ(registry_.FormatValues(QByteArray("\x01\x02\x03\x04", 4), 5), u"0x01020304 (16909060)"_s);
    EXPECT_EQ(registry_.FormatValues(QByteArray("\x01", 1), 4), u"0x01 (1)"_s);
    EXPECT_EQ(registry_.FormatValues(QByteArray("a\0bc\0\0", 6), 7), u"a\r\nbc"_s);
    EXPECT_EQ(registry_.FormatValue(QByteArray("a\0", 2), 1), u"a"_s);
    EXPECT_EQ(registry_.FormatValue(QByteArray(), 1), QString());
}

TEST_F(clsRegistryTest, Company_emptyText_bringsTheDefaultBack) {
    const QString company = registry_.Company();
    EXPECT_FALSE(company.isEmpty());
    registry_.Company(u"  Other & Sons "_s);
    EXPECT_EQ(registry_.Company(), u"Other & Sons"_s);
    registry_.Company(QString());
    EXPECT_EQ(registry_.Company(), company);
    EXPECT_EQ(registry_.AppName(), u"Talivane"_s);
    registry_.AppName(u" Name "_s);
    EXPECT_EQ(registry_.AppName(), u"Name"_s);
    registry_.AppName(QString());
    EXPECT_EQ(registry_.AppName(), u"Talivane"_s);
}
