#include "ui/platform/SystemPrinter.h"

#include "core/Failure.h"
#include "core/ReplaceFile.h"
#include "core/VersionRecord.h"
#include "ui/platform/PrintQueue.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QPaintEngine>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QTemporaryFile>

#include <algorithm>
#include <vector>

namespace {

constexpr double twipsPerInch = 1440;

Failure printerError() {
    return {482, QStringLiteral("Printer error")};
}

/// The pages to put on paper, counted from 0, in the order of printing.
std::vector<qint32> pageSequence(const QPrinter& device, qint32 pageCount) {
    std::vector<qint32> pages;
    const bool ranged = device.printRange() == QPrinter::PageRange;
    for (qint32 page = 0; page < pageCount; ++page) {
        const int number = page + 1;
        const bool inRanges = !device.pageRanges().isEmpty()
                                  ? device.pageRanges().contains(number)
                                  : number >= std::max(device.fromPage(), 1) &&
                                        (device.toPage() == 0 || number <= device.toPage());
        if (!ranged || inRanges) {
            pages.push_back(page);
        }
    }
    if (device.pageOrder() == QPrinter::LastPageFirst) {
        std::reverse(pages.begin(), pages.end());
    }
    // A device that makes copies by itself gets each page once.
    const int copies = device.supportsMultipleCopies() ? 1 : std::max(device.copyCount(), 1);
    std::vector<qint32> sequence;
    if (device.collateCopies()) {
        for (int copy = 0; copy < copies; ++copy) {
            sequence.insert(sequence.end(), pages.begin(), pages.end());
        }
    } else {
        for (const qint32 page : pages) {
            sequence.insert(sequence.end(), static_cast<std::size_t>(copies), page);
        }
    }
    return sequence;
}

/// Puts the painter into the page's twips, the page as large as the paper allows and in its middle.
void fitPage(QPainter& painter, const QPrinter& device, QSizeF page) {
    const QRectF paper = device.paperRect(QPrinter::DevicePixel);
    const double onePointPerTwip = device.resolution() / twipsPerInch;
    double scale = std::min(paper.width() / page.width(), paper.height() / page.height());
    // Paper of the page's own size keeps sizes exact, whatever the paper's pixels round to.
    constexpr double sameSize = 0.005;
    if (std::abs(scale / onePointPerTwip - 1) < sameSize) {
        scale = onePointPerTwip;
    }
    painter.translate((paper.width() - page.width() * scale) / 2,
                      (paper.height() - page.height() * scale) / 2);
    painter.scale(scale, scale);
}

/// Puts the pages on the device; false when it refuses.
bool printPages(QPrinter& printer, const std::vector<qint32>& pages, const PrintableDocument& document) {
    QPainter painter;
    if (!painter.begin(&printer)) {
        return false;
    }
    bool first = true;
    for (const qint32 page : pages) {
        if (!first && !printer.newPage()) {
            printer.abort();
            return false;
        }
        first = false;
        painter.save();
        fitPage(painter, printer, document.pageSize);
        document.paint(painter, page);
        painter.restore();
    }
    return painter.end() && printer.printerState() != QPrinter::Error;
}

/// Names the document for the device and takes its whole paper.
void prepare(QPrinter& printer, const PrintableDocument& document) {
    printer.setFullPage(true);
    printer.setDocName(document.title);
    printer.setCreator(VersionRecord::title.toString());
}

/// The pages as a PDF of the device's settings, made in the temporary folder. Fails where they find no room,
/// of which printing does not always tell. The device itself is spared: one that once met a full disk writes
/// nothing ever after.
QByteArray draftOf(const QPrinter& chosen, const std::vector<qint32>& pages,
                   const PrintableDocument& document) {
    QTemporaryFile file(QDir::temp().filePath(QStringLiteral("talivane-XXXXXX.pdf")));
    bool whole = file.open();
    if (whole) {
        QPrinter draft(QPrinter::HighResolution);
        draft.setOutputFormat(QPrinter::PdfFormat);
        draft.setOutputFileName(file.fileName());
        draft.setResolution(chosen.resolution());
        draft.setPageLayout(chosen.pageLayout());
        draft.setColorMode(chosen.colorMode());
        draft.setPdfVersion(chosen.pdfVersion());
        prepare(draft, document);
        whole = printPages(draft, pages, document);
    }
    QFile printed(file.fileName());
    QByteArray pdf = whole && printed.open(QIODevice::ReadOnly) ? printed.readAll() : QByteArray();
    if (!pdf.trimmed().endsWith("%%EOF")) {
        throw failure(ErrorNumber::DiskFull);
    }
    return pdf;
}

/// A queue gets its pages by way of the temporary folder, and would get the part that has room there.
bool printsThroughTemporaryFolder(const QPrinter& printer) {
    return printer.paintEngine()->type() == QPaintEngine::Pdf;
}

} // namespace

SystemPrinter::SystemPrinter() = default;
SystemPrinter::~SystemPrinter() = default;

QPrinter& SystemPrinter::device() {
    if (device_ == nullptr) {
        device_ = std::make_unique<QPrinter>(QPrinter::HighResolution);
    }
    return *device_;
}

bool SystemPrinter::choose() {
    QPrintDialog dialog(&device(), QApplication::activeWindow());
    dialog.setOptions(QAbstractPrintDialog::PrintToFile | QAbstractPrintDialog::PrintPageRange |
                      QAbstractPrintDialog::PrintShowPageSize | QAbstractPrintDialog::PrintCollateCopies);
    chosen_ = dialog.exec() == QDialog::Accepted;
    return chosen_;
}

void SystemPrinter::print(const PrintableDocument& document) {
    const bool isFile = device().outputFormat() == QPrinter::PdfFormat;
    if (isFile && !chosen_ && !choose()) {
        return;
    }
    chosen_ = false;
    printOnDevice(document);
}

void SystemPrinter::printOnDevice(const PrintableDocument& document) {
    if (document.pageCount < 1 || document.pageSize.isEmpty()) {
        return;
    }
    QPrinter& printer = device();
    prepare(printer, document);
    const std::vector<qint32> pages = pageSequence(printer, document.pageCount);
    if (pages.empty()) {
        return;
    }
    if (printer.outputFormat() == QPrinter::PdfFormat && !printer.outputFileName().isEmpty()) {
        // The file that the user named keeps what it held when the printing fails.
        replaceFile(printer.outputFileName(), draftOf(printer, pages, document));
        return;
    }
    if (printsThroughTemporaryFolder(printer)) {
        draftOf(printer, pages, document);
    }
    if (!printPages(printer, pages, document) || printQueueRefused()) {
        throw printerError();
    }
}
