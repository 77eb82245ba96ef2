#pragma once

#include <QString>

class QLineEdit;
class clsCalendar;

/// The way from a text field that holds a date to the calendar.
namespace DateField {

/// Opens the calendar beside the field, on the field's date or on today where it holds none, and gives the
/// user's choice as "Short Date". On Cancel that is the date on which the calendar opened, so that the field
/// then holds a date in any case. The caller writes it back.
[[nodiscard]] QString pick(clsCalendar& calendar, const QLineEdit& field);

} // namespace DateField
