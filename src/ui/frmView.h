#pragma once

#include "core/MainWindow.h"
#include "ui/ViewFrame.h"

#include <QMainWindow>

class LocationPane;
class ProfilePane;
class QMenu;
class StatusPanels;

/// The main window, the only one that is not modal. It hosts the pane of the person and the pane of the home,
/// one of which is visible, and opens all other windows. It is the only one that changes which person and
/// which home `CurrentProfile` and `CurrentLocation` hold.
class frmView final : public QMainWindow, public MainWindow, public ViewFrame {
    Q_OBJECT

public:
    explicit frmView(QWidget* parent = nullptr);

    /// "PROFILE" or "LOCATION".
    QString CurrentPane;

    void Show() override;
    void NewProfile() override;
    void NewLocation() override;

    void setPanel(Pane pane, const QString& name) override;
    void setEntryEnabled(const QString& name, bool enabled) override;
    void connectEntry(const QString& name, std::function<void()> handler) override;
    void pressButton(Pane pane) override;
    void popUpLocations(const QPoint& onScreen) override;

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    /// What a menu entry runs; nothing for an entry whose window or pane is not part of the program yet.
    using Handler = void (frmView::*)();
    struct MenuEntry;

    void buildMenus();
    QMenu* buildMenu(const QString& name, const QString& caption, const QList<MenuEntry>& entries);
    QWidget* buildToolbar();
    void buildPanes();

    void Form_Load();
    void Form_Unload();
    void openFirstLocation();
    void openFirstProfile();
    void tlbNavigation_ButtonClick(Pane button);
    void switchToProfile();
    void switchToLocation();
    void showPane(Pane pane);
    void mnuFileExit_Click();
    void mnuAdviceMoving_Click();
    void mnuAdviceRenovations_Click();
    void mnuAdviceNineKi_Click();
    void mnuAdviceRooms_Click();
    void mnuAdviceElement_Click();
    void mnuAdviceProfile_Click();
    void mnuHelpFaqs_Click();
    void mnuHelpSupport_Click();
    void mnuAbout_Click();

    bool loaded_ = false;
    ProfilePane* vsMainProfile = nullptr;
    LocationPane* vsMainLocation = nullptr;
    QAction* profileButton_ = nullptr;
    QAction* locationButton_ = nullptr;
    QMenu* mnuProfiles = nullptr;
    QMenu* mnuLocations = nullptr;
    StatusPanels* sbInfo = nullptr;
};
