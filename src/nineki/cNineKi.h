#pragma once

#include "nineki/NineKiSector.h"
#include "nineki/NineKiYear.h"

#include <QString>
#include <QVariant>

#include <vector>

class ReportSurface;

/// The table that a calculation publishes: its findings in the order in which they were made.
using NineKiTable = std::vector<NineKiFinding>;

/// The engine of the Nine Ki advice: the chart of a year, and the rating of its eight sectors for a move or a
/// renovation, each for the current person. A calculation opens its catalogues anew and replaces all fields.
class cNineKi {
public:
    /// Sectors and half sectors that are good. A chart finds none.
    NineKiTable Beneficial;
    /// Sectors and half sectors that are not, with the reason; the highlights of a chart.
    NineKiTable Problematic;
    /// The feng shui year of the last calculation, which can be one less than that of its date.
    qint32 Year = 0;
    /// In which sector each number stands.
    ByNineKiNumber<qint32> NumberSector;
    /// Whether it stands across the centre from its home.
    ByNineKiNumber<bool> OppositeHome;

    /// Draws the chart of the year of a date about a centre, all lengths in twips, and lists its highlights
    /// in `Problematic`. A value that is no date gives a message; nothing is drawn then, and the tables keep
    /// what the last calculation found.
    void CalcNineKiChart(ReportSurface& surface, qint32 x, qint32 y, qint32 radius,
                         const QVariant& chartDate);

    /// Rates the sectors in the year of a date for a renovation, or else for a move, and draws the compass
    /// that shows it. Without `draw` the surface is not touched.
    void CalcMoveCompass(ReportSurface& surface, qint32 x, qint32 y, qint32 radius, const QVariant& date,
                         bool draw, bool renovation);

private:
    struct Figure;

    [[nodiscard]] NineKiYear enterYear();
    void publish();

    /// What a calculation has found so far; published at its end.
    NineKiTable beneficial_;
    NineKiTable problematic_;
};
