#include "reports/surface/ReportSurface.h"

QString surfacePropertyName(SurfaceProperty property) {
    switch (property) {
#define NAME(name)                                                                                           \
    case SurfaceProperty::name:                                                                              \
        return QStringLiteral(#name)
        NAME(BackColor);
        NAME(BrushColor);
        NAME(BrushStyle);
        NAME(Columns);
        NAME(CurrentX);
        NAME(CurrentY);
        NAME(ExportFile);
        NAME(FontBold);
        NAME(FontItalic);
        NAME(FontName);
        NAME(FontSize);
        NAME(FontUnderline);
        NAME(Footer);
        NAME(HdrColor);
        NAME(HdrFontBold);
        NAME(HdrFontItalic);
        NAME(HdrFontName);
        NAME(HdrFontSize);
        NAME(HdrFontStrikethru);
        NAME(HdrFontUnderline);
        NAME(Header);
        NAME(IndentFirst);
        NAME(IndentLeft);
        NAME(IndentRight);
        NAME(IndentTab);
        NAME(MarginBottom);
        NAME(MarginFooter);
        NAME(MarginHeader);
        NAME(MarginLeft);
        NAME(MarginRight);
        NAME(MarginTop);
        NAME(PageBorder);
        NAME(PenColor);
        NAME(PenStyle);
        NAME(PenWidth);
        NAME(PreviewPage);
        NAME(SpaceAfter);
        NAME(TableBorder);
        NAME(TextAlign);
        NAME(TextAngle);
        NAME(TextColor);
        NAME(ToolTipText);
        NAME(X1);
        NAME(X2);
        NAME(Y1);
        NAME(Y2);
        NAME(Zoom);
        NAME(ZoomMode);
#undef NAME
    }
    return {};
}
