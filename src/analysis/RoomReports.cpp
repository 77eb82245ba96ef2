#include "analysis/modRooms.h"
#include "catalogues/ElementRelations.h"
#include "core/Conversion.h"
#include "core/Failure.h"
#include "locations/cLocation.h"
#include "locations/cRoom.h"
#include "reports/surface/ReportRoutines.h"
#include "reports/surface/ReportSurface.h"
#include "store/RecordStore.h"

#include <QStringBuilder>

#include <algorithm>
#include <array>
#include <optional>

namespace {

using Analyze = void (*)(qint32 roomId, ReportSurface& vp);

/// Which analysis a room type has. Types that are not listed have none.
struct RoomKind {
    qint32 roomTypeId;
    Analyze analyze;
};

constexpr std::array<RoomKind, 13> roomKinds{{
    {1, modRooms::AnalyzeBedroom},
    {2, modRooms::AnalyzeBedroom},
    {3, modRooms::AnalyzeBathroom},
    {4, modRooms::AnalyzeFamilyRoom},
    {5, modRooms::AnalyzeDiningRoom},
    {6, modRooms::AnalyzeKitchen},
    {7, modRooms::AnalyzeHomeOffice},
    {8, modRooms::AnalyzeHallWay},
    {9, modRooms::AnalyzeHallWay},
    {10, modRooms::AnalyzeCloset},
    {11, modRooms::AnalyzeBathroom},
    {12, modRooms::AnalyzeFamilyRoom},
    {13, modRooms::AnalyzeGym},
}};

QString roomsExpression(qint32 locationId, std::optional<qint32> floorId) {
    const QString location = QString::number(locationId);
    if (!floorId) {
        return u"//z:row[@LOCATIONID = '" % location % u"']";
    }
    return u"//z:row[(@LOCATIONID = '" % location % u"') and (@FLOORID = '" % QString::number(*floorId) %
           u"')]";
}

/// Writes the room that a store's last query selected. Its type is compared as text: the whole-home report
/// converts nothing that it does not need.
void analyzeResult(cXMLHandler& rooms, ReportSurface& vp) {
    modRooms::SetReportHeader(vp, rooms.GetAttribute(QStringLiteral("DESCRIPTION"), true), 0);
    const QString roomType = rooms.GetAttribute(QStringLiteral("ROOMTYPEID"), true);
    const auto kind = std::ranges::find_if(
        roomKinds, [&](const RoomKind& listed) { return QString::number(listed.roomTypeId) == roomType; });
    if (kind != roomKinds.end()) {
        kind->analyze(Conversion::toLong(rooms.GetAttribute(QStringLiteral("ROOMID"), true)), vp);
    }
}

} // namespace

void cRoom::AnalyzeRoom(ReportSurface& vp) {
    routine(u"cRoom.Analyze Room", [&] {
        modRooms::InitReport(vp);
        vp.StartDoc();
        vp.BackColor(Global::GetDirectionColor(RelativeDirection, shades::light));
        modRooms::SetReportHeader(vp, DESCRIPTION, 0);
        const auto kind = std::ranges::find(roomKinds, ROOMTYPEID, &RoomKind::roomTypeId);
        if (kind != roomKinds.end()) {
            kind->analyze(RoomID, vp);
        }
        vp.EndDoc();
    });
}

void cLocation::AnalyzeRooms(ReportSurface& vp, std::optional<qint32> vFloorID) {
    routine(u"cLocation.Analyze Rooms", [&] {
        cXMLHandler& rooms = RecordStore::opened(oXMLRooms);
        if (!rooms.Query(roomsExpression(LocationID, vFloorID)) || rooms.ResultCount == 0) {
            return; // no document is started: the surface keeps what it shows
        }
        modRooms::InitReport(vp);
        vp.StartDoc();
        const qint32 last = rooms.ResultCount - 1;
        for (qint32 index = 0; index <= last; ++index) {
            rooms.GetResult(index);
            analyzeResult(rooms, vp);
            if (index < last) {
                vp.NewPage();
            }
        }
        vp.EndDoc();
    });
}
