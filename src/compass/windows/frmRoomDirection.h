#pragma once

#include "compass/windows/CompassWindow.h"

/// One room with the compass laid over it, centred on the room.
class frmRoomDirection final : public CompassWindow {
    Q_OBJECT

public:
    explicit frmRoomDirection(QWidget* parent = nullptr);

    /// Shows the stored room modally under its description, and comes back when the window is closed. The
    /// room's direction changes in memory of the current home; nothing is saved.
    void ShowDirection(const QString& RoomDescription, qint32 RoomID);

private:
    void cmdClose_Click();

    /// The room that is shown.
    qint32 RoomID_ = 0;
};
