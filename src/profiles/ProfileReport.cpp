#include "catalogues/ColorBand.h"
#include "core/Failure.h"
#include "profiles/ReportParagraphs.h"
#include "profiles/cProfile.h"
#include "profiles/sentences/Profile.h"
#include "reports/surface/ReportRoutines.h"
#include "reports/surface/ReportSurface.h"

#include <array>
#include <optional>
#include <span>

using namespace reportSentences::profile;

namespace {

constexpr std::array<ReportParagraph<cProfile>, 18> paragraphs{{
    {.pieces = person},
    {.pieces = summary},
    {.pieces = beneficial, .heading = beneficialHeading},
    {.pieces = success},
    {.pieces = health},
    {.pieces = romance},
    {.pieces = development},
    {.pieces = problematic, .heading = problematicHeading},
    {.pieces = decorating},
    {.pieces = badLuck},
    {.pieces = obstacle},
    {.pieces = illness},
    {.pieces = destruction},
    {.pieces = ownElement, .heading = elementsHeading},
    {.pieces = supports, .otherId = &cElement::SUPPORTSELEMENTID},
    {.pieces = supportedBy, .otherId = &cElement::SUPPORTEDBYELEMENTID},
    {.pieces = destroys, .otherId = &cElement::DESTROYSELEMENTID},
    {.pieces = destroyedBy, .otherId = &cElement::DESTROYEDBYELEMENTID},
}};

} // namespace

void cProfile::GenerateReport(ReportSurface& vp, bool ToPrint) const {
    routine(u"cProfile.Generate Report", [&] {
        if (!ToPrint) {
            drawColorBand(vp, oColor);
        }
        modRooms::SetReportHeader(vp, PROFILENAME, 0);
        modRooms::PrintHeading(vp, joined<cProfile>(title, {*this, std::nullopt}), 0);
        writeParagraphs<cProfile>(vp, *this, oElement, paragraphs);
        vp.NewPage();
        DrawDirectionChart(vp, 6000, 7500);
    });
}
