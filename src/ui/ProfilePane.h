#pragma once

#include "core/clsCalendar.h"
#include "ui/ProfileControls.h"
#include "ui/platform/ComboList.h"

#include <QVariant>
#include <QWidget>

#include <optional>

class ViewFrame;
class cProfile;
namespace ProfilePanels {
struct Row;
}

/// The half of the main window in which a person is chosen, entered, calculated, saved and deleted, and in
/// which everything is shown that follows from the person's number. It edits `CurrentProfile` and keeps the
/// state of the screen only.
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

    /// Blanks the fields and seven of the panels; the other panels keep what they show until the next load.
    void ClearScreenProfile();

    /// Fills the pane from `CurrentProfile`.
    void LoadScreenfromProfile();

    /// Copies the entry fields into `CurrentProfile`. Leaves it half changed at a number that is none.
    void LoadProfileFromScreen();

    /// Lists the people in the order of the file, up to the first without a name.
    void FillProfiles();

    /// The people of the list; choosing one shows it.
    [[nodiscard]] ComboList& profiles() { return profiles_; }

private:
    void connectControls();
    void setOpenState(bool open);
    void enableSave(bool enabled);
    void showPanel(const ProfilePanels::Row& row, const cProfile& person);
    void rememberShown();
    /// Asks whether to save unsaved changes and does so; false on No. Asks nothing, and is true, without
    /// changes.
    [[nodiscard]] bool askToSave(const QString& title);
    void markChanged(QStringView label, bool writing);

    void mnuProfilesNew_Click();
    void mnuProfilesSave_Click();
    void mnuProfilesDelete_Click();
    [[nodiscard]] bool hasAcceptableNumber();
    void insertShown();
    void updateShown();
    void cancelNew();
    void deleteShown();

    void cmdNewProfile_Click();
    void cmdSaveProfile_Click();
    void cmdDelProfile_Click();
    void cmdCalcProfile_Click();
    void cmdDate_Click();
    void cboProfileName_Click();
    void cboProfileName_Change();
    void cboProfileName_DropDown();
    void txtProfileName_Change();
    void txtBirthDate_Change();
    void txt9Ki_Change();
    void optFemale_Click();
    void optMale_Click();

    ViewFrame& frame_;
    ProfileControls ui_;
    ComboList profiles_;
    clsCalendar calendar_;
    /// `PROFILEID` at the moment `NewProfile` ran; what Cancel goes back to.
    qint32 PreviousProfileID = 0;
};
