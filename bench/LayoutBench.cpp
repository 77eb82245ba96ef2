#include "BenchWorld.h"
#include "Ratio.h"
#include "SampleReport.h"
#include "reports/pages/DocumentFiles.h"
#include "reports/pages/PageSurface.h"

#include <QAbstractTextDocumentLayout>
#include <QBuffer>
#include <QFile>
#include <QPdfWriter>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTextCursor>
#include <QTextDocument>
#include <benchmark/benchmark.h>

#include <cstdlib>

namespace {

/// The same paragraphs in the same font and width, without charts and headers. The document gets its page
/// size and keeps no undo steps: otherwise it would be laid out twice and stand as a slow opponent.
void fill(QTextDocument& document) {
    document.setUndoRedoEnabled(false);
    document.setPageSize(PageSurface::systemPageSize() / 20);
    document.setDocumentMargin(72);
    QFont font(QStringLiteral("Liberation Sans"));
    font.setPointSize(11);
    document.setDefaultFont(font);
    QTextCursor cursor(&document);
    for (int room = 0; room < SampleReport::rooms; ++room) {
        for (int index = 0; index < SampleReport::paragraphsOfRoom; ++index) {
            cursor.insertText(SampleReport::paragraph(room + index));
            cursor.insertBlock();
        }
    }
}

void BM_PagesLaidOut(benchmark::State& state) {
    for ([[maybe_unused]] const auto round : state) {
        PageSurface surface;
        SampleReport::write(surface);
        state.counters["pages"] = surface.PageCount();
    }
}
BENCHMARK(BM_PagesLaidOut)->Unit(benchmark::kMillisecond);

void BM_TextDocumentLaidOut(benchmark::State& state) {
    for ([[maybe_unused]] const auto round : state) {
        QTextDocument document;
        fill(document);
        benchmark::DoNotOptimize(document.documentLayout()->documentSize());
    }
}
BENCHMARK(BM_TextDocumentLaidOut)->Unit(benchmark::kMillisecond);

void BM_PagesToPdf(benchmark::State& state) {
    for ([[maybe_unused]] const auto round : state) {
        PageSurface surface;
        SampleReport::write(surface);
        QBuffer file;
        file.open(QIODevice::WriteOnly);
        writePdf(surface.document(), file);
        state.counters["pages"] = surface.PageCount();
    }
}
BENCHMARK(BM_PagesToPdf)->Unit(benchmark::kMillisecond);

void BM_TextDocumentToPdf(benchmark::State& state) {
    const QSizeF page = PageSurface::systemPageSize() / 20;
    for ([[maybe_unused]] const auto round : state) {
        QTextDocument document;
        fill(document);
        QBuffer file;
        file.open(QIODevice::WriteOnly);
        QPdfWriter writer(&file);
        writer.setPageSize(QPageSize(page, QPageSize::Point));
        writer.setPageMargins({});
        document.print(&writer);
    }
}
BENCHMARK(BM_TextDocumentToPdf)->Unit(benchmark::kMillisecond);

void BM_PagesToHtml(benchmark::State& state) {
    const QTemporaryDir folder;
    PageSurface surface;
    SampleReport::write(surface);
    for ([[maybe_unused]] const auto round : state) {
        writeHtml(surface.document(), folder.filePath(QStringLiteral("report.html")));
    }
}
BENCHMARK(BM_PagesToHtml)->Unit(benchmark::kMillisecond)->UseRealTime();

void BM_TextDocumentToHtml(benchmark::State& state) {
    const QTemporaryDir folder;
    QTextDocument document;
    fill(document);
    for ([[maybe_unused]] const auto round : state) {
        QFile file(folder.filePath(QStringLiteral("report.html")));
        if (!file.open(QIODevice::WriteOnly) || file.write(document.toHtml().toUtf8()) < 0) {
            std::abort();
        }
    }
}
BENCHMARK(BM_TextDocumentToHtml)->Unit(benchmark::kMillisecond)->UseRealTime();

void BM_ProgramToPdf(benchmark::State& state) {
    const QTemporaryDir folder;
    wholeLife(state, QStringLiteral(TALIVANE_REPORT_TO_PDF), {folder.filePath(QStringLiteral("report.pdf"))});
}
BENCHMARK(BM_ProgramToPdf)->UseManualTime()->Unit(benchmark::kMillisecond);

/// A browser that prints the report's HTML without a window; skipped where there is none.
void BM_BrowserToPdf(benchmark::State& state) {
    const QString browser = QStandardPaths::findExecutable(QStringLiteral("chromium"));
    if (browser.isEmpty()) {
        state.SkipWithError("no chromium here");
        return;
    }
    const QTemporaryDir folder;
    const QString page = folder.filePath(QStringLiteral("report.html"));
    PageSurface surface;
    SampleReport::write(surface);
    writeHtml(surface.document(), page);
    wholeLife(state, browser,
              {QStringLiteral("--headless"), QStringLiteral("--no-sandbox"), QStringLiteral("--disable-gpu"),
               QStringLiteral("--no-first-run"), QStringLiteral("--disable-background-networking"),
               QStringLiteral("--disable-component-update"), QStringLiteral("--disable-sync"),
               QStringLiteral("--user-data-dir=") + folder.filePath(QStringLiteral("profile")),
               QStringLiteral("--print-to-pdf=") + folder.filePath(QStringLiteral("report.pdf")),
               QStringLiteral("file://") + page});
}
BENCHMARK(BM_BrowserToPdf)->UseManualTime()->Unit(benchmark::kMillisecond);

[[maybe_unused]] const bool added =
    addRatio({"lay out a report with charts: pages to QTextDocument with the paragraphs alone",
              "BM_PagesLaidOut", "BM_TextDocumentLaidOut", 1.0}) &&
    addRatio(
        {"lay out and paint a report with charts to PDF: pages to QTextDocument with the paragraphs alone",
         "BM_PagesToPdf", "BM_TextDocumentToPdf", 1.0}) &&
    addRatio({"write a laid-out report with charts as an HTML file: pages to QTextDocument with the "
              "paragraphs alone",
              "BM_PagesToHtml", "BM_TextDocumentToHtml", 1.0}) &&
    addRatio({"a report with charts from nothing to a PDF file: a program of ours to a browser that prints "
              "its HTML",
              "BM_ProgramToPdf", "BM_BrowserToPdf", 1.0, false});

} // namespace
