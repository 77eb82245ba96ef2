#include "reports/pages/DocumentFiles.h"

#include "core/Failure.h"
#include "reports/pages/HtmlWriter.h"
#include "reports/pages/PageDocument.h"
#include "reports/pages/PagePainter.h"

#include <QDir>
#include <QFileInfo>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QSaveFile>

namespace {

constexpr int twipsPerInch = 1440;
constexpr double twipsPerPoint = 20;

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

/// Writes a file through a temporary one beside it, so that a failure leaves the old file whole. Only where
/// the folder takes no new files is the old one written over.
template<class Writer>
void save(const QString& path, Writer&& writer) {
    requireWritable(path);
    QSaveFile file(path);
    file.setDirectWriteFallback(true);
    if (!file.open(QIODevice::WriteOnly)) {
        throw failure(ErrorNumber::PermissionDenied);
    }
    std::forward<Writer>(writer)(file);
    // Asked before the commit, which says nothing of a file written over directly.
    if (!file.flush() || file.error() != QFileDevice::NoError) {
        file.cancelWriting();
        throw failure(ErrorNumber::DiskFull);
    }
    if (!file.commit()) {
        throw failure(ErrorNumber::PathFileAccess);
    }
}

} // namespace

void writeHtml(const PageDocument& document, const QString& path) {
    save(path, [&document](QSaveFile& file) { file.write(htmlOf(document)); });
}

void writePdf(const PageDocument& document, const QString& path) {
    save(path, [&document](QSaveFile& file) { writePdf(document, file); });
}

void writePdf(const PageDocument& document, QIODevice& device) {
    QPdfWriter writer(&device);
    writer.setResolution(twipsPerInch); // one unit of the file is one twip
    writer.setPageSize(QPageSize(document.pageSize / twipsPerPoint, QPageSize::Point));
    writer.setPageMargins({});
    writer.setTitle(titleOf(document));
    QPainter painter;
    if (!painter.begin(&writer)) {
        throw failure(ErrorNumber::DeviceError);
    }
    for (std::size_t page = 0; page < document.pages.size(); ++page) {
        if (page > 0) {
            writer.newPage();
        }
        paintPage(painter, document, static_cast<qint32>(page), PaintTarget::Paper);
    }
}
