#pragma once

class ComboList;
class FloorPlan;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QWidget;
class RecordList;
class TitleBand;
class ViewFrame;

/// The controls of the location pane around the floor plan: what they are called and how they are laid out.
/// They belong to the pane's widget and hold no behaviour but the two states that they can be in.
class LocationControls {
public:
    explicit LocationControls(QWidget& pane);

    TitleBand* vsTopLocation = nullptr;
    QLabel* lblLocation = nullptr;
    RecordList* cboLocation = nullptr;
    QLineEdit* txtLocation = nullptr;
    QLabel* lblFloors = nullptr;
    QComboBox* cboFloors = nullptr;
    QLineEdit* txtNumFloors = nullptr;
    QPushButton* cmdNewLocation = nullptr;
    QPushButton* cmdSaveLocation = nullptr;
    QPushButton* cmdRoom = nullptr;
    QPushButton* cmdDelRoom = nullptr;

    /// Puts the floor plan and its zoom in their places between the fields and the buttons.
    void addFloorPlan(FloorPlan& plan);

    /// Shows the controls of a stored home, or those for entering a new one.
    void showState(bool open) const;

private:
    QWidget* makeFields();
    QWidget* makeButtons();
    void setTabOrder(const FloorPlan& plan) const;

    QWidget& pane_;
};
