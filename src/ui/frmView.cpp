#include "ui/frmView.h"

#include "core/Global.h"
#include "locations/cLocation.h"
#include "nineki/windows/frmNineKi.h"
#include "profiles/cProfile.h"
#include "profiles/windows/frmElements.h"
#include "profiles/windows/frmProfiles.h"
#include "reports/windows/frmPrintPreview.h"
#include "ui/HelpLinks.h"
#include "ui/LocationPane.h"
#include "ui/ProfilePane.h"
#include "ui/StatusPanels.h"
#include "ui/frmAbout.h"
#include "ui/platform/WidgetPlacement.h"
#include "ui/widgets/SvgIcon.h"

#include <QAction>
#include <QActionGroup>
#include <QCloseEvent>
#include <QMenuBar>
#include <QStackedLayout>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

const QSize designSize(1100, 760);
const QSize smallestSize(900, 640);
constexpr int toolbarPicture = 32;
/// Marks a menu entry that has something to run.
constexpr const char* connectedEntry = "connected";

} // namespace

/// One line of a menu: its name, its caption and what it runs. An empty caption is a separator.
struct frmView::MenuEntry {
    const char* name;
    const char* caption;
    Handler handler = nullptr;
};

frmView::frmView(QWidget* parent)
    : QMainWindow(parent) {
    setObjectName(QStringLiteral("frmView"));
    setWindowTitle(QStringLiteral("Feng Shui"));
    setContextMenuPolicy(Qt::NoContextMenu);
    setMinimumSize(smallestSize);
    resize(designSize);
    buildMenus();
    buildPanes();
    sbInfo = new StatusPanels(this);
    setStatusBar(sbInfo);
}

QSize frmView::sizeHint() const {
    return designSize;
}

QMenu* frmView::buildMenu(const QString& name, const QString& caption, const QList<MenuEntry>& entries) {
    QMenu* menu = menuBar()->addMenu(caption);
    menu->setObjectName(name);
    for (const MenuEntry& entry : entries) {
        QAction* action = *entry.caption == '\0' ? menu->addSeparator()
                                                 : menu->addAction(QString::fromLatin1(entry.caption));
        action->setObjectName(QString::fromLatin1(entry.name));
        if (!action->isSeparator()) {
            action->setProperty(connectedEntry, entry.handler != nullptr);
            action->setEnabled(entry.handler != nullptr);
        }
        if (entry.handler != nullptr) {
            connect(action, &QAction::triggered, this, entry.handler);
        }
    }
    return menu;
}

void frmView::buildMenus() {
    buildMenu(QStringLiteral("mnuFile"), QStringLiteral("&File"),
              {{"mnuFileExit", "E&xit", &frmView::mnuFileExit_Click}});
    mnuProfiles = buildMenu(QStringLiteral("mnuProfiles"), QStringLiteral("&Profiles"),
                            {{"mnuProfilesNew", "&New Profile"},
                             {"mnuProfilesSave", "&Save Profile"},
                             {"mnuProfilesDelete", "&Delete Profile"},
                             {"mnuProfilesSep1", ""},
                             {"mnuProfilesCalcKUA", "&Calculate KUA"}});
    mnuLocations = buildMenu(QStringLiteral("mnuLocations"), QStringLiteral("&Locations"),
                             {{"mnuLocationsNew", "&New Location"},
                              {"mnuLocationsSave", "&Save Location"},
                              {"mnuLocationsDelete", "&Delete Location"},
                              {"mnuLocationsSep1", ""},
                              {"mnuLocationsDirections", "Set Directions..."},
                              {"mnuLocationsSep2", ""},
                              {"mnuLocationsNewFloor", "New Floor"},
                              {"mnuLocationsRenameFloor", "Rename Floor..."},
                              {"mnuLocationsDeleteFloor", "Delete Floor"},
                              {"mnuLocationsSep3", ""},
                              {"mnuLocationsOpenRoom", "Open Room..."},
                              {"mnuLocationsNewRoom", "New Room..."},
                              {"mnuLocationsDeleteRoom", "Delete Room"}});
    buildMenu(QStringLiteral("mnuAdvice"), QStringLiteral("&Advice"),
              {{"mnuAdviceMoving", "On &Moving...", &frmView::mnuAdviceMoving_Click},
               {"mnuAdviceRenovations", "On Re&novations...", &frmView::mnuAdviceRenovations_Click},
               {"mnuAdviceNineKi", "On Nine &Ki Chart...", &frmView::mnuAdviceNineKi_Click},
               {"mnuAdviceRooms", "On &Rooms...", &frmView::mnuAdviceRooms_Click},
               {"mnuAdviceElement", "On &Elements...", &frmView::mnuAdviceElement_Click},
               {"mnuAdviceProfile", "On &Profiles...", &frmView::mnuAdviceProfile_Click}});
    buildMenu(QStringLiteral("mnuHelp"), QStringLiteral("&Help"),
              {{"mnuHelpFaqs", "&FAQs", &frmView::mnuHelpFaqs_Click},
               {"mnuHelpSupport", "&Support", &frmView::mnuHelpSupport_Click},
               {"mnuAbout", "&About...", &frmView::mnuAbout_Click}});
}

