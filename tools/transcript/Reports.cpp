#include "transcript/Reports.h"

#include "catalogues/cElement.h"
#include "locations/cLocation.h"
#include "locations/cRoom.h"
#include "profiles/cProfile.h"
#include "reports/surface/ReportRoutines.h"
#include "reports/surface/ReportSurface.h"

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

cElement chosenElement(const QString& argument) {
    cElement element;
    require(element.GetElement(id(argument)), QStringLiteral("element"), argument);
    return element;
}

/// Whether a report is for the printer.
bool isForPaper(const QString& argument) {
    if (argument != QStringLiteral("screen") && argument != QStringLiteral("paper")) {
        throw Refusal{Refusal::BadArguments,
                      QStringLiteral("\"%1\" is neither screen nor paper.").arg(argument)};
    }
    return argument == QStringLiteral("paper");
}

/// Writes a report or compass as its window does.
template<class Record>
void writeReport(const Record& record, bool forPaper, ReportSurface& vp) {
    modRooms::prepareReportPane(vp);
    vp.StartDoc();
    record.GenerateReport(vp, forPaper);
    vp.EndDoc();
}

template<class Record>
void writeCompass(const Record& record, ReportSurface& vp) {
    constexpr qint32 centre = 6000;
    modRooms::prepareCompassPane(vp);
    vp.StartDoc();
    record.DrawCompass(vp, centre, centre);
    vp.EndDoc();
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

void writeProfile(const QStringList& arguments, ReportSurface& vp) {
    const bool forPaper = isForPaper(arguments.at(1));
    chooseProfile(arguments.at(0));
    writeReport(*Global::CurrentProfile, forPaper, vp);
}

void writeElement(const QStringList& arguments, ReportSurface& vp) {
    const bool forPaper = isForPaper(arguments.at(1));
    writeReport(chosenElement(arguments.at(0)), forPaper, vp);
}

void writeProfileCompass(const QStringList& arguments, ReportSurface& vp) {
    chooseProfile(arguments.at(0));
    writeCompass(*Global::CurrentProfile, vp);
}

void writeElementCompass(const QStringList& arguments, ReportSurface& vp) {
    writeCompass(chosenElement(arguments.at(0)), vp);
}

} // namespace

const std::vector<TranscriptReport>& transcriptReports() {
    static const std::vector<TranscriptReport> reports = {
        {QStringLiteral("rooms"), QStringLiteral("PROFILEID LOCATIONID [FLOORID]"), 2, 3, writeRooms},
        {QStringLiteral("room"), QStringLiteral("PROFILEID ROOMID"), 2, 2, writeRoom},
        {QStringLiteral("profile"), QStringLiteral("PROFILEID screen|paper"), 2, 2, writeProfile},
        {QStringLiteral("element"), QStringLiteral("ELEMENTID screen|paper"), 2, 2, writeElement},
        {QStringLiteral("compass-profile"), QStringLiteral("PROFILEID"), 1, 1, writeProfileCompass},
        {QStringLiteral("compass-element"), QStringLiteral("ELEMENTID"), 1, 1, writeElementCompass},
    };
    return reports;
}
