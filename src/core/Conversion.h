#pragma once

#include <QDate>
#include <QString>
#include <QStringView>
#include <QVariant>

/// Conversions between values and texts by the user's regional settings (`Services::locale`). The `to...`
/// conversions throw a Failure: 13 (Type mismatch) for a text that has no such value, 6 (Overflow) for one
/// outside the range. The tests accept exactly what the conversions accept.
namespace Conversion {

/// Whether the text is a number: blanks around it, a sign, thousands separators, the regional decimal
/// separator and an exponent are understood.
[[nodiscard]] bool isNumeric(QStringView text);

[[nodiscard]] double toDouble(QStringView text);
[[nodiscard]] float toSingle(QStringView text);

/// A 32-bit whole number, rounded half to even.
[[nodiscard]] qint32 toLong(QStringView text);
[[nodiscard]] qint32 toLong(double value);

/// The named format "General Number": plain digits with the regional decimal separator and no thousands
/// separators; at most 15 significant digits of a double and 7 of a float.
[[nodiscard]] QString generalNumber(double value);
[[nodiscard]] QString generalNumber(float value);

/// Whether the value (a QDate, a QDateTime or a text) is a date. Texts: ISO dates, with or without time;
/// day, month and year in the regional order with any of the usual separators; month names, whole or
/// short, in the user's language or English ("February 4, 1965"). A two-digit year means 1930 to 2029.
[[nodiscard]] bool isDate(const QVariant& value);
[[nodiscard]] QDate toDate(const QVariant& value);

/// The named format "Short Date": the regional short form, always with a four-digit year, so that a year
/// of 2005 never comes back as 1905.
[[nodiscard]] QString shortDate(QDate date);
/// The value as "Short Date" when it is a date, otherwise its text unchanged.
[[nodiscard]] QString shortDate(const QVariant& value);

/// The named format "Medium Date": day, short month name and four-digit year, joined by "-".
[[nodiscard]] QString mediumDate(QDate date);

/// The text form in which the record store writes a value: dates as 1965-02-04T00:00:00, flags as True and
/// False, numbers as "General Number", texts as they stand.
[[nodiscard]] QString storedText(const QVariant& value);

} // namespace Conversion
