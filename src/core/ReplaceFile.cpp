#include "core/ReplaceFile.h"

#include "core/Failure.h"

#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

namespace {

/// Throws what keeps a file from being written, as the classic failure that tells the user most.
void requireWritable(const QString& path) {
    const QFileInfo info(path);
    if (info.exists() && !info.isFile()) { // a folder, or a device that a renamed file would replace
        throw failure(ErrorNumber::PathFileAccess);
    }
    if (!info.dir().exists()) {
        throw failure(ErrorNumber::PathNotFound);
    }
}

} // namespace

void replaceFile(const QString& path, const QByteArray& content) {
    requireWritable(path);
    QSaveFile file(path);
    file.setDirectWriteFallback(true);
    if (!file.open(QIODevice::WriteOnly)) {
        throw failure(ErrorNumber::PermissionDenied);
    }
    // A disk with a little room left takes a part and calls that no error. Asked before the commit, which
    // says nothing of a file written over directly.
    if (file.write(content) != content.size() || !file.flush() || file.error() != QFileDevice::NoError) {
        file.cancelWriting();
        throw failure(ErrorNumber::DiskFull);
    }
    if (!file.commit()) {
        throw failure(ErrorNumber::PathFileAccess);
    }
}
