#include "soak/RecordWatch.h"

#include "support/QtPrinting.h"

#include <QDir>
#include <QFile>
#include <QXmlStreamReader>
#include <gtest/gtest.h>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

const QMap<QString, QString> keys{{u"Profiles.xml"_s, u"PROFILEID"_s},
                                  {u"Locations.xml"_s, u"LOCATIONID"_s},
                                  {u"Floors.xml"_s, u"FLOORID"_s},
                                  {u"Rooms.xml"_s, u"ROOMID"_s}};

/// What a control may save; P, L, F and R stand for the four files. What is not named saves nothing.
const QMap<QString, QString> writers{
    {u"frmView/cmdSaveProfile"_s, u"P"_s},
    {u"frmView/mnuProfilesSave"_s, u"P"_s},
    {u"frmView/cmdNewProfile"_s, u"P"_s},  // asks whether to save first
    {u"frmView/mnuProfilesNew"_s, u"P"_s}, // the same
    {u"frmView/cboProfileName"_s, u"P"_s}, // the same
    {u"frmView/cmdDelProfile"_s, u"P"_s},
    {u"frmView/mnuProfilesDelete"_s, u"P"_s},
    {u"frmView/cmdSaveLocation"_s, u"LF"_s},
    {u"frmView/mnuLocationsSave"_s, u"LF"_s},
    {u"frmView/cmdNewLocation"_s, u"LF"_s},  // asks whether to save first
    {u"frmView/mnuLocationsNew"_s, u"LF"_s}, // the same
    {u"frmView/cboLocation"_s, u"LF"_s},     // the same
    {u"frmView/mnuLocationsDelete"_s, u"LFR"_s},
    {u"frmView/mnuLocationsDirections"_s, u"LR"_s},
    {u"frmView/mnuLocationsNewFloor"_s, u"F"_s},
    {u"frmView/mnuLocationsRenameFloor"_s, u"F"_s},
    {u"frmView/mnuLocationsDeleteFloor"_s, u"FR"_s},
    {u"frmView/cmdPlus"_s, u"LF"_s},
    {u"frmView/cmdMinus"_s, u"LF"_s},
    {u"frmView/recRoom"_s, u"R"_s},
    {u"frmView/cmdDelRoom"_s, u"R"_s},
    {u"frmView/mnuLocationsDeleteRoom"_s, u"R"_s},
    {u"frmView/keys"_s, u"PLFR"_s}, // what has the focus decides
    {u"frmRoom/cmdOK"_s, u"R"_s},
    {u"frmRoom/cmdCancel"_s, u"R"_s}, // asks whether to save first
    {u"frmRoom/mnuFileSave"_s, u"R"_s},
    {u"frmRoom/mnuFileClose"_s, u"R"_s}, // asks whether to save first
    {u"frmRoom/frmRoom"_s, u"R"_s},      // the close box asks, too
    {u"frmRoom/keys"_s, u"R"_s},
    {u"frmSetDirection/cmdOK"_s, u"LR"_s},
};

/// Whether two records are the same but for some fields.
bool sameBut(QMap<QString, QString> one, QMap<QString, QString> other, const QStringList& fields) {
    for (const QString& field : fields) {
        one.remove(field);
        other.remove(field);
    }
    return one == other;
}

/// Whether a control may change many records of a file at once.
bool isSweeping(const QString& control, const QString& file) {
    if (control == u"frmView/mnuLocationsDelete" || control == u"frmView/mnuLocationsDeleteFloor") {
        return file != u"Locations.xml";
    }
    return control == u"frmView/mnuLocationsDirections" && file == u"Rooms.xml";
}

} // namespace

RecordWatch::RecordWatch(QString folder)
    : folder_(std::move(folder)) {
    for (const QString& name : QDir(folder_).entryList(QDir::Files)) {
        if (!keys.contains(name)) {
            others_.insert(name, read(name));
        }
    }
    trust();
}

QByteArray RecordWatch::read(const QString& name) const {
    QFile file(folder_ + u'/' + name);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(name);
    return file.readAll();
}

void RecordWatch::trust() {
    contents_.clear();
    rows_.clear();
    changesBy(u"frmView/keys"_s);
}

