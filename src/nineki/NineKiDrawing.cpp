#include "nineki/NineKiDrawing.h"

#include "catalogues/DirectionIds.h"
#include "catalogues/ElementRelations.h"
#include "core/Failure.h"
#include "core/Global.h"
#include "reports/surface/ReportSurface.h"

#include <algorithm>
#include <array>

namespace {

/// Half the width of a digit: what is centred on an axis keeps it at every radius.
constexpr double halfDigit = 50;

/// A wedge by its name: the direction that lends its colour, and the compass bearings between which it runs
/// counter-clockwise.
struct WedgePlace {
    QStringView name;
    qint32 direction;
    float start;
    float end;
};

constexpr std::array<WedgePlace, 16> wedgePlaces{{
    {u"South", directionIds::South, 15, 345},
    {u"South/South-West", directionIds::SouthWest, 45, 15},
    {u"West/South-West", directionIds::SouthWest, 75, 45},
    {u"South-West", directionIds::SouthWest, 75, 15},
    {u"West", directionIds::West, 105, 75},
    {u"West/North-West", directionIds::NorthWest, 135, 105},
    {u"North/North-West", directionIds::NorthWest, 165, 135},
    {u"North-West", directionIds::NorthWest, 165, 105},
    {u"North", directionIds::North, 195, 165},
    {u"North/North-East", directionIds::NorthEast, 225, 195},
    {u"East/North-East", directionIds::NorthEast, 255, 225},
    {u"North-East", directionIds::NorthEast, 255, 195},
    {u"East", directionIds::East, 285, 255},
    {u"East/South-East", directionIds::SouthEast, 315, 285},
    {u"South/South-East", directionIds::SouthEast, 345, 315},
    {u"South-East", directionIds::SouthEast, 345, 285},
}};

/// A distance from the centre: a share of the radius and a length that no radius changes.
struct Offset {
    double share;
    double twips = 0;

    [[nodiscard]] double from(qint32 center, qint32 radius) const { return center + share * radius + twips; }
};

struct NumberPlace {
    QStringView name;
    Offset x;
    Offset y;
};

// The slight differences between places across from each other are meant.
constexpr std::array<NumberPlace, 9> numberPlaces{{
    {u"South", {0, -halfDigit}, {-0.90}},
    {u"South-West", {0.60}, {-0.60}},
    {u"South-East", {-0.67}, {-0.62}},
    {u"North", {0, -halfDigit}, {0.80}},
    {u"North-East", {-0.65}, {0.55}},
    {u"East", {-0.90}, {0, -halfDigit}},
    {u"West", {0.87}, {0, -halfDigit}},
    {u"North-West", {0.60}, {0.50}},
    {u"Center", {-0.025}, {-0.025}},
}};

struct LetterPlace {
    QStringView name;
    QStringView letters;
    Offset x;
    Offset y;
};

constexpr std::array<LetterPlace, 8> letterPlaces{{
    {u"South", u"S", {0, -halfDigit}, {-1.15}},
    {u"South-West", u"SW", {0.80}, {-0.80}},
    {u"South-East", u"SE", {-0.85}, {-0.85}},
    {u"North", u"N", {0, -halfDigit}, {1.05}},
    {u"North-East", u"NE", {-0.85}, {0.80}},
    {u"East", u"E", {-1.10}, {0, -halfDigit}},
    {u"West", u"W", {1.05}, {0, -halfDigit}},
    {u"North-West", u"NW", {0.80}, {0.80}},
}};

/// The angle is in tenths of a degree.
struct AnimalPlace {
    QStringView name;
    double textAngle;
    Offset x;
    Offset y;
};

constexpr std::array<AnimalPlace, 12> animalPlaces{{
    {u"Rabbit", 0, {-0.80}, {-0.03}},
    {u"Dragon", 3300, {-0.65}, {-0.42}},
    {u"Snake", 3000, {-0.30}, {-0.65}},
    {u"Horse", 900, {-0.05}, {-0.50}},
    {u"Sheep", 600, {0.15}, {-0.35}},
    {u"Monkey", 350, {0.35}, {-0.25}},
    {u"Rooster", 0, {0.50}, {-0.03}},
    {u"Dog", 3300, {0.50}, {0.20}},
    {u"Boar", 3000, {0.30}, {0.38}},
    {u"Rat", 2700, {0.05}, {0.60}},
    {u"Ox", 600, {-0.40}, {0.65}},
    {u"Tiger", 350, {-0.70}, {0.35}},
}};

/// The row of a name, or null.
template<class Table>
auto find(const Table& table, QStringView name) -> const typename Table::value_type* {
    const auto found = std::ranges::find(table, name, &Table::value_type::name);
    return found == table.end() ? nullptr : &*found;
}

} // namespace

void NineKiDrawing::DrawDirection(ReportSurface& surface, qint32 x, qint32 y, qint32 radius,
                                  const QString& directionName, std::optional<qint32> colour) {
    routine(u"cNineKi.Draw Direction", [&] {
        const WedgePlace* place = find(wedgePlaces, directionName);
        const qint32 direction = place == nullptr ? 0 : place->direction;
        surface.BrushColor(colour ? *colour : Global::GetDirectionColor(direction, shades::light));
        if (place != nullptr) {
            surface.DrawCircle(x, y, radius, static_cast<double>(Global::CompassToRadians(place->start)),
                               static_cast<double>(Global::CompassToRadians(place->end)));
        }
    });
}

void NineKiDrawing::DrawNumber(ReportSurface& surface, qint32 x, qint32 y, qint32 radius,
                               const QString& directionName, qint32 number) {
    routine(u"cNineKi.Draw Number", [&] {
        if (const NumberPlace* place = find(numberPlaces, directionName)) {
            surface.CurrentX(place->x.from(x, radius));
            surface.CurrentY(place->y.from(y, radius));
        }
        surface.Write(number);
    });
}

void NineKiDrawing::DrawLetters(ReportSurface& surface, qint32 x, qint32 y, qint32 radius,
                                const QString& directionName) {
    routine(u"cNineKi.Draw Letters", [&] {
        if (const LetterPlace* place = find(letterPlaces, directionName)) {
            surface.CurrentX(place->x.from(x, radius));
            surface.CurrentY(place->y.from(y, radius));
            surface.Write(place->letters.toString());
        }
    });
}

void NineKiDrawing::DrawAnimal(ReportSurface& surface, qint32 x, qint32 y, qint32 radius,
                               const QString& animalName) {
    constexpr double boxWidth = 5000; // wider than any name, so that none breaks
    routine(u"cNineKi.Draw Animal", [&] {
        if (const AnimalPlace* place = find(animalPlaces, animalName)) {
            surface.TextAngle(place->textAngle);
            surface.TextBox(animalName, place->x.from(x, radius), place->y.from(y, radius), boxWidth, 0);
        }
        surface.TextAngle(0);
    });
}
