#include "soak/Screen.h"

#include "core/Conversion.h"
#include "core/Global.h"
#include "locations/cLocation.h"
#include "locations/cRoom.h"
#include "profiles/cProfile.h"
#include "store/cXMLHandler.h"
#include "support/QtPrinting.h"
#include "support/WindowDriver.h"
#include "ui/PlanRoom.h"
#include "ui/PlanView.h"
#include "ui/StatusPanels.h"
#include "ui/widgets/Caption.h"
#include "ui/widgets/TitleBand.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>

#include <cmath>

using namespace Qt::StringLiterals;
using WindowDriver::control;

namespace {

/// Names and keys as a list shows them.
using Entries = QList<std::pair<QString, qint32>>;

Entries shownIn(const QComboBox& list) {
    Entries found;
    for (int i = 0; i < list.count(); ++i) {
        found.append({list.itemText(i), list.itemData(i).toInt()});
    }
    return found;
}

std::string spelled(const Entries& entries) {
    std::string all;
    for (const auto& [name, key] : entries) {
        all += std::to_string(key) + '=' + name.left(30).toStdString() + ' ';
    }
    return all;
}

void expectSame(const Entries& shown, const Entries& stored, const char* what) {
    EXPECT_EQ(spelled(shown), spelled(stored)) << what;
    EXPECT_TRUE(shown == stored) << what;
}

/// The records of a file in its order, up to the first without a name: lists end there.
Entries stored(cXMLHandler& store, const QString& nameField, const QString& keyField) {
    Entries found;
    for (bool more = store.MoveFirst(); more; more = store.MoveNext()) {
        const QString name = store.GetAttribute(nameField);
        if (name.isEmpty()) {
            break;
        }
        found.append({name, store.GetAttribute(keyField).toInt()});
    }
    return found;
}

/// The records of a file whose field has a value, the nameless ones too.
Entries storedWith(cXMLHandler& store, const QString& field, qint32 value, const QString& keyField) {
    Entries found;
    for (bool more = store.MoveFirst(); more; more = store.MoveNext()) {
        if (store.GetAttribute(field) == QString::number(value)) {
            found.append({store.GetAttribute(u"DESCRIPTION"_s), store.GetAttribute(keyField).toInt()});
        }
    }
    return found;
}

QString panel(QWidget& view, const QString& key) {
    return control<StatusPanels>(view, "sbInfo").panel(key);
}

std::string spelled(const cProfile& person) {
    return person.PROFILENAME.left(60).toStdString() + " born " +
           Conversion::shortDate(person.BIRTHDATE).toStdString() + ' ' + (person.GENDER == u"F" ? "F" : "M") +
           std::to_string(person.KUANUMBER);
}

/// What the fields of a person show, spelled as above.
std::string shownPerson(QWidget& view) {
    const auto text = [&](const char* field) { return control<QLineEdit>(view, field).text().toStdString(); };
    const bool female = control<QRadioButton>(view, "optFemale").isChecked();
    EXPECT_NE(female, control<QRadioButton>(view, "optMale").isChecked());
    return control<QComboBox>(view, "cboProfileName").currentText().left(60).toStdString() + " born " +
           text("txtBirthDate") + ' ' + (female ? "F" : "M") + text("txt9Ki");
}

void expectPersonShown(QWidget& view, cProfile& fresh, bool& dropped) {
    auto& list = control<QComboBox>(view, "cboProfileName");
    if (list.isHidden() || list.count() == 0 || control<QPushButton>(view, "cmdSaveProfile").isEnabled()) {
        return; // unsaved, or nobody to go back to: the screen may hold anything
    }
    const cProfile& current = *Global::CurrentProfile;
    EXPECT_EQ(shownPerson(view), spelled(current));
    EXPECT_EQ(control<TitleBand>(view, "vsTopProfile").caption(), u"  "_s + captionText(current.PROFILENAME));
    const bool found = fresh.GetProfile(current.PROFILEID);
    // Who drops changes after a calculation is shown what was calculated, as it stands in memory.
    dropped = dropped && (!found || spelled(fresh) != spelled(current));
    if (!dropped) {
        EXPECT_TRUE(found) << "a person is shown who is not stored: " << spelled(current);
        EXPECT_EQ(spelled(current), spelled(fresh));
        EXPECT_EQ(current.ADJBIRTHYEAR, fresh.ADJBIRTHYEAR);
    }
    // Behind the save of a new person the panel is empty: it opens as one that is chosen, but by no one.
    const QString named = panel(view, u"Profile"_s);
    EXPECT_TRUE(dropped || named.isEmpty() || named == current.PROFILENAME) << qPrintable(named);
}

bool nearly(float one, float other) {
    constexpr float sixDigits = 2e-6F; // stored with seven
    return std::abs(one - other) <= sixDigits * std::max(std::abs(one), 1.0F);
}

void expectRoomsShown(QWidget& view, cLocation& fresh, qint32 floorId) {
    auto& list = control<QListWidget>(view, "lstRooms");
    Entries shown;
    for (int i = 0; i < list.count(); ++i) {
        shown.append({list.item(i)->text(), list.item(i)->data(Qt::UserRole).toInt()});
    }
    expectSame(shown, storedWith(*fresh.oXMLRooms, u"FLOORID"_s, floorId, u"ROOMID"_s), "rooms");
    cRoom room;
    room.LoadRooms();
    qsizetype visible = 0;
    for (const PlanRoom* each : view.findChildren<PlanRoom*>()) {
        if (each->isHidden()) {
            continue;
        }
        ++visible;
        ASSERT_LT(each->Index(), shown.size());
        ASSERT_TRUE(room.GetRoom(shown.at(each->Index()).second));
        EXPECT_TRUE(nearly(each->Left(), room.LEFT) && nearly(each->Top(), room.TOP) &&
                    nearly(each->Width(), room.WIDTH) && nearly(each->Height(), room.Length))
            << "room " << room.RoomID << " stands elsewhere: " << qPrintable(each->placeText());
    }
    EXPECT_EQ(visible, shown.size());
}

void expectHomeShown(QWidget& view, cLocation& fresh, bool& typed) {
    auto& list = control<QComboBox>(view, "cboLocation");
    auto& floors = control<QComboBox>(view, "cboFloors");
    const bool unsaved = control<QPushButton>(view, "cmdSaveLocation").isEnabled();
    if (list.isHidden() || list.count() == 0) {
        return; // a new home, or none to go back to
    }
    const cLocation& current = *Global::CurrentLocation;
    if (!fresh.GetLocation(current.LocationID)) {
        EXPECT_TRUE(unsaved || list.currentText().isEmpty()) << "a home is shown that is not stored";
        EXPECT_EQ(floors.count(), 0);
        return;
    }
    if (fresh.PLANLENGTH <= 0 || fresh.PLANWIDTH <= 0) {
        return; // saved zoomed in past zero: what cannot be shown is reported, not shown
    }
    if (!unsaved) {
        typed = typed && list.currentText() != fresh.DESCRIPTION;
        EXPECT_EQ(list.currentText(), typed ? current.DESCRIPTION : fresh.DESCRIPTION);
        EXPECT_EQ(panel(view, u"Location"_s), fresh.DESCRIPTION);
    }
    if (current.PLANLENGTH == fresh.PLANLENGTH && current.PLANWIDTH == fresh.PLANWIDTH) {
        EXPECT_EQ(control<PlanView>(view, "picFloorPlan").ScaleHeight(), fresh.PLANLENGTH);
        EXPECT_EQ(control<PlanView>(view, "picFloorPlan").ScaleWidth(), fresh.PLANWIDTH);
    }
    fresh.LoadFloors();
    fresh.LoadRooms();
    expectSame(shownIn(floors),
               storedWith(*fresh.oXMLFloors, u"LOCATIONID"_s, fresh.LocationID, u"FLOORID"_s), "floors");
    if (floors.currentIndex() >= 0) {
        EXPECT_EQ(Global::CurrentFloorID, floors.currentData().toInt());
        expectRoomsShown(view, fresh, floors.currentData().toInt());
    } else {
        EXPECT_EQ(floors.count(), 0) << "no floor of the home is chosen";
        EXPECT_EQ(control<QListWidget>(view, "lstRooms").count(), 0);
    }
}

void expectEntry(QWidget& editor, const char* name, qint32 key) {
    EXPECT_EQ(control<QComboBox>(editor, name).currentData().toInt(), key) << name;
}

void expectExtent(QWidget& editor, const char* feet, const char* inches, float stored) {
    const int shown = control<QLineEdit>(editor, feet).text().toInt() * 12 +
                      control<QLineEdit>(editor, inches).text().toInt();
    EXPECT_EQ(shown, Conversion::toLong(static_cast<double>(stored))) << feet;
}

} // namespace

