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

/// What kept a file from being opened, as the classic failure that tells the user most.
Failure openFailure(const QString& path) {
    const QFileInfo info(path);
    if (info.isDir()) {
        return failure(ErrorNumber::PathFileAccess);
    }
    if (!info.dir().exists()) {
        return failure(ErrorNumber::PathNotFound);
    }
    return failure(ErrorNumber::PermissionDenied);
}

/// Writes a file through a temporary one beside it, so that a failure leaves the old file whole.
template<class Writer>
void save(const QString& path, Writer&& writer) {
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        throw openFailure(path);
    }
    std::forward<Writer>(writer)(file);
    if (!file.commit()) {
        throw failure(file.error() == QFileDevice::RenameError ? ErrorNumber::PathFileAccess
                                                               : ErrorNumber::DiskFull);
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
