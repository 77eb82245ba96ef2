#include "ui/frmRoom.h"

#include "catalogues/cDirection.h"
#include "compass/windows/frmRoomDirection.h"
#include "core/Conversion.h"
#include "core/Global.h"
#include "core/Prompts.h"
#include "locations/cRoom.h"
#include "profiles/cProfile.h"
#include "reports/surface/ReportRoutines.h"
#include "reports/windows/PreviewWidget.h"
#include "reports/windows/ReportPager.h"
#include "reports/windows/ReportStrip.h"
#include "store/RecordStore.h"
#include "ui/RoomFields.h"
#include "ui/RoomForm.h"
#include "ui/platform/WaitPointer.h"
#include "ui/platform/WidgetPlacement.h"
#include "ui/widgets/ColorContrast.h"
#include "ui/widgets/TitleBand.h"

#include <QCloseEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

const QSize designSize(1080, 720);
constexpr int group = 16;
const QString insertMode = u"INSERT"_s;
const QString updateMode = u"UPDATE"_s;

/// Zoom and paging have no label here.
ReportLabels reportLabels() {
    ReportLabels labels;
    labels.print = u"frmRoom.mnuFilePrint_Click"_s;
    labels.saveAs = u"frmRoom.mnuFileSaveAs_Click"_s;
    return labels;
}

void setCaption(QPushButton& button, const QString& caption) {
    button.setText(caption);
    button.setAccessibleName(QString(caption).remove(u'&'));
}

} // namespace

frmRoom::frmRoom(QWidget* parent)
    : QDialog(parent) {
    constexpr int edge = 24;
    setObjectName(u"frmRoom"_s);
    setWindowTitle(tr("Room"));
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    resize(designSize);

    vsTop = new TitleBand(this);
    vsTop->setObjectName(u"vsTop"_s);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(vsTop);
    auto* sides = new QHBoxLayout;
    sides->setSpacing(group);
    sides->setContentsMargins(edge, 0, 0, 0);
    sides->addWidget(buildFacts());
    sides->addWidget(buildReport(), 1);
    column->addLayout(sides, 1);
    buildMenu();
    pager_ = std::make_unique<ReportPager>(surface_, *strip_, ZoomSteps::throughModes(), reportLabels());
    connect(vpPrint, &PreviewWidget::pageChosen, pager_.get(), &ReportPager::showChosenPage);
    connect(form_, &RoomForm::edited, this, &frmRoom::roomEdited);
}

frmRoom::~frmRoom() {
    // The preview reads the surface, which goes before the window's other children do.
    delete vpPrint;
}

QWidget* frmRoom::buildFacts() {
    constexpr int between = 8;
    constexpr int comfortableWidth = 416;
    auto* facts = new QWidget(this);
    form_ = new RoomForm(facts);
    auto* row = new QHBoxLayout;
    row->setSpacing(between);
    cmdOK = addButton(*row, u"cmdOK"_s, u"&Save"_s, u"Click Save to save changes to this room"_s,
                      &frmRoom::mnuFileSave_Click);
    cmdOK->setDefault(true);
    addButton(*row, u"cmdPrint"_s, u"&Print"_s, u"Click Print to print a copy of the Feng Shui Analysis"_s,
              &frmRoom::cmdPrint_Click);
    addButton(*row, u"cmdCompass"_s, u"&Compass"_s,
              u"Click Compass to see how the room is divided into the compass locations"_s,
              &frmRoom::cmdCompass_Click);
    cmdCancel = addButton(*row, u"cmdCancel"_s, u"C&lose"_s, u"Click Close to return to the Floorplan"_s,
                          &frmRoom::mnuFileClose_Click);

    auto* column = new QVBoxLayout(facts);
    column->setContentsMargins(0, group, 0, between);
    column->addWidget(form_);
    column->addStretch(1);
    column->addSpacing(group);
    column->addLayout(row);
    facts->setFixedWidth(qMax(comfortableWidth, facts->minimumSizeHint().width()));
    return facts;
}

QPushButton* frmRoom::addButton(QBoxLayout& row, const QString& name, const QString& caption,
                                const QString& toolTip, void (frmRoom::*handler)()) {
    auto* button = new QPushButton(this);
    button->setObjectName(name);
    setCaption(*button, caption);
    button->setToolTip(toolTip);
    // Enter belongs to the button that saves, wherever the focus stands.
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, handler);
    row.addWidget(button, 1);
    return button;
}

