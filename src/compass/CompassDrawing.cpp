#include "compass/CompassDrawing.h"

#include "compass/PlanSurface.h"
#include "core/Conversion.h"
#include "core/Failure.h"
#include "core/Global.h"
#include "locations/cLocation.h"
#include "store/RecordStore.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;
using CompassGeometry::PlanPoint;

namespace {

/// How a sector of the table looks: its stored colour value, and the label of a cardinal one.
struct SectorLook {
    qint32 fill;
    QStringView label;
};

constexpr std::array<SectorLook, CompassGeometry::SECTOR_COUNT> looks = {{
    {0xD5F5FF, u"N"},
    {0xE2E2E2, u""},
    {0xAAAAFF, u"W"},
    {0x9A9A9A, u""},
    {0xC8A5DA, u"S"},
    {0xFFE3AA, u""},
    {0x97EA6A, u"E"},
    {0xFFFFFF, u""},
}};

constexpr qint32 black = 0;
constexpr qint32 red = 0x0000FF;
/// From the edge of the surface to the circle.
constexpr float circleInset = 40;

cXMLHandler& currentRooms() {
    if (Global::CurrentLocation == nullptr) {
        throw failure(ErrorNumber::ObjectNotSet);
    }
    return RecordStore::opened(Global::CurrentLocation->oXMLRooms);
}

float circleRadius(const PlanSurface& surface) {
    return static_cast<float>(CompassGeometry::rounded(surface.scale().ScaleWidth / 2 - circleInset));
}

/// A letter of the compass stands out among the names of the rooms.
void printLetter(PlanSurface& surface, const PlanPoint& point, const QString& letter) {
    surface.FontBold = true;
    surface.CurrentX = static_cast<float>(point.X);
    surface.CurrentY = static_cast<float>(point.Y);
    surface.Print(letter);
    surface.FontBold = false;
}

void drawCentre(PlanSurface& surface) {
    constexpr float arm = 30;
    constexpr float ring = 10;
    constexpr float dot = 5;
    surface.Line(0, -arm, 0, arm);
    surface.Line(-arm, 0, arm, 0);
    surface.Circle(0, 0, ring);
    surface.FillStyle = PlanFill::Solid;
    surface.FillColor = red;
    surface.Circle(0, 0, dot);
    surface.FillStyle = PlanFill::Transparent;
    surface.FillColor = black;
}

} // namespace

CompassDrawing::CompassDrawing(View view)
    : view_(view) {}

QString CompassDrawing::label(QStringView routineName) const {
    return QString(view_ == View::Room ? u"frmRoomDirection."_s : u"frmSetDirection."_s).append(routineName);
}

void CompassDrawing::LoadRooms(qint32 id) {
    routine(label(u"Load Rooms"), [&] {
        const QString key = view_ == View::Room ? u"ROOMID"_s : u"LOCATIONID"_s;
        currentRooms().Query(u"//z:row[@%1 = '%2']"_s.arg(key, QString::number(id)));
    });
}

void CompassDrawing::DrawCompass(PlanSurface& surface, double north,
                                 const std::optional<PlanPoint>& clicked) {
    routine(label(u"Draw Compass"), [&] {
        setScale(surface, Target::Screen);
        drawCompass(surface, north, Colors::Table);
        if (view_ == View::Home) {
            drawWinds(surface, clicked.value_or(unsetNorth(surface)));
        }
    });
}

PlanPoint CompassDrawing::unsetNorth(const PlanSurface& surface) {
    return {.X = 0, .Y = static_cast<double>(surface.scale().ScaleTop + circleInset)};
}

void CompassDrawing::PrintCompass(PlanSurface& surface, double north, const PlanPoint& clicked,
                                  bool inColor) {
    routine(label(u"Print Compass"), [&] {
        setScale(surface, Target::Paper);
        drawCompass(surface, north, inColor ? Colors::Table : Colors::OutlinesOnly);
        if (view_ == View::Home) {
            drawWinds(surface, clicked);
        }
    });
}

void CompassDrawing::DrawRooms(PlanSurface& surface) {
    routine(label(view_ == View::Room ? u"Draw Room" : u"Draw Rooms"),
            [&] { drawRooms(surface, Target::Screen); });
}

void CompassDrawing::PrintRooms(PlanSurface& surface) {
    routine(label(view_ == View::Room ? u"Print Room" : u"Print Rooms"),
            [&] { drawRooms(surface, Target::Paper); });
}

void CompassDrawing::setScale(PlanSurface& surface, Target target) {
    const bool onScreen = target == Target::Screen;
    routine(label(onScreen ? u"Set Pic ScaleMode" : u"Set Printer ScaleMode"), [&] {
        extent.measure(currentRooms());
        surface.setScale(onScreen ? extent.screenScale() : extent.printerScale());
    });
}

