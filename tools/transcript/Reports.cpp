#include "transcript/Reports.h"

#include "catalogues/cElement.h"
#include "core/Clock.h"
#include "core/Global.h"
#include "locations/cLocation.h"
#include "locations/cRoom.h"
#include "nineki/NineKiReports.h"
#include "profiles/cProfile.h"
#include "reports/surface/NullSurface.h"
#include "reports/surface/ReportRoutines.h"
#include "reports/surface/ReportSurface.h"
#include "transcript/PlanFigures.h"

#include <memory>
#include <optional>

namespace {

const QString compassOption = QStringLiteral("--compass");
constexpr QStringView moveMode = NineKiReports::MOVE;
constexpr QStringView renovationMode = NineKiReports::RENOVATION;

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

/// Runs a report that writes on two surfaces; the transcript is that of the text or, when the option is among
/// the arguments, that of the large pane. `build` gets the other arguments and both surfaces, pane first.
template<class Build>
void writeOneOfTwo(QStringList arguments, qsizetype count, ReportSurface& vp, Build&& build) {
    const bool compass = arguments.removeOne(compassOption);
    if (arguments.size() != count) {
        throw Refusal{Refusal::BadArguments,
                      QStringLiteral("%1 arguments are needed beside %2.").arg(count).arg(compassOption)};
    }
    chooseProfile(arguments.at(0));
    NullSurface unseen;
    ReportSurface& pane = compass ? vp : unseen;
    ReportSurface& text = compass ? unseen : vp;
    build(arguments, pane, text);
}

void writeChart(const QStringList& arguments, ReportSurface& vp) {
    writeOneOfTwo(arguments, 2, vp, [](const QStringList& given, ReportSurface& pane, ReportSurface& text) {
        NineKiReports::GetNineKiChart(pane, text, given.at(1));
    });
}

template<const QStringView& mode>
void writeDirections(const QStringList& arguments, ReportSurface& vp) {
    writeOneOfTwo(arguments, 2, vp, [](const QStringList& given, ReportSurface& pane, ReportSurface& text) {
        NineKiReports::GetMoveDirections(pane, text, given.at(1), mode.toString());
    });
}

/// An empty selection is let through: that nothing is selected is the report's affair.
void writeYears(const QStringList& arguments, ReportSurface& vp) {
    writeOneOfTwo(arguments, 4, vp, [](const QStringList& given, ReportSurface& pane, ReportSurface& text) {
        const QString& direction = given.at(1);
        if (!direction.isEmpty() && !NineKiReports::directionChoices().contains(direction)) {
            throw Refusal{Refusal::BadArguments, QStringLiteral("\"%1\" is no direction.").arg(direction)};
        }
        const QString mode = given.at(2).toUpper();
        if (mode != moveMode && mode != renovationMode) {
            throw Refusal{Refusal::BadArguments,
                          QStringLiteral("\"%1\" is neither move nor renovation.").arg(given.at(2))};
        }
        FixedClock day(QDate::fromString(given.at(3), Qt::ISODate));
        if (!day.today().isValid()) {
            throw Refusal{Refusal::BadArguments, QStringLiteral("\"%1\" is no day.").arg(given.at(3))};
        }
        Services services = Global::services();
        Clock* const systemClock = services.clock;
        services.clock = &day;
        Global::use(services);
        NineKiReports::GetMoveYears(pane, text, direction, mode);
        services.clock = systemClock;
        Global::use(services);
    });
}

} // namespace

void chooseLocation(const QString& argument) {
    Global::CurrentLocation = std::make_unique<cLocation>();
    Global::CurrentLocation->LoadLocations();
    Global::CurrentLocation->LoadFloors();
    Global::CurrentLocation->LoadRooms();
    require(Global::CurrentLocation->GetLocation(id(argument)), QStringLiteral("location"), argument);
}

const std::vector<TranscriptReport>& transcriptReports() {
    static const std::vector<TranscriptReport> reports = {
        {QStringLiteral("rooms"), QStringLiteral("PROFILEID LOCATIONID [FLOORID]"), 2, 3, writeRooms},
        {QStringLiteral("room"), QStringLiteral("PROFILEID ROOMID"), 2, 2, writeRoom},
        {QStringLiteral("profile"), QStringLiteral("PROFILEID screen|paper"), 2, 2, writeProfile},
        {QStringLiteral("element"), QStringLiteral("ELEMENTID screen|paper"), 2, 2, writeElement},
        {QStringLiteral("compass-profile"), QStringLiteral("PROFILEID"), 1, 1, writeProfileCompass},
        {QStringLiteral("compass-element"), QStringLiteral("ELEMENTID"), 1, 1, writeElementCompass},
        {QStringLiteral("chart"), QStringLiteral("PROFILEID DATE [--compass]"), 2, 3, writeChart},
        {QStringLiteral("move"), QStringLiteral("PROFILEID DATE [--compass]"), 2, 3,
         writeDirections<moveMode>},
        {QStringLiteral("renovation"), QStringLiteral("PROFILEID DATE [--compass]"), 2, 3,
         writeDirections<renovationMode>},
        {QStringLiteral("years"), QStringLiteral("PROFILEID DIRECTION move|renovation TODAY [--compass]"), 4,
         5, writeYears},
        {QStringLiteral("sectors"), QStringLiteral("NORTHOFFSET"), 1, 1, nullptr, PlanFigures::sectors},
        {QStringLiteral("angle"), QStringLiteral("X Y"), 2, 2, nullptr, PlanFigures::angle},
        {QStringLiteral("north"), QStringLiteral("X Y"), 2, 2, nullptr, PlanFigures::north},
        {QStringLiteral("place"), QStringLiteral("LOCATIONID"), 1, 1, nullptr, PlanFigures::place},
    };
    return reports;
}
