#include "nineki/cNineKi.h"

#include "catalogues/cColor.h"
#include "catalogues/cDirection.h"
#include "core/Conversion.h"
#include "core/Failure.h"
#include "core/Global.h"
#include "core/Prompts.h"
#include "nineki/ChartHighlights.h"
#include "nineki/MoveRules.h"
#include "nineki/NineKiDrawing.h"
#include "profiles/cKUAYear.h"
#include "reports/surface/ReportSurface.h"
#include "store/RecordStore.h"

#include <QStringBuilder>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

// Red in the lowest byte: a light blue and a green.
constexpr qint32 problematicColor = 0xFFE3AA;
constexpr qint32 beneficialColor = 0x97EA6A;

/// The order in which the letters are written around the wheel.
constexpr std::array<QStringView, 8> letteredDirections{
    u"South", u"South-West", u"South-East", u"North", u"North-East", u"East", u"West", u"North-West"};

/// A calculation's words to the user.
struct Messages {
    QStringView title;
    QStringView noDirections;
};

constexpr QStringView notADate = u"The date you entered is not a valid date.  Please re-enter this value.";
constexpr Messages chartMessages{u"Nine Ki Chart",
                                 u"Error Reading Directions.  Could not calculate Nine Ki Chart."};
constexpr Messages moveMessages{u"Directions to Move",
                                u"Error Reading Directions.  Could not calculate directions to Move."};
constexpr Messages renovationMessages{
    u"Areas to Renovate", u"Error Reading Directions.  Could not calculate areas to renovate/redecorate."};

void exclaim(QStringView title, QStringView text) {
    Global::service(&Services::prompts)
        .messageBox(title.toString(), text.toString(), MessageIcon::Exclamation, MessageButtons::Ok);
}

/// The year of the lunar calendar or, where that cannot be told, that of the date itself.
qint32 chartYear(const QVariant& date) {
    const qint32 adjusted = Global::CalculateAdjustedYear(date);
    return adjusted != 0 ? adjusted : Conversion::toDate(date).year();
}

/// The row at the store's cursor, with no number in it yet.
NineKiSector sectorAtCursor(cXMLHandler& directions, const NineKiYear& year) {
    NineKiSector sector{year, 0, {}, 0, {}, {}};
    sector.direction = Conversion::toLong(directions.GetAttribute(u"DIRECTIONID"_s));
    sector.name = directions.GetAttribute(u"DIRECTIONNAME"_s);
    return sector;
}

} // namespace

/// Where a chart or compass is drawn.
struct cNineKi::Figure {
    ReportSurface& surface;
    qint32 x;
    qint32 y;
    qint32 radius;

    /// A share of the radius as a whole number.
    [[nodiscard]] qint32 radiusOf(double numerator, double denominator) const {
        return Conversion::toLong(numerator / denominator * radius);
    }

    void drawTitle(qint32 year) const {
        constexpr double aboveCenter = 11.0 / 10;
        surface.BrushStyle(0);
        surface.CurrentY(y - aboveCenter * radius);
        surface.CurrentX(x - radius);
        surface.Write(u"Year " % QString::number(year));
    }

    void drawWedge(qint32 toRadius, const QString& name, qint32 color) const {
        NineKiDrawing::DrawDirection(surface, x, y, toRadius, name, color);
    }

    void drawNumber(const QString& name, qint32 number) const {
        NineKiDrawing::DrawNumber(surface, x, y, radius, name, number);
    }

    void drawLetters() const {
        for (const QStringView name : letteredDirections) {
            NineKiDrawing::DrawLetters(surface, x, y, radius, name.toString());
        }
    }

    void drawAnimal(const QString& name) const { NineKiDrawing::DrawAnimal(surface, x, y, radius, name); }

    /// The disc in the middle with the number that stands there.
    void drawCenter(cColor& color, qint32 discRadius, qint32 number) const {
        color.GetColor(number);
        surface.BrushColor(color.LIGHTCOLORVALUE);
        surface.DrawCircle(x, y, discRadius);
        drawNumber(u"Center"_s, number);
    }

    void drawRating(const SectorRating& rating, const NineKiSector& sector, qint32 innerRadius) const {
        if (rating.problematic) {
            drawWedge(innerRadius, rating.problematic->sector, problematicColor);
        }
        if (rating.showsNumber) {
            drawNumber(sector.name, sector.number);
        }
        if (rating.beneficial) {
            drawWedge(radius, rating.beneficial->sector, beneficialColor);
        }
    }
};