void CompassDrawing::drawCompass(PlanSurface& surface, double north, Colors colors) {
    surface.FillStyle = colors == Colors::Table ? PlanFill::Solid : PlanFill::Transparent;
    Sectors = CompassGeometry::sectors(north);
    for (std::size_t index = 0; index < Sectors.size(); ++index) {
        drawSector(surface, index, colors);
    }
    surface.FillStyle = PlanFill::Transparent;
    surface.Circle(0, 0, circleRadius(surface));
}

void CompassDrawing::drawSector(PlanSurface& surface, std::size_t index, Colors colors) {
    constexpr double top = 360;
    constexpr double justPastTheTop = 0.01;
    const CompassGeometry::Sector& sector = Sectors[index];
    const qint32 color = colors == Colors::Table ? looks[index].fill : black;
    surface.FillColor = color;
    const float radius = circleRadius(surface);
    if (sector.StartAngle <= sector.EndAngle) {
        drawPie(surface, radius, color, sector.StartAngle, sector.EndAngle);
    } else {
        drawPie(surface, radius, color, sector.StartAngle, top);
        drawPie(surface, radius, color, justPastTheTop, sector.EndAngle);
    }
    if (view_ == View::Room && !looks[index].label.isEmpty()) {
        const PlanScale& scale = surface.scale();
        printLetter(surface,
                    CompassGeometry::labelPoint(CompassGeometry::middleAngle(sector),
                                                static_cast<double>(scale.ScaleWidth),
                                                static_cast<double>(scale.ScaleHeight)),
                    looks[index].label.toString());
    }
}

void CompassDrawing::drawPie(PlanSurface& surface, float radius, qint32 color, double start, double end) {
    routine(label(u"PieSlice"), [&] {
        PieSlice(surface, 0, 0, radius, color, static_cast<float>(start), static_cast<float>(end));
    });
}

/// The four letters, by turning the point of North about the centre.
void CompassDrawing::drawWinds(PlanSurface& surface, const PlanPoint& north) {
    const auto [X, Y] = north;
    printLetter(surface, {.X = X, .Y = Y}, u"N"_s);
    printLetter(surface, {.X = -X, .Y = -Y}, u"S"_s);
    printLetter(surface, {.X = -Y, .Y = X}, u"E"_s);
    printLetter(surface, {.X = Y, .Y = -X}, u"W"_s);
}

void CompassDrawing::drawRooms(PlanSurface& surface, Target target) {
    setScale(surface, target);
    cXMLHandler& rooms = currentRooms();
    for (qint32 index = 0; index < rooms.ResultCount; ++index) {
        rooms.GetResult(index);
        if (Conversion::toLong(rooms.GetAttribute(u"FLOORID"_s, true)) == Global::CurrentFloorID) {
            drawRoom(surface, rooms);
        }
        if (target == Target::Screen) {
            noteDirection(rooms);
        }
    }
    drawCentre(surface);
}

void CompassDrawing::drawRoom(PlanSurface& surface, cXMLHandler& rooms) const {
    constexpr float textInset = 10;
    constexpr float tiny = 0.01F;
    const RoomPlace room = RoomPlace::ofResult(rooms);
    const PlanPoint corner = extent.cornerOf(room);
    const auto left = static_cast<float>(corner.X);
    const auto top = static_cast<float>(corner.Y);
    const auto right = static_cast<float>(corner.X + room.WIDTH);
    const auto bottom = static_cast<float>(corner.Y + room.LENGTH);
    surface.Line(left, top, right, top);
    surface.Line(right, top, right, bottom);
    surface.Line(right, bottom, left, bottom);
    surface.Line(left, bottom, left, top);
    surface.CurrentX = left + textInset;
    surface.CurrentY = top + textInset;
    // Alone on its plan a room tells its whole name; among others it keeps to its own walls.
    PlanSpace space;
    if (view_ == View::Home) {
        space = {.width = std::max(right - surface.CurrentX, tiny), .height = bottom - surface.CurrentY};
    }
    surface.Print(rooms.GetAttribute(u"DESCRIPTION"_s, true), space);
}

void CompassDrawing::noteDirection(cXMLHandler& rooms) const {
    const PlanPoint middle = extent.middleOf(RoomPlace::ofResult(rooms));
    const double angle = routine(label(u"GetAngle"), 0.0, [&](double& result) {
        result = CompassGeometry::GetAngle(middle.X, middle.Y);
    });
    if (const std::optional<qint32> direction = CompassGeometry::directionAt(Sectors, angle)) {
        rooms.SetAttribute(u"RELATIVEDIRECTION"_s, *direction, true);
    }
}
