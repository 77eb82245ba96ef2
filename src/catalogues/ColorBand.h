#pragma once

class ReportSurface;
class cColor;

/// Gives the page a background and a band at its left in the shades of a colour, as reports of people and
/// elements have it on the screen; paper has neither. Leaves pen and brush in the band's colour.
void drawColorBand(ReportSurface& vp, const cColor& color);
