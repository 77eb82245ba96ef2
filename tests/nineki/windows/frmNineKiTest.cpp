#include "nineki/windows/AdviceWorld.h"

#include <QFile>

using namespace WindowDriver;

namespace {

class frmNineKiTest : public AdviceWorld {};

} // namespace

// Moving and renovation on a date.

TEST_F(frmNineKiTest, move_dateTypedAndEnter_showsDirectionsAndCompass) {
    showMove([](QWidget& window) {
        typeDate(window, QStringLiteral("3/15/2027"));
        QTest::keyClick(&date(window), Qt::Key_Return);
        EXPECT_TRUE(window.isVisible());
        EXPECT_TRUE(report(window).startsWith(QStringLiteral("Directions to move for year 2027\n")));
        EXPECT_TRUE(report(window).contains(QStringLiteral("Beneficial Directions for the year 2027")));
        EXPECT_TRUE(report(window).contains(QStringLiteral("Problematic Directions for the year 2027")));
        EXPECT_EQ(pane(window, "vpCompass").plan().pages.size(), 1U);
    });
}

TEST_F(frmNineKiTest, renovation_dateTypedAndButton_showsAreas) {
    show(&frmNineKi::AdviseRenovation, [](QWidget& window) {
        typeDate(window, QStringLiteral("3/15/2027"));
        click(window, "cmdAdvise0");
        EXPECT_TRUE(
            report(window).startsWith(QStringLiteral("Areas to renovate/redecorate for year 2027\n")));
        EXPECT_TRUE(report(window).contains(QStringLiteral("Areas for the year 2027")));
    });
}

TEST_F(frmNineKiTest, dateBeforeTheLunarYear_hasTheNoteInTheFooterAtTenPoints) {
    expectSaveBox(world_.file(QStringLiteral("move.html")));
    showMove([](QWidget& window) {
        typeDate(window, QStringLiteral("1/15/2027"));
        click(window, "cmdAdvise0");
        EXPECT_TRUE(report(window).startsWith(QStringLiteral("Directions to move for year 2026*\n")));
        EXPECT_TRUE(report(window).endsWith(QStringLiteral(
            "* note: The estimated move date falls before the beginning of the year 2027 in the "
            "Feng Shui calendar system.  Therefore it has been adjusted to the chart of the "
            "prior year.")));
        choose(window, "mnuFile", "mnuFileSaveAs");
    });
    const QString html = QString::fromUtf8(world_.read(QStringLiteral("move.html")));
    const qsizetype note = html.indexOf(QStringLiteral("* note:"));
    ASSERT_GT(note, 0);
    EXPECT_TRUE(html.left(note).section(u'<', -1).contains(QStringLiteral("10pt")))
        << html.mid(note - 200, 210).toStdString();
}

TEST_F(frmNineKiTest, noDate_asksInTheWordsOfTheModeAndTheWindowStaysUsable) {
    const auto refuse = [this](AdviceRoutine advise, const QString& text) {
        show(advise, [&](QWidget& window) {
            typeDate(window, text);
            control(window, "cmdPrint").setFocus();
            click(window, "cmdAdvise0");
            EXPECT_EQ(window.focusWidget(), &date(window));
            EXPECT_EQ(report(window), QString());
            typeDate(window, QStringLiteral("6/1/2026"));
            click(window, "cmdAdvise0");
            EXPECT_TRUE(report(window).contains(QStringLiteral("2026")));
        });
    };
    expectDateBox("Advise on Move Directions", "You must enter a valid date in the Move Date field before "
                                               "advice on move directions can be provided.");
    refuse(&frmNineKi::AdviseMove, QString());
    expectDateBox("Advise on Renovation Areas", "You must enter a valid date in the Renovation Date field "
                                                "before advice on renovation areas can be provided.");
    refuse(&frmNineKi::AdviseRenovation, QStringLiteral("soon"));
    expectDateBox("Advise on Nine Ki Chart", "You must enter a valid date in the Chart Date field before the "
                                             "Nine Ki Chart can be provided.");
    refuse(&frmNineKi::AdviseYearlyChart, QStringLiteral("2/30/2026x"));
}

TEST_F(frmNineKiTest, dateChanged_keepsTheDocumentsUntilTheNextAdvice) {
    showMove([](QWidget& window) {
        typeDate(window, QStringLiteral("3/15/2027"));
        click(window, "cmdAdvise0");
        const QString before = report(window);
        typeDate(window, QStringLiteral("3/15/2028"));
        EXPECT_EQ(report(window), before);
        click(window, "cmdAdvise0");
        EXPECT_TRUE(report(window).startsWith(QStringLiteral("Directions to move for year 2028")));
    });
}

