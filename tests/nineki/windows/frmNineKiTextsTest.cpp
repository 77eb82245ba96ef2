#include "nineki/windows/AdviceWorld.h"
#include "support/HostileNames.h"

using namespace WindowDriver;

namespace {

/// What a mode says.
struct Expected {
    const char* name;
    AdviceRoutine advise;
    const char* title;
    const char* moveDate;
    const char* direction;
    const char* info;
    const char* dateInfo;
    QStringList tabs;
};

class frmNineKiTextsTest : public AdviceWorld, public testing::WithParamInterface<Expected> {
protected:
    static QString text(QWidget& window, const char* label) { return control<QLabel>(window, label).text(); }
};

const Expected modes[] = {
    {"move",
     &frmNineKi::AdviseMove,
     "Moving Advice",
     "Enter Approximate Moving Date:",
     "Select the direction of the move:",
     "I would like to know which directions would be beneficial to move towards on the following date:",
     "I would like to know in which years a move in this direction would be beneficial.",
     {QStringLiteral("Advise me on the best directions for a move"),
      QStringLiteral("Advise me on the best years for a move")}},
    {"renovation",
     &frmNineKi::AdviseRenovation,
     "Renovation/Redecoration Advice",
     "Enter Approximate Renovation Date:",
     "Select the area of the renovation:",
     "I would like to know which areas would be beneficial to renovate on the following date:",
     "I would like to know in which years renovating in this area would be beneficial.",
     {QStringLiteral("Advise me on the best areas for renovation"),
      QStringLiteral("Advise me on the best years to renovate")}},
    {"chart",
     &frmNineKi::AdviseYearlyChart,
     "Nine Ki Year Charts",
     "Enter Nine Ki Chart Date:",
     "",
     "I would like to know the Nine Ki Chart active on the following date:",
     "",
     {QStringLiteral("Advise me on the chart for the year")}},
};

} // namespace

TEST_P(frmNineKiTextsTest, everyText_isThatOfTheMode) {
    const Expected& mode = GetParam();
    show(mode.advise, [&](QWidget& window) {
        EXPECT_EQ(window.objectName(), QStringLiteral("frmNineKi"));
        EXPECT_EQ(window.windowTitle(), QString::fromLatin1(mode.title));
        EXPECT_EQ(control<TitleBand>(window, "vsTop").caption(), QString::fromLatin1(mode.title));
        EXPECT_EQ(control<ElidedLabel>(window, "lblProfile").text(), QStringLiteral("Ann Example"));
        EXPECT_EQ(text(window, "lblMovedate"), QString::fromLatin1(mode.moveDate));
        EXPECT_EQ(text(window, "lblInfo"), QString::fromLatin1(mode.info));
        EXPECT_EQ(text(window, "lblDirection"), QString::fromLatin1(mode.direction));
        EXPECT_EQ(text(window, "lblDateInfo"), QString::fromLatin1(mode.dateInfo));
        QStringList captions;
        for (int i = 0; i < tabs(window).count(); ++i) {
            captions << tabs(window).tabText(i);
        }
        EXPECT_EQ(captions, mode.tabs);
        EXPECT_EQ(tabs(window).currentIndex(), 0);
        EXPECT_EQ(control<QPushButton>(window, "cmdAdvise0").text(), QStringLiteral("&Advise"));
        EXPECT_EQ(control<QPushButton>(window, "cmdAdvise1").text(), QStringLiteral("&Advise"));
    });
}

TEST_P(frmNineKiTextsTest, band_hasThePersonsOwnLightColour) {
    show(GetParam().advise, [](QWidget& window) {
        const auto& band = control<TitleBand>(window, "vsTop");
        EXPECT_EQ(band.ground(), ColorContrast::fromStored(Global::CurrentProfile->oColor.LIGHTCOLORVALUE));
        EXPECT_GE(ColorContrast::ratio(band.textColor(), band.ground()), 4.5);
    });
}

TEST_P(frmNineKiTextsTest, focus_standsInTheDate) {
    show(GetParam().advise, [](QWidget& window) { EXPECT_EQ(window.focusWidget(), &date(window)); });
}

TEST_P(frmNineKiTextsTest, tab_goesFromTopLeftToBottomRightThroughNamedControls) {
    show(GetParam().advise, [](QWidget& window) {
        expectReadingOrder(window);
        expectNamedControls(window);
        if (tabs(window).count() > 1) {
            turnTo(window, 1);
            expectReadingOrder(window);
            expectNamedControls(window);
        }
    });
}

TEST_P(frmNineKiTextsTest, escapeAndTheCloseControls_close) {
    show(GetParam().advise, [](QWidget& window) {
        QTest::keyClick(&date(window), Qt::Key_Escape);
        EXPECT_FALSE(window.isVisible());
    });
    show(GetParam().advise, [](QWidget& window) {
        click(window, "cmdClose");
        EXPECT_FALSE(window.isVisible());
    });
    show(GetParam().advise, [](QWidget& window) {
        choose(window, "mnuFile", "mnuFileClose");
        EXPECT_FALSE(window.isVisible());
    });
}

INSTANTIATE_TEST_SUITE_P(modes, frmNineKiTextsTest, testing::ValuesIn(modes),
                         [](const auto& tested) { return std::string(tested.param.name); });

// Names.

class frmNineKiNamesTest : public AdviceWorld, public testing::WithParamInterface<HostileName> {};

TEST_P(frmNineKiNamesTest, nameOfAnyLetters_isShownAndLeavesTheWindowItsSize) {
    QSize usual;
    showMove([&](QWidget& window) { usual = window.size(); });
    Global::CurrentProfile->PROFILENAME = GetParam().name;
    showMove([&](QWidget& window) {
        const auto& label = control<ElidedLabel>(window, "lblProfile");
        EXPECT_EQ(label.text(), GetParam().name);
        EXPECT_FALSE(label.shownText().isEmpty());
        EXPECT_EQ(window.size(), usual);
        EXPECT_TRUE(window.rect().contains(label.geometry()));
        typeDate(window, QStringLiteral("3/15/2027"));
        click(window, "cmdAdvise0");
        EXPECT_TRUE(report(window).startsWith(QStringLiteral("Directions to move for year 2027")));
    });
}

INSTANTIATE_TEST_SUITE_P(Hostile, frmNineKiNamesTest, testing::ValuesIn(hostileNames),
                         [](const auto& tested) { return tested.param.kind; });
