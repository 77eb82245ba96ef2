#include "catalogues/ColorBand.h"
#include "catalogues/cElement.h"
#include "core/Failure.h"
#include "profiles/ReportParagraphs.h"
#include "profiles/sentences/Element.h"
#include "reports/surface/ReportRoutines.h"
#include "reports/surface/ReportSurface.h"

#include <array>

using namespace reportSentences::element;

namespace {

constexpr std::array<ReportParagraph<cElement>, 7> paragraphs{{
    {.pieces = description, .heading = characterHeading},
    {.pieces = directions},
    {.pieces = maintaining},
    {.pieces = calming, .heading = calmingHeading, .otherId = &cElement::SUPPORTSELEMENTID},
    {.pieces = enhancing, .heading = enhancingHeading, .otherId = &cElement::SUPPORTEDBYELEMENTID},
    {.pieces = destroyedBy, .heading = avoidHeading, .otherId = &cElement::DESTROYEDBYELEMENTID},
    {.pieces = destroys, .otherId = &cElement::DESTROYSELEMENTID},
}};

} // namespace

void cElement::GenerateReport(ReportSurface& vp, bool ToPrint) const {
    routine(u"cElement.Generate Report", [&] {
        if (!ToPrint) {
            drawColorBand(vp, oColor);
        }
        modRooms::SetReportHeader(vp, ELEMENTNAME, 0);
        writeParagraphs<cElement>(vp, *this, *this, paragraphs);
    });
}
