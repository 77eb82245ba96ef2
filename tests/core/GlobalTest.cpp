#include "core/Global.h"

#include "ConversionWorld.h"
#include "core/ListControl.h"
#include "core/Prompts.h"
#include "support/QtPrinting.h"
#include "support/TestWorld.h"

#include <QDir>
#include <gtest/gtest.h>

#include <stdexcept>

using namespace Qt::StringLiterals;

class GlobalTest : public testing::Test {
protected:
    TestWorld world_;
};

TEST_F(GlobalTest, PI_value_isTheShortOneAndNotAMoreExactOne) {
    EXPECT_EQ(Global::PI, 3.14159265359);
    EXPECT_NE(Global::PI, 3.14159265358979323846);
}

TEST_F(GlobalTest, service_notHandedIn_failsWithObjectNotSet) {
    Global::use({});
    EXPECT_EQ(failureNumber([] { (void)Global::service(&Services::clock); }), 91);
}

TEST_F(GlobalTest, service_handedIn_isThatOne) {
    EXPECT_EQ(&Global::service(&Services::settings), &world_.settings);
}

TEST_F(GlobalTest, dataFolder_anyApplicationPath_endsInOneSeparator) {
    Services services = Global::services();
    const QString separator = QDir::separator();
    for (const QString& path : {u"/programs/talivane"_s, u"/programs/talivane"_s + separator}) {
        services.applicationPath = path;
        Global::use(services);
        EXPECT_EQ(Global::dataFolder(), u"/programs/talivane"_s + separator);
    }
}

TEST_F(GlobalTest, settingsSection_titleOfTheProgram_isReadEachTime) {
    EXPECT_EQ(Global::settingsSection(u"StartUp"_s), u"SOFTWARE\\Orvenel\\Talivane\\StartUp"_s);
    Services services = Global::services();
    services.title = u"Other"_s;
    Global::use(services);
    EXPECT_EQ(Global::settingsSection(u"frmView"_s), u"SOFTWARE\\Orvenel\\Other\\frmView"_s);
}

TEST_F(GlobalTest, HandleError_getProfile91_showsTheLabelAsTitleAndTheTwoLines) {
    world_.prompts.expectMessage(u"cProfile.Get Profile"_s, u"cProfile.Get Profile\r\n91-D is gone"_s,
                                 MessageIcon::Critical);
    Global::HandleError(u"cProfile.Get Profile", 91, u"D is gone"_s);
    EXPECT_TRUE(world_.prompts.isSatisfied());
}

TEST_F(GlobalTest, HandleError_negativeNumberAndNoDescription_addNothing) {
    world_.prompts.expectMessage(u"frmView.cboFloors_Click"_s, u"frmView.cboFloors_Click\r\n-2147467259-"_s,
                                 MessageIcon::Critical);
    Global::HandleError(u"frmView.cboFloors_Click", -2147467259, QString());
}

TEST_F(GlobalTest, HandleError_waitCursor_isAnArrowWhileTheBoxStandsAndComesBack) {
    world_.prompts.setPointer(PointerShape::Hourglass);
    PointerShape whileShown = PointerShape::Hourglass;
    world_.prompts.whileShown = [&] { whileShown = world_.prompts.pointer(); };
    world_.prompts.expectError(u"Global.Main"_s, 6, u"Overflow"_s);
    Global::HandleError(u"Global.Main", 6, u"Overflow"_s);
    EXPECT_EQ(whileShown, PointerShape::Default);
    EXPECT_EQ(world_.prompts.pointer(), PointerShape::Hourglass);
}

namespace {

/// Fails in every step that it is told to fail in, and notes all of them.
class FailingPrompts final : public Prompts {
public:
    bool failPointer = false;
    bool failSetPointer = false;
    bool failBox = false;
    QStringList steps;

    MessageAnswer messageBox(const QString& title, const QString& /*text*/, MessageIcon /*icon*/,
                             MessageButtons /*buttons*/) override {
        note(u"box "_s + title, failBox);
        return MessageAnswer::Ok;
    }
    QString inputBox(const QString& /*title*/, const QString& /*prompt*/,
                     const QString& /*initial*/) override {
        note(u"input"_s, true);
        return {};
    }
    [[nodiscard]] PointerShape pointer() const override {
        if (failPointer) {
            throw std::runtime_error("no pointer");
        }
        return PointerShape::Hourglass;
    }
    void setPointer(PointerShape shape) override {
        note(u"pointer %1"_s.arg(static_cast<int>(shape)), failSetPointer);
    }

private:
    void note(const QString& step, bool fails) {
        steps << step;
        if (fails) {
            throw failure(ErrorNumber::InternalError);
        }
    }
};

} // namespace

