#pragma once

#include <QByteArray>
#include <QDate>
#include <QString>
#include <QVariant>

#include <ostream>

// How a failed comparison shows Qt's values; found by GoogleTest beside their types.

inline void PrintTo(const QString& text, std::ostream* stream) {
    *stream << '"' << text.toStdString() << '"';
}

inline void PrintTo(const QByteArray& bytes, std::ostream* stream) {
    *stream << '"' << bytes.toStdString() << '"';
}

inline void PrintTo(const QDate& date, std::ostream* stream) {
    *stream << date.toString(Qt::ISODate).toStdString();
}

inline void PrintTo(const QVariant& value, std::ostream* stream) {
    *stream << value.typeName() << " \"" << value.toString().toStdString() << '"';
}
