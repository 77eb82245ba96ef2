#include "ui/RoomFields.h"

#include "core/Conversion.h"
#include "core/Global.h"
#include "locations/cLocation.h"
#include "locations/cRoom.h"
#include "store/RecordStore.h"
#include "ui/RoomForm.h"
#include "ui/platform/ComboList.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>

#include <limits>

using namespace Qt::StringLiterals;

namespace {

constexpr qint32 inchesPerFoot = 12;
/// The size of a room that was given none, in inches: ten feet.
constexpr float defaultExtent = 120;
constexpr qint32 firstType = 1;
constexpr qint32 firstFlooring = 1;
constexpr qint32 centreOfHome = 5;

/// The number of the selected entry, or `otherwise` where nothing is selected.
qint32 selectedKey(QComboBox& combo, qint32 otherwise) {
    const ComboList list(combo);
    return list.ListIndex() < 0 ? otherwise : list.ItemData(list.ListIndex());
}

void showExtent(const RoomForm::Extent& fields, float inches) {
    const qint32 whole = Conversion::toLong(static_cast<double>(inches));
    fields.feet->setText(QString::number(whole / inchesPerFoot));
    fields.inches->setText(QString::number(whole % inchesPerFoot));
}

/// The number that a field holds; 0 for anything that is none.
double enteredNumber(const QLineEdit& field) {
    return Conversion::isNumeric(field.text()) ? Conversion::toDouble(field.text()) : 0;
}

float enteredExtent(const RoomForm::Extent& fields) {
    const double inches = enteredNumber(*fields.feet) * inchesPerFoot + enteredNumber(*fields.inches);
    if (inches <= 0) {
        return defaultExtent;
    }
    if (inches > static_cast<double>(std::numeric_limits<float>::max())) {
        throw failure(ErrorNumber::Overflow);
    }
    return static_cast<float>(inches);
}

} // namespace

void RoomFields::fillList(QComboBox& combo, const std::unique_ptr<cXMLHandler>& store, const QString& kind) {
    ComboList list(combo);
    list.Clear();
    cXMLHandler& records = RecordStore::opened(store);
    for (bool more = records.MoveFirst(); more; more = records.MoveNext()) {
        list.AddItem(records.GetAttribute(kind + u"NAME"_s),
                     Conversion::toLong(records.GetAttribute(kind + u"ID"_s)));
    }
}

void RoomFields::fillFloors(QComboBox& combo) {
    ComboList list(combo);
    list.Clear();
    const cLocation* home = Global::CurrentLocation.get();
    if (home == nullptr) {
        throw failure(ErrorNumber::ObjectNotSet);
    }
    cXMLHandler& records = RecordStore::opened(home->oXMLFloors);
    records.Query(u"//z:row[@LOCATIONID = '%1']"_s.arg(home->LocationID));
    for (qint32 i = 0; i < records.ResultCount; ++i) {
        records.GetResult(i);
        list.AddItem(records.GetAttribute(u"DESCRIPTION"_s, true),
                     Conversion::toLong(records.GetAttribute(u"FLOORID"_s, true)));
    }
}

void RoomFields::selectByKey(QComboBox& combo, qint32 key) {
    ComboList list(combo);
    Global::FindInData(list, QString::number(key), 0, -1);
}

void RoomFields::clear(RoomForm& form) {
    for (QLineEdit* text :
         {form.txtDescription, form.length.feet, form.length.inches, form.width.feet, form.width.inches}) {
        text->clear();
    }
    for (QComboBox* combo : {form.cboFlooring, form.cboFloors, form.cboLocation, form.cboRoomType}) {
        ComboList(*combo).setListIndex(-1);
    }
    for (QCheckBox* check : {form.chkEntrance, form.chkExposedBeams, form.chkLowCeiling}) {
        check->setChecked(false);
    }
}

void RoomFields::show(const cRoom& shown, RoomForm& form) {
    form.txtDescription->setText(shown.DESCRIPTION);
    selectByKey(*form.cboRoomType, shown.ROOMTYPEID);
    selectByKey(*form.cboFloors, shown.FLOORID);
    selectByKey(*form.cboLocation, shown.RelativeDirection);
    selectByKey(*form.cboFlooring, shown.FLOORTYPEID);
    showExtent(form.length, shown.Length);
    showExtent(form.width, shown.WIDTH);
    form.chkEntrance->setChecked(shown.HasEntrance);
    form.chkExposedBeams->setChecked(shown.HASEXPOSEDBEAMS);
    form.chkLowCeiling->setChecked(shown.HASLOWCEILING);
}

void RoomFields::read(RoomForm& form, cRoom& entered) {
    const QString description = form.txtDescription->text();
    entered.DESCRIPTION = description.isEmpty() ? u"Unknown"_s : description;
    entered.ROOMTYPEID = selectedKey(*form.cboRoomType, firstType);
    entered.FLOORID = selectedKey(*form.cboFloors, entered.FLOORID);
    entered.RelativeDirection = selectedKey(*form.cboLocation, centreOfHome);
    entered.FLOORTYPEID = selectedKey(*form.cboFlooring, firstFlooring);
    entered.Length = enteredExtent(form.length);
    entered.WIDTH = enteredExtent(form.width);
    entered.HasEntrance = form.chkEntrance->isChecked();
    entered.HASEXPOSEDBEAMS = form.chkExposedBeams->isChecked();
    entered.HASLOWCEILING = form.chkLowCeiling->isChecked();
}
