#include "pictures/ReportPictures.h"

#include "pictures/PictureFile.h"
#include "reports/pages/PagePainter.h"
#include "reports/pages/PageSurface.h"
#include "transcript/Reports.h"

#include <QPainter>

#include <algorithm>

namespace {

/// A report of the transcripts' table with its arguments, and the name of its pictures.
struct ReportPicture {
    const char* name;
    const char* report;
    QStringList arguments;
};

QList<ReportPicture> reportPictures() {
    const QString ann = QStringLiteral("1");
    const QString ben = QStringLiteral("2");
    const QString home = QStringLiteral("1");
    const QString paper = QStringLiteral("paper");
    const QString day = QStringLiteral("2026-02-14");
    const QString compass = QStringLiteral("--compass");
    QList<ReportPicture> pictures = {
        {"home", "rooms", {ann, home}},
        {"bedroom", "room", {ann, QStringLiteral("10")}},
        {"profile-1", "profile", {ann, paper}},
        {"profile-2", "profile", {ben, paper}},
        {"profile-compass", "compass-profile", {ann}},
        {"chart", "chart", {ann, day}},
        {"chart-compass", "chart", {ann, day, compass}},
        {"move", "move", {ann, day}},
        {"move-compass", "move", {ann, day, compass}},
        {"renovation", "renovation", {ann, day}},
        {"renovation-compass", "renovation", {ann, day, compass}},
        {"move-years", "years", {ann, QStringLiteral("South"), QStringLiteral("move"), day}},
        {"renovation-years", "years", {ann, QStringLiteral("South"), QStringLiteral("renovation"), day}},
        {"element-compass", "compass-element", {QStringLiteral("1")}},
    };
    for (const char* name : {"element-1", "element-2", "element-3", "element-4", "element-5"}) {
        pictures.append({name, "element", {QString::fromLatin1(name).right(1), paper}});
    }
    return pictures;
}

QImage painted(const PageSurface& surface, qint32 page) {
    constexpr double dotsPerTwip = 72.0 / 1440;
    QImage image((surface.pageSize() * dotsPerTwip).toSize(), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(dotsPerTwip, dotsPerTwip);
    paintPage(painter, surface.document(), page, PaintTarget::Paper);
    return image;
}

void write(const ReportPicture& picture, ReportSurface& surface) {
    const auto& reports = transcriptReports();
    const auto report =
        std::ranges::find(reports, QString::fromLatin1(picture.report), &TranscriptReport::name);
    if (report == reports.end()) {
        stop(QStringLiteral("there is no report ") + QString::fromLatin1(picture.report));
    }
    try {
        report->write(picture.arguments, surface);
    } catch (const Refusal& refusal) {
        stop(QString::fromLatin1(picture.name) + QStringLiteral(": ") + refusal.message);
    }
}

} // namespace

void paintReports(const QString& folder) {
    for (const ReportPicture& picture : reportPictures()) {
        PageSurface surface;
        write(picture, surface);
        if (surface.PageCount() < 1) {
            stop(QString::fromLatin1(picture.name) + QStringLiteral(" has no page"));
        }
        for (qint32 page = 0; page < surface.PageCount(); ++page) {
            const QString number = QStringLiteral("%1").arg(page + 1, 2, 10, QLatin1Char('0'));
            savePicture(
                painted(surface, page),
                QStringLiteral("%1/%2-%3.png").arg(folder, QString::fromLatin1(picture.name), number));
        }
    }
}
