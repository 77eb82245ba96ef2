#pragma once

#include "core/windows/DayCell.h"
#include "core/windows/frmCalendar.h"
#include "support/QtPrinting.h"
#include "support/TestWorld.h"
#include "support/WindowDriver.h"

#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace WindowDriver;

/// The calendar with its real window, driven by mouse and keyboard.
class CalendarWindowFixture : public testing::Test {
protected:
    TestWorld world_;
    clsCalendar calendar_{frmCalendar::over(nullptr)};

    /// Opens the calendar on `start`, runs `user` while it is up and gives the result.
    QVariant pick(const QVariant& start, const std::function<void(QWidget&)>& user) {
        QVariant result;
        whileModal([&] { result = calendar_.ShowCalendar(1, nullptr, {}, {}, start); }, user);
        return result;
    }
    static QString text(QWidget& window, const char* label) { return control<QLabel>(window, label).text(); }
    static DayCell& day(QWidget& window, int index) {
        return control<DayCell>(window, QStringLiteral("lblDay%1").arg(index).toLatin1().constData());
    }
    /// Clicks the cell of a day of the month on display.
    static void clickDay(QWidget& window, int number) {
        for (int index = 0; index < CalendarWindow::cellCount; ++index) {
            if (day(window, index).text() == QString::number(number)) {
                QTest::mouseClick(&day(window, index), Qt::LeftButton);
                return;
            }
        }
        ADD_FAILURE() << "no day " << number;
    }
    static void expectMonth(QWidget& window, int first, int days) {
        for (int index = 0; index < CalendarWindow::cellCount; ++index) {
            const int number = index - first + 1;
            const bool within = number >= 1 && number <= days;
            EXPECT_EQ(day(window, index).text(), within ? QString::number(number) : QString()) << index;
            EXPECT_EQ(day(window, index).isEnabled(), within) << index;
            if (!within) {
                EXPECT_FALSE(day(window, index).font().bold()) << index;
            }
        }
    }
    /// The cells that stand out in bold.
    static QList<int> boldCells(QWidget& window) {
        QList<int> found;
        for (int index = 0; index < CalendarWindow::cellCount; ++index) {
            if (day(window, index).font().bold()) {
                found << index;
            }
        }
        return found;
    }
    /// The colour of a cell in the middle of its lower edge, within the fill and below the number.
    static QColor groundOf(QWidget& window, int index) {
        const DayCell& cell = day(window, index);
        const QImage image = window.grab().toImage();
        const double ratio = image.devicePixelRatio();
        const QPoint at = cell.mapTo(&window, QPoint(cell.width() / 2, cell.height() - 3));
        return image.pixelColor((QPointF(at) * ratio).toPoint());
    }
};

inline const QDate FOURTH(2026, 2, 4);
