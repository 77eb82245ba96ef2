#pragma once

#include <QString>

class ReportSurface;

/// The page conventions that all reports share.
namespace modRooms {

/// Prepares a surface for a new document: margins of an inch, empty header and footer, base font.
void InitReport(ReportSurface& vp);

/// Prepares the surface of a pane that shows a compass or chart alone: no margins, letters of 20 points in
/// bold, small enough for the figure to be seen whole.
void prepareCompassPane(ReportSurface& vp);

/// Prepares the surface of a pane that shows the report on a person or an element.
void prepareReportPane(ReportSurface& vp);

/// Sets the base text and drawing state.
void ResetReportFont(ReportSurface& vp);

/// Writes a bold underlined heading of 14 points at the left margin.
void PrintHeading(ReportSurface& vp, const QString& text, qint32 color);

/// Writes a bold underlined heading of 12 points.
void PrintSubHeading(ReportSurface& vp, const QString& text, qint32 color);

/// Sets the page header.
void SetReportHeader(ReportSurface& vp, const QString& text, qint32 color);

/// Sets the page footer's text, nothing else.
void SetReportFooter(ReportSurface& vp, const QString& text);

/// Writes a paragraph of 12 points indented by 5000 twips, so that it stands beside a chart.
void PrintBesideChart(ReportSurface& vp, const QString& text, qint32 color);

} // namespace modRooms
