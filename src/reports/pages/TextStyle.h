#pragma once

#include <QColor>
#include <QString>

/// How a text looks. Sizes are points.
struct TextStyle {
    /// An installed face, or empty for the surface's default one.
    QString face;
    double points = 11;
    bool bold = false;
    bool italic = false;
    bool underline = false;
    bool strikethrough = false;
    QColor color = Qt::black;
};
