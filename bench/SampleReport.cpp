#include "SampleReport.h"

#include "reports/surface/ReportRoutines.h"
#include "reports/surface/ReportSurface.h"

#include <array>
#include <numbers>
#include <tuple>

namespace {

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

} // namespace

QString SampleReport::paragraph(int index) {
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

void SampleReport::write(ReportSurface& surface) {
    modRooms::InitReport(surface);
    surface.StartDoc();
    for (int room = 0; room < rooms; ++room) {
        modRooms::SetReportHeader(surface, QStringLiteral("Room %1").arg(room), 0);
        drawWheel(surface);
        surface.CurrentY(2500);
        modRooms::PrintBesideChart(surface, paragraph(room), 0);
        surface.CurrentY(5800);
        for (int index = 1; index < paragraphsOfRoom; ++index) {
            surface.Write(paragraph(room + index));
        }
        if (room + 1 < rooms) {
            surface.NewPage();
        }
    }
    surface.EndDoc();
}
