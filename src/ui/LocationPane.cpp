#include "ui/LocationPane.h"

#include "core/Conversion.h"
#include "core/Global.h"
#include "store/RecordStore.h"
#include "ui/CurrentHome.h"
#include "ui/FloorPlan.h"
#include "ui/PaneParts.h"
#include "ui/ViewFrame.h"
#include "ui/widgets/RecordList.h"
#include "ui/widgets/TitleBand.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QScopedValueRollback>

using namespace Qt::StringLiterals;

namespace {

/// The menu entries that need a home that is stored.
constexpr const char* entriesOfOpenHome[] = {
    "mnuLocationsNew",         "mnuLocationsDelete",      "mnuAdviceRooms",         "mnuLocationsNewFloor",
    "mnuLocationsNewRoom",     "mnuLocationsDeleteFloor", "mnuLocationsDeleteRoom", "mnuLocationsOpenRoom",
    "mnuLocationsRenameFloor", "mnuLocationsDirections",
};

} // namespace

LocationPane::LocationPane(ViewFrame& frame, QWidget* parent)
    : QWidget(parent)
    , frame_(frame)
    , ui_(*this)
    , locations_(*ui_.cboLocation)
    , floors_(*ui_.cboFloors)
    , plan_(new FloorPlan(frame, floors_, this)) {
    setObjectName(u"vsMainLocation"_s);
    setAccessibleName(tr("Location"));
    ui_.addFloorPlan(*plan_);
    connectControls();
    connectEntries();
}

void LocationPane::connectControls() {
    connect(ui_.cboLocation, &RecordList::chosen, this, &LocationPane::cboLocation_Click);
    connect(ui_.cboLocation, &RecordList::textTyped, this, &LocationPane::cboLocation_Change);
    connect(ui_.cboLocation, &RecordList::dropDown, this, &LocationPane::cboLocation_DropDown);
    // Enter saves a changed name; without a change the button is off and nothing happens.
    connect(ui_.cboLocation->lineEdit(), &QLineEdit::returnPressed, ui_.cmdSaveLocation, &QPushButton::click);
    connect(ui_.cboFloors, &QComboBox::currentIndexChanged, this, &LocationPane::cboFloors_Click);
    connect(ui_.cmdNewLocation, &QPushButton::clicked, this, &LocationPane::cmdNewLocation_Click);
    connect(ui_.cmdSaveLocation, &QPushButton::clicked, this, &LocationPane::cmdSaveLocation_Click);
    connect(ui_.cmdRoom, &QPushButton::clicked, plan_, &FloorPlan::mnuLocationsNewRoom_Click);
    connect(ui_.cmdDelRoom, &QPushButton::clicked, plan_, &FloorPlan::mnuLocationsDeleteRoom_Click);
    connect(plan_, &FloorPlan::zoomed, this, &LocationPane::mnuLocationsSave_Click);
    connect(plan_, &FloorPlan::menuWanted, this,
            [this](QPoint onScreen) { frame_.popUpLocations(onScreen); });
}

void LocationPane::connectEntries() {
    const auto run = [this](const QString& entry, auto* owner, auto handler) {
        frame_.connectEntry(entry, [owner, handler] { (owner->*handler)(); });
    };
    run(u"mnuLocationsNew"_s, this, &LocationPane::mnuLocationsNew_Click);
    run(u"mnuLocationsSave"_s, this, &LocationPane::mnuLocationsSave_Click);
    run(u"mnuLocationsDelete"_s, this, &LocationPane::mnuLocationsDelete_Click);
    run(u"mnuLocationsDirections"_s, this, &LocationPane::mnuLocationsDirections_Click);
    run(u"mnuLocationsNewFloor"_s, this, &LocationPane::mnuLocationsNewFloor_Click);
    run(u"mnuLocationsRenameFloor"_s, this, &LocationPane::mnuLocationsRenameFloor_Click);
    run(u"mnuLocationsDeleteFloor"_s, this, &LocationPane::mnuLocationsDeleteFloor_Click);
    run(u"mnuLocationsOpenRoom"_s, plan_, &FloorPlan::mnuLocationsOpenRoom_Click);
    run(u"mnuLocationsNewRoom"_s, plan_, &FloorPlan::mnuLocationsNewRoom_Click);
    run(u"mnuLocationsDeleteRoom"_s, plan_, &FloorPlan::mnuLocationsDeleteRoom_Click);
}

void LocationPane::enableSave(bool enabled) {
    ui_.cmdSaveLocation->setEnabled(enabled);
    frame_.setEntryEnabled(u"mnuLocationsSave"_s, enabled);
}