QWidget* frmView::buildToolbar() {
    constexpr int edge = 8;
    auto* cbrNavigation = new QWidget(this);
    cbrNavigation->setObjectName(QStringLiteral("cbrNavigation"));
    cbrNavigation->setAccessibleName(tr("Navigation"));
    auto* tlbNavigation = new QToolBar(cbrNavigation);
    tlbNavigation->setObjectName(QStringLiteral("tlbNavigation"));
    tlbNavigation->setAccessibleName(tr("Panes"));
    tlbNavigation->setIconSize({toolbarPicture, toolbarPicture});
    tlbNavigation->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    auto* row = new QHBoxLayout(cbrNavigation);
    row->setContentsMargins(edge, 0, edge, 0);
    row->addWidget(tlbNavigation, 1);

    auto* buttons = new QActionGroup(this);
    const auto add = [&](Pane pane, const QString& key, const QString& caption, const QString& description,
                         const QString& toolTip, const QString& picture) {
        QAction* action = tlbNavigation->addAction(svgIcon(picture), caption);
        action->setObjectName(key);
        action->setCheckable(true);
        action->setToolTip(toolTip);
        action->setWhatsThis(description);
        buttons->addAction(action);
        connect(action, &QAction::triggered, this, [this, pane] { tlbNavigation_ButtonClick(pane); });
        QWidget* button = tlbNavigation->widgetForAction(action);
        button->setObjectName(key);
        button->setAccessibleName(caption);
        button->setAccessibleDescription(description);
        button->setFocusPolicy(Qt::TabFocus);
        return action;
    };
    profileButton_ =
        add(Pane::Profile, QStringLiteral("PROFILE"), QStringLiteral("Profiles"),
            QStringLiteral("Choose a profile!"), QStringLiteral("Click to choose or edit a profile"),
            QStringLiteral(":/talivane/pictures/profiles.svg"));
    locationButton_ =
        add(Pane::Location, QStringLiteral("LOCATION"), QStringLiteral("Locations"),
            QStringLiteral("Choose or edit locations"), QStringLiteral("Click to choose or edit a location"),
            QStringLiteral(":/talivane/pictures/locations.svg"));
    profileButton_->setChecked(true);
    return cbrNavigation;
}

void frmView::buildPanes() {
    auto* content = new QWidget(this);
    auto* column = new QVBoxLayout(content);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(buildToolbar());

    auto* vsMain = new QWidget(content);
    vsMain->setObjectName(QStringLiteral("vsMain"));
    vsMain->setAccessibleName(tr("Pane"));
    auto* panes = new QStackedLayout(vsMain);
    vsMainProfile = new ProfilePane(*this, vsMain);
    vsMainLocation = new LocationPane(*this, vsMain);
    panes->addWidget(vsMainProfile);
    panes->addWidget(vsMainLocation);
    column->addWidget(vsMain, 1);
    setCentralWidget(content);
}

void frmView::Show() {
    if (!loaded_) {
        loaded_ = true; // before the load, which can come back here to show a new profile
        Form_Load();
        if (focusWidget() == nullptr) {
            vsMainProfile->setFocus();
        }
    }
    show();
    raise();
    activateWindow();
}

void frmView::NewProfile() {
    vsMainProfile->NewProfile();
}

void frmView::NewLocation() {
    vsMainLocation->NewLocation();
}

void frmView::setPanel(Pane pane, const QString& name) {
    sbInfo->setPanel(pane == Pane::Profile ? QStringLiteral("Profile") : QStringLiteral("Location"), name);
}

void frmView::setEntryEnabled(const QString& name, bool enabled) {
    if (auto* entry = findChild<QAction*>(name); entry != nullptr) {
        entry->setEnabled(enabled && entry->property(connectedEntry).toBool());
    }
}

void frmView::connectEntry(const QString& name, std::function<void()> handler) {
    if (auto* entry = findChild<QAction*>(name); entry != nullptr) {
        connect(entry, &QAction::triggered, this, std::move(handler));
        entry->setProperty(connectedEntry, true);
        entry->setEnabled(true);
    }
}

void frmView::pressButton(Pane pane) {
    (pane == Pane::Profile ? profileButton_ : locationButton_)->setChecked(true);
}

void frmView::popUpLocations(const QPoint& onScreen) {
    mnuLocations->popup(onScreen);
}

