#pragma once

class QPainter;
class QRect;

/// How far the soft edge of a sheet on a desk reaches beyond it, in logical pixels.
inline constexpr int paperShadowReach = 6;

/// Paints the soft edge of a sheet of paper that lies on a desk; the sheet itself is painted over it.
void paintPaperShadow(QPainter& painter, const QRect& paper);