QWidget* frmRoom::buildReport() {
    constexpr int edge = 16;
    constexpr int between = 8;
    auto* report = new QWidget(this);
    vpPrint = new PreviewWidget(surface_, report);
    vpPrint->setObjectName(u"vpPrint"_s);
    vpPrint->setFrameShape(QFrame::NoFrame);
    strip_ = new ReportStrip(u"Page 0 of 0"_s, report);
    auto* column = new QVBoxLayout(report);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(vpPrint, 1);
    auto* bottom = new QVBoxLayout;
    bottom->setContentsMargins(edge, between, edge, between);
    bottom->addWidget(strip_);
    column->addLayout(bottom);
    return report;
}

void frmRoom::buildMenu() {
    auto* bar = new QMenuBar(this);
    QMenu* mnuFile = bar->addMenu(u"&File"_s);
    mnuFile->setObjectName(u"mnuFile"_s);
    const auto add = [&](const QString& name, const QString& caption, void (frmRoom::*handler)()) {
        mnuFile->addAction(caption, this, handler)->setObjectName(name);
    };
    add(u"mnuFileSave"_s, u"&Save"_s, &frmRoom::mnuFileSave_Click);
    add(u"mnuFilePrint"_s, u"&Print"_s, &frmRoom::mnuFilePrint_Click);
    add(u"mnuFileSaveAs"_s, u"Save as HTML"_s, &frmRoom::mnuFileSaveAs_Click);
    mnuFile->addSeparator()->setObjectName(u"mnuFileSep1"_s);
    add(u"mnuFileClose"_s, u"&Close"_s, &frmRoom::mnuFileClose_Click);
    layout()->setMenuBar(bar);
}

bool frmRoom::NewRoom(qint32 LocationID, qint32 FloorID) {
    return routine(u"frmRoom.New Room", false, [&](bool& result) {
        begin(u"Finish"_s);
        oRoom->FLOORID = FloorID;
        oRoom->LocationID = LocationID;
        oRoom->LoadRooms();
        Form_Load();
        fillLists();
        ClearScreen();
        modRooms::InitReport(surface_);
        RoomFields::selectByKey(*form_->cboFloors, FloorID);
        // Choosing the floor counted as a change; the user has made none yet.
        cmdOK->setEnabled(false);
        RoomSaved = false;
        RoomChanged = true;
        Mode = insertMode;
        result = showUntilClosed();
    });
}

bool frmRoom::OpenRoom(qint32 RoomID) {
    return routine(u"frmRoom.Open Room", false, [&](bool& result) {
        {
            const WaitPointer wait;
            begin(u"&Save"_s);
            Form_Load();
            fillLists();
            ClearScreen();
            oRoom->LoadRooms();
            oRoom->GetRoom(RoomID);
            // Showing the room counts as a change to the button, which stays enabled.
            LoadScreenfromRoom();
            analyze();
            RoomSaved = false;
            RoomChanged = false;
            Mode = updateMode;
        }
        result = showUntilClosed();
    });
}

void frmRoom::begin(const QString& saveCaption) {
    setCaption(*cmdOK, saveCaption);
    cmdOK->setEnabled(false);
    oRoom = std::make_unique<cRoom>();
}

bool frmRoom::showUntilClosed() {
    form_->txtDescription->setFocus();
    exec();
    const bool saved = RoomSaved;
    oRoom.reset();
    Form_Unload();
    return saved;
}

void frmRoom::Form_Load() {
    routine(u"frmRoom.Form_Load", [this] {
        loaded_ = true;
        restorePlacement(*this);
        vsTop->setAccent(ColorContrast::fromStored(Global::accentColor()));
    });
}

void frmRoom::Form_Unload() {
    if (!loaded_) { // by the window's own close box, before the modal show came back
        return;
    }
    loaded_ = false;
    passOver([this] { askToSave(); });
    passOver([this] { savePlacement(*this); });
}

void frmRoom::closeEvent(QCloseEvent* event) {
    Form_Unload();
    hide();
    event->accept();
}

void frmRoom::reject() {
    mnuFileClose_Click();
}

void frmRoom::fill(QStringView label, const std::function<void()>& body) {
    routine(label, [&] {
        const QScopedValueRollback filling(Filling, true);
        body();
    });
}

void frmRoom::FillRoomTypes() {
    fill(u"frmRoom.Fill Room Types", [this] {
        room().LoadRoomTypes();
        RoomFields::fillList(*form_->cboRoomType, room().oXMLRoomTypes, u"ROOMTYPE"_s);
    });
}