void cNineKi::CalcNineKiChart(ReportSurface& surface, qint32 x, qint32 y, qint32 radius,
                              const QVariant& chartDate) {
    routine(u"cNineKi.Calc Nine Ki Chart", [&] {
        if (!Conversion::isDate(chartDate)) {
            exclaim(chartMessages.title, notADate);
            publish();
            return;
        }
        const Figure figure{surface, x, y, radius};
        const qint32 discRadius = figure.radiusOf(3, 10);
        Year = chartYear(chartDate);
        figure.drawTitle(Year);
        const NineKiYear year = enterYear();

        cDirection directions;
        cXMLHandler& rows = RecordStore::opened(directions.oXMLDirections);
        if (!rows.MoveFirst()) {
            exclaim(chartMessages.title, chartMessages.noDirections);
            publish();
            return;
        }
        // One buffer for the whole walk: where a colour is missing the one before it stays.
        cColor color;
        qint32 number = year.placement.numberIn(0); // none yet
        do {
            NineKiSector sector = sectorAtCursor(rows, year);
            if (sector.direction != nineKiCenter) {
                number = sector.number = year.placement.numberIn(sector.direction);
                color.GetColor(Conversion::toLong(rows.GetAttribute(u"COLORID"_s)));
                figure.drawWedge(radius, sector.name, color.LIGHTCOLORVALUE);
                for (const ChartHighlight& highlight : chartHighlights(sector)) {
                    if (highlight.wedge) {
                        figure.drawWedge(radius, *highlight.wedge, color.LIGHTCOLORVALUE);
                    }
                    problematic_.push_back(highlight.finding);
                }
            }
            // In the centre this is still the number of the sector before; the disc covers it.
            figure.drawNumber(sector.name, number);
        } while (rows.MoveNext());
        figure.drawLetters();
        figure.drawCenter(color, discRadius, year.placement.numberIn(nineKiCenter));
        figure.drawAnimal(year.animalName);
        publish();
    });
}

void cNineKi::CalcMoveCompass(ReportSurface& surface, qint32 x, qint32 y, qint32 radius, const QVariant& date,
                              bool draw, bool renovation) {
    routine(u"cNineKi.Calc Move Compass", [&] {
        const Messages& messages = renovation ? renovationMessages : moveMessages;
        if (!Conversion::isDate(date)) {
            exclaim(messages.title, notADate);
            publish();
            return;
        }
        const Figure figure{surface, x, y, radius};
        const qint32 innerRadius = figure.radiusOf(95, 100);
        Year = chartYear(date);
        if (draw) {
            figure.drawTitle(Year);
        }
        const NineKiYear year = enterYear();

        cDirection directions;
        cXMLHandler& rows = RecordStore::opened(directions.oXMLDirections);
        if (!rows.MoveFirst()) {
            exclaim(messages.title, messages.noDirections);
            publish();
            return;
        }
        do {
            NineKiSector sector = sectorAtCursor(rows, year);
            if (sector.direction == nineKiCenter) {
                continue;
            }
            sector.number = year.placement.numberIn(sector.direction);
            const SectorRating rating = rateSector(sector, renovation);
            if (draw) {
                figure.drawRating(rating, sector, innerRadius);
            }
            if (rating.problematic) {
                problematic_.push_back(*rating.problematic);
            }
            if (rating.beneficial) {
                beneficial_.push_back(*rating.beneficial);
            }
        } while (rows.MoveNext());
        if (draw) {
            figure.drawLetters();
            // The sign's own wedge shows how its whole sector was rated.
            const bool good = std::ranges::find(beneficial_, QString::number(year.animalDirection),
                                                &NineKiFinding::text) != beneficial_.end();
            figure.drawWedge(good ? radius : innerRadius, year.animalWedge,
                             good ? beneficialColor : problematicColor);
            figure.drawAnimal(year.animalName);
        }
        publish();
    });
}

/// Takes over the placement of the chart year and begins its tables.
NineKiYear cNineKi::enterYear() {
    NineKiYear year = lookUpNineKiYear(Year);
    NumberSector = year.placement.numberSector;
    OppositeHome = year.placement.oppositeHome;
    beneficial_.clear();
    problematic_.clear();
    return year;
}

void cNineKi::publish() {
    Beneficial = beneficial_;
    Problematic = problematic_;
}
