#pragma once

#include <QtGlobal>

class QPainter;
struct PageDocument;

/// Where a page is painted. Only the screen shows the page's background colour: paper is left as it is.
enum class PaintTarget : quint8 { Paper, Screen };

/// Paints a page (counted from 0) with a painter that works in twips and has its origin at the page's top
/// left corner. The one routine by which every device shows a page; scale is the painter's affair.
void paintPage(QPainter& painter, const PageDocument& document, qint32 page, PaintTarget target);
