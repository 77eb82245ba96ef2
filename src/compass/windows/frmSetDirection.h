#pragma once

#include "compass/windows/CompassWindow.h"

/// All rooms of the current home's shown floor under the compass, where the user clicks the direction of
/// North.
class frmSetDirection final : public CompassWindow {
    Q_OBJECT

public:
    explicit frmSetDirection(QWidget* parent = nullptr);

    /// Shows the window modally. True when the user confirmed: North and the directions of all rooms of the
    /// home are then on disk. Otherwise the current home is as before.
    bool SetDirection();

private:
    enum class ResultCode : qint32 { Ok = 1, Cancel = 2 };

    void picFloorPlan_MouseUp(double X, double Y);
    /// Turns North by so many degrees, as a click beside the last one would.
    void picFloorPlan_KeyDown(double degrees);
    void cmdOK_Click();
    void cmdCancel_Click();
    void leave(ResultCode code);

    ResultCode resultCode_ = ResultCode::Cancel;
};
