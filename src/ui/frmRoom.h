#pragma once

#include "reports/pages/PageSurface.h"

#include <QDialog>

#include <functional>
#include <memory>

class PreviewWidget;
class QBoxLayout;
class QPushButton;
class ReportPager;
class ReportStrip;
class RoomForm;
class TitleBand;
class cRoom;

/// The room editor: a room's facts on the left, the advice on it on the right, as of the last save. It works
/// on a room object of its own and never changes `CurrentLocation`, which is only asked for its floors.
class frmRoom final : public QDialog {
    Q_OBJECT

public:
    explicit frmRoom(QWidget* parent = nullptr);
    frmRoom(const frmRoom&) = delete;
    frmRoom& operator=(const frmRoom&) = delete;
    ~frmRoom() override;

    /// Shows the window modally for a new room on a floor of a home. True when the room was saved before the
    /// window closed.
    bool NewRoom(qint32 LocationID, qint32 FloorID);

    /// Shows the window modally for a stored room. True when it was saved before the window closed.
    bool OpenRoom(qint32 RoomID);

    /// Escape does what Close does.
    void reject() override;

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void buildMenu();
    QWidget* buildFacts();
    QWidget* buildReport();
    QPushButton* addButton(QBoxLayout& row, const QString& name, const QString& caption,
                           const QString& toolTip, void (frmRoom::*handler)());

    void Form_Load();
    void Form_Unload();
    /// Starts a visit with a room object of its own and nothing to save.
    void begin(const QString& saveCaption);
    bool showUntilClosed();

    void fill(QStringView label, const std::function<void()>& body);
    void FillRoomTypes();
    void FillFloorTypes();
    void FillFloors();
    void FillLocations();
    void fillLists();
    void ClearScreen();
    void LoadScreenfromRoom();
    void LoadRoomFromScreen();
    void roomEdited();
    void roomStored();
    /// Writes the room's advice anew and goes to its first page.
    void analyze();
    void askToSave();
    [[nodiscard]] cRoom& room() const;

    /// `cmdOK` does the same.
    /// Saves what is entered, and shows the advice anew; whether it was stored.
    bool save();
    void mnuFileSave_Click();
    void mnuFilePrint_Click();
    void mnuFileSaveAs_Click();
    /// `cmdCancel` does the same.
    void mnuFileClose_Click();
    void cmdPrint_Click();
    void cmdCompass_Click();

    std::unique_ptr<cRoom> oRoom;
    /// "INSERT" or "UPDATE".
    QString Mode;
    /// A save succeeded during this visit.
    bool RoomSaved = false;
    /// The screen differs from what was saved. A new room begins with it set.
    bool RoomChanged = false;
    /// A list is being filled. Changes count all the same.
    bool Filling = false;
    bool loaded_ = false;

    PageSurface surface_;
    TitleBand* vsTop = nullptr;
    RoomForm* form_ = nullptr;
    QPushButton* cmdOK = nullptr;
    QPushButton* cmdCancel = nullptr;
    PreviewWidget* vpPrint = nullptr;
    ReportStrip* strip_ = nullptr;
    std::unique_ptr<ReportPager> pager_;
};
