// What the controls and menu entries of the location pane do; the pane's states and its filling stand in
// LocationPane.cpp.

#include "compass/windows/frmSetDirection.h"
#include "core/Conversion.h"
#include "core/Global.h"
#include "core/Prompts.h"
#include "profiles/cProfile.h"
#include "ui/CurrentHome.h"
#include "ui/FloorPlan.h"
#include "ui/LocationPane.h"
#include "ui/PaneParts.h"
#include "ui/ViewFrame.h"
#include "ui/widgets/RecordList.h"

#include <QLineEdit>
#include <QPushButton>

using namespace Qt::StringLiterals;

// The lists.

void LocationPane::rememberShown() {
    PaneParts::rememberLast(u"LastLocation"_s, currentHome().LocationID);
    frame_.setPanel(Pane::Location, currentHome().DESCRIPTION);
}

void LocationPane::cboLocation_Click() {
    routine(u"frmView.cboLocation_Click", [this] {
        if (frame_.Filling || locations_.ListIndex() < 0) {
            return;
        }
        currentHome().GetLocation(locations_.ItemData(locations_.ListIndex()));
        LoadScreenfromLocation();
        rememberShown();
        currentHome().IsDirty = false;
        enableSave(false);
    });
}

void LocationPane::cboLocation_Change() {
    routine(u"frmView.cboLocation_Change", [this] {
        if (!frame_.Filling && !frame_.Loading) {
            currentHome().IsDirty = true;
            enableSave(true);
        }
    });
}

bool LocationPane::askToSave(const QString& title) {
    if (!currentHome().IsDirty) {
        return true;
    }
    const bool yes =
        PaneParts::ask(title, u"Would you like to save the changes to this location before proceeding?"_s);
    if (yes) {
        mnuLocationsSave_Click();
    }
    return yes;
}

void LocationPane::cboLocation_DropDown() {
    routine(u"frmView.cboLocation_DropDown", [this] {
        if (!askToSave(u"Select Location"_s)) {
            LoadScreenfromLocation();
            currentHome().IsDirty = false;
            enableSave(false);
        }
    });
}

void LocationPane::cboFloors_Click() {
    if (floors_.ListIndex() < 0) {
        return; // the list was emptied; nobody chose a floor
    }
    routine(u"frmView.cboFloors_Click", [this] {
        plan_->Clear();
        plan_->FillRooms();
        Global::CurrentFloorID = floors_.ItemData(floors_.ListIndex());
    });
}

// New, Save, Delete.

void LocationPane::mnuLocationsNew_Click() {
    routine(u"frmView.mnuLocationsNew_Click", [this] {
        static_cast<void>(askToSave(u"New Location"_s)); // on No the changes are dropped
        NewLocation();
    });
}

void LocationPane::cmdNewLocation_Click() {
    routine(u"frmView.cmdNewLocation_Click", [this] {
        if (ui_.cmdNewLocation->text() == u"Cancel") {
            cancelNew();
        } else {
            mnuLocationsNew_Click();
        }
    });
}

void LocationPane::cancelNew() {
    // `Mode` stays as it is: the next save of the home that comes back stores a copy.
    setOpenState(true);
    currentHome().IsDirty = false;
    Global::FindInData(locations_, QString::number(PreviousLocationID), 0, 0);
}

void LocationPane::cmdSaveLocation_Click() {
    mnuLocationsSave_Click();
}

void LocationPane::mnuLocationsSave_Click() {
    routine(u"frmView.Save Location", [this] {
        if (!Conversion::isNumeric(ui_.txtNumFloors->text())) {
            ui_.txtNumFloors->setText(u"1"_s);
        }
        LoadLocationFromScreen();
        cLocation& home = currentHome();
        if (frame_.Mode == u"UPDATE") {
            home.UpdateLocation();
            frame_.setPanel(Pane::Location, home.DESCRIPTION);
            OpenLocation(home.LocationID);
        } else if (frame_.Mode == u"INSERT") {
            home.InsertLocation(Conversion::toLong(ui_.txtNumFloors->text()));
            rememberShown();
            frame_.Mode = u"UPDATE"_s;
            OpenLocation(home.LocationID);
        }
    });
}

void LocationPane::mnuLocationsDelete_Click() {
    routine(u"frmView.mnuLocationsDelete_Click", [this] {
        const QString title = u"Delete Location"_s;
        cLocation& home = currentHome();
        if (!PaneParts::ask(title, u"Are you sure that you want to delete location: "_s + home.DESCRIPTION +
                                       u"?"_s)) {
            return;
        }
        if (!home.DeleteLocation()) {
            PaneParts::warn(title, u"Unable to delete this location: "_s + home.DESCRIPTION);
            return;
        }
        FillLocations();
        if (locations_.ListCount() > 0) {
            locations_.setListIndex(0);
            return;
        }
        // The person's setting is meant; the home's keeps pointing at the one that is gone.
        if (Global::CurrentProfile == nullptr) {
            throw failure(ErrorNumber::ObjectNotSet);
        }
        PaneParts::rememberLast(u"LastProfile"_s, Global::CurrentProfile->PROFILEID);
        frame_.setPanel(Pane::Location, QString());
        frame_.Mode = u"UPDATE"_s;
        OpenLocation();
    });
}

// Floors.

void LocationPane::mnuLocationsNewFloor_Click() {
    routine(u"frmView.mnuLocationsNewFloor_Click", [this] {
        if (!currentHome().InsertFloor()) {
            return;
        }
        FillFloors();
        if (floors_.ListCount() > 0) {
            floors_.setListIndex(floors_.ListCount() - 1);
            PaneParts::inform(u"New Floor"_s,
                              u"A Floor Named "_s + ui_.cboFloors->currentText() + u" has been added."_s);
        }
    });
}

void LocationPane::mnuLocationsRenameFloor_Click() {
    routine(u"frmView.mnuLocationsRenameFloor_Click", [this] {
        if (floors_.ListIndex() < 0) {
            return;
        }
        const QString present = ui_.cboFloors->currentText();
        const QString answer =
            Global::service(&Services::prompts)
                .inputBox(u"Rename Floor"_s, u"Please Enter a new name for this floor."_s, present);
        if (!answer.isEmpty() && answer != present &&
            currentHome().RenameFloor(floors_.ItemData(floors_.ListIndex()), answer)) {
            FillFloors();
        }
    });
}

void LocationPane::mnuLocationsDeleteFloor_Click() {
    routine(u"frmView.mnuLocationsDeleteFloor_Click", [this] {
        if (floors_.ListIndex() < 0) {
            return;
        }
        if (!PaneParts::ask(u"Delete Floor"_s, u"Are you sure that you want to delete floor: "_s +
                                                   ui_.cboFloors->currentText() + u"?"_s) ||
            !currentHome().DeleteFloor(floors_.ItemData(floors_.ListIndex()))) {
            return;
        }
        FillFloors();
    });
}

void LocationPane::mnuLocationsDirections_Click() {
    routine(u"frmView.mnuLocationsDirections_Click", [this] {
        LoadLocationFromScreen();
        if (frmSetDirection(window()).SetDirection()) {
            enableSave(false);
        }
        currentHome().LoadRooms();
    });
}
