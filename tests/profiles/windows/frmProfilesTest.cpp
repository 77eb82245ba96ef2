#include "profiles/windows/BrowserWorld.h"

using namespace WindowDriver;

namespace {

constexpr qint32 red = 7;
constexpr qint32 black = 2;

class frmProfilesTest : public BrowserWorld {
protected:
    static cColor color(qint32 id) {
        cColor found;
        EXPECT_TRUE(found.GetColor(id));
        return found;
    }
};

} // namespace

TEST_F(frmProfilesTest, texts_areThoseOfPeople) {
    showProfiles([](QWidget& window) {
        EXPECT_EQ(window.objectName(), QStringLiteral("frmProfiles"));
        EXPECT_EQ(window.windowTitle(), QStringLiteral("Profiles"));
        EXPECT_EQ(control<QLabel>(window, "lblProfile").text(), QStringLiteral("Profile:"));
        EXPECT_EQ(
            control<QLabel>(window, "lblInfo").text(),
            QStringLiteral("The KUA/Nine Ki Number calculated from a person's date of birth determines their "
                           "primary Compass Direction.  The Eight Directions of the compass, plus the "
                           "Center, are associated with one of the five Elements.  A person's Compass "
                           "Direction and Element can give them insight into how to arrange and decorate "
                           "their home to best harmonize with their energy."));
    });
}

TEST_F(frmProfilesTest, list_holdsEveryPersonInTheOrderOfTheFile) {
    showProfiles([](QWidget& window) {
        const auto& combo = control<QComboBox>(window, "cboProfiles");
        QStringList entries;
        for (int i = 0; i < combo.count(); ++i) {
            entries << combo.itemText(i) + u'=' + combo.itemData(i).toString();
        }
        EXPECT_EQ(entries, (QStringList{QStringLiteral("Ann Example=1"), QStringLiteral("Ben Example=2"),
                                        QStringLiteral("Cleo & Co=7")}));
    });
}

TEST_F(frmProfilesTest, list_personWithoutAName_isListedAsWellAsThoseAfter) {
    world_.write(QStringLiteral("Profiles.xml"),
                 world_.read(QStringLiteral("Profiles.xml")).replace("Ann Example", ""));
    showProfiles([](QWidget& window) { EXPECT_EQ(control<QComboBox>(window, "cboProfiles").count(), 3); });
}

TEST_F(frmProfilesTest, open_showsTheCurrentPerson) {
    showProfiles([](QWidget& window) {
        EXPECT_EQ(control<QComboBox>(window, "cboProfiles").currentText(), QStringLiteral("Ben Example"));
        EXPECT_EQ(title(window), QStringLiteral("Ben Example"));
        EXPECT_EQ(control<TitleBand>(window, "vsTop").ground(), stored(color(red).LIGHTCOLORVALUE));
        EXPECT_TRUE(
            words(report(window)).startsWith(QStringLiteral("Ben Example\nProfile for a West person")));
        EXPECT_TRUE(words(compass(window)).contains(QStringLiteral("SW")));
        EXPECT_TRUE(control(window, "cboProfiles").hasFocus() ||
                    window.focusWidget() == &control(window, "cboProfiles"));
    });
}

TEST_F(frmProfilesTest, anotherPersonChosen_showsThatOneFromTheFirstPage) {
    showProfiles([](QWidget& window) {
        click(window, "cmdNext");
        click(window, "cmdPlus");
        pick(window, "cboProfiles", Qt::Key_A);
        EXPECT_EQ(title(window), QStringLiteral("Ann Example"));
        EXPECT_TRUE(words(report(window)).startsWith(QStringLiteral("Ann Example\nProfile for a South")));
        EXPECT_EQ(pageLabel(window), QStringLiteral("Page 1 of 3"));
        EXPECT_TRUE(control(window, "cmdNext").isEnabled());
        EXPECT_FALSE(control(window, "cmdPrev").isEnabled());
    });
    EXPECT_EQ(Global::CurrentProfile->PROFILEID, 2); // the browser has a person of its own
}

TEST_F(frmProfilesTest, nameWithAnAmpersand_hasItDoubledInTheCaptionOnly) {
    showProfiles([](QWidget& window) {
        pick(window, "cboProfiles", Qt::Key_C);
        EXPECT_EQ(title(window), QStringLiteral("Cleo && Co"));
        EXPECT_TRUE(words(report(window)).startsWith(QStringLiteral("Cleo & Co")));
    });
}

