#include "analysis/modRooms.h"

#include "analysis/sentences/Bathroom.h"
#include "analysis/sentences/Bedroom.h"
#include "analysis/sentences/Closet.h"
#include "analysis/sentences/DiningRoom.h"
#include "analysis/sentences/EntranceWay.h"
#include "analysis/sentences/FamilyRoom.h"
#include "analysis/sentences/Gym.h"
#include "analysis/sentences/HallWay.h"
#include "analysis/sentences/HomeOffice.h"
#include "analysis/sentences/Kitchen.h"
#include "analysis/sentences/Shared.h"
#include "catalogues/DirectionWheel.h"
#include "catalogues/ElementRelations.h"
#include "core/Failure.h"
#include "core/Global.h"
#include "locations/cRoom.h"
#include "profiles/cProfile.h"
#include "reports/surface/ReportRoutines.h"
#include "reports/surface/ReportSurface.h"

#include <QStringBuilder>

#include <algorithm>
#include <array>
#include <optional>
#include <span>

using namespace sentences;

namespace {

/// A room on its way onto a page.
struct RoomOnPage {
    const cRoom& room;
    ReportSurface& vp;
};

/// One step of an analysis; it writes one paragraph or several.
using Step = void (*)(const RoomOnPage&);

/// An analysis: the label that its failures are reported under, what stands beside the chart, and the steps
/// below it in order. No step ever skips a later one.
struct Analysis {
    QStringView label;
    QStringView besideChart;
    std::span<const Step> steps;
};

/// The directions of the current person. Asked for only where an analysis names or compares them, so that the
/// others do without a person.
const cPersonalDirection& personalDirections() {
    if (Global::CurrentProfile == nullptr) {
        throw failure(ErrorNumber::ObjectNotSet);
    }
    return Global::CurrentProfile->oPersonalDirection;
}

/// The sentence of an id, or nothing.
std::optional<QStringView> sentenceFor(std::span<const KeyedSentence> table, qint32 id) {
    const auto found = std::ranges::find(table, id, &KeyedSentence::id);
    return found == table.end() ? std::nullopt : std::optional(found->text);
}

/// What the first of the person's directions that is the room's has to say, or nothing.
QStringView sentenceFor(std::span<const PersonalSentence> table, qint32 directionId) {
    const cPersonalDirection& person = personalDirections();
    const auto found = std::ranges::find_if(
        table, [&](const PersonalSentence& sentence) { return person.*sentence.directionId == directionId; });
    return found == table.end() ? QStringView() : found->text;
}

bool isBeneficial(qint32 directionId) {
    const cPersonalDirection& person = personalDirections();
    const std::array beneficial{person.SUCCESSDIRECTIONID, person.HEALTHDIRECTIONID,
                                person.ROMANCEDIRECTIONID, person.DEVELOPMENTDIRECTIONID};
    return std::ranges::find(beneficial, directionId) != beneficial.end();
}

QString join(std::span<const Piece> pieces) {
    QString text;
    for (const Piece& piece : pieces) {
        if (piece.name != nullptr) {
            text += personalDirections().*piece.name;
        } else {
            text += piece.text;
        }
    }
    return text;
}

// The steps that several analyses share.

template<const QStringView& sentence>
void always(const RoomOnPage& page) {
    page.vp.Write(sentence.toString());
}

template<bool cRoom::*feature, const QStringView& sentence>
void ifRoomHas(const RoomOnPage& page) {
    if (page.room.*feature) {
        page.vp.Write(sentence.toString());
    }
}

/// An id without a sentence leaves an empty paragraph, and so below.
template<const auto& table>
void byDirection(const RoomOnPage& page) {
    page.vp.Write(sentenceFor(table, page.room.RelativeDirection).value_or(QStringView()).toString());
}

template<const auto& table>
void byFlooring(const RoomOnPage& page) {
    page.vp.Write(sentenceFor(table, page.room.FLOORTYPEID).value_or(QStringView()).toString());
}

void entranceIfAny(const RoomOnPage& page) {
    if (page.room.HasEntrance) {
        modRooms::AnalyzeEntranceWay(page.room.RoomID, page.vp);
    }
}

// The paragraphs about the person.

void bedroomForPerson(const RoomOnPage& page) {
    const bool beneficial = isBeneficial(page.room.RelativeDirection);
    page.vp.Write(join(shared::mostBeneficial) %
                  join(beneficial ? bedroom::beneficial : bedroom::notBeneficial) % bedroom::oneOfThose);
}

void familyRoomForPerson(const RoomOnPage& page) {
    const bool beneficial = isBeneficial(page.room.RelativeDirection);
    page.vp.Write(join(shared::mostBeneficial) %
                  (beneficial ? familyRoom::beneficial : familyRoom::notBeneficial));
}

void bathroomForPerson(const RoomOnPage& page) {
    page.vp.Write(bathroom::drains % sentenceFor(bathroom::warnings, page.room.RelativeDirection) %
                  bathroom::keepClean);
}

/// The same whatever the room's direction.
void diningRoomForPerson(const RoomOnPage& page) {
    page.vp.Write(join(shared::mostBeneficial) % diningRoom::faceOne);
}

/// The same whatever the room's direction.
void homeOfficeForPerson(const RoomOnPage& page) {
    page.vp.Write(join(shared::mostBeneficial) % join(homeOffice::desk));
}

// The analyses.

constexpr std::array<Step, 6> bedroomSteps{
    bedroomForPerson,
    byDirection<bedroom::directions>,
    byFlooring<bedroom::floorings>,
    entranceIfAny,
    ifRoomHas<&cRoom::HASEXPOSEDBEAMS, bedroom::exposedBeams>,
    ifRoomHas<&cRoom::HASLOWCEILING, bedroom::lowCeiling>,
};

constexpr std::array<Step, 6> familyRoomSteps{
    familyRoomForPerson,
    byDirection<familyRoom::directions>,
    byFlooring<familyRoom::floorings>,
    entranceIfAny,
    ifRoomHas<&cRoom::HASEXPOSEDBEAMS, familyRoom::exposedBeams>,
    ifRoomHas<&cRoom::HASLOWCEILING, shared::lowCeiling>,
};

constexpr std::array<Step, 5> bathroomSteps{
    bathroomForPerson,
    byDirection<bathroom::directions>,
    byFlooring<bathroom::floorings>,
    entranceIfAny,
    ifRoomHas<&cRoom::HASLOWCEILING, shared::lowCeiling>,
};

constexpr std::array<Step, 5> diningRoomSteps{
    diningRoomForPerson,
    byDirection<diningRoom::directions>,
    byFlooring<diningRoom::floorings>,
    entranceIfAny,
    ifRoomHas<&cRoom::HASLOWCEILING, shared::lowCeiling>,
};

constexpr std::array<Step, 4> kitchenSteps{
    byDirection<kitchen::directions>,
    byFlooring<kitchen::floorings>,
    entranceIfAny,
    always<kitchen::stoveAndSink>,
};

constexpr std::array<Step, 6> homeOfficeSteps{
    homeOfficeForPerson,
    byDirection<homeOffice::directions>,
    byFlooring<homeOffice::floorings>,
    entranceIfAny,
    ifRoomHas<&cRoom::HASEXPOSEDBEAMS, homeOffice::exposedBeams>,
    ifRoomHas<&cRoom::HASLOWCEILING, shared::lowCeiling>,
};

/// Here the entrance comes first: it is what makes a hall way matter.
constexpr std::array<Step, 2> hallWaySteps{
    entranceIfAny,
    always<hallWay::longHallWay>,
};

constexpr std::array<Step, 3> closetSteps{
    always<closet::stagnation>,
    always<closet::cleaning>,
    entranceIfAny,
};

constexpr std::array<Step, 2> gymSteps{
    always<gym::equipment>,
    entranceIfAny,
};

void analyze(const Analysis& analysis, qint32 roomId, ReportSurface& vp) {
    constexpr double chartCentre = 3500;
    constexpr double besideChart = 2500;
    constexpr double belowChart = 5800;
    routine(analysis.label, [&] {
        cRoom room;
        room.LoadRooms();
        if (!room.GetRoom(roomId)) {
            return;
        }
        modRooms::DrawVPChart(vp, chartCentre, chartCentre, room.RelativeDirection);
        vp.CurrentY(besideChart);
        modRooms::PrintBesideChart(vp, analysis.besideChart.toString(), 0);
        vp.CurrentY(belowChart);
        for (const Step step : analysis.steps) {
            step({room, vp});
        }
    });
}

/// A letter of the wheel, by its distance from the centre in twips.
struct ChartLabel {
    QStringView letter;
    double right;
    double down;
};

constexpr std::array<ChartLabel, 4> chartLabels{{
    {u"S", -50, -1900},
    {u"N", -50, 1750},
    {u"E", -1900, -50},
    {u"W", 1750, -50},
}};

/// How a sector is filled: shade of its direction's colour and radius in twips.
struct SectorLook {
    qint32 shade;
    double radius;
};

constexpr SectorLook ownSector{shades::normal, 1600};
constexpr SectorLook otherSector{shades::light, 1440};

} // namespace

