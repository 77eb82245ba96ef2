#include "transcript/Reports.h"

#include "locations/cLocation.h"
#include "locations/cRoom.h"
#include "profiles/cProfile.h"

#include <memory>
#include <optional>

namespace {

qint32 id(const QString& argument) {
    bool isNumber = false;
    const qint32 number = argument.toInt(&isNumber);
    if (!isNumber) {
        throw Refusal{Refusal::BadArguments, QStringLiteral("\"%1\" is no id.").arg(argument)};
    }
    return number;
}

/// Refuses a record that was looked for in vain.
void require(bool found, const QString& what, const QString& argument) {
    if (!found) {
        throw Refusal{Refusal::NotThere, QStringLiteral("There is no %1 %2.").arg(what, argument)};
    }
}

void chooseProfile(const QString& argument) {
    Global::CurrentProfile = std::make_unique<cProfile>();
    require(Global::CurrentProfile->GetProfile(id(argument)), QStringLiteral("profile"), argument);
}

void chooseLocation(const QString& argument) {
    Global::CurrentLocation = std::make_unique<cLocation>();
    Global::CurrentLocation->LoadLocations();
    Global::CurrentLocation->LoadFloors();
    Global::CurrentLocation->LoadRooms();
    require(Global::CurrentLocation->GetLocation(id(argument)), QStringLiteral("location"), argument);
}

void writeRooms(const QStringList& arguments, ReportSurface& vp) {
    std::optional<qint32> floor;
    if (arguments.size() > 2) {
        floor = id(arguments.at(2));
    }
    chooseProfile(arguments.at(0));
    chooseLocation(arguments.at(1));
    Global::CurrentLocation->AnalyzeRooms(vp, floor);
}

void writeRoom(const QStringList& arguments, ReportSurface& vp) {
    const qint32 roomId = id(arguments.at(1));
    chooseProfile(arguments.at(0));
    cRoom room;
    room.LoadRooms();
    require(room.GetRoom(roomId), QStringLiteral("room"), arguments.at(1));
    chooseLocation(QString::number(room.LocationID));
    room.AnalyzeRoom(vp);
}

} // namespace

const std::vector<TranscriptReport>& transcriptReports() {
    static const std::vector<TranscriptReport> reports = {
        {QStringLiteral("rooms"), QStringLiteral("PROFILEID LOCATIONID [FLOORID]"), 2, 3, writeRooms},
        {QStringLiteral("room"), QStringLiteral("PROFILEID ROOMID"), 2, 2, writeRoom},
    };
    return reports;
}
