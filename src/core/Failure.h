#pragma once

#include <QString>
#include <QStringView>

#include <new>
#include <type_traits>
#include <utility>

/// What went wrong inside a routine: a classic error number with its description. Failures are thrown
/// only inside the body of a labelled routine and never leave it (see `routine`).
struct Failure {
    qint32 number = 0;
    QString description;
};

/// The classic error numbers that the program raises itself.
enum class ErrorNumber : qint32 {
    InvalidProcedureCall = 5,
    Overflow = 6,
    OutOfMemory = 7,
    SubscriptOutOfRange = 9,
    DivisionByZero = 11,
    TypeMismatch = 13,
    InternalError = 51,
    BadFileName = 52,
    FileNotFound = 53,
    DeviceError = 57,
    DiskFull = 61,
    TooManyFiles = 67,
    PermissionDenied = 70,
    PathFileAccess = 75,
    PathNotFound = 76,
    ObjectNotSet = 91,
    InvalidUseOfNull = 94,
    InvalidFileFormat = 321,
    InvalidPropertyValue = 380,
    InvalidPropertyArrayIndex = 381,
};

/// A failure with the number's classic description, for example 11 with "Division by zero".
[[nodiscard]] Failure failure(ErrorNumber number);

namespace detail {
/// Turns the exception in flight into a Failure and reports it under the label. To be called from a catch
/// block only.
void reportCurrentException(QStringView label);
} // namespace detail

/// Runs the body of a labelled routine. The body gets the result by reference and may return early; when
/// anything fails in it, the failure is reported once under the label and the result is returned as it
/// stands at that moment. Nothing is thrown to the caller.
template<class Result, class Body>
requires std::is_invocable_v<Body, Result&> Result routine(QStringView label, Result result, Body&& body) {
    try {
        std::forward<Body>(body)(result);
    } catch (...) {
        detail::reportCurrentException(label);
    }
    return result;
}

/// The same for a routine that has no result.
template<class Body>
requires std::is_invocable_v<Body>
void routine(QStringView label, Body&& body) {
    try {
        std::forward<Body>(body)();
    } catch (...) {
        detail::reportCurrentException(label);
    }
}

/// Runs one statement of a routine that has no label: a failure in it is passed over, and the routine goes
/// on with its next statement.
template<class Statement>
void passOver(Statement&& statement) noexcept {
    try {
        std::forward<Statement>(statement)();
    } catch (...) { // deliberately silent: routines without a label report nothing
    }
}