void Screen::expectMainWindowShowsStored(QWidget& frmView, Leftovers& leftovers) {
    cProfile person;
    expectSame(shownIn(control<QComboBox>(frmView, "cboProfileName")),
               stored(*person.oXMLProfiles, u"PROFILENAME"_s, u"PROFILEID"_s), "people");
    cLocation home;
    home.LoadLocations();
    expectSame(shownIn(control<QComboBox>(frmView, "cboLocation")),
               stored(*home.oXMLLocations, u"DESCRIPTION"_s, u"LOCATIONID"_s), "homes");
    if (control(frmView, "vsMainProfile").isVisible()) {
        expectPersonShown(frmView, person, leftovers.person);
    } else {
        expectHomeShown(frmView, home, leftovers.homeName);
    }
}

void Screen::expectEditorShowsStored(QWidget& frmRoom, const QString& roomId) {
    cRoom room;
    room.LoadRooms();
    ASSERT_TRUE(room.GetRoom(roomId.toInt()));
    EXPECT_EQ(control<QLineEdit>(frmRoom, "txtDescription").text(), room.DESCRIPTION);
    EXPECT_EQ(control<TitleBand>(frmRoom, "vsTop").caption(), captionText(room.DESCRIPTION));
    expectEntry(frmRoom, "cboRoomType", room.ROOMTYPEID);
    expectEntry(frmRoom, "cboFloors", room.FLOORID);
    expectEntry(frmRoom, "cboLocation", room.RelativeDirection);
    expectEntry(frmRoom, "cboFlooring", room.FLOORTYPEID);
    expectExtent(frmRoom, "txtLengthFt", "txtLengthIn", room.Length);
    expectExtent(frmRoom, "txtWidthFt", "txtWidthIn", room.WIDTH);
    EXPECT_EQ(control<QCheckBox>(frmRoom, "chkEntrance").isChecked(), room.HasEntrance);
    EXPECT_EQ(control<QCheckBox>(frmRoom, "chkExposedBeams").isChecked(), room.HASEXPOSEDBEAMS);
    EXPECT_EQ(control<QCheckBox>(frmRoom, "chkLowCeiling").isChecked(), room.HASLOWCEILING);
}

void Screen::expectNorthStored(double shownNorth) {
    cLocation home;
    home.LoadLocations();
    ASSERT_TRUE(home.GetLocation(Global::CurrentLocation->LocationID));
    constexpr double shownDigits = 0.051;
    EXPECT_NEAR(home.NORTHOFFSET, shownNorth, shownDigits);
}
