#include "compass/windows/frmSetDirection.h"

#include "compass/windows/PlanWidget.h"
#include "core/Failure.h"
#include "locations/cLocation.h"
#include "store/RecordStore.h"

#include <QLabel>
#include <QPushButton>

#include <cmath>

frmSetDirection::frmSetDirection(QWidget* parent)
    : CompassWindow(CompassDrawing::View::Home, QStringLiteral("frmSetDirection"),
                    QStringLiteral("Set Direction"), parent) {
    auto* lblLocation = new QLabel(
        QStringLiteral("Click below to indicate the direction of North from the center of the floorplan:"),
        this);
    lblLocation->setObjectName(QStringLiteral("lblLocation"));
    addInstruction(lblLocation);
    QPushButton* cmdOK = addButton(QStringLiteral("cmdOK"), QStringLiteral("&OK"), tr("OK"));
    cmdOK->setDefault(true);
    QPushButton* cmdCancel = addButton(QStringLiteral("cmdCancel"), QStringLiteral("&Cancel"), tr("Cancel"));
    connect(cmdOK, &QPushButton::clicked, this, &frmSetDirection::cmdOK_Click);
    connect(cmdCancel, &QPushButton::clicked, this, &frmSetDirection::cmdCancel_Click);
    connect(picFloorPlan, &PlanWidget::clicked, this, &frmSetDirection::picFloorPlan_MouseUp);
    connect(picFloorPlan, &PlanWidget::turned, this, &frmSetDirection::picFloorPlan_KeyDown);
    picFloorPlan->setTurnable();
    picFloorPlan->setFocus();
}

bool frmSetDirection::SetDirection() {
    return routine(u"frmSetDirection.Set Direction", false, [this](bool& result) {
        resultCode_ = ResultCode::Cancel;
        cLocation& home = currentLocation();
        Form_Load(home.DESCRIPTION);
        drawing_.LoadRooms(home.LocationID);
        const double oldNorth = home.NORTHOFFSET;
        const double oldX = home.LABLEX;
        const double oldY = home.LABLEY;
        drawPlan();
        exec();
        if (resultCode_ == ResultCode::Ok) {
            home.UpdateNorthOffset();
            RecordStore::opened(home.oXMLRooms).SaveDocument();
            result = true;
        } else {
            home.NORTHOFFSET = oldNorth;
            home.LABLEX = oldX;
            home.LABLEY = oldY;
            home.LoadRooms(); // drops the rooms' directions that were noted in memory
        }
        Form_Unload();
    });
}

void frmSetDirection::picFloorPlan_MouseUp(double X, double Y) {
    routine(u"frmSetDirection.picFloorPlan_MouseUp", [&] {
        clearPlan();
        const double angle = CompassGeometry::pointedAngle(X, Y);
        cLocation& home = currentLocation();
        home.NORTHOFFSET = angle;
        home.LABLEX = X;
        home.LABLEY = Y;
        drawPlan(angle, CompassGeometry::PlanPoint{.X = X, .Y = Y});
    });
}

void frmSetDirection::picFloorPlan_KeyDown(double degrees) {
    passOver([&] {
        constexpr double fullTurn = 360;
        const cLocation& home = currentLocation();
        // The letter N turns where it stands.
        const CompassGeometry::PlanPoint unset = CompassDrawing::unsetNorth(picFloorPlan->picture());
        const double shown = home.NORTHOFFSET != 0 ? std::hypot(home.LABLEX, home.LABLEY) : 0;
        const double distance = shown > 0 ? shown : std::hypot(unset.X, unset.Y);
        const double north = std::fmod(std::round(home.NORTHOFFSET) + degrees + fullTurn, fullTurn);
        const double turn = CompassGeometry::DegreesToRadians(north);
        const double X = distance * std::sin(turn);
        const double Y = -distance * std::cos(turn);
        picFloorPlan_MouseUp(X, Y);
        picFloorPlan_MouseMove(X, Y);
    });
}

void frmSetDirection::cmdOK_Click() {
    passOver([this] { leave(ResultCode::Ok); });
}

void frmSetDirection::cmdCancel_Click() {
    passOver([this] { leave(ResultCode::Cancel); });
}

void frmSetDirection::leave(ResultCode code) {
    resultCode_ = code;
    hide();
}