void frmView::Form_Load() {
    routine(u"frmView.Form_Load", [this] {
        restorePlacement(*this);

        if (Global::CurrentLocation == nullptr) {
            openFirstLocation();
            setPanel(Pane::Location, QString());
        } else {
            cLocation& home = *Global::CurrentLocation;
            vsMainLocation->FillLocations();
            if (home.LocationID >= 0) {
                vsMainLocation->OpenLocation(home.LocationID);
                setPanel(Pane::Location, home.DESCRIPTION);
            } else if (vsMainLocation->locations().ListCount() > 0) {
                vsMainLocation->locations().setListIndex(0);
            } else {
                home.CreateLocation();
            }
        }

        if (Global::CurrentProfile == nullptr) {
            openFirstProfile();
            setPanel(Pane::Profile, QString());
        } else {
            cProfile& person = *Global::CurrentProfile;
            vsMainProfile->FillProfiles();
            // Here every id from 0 on opens; a press on the toolbar's button wants one above 0.
            if (person.PROFILEID > -1) {
                vsMainProfile->OpenProfile(person.PROFILEID);
                setPanel(Pane::Profile, person.PROFILENAME);
            } else if (vsMainProfile->profiles().ListCount() > 0) {
                vsMainProfile->profiles().setListIndex(0);
            } else {
                person.CreateProfile();
                setPanel(Pane::Profile, QString());
            }
        }

        CurrentPane = QStringLiteral("PROFILE");
        showPane(Pane::Profile);
    });
}

void frmView::openFirstLocation() {
    Global::CurrentLocation = std::make_unique<cLocation>();
    Global::CurrentLocation->LoadLocations();
    Global::CurrentLocation->LoadFloors();
    Global::CurrentLocation->LoadRooms();
    Global::CurrentLocation->CreateLocation();
}

void frmView::openFirstProfile() {
    Global::CurrentProfile = std::make_unique<cProfile>();
    Global::CurrentProfile->CreateProfile();
}

void frmView::tlbNavigation_ButtonClick(Pane button) {
    routine(u"frmView.tlbNavigation_ButtonClick", [&] {
        if (button == Pane::Profile) {
            switchToProfile();
        } else {
            switchToLocation();
        }
        showPane(button);
    });
}

void frmView::switchToProfile() {
    CurrentPane = QStringLiteral("PROFILE");
    if (Global::CurrentProfile == nullptr) {
        openFirstProfile();
        return;
    }
    cProfile& person = *Global::CurrentProfile;
    if (person.PROFILEID > 0) {
        vsMainProfile->OpenProfile(person.PROFILEID);
        setPanel(Pane::Profile, person.PROFILENAME);
    } else if (vsMainProfile->profiles().ListCount() > 0) {
        vsMainProfile->profiles().setListIndex(0);
    } else {
        person.CreateProfile();
    }
}

void frmView::switchToLocation() {
    CurrentPane = QStringLiteral("LOCATION");
    if (Global::CurrentLocation == nullptr) {
        openFirstLocation();
        return;
    }
    cLocation& home = *Global::CurrentLocation;
    if (home.LocationID >= 1) {
        vsMainLocation->OpenLocation(home.LocationID);
        setPanel(Pane::Location, home.DESCRIPTION);
    } else if (vsMainLocation->locations().ListCount() > 0) {
        vsMainLocation->locations().setListIndex(0);
    } else {
        home.CreateLocation();
    }
}

void frmView::showPane(Pane pane) {
    const bool profile = pane == Pane::Profile;
    auto* panes = static_cast<QStackedLayout*>(vsMainProfile->parentWidget()->layout());
    panes->setCurrentWidget(profile ? static_cast<QWidget*>(vsMainProfile) : vsMainLocation);
    mnuProfiles->menuAction()->setVisible(profile);
    mnuLocations->menuAction()->setVisible(!profile);
}

void frmView::mnuFileExit_Click() {
    passOver([this] { close(); });
}

void frmView::mnuAdviceMoving_Click() {
    passOver([this] { frmNineKi(this).AdviseMove(); });
}

void frmView::mnuAdviceRenovations_Click() {
    passOver([this] { frmNineKi(this).AdviseRenovation(); });
}

void frmView::mnuAdviceNineKi_Click() {
    passOver([this] { frmNineKi(this).AdviseYearlyChart(); });
}

void frmView::mnuAdviceElement_Click() {
    passOver([this] { frmElements(this).ShowModal(); });
}

void frmView::mnuAdviceProfile_Click() {
    passOver([this] { frmProfiles(this).ShowModal(); });
}

void frmView::mnuAdviceRooms_Click() {
    passOver([this] { frmPrintPreview(this).PrintRoomReport(); });
}

void frmView::mnuHelpFaqs_Click() {
    passOver(
        [] { HelpLinks::open(QStringLiteral("faq.html"), QStringLiteral("Frequently Asked Questions")); });
}

void frmView::mnuHelpSupport_Click() {
    passOver([] { HelpLinks::open(QStringLiteral("contact.html"), QStringLiteral("Support")); });
}

void frmView::mnuAbout_Click() {
    passOver([this] { frmAbout(this).ShowAbout(); });
}

void frmView::Form_Unload() {
    savePlacement(*this);
}

void frmView::closeEvent(QCloseEvent* event) {
    Form_Unload();
    QMainWindow::closeEvent(event);
}
