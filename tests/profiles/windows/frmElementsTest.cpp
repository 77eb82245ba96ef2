#include "profiles/windows/BrowserWorld.h"

using namespace WindowDriver;

namespace {

class frmElementsTest : public BrowserWorld {
protected:
    static cElement element(qint32 id) {
        cElement found;
        EXPECT_TRUE(found.GetElement(id));
        return found;
    }
};

constexpr qint32 metal = 4;

} // namespace

TEST_F(frmElementsTest, texts_areThoseOfElements) {
    showElements([](QWidget& window) {
        EXPECT_EQ(window.objectName(), QStringLiteral("frmElements"));
        EXPECT_EQ(window.windowTitle(), QStringLiteral("Elements"));
        EXPECT_EQ(control<QLabel>(window, "lblElement").text(), QStringLiteral("Element:"));
        EXPECT_EQ(
            control<QLabel>(window, "lblInfo").text(),
            QStringLiteral("The Eight Directions of the compass, plus the Center, are associated with one of "
                           "the five Elements.  Each Element has a characteristic energy which can be "
                           "maintained by decorating in the Element's colors, patterns and materials.  Or, "
                           "its energy can be calmed or enhanced by decorating with the colors, patterns and "
                           "materials associated with another Element."));
    });
}

TEST_F(frmElementsTest, list_holdsTheFiveElements) {
    showElements([](QWidget& window) {
        const auto& combo = control<QComboBox>(window, "cboElements");
        QStringList entries;
        for (int i = 0; i < combo.count(); ++i) {
            entries << combo.itemText(i) + u'=' + combo.itemData(i).toString();
        }
        EXPECT_EQ(entries,
                  (QStringList{QStringLiteral("Tree=1"), QStringLiteral("Fire=2"), QStringLiteral("Soil=3"),
                               QStringLiteral("Metal=4"), QStringLiteral("Water=5")}));
    });
}

TEST_F(frmElementsTest, open_showsTheElementOfTheCurrentPerson) {
    showElements([](QWidget& window) {
        const cElement shown = element(metal);
        EXPECT_EQ(title(window), QStringLiteral("Metal"));
        EXPECT_EQ(control<TitleBand>(window, "vsTop").ground(), stored(shown.oColor.LIGHTCOLORVALUE));
        EXPECT_TRUE(words(report(window)).startsWith(QStringLiteral("Metal\nCharacter")));
        EXPECT_TRUE(words(compass(window)).contains(QStringLiteral("NW")));
    });
}

TEST_F(frmElementsTest, eachElementChosen_showsItsReport) {
    showElements([](QWidget& window) {
        for (const Qt::Key letter : {Qt::Key_T, Qt::Key_F, Qt::Key_S, Qt::Key_M, Qt::Key_W}) {
            pick(window, "cboElements", letter);
            const QString name = control<QComboBox>(window, "cboElements").currentText();
            EXPECT_EQ(title(window), name);
            EXPECT_TRUE(words(report(window)).startsWith(name + QStringLiteral("\nCharacter")));
        }
    });
}

TEST_F(frmElementsTest, onePageReport_keepsBothPagingButtonsDisabled) {
    showElements([](QWidget& window) {
        EXPECT_EQ(pageLabel(window), QStringLiteral("Page 1 of 1"));
        EXPECT_FALSE(control(window, "cmdNext").isEnabled());
        EXPECT_FALSE(control(window, "cmdPrev").isEnabled());
    });
}

TEST_F(frmElementsTest, longReport_hasItsBandOnTheFirstPageOnly) {
    const QByteArray file = world_.read(QStringLiteral("Elements.xml"));
    world_.write(QStringLiteral("Elements.xml"),
                 QByteArray(file).replace(R"(ELEMENTNAME="Metal" DESCRIPTION=")",
                                          R"(ELEMENTNAME="Metal" DESCRIPTION=")" +
                                              QByteArray("Heavy and bright. ").repeated(300)));
    showElements([](QWidget& window) {
        const cColor color = element(metal).oColor;
        EXPECT_EQ(bandOf(window), stored(color.BRIGHTCOLORVALUE));
        EXPECT_EQ(groundOf(window), stored(color.LIGHTCOLORVALUE));
        click(window, "cmdNext");
        EXPECT_EQ(pageLabel(window), QStringLiteral("Page 2 of 2"));
        EXPECT_EQ(bandOf(window), stored(color.LIGHTCOLORVALUE));
        EXPECT_EQ(groundOf(window), stored(color.LIGHTCOLORVALUE));
    });
}

