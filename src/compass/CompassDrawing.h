#pragma once

#include "compass/CompassGeometry.h"
#include "compass/PlanExtent.h"

#include <QString>

#include <optional>

class cXMLHandler;
class PlanSurface;

/// The drawing of the current home's rooms under the compass, for the screen and for paper. Every routine
/// reports its failures under the label of the view that it serves, and the next one goes on.
class CompassDrawing {
public:
    /// One room in the middle of its own compass, or the shown floor of the whole home.
    enum class View { Room, Home };

    explicit CompassDrawing(View view);

    [[nodiscard]] View view() const { return view_; }

    /// The bounds of the eight sectors since the compass was last drawn.
    CompassGeometry::SectorTable Sectors{};
    /// The bounding box of the rooms since it was last measured.
    PlanExtent extent;

    /// Selects what the view sees: the room, or the rooms of the home, with that id.
    void LoadRooms(qint32 id);

    /// Draws the sectors and the letters of the four winds. `clicked` is the point that was clicked to set
    /// North; without one the letters of a home stand at the edge, "N" at the top.
    void DrawCompass(PlanSurface& surface, double north,
                     const std::optional<CompassGeometry::PlanPoint>& clicked);

    /// Where the letter "N" of a home stands whose North was never set.
    [[nodiscard]] static CompassGeometry::PlanPoint unsetNorth(const PlanSurface& surface);

    /// Draws the rooms of the shown floor and the centre, and notes every room's direction in memory, that
    /// of a room on another floor too.
    void DrawRooms(PlanSurface& surface);

    /// The compass on paper, in the table's colours or in black outlines.
    void PrintCompass(PlanSurface& surface, double north, const CompassGeometry::PlanPoint& clicked,
                      bool inColor);

    /// The rooms on paper; no direction changes.
    void PrintRooms(PlanSurface& surface);

    /// The view's label of a routine, "frmSetDirection.Draw Compass".
    [[nodiscard]] QString label(QStringView routineName) const;

private:
    enum class Target { Screen, Paper };
    enum class Colors { Table, OutlinesOnly };

    void setScale(PlanSurface& surface, Target target);
    void drawCompass(PlanSurface& surface, double north, Colors colors);
    void drawSector(PlanSurface& surface, std::size_t index, Colors colors);
    void drawPie(PlanSurface& surface, float radius, qint32 color, double start, double end);
    static void drawWinds(PlanSurface& surface, const CompassGeometry::PlanPoint& north);
    void drawRooms(PlanSurface& surface, Target target);
    void drawRoom(PlanSurface& surface, cXMLHandler& rooms) const;
    void noteDirection(cXMLHandler& rooms) const;

    View view_;
};
