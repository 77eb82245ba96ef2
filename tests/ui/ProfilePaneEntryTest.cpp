#include "core/Conversion.h"
#include "core/ConversionWorld.h"
#include "support/HostileNames.h"
#include "ui/ProfileWorld.h"

#include <QClipboard>
#include <QGuiApplication>

using namespace Qt::StringLiterals;

namespace {

class ProfileNameTest : public testing::TestWithParam<HostileName> {
protected:
    ProfileWorld pane_{TestWorld::Records::Empty};

    /// Puts the name into a field as a user would who has it on the clipboard.
    static void paste(QWidget& field, QLineEdit& edit) {
        QGuiApplication::clipboard()->setText(GetParam().name);
        edit.selectAll();
        QTest::keyClick(&field, Qt::Key_V, Qt::ControlModifier);
    }
    void expectShownEverywhere(const QString& name) {
        QString caption = name;
        EXPECT_EQ(pane_.band(), u"  "_s + caption.replace(u"&"_s, u"&&"_s));
        EXPECT_EQ(pane_.at<TitleBand>("vsTopProfile").text(), u"  "_s + name);
        EXPECT_EQ(pane_.list().currentText(), name);
        ASSERT_EQ(pane_.list().count(), 1);
        EXPECT_EQ(pane_.list().itemText(0), name);
        EXPECT_EQ(ProfileWorld::person().PROFILENAME, name);
    }
};

INSTANTIATE_TEST_SUITE_P(Hostile, ProfileNameTest, testing::ValuesIn(hostileNames),
                         [](const testing::TestParamInfo<HostileName>& name) { return name.param.kind; });

/// The pane under one set of regional settings.
class ProfileLocaleTest : public testing::TestWithParam<const char*> {
protected:
    ProfileWorld pane_{TestWorld::Records::Empty};

    void SetUp() override {
        Services services = Global::services();
        services.locale = QLocale(QString::fromLatin1(GetParam()));
        Global::use(services);
        ProfileWorld::start();
    }
};

INSTANTIATE_TEST_SUITE_P(AllLocales, ProfileLocaleTest, testing::ValuesIn(testedLocales), localeName);

} // namespace

TEST_P(ProfileNameTest, pastedForANewPerson_isStoredListedAndThereAfterARestart) {
    ProfileWorld::start();
    paste(pane_.field("txtProfileName"), pane_.field("txtProfileName"));
    EXPECT_EQ(pane_.text("txtProfileName"), GetParam().name);
    pane_.type("txtBirthDate", u"2/4/1985"_s);
    pane_.click("optFemale");
    pane_.click("cmdCalcProfile");
    pane_.click("cmdSaveProfile");
    expectShownEverywhere(GetParam().name);
    pane_.restart();
    expectShownEverywhere(GetParam().name);
    EXPECT_EQ(pane_.status(), GetParam().name);
}

TEST_P(ProfileNameTest, pastedOverAName_renamesAndIsAskedAboutWhenItIsDeleted) {
    ProfileWorld::start();
    pane_.enter(u"Ann"_s, u"2/4/1985"_s, "optFemale");
    pane_.click("cmdSaveProfile");
    paste(pane_.list(), *pane_.list().lineEdit());
    pane_.click("cmdSaveProfile");
    expectShownEverywhere(GetParam().name);
    pane_.restart();
    expectShownEverywhere(GetParam().name);
    pane_.expectQuestion("Delete Profile",
                         u"Are you sure that you want to delete profile: "_s + GetParam().name + u"?"_s,
                         MessageAnswer::Yes);
    pane_.click("cmdDelProfile");
    pane_.expectNewState();
}

TEST_P(ProfileNameTest, window_keepsItsSize) {
    ProfileWorld::start();
    pane_.view->resize(900, 640);
    paste(pane_.field("txtProfileName"), pane_.field("txtProfileName"));
    pane_.type("txt9Ki", u"4"_s);
    pane_.click("cmdSaveProfile");
    QCoreApplication::processEvents();
    EXPECT_EQ(pane_.view->size(), QSize(900, 640));
    EXPECT_EQ(pane_.view->minimumSizeHint().boundedTo(QSize(900, 640)), pane_.view->minimumSizeHint());
}

// A person without a name.

TEST(ProfileNamelessTest, emptyName_isStoredAndEndsTheList) {
    ProfileWorld pane(TestWorld::Records::Sample);
    ProfileWorld::start();
    pane.rename(u"x"_s);
    QTest::keyClick(&pane.list(), Qt::Key_Backspace);
    pane.click("cmdSaveProfile");
    EXPECT_TRUE(pane.storedPeople().at(0).contains(R"(PROFILENAME="")"));
    EXPECT_EQ(pane.list().count(), 0);
}

// Dates.

TEST_P(ProfileLocaleTest, dateInEveryFormOfTheConversions_isTakenAndShownAsAShortDate) {
    const QDate date(1985, 2, 4);
    pane_.click("optFemale");
    for (const QString& typed : {Conversion::shortDate(date), Conversion::mediumDate(date), u"1985-02-04"_s,
                                 u"February 4, 1985"_s, u"1985-02-04T00:00:00"_s}) {
        pane_.type("txtBirthDate", typed);
        pane_.click("cmdCalcProfile");
        EXPECT_EQ(pane_.text("txtBirthDate"), Conversion::shortDate(date)) << qPrintable(typed);
        EXPECT_EQ(pane_.text("txt9Ki"), u"9"_s);
        EXPECT_EQ(pane_.label("lblAdjBirthYear"), u"Adjusted Birth Year 1985"_s);
    }
}

TEST_P(ProfileLocaleTest, savedPerson_comesBackWithTheSameDate) {
    for (const QDate date : {QDate(1905, 12, 3), QDate(1985, 2, 4), QDate(2024, 2, 29)}) {
        if (pane_.visible("cmdNewProfile")) {
            pane_.click("cmdNewProfile");
        }
        pane_.enter(u"Ann"_s, Conversion::shortDate(date), "optFemale");
        pane_.click("cmdSaveProfile");
        EXPECT_EQ(pane_.text("txtBirthDate"), Conversion::shortDate(date));
        pane_.restart();
        EXPECT_EQ(pane_.text("txtBirthDate"), Conversion::shortDate(date));
        EXPECT_EQ(Conversion::toDate(pane_.text("txtBirthDate")), date);
    }
}

TEST_P(ProfileLocaleTest, calendarsChoice_isAShortDate) {
    pane_.type("txtBirthDate", u"1985-02-04"_s);
    WindowDriver::whileModal([&] { pane_.click("cmdDate"); },
                             [](QWidget& calendar) { WindowDriver::click(calendar, "cmdOK"); });
    EXPECT_EQ(pane_.text("txtBirthDate"), Conversion::shortDate(QDate(1985, 2, 4)));
}
