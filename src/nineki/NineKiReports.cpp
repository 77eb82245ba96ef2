#include "nineki/NineKiReports.h"

#include "core/Clock.h"
#include "core/Conversion.h"
#include "core/Failure.h"
#include "core/Global.h"
#include "core/Prompts.h"
#include "nineki/cNineKi.h"
#include "reports/surface/ReportRoutines.h"
#include "reports/surface/ReportSurface.h"

#include <QDate>
#include <QStringBuilder>

#include <algorithm>
#include <array>
#include <iterator>
#include <optional>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

/// Where a figure stands and how large it is, in twips.
struct FigurePlace {
    qint32 x;
    qint32 y;
    qint32 radius;
};

constexpr FigurePlace largePane{6000, 6000, 5000};
constexpr FigurePlace chartOnPage{6000, 5000, 3000};
constexpr FigurePlace compassOnPage{3500, 4000, 2000};

/// Below the small chart, whose lowest mark is at 8150.
constexpr double belowChart = 8500;
/// The text beside the small compass, and where it ends.
constexpr double besideCompassTop = 2000;
constexpr double besideCompassIndent = 5000;
constexpr double besideCompassBottom = 6300;
constexpr double belowCompass = 6500;

/// A message to the user who has not given what a report needs.
struct Demand {
    QStringView title;
    QStringView text;
};

/// What a mode says of its reports.
struct ModeWords {
    Demand date;
    Demand direction;
    QStringView directionsHeader;
    QStringView yearsHeader;
    QStringView priorYearNote;
    QStringView beneficialHeading;
    QStringView problematicHeading;
};

// Every sentence stays whole on its line, so that it can be proof-read and searched for.
// clang-format off
constexpr Demand chartDateDemand{
    u"Advise on Nine Ki Chart", u"You must enter a valid date in the Chart Date field before the Nine Ki Chart can be provided."};
constexpr QStringView chartHeader = u"Nine Ki Chart for year ";
constexpr QStringView chartPriorYearNote = u"* note: The date provided falls before the beginning of the year ";
constexpr QStringView highlightsHeading = u"Chart highlights for the year ";
constexpr QStringView adjustedNote = u" in the Feng Shui calendar system.  Therefore it has been adjusted to the chart of the prior year.";

constexpr ModeWords moveWords{
    {u"Advise on Move Directions", u"You must enter a valid date in the Move Date field before advice on move directions can be provided."},
    {u"Advice on Move Years", u"You must select a direction before advice on move years can be provided."},
    u"Directions to move for year ",
    u"Years to move in the direction ",
    u"* note: The estimated move date falls before the beginning of the year ",
    u"Beneficial Directions for the year ",
    u"Problematic Directions for the year ",
};

constexpr ModeWords renovationWords{
    {u"Advise on Renovation Areas", u"You must enter a valid date in the Renovation Date field before advice on renovation areas can be provided."},
    {u"Advice on Renovation Years", u"You must select an area before advice on renovation years can be provided."},
    u"Areas to renovate/redecorate for year ",
    u"Years to renovate/redecorate in the area ",
    u"* note: The estimated renovation date falls before the beginning of the year ",
    u"Beneficial Areas for the year ",
    u"Problematic Areas for the year ",
};
// clang-format on

/// The directions that are one choice: a corner with its halves. Any other direction stands alone.
const std::array<QStringList, 4> cornerGroups{{
    {u"North/North-East"_s, u"North-East"_s, u"East/North-East"_s},
    {u"East/South-East"_s, u"South-East"_s, u"South/South-East"_s},
    {u"South/South-West"_s, u"South-West"_s, u"West/South-West"_s},
    {u"West/North-West"_s, u"North-West"_s, u"North/North-West"_s},
}};

QStringList groupOf(const QString& direction) {
    const auto group = std::ranges::find_if(
        cornerGroups, [&](const QStringList& names) { return names.contains(direction); });
    return group == cornerGroups.end() ? QStringList{direction} : *group;
}

bool isRenovation(const QString& moveMode) {
    return moveMode != NineKiReports::MOVE;
}

const ModeWords& wordsOf(bool renovation) {
    return renovation ? renovationWords : moveWords;
}

void ask(const Demand& demand, const std::function<void()>& focusField) {
    if (focusField) {
        focusField();
    }
    Global::service(&Services::prompts)
        .messageBox(demand.title.toString(), demand.text.toString(), MessageIcon::Information,
                    MessageButtons::Ok);
}

void openCompass(ReportSurface& vpCompass) {
    modRooms::prepareCompassPane(vpCompass);
    vpCompass.StartDoc();
}

void openReport(ReportSurface& vpReport) {
    modRooms::InitReport(vpReport);
    vpReport.StartDoc();
}

