#pragma once

#include "core/CalendarWindow.h"
#include "core/clsCalendar.h"
#include "ui/platform/WidgetPlacement.h"

#include <QDialog>

#include <array>

class DayCell;
class DayGrid;
class QLabel;
class UpDown;

/// The window of the date picker: controls, and their events handed on to `mParent`. Beside the mouse the
/// arrow keys choose a day, Page Up and Page Down a month and, with Shift, a year; Enter keeps the date and
/// Escape restores it. Closing the window in any other way keeps it.
class frmCalendar final : public QDialog, public CalendarWindow {
    Q_OBJECT

public:
    explicit frmCalendar(QWidget* parent = nullptr);

    /// What a calendar is made with; its windows belong to `owner`.
    [[nodiscard]] static clsCalendar::WindowFactory over(QWidget* owner);

    [[nodiscard]] FormPlacement& placement() override { return placement_; }
    [[nodiscard]] double screenWidth() const override;
    [[nodiscard]] double screenHeight() const override;
    void setYear(const QString& year) override;
    void setMonth(const QString& month) override;
    [[nodiscard]] CalendarCell cell(qint16 index) const override;
    void setCell(qint16 index, const CalendarCell& cell) override;
    void showModal() override;

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    QLayout* buildMonthAndYear();
    DayGrid* buildDays();
    QLayout* buildButtons();
    void lblDay_Click(qint16 index);
    void cmdOK_Click();
    void cmdCancel_Click();

    WidgetPlacement placement_{*this};
    QLabel* lblMonth = nullptr;
    QLabel* lblYear = nullptr;
    UpDown* udMonth = nullptr;
    UpDown* udYear = nullptr;
    DayGrid* days_ = nullptr;
    std::array<DayCell*, cellCount> lblDay{};
};
