#include "ui/LocationPane.h"

#include "core/Global.h"
#include "locations/cLocation.h"
#include "ui/PaneParts.h"
#include "ui/ViewFrame.h"
#include "ui/widgets/RecordList.h"
#include "ui/widgets/TitleBand.h"

#include <QScopedValueRollback>
#include <QVBoxLayout>

namespace {

/// The menu entries that need a home that is stored.
constexpr const char* entriesOfOpenHome[] = {
    "mnuLocationsNew",         "mnuLocationsDelete",      "mnuAdviceRooms",         "mnuLocationsNewFloor",
    "mnuLocationsNewRoom",     "mnuLocationsDeleteFloor", "mnuLocationsDeleteRoom", "mnuLocationsOpenRoom",
    "mnuLocationsRenameFloor", "mnuLocationsDirections",
};

cLocation& currentLocation() {
    if (Global::CurrentLocation == nullptr) {
        throw failure(ErrorNumber::ObjectNotSet);
    }
    return *Global::CurrentLocation;
}

} // namespace

LocationPane::LocationPane(ViewFrame& frame, QWidget* parent)
    : QWidget(parent)
    , frame_(frame)
    , cboLocation(PaneParts::makeList(*this, QStringLiteral("cboLocation"), tr("Location"),
                                      QStringLiteral("Select a Location from the List")))
    , locations_(*cboLocation) {
    setObjectName(QStringLiteral("vsMainLocation"));
    setAccessibleName(tr("Location"));
    auto* column = new QVBoxLayout(this);
    vsTopLocation = PaneParts::addBand(*this, *column, QStringLiteral("vsTopLocation"),
                                       QStringLiteral(":/talivane/pictures/locations.svg"));
    // The list is at work already; it gets its place on the pane together with the home's other fields.
    cboLocation->hide();
    connect(cboLocation, &RecordList::chosen, this, &LocationPane::cboLocation_Click);
}

void LocationPane::setOpenState(bool open) {
    for (const char* name : entriesOfOpenHome) {
        frame_.setEntryEnabled(QString::fromLatin1(name), open);
    }
    frame_.setEntryEnabled(QStringLiteral("mnuLocationsSave"), !open);
}

void LocationPane::NewLocation() {
    routine(u"frmView.New Location", [this] {
        PreviousLocationID = currentLocation().LocationID;
        frame_.Mode = QStringLiteral("INSERT");
        frame_.pressButton(Pane::Location);
        setOpenState(false);
        ClearScreenLocation();
    });
}

void LocationPane::OpenLocation(const std::optional<QVariant>& LocationID) {
    routine(u"frmView.Open Location", [&] {
        frame_.Mode = QStringLiteral("UPDATE");
        FillLocations();
        setOpenState(true);
        ClearScreenLocation();
        if (!LocationID) {
            if (locations_.ListCount() > 0) {
                locations_.setListIndex(0);
            } else {
                NewLocation();
            }
        } else if (!LocationID->toString().isEmpty() && currentLocation().GetLocation(*LocationID)) {
            LoadScreenfromLocation();
        }
    });
}

void LocationPane::ClearScreenLocation() {
    routine(u"frmView.ClearScreenLocation", [this] {
        const QScopedValueRollback loading(frame_.Loading, true);
        vsTopLocation->setCaption(QString());
        locations_.setListIndex(-1);
        cboLocation->clearEditText();
    });
}

void LocationPane::LoadScreenfromLocation() {
    // The label of the routine above serves both, so that a report names the pane's filling as one thing.
    routine(u"frmView.ClearScreenLocation", [this] {
        const QScopedValueRollback loading(frame_.Loading, true);
        const cLocation& home = currentLocation();
        vsTopLocation->setCaption(captionText(home.DESCRIPTION));
        cboLocation->setEditText(home.DESCRIPTION);
    });
}

void LocationPane::FillLocations() {
    routine(u"frmView.FillLocations", [this] {
        const auto& store = currentLocation().oXMLLocations;
        if (store == nullptr) {
            throw failure(ErrorNumber::ObjectNotSet);
        }
        PaneParts::fillList(frame_, locations_, *store, QStringLiteral("DESCRIPTION"),
                            QStringLiteral("LOCATIONID"));
    });
}

void LocationPane::cboLocation_Click() {
    routine(u"frmView.cboLocation_Click", [this] {
        if (frame_.Filling || locations_.ListIndex() < 0) {
            return;
        }
        cLocation& home = currentLocation();
        home.GetLocation(locations_.ItemData(locations_.ListIndex()));
        LoadScreenfromLocation();
        PaneParts::rememberLast(QStringLiteral("LastLocation"), home.LocationID);
        frame_.setPanel(Pane::Location, home.DESCRIPTION);
        home.IsDirty = false;
        frame_.setEntryEnabled(QStringLiteral("mnuLocationsSave"), false);
    });
}
