#include "compass/windows/frmRoomDirection.h"

#include "core/Failure.h"

frmRoomDirection::frmRoomDirection(QWidget* parent)
    : QDialog(parent) {
    setObjectName(QStringLiteral("frmRoomDirection"));
    setWindowTitle(QStringLiteral("Room Directions"));
}

void frmRoomDirection::ShowDirection(const QString& /*RoomDescription*/, qint32 /*RoomID*/) {
    routine(u"frmRoomDirection.Show Direction", [this] { exec(); });
}
