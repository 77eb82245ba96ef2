#include "core/clsCalendar.h"

#include "core/CalendarWindow.h"
#include "core/Clock.h"
#include "core/Conversion.h"
#include "core/FormPlacement.h"
#include "core/Global.h"

#include <QDateTime>
#include <QLocale>
#include <QScopeGuard>

#include <algorithm>
#include <array>
#include <utility>

namespace {

constexpr int earliestYear = 100;
constexpr int latestYear = 9999;
constexpr qint16 monthsPerYear = 12;

enum class CalendarPosition : qint16 { ScreenCentre = 1, FormCentre = 2, Point = 3 };

/// The forms of a date text that are kept when the date moves. The first that gives the very text decides;
/// any other text goes on as the first of them.
using DateForm = QString (*)(QDate);
constexpr std::array<DateForm, 4> dateForms = {
    [](QDate date) { return Conversion::shortDate(date); },
    [](QDate date) { return Conversion::mediumDate(date); },
    [](QDate date) { return Conversion::storedText(date); },
    [](QDate date) { return date.toString(Qt::ISODate); },
};

QVariant inFormOf(const QVariant& pattern, QDate date) {
    switch (pattern.typeId()) {
    case QMetaType::QDate:
        return date;
    case QMetaType::QDateTime: {
        QDateTime moved = pattern.toDateTime();
        moved.setDate(date);
        return moved;
    }
    default:
        break;
    }
    const QDate before = Conversion::toDate(pattern);
    const auto form = std::find_if(dateForms.begin(), dateForms.end(),
                                   [&](DateForm each) { return each(before) == pattern.toString(); });
    return (form != dateForms.end() ? *form : dateForms.front())(date);
}

/// A coordinate in twips: 0 for what is no number.
double twipsOf(const QVariant& value) {
    if (value.typeId() == QMetaType::QString) {
        const QString text = value.toString();
        return Conversion::isNumeric(text) ? Conversion::toDouble(text) : 0;
    }
    return value.toDouble();
}

} // namespace

clsCalendar::clsCalendar(WindowFactory makeWindow)
    : makeWindow_(std::move(makeWindow)) {}

clsCalendar::~clsCalendar() = default;

CalendarWindow& clsCalendar::window() const {
    if (window_ == nullptr) {
        throw failure(ErrorNumber::ObjectNotSet);
    }
    return *window_;
}

QVariant clsCalendar::ShowCalendar(qint16 vPosition, const FormPlacement* frm, const QVariant& lX,
                                   const QVariant& lY, const QVariant& vCurrentDate) {
    return routine(u"clsCalendar.Show Calendar", QVariant(), [&](QVariant& result) {
        const auto unload = qScopeGuard([this] { window_.reset(); });
        window_ = makeWindow_ ? makeWindow_() : nullptr;
        window().mParent = this;
        place(vPosition, frm, lX, lY);
        if (Conversion::isDate(vCurrentDate)) {
            HoldDate = vCurrentDate;
            CurrentDate = vCurrentDate;
        } else {
            HoldDate = QString();
            CurrentDate = Conversion::mediumDate(Global::service(&Services::clock).today());
        }
        takeParts();
        DisplayMonth(CurrentDate);
        window().showModal();
        result = CurrentDate;
    });
}

void clsCalendar::place(qint16 vPosition, const FormPlacement* frm, const QVariant& lX, const QVariant& lY) {
    FormPlacement& form = window().placement();
    const auto position = static_cast<CalendarPosition>(vPosition);
    if (position == CalendarPosition::Point) {
        form.setLeft(twipsOf(lX));
        form.setTop(twipsOf(lY));
    } else if (position == CalendarPosition::FormCentre && frm != nullptr) {
        form.setLeft(frm->Width() / 2 + frm->Left() - form.Width() / 2);
        form.setTop(frm->Height() / 2 + frm->Top() - form.Height() / 2);
    } else {
        form.setLeft(window().screenWidth() / 2 - form.Width() / 2);
        form.setTop(window().screenHeight() / 2 - form.Height() / 2);
    }
}

