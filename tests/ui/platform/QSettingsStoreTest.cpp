#include "ui/platform/QSettingsStore.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

class QSettingsStoreTest : public testing::Test {
protected:
    QTemporaryDir folder_;
    const QString file_ = folder_.path() + QStringLiteral("/Größe of settings/Talivane.ini");
    const QString section_ = QStringLiteral("SOFTWARE\\Orvenel\\Talivane\\StartUp");
    QSettingsStore store_{file_};

    static SettingValue text(const char* utf8) {
        QByteArray data(utf8);
        data.append('\0');
        return {1, data};
    }
    [[nodiscard]] QByteArray stored(const QString& name) const {
        const auto found = store_.value(section_, name);
        return found ? found->data : QByteArray("(none)");
    }
};

} // namespace

TEST_F(QSettingsStoreTest, value_absentKey_isNothingAndCreatesNoFile) {
    EXPECT_FALSE(store_.value(section_, QStringLiteral("LastProfile")));
    EXPECT_FALSE(QFileInfo::exists(file_));
}

TEST_F(QSettingsStoreTest, setValue_createsTheWholePathAndReadsBack) {
    EXPECT_TRUE(store_.setValue(section_, QStringLiteral("LastProfile"), text("12")));
    EXPECT_EQ(stored(QStringLiteral("LastProfile")), QByteArray("12\0", 3));
    EXPECT_TRUE(QFileInfo::exists(file_));
}

TEST_F(QSettingsStoreTest, setValue_isSeenByAnotherStoreOnTheSameFile) {
    store_.setValue(section_, QStringLiteral("LastProfile"), text("12"));
    const QSettingsStore other(file_);
    ASSERT_TRUE(other.value(section_, QStringLiteral("LastProfile")));
    EXPECT_EQ(other.value(section_, QStringLiteral("LastProfile"))->data, QByteArray("12\0", 3));
}

TEST_F(QSettingsStoreTest, emptyText_isAValueOfOneByte) {
    store_.setValue(section_, QStringLiteral("LastProfile"), text(""));
    EXPECT_EQ(stored(QStringLiteral("LastProfile")), QByteArray("\0", 1));
}

TEST_F(QSettingsStoreTest, textsOfEveryKind_comeBackAsTheyWere) {
    for (const char* kind : {"a, b", "a; b", "\"quoted\"", "back\\slash", " blanks ", "@Invalid()", "@@",
                             "家 Größe", "line\nbreak", "100%", "hex(1):00", "hex(4)", "true", "1.5"}) {
        store_.setValue(section_, QStringLiteral("Text"), text(kind));
        EXPECT_EQ(stored(QStringLiteral("Text")), text(kind).data) << kind;
    }
}

TEST_F(QSettingsStoreTest, valuesOfOtherTypes_keepTypeAndBytes) {
    const QByteArray bytes("\x00\x01\xFE\xFF", 4);
    for (const qint32 type : {0, 2, 3, 4, 7, 11}) {
        store_.setValue(section_, QStringLiteral("Bytes"), {type, bytes});
        const auto found = store_.value(section_, QStringLiteral("Bytes"));
        ASSERT_TRUE(found);
        EXPECT_EQ(found->type, type);
        EXPECT_EQ(found->data, bytes);
    }
}

TEST_F(QSettingsStoreTest, textThatIsNoUtf8OrHasNoNul_keepsItsBytes) {
    for (const QByteArray& bytes :
         {QByteArray("\xFF\xFE\0", 3), QByteArray("abc"), QByteArray("a\0b\0", 4)}) {
        store_.setValue(section_, QStringLiteral("Odd"), {1, bytes});
        EXPECT_EQ(stored(QStringLiteral("Odd")), bytes);
    }
}

TEST_F(QSettingsStoreTest, unnamedValue_livesBesideTheNamedOnes) {
    store_.setValue(section_, QString(), text("unnamed"));
    store_.setValue(section_, QStringLiteral("Named"), text("named"));
    EXPECT_EQ(stored(QString()), text("unnamed").data);
    const QList<NamedSetting> values = store_.values(section_);
    ASSERT_EQ(values.size(), 2);
    EXPECT_TRUE(values.at(0).name.isEmpty() || values.at(1).name.isEmpty());
}

TEST_F(QSettingsStoreTest, namesWithSlashesAndPercentSigns_areNoPaths) {
    store_.setValue(section_, QStringLiteral("a/b%2Fc"), text("1"));
    EXPECT_EQ(store_.values(section_).at(0).name, QStringLiteral("a/b%2Fc"));
    EXPECT_TRUE(store_.keys(section_).isEmpty());
}

