#pragma once

#include "ui/platform/ComboList.h"

#include <QVariant>
#include <QWidget>

#include <optional>

class RecordList;
class TitleBand;
class ViewFrame;

/// The half of the main window that shows a home. It shows `CurrentLocation` and keeps the state of the
/// screen only.
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

    void ClearScreenLocation();
    void LoadScreenfromLocation();

    /// Lists the homes in the order of the file, up to the first without a name.
    void FillLocations();

    /// The homes of the list; choosing one shows it.
    [[nodiscard]] ComboList& locations() { return locations_; }

private:
    void cboLocation_Click();
    void setOpenState(bool open);

    ViewFrame& frame_;
    TitleBand* vsTopLocation = nullptr;
    RecordList* cboLocation = nullptr;
    ComboList locations_;
    /// `LocationID` at the moment `NewLocation` ran; what Cancel goes back to.
    qint32 PreviousLocationID = 0;
};
