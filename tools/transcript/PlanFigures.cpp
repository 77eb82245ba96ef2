#include "transcript/PlanFigures.h"

#include "compass/CompassDrawing.h"
#include "compass/PlanPicture.h"
#include "core/Failure.h"
#include "core/Global.h"
#include "locations/cLocation.h"
#include "transcript/Reports.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace {

double number(const QString& argument) {
    bool isNumber = false;
    const double value = argument.toDouble(&isNumber);
    if (!isNumber) {
        throw Refusal{Refusal::BadArguments, QStringLiteral("\"%1\" is no number.").arg(argument)};
    }
    return value;
}

/// A value as it stands in JSON: a stored number as a number, any other text quoted.
QByteArray json(const QString& stored) {
    bool isNumber = false;
    const double value = stored.toDouble(&isNumber);
    const QByteArray list = QJsonDocument(QJsonArray{isNumber ? QJsonValue(value) : QJsonValue(stored)})
                                .toJson(QJsonDocument::Compact);
    return list.mid(1, list.size() - 2);
}

QByteArray json(double value) {
    const QByteArray list = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    return list.mid(1, list.size() - 2);
}

} // namespace

QByteArrayList PlanFigures::sectors(const QStringList& arguments) {
    const double northOffset = number(arguments.at(0));
    return routine(u"frmSetDirection.Draw Compass", QByteArrayList(), [&](QByteArrayList& lines) {
        for (const CompassGeometry::Sector& sector : CompassGeometry::sectors(northOffset)) {
            lines << "{\"DirectionID\":" + json(sector.DirectionID) +
                         ",\"StartAngle\":" + json(sector.StartAngle) +
                         ",\"EndAngle\":" + json(sector.EndAngle) + "}";
        }
    });
}

QByteArrayList PlanFigures::angle(const QStringList& arguments) {
    const double X = number(arguments.at(0));
    const double Y = number(arguments.at(1));
    return routine(u"frmSetDirection.GetAngle", QByteArrayList(), [&](QByteArrayList& lines) {
        lines << "{\"Angle\":" + json(CompassGeometry::GetAngle(X, Y)) + "}";
    });
}

QByteArrayList PlanFigures::north(const QStringList& arguments) {
    const double X = number(arguments.at(0));
    const double Y = number(arguments.at(1));
    return routine(u"frmSetDirection.picFloorPlan_MouseUp", QByteArrayList(), [&](QByteArrayList& lines) {
        lines << "{\"NORTHOFFSET\":" + json(CompassGeometry::pointedAngle(X, Y)) + "}";
    });
}

QByteArrayList PlanFigures::place(const QStringList& arguments) {
    chooseLocation(arguments.at(0));
    const cLocation& home = *Global::CurrentLocation;
    CompassDrawing drawing(CompassDrawing::View::Home);
    PlanPicture unseen;
    drawing.LoadRooms(home.LocationID);
    drawing.DrawCompass(unseen, home.NORTHOFFSET, std::nullopt);
    drawing.DrawRooms(unseen);
    cXMLHandler& rooms = *home.oXMLRooms;
    QByteArrayList lines;
    for (qint32 index = 0; index < rooms.ResultCount; ++index) {
        if (rooms.GetResult(index)) {
            lines << "{\"ROOMID\":" + json(rooms.GetAttribute(QStringLiteral("ROOMID"), true)) +
                         ",\"RELATIVEDIRECTION\":" +
                         json(rooms.GetAttribute(QStringLiteral("RELATIVEDIRECTION"), true)) + "}";
        }
    }
    return lines;
}