TEST_F(frmNineKiTest, cmdDate_picksADateFromTheCalendar) {
    showMove([](QWidget& window) {
        typeDate(window, QStringLiteral("2/4/1965"));
        whileModal([&] { click(window, "cmdDate"); },
                   [](QWidget& calendar) {
                       EXPECT_EQ(control<QLabel>(calendar, "lblYear").text(), QStringLiteral("1965"));
                       click(calendar, "lblDay15"); // February 1965 begins on a Monday
                       click(calendar, "cmdOK");
                   });
        EXPECT_EQ(date(window).text(), QStringLiteral("2/15/1965"));
        typeDate(window, QStringLiteral("nonsense"));
        whileModal([&] { click(window, "cmdDate"); },
                   [](QWidget& calendar) { click(calendar, "cmdCancel"); });
        EXPECT_EQ(date(window).text(), QStringLiteral("2/14/2026")); // today
    });
}

// The chart of a year.

TEST_F(frmNineKiTest, chart_dateTypedAndEnter_showsChartAndHighlights) {
    showChart([](QWidget& window) {
        typeDate(window, QStringLiteral("3/15/2027"));
        QTest::keyClick(&date(window), Qt::Key_Enter);
        EXPECT_TRUE(report(window).startsWith(QStringLiteral("Nine Ki Chart for year 2027\n")));
        EXPECT_TRUE(report(window).contains(QStringLiteral("Chart highlights for the year 2027")));
        EXPECT_TRUE(compass(window).contains(QStringLiteral("2027")));
    });
}

TEST_F(frmNineKiTest, chart_hasOnePageWithoutDirections) {
    showChart([](QWidget& window) {
        EXPECT_EQ(tabs(window).count(), 1);
        EXPECT_FALSE(directions(window).isVisibleTo(control(window, "vsTime").parentWidget()));
        EXPECT_TRUE(directions(window).isHidden());
        EXPECT_TRUE(control(window, "lblDirection").isHidden());
        EXPECT_TRUE(control(window, "lblDateInfo").isHidden());
    });
}

TEST_F(frmNineKiTest, chart_bothAdviseButtonsLeadToTheChart) {
    showChart([](QWidget& window) {
        typeDate(window, QStringLiteral("3/15/2027"));
        control<QPushButton>(window, "cmdAdvise1").click(); // it stands on the page that is not shown
        EXPECT_TRUE(report(window).startsWith(QStringLiteral("Nine Ki Chart for year 2027\n")));
        typeDate(window, QStringLiteral("3/15/2028"));
        click(window, "cmdAdvise0");
        EXPECT_TRUE(report(window).startsWith(QStringLiteral("Nine Ki Chart for year 2028\n")));
    });
}

TEST_F(frmNineKiTest, unreadableDirectionTable_isToldAndTheWindowStaysUsable) {
    const QByteArray table = world_.read(QStringLiteral("Directions.xml"));
    showChart([&](QWidget& window) {
        typeDate(window, QStringLiteral("3/15/2027"));
        world_.write(QStringLiteral("Directions.xml"), recordFile({}));
        for (int figure = 0; figure < 2; ++figure) {
            world_.prompts.expectMessage(
                QStringLiteral("Nine Ki Chart"),
                QStringLiteral("Error Reading Directions.  Could not calculate Nine Ki Chart."),
                MessageIcon::Exclamation);
        }
        click(window, "cmdAdvise0");
        EXPECT_TRUE(world_.prompts.isSatisfied());
        EXPECT_TRUE(report(window).startsWith(QStringLiteral("Nine Ki Chart for year 2027")));
        EXPECT_FALSE(report(window).contains(QStringLiteral("highlights")));
        world_.write(QStringLiteral("Directions.xml"), table);
        click(window, "cmdAdvise0");
        EXPECT_TRUE(report(window).contains(QStringLiteral("Chart highlights for the year 2027")));
    });
}

// The years for a direction.

TEST_F(frmNineKiTest, cboDirection_holdsTheSixteenDirectionsAndOpensAtNorth) {
    showMove([](QWidget& window) {
        QStringList entries;
        for (int i = 0; i < directions(window).count(); ++i) {
            entries << directions(window).itemText(i);
        }
        EXPECT_EQ(entries.join(u' '),
                  QStringLiteral("North North/North-East North-East East/North-East East East/South-East "
                                 "South-East South/South-East South South/South-West South-West "
                                 "West/South-West West West/North-West North-West North/North-West"));
        EXPECT_EQ(directions(window).currentIndex(), 0);
    });
}