TEST_F(frmElementsTest, band_ofTheBlackColour_isLightOnWhite) {
    showElements([](QWidget& window) {
        pick(window, "cboElements", Qt::Key_W);
        EXPECT_EQ(bandOf(window), stored(element(5).oColor.LIGHTCOLORVALUE));
        EXPECT_EQ(groundOf(window), QColor(Qt::white));
    });
}

TEST_F(frmElementsTest, print_leavesTheBandOutAndShowsItAgain) {
    showElements([this](QWidget& window) {
        click(window, "cmdPrint");
        ASSERT_EQ(printer_.pages.size(), 1U);
        EXPECT_EQ(printer_.pages.at(0).pixelColor(45, 35), QColor(Qt::white));
        EXPECT_EQ(bandOf(window), stored(element(metal).oColor.BRIGHTCOLORVALUE));
    });
}

TEST_F(frmElementsTest, mnuFileSaveAs_writesTheReportWithoutBand) {
    expectSaveBox(world_.file(QStringLiteral("Metal.html")));
    showElements([](QWidget& window) { choose(window, "mnuFile", "mnuFileSaveAs"); });
    const QString html = QString::fromUtf8(world_.read(QStringLiteral("Metal.html")));
    EXPECT_TRUE(html.contains(QStringLiteral("Things to Avoid")));
    EXPECT_FALSE(html.contains(stored(element(metal).oColor.BRIGHTCOLORVALUE).name()));
}

TEST_F(frmElementsTest, failures_haveTheWindowsOwnLabels) {
    expectSaveBox(world_.file(QStringLiteral("missing folder/report.html")));
    world_.prompts.expectError(QStringLiteral("frmElements.mnuFileSaveAs_Click"), 76);
    showElements([](QWidget& window) { choose(window, "mnuFile", "mnuFileSaveAs"); });

    Services services = Global::services();
    services.printer = nullptr;
    Global::use(services);
    world_.prompts.expectError(QStringLiteral("frmElements.mnuFilePrint_Click"), 91,
                               QStringLiteral("Object variable or With block variable not set"));
    showElements([](QWidget& window) { choose(window, "mnuFile", "mnuFilePrint"); });

    world_.write(QStringLiteral("Elements.xml"),
                 world_.read(QStringLiteral("Elements.xml"))
                     .replace(R"(<z:row ELEMENTID="5")", R"(<z:row ELEMENTID="x")"));
    world_.prompts.expectError(QStringLiteral("frmElements.Fill Elements"), 13,
                               QStringLiteral("Type mismatch"));
    showElements([](QWidget& window) { EXPECT_EQ(title(window), QStringLiteral("Metal")); });
}

TEST_F(frmElementsTest, personNeverCalculated_opensWithoutASelectionAndTheListWorks) {
    Global::CurrentProfile = std::make_unique<cProfile>();
    showElements([](QWidget& window) {
        EXPECT_EQ(control<QComboBox>(window, "cboElements").currentIndex(), -1);
        EXPECT_EQ(control<TitleBand>(window, "vsTop").ground(), ColorContrast::paperGrey(window.palette()));
        pick(window, "cboElements", Qt::Key_S);
        EXPECT_EQ(title(window), QStringLiteral("Soil"));
    });
}

TEST_F(frmElementsTest, withoutAPerson_reportsOnceAndWaitsForAChoice) {
    Global::CurrentProfile.reset();
    world_.prompts.expectError(QStringLiteral("frmElements.Form_Load"), 91,
                               QStringLiteral("Object variable or With block variable not set"));
    showElements([&](QWidget& window) {
        EXPECT_TRUE(world_.prompts.isSatisfied());
        EXPECT_EQ(control<QComboBox>(window, "cboElements").count(), 5);
        EXPECT_EQ(control<QComboBox>(window, "cboElements").currentIndex(), -1);
        pick(window, "cboElements", Qt::Key_M);
        EXPECT_EQ(title(window), QStringLiteral("Metal"));
    });
}
