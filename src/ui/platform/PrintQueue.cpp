#include "ui/platform/PrintQueue.h"

#include <QLibrary>

namespace {

/// The first status that is no success (RFC 8011, 4.1.6). The library's own failures are negative or above
/// it.
constexpr int firstFailure = 0x0100;

} // namespace

bool printQueueRefused() {
    using LastError = int (*)();
    // Qt's own printing has this library loaded already. To link it would make it a need of every build.
    static const auto lastError =
        reinterpret_cast<LastError>(QLibrary::resolve(QStringLiteral("libcups.so.2"), "cupsLastError"));
    if (lastError == nullptr) {
        return false;
    }
    const int status = lastError();
    return status < 0 || status >= firstFailure;
}