/// The header, with a note at the foot of the page where the date belongs to the chart of the year before.
void writeHeader(ReportSurface& vp, QStringView title, qint32 chartYear, const QString& date,
                 QStringView priorYearNote) {
    const qint32 calendarYear = Conversion::toDate(date).year();
    const QString header = title % QString::number(chartYear);
    if (calendarYear == chartYear) {
        modRooms::SetReportHeader(vp, header, 0);
        return;
    }
    modRooms::SetReportHeader(vp, header % u'*', 0);
    modRooms::SetReportFooter(vp, priorYearNote % QString::number(calendarYear) % adjustedNote);
}

/// Keeps what is in the group; everything without one.
NineKiTable matching(const NineKiTable& table, const QStringList& group) {
    NineKiTable found;
    std::ranges::copy_if(table, std::back_inserter(found),
                         [&](const NineKiFinding& finding) { return group.contains(finding.sector); });
    return found;
}

/// A line for each good direction.
QString goodLines(const NineKiTable& table) {
    QString text;
    for (const NineKiFinding& finding : table) {
        text += u'\t' % finding.sector % u"\r\n";
    }
    return text;
}

/// A line for each direction with what there is to say of it.
QString reasonLines(const NineKiTable& table) {
    QString text;
    for (const NineKiFinding& finding : table) {
        text += finding.sector % u' ' % finding.text % u"\r\n";
    }
    return text;
}

/// The five-year report on its way onto the page.
class YearsReport {
public:
    YearsReport(ReportSurface& vp, const QString& direction, bool renovation, QDate today)
        : vp_(vp)
        , group_(groupOf(direction))
        , renovation_(renovation)
        , words_(wordsOf(renovation))
        , today_(today) {}

    void rateYears() {
        for (int index = 0; index < yearCount; ++index) {
            calculate(index, vp_, compassOnPage, false);
        }
        for (int index = 0; index < yearCount && !best_; ++index) {
            if (!matching(years_.at(static_cast<std::size_t>(index)).Beneficial, group_).empty()) {
                best_ = index;
            }
        }
    }

    void write() {
        if (best_) {
            writeBestYear();
        } else {
            vp_.CurrentY(besideCompassTop);
        }
        vp_.IndentLeft(0);
        for (int index = 0; index < yearCount; ++index) {
            if (index != best_) {
                writeYear(years_.at(static_cast<std::size_t>(index)));
            }
        }
    }

    /// Draws the compass of the best year or, where there is none, that of the first.
    void drawCompass(ReportSurface& vpCompass) { calculate(best_.value_or(0), vpCompass, largePane, true); }

private:
    static constexpr int yearCount = 5;

    void calculate(int index, ReportSurface& surface, const FigurePlace& place, bool draw) {
        years_.at(static_cast<std::size_t>(index))
            .CalcMoveCompass(surface, place.x, place.y, place.radius, today_.addYears(index), draw,
                             renovation_);
    }

    /// The best year at the top of the page, beside its compass for as long as that lasts.
    void writeBestYear() {
        calculate(*best_, vp_, compassOnPage, true);
        const cNineKi& year = years_.at(static_cast<std::size_t>(*best_));
        const NineKiTable good = matching(year.Beneficial, group_);
        const NineKiTable bad = matching(year.Problematic, group_);
        if (!year.Beneficial.empty()) {
            vp_.CurrentY(besideCompassTop);
            vp_.IndentLeft(besideCompassIndent);
            if (!good.empty()) {
                writeGoodHeading(year);
                vp_.IndentLeft(besideCompassIndent); // the heading has put it back
                vp_.Write(goodLines(good));
            }
        }
        if (!year.Problematic.empty()) {
            indentBesideCompass();
            if (!bad.empty()) {
                writeBadHeading(year);
                indentBesideCompass();
                vp_.Write(reasonLines(bad));
            }
        }
        if (vp_.CurrentY() < besideCompassBottom) {
            vp_.CurrentY(belowCompass);
        }
    }

    void writeYear(const cNineKi& year) {
        const NineKiTable good = matching(year.Beneficial, group_);
        const NineKiTable bad = matching(year.Problematic, group_);
        if (!good.empty()) {
            writeGoodHeading(year);
            vp_.Write(goodLines(good));
        }
        if (!bad.empty()) {
            writeBadHeading(year);
            vp_.Write(reasonLines(bad));
        }
    }

    void writeGoodHeading(const cNineKi& year) {
        modRooms::PrintSubHeading(vp_, words_.beneficialHeading % QString::number(year.Year), 0);
    }

    void writeBadHeading(const cNineKi& year) {
        modRooms::PrintSubHeading(vp_, words_.problematicHeading % QString::number(year.Year) % u"\r\n", 0);
    }

    void indentBesideCompass() {
        vp_.IndentLeft(vp_.CurrentY() < besideCompassBottom ? besideCompassIndent : 0);
    }

    ReportSurface& vp_;
    QStringList group_;
    bool renovation_;
    const ModeWords& words_;
    QDate today_;
    std::array<cNineKi, yearCount> years_;
    /// How many years from today the first good one is.
    std::optional<int> best_;
};

