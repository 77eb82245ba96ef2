#pragma once

#include <QString>

class FormPlacement;
class clsCalendar;

/// What one day cell of the calendar shows.
struct CalendarCell {
    /// The day of the month; empty in a blank cell.
    QString caption;
    bool enabled = false;
    /// The chosen day.
    bool marked = false;
    bool today = false;

    bool operator==(const CalendarCell&) const = default;
};

/// The calendar's window as its logic sees it: controls only, whose events it forwards to `mParent`.
class CalendarWindow {
public:
    /// Seven columns, and just as many cells as a month of 31 days that begins on a Saturday needs.
    static constexpr qint16 cellCount = 37;

    virtual ~CalendarWindow() = default;

    /// The calendar that opened the window.
    clsCalendar* mParent = nullptr;

    /// Where the window stands, in twips.
    [[nodiscard]] virtual FormPlacement& placement() = 0;
    /// The size of the screen, in twips.
    [[nodiscard]] virtual double screenWidth() const = 0;
    [[nodiscard]] virtual double screenHeight() const = 0;

    /// Writes `lblYear`.
    virtual void setYear(const QString& year) = 0;
    /// Writes `lblMonth`.
    virtual void setMonth(const QString& month) = 0;
    /// One of the cells `lblDay`, by its index from 0 to 36.
    [[nodiscard]] virtual CalendarCell cell(qint16 index) const = 0;
    virtual void setCell(qint16 index, const CalendarCell& cell) = 0;

    /// Shows the window and comes back when it is hidden or closed.
    virtual void showModal() = 0;
};
