#include "ui/widgets/PaperShadow.h"

#include <QPainter>
#include <QRect>

void paintPaperShadow(QPainter& painter, const QRect& paper) {
    painter.save();
    painter.setPen(Qt::NoPen);
    painter.setRenderHint(QPainter::Antialiasing);
    // Faint layers, each a little larger, add up to a soft edge; it falls downwards.
    constexpr int layerStrength = 9;
    painter.setBrush(QColor(0, 0, 0, layerStrength));
    for (int reach = paperShadowReach; reach > 0; --reach) {
        const QRect layer = paper.translated(0, 2).adjusted(-reach, -reach, reach, reach);
        painter.drawRoundedRect(layer, reach, reach);
    }
    painter.restore();
}
