#include "Ratio.h"
#include "reports/pages/DocumentFiles.h"
#include "reports/pages/PageSurface.h"
#include "reports/surface/ReportRoutines.h"

#include <QBuffer>
#include <QPdfWriter>
#include <QTextCursor>
#include <QTextDocument>
#include <benchmark/benchmark.h>

#include <array>
#include <numbers>

namespace {

constexpr int roomCount = 100;
constexpr int paragraphsOfRoom = 7;

QString paragraph(int index) {
    static const std::array<QString, 4> sentences{
        QStringLiteral("This room lies in the South-East area of your home, whose element is the Tree. "),
        QStringLiteral(
            "Its energy is strong in the morning, so keep the windows free and the colors light. "),
        QStringLiteral(
            "If the floor is of stone, lay a carpet of a warm color near the place where you sit. "),
        QStringLiteral(
            "Tall plants, curtains with vertical stripes and a fountain lift the energy further. ")};
    QString text;
    for (int sentence = 0; sentence < 5; ++sentence) {
        text += sentences[static_cast<std::size_t>(index + sentence) % sentences.size()];
    }
    return text;
}

void drawWheel(ReportSurface& surface) {
    constexpr double center = 3500;
    for (const auto& [letter, x, y] :
         {std::tuple{u'S', -50, -1900}, {u'N', -50, 1750}, {u'E', -1900, -50}, {u'W', 1750, -50}}) {
        surface.CurrentY(center + y);
        surface.CurrentX(center + x);
        surface.Write(QString(QChar(letter)));
    }
    for (int sector = 0; sector < 8; ++sector) {
        const double from = sector * std::numbers::pi / 4;
        surface.BrushColor(0xFFFFFF - sector * 0x101010);
        surface.DrawCircle(center, center, 1440, from, from + std::numbers::pi / 4);
    }
}

/// A report like that on a home: each room begins a page with a wheel and a summary beside it.
void writeReport(ReportSurface& surface) {
    modRooms::InitReport(surface);
    surface.StartDoc();
    for (int room = 0; room < roomCount; ++room) {
        modRooms::SetReportHeader(surface, QStringLiteral("Room %1").arg(room), 0);
        drawWheel(surface);
        surface.CurrentY(2500);
        modRooms::PrintBesideChart(surface, paragraph(room), 0);
        surface.CurrentY(5800);
        for (int index = 1; index < paragraphsOfRoom; ++index) {
            surface.Write(paragraph(room + index));
        }
        if (room + 1 < roomCount) {
            surface.NewPage();
        }
    }
    surface.EndDoc();
}

void BM_PagesToPdf(benchmark::State& state) {
    for ([[maybe_unused]] const auto round : state) {
        PageSurface surface;
        writeReport(surface);
        QBuffer file;
        file.open(QIODevice::WriteOnly);
        writePdf(surface.document(), file);
        state.counters["pages"] = surface.PageCount();
    }
}
BENCHMARK(BM_PagesToPdf)->Unit(benchmark::kMillisecond);

/// The same paragraphs in the same font and width, without charts and headers. The document gets its page
/// size and keeps no undo steps: otherwise it would be laid out twice and stand as a slow opponent.
void BM_TextDocumentToPdf(benchmark::State& state) {
    const QSizeF page = PageSurface::systemPageSize() / 20;
    for ([[maybe_unused]] const auto round : state) {
        QTextDocument document;
        document.setUndoRedoEnabled(false);
        document.setPageSize(page);
        document.setDocumentMargin(72);
        QFont font(QStringLiteral("Liberation Sans"));
        font.setPointSize(11);
        document.setDefaultFont(font);
        QTextCursor cursor(&document);
        for (int room = 0; room < roomCount; ++room) {
            for (int index = 0; index < paragraphsOfRoom; ++index) {
                cursor.insertText(paragraph(room + index));
                cursor.insertBlock();
            }
        }
        QBuffer file;
        file.open(QIODevice::WriteOnly);
        QPdfWriter writer(&file);
        writer.setPageSize(QPageSize(page, QPageSize::Point));
        writer.setPageMargins({});
        document.print(&writer);
    }
}
BENCHMARK(BM_TextDocumentToPdf)->Unit(benchmark::kMillisecond);

[[maybe_unused]] const bool added =
    addRatio({"lay out and paint a report with charts to PDF: pages to QTextDocument "
              "with the paragraphs alone",
              "BM_PagesToPdf", "BM_TextDocumentToPdf", 1.0});

} // namespace
