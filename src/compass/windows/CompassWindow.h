#pragma once

#include "compass/CompassDrawing.h"

#include <QDialog>

class PlanDesk;
class PlanWidget;
class QCheckBox;
class QHBoxLayout;
class QLabel;
class QPushButton;
class QVBoxLayout;
class TabularLabel;
class TitleBand;
class cLocation;

/// What the two compass views share: the plan under the compass, what the mouse points at, and the print.
class CompassWindow : public QDialog {
    Q_OBJECT

protected:
    /// The window's objectName is its name in the settings and in the labels of its reports.
    CompassWindow(CompassDrawing::View view, const QString& name, const QString& title, QWidget* parent);

    /// The home that the whole program shows; fails with error 91 where there is none.
    [[nodiscard]] static cLocation& currentLocation();

    /// Puts the window where it was left, under that title, which is plain text.
    void Form_Load(const QString& title);
    void Form_Unload();

    /// Draws the compass of the current home's North, and the rooms over it.
    void drawPlan();
    /// The same on a cleared plan, for a North that was just clicked.
    void drawPlan(double north, const std::optional<CompassGeometry::PlanPoint>& clicked);
    void clearPlan();
    /// Tells beside the buttons where a point of the plan lies.
    void picFloorPlan_MouseMove(double X, double Y);

    /// Adds a line of text above the plan.
    void addInstruction(QLabel* label);
    /// Adds a button at the end of the row below the plan.
    QPushButton* addButton(const QString& name, const QString& caption, const QString& spoken);

    CompassDrawing drawing_;
    PlanWidget* picFloorPlan = nullptr;

private:
    void buildPlan();
    void buildStrip();
    void picFloorPlan_Resize();
    void cmdPrint_Click();

    TitleBand* vsTop = nullptr;
    QVBoxLayout* main_ = nullptr;
    QHBoxLayout* buttons_ = nullptr;
    TabularLabel* lblCoord = nullptr;
    QCheckBox* chkColor = nullptr;
};
