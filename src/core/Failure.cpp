#include "core/Failure.h"

#include "core/Global.h"

#include <exception>

namespace {

QString descriptionOf(ErrorNumber number) {
    switch (number) {
    case ErrorNumber::InvalidProcedureCall:
        return QStringLiteral("Invalid procedure call or argument");
    case ErrorNumber::Overflow:
        return QStringLiteral("Overflow");
    case ErrorNumber::OutOfMemory:
        return QStringLiteral("Out of memory");
    case ErrorNumber::SubscriptOutOfRange:
        return QStringLiteral("Subscript out of range");
    case ErrorNumber::DivisionByZero:
        return QStringLiteral("Division by zero");
    case ErrorNumber::TypeMismatch:
        return QStringLiteral("Type mismatch");
    case ErrorNumber::InternalError:
        return QStringLiteral("Internal error");
    case ErrorNumber::BadFileName:
        return QStringLiteral("Bad file name or number");
    case ErrorNumber::FileNotFound:
        return QStringLiteral("File not found");
    case ErrorNumber::DeviceError:
        return QStringLiteral("Device I/O error");
    case ErrorNumber::DiskFull:
        return QStringLiteral("Disk full");
    case ErrorNumber::TooManyFiles:
        return QStringLiteral("Too many files");
    case ErrorNumber::PermissionDenied:
        return QStringLiteral("Permission denied");
    case ErrorNumber::PathFileAccess:
        return QStringLiteral("Path/File access error");
    case ErrorNumber::PathNotFound:
        return QStringLiteral("Path not found");
    case ErrorNumber::ObjectNotSet:
        return QStringLiteral("Object variable or With block variable not set");
    case ErrorNumber::InvalidUseOfNull:
        return QStringLiteral("Invalid use of Null");
    case ErrorNumber::InvalidFileFormat:
        return QStringLiteral("Invalid file format");
    case ErrorNumber::InvalidPropertyValue:
        return QStringLiteral("Invalid property value");
    case ErrorNumber::InvalidPropertyArrayIndex:
        return QStringLiteral("Invalid property array index");
    }
    return QStringLiteral("Application-defined or object-defined error");
}

} // namespace

Failure failure(ErrorNumber number) {
    return {static_cast<qint32>(number), descriptionOf(number)};
}

void detail::reportCurrentException(QStringView label) {
    Failure found;
    try {
        throw;
    } catch (const Failure& thrown) {
        found = thrown;
    } catch (const std::bad_alloc&) {
        found = failure(ErrorNumber::OutOfMemory);
    } catch (const std::exception& thrown) {
        found = {static_cast<qint32>(ErrorNumber::InternalError), QString::fromUtf8(thrown.what())};
    } catch (...) {
        found = failure(ErrorNumber::InternalError);
    }
    Global::HandleError(label, found.number, found.description);
}