void LocationPane::setOpenState(bool open) {
    ui_.showState(open);
    enableSave(!open);
    // In the new state there is no plan to zoom; the press of a button would save half a home.
    plan_->zoomPanel()->setEnabled(open);
    for (const char* name : entriesOfOpenHome) {
        frame_.setEntryEnabled(QString::fromLatin1(name), open);
    }
}

void LocationPane::NewLocation() {
    routine(u"frmView.New Location", [this] {
        plan_->Clear();
        PreviousLocationID = currentHome().LocationID;
        frame_.Mode = u"INSERT"_s;
        frame_.pressButton(Pane::Location);
        setOpenState(false);
        ClearScreenLocation();
        ui_.txtLocation->setFocus();
    });
}

void LocationPane::OpenLocation(const std::optional<QVariant>& LocationID) {
    routine(u"frmView.Open Location", [&] {
        frame_.Mode = u"UPDATE"_s;
        FillLocations();
        setOpenState(true);
        ClearScreenLocation();
        if (!LocationID) {
            if (locations_.ListCount() > 0) {
                locations_.setListIndex(0);
            } else {
                NewLocation();
            }
        } else if (!LocationID->toString().isEmpty() && currentHome().GetLocation(*LocationID)) {
            LoadScreenfromLocation();
        }
    });
}

void LocationPane::ClearScreenLocation() {
    routine(u"frmView.ClearScreenLocation", [this] {
        const QScopedValueRollback loading(frame_.Loading, true);
        ui_.vsTopLocation->setCaption(QString());
        ui_.txtLocation->clear();
        locations_.setListIndex(-1);
        ui_.cboLocation->clearEditText();
        floors_.Clear();
        plan_->ClearList();
        plan_->hideRooms();
    });
}

void LocationPane::LoadScreenfromLocation() {
    // The label of the routine above serves both, so that a report names the pane's filling as one thing.
    routine(u"frmView.ClearScreenLocation", [this] {
        const QScopedValueRollback loading(frame_.Loading, true);
        const cLocation& home = currentHome();
        ui_.vsTopLocation->setCaption(captionText(home.DESCRIPTION));
        ui_.cboLocation->setEditText(home.DESCRIPTION);
        ui_.txtLocation->setText(home.DESCRIPTION);
        // What the last home had must not stay where this one's plan has no size.
        floors_.Clear();
        plan_->ClearList();
        plan_->hideRooms();
        plan_->setScale();
        FillFloors();
        if (floors_.ListCount() > 0) {
            floors_.setListIndex(0);
        }
    });
}

void LocationPane::LoadLocationFromScreen() {
    routine(u"frmView.LoadLocationFromScreen", [this] {
        currentHome().DESCRIPTION =
            ui_.cboLocation->isHidden() ? ui_.txtLocation->text() : ui_.cboLocation->currentText();
    });
}

void LocationPane::FillLocations() {
    routine(u"frmView.FillLocations", [this] {
        PaneParts::fillList(frame_, locations_, RecordStore::opened(currentHome().oXMLLocations),
                            u"DESCRIPTION"_s, u"LOCATIONID"_s);
    });
}

void LocationPane::FillFloors() {
    routine(u"frmView.FillFloors", [this] {
        {
            const QScopedValueRollback filling(frame_.Filling, true);
            floors_.Clear();
            cXMLHandler& store = RecordStore::opened(currentHome().oXMLFloors);
            if (!store.Query(u"//z:row[@LOCATIONID = '%1']"_s.arg(currentHome().LocationID))) {
                return;
            }
            for (qint32 index = 0; index < store.ResultCount; ++index) {
                store.GetResult(index);
                const QString id = store.GetAttribute(u"FLOORID"_s, true);
                floors_.AddItem(store.GetAttribute(u"DESCRIPTION"_s, true),
                                Conversion::isNumeric(id) ? Conversion::toLong(id) : 0);
            }
        }
        if (floors_.ListCount() > 0) {
            floors_.setListIndex(0);
        } else {
            plan_->FillRooms(); // no floor is chosen that would take the last one's rooms away
        }
    });
}

void LocationPane::keyPressEvent(QKeyEvent* event) {
    // Where a new home is entered, Enter goes on and Escape goes back.
    const bool entering = ui_.cboLocation->isHidden();
    if (entering && (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)) {
        cmdSaveLocation_Click();
    } else if (entering && event->key() == Qt::Key_Escape) {
        cmdNewLocation_Click();
    } else {
        QWidget::keyPressEvent(event);
    }
}