void modRooms::DrawVPChart(ReportSurface& vp, double X, double Y, qint32 Direction) {
    routine(u"modRooms.Draw VP Chart", [&] {
        for (const ChartLabel& label : chartLabels) {
            vp.CurrentY(Y + label.down);
            vp.CurrentX(X + label.right);
            vp.Write(label.letter.toString());
        }
        vp.BrushStyle(0);
        for (const DirectionSector& sector : directionSectors) {
            const SectorLook& look = sector.directionId == Direction ? ownSector : otherSector;
            vp.BrushColor(Global::GetDirectionColor(sector.directionId, look.shade));
            drawSector(vp, X, Y, look.radius, sector.directionId);
        }
    });
}

void modRooms::AnalyzeBedroom(qint32 RoomID, ReportSurface& vp) {
    analyze({u"modRooms.Analyze Bedroom", bedroom::besideChart, bedroomSteps}, RoomID, vp);
}

void modRooms::AnalyzeFamilyRoom(qint32 RoomID, ReportSurface& vp) {
    analyze({u"modRooms.Analyze Family Room", familyRoom::besideChart, familyRoomSteps}, RoomID, vp);
}

void modRooms::AnalyzeBathroom(qint32 RoomID, ReportSurface& vp) {
    analyze({u"modRooms.Analyze Bathroom", bathroom::besideChart, bathroomSteps}, RoomID, vp);
}

