#include "reports/pages/PageSurface.h"
#include "reports/surface/RecordingSurface.h"
#include "reports/surface/ReportRoutines.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <functional>
#include <utility>

/// Writes reports as HTML into a folder, and beside each the texts that were written, in order, as JSON:
/// check_html.py compares the two.
namespace {

void writeRooms(ReportSurface& vp) {
    for (int room = 0; room < 3; ++room) {
        modRooms::SetReportHeader(vp, QStringLiteral("Room %1").arg(room / 2), 0);
        for (const QString& letter : {QStringLiteral("S"), QStringLiteral("N")}) {
            vp.CurrentY(1600 + 1800 * room);
            vp.CurrentX(3450);
            vp.Write(letter);
        }
        vp.DrawCircle(3500, 3500, 1440, 0.5, 2);
        vp.TextAngle(900);
        vp.TextBox(QStringLiteral("Total Loss"), 3500, 3500, 5000, 0);
        vp.CurrentY(2500);
        modRooms::PrintBesideChart(vp, QStringLiteral("Your bedroom  stands well."), 0);
        vp.CurrentY(5800);
        for (int paragraph = 0; paragraph < 30; ++paragraph) {
            vp.Write(QStringLiteral("The energy of  this room is strong. ").repeated(paragraph));
        }
        modRooms::PrintHeading(vp, QStringLiteral("Elements"), 0x800000);
        modRooms::PrintSubHeading(vp, QStringLiteral("Years\r\n"), 0);
        vp.Write(QStringLiteral("\tNorth\r\n\tSouth-West\r\n"));
        modRooms::SetReportFooter(vp, QStringLiteral("* note: a & b"));
        if (room < 2) {
            vp.NewPage();
        }
    }
}

void writeHostileTexts(ReportSurface& vp) {
    QStringList texts{QStringLiteral("<script>alert(1)</script>"),
                      QStringLiteral("&amp; &lt; &#0; & &unknown;"),
                      QStringLiteral("\"double\" 'single' `back`"),
                      QStringLiteral("]]> <![CDATA[ <!-- -- --> <?php ?>"),
                      QStringLiteral("</p></section></body></html>"),
                      QStringLiteral("  blanks   kept  "),
                      QStringLiteral("\u05E9\u05DC\u05D5\u05DD \u0645\u0631\u062D\u0628\u0627"),
                      QStringLiteral("\u98CE\u6C34 \U0001F409\U0001F468\u200D\U0001F469\u200D\U0001F467"),
                      QStringLiteral("e\u0301 \u200F\u202E\u00A0\u00AD\uFEFF"),
                      QStringLiteral("mixed\rline\nends\r\n"),
                      QString(QChar(0xD800)),
                      QStringLiteral("x") + QChar(0xDFFF) + u'y'};
    for (ushort code = 0; code < 0xA0; ++code) {
        texts += QStringLiteral("<%1>").arg(QChar(code));
    }
    for (const QString& text : std::as_const(texts)) {
        modRooms::SetReportHeader(vp, text, 0);
        vp.Write(text);
        vp.TextBox(QString(text).remove(u'\r').remove(u'\n'), 3000, 4000, 0, 0);
        vp.NewPage();
    }
}

void writeLongReport(ReportSurface& vp) {
    for (int page = 0; page < 300; ++page) {
        vp.DrawCircle(3500, 3500, 1440, page, page + 1);
        vp.Write(QStringLiteral("paragraph %1 ").arg(page).repeated(100));
        vp.NewPage();
    }
}

bool exportSample(const QDir& folder, const QString& name, const std::function<void(ReportSurface&)>& write) {
    PageSurface pages;
    QJsonArray texts;
    RecordingSurface recorder(pages, [&texts](const SurfaceCall& call) {
        if (call.op == QLatin1String("Write") || call.op == QLatin1String("TextBox")) {
            texts += call.args.at(0).toString();
        }
    });
    modRooms::InitReport(recorder);
    recorder.ExportFile(folder.filePath(name + QLatin1String(".html")));
    recorder.StartDoc();
    write(recorder);
    recorder.EndDoc();
    QFile file(folder.filePath(name + QLatin1String(".json")));
    const QJsonObject expected{{QStringLiteral("texts"), texts},
                               {QStringLiteral("pages"), pages.PageCount()}};
    return file.open(QIODevice::WriteOnly) && file.write(QJsonDocument(expected).toJson()) > 0;
}

} // namespace

int main(int argc, char** argv) {
    const QGuiApplication application(argc, argv);
    const QDir folder(QCoreApplication::arguments().value(1));
    const bool done = exportSample(folder, QStringLiteral("rooms"), writeRooms) &&
                      exportSample(folder, QStringLiteral("hostile"), writeHostileTexts) &&
                      exportSample(folder, QStringLiteral("long"), writeLongReport) &&
                      exportSample(folder, QStringLiteral("empty"), [](ReportSurface&) {});
    return done ? 0 : 1;
}
