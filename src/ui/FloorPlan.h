#pragma once

#include "ui/platform/ListBox.h"
#include "ui/widgets/PaneSplitter.h"

#include <QPointF>

#include <optional>
#include <vector>

class ComboList;
class ElidedLabel;
class FloorPlanDesk;
class PlanRoom;
class PlanView;
class QKeyEvent;
class QListWidget;
class QPushButton;
class ViewFrame;

/// The floor plan of the location pane: the list of the rooms of the selected floor beside their rectangles
/// on the plan, which the user drags into place. It works on `CurrentLocation`; each new place of a room is
/// on disk when the room has been dropped.
class FloorPlan final : public PaneSplitter {
    Q_OBJECT

public:
    /// `floors` is the list of floors, in which the shown one is selected.
    FloorPlan(ViewFrame& frame, const ComboList& floors, QWidget* parent);

    /// Shows the rooms of the selected floor as they are in the file. Passes over failures, statement by
    /// statement: what of a room cannot be read stays as its rectangle last stood.
    void FillRooms();

    /// Draws the outlines of the floor that stands above the selected one in the list.
    void DrawRooms();

    /// Sets the plan to the extent of the current home. Fails with error 380 unless both are positive.
    void setScale();
    /// Removes the outlines of the floor below.
    void Clear();
    /// Empties the list of rooms.
    void ClearList();
    /// Hides all rooms. They are never destroyed, but used again.
    void hideRooms();

    void mnuLocationsNewRoom_Click();
    void mnuLocationsOpenRoom_Click();
    void mnuLocationsDeleteRoom_Click();

    /// The zoom's label and buttons, for their place beside the list of floors.
    [[nodiscard]] QWidget* zoomPanel() const { return vsZoom; }
    /// The controls that Tab visits, in order.
    [[nodiscard]] QList<QWidget*> tabStops() const;
    /// The line below the plan that tells where the selected room stands.
    [[nodiscard]] ElidedLabel* readOut() const { return readOut_; }

    /// The plan's edges and centre as whole inches; right and bottom are doubled by design.
    qint32 PlanLeft = 0;
    qint32 PlanTop = 0;
    qint32 PlanRight = 0;
    qint32 PlanBottom = 0;
    qint32 PlanCenterX = 0;
    qint32 PlanCenterY = 0;

Q_SIGNALS:
    /// The zoom changed the home's plan, which is to be saved.
    void zoomed();
    /// The menu of the home's commands is asked for at a place of the screen.
    void menuWanted(QPoint onScreen);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    /// A room in the user's hand, from the press of the button on.
    struct Drag {
        PlanRoom* room;
        /// In pixels of the plan.
        QPointF pressedAt;
        float left;
        float top;
        bool moving;
    };

    void buildList();
    void buildZoom();
    PlanRoom& createRoom();
    void showRoom(qint32 index);
    void drawOutline();
    void SetPicScaleMode();
    /// The item data of the selected floor. Fails with error 381 when there is none.
    [[nodiscard]] qint32 selectedFloor() const;

    void lstRooms_Click();
    void lstRooms_DblClick();
    void recRoom_Click(qint32 Index);
    void recRoom_DblClick(qint32 Index);
    void recRoom_MouseDown(qint32 Index, Qt::MouseButton Button, QPointF onPlan, QPoint onScreen);
    void recRoom_MouseMove(QPointF onPlan);
    void recRoom_MouseUp(Qt::MouseButton Button, QPointF onPlan);
    void recRoom_KeyDown(QKeyEvent& event);
    void recRoom_DragDrop(qint32 Index, PlanRoom& Source, float X, float Y);
    void picFloorPlan_DragDrop(PlanRoom& Source, float X, float Y);
    void cmdPlus_Click();
    void cmdMinus_Click();

    void zoomBy(qint32 inches);
    void openSelectedRoom();
    void cancelDrag();
    [[nodiscard]] PlanRoom* roomUnder(QPoint pixels) const;
    void drop(PlanRoom& room, float left, float top);
    void showPlace();

    ViewFrame& frame_;
    const ComboList& floors_;
    QListWidget* lstRooms = nullptr;
    std::optional<ListBox> rooms_;
    FloorPlanDesk* vsRight = nullptr;
    PlanView* picFloorPlan = nullptr;
    std::vector<PlanRoom*> recRoom;
    QWidget* vsZoom = nullptr;
    ElidedLabel* readOut_ = nullptr;
    /// Where inside a room the mouse took hold, in inches.
    qint32 GrabX = 0;
    qint32 GrabY = 0;
    PlanRoom* CurrentRoomControl = nullptr;
    std::optional<Drag> drag_;
    /// List and plan were given their shares of the width.
    bool shared_ = false;
};