void modRooms::AnalyzeDiningRoom(qint32 RoomID, ReportSurface& vp) {
    analyze({u"modRooms.Analyze Dining Room", diningRoom::besideChart, diningRoomSteps}, RoomID, vp);
}

void modRooms::AnalyzeKitchen(qint32 RoomID, ReportSurface& vp) {
    analyze({u"modRooms.Analyze Kitchen", kitchen::besideChart, kitchenSteps}, RoomID, vp);
}

void modRooms::AnalyzeHomeOffice(qint32 RoomID, ReportSurface& vp) {
    analyze({u"modRooms.Analyze Home Office", homeOffice::besideChart, homeOfficeSteps}, RoomID, vp);
}

void modRooms::AnalyzeHallWay(qint32 RoomID, ReportSurface& vp) {
    analyze({u"modRooms.Analyze Hall Way", hallWay::besideChart, hallWaySteps}, RoomID, vp);
}

void modRooms::AnalyzeCloset(qint32 RoomID, ReportSurface& vp) {
    analyze({u"modRooms.Analyze Closet", closet::besideChart, closetSteps}, RoomID, vp);
}

void modRooms::AnalyzeGym(qint32 RoomID, ReportSurface& vp) {
    analyze({u"modRooms.Analyze Gym", gym::besideChart, gymSteps}, RoomID, vp);
}

void modRooms::AnalyzeEntranceWay(qint32 RoomID, ReportSurface& vp) {
    routine(u"modRooms.Analyze Entrance Way", [&] {
        cRoom room;
        room.LoadRooms();
        if (!room.GetRoom(RoomID)) {
            return;
        }
        vp.Write(sentenceFor(entranceWay::judgements, room.RelativeDirection).toString());
        // The one place where a direction without a sentence leaves no paragraph at all.
        if (const auto sentence = sentenceFor(entranceWay::directions, room.RelativeDirection)) {
            vp.Write(sentence->toString());
        }
        vp.Write(entranceWay::backdoor.toString());
    });
}
