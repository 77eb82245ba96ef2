#include "reports/pages/DocumentFiles.h"

#include "core/Failure.h"
#include "core/ReplaceFile.h"
#include "core/VersionRecord.h"
#include "reports/pages/HtmlWriter.h"
#include "reports/pages/PageDocument.h"
#include "reports/pages/PagePainter.h"

#include <QBuffer>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>

namespace {

constexpr int twipsPerInch = 1440;
constexpr double twipsPerPoint = 20;

} // namespace

void writeHtml(const PageDocument& document, const QString& path) {
    replaceFile(path, htmlOf(document));
}

void writePdf(const PageDocument& document, const QString& path) {
    QBuffer pdf;
    pdf.open(QIODevice::WriteOnly);
    writePdf(document, pdf);
    replaceFile(path, pdf.data());
}

void writePdf(const PageDocument& document, QIODevice& device) {
    QPdfWriter writer(&device);
    writer.setResolution(twipsPerInch); // one unit of the file is one twip
    writer.setPageSize(QPageSize(document.pageSize / twipsPerPoint, QPageSize::Point));
    writer.setPageMargins({});
    writer.setTitle(titleOf(document));
    writer.setCreator(VersionRecord::title.toString());
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