TEST_F(QSettingsStoreTest, keys_areTheChildrenNotTheirValues) {
    store_.setValue(section_, QStringLiteral("LastProfile"), text("1"));
    store_.setValue(QStringLiteral("SOFTWARE\\Orvenel\\Talivane\\frmView"), QStringLiteral("Top"), text("0"));
    EXPECT_EQ(store_.keys(QStringLiteral("SOFTWARE\\Orvenel\\Talivane")),
              (QList<QString>{QStringLiteral("StartUp"), QStringLiteral("frmView")}));
    EXPECT_TRUE(store_.keys(section_).isEmpty());
}

TEST_F(QSettingsStoreTest, removeValue_leavesTheKeyOfTheSameName) {
    store_.setValue(section_, QStringLiteral("Twin"), text("value"));
    store_.setValue(section_ + QStringLiteral("\\Twin"), QStringLiteral("Inner"), text("inner"));
    EXPECT_TRUE(store_.removeValue(section_, QStringLiteral("Twin")));
    EXPECT_FALSE(store_.value(section_, QStringLiteral("Twin")));
    EXPECT_TRUE(store_.value(section_ + QStringLiteral("\\Twin"), QStringLiteral("Inner")));
    EXPECT_FALSE(store_.removeValue(section_, QStringLiteral("Twin")));
}

TEST_F(QSettingsStoreTest, removeKey_takesAllThatIsInItAndLeavesTheValueOfTheSameName) {
    store_.setValue(section_, QStringLiteral("Twin"), text("value"));
    store_.setValue(section_ + QStringLiteral("\\Twin\\Deep"), QStringLiteral("Inner"), text("inner"));
    EXPECT_TRUE(store_.removeKey(section_, QStringLiteral("Twin")));
    EXPECT_FALSE(store_.value(section_ + QStringLiteral("\\Twin\\Deep"), QStringLiteral("Inner")));
    EXPECT_EQ(stored(QStringLiteral("Twin")), text("value").data);
    EXPECT_FALSE(store_.removeKey(section_, QStringLiteral("Twin")));
}

TEST_F(QSettingsStoreTest, setValue_whereNoFileCanBe_isFalse) {
    QFile blocker(folder_.path() + QStringLiteral("/blocker"));
    ASSERT_TRUE(blocker.open(QIODevice::WriteOnly));
    QSettingsStore blocked(blocker.fileName() + QStringLiteral("/Talivane.ini"));
    EXPECT_FALSE(blocked.setValue(section_, QStringLiteral("LastProfile"), text("1")));
}

TEST_F(QSettingsStoreTest, damagedFile_readsAsNothing) {
    store_.setValue(section_, QStringLiteral("LastProfile"), text("1"));
    QFile damaged(file_);
    ASSERT_TRUE(damaged.open(QIODevice::WriteOnly));
    damaged.write(QByteArray("\0\xFF[[[===\n\n]=]", 13));
    damaged.close();
    EXPECT_FALSE(QSettingsStore(file_).value(section_, QStringLiteral("LastProfile")));
}

TEST_F(QSettingsStoreTest, valuesInAForeignForm_areReadWithTheirType) {
    // As the toolkit itself writes bytes and numbers, say in a file that another program has edited.
    ASSERT_TRUE(QDir().mkpath(QFileInfo(file_).path()));
    QSettings written(file_, QSettings::IniFormat);
    written.setValue(QStringLiteral("SOFTWARE/Orvenel/Talivane/StartUp/Bytes"), QByteArray("\x00\xFF", 2));
    written.sync();
    QFile file(file_);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    QByteArray text = file.readAll();
    const qsizetype at = text.indexOf("Orvenel\\Talivane\\StartUp\\Bytes");
    ASSERT_GE(at, 0);
    text.insert(at, "Orvenel\\Talivane\\StartUp\\Number=@Variant(\\0\\0\\0\\x2\\0\\0\\x1\\x2)\n");
    file.resize(0);
    file.write(text);
    file.close();
    const QSettingsStore store(file_);
    const auto bytes = store.value(section_, QStringLiteral("Bytes"));
    ASSERT_TRUE(bytes);
    EXPECT_EQ(bytes->type, 3);
    EXPECT_EQ(bytes->data, QByteArray("\x00\xFF", 2));
    const auto number = store.value(section_, QStringLiteral("Number"));
    ASSERT_TRUE(number);
    EXPECT_EQ(number->type, 4);
    EXPECT_EQ(number->data, QByteArray("\x02\x01\x00\x00", 4)); // 258, the lowest byte first
}
