#include "CalendarWindowFixture.h"

using namespace Qt::StringLiterals;

namespace {

class frmCalendarTest : public CalendarWindowFixture {};

} // namespace

// What it looks like.

TEST_F(frmCalendarTest, window_hasItsCaptionsAndHeads) {
    pick(FOURTH, [](QWidget& window) {
        EXPECT_EQ(window.windowTitle(), u"Calendar"_s);
        EXPECT_EQ(control<QPushButton>(window, "cmdOK").text(), u"&OK"_s);
        EXPECT_EQ(control<QPushButton>(window, "cmdCancel").text(), u"&Cancel"_s);
        QStringList heads;
        for (int i = 0; i < 7; ++i) {
            heads << text(window, QStringLiteral("lblwk%1").arg(i).toLatin1().constData());
        }
        EXPECT_EQ(heads.join(u' '), u"Sun Mon Tue Wed Thu Fri Sat"_s);
        EXPECT_EQ(window.findChildren<DayCell*>().size(), 37);
        EXPECT_EQ(text(window, "lblMonth"), u"February"_s);
        EXPECT_EQ(text(window, "lblYear"), u"2026"_s);
        EXPECT_TRUE(window.isModal());
    });
}

TEST_F(frmCalendarTest, days_standInSevenColumnsUnderTheirHeads) {
    pick(FOURTH, [](QWidget& window) {
        for (int index = 0; index < CalendarWindow::cellCount; ++index) {
            const auto& head =
                control<QLabel>(window, QStringLiteral("lblwk%1").arg(index % 7).toLatin1().constData());
            EXPECT_EQ(day(window, index).x(), head.x()) << index;
            EXPECT_GT(day(window, index).y(), head.y()) << index;
            if (index >= 7) {
                EXPECT_EQ(day(window, index).y() - day(window, index - 7).y(), day(window, index).height());
            }
        }
    });
}

TEST_F(frmCalendarTest, february2024_fills29Cells) {
    pick(QDate(2024, 2, 1), [](QWidget& window) { expectMonth(window, 4, 29); });
}

TEST_F(frmCalendarTest, february2023_fills28Cells) {
    pick(QDate(2023, 2, 1), [](QWidget& window) { expectMonth(window, 3, 28); });
}

TEST_F(frmCalendarTest, february2026_from1To28FromTheFirstCell) {
    pick(FOURTH, [](QWidget& window) { expectMonth(window, 0, 28); });
}

TEST_F(frmCalendarTest, october2022_fillsCells6To36) {
    pick(QDate(2022, 10, 1), [](QWidget& window) { expectMonth(window, 6, 31); });
}

TEST_F(frmCalendarTest, chosenDay_isFilledAndBoldAndNoOther) {
    pick(FOURTH, [](QWidget& window) {
        const QColor fill = window.palette().color(QPalette::Highlight);
        EXPECT_EQ(groundOf(window, 3), fill);
        EXPECT_NE(groundOf(window, 4), fill);
        EXPECT_EQ(boldCells(window), QList<int>{3});
        clickDay(window, 5);
        EXPECT_EQ(groundOf(window, 4), fill);
        EXPECT_NE(groundOf(window, 3), fill);
        EXPECT_EQ(boldCells(window), QList<int>{4});
    });
}

TEST_F(frmCalendarTest, today_isRingedWhetherChosenOrNot) {
    const auto picture = [](QWidget& window) { return day(window, 13).grab().toImage(); };
    QImage plain;
    QImage ringed;
    QImage chosen;
    QImage chosenToday;
    pick(FOURTH, [&](QWidget& window) {
        ringed = picture(window);
        clickDay(window, 14);
        chosenToday = picture(window);
    });
    world_.clock.setToday(QDate(2026, 3, 14));
    pick(FOURTH, [&](QWidget& window) {
        plain = picture(window);
        clickDay(window, 14);
        chosen = picture(window);
    });
    EXPECT_NE(ringed, plain);
    EXPECT_NE(chosenToday, chosen);
    EXPECT_NE(chosen, plain);
}

TEST_F(frmCalendarTest, monthsAndYears_moveNothingInTheWindow) {
    pick(QDate(2022, 5, 31), [](QWidget& window) {
        const QSize size = window.size();
        const QPoint right = control(window, "udMonthUp").mapTo(&window, QPoint());
        const QPoint cell = day(window, 36).mapTo(&window, QPoint());
        for (int month = 0; month < 13; ++month) {
            click(window, "udMonthUp");
            QApplication::processEvents();
            EXPECT_EQ(window.size(), size);
            EXPECT_EQ(control(window, "udMonthUp").mapTo(&window, QPoint()), right);
            EXPECT_EQ(day(window, 36).mapTo(&window, QPoint()), cell);
            const auto& label = control<QLabel>(window, "lblMonth");
            EXPECT_LE(label.fontMetrics().horizontalAdvance(label.text()), label.width());
        }
    });
}

TEST_F(frmCalendarTest, largerFont_growsTheWindowSoThatNoDayIsCut) {
    const QFont before = QApplication::font();
    QFont large = before;
    large.setPointSizeF(before.pointSizeF() * 2);
    QApplication::setFont(large);
    pick(QDate(2022, 10, 31), [](QWidget& window) {
        const DayCell& last = day(window, 36);
        EXPECT_LE(last.fontMetrics().horizontalAdvance(last.text()), last.width());
        EXPECT_LE(last.fontMetrics().height(), last.height());
        const auto& head = control<QLabel>(window, "lblwk3");
        EXPECT_LE(head.fontMetrics().horizontalAdvance(head.text()), head.width());
    });
    QApplication::setFont(before);
}

