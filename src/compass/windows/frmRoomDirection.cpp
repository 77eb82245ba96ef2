#include "compass/windows/frmRoomDirection.h"

#include "core/Failure.h"

#include <QPushButton>

frmRoomDirection::frmRoomDirection(QWidget* parent)
    : CompassWindow(CompassDrawing::View::Room, QStringLiteral("frmRoomDirection"),
                    QStringLiteral("Room Directions"), parent) {
    QPushButton* cmdClose = addButton(QStringLiteral("cmdClose"), QStringLiteral("&Close"), tr("Close"));
    cmdClose->setDefault(true);
    connect(cmdClose, &QPushButton::clicked, this, &frmRoomDirection::cmdClose_Click);
}

void frmRoomDirection::ShowDirection(const QString& RoomDescription, qint32 RoomID) {
    routine(u"frmRoomDirection.Show Direction", [&] {
        Form_Load(RoomDescription);
        RoomID_ = RoomID;
        drawing_.LoadRooms(RoomID_);
        drawPlan();
        exec();
        Form_Unload();
    });
}

void frmRoomDirection::cmdClose_Click() {
    passOver([this] { hide(); });
}