TEST_F(frmNineKiTest, years_ofEveryDirection_areToldOnEnter) {
    for (const AdviceRoutine advise : {&frmNineKi::AdviseMove, &frmNineKi::AdviseRenovation}) {
        show(advise, [&](QWidget& window) {
            const QString start = advise == &frmNineKi::AdviseMove
                                      ? QStringLiteral("Years to move in the direction ")
                                      : QStringLiteral("Years to renovate/redecorate in the area ");
            turnTo(window, 1);
            for (int i = 0; i < 16; ++i) {
                const QString name = directions(window).itemText(i);
                pickDirection(window, name);
                QTest::keyClick(&directions(window), Qt::Key_Return);
                EXPECT_TRUE(report(window).startsWith(start + name)) << qPrintable(name);
                EXPECT_FALSE(compass(window).isEmpty());
            }
        });
    }
    EXPECT_EQ(world_.prompts.pointer(), PointerShape::Default);
    EXPECT_TRUE(world_.prompts.pointerHistory().contains(PointerShape::Hourglass));
}

TEST_F(frmNineKiTest, years_withoutASelection_asksAndPutsThePointerBack) {
    showMove([this](QWidget& window) {
        turnTo(window, 1);
        directions(window).setCurrentIndex(-1);
        expectDateBox("Advice on Move Years",
                      "You must select a direction before advice on move years can be provided.");
        world_.prompts.whileShown = [&] { EXPECT_EQ(window.focusWidget(), &directions(window)); };
        click(window, "cmdAdvise1");
        EXPECT_EQ(world_.prompts.pointer(), PointerShape::Default);
        pickDirection(window, QStringLiteral("East"));
        click(window, "cmdAdvise1");
        EXPECT_TRUE(report(window).startsWith(QStringLiteral("Years to move in the direction East")));
    });
}

TEST_F(frmNineKiTest, directionChanged_blanksBothSurfacesAtOnce) {
    showMove([](QWidget& window) {
        turnTo(window, 1);
        click(window, "cmdAdvise1");
        EXPECT_FALSE(report(window).isEmpty());
        EXPECT_FALSE(compass(window).isEmpty());
        directions(window).setFocus();
        QTest::keyClick(&directions(window), Qt::Key_Down);
        EXPECT_EQ(report(window), QString());
        EXPECT_EQ(compass(window), QString());
        EXPECT_EQ(pane(window, "vpReport").plan().pages.size(), 1U);
    });
}

// The person.

TEST_F(frmNineKiTest, personNeverCalculated_leavesTheWindowUsable) {
    Global::CurrentProfile = std::make_unique<cProfile>();
    Global::CurrentProfile->PROFILENAME = QStringLiteral("Dora & Sons");
    showMove([this](QWidget& window) {
        EXPECT_EQ(control<TitleBand>(window, "vsTop").ground(), ColorContrast::paperGrey(window.palette()));
        EXPECT_EQ(control<ElidedLabel>(window, "lblProfile").shownText(), QStringLiteral("Dora & Sons"));
        for (int figure = 0; figure < 2; ++figure) {
            world_.prompts.expectError(QStringLiteral("cNineKi.Calc Move Compass"), 9,
                                       QStringLiteral("Subscript out of range"));
        }
        typeDate(window, QStringLiteral("3/15/2027"));
        click(window, "cmdAdvise0");
        EXPECT_TRUE(report(window).startsWith(QStringLiteral("Directions to move for year 2027")));
        EXPECT_TRUE(world_.prompts.isSatisfied());
        Global::CurrentProfile->GetProfile(1);
        click(window, "cmdAdvise0");
        EXPECT_TRUE(report(window).contains(QStringLiteral("Problematic Directions for the year 2027")));
    });
}

TEST_F(frmNineKiTest, noPerson_isReportedAndNoWindowIsShown) {
    Global::CurrentProfile.reset();
    for (const auto& [advise, name] :
         {std::pair{&frmNineKi::AdviseMove, "frmNineKi.AdviseMove"},
          std::pair{&frmNineKi::AdviseRenovation, "frmNineKi.AdviseRenovation"},
          std::pair{&frmNineKi::AdviseYearlyChart, "frmNineKi.AdviseYearlyChart"}}) {
        world_.prompts.expectError(QString::fromLatin1(name), 91,
                                   QStringLiteral("Object variable or With block variable not set"));
        frmNineKi window;
        (window.*advise)();
        EXPECT_FALSE(window.isVisible());
    }
}
