#pragma once

#include "locations/cLocation.h"
#include "locations/cRoom.h"
#include "profiles/cProfile.h"
#include "support/RecordedReport.h"
#include "support/TestWorld.h"

#include <QByteArray>
#include <QList>
#include <gtest/gtest.h>

#include <memory>

/// One row of a `Rooms.xml` that a test makes up. Everything is text, so that it can be spelled wrong.
struct RoomRow {
    QByteArray id = "1";
    QByteArray type = "1";
    QByteArray direction = "1";
    QByteArray flooring = "1";
    QByteArray entrance = "False";
    QByteArray beams = "False";
    QByteArray lowCeiling = "False";
    QByteArray location = "1";
    QByteArray floor = "1";
    QByteArray name = "Room";
};

inline QByteArray roomsFile(const QList<RoomRow>& rows) {
    QByteArray text =
        "<xml xmlns:s='uuid:BDC6E3F0-6DA3-11d1-A2A3-00AA00C14882' xmlns:rs='urn:schemas-microsoft-"
        "com:rowset' xmlns:z='#RowsetSchema'><s:Schema id='RowsetSchema'/><rs:data>\n";
    for (const RoomRow& row : rows) {
        text += "<z:row ROOMID='" + row.id + "' LOCATIONID='" + row.location + "' FLOORID='" + row.floor +
                "' ROOMTYPEID='" + row.type + "' FLOORTYPEID='" + row.flooring + "' DESCRIPTION='" +
                row.name + "' TOP='0' LEFT='0' LENGTH='120' WIDTH='120' RELATIVEDIRECTION='" + row.direction +
                "' HASENTRANCE='" + row.entrance + "' HASEXPOSEDBEAMS='" + row.beams + "' HASLOWCEILING='" +
                row.lowCeiling + "'/>\n";
    }
    return text + "</rs:data></xml>\n";
}

/// A world with a person and a home at hand, no person chosen, and a surface that notes every call.
class AnalysisWorld {
public:
    AnalysisWorld() {
        Global::CurrentProfile = std::make_unique<cProfile>();
        Global::CurrentLocation = std::make_unique<cLocation>();
        Global::CurrentLocation->LocationID = 1;
    }
    AnalysisWorld(const AnalysisWorld&) = delete;
    AnalysisWorld& operator=(const AnalysisWorld&) = delete;
    ~AnalysisWorld() {
        Global::CurrentLocation.reset();
        Global::CurrentProfile.reset();
    }

    TestWorld world;
    RecordedReport report;

    void putRooms(const QList<RoomRow>& rows) const {
        world.write(QStringLiteral("Rooms.xml"), roomsFile(rows));
    }

    /// A person for whom every direction but the centre has a meaning of its own.
    static void choosePerson() {
        cPersonalDirection& person = Global::CurrentProfile->oPersonalDirection;
        person.SUCCESSDIRECTIONID = 1;
        person.SUCCESSDIRECTION = QStringLiteral("North");
        person.HEALTHDIRECTIONID = 9;
        person.HEALTHDIRECTION = QStringLiteral("South");
        person.ROMANCEDIRECTIONID = 3;
        person.ROMANCEDIRECTION = QStringLiteral("East");
        person.DEVELOPMENTDIRECTIONID = 4;
        person.DEVELOPMENTDIRECTION = QStringLiteral("South-East");
        person.BADLUCKDIRECTIONID = 6;
        person.BADLUCKDIRECTION = QStringLiteral("North-West");
        person.OBSTACLEDIRECTIONID = 7;
        person.OBSTACLEDIRECTION = QStringLiteral("West");
        person.ILLNESSDIRECTIONID = 8;
        person.ILLNESSDIRECTION = QStringLiteral("North-East");
        person.DESTRUCTIONDIRECTIONID = 2;
        person.DESTRUCTIONDIRECTION = QStringLiteral("South-West");
    }

    /// The advice of the only room of a made-up file, without the letters of its chart.
    std::vector<std::string> adviceOn(const RoomRow& row, void (*analyze)(qint32, ReportSurface&)) {
        putRooms({row});
        report.clear();
        analyze(row.id.toInt(), report.vp);
        std::vector<std::string> texts = report.arguments(QStringLiteral("Write"));
        constexpr std::ptrdiff_t chartLetters = 4;
        texts.erase(texts.begin(),
                    texts.begin() + std::min(chartLetters, static_cast<std::ptrdiff_t>(texts.size())));
        return texts;
    }
};