TEST_F(GlobalTest, HandleError_anyStepThatFails_isPassedOver) {
    for (const int failing : {0, 1, 2, 3}) {
        FailingPrompts prompts;
        prompts.failPointer = failing == 1;
        prompts.failSetPointer = failing == 2;
        prompts.failBox = failing == 3;
        Services services = Global::services();
        services.prompts = &prompts;
        Global::use(services);
        EXPECT_NO_THROW(Global::HandleError(u"Global.Main", 6, u"Overflow"_s));
        const QString kept = failing == 1 ? u"pointer 0"_s : u"pointer 11"_s;
        EXPECT_EQ(prompts.steps, (QStringList{u"pointer 0"_s, u"box Global.Main"_s, kept})) << failing;
    }
    Global::use({});
    EXPECT_NO_THROW(Global::HandleError(u"Global.Main", 6, u"Overflow"_s)); // nothing to show it with
}

class RegionalSettingTest : public testing::TestWithParam<const char*> {
protected:
    ConversionWorld world_{QString::fromLatin1(GetParam())};
};

INSTANTIATE_TEST_SUITE_P(AllLocales, RegionalSettingTest, testing::ValuesIn(testedLocales), localeName);

TEST_P(RegionalSettingTest, GetRegionalSetting_separators_areThoseOfTheRegion) {
    const QLocale locale(QString::fromLatin1(GetParam()));
    EXPECT_EQ(Global::GetRegionalSetting(14), locale.decimalPoint());
    EXPECT_EQ(Global::GetRegionalSetting(22), locale.decimalPoint());
    EXPECT_EQ(Global::GetRegionalSetting(15), locale.groupSeparator());
    EXPECT_EQ(Global::GetRegionalSetting(23), locale.groupSeparator());
}

TEST_P(RegionalSettingTest, GetRegionalSetting_currency_isThatOfTheRegionOrOneNul) {
    const QString symbol = QLocale(QString::fromLatin1(GetParam())).currencySymbol();
    EXPECT_EQ(Global::GetRegionalSetting(20), symbol.isEmpty() ? QString(1, QChar(u'\0')) : symbol);
}

TEST_P(RegionalSettingTest, GetRegionalSetting_unknownItem_isOneNulThatEqualsNoSeparator) {
    for (const qint32 item : {-1, 0, 21, 9999}) {
        const QString none = Global::GetRegionalSetting(item);
        EXPECT_EQ(none, QString(1, QChar(u'\0'))) << item;
        EXPECT_NE(none, u","_s);
        EXPECT_NE(none, u"."_s);
    }
}

namespace {

class NumberedList final : public ListControl {
public:
    explicit NumberedList(QList<qint32> entries)
        : entries_(std::move(entries)) {}
    [[nodiscard]] qint32 ListCount() const override { return static_cast<qint32>(entries_.size()); }
    [[nodiscard]] qint32 ItemData(qint32 index) const override {
        if (index < 0 || index >= ListCount()) {
            throw failure(ErrorNumber::InvalidProcedureCall);
        }
        return entries_.at(index);
    }
    [[nodiscard]] qint32 ListIndex() const override { return selected_; }
    void setListIndex(qint32 index) override { selected_ = index; }

private:
    QList<qint32> entries_;
    qint32 selected_ = 7; // none that a search could choose
};

qint32 selectedAfter(const QList<qint32>& entries, const QString& key, qint32 first, qint32 fallback) {
    NumberedList list(entries);
    Global::FindInData(list, key, first, fallback);
    return list.ListIndex();
}

} // namespace

TEST_F(GlobalTest, FindInData_emptyList_leavesTheSelection) {
    EXPECT_EQ(selectedAfter({}, u"1"_s, 0, -1), 7);
}

TEST_F(GlobalTest, FindInData_noMatchAmongThree_selectsTheFallback) {
    EXPECT_EQ(selectedAfter({4, 5, 6}, u"9"_s, 0, -1), -1);
    EXPECT_EQ(selectedAfter({4, 5, 6}, u"9"_s, 0, 0), 0);
    EXPECT_EQ(selectedAfter({4, 5, 6}, QString(), 0, 2), 2);
}

TEST_F(GlobalTest, FindInData_match_selectsTheFirstFromTheGivenIndexOn) {
    EXPECT_EQ(selectedAfter({4, 5, 6}, u"6"_s, 0, -1), 2);
    EXPECT_EQ(selectedAfter({5, 5, 5}, u"5"_s, 0, -1), 0);
    EXPECT_EQ(selectedAfter({5, 5, 5}, u"5"_s, 1, -1), 1);
    EXPECT_EQ(selectedAfter({4, 5, 6}, u"4"_s, 1, -1), -1);
    EXPECT_EQ(selectedAfter({-4, 5, 6}, u"-4"_s, 0, -1), 0);
}

TEST_F(GlobalTest, FindInData_keysAreComparedAsText) {
    EXPECT_EQ(selectedAfter({4, 5, 6}, u"05"_s, 0, -1), -1);
    EXPECT_EQ(selectedAfter({4, 5, 6}, u" 5"_s, 0, -1), -1);
}