/// The hourglass; the pointer is the default one again when this object goes.
class Hourglass {
public:
    Hourglass() { Global::service(&Services::prompts).setPointer(PointerShape::Hourglass); }
    Hourglass(const Hourglass&) = delete;
    Hourglass& operator=(const Hourglass&) = delete;
    ~Hourglass() {
        passOver([] { Global::service(&Services::prompts).setPointer(PointerShape::Default); });
    }
};

} // namespace

const QStringList& NineKiReports::directionChoices() {
    static const QStringList choices{
        u"North"_s, u"North/North-East"_s, u"North-East"_s, u"East/North-East"_s,
        u"East"_s,  u"East/South-East"_s,  u"South-East"_s, u"South/South-East"_s,
        u"South"_s, u"South/South-West"_s, u"South-West"_s, u"West/South-West"_s,
        u"West"_s,  u"West/North-West"_s,  u"North-West"_s, u"North/North-West"_s,
    };
    return choices;
}

void NineKiReports::GetNineKiChart(ReportSurface& vpCompass, ReportSurface& vpReport,
                                   const QString& chartDate, const std::function<void()>& focusField) {
    routine(u"frmNineKi.GetNineKiChart", [&] {
        if (!Conversion::isDate(chartDate)) {
            ask(chartDateDemand, focusField);
            return;
        }
        openCompass(vpCompass);
        openReport(vpReport);
        cNineKi nineKi;
        const auto calculate = [&](ReportSurface& surface, const FigurePlace& place) {
            nineKi.CalcNineKiChart(surface, place.x, place.y, place.radius, chartDate);
        };
        calculate(vpCompass, largePane);
        calculate(vpReport, chartOnPage);
        writeHeader(vpReport, chartHeader, nineKi.Year, chartDate, chartPriorYearNote);
        if (!nineKi.Problematic.empty()) {
            vpReport.CurrentY(belowChart);
            vpReport.IndentLeft(0);
            modRooms::PrintSubHeading(vpReport, highlightsHeading % QString::number(nineKi.Year) % u"\r\n",
                                      0);
            vpReport.Write(reasonLines(nineKi.Problematic));
        }
        vpReport.EndDoc();
        vpCompass.EndDoc();
    });
}

void NineKiReports::GetMoveDirections(ReportSurface& vpCompass, ReportSurface& vpReport,
                                      const QString& moveDate, const QString& moveMode,
                                      const std::function<void()>& focusField) {
    routine(u"frmNineKi.GetMoveDirections", [&] {
        const bool renovation = isRenovation(moveMode);
        const ModeWords& words = wordsOf(renovation);
        if (!Conversion::isDate(moveDate)) {
            ask(words.date, focusField);
            return;
        }
        openCompass(vpCompass);
        openReport(vpReport);
        cNineKi nineKi;
        const auto calculate = [&](ReportSurface& surface, const FigurePlace& place) {
            nineKi.CalcMoveCompass(surface, place.x, place.y, place.radius, moveDate, true, renovation);
        };
        calculate(vpCompass, largePane);
        calculate(vpReport, compassOnPage);
        const QString year = QString::number(nineKi.Year);
        writeHeader(vpReport, words.directionsHeader, nineKi.Year, moveDate, words.priorYearNote);
        if (!nineKi.Beneficial.empty()) {
            vpReport.CurrentY(besideCompassTop);
            vpReport.IndentLeft(besideCompassIndent);
            modRooms::PrintSubHeading(vpReport, words.beneficialHeading % year, 0);
            vpReport.IndentLeft(besideCompassIndent); // the heading has put it back
            vpReport.Write(goodLines(nineKi.Beneficial));
        }
        if (!nineKi.Problematic.empty()) {
            vpReport.CurrentY(belowCompass);
            vpReport.IndentLeft(0);
            modRooms::PrintSubHeading(vpReport, words.problematicHeading % year % u"\r\n", 0);
            vpReport.Write(reasonLines(nineKi.Problematic));
        }
        vpReport.EndDoc();
        vpCompass.EndDoc();
    });
}

void NineKiReports::GetMoveYears(ReportSurface& vpCompass, ReportSurface& vpReport, const QString& direction,
                                 const QString& moveMode, const std::function<void()>& focusField) {
    routine(u"frmNineKi.GetMoveYears", [&] {
        const bool renovation = isRenovation(moveMode);
        const ModeWords& words = wordsOf(renovation);
        std::optional<Hourglass> hourglass(std::in_place);
        if (direction.isEmpty()) {
            hourglass.reset(); // the user has to act now
            ask(words.direction, focusField);
            return;
        }
        openReport(vpReport);
        modRooms::SetReportHeader(vpReport, words.yearsHeader % direction, 0);
        YearsReport report(vpReport, direction, renovation, Global::service(&Services::clock).today());
        report.rateYears();
        report.write();
        vpReport.EndDoc();
        openCompass(vpCompass);
        report.drawCompass(vpCompass);
        vpCompass.EndDoc();
    });
}
