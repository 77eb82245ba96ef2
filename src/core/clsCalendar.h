#pragma once

#include <QDate>
#include <QVariant>

#include <functional>
#include <memory>

class CalendarWindow;
class FormPlacement;

/// A month calendar from which the user picks a day. One stands behind each date field; its window lives
/// for one call of `ShowCalendar` only. Dates outside the years 100 to 9999 are refused with error 5.
class clsCalendar {
public:
    /// Makes the window of one call.
    using WindowFactory = std::function<std::unique_ptr<CalendarWindow>()>;

    explicit clsCalendar(WindowFactory makeWindow);
    clsCalendar(const clsCalendar&) = delete;
    clsCalendar& operator=(const clsCalendar&) = delete;
    ~clsCalendar();

    /// The date on display and the result, in the form in which it was passed: a date, a date with its time
    /// of day, or a text in "Short Date", "Medium Date" or one of the stored forms. A text in any other
    /// form becomes a "Short Date" as soon as the user moves away from it.
    QVariant CurrentDate;
    /// The date that was passed in, or the empty text; what Cancel goes back to.
    QVariant HoldDate;

    /// Shows the calendar modally and gives the date that it was left on. `vPosition`: 1 the middle of the
    /// screen, 2 the middle of `frm`, 3 the point `lX`, `lY` (twips; 0 for what is no number), wherever that
    /// lies; any other number means 1. It opens on `vCurrentDate`, or on today where that is missing or no
    /// date. Cancel gives the date that was passed, or the empty text where there was none.
    QVariant ShowCalendar(qint16 vPosition, const FormPlacement* frm = nullptr, const QVariant& lX = {},
                          const QVariant& lY = {}, const QVariant& vCurrentDate = {});

    /// A month or year back or forward. A day that the new month does not have becomes its last, and stays
    /// that when the month changes again.
    void DecrementMonth();
    void IncrementMonth();
    void DecrementYear();
    void IncrementYear();

    /// Chooses the day of a cell, by the cell's index; fails with error 13 for a blank one.
    void SetDay(qint16 Index);

    /// Moves by days, into another month where they lead there. Stays where it is at the ends of the years.
    void moveByDays(qint32 days);

private:
    void place(qint16 vPosition, const FormPlacement* frm, const QVariant& lX, const QVariant& lY);
    void goTo(QDate date);
    void setCurrentDate(QDate date);
    void takeParts();
    void DisplayMonth(const QVariant& date);
    void FillMonth(const QVariant& date);
    void mark(qint16 index, bool marked);
    [[nodiscard]] static qint16 DaysPerMonth(qint16 year, qint16 month);
    [[nodiscard]] CalendarWindow& window() const;

    WindowFactory makeWindow_;
    std::unique_ptr<CalendarWindow> window_;
    /// The parts of `CurrentDate`.
    qint16 day_ = 0;
    qint16 month_ = 0;
    qint16 year_ = 0;
    /// The cell of the first of the month.
    qint16 FirstCell = 0;
};
