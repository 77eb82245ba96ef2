#include "catalogues/ColorBand.h"

#include "catalogues/cColor.h"
#include "reports/surface/ReportSurface.h"

namespace {

/// Black, the one colour whose light shade is too dark to read on.
constexpr qint32 darkColorId = 2;
constexpr qint32 white = 0xFFFFFF;

} // namespace

void drawColorBand(ReportSurface& vp, const cColor& color) {
    const bool isDark = color.COLORID == darkColorId;
    const qint32 band = isDark ? color.LIGHTCOLORVALUE : color.BRIGHTCOLORVALUE;
    vp.BackColor(isDark ? white : color.LIGHTCOLORVALUE);
    vp.PenColor(band);
    vp.BrushColor(band);
    vp.DrawRectangle(700, 500, 4600, vp.PageHeight() - 500);
}
