#include "reports/surface/ReportRoutines.h"

#include "reports/surface/ReportSurface.h"

namespace modRooms {

void InitReport(ReportSurface& vp) {
    constexpr double inch = 1440;
    vp.ToolTipText(QString());
    ResetReportFont(vp);
    vp.MarginBottom(inch);
    vp.MarginFooter(0);
    vp.MarginLeft(inch);
    vp.MarginHeader(0);
    vp.MarginRight(inch);
    vp.MarginTop(inch);
    vp.PageBorder(3);
    vp.Header(QString());
    vp.HdrColor(0);
    vp.Footer(QString());
    vp.Columns(1);
    vp.TableBorder(7);
    vp.ZoomMode(4);
    vp.X1(0);
    vp.Y1(0);
    vp.X2(0);
    vp.Y2(0);
}

void prepareCompassPane(ReportSurface& vp) {
    InitReport(vp);
    vp.MarginLeft(0);
    vp.MarginRight(0);
    vp.MarginTop(0);
    vp.MarginBottom(0);
    vp.MarginHeader(0);
    vp.MarginFooter(0);
    vp.FontSize(20);
    vp.FontBold(true);
    vp.ZoomMode(0);
    vp.Zoom(38);
}

void prepareReportPane(ReportSurface& vp) {
    InitReport(vp);
    vp.ZoomMode(0);
    vp.Zoom(78);
}

void ResetReportFont(ReportSurface& vp) {
    vp.FontName(QStringLiteral("Arial"));
    vp.FontBold(false);
    vp.FontItalic(false);
    vp.FontUnderline(false);
    vp.FontSize(11);
    vp.TextColor(0);
    vp.TextAngle(0);
    vp.TextAlign(6);
    vp.IndentLeft(0);
    vp.IndentFirst(0);
    vp.IndentRight(0);
    vp.IndentTab(720);
    vp.SpaceAfter(130);
    vp.PenColor(0);
    vp.PenStyle(0);
    vp.PenWidth(1);
    vp.BrushColor(0x8080FF);
    vp.BrushStyle(0);
}

void PrintHeading(ReportSurface& vp, const QString& text, qint32 color) {
    vp.FontName(vp.FontFace());
    vp.IndentLeft(0);
    vp.FontBold(true);
    vp.FontUnderline(true);
    vp.FontSize(14);
    vp.TextColor(color);
    vp.Write(text);
    ResetReportFont(vp);
}

void PrintSubHeading(ReportSurface& vp, const QString& text, qint32 color) {
    vp.FontName(vp.FontFace());
    vp.FontBold(true);
    vp.FontUnderline(true);
    vp.FontSize(12);
    vp.TextColor(color);
    vp.Write(text);
    ResetReportFont(vp);
}

void SetReportHeader(ReportSurface& vp, const QString& text, qint32 color) {
    vp.HdrColor(color);
    // No machine has a face of this name: the surface falls back to its default one, and the header's look
    // rests on that.
    vp.HdrFontName(QStringLiteral("Ariel"));
    vp.HdrFontBold(true);
    vp.HdrFontItalic(false);
    vp.HdrFontStrikethru(false);
    vp.HdrFontUnderline(false);
    vp.HdrFontSize(14);
    vp.Header(text);
}

void SetReportFooter(ReportSurface& vp, const QString& text) {
    vp.Footer(text);
}

void PrintBesideChart(ReportSurface& vp, const QString& text, qint32 color) {
    constexpr double besideChart = 5000;
    vp.FontName(vp.FontFace());
    vp.IndentLeft(besideChart);
    vp.FontBold(false);
    vp.FontUnderline(false);
    vp.FontSize(12);
    vp.TextColor(color);
    vp.Write(text);
    ResetReportFont(vp);
}

} // namespace modRooms