QStringList RecordWatch::changesBy(const QString& control) {
    QStringList changed;
    touched_.clear();
    for (auto key = keys.cbegin(); key != keys.cend(); ++key) {
        const QString& name = key.key();
        const QByteArray content = read(name);
        const auto before = contents_.constFind(name);
        const bool isFirst = before == contents_.cend();
        if (!isFirst && *before == content) {
            continue;
        }
        Rows now;
        QXmlStreamReader reader(content);
        while (!reader.atEnd()) {
            if (reader.readNext() == QXmlStreamReader::StartElement && reader.name() == u"row") {
                Row row;
                for (const QXmlStreamAttribute& attribute : reader.attributes()) {
                    row.insert(attribute.name().toString(), attribute.value().toString());
                }
                EXPECT_FALSE(now.contains(row.value(key.value())))
                    << "the key " << qPrintable(row.value(key.value())) << " stands twice in "
                    << qPrintable(name);
                now.insert(row.value(key.value()), row);
            }
        }
        EXPECT_FALSE(reader.hasError()) << qPrintable(name) << ": " << qPrintable(reader.errorString());
        if (!isFirst) {
            changed << name;
            compare(name, rows_.value(name), now, control);
        }
        contents_.insert(name, content);
        rows_.insert(name, now);
    }
    if (!changed.isEmpty()) {
        expectSoundReferences(control);
    }
    return changed;
}

void RecordWatch::compare(const QString& file, const Rows& before, const Rows& now, const QString& control) {
    EXPECT_TRUE(writers.value(control).contains(file.front()))
        << qPrintable(control) << " changed " << qPrintable(file);
    QStringList removed;
    QStringList added;
    QStringList altered;
    for (auto row = before.cbegin(); row != before.cend(); ++row) {
        if (!now.contains(row.key())) {
            removed << row.key();
        }
    }
    for (auto row = now.cbegin(); row != now.cend(); ++row) {
        if (!before.contains(row.key())) {
            added << row.key();
        } else if (const Row former = before.value(row.key()); former != row.value()) {
            // A compass that was looked at leaves the rooms' directions in memory; the next save of the plan
            // writes them.
            if (!control.startsWith(u"frmView/"_s) ||
                !sameBut(former, row.value(), {u"RELATIVEDIRECTION"_s})) {
                altered << row.key();
            }
            EXPECT_TRUE(control != u"frmView/recRoom" ||
                        sameBut(former, row.value(), {u"RELATIVEDIRECTION"_s, u"LEFT"_s, u"TOP"_s}))
                << "more than the place of a moved room changed";
        }
    }
    touched_.insert(file, added + altered);
    if (isSweeping(control, file)) {
        return;
    }
    // A new home comes with all its floors.
    const qsizetype most = file == u"Floors.xml" && removed.isEmpty() && altered.isEmpty() ? added.size() : 1;
    EXPECT_LE(removed.size() + added.size() + altered.size(), most)
        << qPrintable(control) << " changed " << qPrintable(file) << ": removed "
        << qPrintable(removed.join(u' ')) << ", added " << qPrintable(added.join(u' ')) << ", altered "
        << qPrintable(altered.join(u' '));
}

void RecordWatch::expectSoundReferences(const QString& control) {
    const Rows homes = rows_[u"Locations.xml"_s];
    const Rows floors = rows_[u"Floors.xml"_s];
    for (const Row& floor : floors) {
        const QString id = floor.value(u"FLOORID"_s);
        // A blank pane takes a new floor, too: that of the home that was deleted last.
        if (control == u"frmView/mnuLocationsNewFloor" && touched(u"Floors.xml"_s).contains(id)) {
            strayFloors_ << id;
        }
        EXPECT_TRUE(homes.contains(floor.value(u"LOCATIONID"_s)) || strayFloors_.contains(id))
            << "floor " << qPrintable(id) << " belongs to no home";
    }
    for (const Row& room : rows_[u"Rooms.xml"_s]) {
        const QString floor = room.value(u"FLOORID"_s);
        EXPECT_TRUE(floors.contains(floor))
            << "room " << qPrintable(room.value(u"ROOMID"_s)) << " stands on no floor";
        EXPECT_EQ(floors.value(floor).value(u"LOCATIONID"_s), room.value(u"LOCATIONID"_s))
            << "room " << qPrintable(room.value(u"ROOMID"_s)) << " stands in another home than its floor";
    }
}

void RecordWatch::expectOthersUntouched() const {
    for (const QString& name : QDir(folder_).entryList(QDir::Files)) {
        if (keys.contains(name) || name == u"Temp.html") { // where reports go that are saved as proposed
            continue;
        }
        EXPECT_TRUE(others_.contains(name)) << "a file came from nowhere: " << qPrintable(name);
        EXPECT_TRUE(others_.value(name) == read(name)) << qPrintable(name) << " changed";
    }
}