TEST_F(frmProfilesTest, panes_openAtTheirZooms) {
    showProfiles([](QWidget& window) {
        const auto percent = [](const PreviewWidget& pane) {
            return pane.plan().scale * 1440 / pane.logicalDpiX() * 100;
        };
        EXPECT_NEAR(percent(compass(window)), 38, 0.5);
        EXPECT_NEAR(percent(report(window)), 78, 0.5);
        click(window, "cmdPlus");
        EXPECT_NEAR(percent(report(window)), 88, 0.5);
        click(window, "cmdPlus");
        click(window, "cmdPlus");
        EXPECT_NEAR(percent(report(window)), 100, 0.5);
        for (int i = 0; i < 10; ++i) {
            click(window, "cmdMinus");
        }
        EXPECT_NEAR(percent(report(window)), 10, 0.5);
        EXPECT_NEAR(percent(compass(window)), 38, 0.5);
    });
}

TEST_F(frmProfilesTest, band_isOnEveryPageOfTheScreen) {
    showProfiles([](QWidget& window) {
        for (int page = 1; page <= 3; ++page) {
            EXPECT_EQ(pageLabel(window), QStringLiteral("Page %1 of 3").arg(page));
            EXPECT_EQ(bandOf(window), stored(color(red).BRIGHTCOLORVALUE)) << page;
            EXPECT_EQ(groundOf(window), stored(color(red).LIGHTCOLORVALUE)) << page;
            click(window, "cmdNext");
        }
    });
}

TEST_F(frmProfilesTest, band_ofTheBlackColour_isLightOnWhiteOnEveryPage) {
    showProfiles([](QWidget& window) {
        pick(window, "cboProfiles", Qt::Key_C);
        for (int page = 1; page <= 3; ++page) {
            EXPECT_EQ(bandOf(window), stored(color(black).LIGHTCOLORVALUE)) << page;
            EXPECT_EQ(groundOf(window), QColor(Qt::white)) << page;
            click(window, "cmdNext");
        }
    });
}

TEST_F(frmProfilesTest, cmdPrint_printsWithoutBandAndShowsTheColouredVersionAgainAtPageOne) {
    showProfiles([this](QWidget& window) {
        click(window, "cmdNext");
        printer_.whileChoosing = [&] { EXPECT_NE(bandOf(window), stored(color(red).BRIGHTCOLORVALUE)); };
        click(window, "cmdPrint");
        ASSERT_EQ(printer_.pages.size(), 3U);
        for (const QImage& page : printer_.pages) {
            EXPECT_EQ(page.pixelColor(45, 35), QColor(Qt::white));
            EXPECT_EQ(page.pixelColor(15, 15), QColor(Qt::white));
        }
        EXPECT_EQ(pageLabel(window), QStringLiteral("Page 1 of 3"));
        EXPECT_TRUE(control(window, "cmdNext").isEnabled());
        EXPECT_FALSE(control(window, "cmdPrev").isEnabled());
        EXPECT_EQ(bandOf(window), stored(color(red).BRIGHTCOLORVALUE));
        click(window, "cmdNext");
        EXPECT_EQ(bandOf(window), stored(color(red).BRIGHTCOLORVALUE));
    });
}

TEST_F(frmProfilesTest, mnuFilePrint_refused_printsNothingAndShowsTheColouredVersionAgain) {
    printer_.accept = false;
    showProfiles([this](QWidget& window) {
        click(window, "cmdNext");
        choose(window, "mnuFile", "mnuFilePrint");
        EXPECT_TRUE(printer_.pages.empty());
        EXPECT_EQ(pageLabel(window), QStringLiteral("Page 1 of 3"));
        EXPECT_EQ(bandOf(window), stored(color(red).BRIGHTCOLORVALUE));
    });
}

TEST_F(frmProfilesTest, mnuFileSaveAs_writesAllPagesWithoutBandAndShowsPageOneAgain) {
    expectSaveBox(world_.file(QStringLiteral("Ben.html")));
    showProfiles([](QWidget& window) {
        click(window, "cmdNext");
        choose(window, "mnuFile", "mnuFileSaveAs");
        EXPECT_EQ(pageLabel(window), QStringLiteral("Page 1 of 3"));
        EXPECT_FALSE(control(window, "cmdPrev").isEnabled());
        EXPECT_EQ(bandOf(window), stored(color(red).BRIGHTCOLORVALUE));
    });
    const QString html = QString::fromUtf8(world_.read(QStringLiteral("Ben.html")));
    EXPECT_TRUE(html.contains(QStringLiteral("Profile for a West person")));
    EXPECT_TRUE(html.contains(QStringLiteral("Total Loss"))); // the chart on the last page
    EXPECT_FALSE(html.contains(stored(color(red).BRIGHTCOLORVALUE).name()));
}

TEST_F(frmProfilesTest, mnuFileSaveAs_cancelled_writesNoFile) {
    const QStringList before = QDir(world_.folder()).entryList(QDir::Files);
    expectSaveBox(QString());
    showProfiles([](QWidget& window) {
        choose(window, "mnuFile", "mnuFileSaveAs");
        EXPECT_EQ(bandOf(window), stored(color(red).BRIGHTCOLORVALUE));
    });
    EXPECT_EQ(QDir(world_.folder()).entryList(QDir::Files), before);
}

