#pragma once

#include <QDialog>

/// One room with the compass laid over it, centred on the room.
class frmRoomDirection final : public QDialog {
    Q_OBJECT

public:
    explicit frmRoomDirection(QWidget* parent = nullptr);

    /// Shows the stored room modally under its description, and comes back when the window is closed. The
    /// room's direction changes in memory of the current home; nothing is saved.
    void ShowDirection(const QString& RoomDescription, qint32 RoomID);
};