void clsCalendar::setCurrentDate(QDate date) {
    if (!date.isValid() || date.year() < earliestYear || date.year() > latestYear) {
        throw failure(ErrorNumber::InvalidProcedureCall);
    }
    CurrentDate = inFormOf(CurrentDate, date);
    takeParts();
}

void clsCalendar::takeParts() {
    const QDate date = Conversion::toDate(CurrentDate);
    day_ = static_cast<qint16>(date.day());
    month_ = static_cast<qint16>(date.month());
    year_ = static_cast<qint16>(date.year());
}

void clsCalendar::goTo(QDate date) {
    setCurrentDate(date);
    DisplayMonth(CurrentDate);
}

void clsCalendar::DecrementMonth() {
    routine(u"clsCalendar.DecrementMonth", [this] { goTo(Conversion::toDate(CurrentDate).addMonths(-1)); });
}

void clsCalendar::IncrementMonth() {
    routine(u"clsCalendar.IncrementMonth", [this] { goTo(Conversion::toDate(CurrentDate).addMonths(1)); });
}

void clsCalendar::DecrementYear() {
    routine(u"clsCalendar.DecrementYear", [this] { goTo(Conversion::toDate(CurrentDate).addYears(-1)); });
}

void clsCalendar::IncrementYear() {
    routine(u"clsCalendar.IncrementYear", [this] { goTo(Conversion::toDate(CurrentDate).addYears(1)); });
}

void clsCalendar::DisplayMonth(const QVariant& date) {
    routine(u"clsCalendar.DisplayMonth", [&] {
        const QDate shown = Conversion::toDate(date);
        window().setYear(QString::number(shown.year()));
        // The name as it stands alone: some languages bend it beside a day.
        window().setMonth(Global::services().locale.standaloneMonthName(shown.month()));
        FillMonth(date);
    });
}

qint16 clsCalendar::DaysPerMonth(qint16 year, qint16 month) {
    return routine(u"clsCalendar.DaysPerMonth", qint16{0}, [&](qint16& result) {
        const bool last = month == monthsPerYear;
        const QDate first(year, month, 1);
        const QDate next(last ? year + 1 : year, last ? 1 : month + 1, 1);
        result = static_cast<qint16>(first.daysTo(next));
    });
}

void clsCalendar::FillMonth(const QVariant& date) {
    routine(u"clsCalendar.FillMonth", [&] {
        const QDate shown = Conversion::toDate(date);
        const qint16 lDays =
            DaysPerMonth(static_cast<qint16>(shown.year()), static_cast<qint16>(shown.month()));
        const QDate first = shown.addDays(1 - shown.day());
        const QDate today = Global::service(&Services::clock).today();
        // Qt counts the weekdays from Monday, 1, to Sunday, 7; the first column is Sunday's.
        FirstCell = static_cast<qint16>(first.dayOfWeek() % 7);
        qint16 day = 1;
        for (qint16 i = 0; i < CalendarWindow::cellCount; ++i) {
            CalendarCell cell;
            if (i >= FirstCell && i < FirstCell + lDays) {
                cell = {.caption = QString::number(day),
                        .enabled = true,
                        .marked = day == shown.day(),
                        .today = first.addDays(day - 1) == today};
                ++day;
            }
            window().setCell(i, cell);
        }
    });
}

void clsCalendar::mark(qint16 index, bool marked) {
    CalendarCell cell = window().cell(index);
    cell.marked = marked;
    window().setCell(index, cell);
}

void clsCalendar::SetDay(qint16 Index) {
    routine(u"clsCalendar.Set Day", [&] {
        if (Index < 0 || Index >= CalendarWindow::cellCount) {
            throw failure(ErrorNumber::InvalidProcedureCall);
        }
        const qint32 newDay = Conversion::toLong(window().cell(Index).caption);
        mark(static_cast<qint16>(FirstCell + day_ - 1), false);
        mark(Index, true);
        setCurrentDate(Conversion::toDate(CurrentDate).addDays(newDay - day_));
    });
}

void clsCalendar::moveByDays(qint32 days) {
    passOver([&] {
        const QDate date = Conversion::toDate(CurrentDate).addDays(days);
        if (date.year() == year_ && date.month() == month_) {
            SetDay(static_cast<qint16>(FirstCell + date.day() - 1));
        } else {
            goTo(date);
        }
    });
}
