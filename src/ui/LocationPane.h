#pragma once

#include "ui/LocationControls.h"
#include "ui/platform/ComboList.h"

#include <QVariant>
#include <QWidget>

#include <optional>

class FloorPlan;
class ViewFrame;

/// The half of the main window in which a home is chosen, entered, renamed and deleted, and its floors are
/// managed; the rooms of the floor on show stand on its floor plan. It edits `CurrentLocation` and keeps the
/// state of the screen only.
class LocationPane final : public QWidget {
    Q_OBJECT

public:
    explicit LocationPane(ViewFrame& frame, QWidget* parent = nullptr);

    /// Puts the pane into its new state.
    void NewLocation();

    /// Puts the pane into its open state and shows a home. Without an argument the first of the list is
    /// shown, and where there is none the new state follows. An unknown id and the empty text leave the pane
    /// blank in its open state.
    void OpenLocation(const std::optional<QVariant>& LocationID = std::nullopt);

    /// Blanks the pane, but for the number of floors, which stays for the next new home.
    void ClearScreenLocation();

    /// Fills the pane from `CurrentLocation` and shows its first floor.
    void LoadScreenfromLocation();

    /// Copies the home's name into `CurrentLocation`.
    void LoadLocationFromScreen();

    /// Lists the homes in the order of the file, up to the first without a name.
    void FillLocations();

    /// Lists the floors of the home in the order of the file and shows the first.
    void FillFloors();

    /// The homes of the list; choosing one shows it.
    [[nodiscard]] ComboList& locations() { return locations_; }

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void connectControls();
    void connectEntries();
    void setOpenState(bool open);
    void enableSave(bool enabled);
    /// Asks whether to save unsaved changes and does so; false on No. Asks nothing, and is true, without
    /// changes.
    [[nodiscard]] bool askToSave(const QString& title);
    void rememberShown();
    void cancelNew();

    void cmdNewLocation_Click();
    void cmdSaveLocation_Click();
    void mnuLocationsNew_Click();
    void mnuLocationsSave_Click();
    void mnuLocationsDelete_Click();
    void mnuLocationsNewFloor_Click();
    void mnuLocationsRenameFloor_Click();
    void mnuLocationsDeleteFloor_Click();
    void mnuLocationsDirections_Click();
    void cboLocation_Click();
    void cboLocation_Change();
    void cboLocation_DropDown();
    void cboFloors_Click();

    ViewFrame& frame_;
    LocationControls ui_;
    ComboList locations_;
    ComboList floors_;
    FloorPlan* plan_ = nullptr;
    /// `LocationID` at the moment `NewLocation` ran; what Cancel goes back to.
    qint32 PreviousLocationID = 0;
};