void frmRoom::FillFloorTypes() {
    fill(u"frmRoom.Fill Floor Types", [this] {
        room().LoadFlooring();
        RoomFields::fillList(*form_->cboFlooring, room().oXMLFloorTypes, u"FLOORTYPE"_s);
    });
}

void frmRoom::FillLocations() {
    fill(u"frmRoom.Fill Locations",
         [this] { RoomFields::fillList(*form_->cboLocation, cDirection().oXMLDirections, u"DIRECTION"_s); });
}

void frmRoom::FillFloors() {
    fill(u"frmRoom.Fill Floors", [this] { RoomFields::fillFloors(*form_->cboFloors); });
}

void frmRoom::fillLists() {
    FillRoomTypes();
    FillFloorTypes();
    FillFloors();
    FillLocations();
}

void frmRoom::ClearScreen() {
    routine(u"frmRoom.ClearScreen", [this] {
        vsTop->setCaption({});
        RoomFields::clear(*form_);
        surface_.StartDoc();
        surface_.EndDoc();
        pager_->showFirstPage();
    });
}

void frmRoom::LoadScreenfromRoom() {
    routine(u"frmRoom.LoadScreenfromRoom", [this] {
        vsTop->setCaption(captionText(room().DESCRIPTION));
        RoomFields::show(room(), *form_);
    });
}

void frmRoom::LoadRoomFromScreen() {
    routine(u"frmRoom.LoadRoomFromScreen", [this] { RoomFields::read(*form_, room()); });
}

void frmRoom::roomEdited() {
    passOver([this] { cmdOK->setEnabled(true); });
    RoomChanged = true;
}

void frmRoom::roomStored() {
    RoomSaved = true;
    RoomChanged = false;
    if (cmdOK->hasFocus()) {
        cmdCancel->setFocus(); // the focus would leap to the button that prints
    }
    cmdOK->setEnabled(false);
}

void frmRoom::analyze() {
    room().AnalyzeRoom(surface_);
    pager_->showFirstPage();
}

cRoom& frmRoom::room() const {
    if (oRoom == nullptr) {
        throw failure(ErrorNumber::ObjectNotSet);
    }
    return *oRoom;
}

bool frmRoom::save() {
    return routine(u"frmRoom.mnuFileSave_Click", false, [this](bool& stored) {
        if (Mode != updateMode) {
            if (form_->txtDescription->text().isEmpty()) {
                Global::service(&Services::prompts)
                    .messageBox(u"OK"_s,
                                u"Before you can save your Room, you must enter a Description for it."_s,
                                MessageIcon::Information, MessageButtons::Ok);
                form_->txtDescription->setFocus();
                return;
            }
            LoadRoomFromScreen();
            // The new key is in the store alone; the advice and the next save need it here. A store whose
            // file could not be read took nothing up and has none: the entry stays unsaved.
            const QString key = room().InsertRoom()
                                    ? RecordStore::opened(room().oXMLRooms).GetAttribute(u"ROOMID"_s)
                                    : QString();
            stored = !key.isEmpty();
            if (stored) {
                room().GetRoom(Conversion::toLong(key));
                roomStored();
            }
            Mode = updateMode;
            setCaption(*cmdOK, u"&Save"_s);
        } else {
            LoadRoomFromScreen();
            stored = room().UpdateRoom();
            if (stored) {
                roomStored();
            }
        }
        const WaitPointer wait;
        LoadScreenfromRoom();
        analyze();
    });
}

void frmRoom::mnuFileSave_Click() {
    save();
}

void frmRoom::mnuFilePrint_Click() {
    pager_->print();
}

void frmRoom::mnuFileSaveAs_Click() {
    pager_->saveAsHtml([this] { analyze(); });
}

void frmRoom::askToSave() {
    if (!RoomChanged) {
        return;
    }
    const MessageAnswer answer =
        Global::service(&Services::prompts)
            .messageBox(u"Close"_s, u"Would you like to save your changes before closing?"_s,
                        MessageIcon::Question, MessageButtons::YesNo);
    // Numbers that a save wrote anew on the screen are no reason to ask again.
    RoomChanged = answer == MessageAnswer::Yes && !save();
}

void frmRoom::mnuFileClose_Click() {
    passOver([this] { askToSave(); });
    passOver([this] { hide(); });
}

void frmRoom::cmdPrint_Click() {
    routine(u"frmRoom.cmdPrint_Click", [this] { mnuFilePrint_Click(); });
}

void frmRoom::cmdCompass_Click() {
    passOver([this] { frmRoomDirection(this).ShowDirection(room().DESCRIPTION, room().RoomID); });
}