// The mouse.

TEST_F(frmCalendarTest, clickOnDay15AndOk_givesThe15th) {
    EXPECT_EQ(pick(u"2/4/2026"_s,
                   [](QWidget& window) {
                       clickDay(window, 15);
                       click(window, "cmdOK");
                       EXPECT_FALSE(window.isVisible());
                   }),
              QVariant(u"2/15/2026"_s));
}

TEST_F(frmCalendarTest, clickOnABlankCell_choosesNothing) {
    EXPECT_EQ(pick(FOURTH,
                   [](QWidget& window) {
                       QTest::mouseClick(&day(window, 30), Qt::LeftButton);
                       EXPECT_EQ(boldCells(window), QList<int>{3});
                       click(window, "cmdOK");
                   }),
              QVariant(FOURTH));
}

TEST_F(frmCalendarTest, pressThatLeavesTheDay_choosesNothing) {
    pick(FOURTH, [](QWidget& window) {
        QTest::mousePress(&day(window, 14), Qt::LeftButton);
        QTest::mouseRelease(&day(window, 14), Qt::LeftButton, Qt::NoModifier, QPoint(-20, 5));
        EXPECT_EQ(boldCells(window), QList<int>{3});
        QTest::mouseClick(&day(window, 14), Qt::RightButton);
        EXPECT_EQ(boldCells(window), QList<int>{3});
    });
}

TEST_F(frmCalendarTest, arrows_moveByMonthAndYear) {
    EXPECT_EQ(pick(QDate(2024, 1, 31),
                   [](QWidget& window) {
                       click(window, "udMonthUp");
                       EXPECT_EQ(text(window, "lblMonth"), u"February"_s);
                       expectMonth(window, 4, 29);
                       click(window, "udYearUp");
                       EXPECT_EQ(text(window, "lblYear"), u"2025"_s);
                       expectMonth(window, 6, 28);
                       click(window, "udMonthDown");
                       EXPECT_EQ(text(window, "lblMonth"), u"January"_s);
                       click(window, "udYearDown");
                       EXPECT_EQ(text(window, "lblYear"), u"2024"_s);
                       click(window, "cmdOK");
                   }),
              QVariant(QDate(2024, 1, 28)));
}

TEST_F(frmCalendarTest, cmdCancel_givesTheDateThatWasPassed) {
    EXPECT_EQ(pick(u"2/4/2026"_s,
                   [](QWidget& window) {
                       clickDay(window, 15);
                       click(window, "udYearUp");
                       click(window, "cmdCancel");
                       EXPECT_FALSE(window.isVisible());
                   }),
              QVariant(u"2/4/2026"_s));
}

TEST_F(frmCalendarTest, cmdCancel_withoutADate_givesTheEmptyText) {
    EXPECT_EQ(pick({},
                   [](QWidget& window) {
                       EXPECT_EQ(boldCells(window), QList<int>{13});
                       click(window, "cmdCancel");
                   }),
              QVariant(QString()));
}

TEST_F(frmCalendarTest, closingTheWindow_actsLikeOk) {
    EXPECT_EQ(pick(FOURTH,
                   [](QWidget& window) {
                       clickDay(window, 15);
                       window.close();
                   }),
              QVariant(QDate(2026, 2, 15)));
}

// Where it stands.

TEST_F(frmCalendarTest, position1_isTheMiddleOfTheScreen) {
    pick(FOURTH, [](QWidget& window) {
        const QSize screen = window.screen()->size();
        EXPECT_LE(std::abs(window.x() + window.width() / 2 - screen.width() / 2), 1);
        EXPECT_LE(std::abs(window.y() + window.height() / 2 - screen.height() / 2), 1);
    });
}

TEST_F(frmCalendarTest, position3_isThePointInTwips) {
    whileModal([&] { calendar_.ShowCalendar(3, nullptr, 1500, 3000, FOURTH); },
               [](QWidget& window) { EXPECT_EQ(window.pos(), QPoint(100, 200)); });
}

TEST_F(frmCalendarTest, placement_isNeverStored) {
    pick(FOURTH, [](QWidget& window) { window.move(5, 5); });
    EXPECT_TRUE(world_.settings.writes().isEmpty());
}

// Regions.

class frmCalendarInLocaleTest : public frmCalendarTest, public testing::WithParamInterface<const char*> {
protected:
    const QLocale locale_{QString::fromLatin1(GetParam())};
    void SetUp() override { world_.setLocale(locale_); }
};

INSTANTIATE_TEST_SUITE_P(AllLocales, frmCalendarInLocaleTest,
                         testing::Values("en_US", "en_GB", "de_DE", "sv_SE", "fr_FR", "zh_CN", "C"),
                         [](const auto& test) { return std::string(test.param); });

TEST_P(frmCalendarInLocaleTest, everyMonth_showsItsRegionalNameWhole) {
    pick(QDate(2025, 12, 31), [&](QWidget& window) {
        for (int month = 1; month <= 12; ++month) {
            press(window, Qt::Key_PageDown);
            const auto& label = control<QLabel>(window, "lblMonth");
            EXPECT_EQ(label.text(), locale_.standaloneMonthName(month));
            EXPECT_FALSE(label.text().isEmpty());
            EXPECT_LE(label.fontMetrics().horizontalAdvance(label.text()), label.width());
            EXPECT_EQ(text(window, "lblwk0"), u"Sun"_s);
        }
    });
}
