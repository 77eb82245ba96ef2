#include "profiles/CompassFigure.h"

#include "reports/surface/ReportSurface.h"

void compassFigure::drawCentre(ReportSurface& vp, qint32 x, qint32 y, qint32 color) {
    vp.BrushColor(color);
    vp.DrawCircle(x, y, centreRadius);
}

void compassFigure::writeLetters(ReportSurface& vp, qint32 x, qint32 y,
                                 const std::array<Letters, 8>& letters) {
    for (const Letters& letter : letters) {
        vp.CurrentX(letter.right.from(x));
        vp.CurrentY(letter.down.from(y));
        vp.Write(letter.text.toString());
    }
}
