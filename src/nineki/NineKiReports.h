#pragma once

#include <QString>
#include <QStringList>

#include <functional>

class ReportSurface;

/// The three reports of the Nine Ki window, each for the current person: `vpReport` gets the pages of text,
/// `vpCompass` the large chart or compass. What the user did not give is asked for by a message, after
/// `focusField` has put the focus into the field that lacks it; both surfaces then keep what they show.
namespace NineKiReports {

/// The modes. Any text but that for moving counts as renovation.
inline constexpr QStringView MOVE = u"MOVE";
inline constexpr QStringView RENOVATION = u"RENOVATION";

/// The 16 directions and half directions that the years report can be asked about, in the order of the list.
[[nodiscard]] const QStringList& directionChoices();

/// The chart of the year of a date, with its highlights.
void GetNineKiChart(ReportSurface& vpCompass, ReportSurface& vpReport, const QString& chartDate,
                    const std::function<void()>& focusField = {});

/// Which directions are good for a move on a date, or which areas for a renovation, and why the others are
/// not.
void GetMoveDirections(ReportSurface& vpCompass, ReportSurface& vpReport, const QString& moveDate,
                       const QString& moveMode, const std::function<void()>& focusField = {});

/// Which of the five years that begin today are good for one of `directionChoices`; an empty one means that
/// none is selected. A corner and its two halves are one choice. The pointer is an hourglass meanwhile.
void GetMoveYears(ReportSurface& vpCompass, ReportSurface& vpReport, const QString& direction,
                  const QString& moveMode, const std::function<void()>& focusField = {});

} // namespace NineKiReports