TEST_F(frmProfilesTest, mnuFileSaveAs_unwritableFile_isReportedOnceUnderTheRoomEditorsLabel) {
    expectSaveBox(world_.file(QStringLiteral("missing folder/report.html")));
    world_.prompts.expectError(QStringLiteral("frmRoom.mnuFileSaveAs_Click"), 76);
    showProfiles([](QWidget& window) {
        choose(window, "mnuFile", "mnuFileSaveAs");
        EXPECT_EQ(pageLabel(window), QStringLiteral("Page 1 of 3"));
        EXPECT_EQ(bandOf(window), stored(color(red).BRIGHTCOLORVALUE));
        pick(window, "cboProfiles", Qt::Key_A);
        EXPECT_EQ(title(window), QStringLiteral("Ann Example"));
    });
}

TEST_F(frmProfilesTest, emptyList_doesNothingAndOffersNoPrint) {
    world_.write(QStringLiteral("Profiles.xml"), recordFile({}));
    showProfiles([](QWidget& window) {
        EXPECT_EQ(control<QComboBox>(window, "cboProfiles").count(), 0);
        pick(window, "cboProfiles", Qt::Key_Down);
        EXPECT_TRUE(report(window).plan().pages.empty());
        EXPECT_TRUE(compass(window).plan().pages.empty());
        EXPECT_EQ(title(window), QString());
        EXPECT_EQ(pageLabel(window), QStringLiteral("Page 1 of 1"));
        EXPECT_FALSE(control(window, "cmdPrint").isEnabled());
        EXPECT_FALSE(control(window, "cmdNext").isEnabled());
    });
}

TEST_F(frmProfilesTest, currentPersonIsNotStoredYet_opensWithoutASelectionAndTheListWorks) {
    Global::CurrentProfile = std::make_unique<cProfile>();
    showProfiles([](QWidget& window) {
        EXPECT_EQ(control<QComboBox>(window, "cboProfiles").currentIndex(), -1);
        EXPECT_TRUE(report(window).plan().pages.empty());
        EXPECT_FALSE(control<QAction>(window, "mnuFileSaveAs").isEnabled());
        pick(window, "cboProfiles", Qt::Key_A);
        EXPECT_EQ(title(window), QStringLiteral("Ann Example"));
        EXPECT_TRUE(control(window, "cmdPrint").isEnabled());
        EXPECT_TRUE(control<QAction>(window, "mnuFileSaveAs").isEnabled());
    });
}

TEST_F(frmProfilesTest, noCurrentPerson_isReportedUnderFormLoadAndTheListWorks) {
    Global::CurrentProfile.reset();
    world_.prompts.expectError(QStringLiteral("frmProfiles.Form_Load"), 91,
                               QStringLiteral("Object variable or With block variable not set"));
    showProfiles([](QWidget& window) {
        pick(window, "cboProfiles", Qt::Key_B);
        EXPECT_EQ(title(window), QStringLiteral("Ben Example"));
    });
}

TEST_F(frmProfilesTest, personWhoseKeyIsNoNumber_isReportedUnderFillProfiles) {
    world_.write(QStringLiteral("Profiles.xml"),
                 world_.read(QStringLiteral("Profiles.xml")).replace(R"(PROFILEID="7")", R"(PROFILEID="x")"));
    world_.prompts.expectError(QStringLiteral("frmProfiles.Fill Profiles"), 13,
                               QStringLiteral("Type mismatch"));
    showProfiles([](QWidget& window) { EXPECT_EQ(title(window), QStringLiteral("Ben Example")); });
}

TEST_F(frmProfilesTest, personNeverCalculated_isShownWithWhatThereIs) {
    world_.write(
        QStringLiteral("Profiles.xml"),
        recordFile({R"(<z:row PROFILEID="3" PROFILENAME="Dora" BIRTHDATE="" ADJBIRTHYEAR="0" GENDER="F")"
                    R"( KUANUMBER="0" />)"}));
    Global::CurrentProfile = std::make_unique<cProfile>();
    Global::CurrentProfile->GetProfile(3);
    showProfiles([](QWidget& window) {
        EXPECT_EQ(title(window), QStringLiteral("Dora"));
        EXPECT_TRUE(words(report(window)).startsWith(QStringLiteral("Dora\nProfile for a  person")));
        EXPECT_TRUE(control(window, "cmdClose").isEnabled());
    });
}

TEST_F(frmProfilesTest, print_thatFails_isReportedUnderItsLabelAndTheScreenComesBack) {
    Services services = Global::services();
    services.printer = nullptr;
    Global::use(services);
    world_.prompts.expectError(QStringLiteral("frmProfiles.mnuFilePrint_Click"), 91,
                               QStringLiteral("Object variable or With block variable not set"));
    showProfiles([](QWidget& window) {
        click(window, "cmdPrint");
        EXPECT_EQ(bandOf(window), stored(color(red).BRIGHTCOLORVALUE));
    });
}
