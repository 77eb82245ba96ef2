#pragma once

#include "ui/platform/ComboList.h"

#include <QVariant>
#include <QWidget>

#include <optional>

class QComboBox;
class TitleBand;
class ViewFrame;

/// The half of the main window that shows a person. It shows `CurrentProfile` and keeps the state of the
/// screen only.
class ProfilePane final : public QWidget {
    Q_OBJECT

public:
    explicit ProfilePane(ViewFrame& frame, QWidget* parent = nullptr);

    /// Puts the pane into its new state.
    void NewProfile();

    /// Puts the pane into its open state and shows a person. Without an argument the first of the list is
    /// shown; where there is none, and for an unknown id, the new state follows. The empty text leaves the
    /// pane blank.
    void OpenProfile(const std::optional<QVariant>& ProfileID = std::nullopt);

    void ClearScreenProfile();
    void LoadScreenfromProfile();

    /// Lists the people in the order of the file, up to the first without a name.
    void FillProfiles();

    /// The people of the list; choosing one shows it.
    [[nodiscard]] ComboList& profiles() { return profiles_; }

private:
    void cboProfileName_Click();
    void setOpenState(bool open);

    ViewFrame& frame_;
    TitleBand* vsTopProfile = nullptr;
    QComboBox* cboProfileName = nullptr;
    ComboList profiles_;
    /// `PROFILEID` at the moment `NewProfile` ran; what Cancel goes back to.
    qint32 PreviousProfileID = 0;
};
