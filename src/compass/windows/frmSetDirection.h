#pragma once

#include <QDialog>

/// All rooms of the current home's shown floor under the compass, where the user clicks the direction of
/// North.
class frmSetDirection final : public QDialog {
    Q_OBJECT

public:
    explicit frmSetDirection(QWidget* parent = nullptr);

    /// Shows the window modally. True when the user confirmed: North and the directions of all rooms of the
    /// home are then on disk. Otherwise the current home is as before.
    bool SetDirection();
};