TEST_F(GlobalTest, FindInData_firstAtOrBeyondTheEnd_fallsBackOrDoesNothing) {
    EXPECT_EQ(selectedAfter({4, 5, 6}, u"4"_s, 3, -1), -1);
    EXPECT_EQ(selectedAfter({4, 5, 6}, u"4"_s, 4, -1), 7);
}

TEST_F(GlobalTest, FindInData_listThatRefuses_isPassedOver) {
    EXPECT_EQ(selectedAfter({4, 5, 6}, u"4"_s, -1, 0), 7);
}

TEST_F(GlobalTest, CompassToRadians_quarterTurns_areExact) {
    EXPECT_EQ(Global::CompassToRadians(0), static_cast<float>(Global::PI / 2));
    EXPECT_EQ(Global::CompassToRadians(90), 0.0F);
    EXPECT_EQ(Global::CompassToRadians(180), static_cast<float>(-Global::PI / 2));
}

TEST_F(GlobalTest, CompassToRadians_sectorBounds_areTheAnglesOfTheSmallPi) {
    for (int i = 0; i < 16; ++i) {
        const double bound = 22.5 * i;
        const double radians = Global::PI / 2 - bound * (Global::PI / 180);
        EXPECT_EQ(Global::CompassToRadians(static_cast<float>(bound)), static_cast<float>(radians)) << bound;
        EXPECT_NEAR(static_cast<double>(Global::CompassToRadians(static_cast<float>(bound))),
                    1.5707963267948966 - bound * 0.017453292519943295, 1e-6);
    }
    EXPECT_NEAR(static_cast<double>(Global::CompassToRadians(-22.5F)), 1.9634954, 1e-6);
    EXPECT_NEAR(static_cast<double>(Global::CompassToRadians(360)), -4.712389, 1e-6);
}

TEST_F(GlobalTest, OppositeDirection_everySector_isTheOneAcrossTheCentre) {
    const std::array<qint32, 9> opposite = {9, 8, 7, 6, 5, 4, 3, 2, 1};
    for (qint32 id = 1; id <= 9; ++id) {
        EXPECT_EQ(Global::OppositeDirection(id), opposite.at(static_cast<std::size_t>(id - 1)));
        EXPECT_EQ(Global::OppositeDirection(Global::OppositeDirection(id)), id);
    }
}

TEST_F(GlobalTest, NormalizeBoolean_everySpellingOfTheTable_isOneCanonicalText) {
    for (const QString& yes : {u"True"_s, u"TRUE"_s, u"tRuE"_s, u"y"_s, u"Y"_s, u"yes"_s, u"YES"_s, u"Yes"_s,
                               u"yEs"_s, u"1"_s, u"-1"_s}) {
        EXPECT_EQ(Global::NormalizeBoolean(yes), QVariant(u"True"_s)) << qPrintable(yes);
    }
    for (const QString& no :
         {u"False"_s, u"FALSE"_s, u"fAlSe"_s, u"n"_s, u"N"_s, u"no"_s, u"NO"_s, u"nO"_s, u"0"_s}) {
        EXPECT_EQ(Global::NormalizeBoolean(no), QVariant(u"False"_s)) << qPrintable(no);
    }
}

TEST_F(GlobalTest, NormalizeBoolean_valuesThatAreNoText_followTheirMeaning) {
    EXPECT_EQ(Global::NormalizeBoolean(true), QVariant(u"True"_s));
    EXPECT_EQ(Global::NormalizeBoolean(false), QVariant(u"False"_s));
    EXPECT_EQ(Global::NormalizeBoolean(1), QVariant(u"True"_s));
    EXPECT_EQ(Global::NormalizeBoolean(-1), QVariant(u"True"_s));
    EXPECT_EQ(Global::NormalizeBoolean(-1.0), QVariant(u"True"_s));
    EXPECT_EQ(Global::NormalizeBoolean(0), QVariant(u"False"_s));
    EXPECT_EQ(Global::NormalizeBoolean(QVariant()), QVariant(u"False"_s));
    // Texts that are numbers count as those.
    EXPECT_EQ(Global::NormalizeBoolean(u"-1.0"_s), QVariant(u"True"_s));
    EXPECT_EQ(Global::NormalizeBoolean(u"0.0"_s), QVariant(u"False"_s));
    EXPECT_EQ(Global::NormalizeBoolean(u"00"_s), QVariant(u"False"_s));
}

TEST_F(GlobalTest, NormalizeBoolean_anythingElse_isBooleanFalse) {
    for (const QVariant& other : {QVariant(QString()), QVariant(u" yes"_s), QVariant(u"maybe"_s),
                                  QVariant(u"2"_s), QVariant(2), QVariant(u"wahr"_s), QVariant(u"nope"_s),
                                  QVariant(QDate(1965, 2, 4)), QVariant(QStringList{u"yes"_s, u"no"_s})}) {
        const QVariant result = Global::NormalizeBoolean(other);
        EXPECT_EQ(result.typeId(), QMetaType::Bool) << qPrintable(other.toString());
        EXPECT_FALSE(result.toBool()) << qPrintable(other.toString());
    }
}
