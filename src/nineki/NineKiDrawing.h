#pragma once

#include <QString>

#include <optional>

class ReportSurface;

/// The parts of which `cNineKi` draws its charts and compasses, about a centre and to a radius in twips.
/// South is at the top, West on the right. A name that a routine does not know is no error: its part is left
/// out.
namespace NineKiDrawing {

/// Paints the wedge of a sector or half sector. Without a colour it has the light one of its direction.
void DrawDirection(ReportSurface& surface, qint32 x, qint32 y, qint32 radius, const QString& directionName,
                   std::optional<qint32> colour = std::nullopt);

/// Writes a Nine Ki number into a sector or, by the name "Center", into the middle.
void DrawNumber(ReportSurface& surface, qint32 x, qint32 y, qint32 radius, const QString& directionName,
                qint32 number);

/// Writes the letters of a direction around the wheel.
void DrawLetters(ReportSurface& surface, qint32 x, qint32 y, qint32 radius, const QString& directionName);

/// Writes an animal sign's name at the sign's place, turned along its spoke.
void DrawAnimal(ReportSurface& surface, qint32 x, qint32 y, qint32 radius, const QString& animalName);

} // namespace NineKiDrawing
