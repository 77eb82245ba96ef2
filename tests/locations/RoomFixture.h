#pragma once

#include "core/Global.h"
#include "locations/cRoom.h"
#include "support/QtPrinting.h"
#include "support/RecordFiles.h"
#include "support/TestWorld.h"

#include <QDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

inline const QString OBJECT_NOT_SET = u"Object variable or With block variable not set"_s;
inline const QString FILE_NAME = u"Rooms.xml"_s;

/// All fields as texts, in reading order.
inline QStringList shown(const cRoom& room) {
    const auto flag = [](bool on) { return on ? u"True"_s : u"False"_s; };
    return {QString::number(room.RoomID),
            QString::number(room.LocationID),
            QString::number(room.FLOORID),
            QString::number(room.ROOMTYPEID),
            QString::number(room.FLOORTYPEID),
            room.DESCRIPTION,
            QString::number(static_cast<double>(room.TOP)),
            QString::number(static_cast<double>(room.LEFT)),
            QString::number(static_cast<double>(room.Length)),
            QString::number(static_cast<double>(room.WIDTH)),
            QString::number(room.RelativeDirection),
            flag(room.HasEntrance),
            flag(room.HASEXPOSEDBEAMS),
            flag(room.HASLOWCEILING)};
}

inline const QStringList ATTRIBUTES = {u"ROOMID"_s,
                                       u"LOCATIONID"_s,
                                       u"FLOORID"_s,
                                       u"ROOMTYPEID"_s,
                                       u"FLOORTYPEID"_s,
                                       u"DESCRIPTION"_s,
                                       u"TOP"_s,
                                       u"LEFT"_s,
                                       u"LENGTH"_s,
                                       u"WIDTH"_s,
                                       u"RELATIVEDIRECTION"_s,
                                       u"HASENTRANCE"_s,
                                       u"HASEXPOSEDBEAMS"_s,
                                       u"HASLOWCEILING"_s};

inline const QStringList FIRST = {u"1"_s,  u"2"_s,    u"3"_s,  u"4"_s, u"1"_s,     u"Den"_s,   u"10"_s,
                                  u"20"_s, u"30.5"_s, u"40"_s, u"9"_s, u"False"_s, u"False"_s, u"True"_s};
inline const QStringList SECOND = {u"2"_s,      u"12"_s,   u"13"_s,     u"6"_s,    u"4"_s,
                                   u"Galley"_s, u"110"_s,  u"120.25"_s, u"130"_s,  u"140"_s,
                                   u"1"_s,      u"True"_s, u"True"_s,   u"False"_s};

inline QByteArray row(const QStringList& values) {
    QString text = u"<z:row"_s;
    for (qsizetype i = 0; i < values.size(); ++i) {
        text += u" %1=\"%2\""_s.arg(ATTRIBUTES.at(i), values.at(i));
    }
    return (text + u" />"_s).toUtf8();
}

inline QStringList with(QStringList values, const QString& attribute, const QString& value) {
    values[ATTRIBUTES.indexOf(attribute)] = value;
    return values;
}

class RoomFixture : public testing::Test {
protected:
    RoomFixture() { store({row(FIRST), row(SECOND)}); }

    void store(const QByteArrayList& rows) const { world.write(FILE_NAME, recordFile(rows)); }
    [[nodiscard]] QByteArrayList stored() const { return recordLines(world.read(FILE_NAME)); }

    /// A room with the fields of row `id`.
    static void open(cRoom& room, qint32 id) {
        ASSERT_TRUE(room.LoadRooms());
        ASSERT_TRUE(room.GetRoom(id));
    }

    TestWorld world;
};
